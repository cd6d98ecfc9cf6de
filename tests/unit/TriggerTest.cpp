#include "FloorFixture.h"

#include "sceneManager/So_Addons/HealthAdd.h"

namespace {

class Contact : public FloorFixture {
protected:
    static SceneObject* addBall(float x, float y, float mass) {
        return addToScene(createSphere(x, y, 10.0F, 0.0F, 0.5F, mass));
    }
};

TEST_F(Contact, ATriggerFiresOncePerTouchOfAnybodyOrOfTheProtagonistAlone) {
    floor->addAddition(parseScript("TRIGGER A"));
    SceneObject* ball = addBall(-30.0F, 25.0F, 1.0F);
    step();
    EXPECT_EQ(runs, 0); // still in the air
    step(60);
    EXPECT_EQ(runs, 1);
    put(*ball, -30.0F, 60.0F);
    step(60);
    EXPECT_EQ(runs, 2);
    floor->clearAdditions();
    floor->addAddition(parseScript("TRIGGER -P A"));
    step(30);
    EXPECT_EQ(runs, 2);
    addPlayer(20.0F, 25.0F);
    step(30);
    EXPECT_EQ(runs, 3);
}

TEST_F(Contact, WhatCannotMoveOrDoesNotCollideFiresNoTrigger) {
    SceneObject* plate = addBall(0.0F, 20.0F, 1.0F);
    plate->addAddition(parseScript("TRIGGER A")); // lies on the floor, which is static
    step(30);
    EXPECT_EQ(runs, 0);

    floor->addAddition(parseScript("TRIGGER A"));
    put(*letThrough(plate), 0.0F, 15.0F);
    step(2);
    EXPECT_EQ(runs, 0);
}

TEST_F(Contact, APlatformThatCodeMovesFiresATrigger) {
    SceneObject* plate = addBall(0.0F, 20.0F, 1.0F);
    plate->addAddition(parseScript("TRIGGER A"));
    SceneObject* platform = addBall(200.0F, 20.0F, 1.0F);
    bodyOf(*platform).setCollisionFlags(bodyOf(*platform).getCollisionFlags() |
                                        btCollisionObject::CF_KINEMATIC_OBJECT);
    step(30);
    EXPECT_EQ(runs, 0);
    btTransform near = bodyOf(*platform).getWorldTransform();
    near.setOrigin({19.0F, 20.0F, 0.0F});
    bodyOf(*platform).getMotionState()->setWorldTransform(near); // where such a body is moved from
    step(2);
    EXPECT_EQ(runs, 1);
}

TEST_F(Contact, APlateFiresOnPressAndOnRelease) {
    floor->addAddition(parseScript("STRIGGER A"));
    SceneObject* ball = addBall(0.0F, 20.0F, 1.0F);
    step(30);
    EXPECT_EQ(runs, 1);
    put(*ball, 0.0F, 500.0F);
    step(2);
    EXPECT_EQ(runs, 2);
    step(10);
    EXPECT_EQ(runs, 2);
}

TEST_F(Contact, DamageHurtsWhatTouchesAndEvilDamageOnlyMonsters) {
    SceneObject* ball = addBall(0.0F, 20.0F, 1.0F);
    auto* health = new HealthAdd(1000);
    ball->addAddition(health);
    step(30);
    EXPECT_EQ(health->value, 1000);
    floor->addAddition(parseScript("EVILDAMAGE 7"));
    step();
    EXPECT_EQ(health->value, 1000);
    ball->type = sceneObjectType::evilPlayer;
    step();
    EXPECT_EQ(health->value, 993); // a disc on a flat touches at one point
    floor->clearAdditions();
    floor->addAddition(parseScript("DAMAGE 5"));
    step(3);
    EXPECT_EQ(health->value, 978);
}

TEST_F(Contact, AnObscuredObjectFadesWhileTheProtagonistIsThere) {
    floor->addAddition(parseScript("OBSCURED A"));
    Player* player = addPlayer(0.0F, 25.0F);
    step(30);
    EXPECT_EQ(runs, 1);
    const float fading = alphaOf(*floor->graphicsObject);
    EXPECT_LT(fading, 0.9F);
    EXPECT_GT(fading, 0.6F);
    put(*player, 0.0F, 800.0F);
    step(10);
    EXPECT_NEAR(alphaOf(*floor->graphicsObject), fading + 0.08F,
                0.025F); // turns back from where it stood
    step(60);
    EXPECT_EQ(alphaOf(*floor->graphicsObject), 1.0F);
}

} // namespace
