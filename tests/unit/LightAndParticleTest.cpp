#include "support/EngineFixture.h"

#include "PhysicsBodies.h"
#include "Random.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/LightAdd.h"
#include "graphicsModule/Painter.h"
#include "graphicsModule/ParticleEmiter.h"

#include <cmath>
#include <limits>

namespace {

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float endless = std::numeric_limits<float>::infinity();

class LightAndParticleTest : public EngineFixture {
protected:
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

    /// What drawing the emitter hands to the device, in view of the world's origin.
    std::vector<PaintVertex> verticesOf(ParticleEmiter& emitter) {
        graphicsModule().update();
        device->forget();
        device->keepsDraws = true;
        emitter.draw();
        painter().flush();
        return device->draws.empty() ? std::vector<PaintVertex>() : device->draws[0].vertices;
    }
};

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

TEST_F(LightAndParticleTest, AParticleLivesItsTicksAndChangesInTheLastOnes) {
    ParticleParams params = shortLived(2.0F, 0.0F);
    params.endSize = 2.0F;
    params.gravityX = 60.0F;
    ParticleEmiter emitter(params);
    emitter.burst({0.0F, 0.0F, 0.0F}, 0);
    EXPECT_TRUE(emitter.getParticles().empty());
    const float turning = 6.0F; // radians a second, so that a tick has a tenth
    emitter.addParticle({0.0F, 0.0F, 0.0F}, {60.0F, 0.0F, 0.0F}, turning);
    ASSERT_EQ(emitter.getParticles().size(), 1U);
    emitter.updateParticles();
    EXPECT_NEAR(emitter.getParticles()[0].transform.origin.x, 2.0F, 1e-4F);
    EXPECT_FLOAT_EQ(emitter.getParticles()[0].size, 4.0F) << "the test of the fade is strict";
    emitter.updateParticles();
    EXPECT_FLOAT_EQ(emitter.getParticles()[0].size, 3.0F);
    emitter.updateParticles();
    EXPECT_TRUE(emitter.getParticles().empty());

    for (const float life : {1e5F, 0.5F, 0.0F, -1.0F, notANumber}) {
        emitter.params.life = life;
        emitter.addParticle({0.0F, 0.0F, 0.0F}, {0.0F, 0.0F, 0.0F}, turning);
    }
    emitter.updateParticles();
    EXPECT_EQ(emitter.getParticles().size(), 2U);
    for (int i = 1; i < 6283; ++i) { // a hundred turns
        emitter.updateParticles();
    }
    ASSERT_EQ(emitter.getParticles().size(), 1U);
    const Yaw turn = emitter.getParticles()[0].transform.turn;
    EXPECT_NEAR(std::hypot(turn.cosine, turn.sine), 1.0F, 1e-4F);
    EXPECT_NEAR(turn.cosine, 1.0F, 0.01F);
}

TEST_F(LightAndParticleTest, TheLivingStayInOrderWhoeverDiesAmongThem) {
    ParticleEmiter emitter(shortLived(2.0F, 0.0F));
    std::vector<float> expected;
    for (int i = 0; i < 100; ++i) {
        emitter.params.life = i % 3 == 1 ? 1.0F : i < 70 ? 2.0F : 3.0F;
        const auto x = static_cast<float>(i);
        emitter.addParticle({x, 0.0F, 0.0F}, {0.0F, 0.0F, 0.0F}, 0.0F);
        expected.push_back(x);
    }
    const auto expectLeft = [&](auto isDead) {
        emitter.updateParticles();
        std::erase_if(expected, [&](float x) { return isDead(static_cast<int>(x)); });
        ASSERT_EQ(emitter.getParticles().size(), expected.size());
        for (std::size_t i = 0; i < expected.size(); ++i) {
            EXPECT_EQ(emitter.getParticles()[i].transform.origin.x, expected[i]);
        }
    };
    expectLeft([](int) { return false; });
    expectLeft([](int i) { return i % 3 == 1; }); // from among the others
    expectLeft([](int i) { return i < 70; });     // the oldest
    expectLeft([](int) { return true; });
}

TEST_F(LightAndParticleTest, AnEmitterSpraysAtItsRateFromWithinItsBodyAlongTheBodysUp) {
    SceneObject* disc = addToScene(createSphere(500, 0, 20, 0, 0, 0));
    SceneObject* plank = addBox(500, 0, 100, 5, 0);
    plank->physicsObject->body->getWorldTransform().setRotation({{0, 0, 1}, SIMD_HALF_PI});
    struct Case {
        SceneObject* owner;
        float rate;
        std::array<std::size_t, 4> counts;
        float halfWidth, halfHeight;
    };
    for (const Case& c :
         {Case{disc, 0.5F, {0, 1, 1, 2}, 20, 20}, {plank, 2.5F, {2, 5, 7, 10}, 5, 100}}) {
        ParticleEmiter emitter(shortLived(1e6F, c.rate));
        emitter.randomSpeed = c.owner == plank;
        for (const std::size_t count : c.counts) {
            emitter.update(c.owner);
            EXPECT_EQ(emitter.getParticles().size(), count);
        }
        for (std::size_t i = 0; i < emitter.getParticles().size(); ++i) {
            const Particle particle = emitter.getParticles()[i]; // at most 3 units on its way
            EXPECT_LE(std::abs(particle.transform.origin.x - 500.0F), c.halfWidth + 3.1F);
            EXPECT_LE(std::abs(particle.transform.origin.y), c.halfHeight + 3.1F);
            EXPECT_GE(c.owner == plank ? -particle.velocity.x : particle.velocity.y, 29.9F);
        }
    }
}

TEST_F(LightAndParticleTest, EmittersThatMakeNoSenseNeitherHangNorPaintWhatIsNoNumber) {
    SceneObject* owner = addBox(0, 0, 10, 10, 0);
    float ParticleParams::*const fields[] = {
        &ParticleParams::rate,     &ParticleParams::life,    &ParticleParams::fade,
        &ParticleParams::size,     &ParticleParams::endSize, &ParticleParams::speed,
        &ParticleParams::gravityX, &ParticleParams::spin,    &ParticleParams::spread};
    for (float ParticleParams::*const field : fields) {
        for (const float value : {0.0F, -1.0F, 1e9F, 3e38F, 1e-30F, notANumber, endless}) {
            ParticleParams params = shortLived(5.0F, 3.0F);
            params.*field = value;
            ParticleEmiter emitter(params);
            for (int i = 0; i < 3; ++i) {
                emitter.update(owner);
            }
            ASSERT_LE(emitter.getParticles().size(), ParticleEmiter::mostParticles);
            for (const PaintVertex& vertex : verticesOf(emitter)) {
                ASSERT_TRUE(std::isfinite(vertex.x + vertex.y)) << value;
            }
            emitter.setParams(shortLived(5.0F, 1.0F)); // a sound look makes it sound again
            for (int i = 0; i < 9; ++i) {
                emitter.update(owner);
            }
            EXPECT_GE(emitter.getParticles().size(), 5U) << value;
        }
    }
}

TEST_F(LightAndParticleTest, AllParticlesOfAnEmitterAreOneArray) {
    ParticleParams params = shortLived(5.0F, 0.0F);
    params.additive = 1;
    ParticleEmiter emitter(params);
    emitter.burst({0.0F, 0.0F, 0.0F}, ~0U);
    EXPECT_EQ(verticesOf(emitter).size(), 4 * ParticleEmiter::mostParticles);
    EXPECT_EQ(device->drawCount, 1);
}

} // namespace
