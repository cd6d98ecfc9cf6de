#include "PictureFixture.h"

#include "ProcessValues.h"
#include "graphicsModule/FreeCamera.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/InterfaceGraphicsObject.h"
#include "graphicsModule/ParticleEmiter.h"
#include "graphicsModule/Text.h"
#include "graphicsModule/TextureStore.h"
#include "graphicsModule/TransformGraphicsObject.h"
#include "graphicsModule/WaterGraphics.h"

#include <gtest/gtest.h>

namespace {

using FrameTest = PictureFixture;

TEST_F(FrameTest, BarsShowTheClearColourAndNothingOfTheScene) {
    graphicsModule().ambient = {0.5F, 0.25F, 0.75F};
    addSquare(0.0F, 0.0F, 5000.0F, 2.0F, 1.0F, 1.0F, 0.0F)->ignoreAmbient = true;
    draw();
    EXPECT_EQ(letterboxY, 56);
    expectColour(centreX, 2.0F, 1.0F, 1.0F, 0.0F);
    expectColour(centreX, 797.0F, 1.0F, 1.0F, 0.0F);
    expectColour(centreX, -4.0F, 0.5F, 0.25F, 0.75F);
    expectColour(centreX, 804.0F, 0.5F, 0.25F, 0.75F);

    window->resize(1000, 520); // bars at the sides
    window->pollEvents();
    draw(); // a real window takes its new size some time after it was asked
    EXPECT_EQ(letterboxX, 84);
}

TEST_F(FrameTest, EachSliceMeetsTheLightInItsOwnWay) {
    graphicsModule().ambient = {0.5F, 0.25F, 0.0F};
    addSquare(-400.0F, 0.0F, 50.0F, -3.0F, 1.0F, 1.0F, 1.0F); // a sky
    addSquare(-200.0F, 0.0F, 50.0F, -2.0F, 1.0F, 1.0F, 1.0F);
    addSquare(0.0F, 0.0F, 50.0F, 0.0F, 1.0F, 1.0F, 0.5F);
    addSquare(200.0F, 0.0F, 50.0F, 1.2F, 1.0F, 1.0F, 1.0F);
    addSquare(400.0F, 0.0F, 50.0F, 2.0F, 1.0F, 1.0F, 1.0F);
    addSquare(500.0F, 0.0F, 50.0F, 2.5F, 1.0F, 1.0F, 1.0F)->ignoreAmbient = true;
    draw();
    expectColour(centreX - 400.0F, centreY, 1.0F, 1.0F, 1.0F);
    expectColour(centreX - 200.0F, centreY, 0.5F, 0.25F, 0.0F);
    expectColour(centreX, centreY, 0.5F, 0.25F, 0.0F);
    expectColour(centreX + 200.0F, centreY, 0.5F, 0.25F, 0.0F);
    expectColour(centreX + 400.0F, centreY, 0.5F, 0.25F, 0.0F);
    expectColour(centreX + 500.0F, centreY, 1.0F, 1.0F, 1.0F);
    expectColour(centreX, centreY + 200.0F, 0.5F, 0.25F, 0.0F); // the bare clear colour
}

TEST_F(FrameTest, WhatIsNearerCoversWhateverTheOrderOfAdding) {
    addSquare(0.0F, 0.0F, 50.0F, 2.0F, 1.0F, 0.0F, 0.0F);
    addSquare(20.0F, 0.0F, 50.0F, 1.2F, 0.0F, 1.0F, 0.0F);
    addSquare(40.0F, 0.0F, 50.0F, -1.0F, 0.0F, 0.0F, 1.0F);
    draw();
    expectColour(centreX, centreY, 1.0F, 0.0F, 0.0F);
    expectColour(centreX + 60.0F, centreY, 0.0F, 1.0F, 0.0F);
    expectColour(centreX + 80.0F, centreY, 0.0F, 0.0F, 1.0F);
}

TEST_F(FrameTest, WhatIsNearlyClearLeavesNoTraceInTheLitSlice) {
    graphicsModule().ambient = {0.5F, 0.5F, 0.5F};
    addSquare(-200.0F, 0.0F, 50.0F, 0.0F, 1.0F, 1.0F, 1.0F, 0.03F);
    addSquare(200.0F, 0.0F, 50.0F, 0.0F, 1.0F, 1.0F, 1.0F, 0.5F);
    draw();
    expectColour(centreX - 200.0F, centreY, 0.5F, 0.5F, 0.5F); // and not darkened once more
    expectColour(centreX + 200.0F, centreY, 0.375F, 0.375F, 0.375F);
}

TEST_F(FrameTest, LayersFollowTheCameraByTheirParallax) {
    graphicsModule().camera->setView(200.0F, 0.0F, 0.5F);
    addSquare(200.0F, 0.0F, 20.0F, 0.3F, 1.0F, 0.0F, 0.0F);
    addSquare(200.0F, 100.0F, 20.0F, 0.2F, 0.0F, 1.0F, 0.0F, 1.0F, "", 0.5F);
    addSquare(200.0F, 200.0F, 20.0F, 0.1F, 0.0F, 0.0F, 1.0F, 1.0F, "", 0.0F);
    draw();
    expectColour(centreX, centreY, 1.0F, 0.0F, 0.0F);
    expectColour(centreX + 50.0F, centreY + 50.0F, 0.0F, 1.0F, 0.0F);
    expectColour(centreX + 100.0F, centreY + 100.0F, 0.0F, 0.0F, 1.0F);

    niceEffects = 0;
    draw();
    expectColour(centreX, centreY, 1.0F, 0.0F, 0.0F);
    expectColour(centreX + 50.0F, centreY + 50.0F, 1.0F, 1.0F, 1.0F);
}

TEST_F(FrameTest, TexturesAreStretchedUprightAndPlainPolygonsKeepTheirColours) {
    addSquare(0.0F, 0.0F, 100.0F, 0.0F, 1.0F, 1.0F, 1.0F, 1.0F, "quarters.tga");
    addSquare(300.0F, 0.0F, 50.0F, 0.0F, 0.25F, 0.5F, 0.75F);
    addSquare(-300.0F, 0.0F, 50.0F, 0.0F, 0.25F, 0.5F, 0.75F, 1.0F, "absent.tga");
    draw();
    expectColour(centreX - 50.0F, centreY - 50.0F, 1.0F, 0.0F, 0.0F);
    expectColour(centreX + 50.0F, centreY - 50.0F, 0.0F, 1.0F, 0.0F);
    expectColour(centreX - 50.0F, centreY + 50.0F, 0.5F, 0.0F, 0.0F);
    expectColour(centreX + 50.0F, centreY + 50.0F, 0.0F, 0.5F, 0.0F);
    expectColour(centreX + 300.0F, centreY, 0.25F, 0.5F, 0.75F);
    expectColour(centreX - 300.0F, centreY, 0.25F, 0.5F, 0.75F);
}

TEST_F(FrameTest, TheSceneFadeLiesUnderTheInterfaceAndTheScreenFadeOverIt) {
    GraphicsModule& module = graphicsModule();
    auto* panel = new InterfaceGraphicsObject(100.0F, 100.0F, 200.0F, 200.0F, -1);
    panel->setZ(60.0F);
    module.addInterfaceObject(panel);
    addSquare(0.0F, 0.0F, 5000.0F, 0.0F, 1.0F, 0.0F, 0.0F);
    module.sceneFade->setColour(0.0F, 0.0F, 1.0F, 0.5F);
    draw();
    expectColour(centreX, centreY, 0.5F, 0.0F, 0.5F);
    expectColour(150.0F, 150.0F, 1.0F, 1.0F, 1.0F);

    panel->setZ(49.0F);
    draw();
    expectColour(150.0F, 150.0F, 0.5F, 0.0F, 0.5F);

    panel->setZ(60.0F);
    module.screenFade->setColour(0.0F, 0.0F, 0.0F, 0.5F);
    draw();
    expectColour(150.0F, 150.0F, 0.5F, 0.5F, 0.5F);
    module.screenFade->setColour(0.0F, 0.0F, 0.0F, 1.0F);
    draw();
    expectColour(150.0F, 150.0F, 0.0F, 0.0F, 0.0F);
    expectColour(centreX, centreY, 0.0F, 0.0F, 0.0F);
}

TEST_F(FrameTest, TheCursorGoesUnderEvenAFaintScreenFade) {
    GraphicsModule& module = graphicsModule();
    window->setMousePosition(320, 256);
    draw();
    expectColour(centreX, centreY, 0.5F, 0.5F, 1.0F);
    module.screenFade->setColour(1.0F, 1.0F, 1.0F, 0.02F);
    draw();
    expectColour(centreX, centreY, 1.0F, 1.0F, 1.0F);
}

TEST_F(FrameTest, BrightnessBeyondAWholeNumberAddsThatShare) {
    addSquare(0.0F, 0.0F, 5000.0F, 0.0F, 0.4F, 0.2F, 0.6F);
    brightness = 1.5F;
    draw();
    expectColour(centreX, centreY, 0.6F, 0.3F, 0.9F);
    brightness = 1.0F;
    draw();
    expectColour(centreX, centreY, 0.4F, 0.2F, 0.6F);
}

TEST_F(FrameTest, WaterLiesOverWhatIsBehindItAndTakesTheLightOfItsSlice) {
    graphicsModule().ambient = {0.5F, 1.0F, 0.5F};
    addSquare(0.0F, 0.0F, 300.0F, -0.5F, 1.0F, 0.0F, 0.0F);
    addSquare(0.0F, -50.0F, 20.0F, 0.5F, 1.0F, 1.0F, 1.0F); // stands in front
    auto* water = new WaterGraphics(-200.0F, -100.0F, 200.0F, 0.0F, textureStore().find("null.tga"),
                                    0.0F, 1.0F, 2, 0.0F, 0.5F, 1.0F, 0.5F);
    graphicsModule().addObject(water);
    draw();
    expectColour(centreX - 100.0F, centreY - 50.0F, 0.25F, 0.25F, 0.25F);
    expectColour(centreX, centreY - 50.0F, 0.5F, 1.0F, 0.5F);
    expectColour(centreX - 100.0F, centreY + 10.0F, 0.5F, 0.0F, 0.0F);
    expectColour(centreX - 100.0F, centreY - 110.0F, 0.5F, 0.0F, 0.0F);

    for (int i = 0; i < 20; ++i) { // until the surface has risen to a crest of 20 units and more
        water->splash(-100.0F, 40.0F, 19.0F);
        water->updateSurface();
    }
    draw();
    expectColour(centreX - 100.0F, centreY + 10.0F, 0.25F, 0.25F, 0.25F);

    niceEffects = 0; // water is no mere effect; in front of the light map the room does not tint it
    water->setZ(1.2F);
    draw();
    expectColour(centreX - 100.0F, centreY - 50.0F, 0.25F, 0.25F, 0.5F);
}

TEST_F(FrameTest, ParticlesAddOrCoverAndAreLitInTheSliceOfTheirDepth) {
    graphicsModule().ambient = {0.5F, 0.5F, 1.0F};
    addSquare(0.0F, 0.0F, 3000.0F, -0.5F, 0.5F, 0.0F, 0.5F);
    struct Case {
        float x, z;
        int additive;
        unsigned count;
        Colour3 seen;
    };
    const Case cases[] = {{-300, 2, 1, 2, {0.65F, 0.4F, 0.5F}}, // shines in the dark, and adds up
                          {-100, 0, 1, 1, {0.35F, 0.1F, 0.5F}},
                          {100, 2, 0, 1, {0.225F, 0.1F, 0.25F}},
                          {300, 0, 0, 1, {0.175F, 0.05F, 0.25F}}};
    std::vector<std::unique_ptr<ParticleEmiter>> emitters;
    for (const Case& c : cases) {
        ParticleParams look;
        look.size = 30.0F;
        look.z = c.z;
        look.life = 10.0F;
        look.colour = {0.2F, 0.2F, 0.0F, 0.5F};
        look.additive = c.additive;
        emitters.push_back(std::make_unique<ParticleEmiter>(look));
        emitters.back()->burst({c.x, 0.0F, 0.0F}, c.count);
    }
    draw();
    for (const Case& c : cases) {
        expectColour(centreX + c.x + 20.0F, centreY, c.seen[0], c.seen[1], c.seen[2]);
        expectColour(centreX + c.x + 40.0F, centreY, 0.25F, 0.0F, 0.5F);
    }
}

} // namespace
