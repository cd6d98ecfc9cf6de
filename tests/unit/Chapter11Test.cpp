#include "support/EngineFixture.h"

#include "PhysicsBodies.h"
#include "game/commands/CommandTables.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/So_Addons/Bodies.h"
#include "sceneManager/So_Addons/CallbackAdd.h"
#include "sceneManager/TestPlayer.h"

#include <string>
#include <utility>

// What the scale weighs, and who pushes and shoots what.

namespace {

class Scale : public EngineFixture {
protected:
    static SceneObject* addNamed(const std::string& name, float x, float y,
                                 const std::string& chain = "", float mass = 0.0F) {
        SceneObject* box = addBox(x, y, 20, 20, mass);
        box->addAddition(parseScript("NAME " + name));
        if (!chain.empty()) {
            box->addAddition(parseScript(chain));
        }
        return box;
    }

    static TestPlayer* addProtagonist(float x, float y) {
        auto* player = new TestPlayer;
        player->physicsObject->body->getWorldTransform().setOrigin({x, y, 0});
        player->physicsObject->body->setLinearFactor({0, 0, 0});
        sceneManager().addSceneObject(player);
        sceneManager().player = player;
        return player;
    }

    /// Two pans at rest at y 0, and their beam.
    void buildScale() {
        for (const auto& [name, x] : {std::pair{"SZALKA1", -400.0F}, {"SZALKA2", 400.0F}}) {
            addNamed(name, x, 0);
            addNamed(std::string(name) + "POS", x, 0)->physicsObject->kind = 0;
        }
        addNamed("WAGA", 0, 500, "CH11WAGA");
    }

    static float heightOf(const std::string& name) {
        return originOf(*sceneManager().getSceneObject(name)).y();
    }
};

TEST_F(Scale, CommandsBearAnEmptyScene) {
    for (const NamedCommand& command : chapter11Commands()) {
        command.run(nullptr, nullptr);
        SceneObject* box = addNamed("KULA", 0, 0);
        command.run(box, nullptr);
        step(2);
        physicsModule().removeAllScripts();
        sceneManager().clearScene();
    }
}

TEST_F(Scale, ThePansGoAsFarApartAsTheirLoadsAreAndNoFurtherThanTheirShafts) {
    buildScale();
    SceneObject* light = addBox(-400, 50, 10, 10, 0.5F);
    light->physicsObject->body->setLinearFactor({0, 0, 0});
    step(120);
    EXPECT_NEAR(heightOf("SZALKA1"), -40, 1.2F);
    EXPECT_NEAR(heightOf("SZALKA2"), 40, 1.2F);

    SceneObject* heavy = addBox(-380, 70, 10, 10, 2.0F);
    heavy->physicsObject->body->setLinearFactor({0, 0, 0});
    step(120);
    EXPECT_NEAR(heightOf("SZALKA1"), -82, 1.2F);
    EXPECT_NEAR(heightOf("SZALKA2"), 100, 1.2F);
    const btQuaternion turn = bodyOf(sceneManager().getSceneObject("WAGA"))->getOrientation();
    EXPECT_NEAR(turn.getAngle() * turn.getAxis().z(), 0.589F, 0.02F);
}

TEST_F(Scale, WhoIsBesideAPanBelowTheFloorCountsAsOnItAndAboveTheFloorDoesNot) {
    for (const auto& [y, height] : {std::pair{40.0F, -80.0F}, {90.0F, 0.0F}}) {
        buildScale();
        addProtagonist(-300, y);
        step(120);
        EXPECT_NEAR(heightOf("SZALKA1"), height, 1.2F) << y;
        sceneManager().clearScene();
    }
}

TEST_F(Scale, ABlockTooHeavyForAnybodySlidesForWhoLeansOnItOnly) {
    addBox(0, -50, 600, 30, 0);
    const SceneObject* block = addNamed("PCHACZ", 0, 0, "CH11PUSH", 40);
    step(20);
    TestPlayer* player = addProtagonist(-36, -5);
    player->physicsObject->body->setLinearFactor({1, 1, 0});
    step(30);
    EXPECT_NEAR(originOf(*block).x(), 0, 0.5F) << "only touched";
    player->keys |= playerKey::left;
    step(5);
    EXPECT_NEAR(originOf(*block).x(), 0, 0.5F) << "leans away";
    player->keys = playerKey::right;
    step(60);
    EXPECT_GT(originOf(*block).x(), 20);
}

TEST_F(Scale, TheBallShootsAwayFromTheProtagonistToEitherSide) {
    for (const float side : {-1.0F, 1.0F}) {
        SceneObject* ball = addNamed("KULA", 100, 300, "", 8);
        addProtagonist(100 - side * 60, 300);
        for (const NamedCommand& command : chapter11Commands()) {
            if (command.name == std::string("CH11POWBALL")) {
                command.run(ball, nullptr);
            }
        }
        step(10);
        EXPECT_GT((originOf(*ball).x() - 100) * side, 40);
        sceneManager().clearScene();
    }
}

} // namespace
