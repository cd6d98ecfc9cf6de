#include "physicsModule/PhysicsModule.h"
#include "PhysicsBodies.h"
#include "ProcessValues.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/ParticleEmiter.h"
#include "physicsModule/btFixedWorld.h"
#include "physicsModule/myGeneric6DofSpringConstraint.h"
#include "sceneManager/So_Addons/So_Addition.h"
#include "support/EngineFixture.h"

#include <BulletCollision/CollisionShapes/btCompoundShape.h>
#include <BulletCollision/NarrowPhaseCollision/btPersistentManifold.h>
#include <BulletDynamics/ConstraintSolver/btHingeConstraint.h>
#include <LinearMath/btDefaultMotionState.h>

#include <algorithm>

namespace {

class PhysicsModuleTest : public EngineFixture {
protected:
    int deaths = 0; // of probes; outlives the scene

    static btHingeConstraint* hingeBetween(const SceneObject& a, const SceneObject& b) {
        const btVector3 axis(0, 0, 1);
        return new btHingeConstraint(*a.physicsObject->body, *b.physicsObject->body,
                                     btVector3(5, 0, 0), btVector3(-5, 0, 0), axis, axis, true);
    }

    static myGeneric6DofSpringConstraint* sliderBetween(const SceneObject& a,
                                                        const SceneObject& b) {
        return new myGeneric6DofSpringConstraint(*a.physicsObject->body, *b.physicsObject->body,
                                                 btTransform::getIdentity(),
                                                 btTransform::getIdentity());
    }

    /// The most motes of dust at a time while a crate falls on a floor with that speed.
    std::size_t dustOfFall(float speed, bool contactNoise) {
        addBox(0, -20, 100, 10, 0)->contactNoise = contactNoise;
        SceneObject* crate = addBox(0, 5, 10, 10, 1);
        crate->physicsObject->body->setLinearVelocity(btVector3(0, -speed, 0));
        std::size_t most = 0;
        for (int i = 0; i < 20; ++i) {
            step();
            for (const GraphicsObject* object : graphicsModule().getObjects()) {
                if (const auto* emiter = dynamic_cast<const ParticleEmiter*>(object)) {
                    most = std::max(most, emiter->getParticles().size());
                }
            }
        }
        sceneManager().clearScene();
        return most;
    }
};

} // namespace

TEST_F(PhysicsModuleTest, TheClockAndTheAgesGoOnWhileTheWorldStands) {
    SceneObject* crate = addBox(0, 100, 10, 10, 1);
    int turns = 0;
    crate->addAddition(new Probe([&turns] { ++turns; }));
    step(3);
    EXPECT_LT(originOf(*crate).y(), 100);
    const float height = originOf(*crate).y();
    physicsRunning = 0;
    int scriptTurns = 0;
    physicsModule().addScript(new Probe([&scriptTurns] { ++scriptTurns; }));
    step(5);
    EXPECT_EQ(originOf(*crate).y(), height);
    EXPECT_EQ(turns, 3);
    EXPECT_EQ(scriptTurns, 5);
    EXPECT_EQ(crate->age, 8U);
    EXPECT_EQ(physicsModule().stepCount, 8U);
}

TEST_F(PhysicsModuleTest, AWallThatIsPutElsewhereIsMetThereAndNotWhereItWas) {
    for (const bool settles : {false, true}) {
        const SceneObject* wall = addBox(0, 0, 50, 10, 0);
        step(4); // long enough to be taken for a wall that stays
        wall->physicsObject->body->getWorldTransform().setOrigin(btVector3(500, 0, 0));
        if (settles) {
            wall->physicsObject->settle();
        }
        const SceneObject* before = addBox(0, 40, 10, 10, 1);
        const SceneObject* now = addBox(500, 40, 10, 10, 1);
        step(60);
        EXPECT_LT(originOf(*before).y(), -100.0F);
        EXPECT_NEAR(originOf(*now).y(), 20.0F, 1.0F);
        sceneManager().clearScene();
    }
}

TEST_F(PhysicsModuleTest, ABodyThatIsPutElsewhereIsNotCheckedAgainstWhatLiesBetween) {
    SceneObject* crate = addBox(0, 0, 10, 10, 1);
    crate->physicsObject->body->setGravity(btVector3(0, 0, 0)); // stays where it is put
    addBox(500, 0, 20, 200, 0);
    step();
    crate->physicsObject->body->getWorldTransform().setOrigin(btVector3(1000, 0, 0));
    crate->physicsObject->settle();
    step(5);
    EXPECT_EQ(physicsModule().world->getPairCache()->getNumOverlappingPairs(), 0);
}

TEST_F(PhysicsModuleTest, ObjectsRunBeforeScriptsAndBothReachWhatIsAddedMeanwhile) {
    std::string order;
    SceneObject* crate = addBox(0, 0, 10, 10, 1);
    crate->addAddition(new Probe([&order] {
        order += 'a';
        if (order.size() == 1) {
            addBox(50, 0, 10, 10, 1)->addAddition(new Probe([&order] { order += 'b'; }));
            physicsModule().addScript(new Probe([&order] {
                order += 'c';
                if (order.size() == 3) {
                    physicsModule().addScript(new Probe([&order] { order += 'd'; }));
                }
            }));
        }
    }));
    step(2);
    EXPECT_EQ(order, "abcdabcd");
}

TEST_F(PhysicsModuleTest, AScriptThatRemovesItselfGoesAfterEveryScriptHasHadItsTurn) {
    int turns = 0;
    So_Addition* quitter = nullptr;
    quitter = new Probe(
        [&quitter] {
            physicsModule().removeScript(quitter);
            physicsModule().removeScript(quitter);
        },
        &deaths);
    auto* other = new Probe([&] { turns += deaths == 0 ? 1 : 0; });
    physicsModule().addScript(quitter);
    physicsModule().addScript(quitter); // is listed already
    physicsModule().addScript(other);
    step();
    EXPECT_EQ(deaths, 1);
    EXPECT_EQ(turns, 1);
    EXPECT_EQ(physicsModule().getGlobalScripts(), std::vector<So_Addition*>{other});
    physicsModule().removeAllScripts();
    step();
    EXPECT_TRUE(physicsModule().getGlobalScripts().empty());
}

TEST_F(PhysicsModuleTest, ABodyTakesItsJointsAlongAndLeavesThoseOfOthers) {
    SceneObject* hub = addBox(0, 0, 10, 10, 1);
    SceneObject* rim[] = {addBox(30, 0, 10, 10, 1), addBox(-30, 0, 10, 10, 1),
                          addBox(0, 30, 10, 10, 1)};
    const std::unique_ptr<btHingeConstraint> foreign(hingeBetween(*hub, *rim[0]));
    hub->physicsObject->body->addConstraintRef(foreign.get());
    physicsModule().addConstraint(hingeBetween(*hub, *rim[0]));
    physicsModule().addConstraint(hingeBetween(*rim[1], *hub));
    physicsModule().addConstraint(sliderBetween(*hub, *rim[2]));
    btHingeConstraint* other = hingeBetween(*rim[0], *rim[1]);
    physicsModule().addConstraint(other);
    step(5);
    sceneManager().removeSceneObject(hub);
    EXPECT_EQ(physicsModule().getJoints(), std::vector<btTypedConstraint*>{other});
    EXPECT_EQ(physicsModule().world->getNumConstraints(), 1);
    step(5);
}

TEST_F(PhysicsModuleTest, AHardLandingRaisesDustUnlessThePairIsSilent) {
    EXPECT_EQ(dustOfFall(400, false), 0U);
    EXPECT_EQ(dustOfFall(0, true), 0U);
    EXPECT_GT(dustOfFall(400, true), 0U);
}
