#include "support/EngineFixture.h"

#include "PhysicsBodies.h"
#include "graphicsModule/Camera.h"
#include "inputModule/InputFrame.h"
#include "inputModule/InputModule.h"
#include "inputModule/InputObject.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/So_Addons/CallbackAdd.h"

#include <BulletDynamics/ConstraintSolver/btGeneric6DofConstraint.h>
#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;

/// A body far from the origin, heard at full volume where it stands, with the script under test.
class SoundKeywords : public EngineFixture {
protected:
    void prepareDirectory() override {
        EngineFixture::prepareDirectory();
        writeSounds({"a", "b", "minibell", "switch", "switchoff"});
    }

    SceneObject* addMachine(const std::string& script, float mass = 1.0F) {
        SceneObject* machine = addBox(500.0F, 300.0F, 10.0F, 10.0F, mass);
        machine->addAddition(parseScript(script));
        graphicsModule().camera->setView(500.0F, 300.0F, 1.0F);
        return machine;
    }

    /// What runs after a step that ended with these velocities.
    std::string heardAt(SceneObject* machine, float vx, float vy, float turning = 0.0F) const {
        btRigidBody& body = *machine->physicsObject->body;
        body.setLinearVelocity({vx, vy, 0.0F});
        body.setAngularVelocity({0.0F, 0.0F, turning});
        machine->update();
        return mixer->running();
    }

    std::string running() const { return mixer->running(); }
};

TEST_F(SoundKeywords, ASoundIsHeardFromItsPlaceOnlyIfItIsToldSo) {
    for (const auto& [script, heard] : std::initializer_list<std::pair<const char*, const char*>>{
             {"SOUND a.wav", "a.wav 128"},
             {"SOUND a.wav -V 60", "a.wav 60"},
             {"SOUND a.wav -V 60 -P y", "a.wav 64"},
             {"SOUND a.wav -P y", "a.wav 64"}}) {
        SceneObject* machine = addMachine(script);
        graphicsModule().camera->setX(500.0F + 618.0F);
        machine->update();
        EXPECT_EQ(running(), heard) << script;
        mixer->endSound(0);
        sceneManager().clearScene();
    }
    physicsModule().addScript(parseScript("SOUND a.wav -V 60"));
    step();
    EXPECT_EQ(running(), "a.wav 60");
}

TEST_F(SoundKeywords, ALoopFollowsWhatItsBodyDoesAndEndsWithIt) {
    SceneObject* crate = addMachine("MOVSOUND a.wav -V 90");
    EXPECT_EQ(heardAt(crate, 0.0F, -30.0F), "");
    EXPECT_EQ(heardAt(crate, 0.0F, -30.1F), "a.wav 90 for ever");
    EXPECT_EQ(heardAt(crate, 29.0F, 0.0F), "");
    EXPECT_EQ(heardAt(crate, 40.0F, 0.0F), "a.wav 90 for ever");
    crate->clearAdditions();
    EXPECT_EQ(running(), "") << "stopped with its link";

    crate->addAddition(parseScript("VSOUND b.wav -V 20"));
    EXPECT_EQ(heardAt(crate, 128.0F, 0.0F), "b.wav 128 for ever");
    EXPECT_EQ(heardAt(crate, 0.05F, 0.0F, 1.0F), "b.wav 50 for ever") << "rolls in place";
    sceneManager().removeSceneObject(crate);
    sceneManager().flushRemovals();
    EXPECT_EQ(running(), "");
}

TEST_F(SoundKeywords, ALevelPartThatCodeMovesIsHeardFromItsSecondStep) {
    SceneObject* gate = addMachine("MOVSOUND a.wav", 0.0F);
    std::string heard;
    for (const float dx : {1.0F, 1.0F, 1.0F, 0.0F, 1.0F}) {
        gate->moveBy(dx, 0.0F);
        gate->update();
        heard += running().empty() ? "-" : "a";
    }
    EXPECT_EQ(heard, "-aa-a");
}

TEST_F(SoundKeywords, AHingeSqueaksOncePerPassThroughItsMiddle) {
    SceneObject* door = addMachine("SQUEAK a.wav b.wav");
    btRigidBody& body = *door->physicsObject->body;
    auto* joint = new btGeneric6DofConstraint(body, btTransform::getIdentity(), true);
    joint->setAngularLowerLimit({0.0F, 0.0F, -1.0F});
    joint->setAngularUpperLimit({0.0F, 0.0F, 1.0F});
    physicsModule().addConstraint(joint);
    const auto heardTurned = [&](float angle, float turning) {
        body.getWorldTransform().setRotation(btQuaternion(btVector3(0, 0, 1), angle));
        joint->calculateTransforms();
        std::string heard = heardAt(door, 0.0F, 0.0F, turning);
        mixer->endSound(0);
        return heard;
    };
    EXPECT_EQ(heardTurned(0.0F, 0.0F), "") << "at rest";
    EXPECT_EQ(heardTurned(0.05F, 2.0F), "") << "has not left the middle yet";
    EXPECT_EQ(heardTurned(0.5F, 2.0F), "");
    EXPECT_EQ(heardTurned(0.05F, -2.0F), "b.wav 40");
    EXPECT_EQ(heardTurned(-0.05F, -2.0F), "");
    EXPECT_EQ(heardTurned(-0.5F, -2.0F), "");
    EXPECT_EQ(heardTurned(-0.05F, 2.0F), "a.wav 40");
}

TEST_F(SoundKeywords, ACreakIsAsLoudAsItsBodyIsFast) {
    SceneObject* lift = addMachine("CREAK a.wav b.wav");
    EXPECT_EQ(heardAt(lift, 0.0F, 50.0F), "b.wav 50");
    EXPECT_EQ(heardAt(lift, 0.0F, 0.0F), "") << "halted at rest";
    EXPECT_EQ(heardAt(lift, 0.0F, -70.0F), "a.wav 70");
}

TEST_F(SoundKeywords, APlateClicksDownAndUp) {
    SceneObject* plate = addMachine("STRIGGER SCRATCH NULL", 0.0F);
    SceneObject* crate = addBox(500.0F, 319.0F, 5.0F, 8.0F, 1.0F);
    step(20);
    EXPECT_THAT(running(), HasSubstr("switch.wav"));
    EXPECT_FALSE(plate->contactNoise);
    crate->moveBy(0.0F, 300.0F);
    step(3);
    EXPECT_THAT(running(), HasSubstr("switchoff.wav"));
    plate->clearAdditions();
    EXPECT_FALSE(plate->contactNoise) << "for good";
}

TEST_F(SoundKeywords, ATipRingsUnlessItIsEmptyOrTheScreenIsWhite) {
    physicsModule().addScript(parseScript("LOCK TIP 5 DELAY 3 TIP 9999"));
    step();
    EXPECT_EQ(running(), "minibell.wav 128");
    mixer->endSound(0);
    step(5);
    EXPECT_EQ(running(), "") << "no line of that number";
    EXPECT_TRUE(inputModule().getFrames().empty()) << "and the old one goes";

    graphicsModule().screenFadeTarget = {1.0F, 1.0F, 1.0F, 1.0F};
    physicsModule().addScript(parseScript("LOCK TIP 5"));
    step();
    EXPECT_EQ(running(), "");
    ASSERT_EQ(inputModule().getFrames().size(), 1U);
    const InputFrame& tip = *inputModule().getFrames().front();
    EXPECT_NEAR(tip.graphics->getTop(), 400.0F, 0.1F) << "half way down";
    EXPECT_EQ(alphaOf(*tip.graphics), 0.0F);
    float red = 1.0F;
    float ignored = 0.0F;
    tip.getChildren().front()->graphics->getColour(red, ignored, ignored, ignored);
    EXPECT_EQ(red, 0.0F) << "dark on the white";
}

} // namespace
