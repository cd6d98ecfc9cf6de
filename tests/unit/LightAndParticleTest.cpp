#include "support/EngineFixture.h"

#include "PhysicsBodies.h"
#include "Random.h"
#include "TextStream.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/LightAdd.h"
#include "graphicsModule/LightReaderAdd.h"
#include "graphicsModule/ParticleEmiter.h"

namespace {

class LightAndParticleTest : public EngineFixture {
protected:
    static std::string saved(const So_Addition& addition) {
        TextWriter writer;
        addition.save(writer);
        return writer.takeText();
    }

    static LightAdd* addLight(SceneObject* owner, int period) {
        LightProperties look;
        look.size = 10.0F;
        look.red = 0.5F;
        look.green = 1.0F;
        look.flickerPeriod = period;
        look.offsetX = 3.0F;
        look.offsetY = -4.0F;
        auto* light = new LightAdd(look);
        owner->addAddition(light);
        return light;
    }

    static Colour4 colourOf(const LightAdd& light) {
        Colour4 colour{};
        light.getColour(colour[0], colour[1], colour[2], colour[3]);
        return colour;
    }

    static ParticleParams shortLived(float life, float rate) {
        ParticleParams params;
        params.life = life;
        params.rate = rate;
        params.fade = life;
        params.size = 4.0F;
        params.speed = 60.0F;
        return params;
    }
};

TEST_F(LightAndParticleTest, RecordsReadBackToTheSameText) {
    const std::string light = "16 100 1 0.5 0.25 3 1 4 5 6 7 unknown ";
    TextReader lightReader(light);
    lightReader.read<int>();
    const std::unique_ptr<So_Addition> lamp(LightAdd::read(lightReader));
    EXPECT_EQ(saved(*lamp), light);

    const std::string emitter = "14 1 2 unknown 3 0.1 0.2 0.3 0.4 5 6 0.5 0.6 0.7 0.8 7 8 9 10 11 "
                                "0.5 1 ";
    TextReader emitterReader(emitter);
    emitterReader.read<int>();
    const std::unique_ptr<So_Addition> spray(ParticleEmiter::read(emitterReader));
    EXPECT_EQ(saved(*spray), emitter);

    TextReader nothing("");
    const std::unique_ptr<So_Addition> eye(LightReaderAdd::read(nothing));
    EXPECT_EQ(saved(*eye), "23 ");
}

TEST_F(LightAndParticleTest, FlickerGlidesFromOneRandomStrengthToTheNext) {
    SceneObject* owner = addBox(100, 50, 10, 10, 0);
    LightAdd* light = addLight(owner, 20);
    LightAdd* twin = addLight(owner, 20);
    LightAdd* other = addLight(addBox(0, 0, 10, 10, 0), 20);
    step(30); // the draw of step 0 has no seed
    const std::uint32_t state = randomState;
    float least = 1.0F;
    float most = 0.0F;
    bool othersDiffer = false;
    float last = colourOf(*light)[0];
    for (int i = 0; i < 1000; ++i) {
        step();
        light->refreshTransform();
        const Colour4 colour = colourOf(*light);
        EXPECT_LE(std::abs(colour[0] - last), 0.051F) << "half a period is ten steps";
        last = colour[0];
        least = std::min(least, last);
        most = std::max(most, last);
        EXPECT_LE(colour[1], 1.0F);
        EXPECT_EQ(colour[3], 0.0F);
        EXPECT_EQ(colour, colourOf(*twin));
        othersDiffer = othersDiffer || colour != colourOf(*other);
        EXPECT_NEAR(light->getShadowOrigin().x(), 103.0F, 2.001F);
        EXPECT_NEAR(light->getShadowOrigin().y(), 46.0F, 2.001F);
    }
    EXPECT_GE(least, 0.25F);
    EXPECT_LE(most, 0.75F);
    EXPECT_GT(most - least, 0.3F);
    EXPECT_TRUE(othersDiffer);
    EXPECT_EQ(randomState, state) << "a save must not hang on how a lamp flickers";
}

TEST_F(LightAndParticleTest, PeriodsThatHoldNoCycleAreSteadyAndTheShortestJumps) {
    SceneObject* owner = addBox(0, 0, 10, 10, 0);
    for (const int period : {0, 1, -2, -3}) {
        const LightAdd* light = addLight(owner, period);
        step(5);
        EXPECT_EQ(colourOf(*light), (Colour4{0.5F, 1.0F, 0.0F, 0.0F})) << period;
    }
    for (const int period : {2, 3}) {
        const LightAdd* light = addLight(owner, period);
        step();
        EXPECT_FLOAT_EQ(colourOf(*light)[0], 0.5F) << "the strength drawn before";
        step();
        EXPECT_NE(colourOf(*light)[0], 0.5F);
    }
}

TEST_F(LightAndParticleTest, AReaderSamplesTheMapOrFallsBackToTheAmbientColour) {
    auto* reader = new LightReaderAdd;
    SceneObject* object = addBox(0, 0, 10, 10, 0);
    object->addAddition(reader);
    graphicsModule().ambient = {0.5F, 0.25F, 1.0F};
    device->pixel = {10, 20, 30};
    graphicsModule().update();
    EXPECT_EQ(reader->red, 0) << "nothing is known before the first step";

    reader->update(object);
    graphicsModule().update();
    EXPECT_TRUE(reader->onScreen);
    EXPECT_EQ(reader->red, 10);
    EXPECT_EQ(reader->blue, 30);

    object->moveBy(5000.0F, 0.0F);
    object->physicsObject->updateRenderTransform();
    graphicsModule().update();
    EXPECT_FALSE(reader->onScreen);
    EXPECT_EQ(reader->red, 127);
    EXPECT_EQ(reader->green, 63);
    EXPECT_EQ(reader->blue, 255);
}

TEST_F(LightAndParticleTest, AParticleLivesItsTicksAndChangesInTheLastOnes) {
    ParticleParams params = shortLived(2.0F, 0.0F);
    params.endSize = 2.0F;
    ParticleEmiter emitter(params);
    emitter.burst({0.0F, 0.0F, 0.0F}, 0);
    EXPECT_TRUE(emitter.getParticles().empty());
    emitter.addParticle({0.0F, 0.0F, 0.0F}, {60.0F, 0.0F, 0.0F}, 0.0F);

    emitter.updateParticles();
    ASSERT_EQ(emitter.getParticles().size(), 1U);
    EXPECT_NEAR(emitter.getParticles()[0].transform.getOrigin().x(), 1.0F, 1e-4F);
    EXPECT_FLOAT_EQ(emitter.getParticles()[0].size, 4.0F) << "the test of the fade is strict";
    emitter.updateParticles();
    EXPECT_FLOAT_EQ(emitter.getParticles()[0].size, 3.0F);
    emitter.updateParticles();
    EXPECT_TRUE(emitter.getParticles().empty());
}

} // namespace
