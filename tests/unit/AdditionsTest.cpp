#include "FloorFixture.h"

#include "Records.h"
#include "sceneManager/Forcefield.h"
#include "sceneManager/SceneObjectDescription.h"
#include "sceneManager/So_Addons/DamageAdd.h"
#include "sceneManager/So_Addons/ForcefieldAdd.h"
#include "sceneManager/So_Addons/HealthAdd.h"
#include "sceneManager/So_Addons/ObjectNameAdd.h"

#include <BulletCollision/CollisionShapes/btCollisionShape.h>
#include <BulletCollision/NarrowPhaseCollision/btPersistentManifold.h>

#include <cmath>
#include <limits>

// Additions that stand by themselves on an object.

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float gravity = 640.0F;

class AdditionsTest : public FloorFixture {
protected:
    void SetUp() override {
        FloorFixture::SetUp();
        floor->physicsObject->wantsContacts = true;
    }

    static SceneObject* addBall(float mass = 1.0F) {
        return addToScene(createSphere(0.0F, 20.0F, 10.0F, 0.0F, 0.5F, mass));
    }

    /// The first point between the floor and what rests on it.
    btManifoldPoint& point() { return floor->physicsObject->contacts.at(0)->getContactPoint(0); }
};

class DamageTest : public AdditionsTest {
protected:
    /// Hit points that the ball loses to one step of the addition.
    int lossBy(DamageAdd addition) {
        const int before = health->value;
        addition.update(floor);
        return before - health->value;
    }

    void rest(SceneObject* object) {
        object->addAddition(health = new HealthAdd(1000));
        step(30);
    }

    HealthAdd* health = nullptr;
};

TEST_F(DamageTest, OnlyAHitOfTheThresholdThatIsNotBeyondTheOthersMarginHurts) {
    SceneObject* ball = addBall();
    rest(ball);
    const float impulse = point().m_appliedImpulse;
    ASSERT_GT(impulse, 0.0F) << "the floor holds the ball";
    EXPECT_EQ(lossBy({7, impulse}), 7);
    EXPECT_EQ(lossBy({7, std::nextafter(impulse, infinity)}), 0);
    const float margin = bodyOf(*ball).getCollisionShape()->getMargin();
    point().m_distance1 = margin;
    EXPECT_EQ(lossBy({7, 0.0F}), 7);
    point().m_distance1 = std::nextafter(margin, infinity);
    EXPECT_EQ(lossBy({7, 0.0F}), 0);
}

TEST_F(DamageTest, EveryPointOfContactCountsInEveryStep) {
    rest(addBox(0.0F, 20.0F, 10.0F, 10.0F, 1.0F)); // lies on two corners
    const int before = health->value;
    floor->addAddition(new DamageAdd(7, 0.0F));
    step(3);
    EXPECT_EQ(before - health->value, 3 * 2 * 7);
}

TEST_F(AdditionsTest, AnObjectBreaksBelowOneHitPointWhenItsTurnComes) {
    SceneObject* early = addBox(-200.0F, 0.0F, 5.0F, 5.0F, 0.0F);
    SceneObject* middle = addBox(-100.0F, 0.0F, 5.0F, 5.0F, 0.0F);
    SceneObject* late = addBox(200.0F, 0.0F, 5.0F, 5.0F, 0.0F);
    early->addAddition(new HealthAdd(2));
    late->addAddition(new HealthAdd(2));
    middle->addAddition(new Probe([=] {
        early->hurt(1);
        late->hurt(1);
    }));
    step();
    EXPECT_EQ(sceneManager().debrisCount(), 0U) << "1 is enough to stay";
    step();
    EXPECT_TRUE(sceneManager().contains(early)) << "had its turn before it was hurt";
    EXPECT_FALSE(sceneManager().contains(late));
    middle->clearAdditions();
    step();
    EXPECT_FALSE(sceneManager().contains(early));
    EXPECT_EQ(sceneManager().debrisCount(), 2U);
}

class PushTest : public AdditionsTest {
protected:
    /// The force that one step of the addition puts on the object.
    btVector3 pushOf(float power, const SceneObject* other) {
        bodyOf(*other).clearForces();
        ForcefieldAdd(power).update(floor);
        return bodyOf(*other).getTotalForce();
    }

    void turnFloor(float angle) {
        bodyOf(*floor).getWorldTransform().setRotation(btQuaternion(btVector3(0, 0, 1), angle));
    }
};

TEST_F(PushTest, APowerOfOneIsTheWorldsGravityAlongTheOwnersUpAxis) {
    const SceneObject* ball = addBall(2.5F);
    step(30);
    point().m_distance1 = 0.0F;
    EXPECT_EQ(pushOf(1.0F, ball), btVector3(0.0F, 2.5F * gravity, 0.0F));
    EXPECT_EQ(pushOf(-0.5F, ball), btVector3(0.0F, -1.25F * gravity, 0.0F));
    turnFloor(SIMD_HALF_PI);
    EXPECT_NEAR(pushOf(1.0F, ball).x(), -2.5F * gravity, 0.1F);
    EXPECT_NEAR(pushOf(1.0F, ball).y(), 0.0F, 0.1F);
    bodyOf(*ball).setLinearFactor({0.0F, 1.0F, 0.0F});
    EXPECT_EQ(pushOf(1.0F, ball).x(), 0.0F);
}

TEST_F(PushTest, AGapThatAForcefieldStillSpansKeepsThePushOff) {
    const SceneObject* ball = addBall();
    step(30);
    point().m_distance1 = 0.05F;
    EXPECT_TRUE(pushOf(1.0F, ball).isZero());

    sceneManager().clearScene();
    auto* field = new Forcefield(makeBoxParts({}, 0, 0, 50, 10), 0.0F, 1.0F);
    sceneManager().addSceneObject(field);
    ball = addBall();
    step();
    field->physicsObject->contacts.at(0)->getContactPoint(0).m_distance1 = 0.05F;
    bodyOf(*ball).clearForces();
    field->update();
    EXPECT_EQ(bodyOf(*ball).getTotalForce(), btVector3(0.0F, gravity, 0.0F));
}

TEST_F(PushTest, WhatStandsStillTakesNoForce) {
    SceneObject* ball = addBall();
    ball->addAddition(new ForcefieldAdd(5.0F));
    step(30);
    EXPECT_TRUE(bodyOf(*floor).getTotalForce().isZero());
    EXPECT_TRUE(std::isfinite(originOf(*floor).y()));
}

/// The protagonist on the floor, in a zone that lets it through and says something.
class DialogTest : public AdditionsTest {
protected:
    void SetUp() override {
        AdditionsTest::SetUp();
        zone = letThrough(addBox(0.0F, 40.0F, 40.0F, 40.0F, 0.0F));
        player = addPlayer(0.0F, 25.0F);
        player->type = sceneObjectType::testPlayer;
    }

    So_Addition* addDialog(const std::string& record) {
        zone->addAddition(additionOf(record).release());
        return zone->additions.back();
    }

    /// What shows after each of so many steps.
    std::string linesOfSteps(int count) {
        std::string lines;
        for (int i = 0; i < count; ++i) {
            step();
            lines += shownLine() + "/";
        }
        return lines;
    }

    SceneObject* zone = nullptr;
    Player* player = nullptr;
};

TEST_F(DialogTest, LinesFollowEachOtherAndBeginAgainAfterTheLast) {
    addDialog("0 2 0 0 5 qq120 3 2 hm 2 ");
    EXPECT_EQ(linesOfSteps(8), "line 120/line 120/line 120/hm/hm//line 120/line 120/");
    player->silence();
    bodyOf(*player).getWorldTransform().setOrigin({500.0F, 25.0F, 0.0F});
    EXPECT_EQ(linesOfSteps(3), "///") << "and nobody listens any more";
}

TEST_F(DialogTest, OnceDoesNotWaitForSilenceAndClosesUntilUnlocked) {
    player->say("well", 3);
    So_Addition* dialog = addDialog("0 1 1 0 2 hm 2 ");
    EXPECT_EQ(linesOfSteps(7), "well/well/well/hm/hm///");
    EXPECT_EQ(recordOf(*dialog), "0 1 1 1 2 hm 2 ");
    dialog->unlock();
    EXPECT_EQ(linesOfSteps(3), "hm/hm//");
    dialog->unlock();
    zone->addAddition(new ObjectNameAdd("zone"));
    const std::unique_ptr<CallbackAdd> script(parseScript("SETLOCK zone"));
    script->update(nullptr);
    EXPECT_EQ(linesOfSteps(3), "///") << "closed by its name";
}

TEST_F(DialogTest, ComingNearIsNoTouchAndNobodyElseIsHeard) {
    So_Addition* dialog = addDialog("0 1 0 1 2 hm 2 ");
    step();
    dialog->unlock();
    btManifoldPoint& touch = zone->physicsObject->contacts.at(0)->getContactPoint(0);
    touch.m_distance1 = 0.001F;
    dialog->update(zone);
    EXPECT_FALSE(player->isSpeaking());
    touch.m_distance1 = 0.0F;
    player->type = sceneObjectType::player;
    dialog->update(zone);
    EXPECT_FALSE(player->isSpeaking());
    player->type = sceneObjectType::testPlayer;
    dialog->update(zone);
    EXPECT_TRUE(player->isSpeaking());
}

TEST_F(DialogTest, AReferenceIsAMarkAndTheNumberBehindIt) {
    const std::pair<const char*, const char*> cases[] = {
        {"2 qq", "qq"},           {"10 qq5 apples", "line 5"}, {"4 qq 6", "line 6"},
        {"5 Qq120", "Qq120"},     {"7 qqapple", " "},          {"6 qq9999", " "},
        {"12 qq5000000000", " "},
    };
    for (const auto& [line, shown] : cases) {
        So_Addition* dialog = addDialog("0 1 1 0 " + std::string(line) + " 1 ");
        step();
        EXPECT_EQ(shownLine(), shown) << line;
        zone->removeAddition(dialog);
        player->silence();
    }
}

TEST_F(AdditionsTest, WithoutAnOwnerOrABodyNothingHappens) {
    EXPECT_EQ(additionOf("0 0 1 0 "), nullptr) << "a dialog of no lines";
    SceneObject bodiless({nullptr, nullptr, sceneObjectType::withoutPhysics});
    for (const char* record : {"0 1 0 0 1 a 5 ", "1 5 0 ", "2 0 ", "15 1 "}) {
        const std::unique_ptr<So_Addition> addition = additionOf(record);
        addition->update(nullptr);
        addition->update(&bodiless);
        EXPECT_EQ(recordOf(*addition), record);
    }
}

} // namespace
