#include "support/EngineFixture.h"

#include "PhysicsBodies.h"
#include "game/flow/ChapterFlow.h"
#include "graphicsModule/Camera.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/btFixedWorld.h"
#include "sceneManager/So_Addons/CallbackAdd.h"

#include <utility>
#include <vector>

// The light that leaves its body, and the plate that asks for weight.

namespace {

class OutOfBody : public EngineFixture {
protected:
    void TearDown() override {
        chapterFlags.fill(0);
        EngineFixture::TearDown();
    }

    /// The light over a body at 0, 0, which has been taken over.
    Player* sendOut() {
        addPlayer(0, 0);
        runScript("LOCK CH8CREATETHING CH8CONTROLTHINGI REMOVESCRIPT");
        physicsModule().world->setGravity({0, 0, 0});
        step(3);
        return sceneManager().player;
    }
};

TEST_F(OutOfBody, TheLightGlidesAFiftiethOfTheWayToTheMouse) {
    Player* light = sendOut();
    ASSERT_TRUE(light->hasName("THING"));
    const btVector3 start = originOf(*light);
    light->aimPoint = start + btVector3(100, 0, 0);
    step();
    EXPECT_NEAR(originOf(*light).x() - start.x(), 2.0F, 0.01F);
    step();
    EXPECT_NEAR(originOf(*light).x() - start.x(), 3.96F, 0.01F);
}

TEST_F(OutOfBody, AWallSendsTheLightBackToTheMarkThatItPassedLast) {
    addNamed("THINGPOS", -300, 300);
    addNamed("THINGPOS1", 0, 600);
    addNamed("THINGPOS2", 0, 1200);
    addBox(400, 300, 20, 2000, 0);
    Player* light = sendOut();
    const auto hitTheWallFrom = [&](float y) {
        light->aimPoint = originOf(*light);
        light->physicsObject->moveTowards(100, y, 1e6F);
        step(2); // in the open, near the mark if there is one
        light->physicsObject->moveTowards(385, y, 1e6F);
        light->aimPoint = {385, y, 0};
        step(2);
        light->aimPoint = originOf(*light);
        step();
    };
    const std::vector<std::pair<float, btVector3>> backs{{300.0F, {-300, 300, 0}},
                                                         {550.0F, {0, 600, 0}},
                                                         {300.0F, {0, 600, 0}},
                                                         {1250.0F, {0, 1200, 0}}};
    for (const auto& [from, back] : backs) {
        hitTheWallFrom(from);
        EXPECT_NEAR(originOf(*light).distance(back), 0.0F, 1.0F) << from;
    }
}

TEST_F(OutOfBody, OnlyTheFieldMakesThingsHeavyEnoughForThePlate) {
    addNamed("BRAMKAPOS", 500, 0);
    addNamed("BRAMKADEST", 500, 100);
    const SceneObject* gate = addNamed("BRAMKA", 500, 0, 20);
    SceneObject* plate = addNamed("BU", 0, 0, 40, "CH8BUREL");
    plate->addAddition(parseScript("CH8BUUNREL"));
    SceneObject* crate = addBox(0, 60, 20, 20, 1.4F);
    crate->addAddition(parseScript("NAME MASA1"));
    addPlayer(-500, 0)->physicsObject->body->setLinearFactor({0, 0, 0});
    step(120);
    EXPECT_NEAR(originOf(*gate).y(), 0.0F, 1.0F) << "too light";

    letThrough(addNamed("POLE", 0, 60, 15, "CH8MASSUP"));
    step(120);
    EXPECT_NEAR(bodyOf(*crate).getInvMass(), 1.0F / 18.0F, 0.001F);
    EXPECT_NEAR(originOf(*gate).y(), 100.0F, 3.0F);

    put(*crate, -200, 60);
    step(10);
    EXPECT_NEAR(bodyOf(*crate).getInvMass(), 1.0F / 1.4F, 0.001F) << "as light as before";
    EXPECT_LT(originOf(*gate).y(), 95.0F);
}

} // namespace
