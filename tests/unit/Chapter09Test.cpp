#include "support/EngineFixture.h"

#include "PhysicsBodies.h"
#include "game/commands/CommandTables.h"
#include "game/flow/ChapterFlow.h"
#include "graphicsModule/ParticleEmiter.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/So_Addons/Bodies.h"
#include "sceneManager/So_Addons/CallbackAdd.h"
#include "sceneManager/So_Addons/DamageAdd.h"

#include <array>

// The board, the bars, the water and the plug.

namespace {

class Colours : public EngineFixture {
protected:
    void TearDown() override {
        chapterFlags.fill(0);
        EngineFixture::TearDown();
    }

    static SceneObject* addNamed(const std::string& name, float x, float y, float half = 5.0F,
                                 float mass = 0.0F, const std::string& chain = "") {
        SceneObject* box = addBox(x, y, half, half, mass);
        if (!chain.empty()) {
            box->addAddition(parseScript(chain));
        }
        box->addAddition(parseScript("NAME " + name));
        return box;
    }

    /// A ball that lies on the cell of that number.
    static SceneObject* addBall(const std::string& name, int cell) {
        return addNamed(name, static_cast<float>(cell) * 100.0F, 9.9F, 5, 0.5F);
    }

    static float heightOf(const SceneObject* object) { return originOf(*object).y(); }
};

TEST_F(Colours, CommandsBearAnEmptyScene) {
    for (const NamedCommand& command : chapter09Commands()) {
        command.run(nullptr, nullptr);
        SceneObject* box = addNamed("TRYSK", 0, 0);
        command.run(box, nullptr);
        step(2);
        physicsModule().removeAllScripts();
        sceneManager().clearScene();
        chapterFlags.fill(0);
    }
}

TEST_F(Colours, TheDoorOpensToNineBallsOnTheirColoursAndToNothingLess) {
    SceneObject* table = addNamed("TABLICA", 0, 500, 5, 0, "CH9CHECKCOLORS");
    const SceneObject* door = addNamed("DOOR", 5000, 0);
    addNamed("DOORDEST", 5000, 100);
    for (int cell = 1; cell <= 9; ++cell) {
        addNamed("C" + std::to_string(cell), static_cast<float>(cell) * 100.0F, 0);
    }
    // B B G / R R G / B G R, any of the three of a colour
    constexpr std::array right{"B3", "B1", "G1", "R2", "R1", "G2", "B2", "G3", "R3"};
    for (int cell = 1; cell < 9; ++cell) {
        addBall(right[static_cast<std::size_t>(cell) - 1], cell);
    }
    SceneObject* wrong = addBall("G4", 9);
    step(10);
    EXPECT_FLOAT_EQ(heightOf(door), 0.0F);
    ASSERT_NE(table->findAddition(AdditionType::customCallback), nullptr);

    sceneManager().removeSceneObject(wrong);
    addBall(right[8], 9);
    step(60);
    EXPECT_NEAR(heightOf(door), 100.0F, 2.0F);
    EXPECT_EQ(table->findAddition(AdditionType::customCallback), nullptr) << "asked once";
}

TEST_F(Colours, ABarTakesTheBallOfItsColourAndNoOther) {
    SceneObject* bar = addNamed("ZIELONY", 0, 0, 10, 0, "CH9GREENBAR");
    bar->addAddition(new DamageAdd(101, 0.0F));
    auto* spray = new ParticleEmiter(ParticleParams{});
    spray->params.life = spray->params.fade = 100.0F;
    bar->addAddition(spray);
    addNamed("REDBALL", 0, 14.9F, 5, 0.5F);
    step(3);
    EXPECT_NE(bar->findAddition(AdditionType::damage), nullptr);
    EXPECT_NE(sceneManager().getSceneObject("REDBALL"), nullptr);

    addNamed("GREENBALL", 14.9F, 0, 5, 0.5F);
    step(3);
    EXPECT_EQ(bar->findAddition(AdditionType::damage), nullptr);
    EXPECT_EQ(sceneManager().getSceneObject("GREENBALL"), nullptr);
    EXPECT_EQ(spray->getParticles().size(), 200U);
}

TEST_F(Colours, EachWaterKeepsItsXAndGoesToTheHeightOfItsMarker) {
    const std::array waters{addNamed("WATER1", 0, 0), addNamed("WATER2", 100, 0),
                            addNamed("WATER3", 200, 0)};
    addNamed("HEIGHT1", 900, 10);
    runScript("LOCK CH9WATERUP REMOVESCRIPT");
    step(5);
    EXPECT_FLOAT_EQ(heightOf(waters[0]), 0.0F) << "a marker is missing";
    EXPECT_TRUE(physicsModule().getGlobalScripts().empty());

    addNamed("HEIGHT2", 900, 20);
    runScript("LOCK CH9WATERUP REMOVESCRIPT");
    step(10);
    EXPECT_NEAR(heightOf(waters[2]), 5.0F, 0.6F) << "half a unit a step";
    step(60);
    constexpr std::array heights{10.0F, 20.0F, 20.0F};
    for (std::size_t i = 0; i < waters.size(); ++i) {
        EXPECT_FLOAT_EQ(heightOf(waters[i]), heights[i]);
        EXPECT_FLOAT_EQ(originOf(*waters[i]).x(), 100.0F * static_cast<float>(i));
    }
    EXPECT_TRUE(physicsModule().getGlobalScripts().empty());
}

} // namespace
