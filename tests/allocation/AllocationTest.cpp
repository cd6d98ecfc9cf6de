#include "support/EngineFixture.h"

#include "graphicsModule/Camera.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/LightAdd.h"
#include "graphicsModule/ParticleEmiter.h"
#include "graphicsModule/WaterGraphics.h"
#include "inputModule/InputModule.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/Equipment.h"
#include "sceneManager/EvilPlayer.h"
#include "sceneManager/Hands.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/CallbackAdd.h"
#include "sceneManager/So_Addons/WaterAddition.h"
#include "sceneManager/TestPlayer.h"
#include "unit/PhysicsBodies.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>
#include <LinearMath/btAlignedAllocator.h>

#include <cstdlib>
#include <new>

namespace {

std::size_t allocations = 0;

void* countedAllocation(std::size_t size) {
    ++allocations;
    return std::malloc(size);
}

void release(void* block) {
    std::free(block);
}

} // namespace

// All allocations of this program pass here. Not inlined: the compiler would pair our malloc with
// somebody's delete, and warn.
[[gnu::noinline]] void* operator new(std::size_t size) {
    if (void* block = countedAllocation(size)) {
        return block;
    }
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* block) noexcept {
    release(block);
}
[[gnu::noinline]] void operator delete(void* block, std::size_t /*size*/) noexcept {
    release(block);
}

namespace {

LightProperties lampLight() {
    LightProperties look;
    look.size = 700.0F;
    look.red = look.green = look.blue = 1.0F;
    look.flickerPeriod = 9;
    look.castsShadows = true;
    return look;
}

ParticleParams drizzle() {
    ParticleParams look;
    look.life = look.fade = 90.0F;
    look.size = 5.0F;
    look.gravityY = -3.0F;
    look.spin = look.spread = 1.0F;
    look.rate = 2.5F;
    return look;
}

/// Crates and discs at rest on a floor, under a lamp that drizzles, while a script counts a long
/// delay.
void fillStillScene() {
    addBox(0, -50, 900, 50, 0);
    for (int i = 0; i < 20; ++i) {
        const float x = static_cast<float>(i) * 60.0F - 600.0F;
        addToScene(i % 2 == 0 ? createBox(x, 20, 20, 20, 0, 0.5F, 1)
                              : createSphere(x, 20, 20, 0, 0.5F, 1));
    }
    SceneObject* lamp = addBox(0, 300, 20, 20, 0);
    lamp->addAddition(new LightAdd(lampLight()));
    lamp->addAddition(new ParticleEmiter(drizzle()));
    physicsModule().addScript(parseScript("DELAY 100000 X"));
}

/// Machines of every kind that works or sounds by itself, all within hearing.
void addMachines() {
    float x = -400.0F;
    for (const char* script :
         {"TRIGGER -P LOCK DELAY 100000 X NAME machine", "STRIGGER SOUND bell.wav",
          "DELAY 7 SOUND bell.wav DELAY 5 UNLOCK", "SOUNDSOURCE hum.wav -V 90", "MOVSOUND hum.wav",
          "VSOUND hum.wav", "SQUEAK squeak.wav", "CREAK squeak.wav"}) {
        addBox(x, 300, 20, 20, 0)->addAddition(parseScript(script));
        x += 100.0F;
    }
    graphicsModule().camera->setY(300.0F);
}

/// A pool with waves in which crates bob.
void addPool() {
    PhysicsObject* basin = createBox(0.0F, -300.0F, 400.0F, 150.0F, 0.0F, 0.5F, 0.0F);
    auto* waves = new WaterGraphics(-400.0F, -150.0F, 400.0F, 150.0F, -1, 0.2F, 1.0F, 2, 0.2F, 0.4F,
                                    0.5F, 0.7F);
    waves->setPhysicsObject(basin);
    SceneObject* water = letThrough(new SceneObject({basin, waves}));
    water->addAddition(new WaterAddition(0.0F));
    sceneManager().addSceneObject(water);
    for (int i = 0; i < 10; ++i) {
        const float x = static_cast<float>(i) * 60.0F - 270.0F;
        addBox(x, -100.0F, 20.0F, 20.0F, 1.0F)->physicsObject->waterFactor = 1.1F;
    }
}

class Allocation : public EngineFixture {
protected:
    void SetUp() override {
        btAlignedAllocSetCustom(countedAllocation, release); // Bullet's own as well
        EngineFixture::SetUp();
    }
    void prepareDirectory() override {
        EngineFixture::prepareDirectory();
        writeSounds({"bell", "hum", "squeak", "thud", "roll", "foot0", "foot1", "heart", "lap",
                     "zom0", "zom1", "zom2", "zom3"});
    }

    static TestPlayer* addProtagonist() {
        auto* player = new TestPlayer; // at 500, 500
        sceneManager().addSceneObject(player);
        sceneManager().player = player;
        return player;
    }
};

} // namespace

TEST_F(Allocation, ASteadyStepAndASteadyFrameOfAStillSceneAllocateNothing) {
    fillStillScene();
    addMachines();
    inputModule().showTip("A tip of four words", 0.0F, 0.0F, false, false);
    step(240);
    frame(10);

    allocations = 0;
    step(60);
    EXPECT_EQ(allocations, 0U) << "in a step";
    for (int i = 0; i < 20; ++i) {
        graphicsModule().update();
    }
    EXPECT_EQ(allocations, 0U) << "in a frame";
    for (int i = 0; i < 20; ++i) {
        inputModule().update();
    }
    EXPECT_EQ(allocations, 0U) << "in a poll of the input";
    EXPECT_NE(mixer->running().find("hum.wav 8"), std::string::npos) << mixer->running();
}

TEST_F(Allocation, CratesBobInWavesWithoutAllocating) {
    addPool();
    step(600);
    frame(2);
    allocations = 0;
    step(120);
    for (int i = 0; i < 20; ++i) {
        graphicsModule().update();
    }
    EXPECT_EQ(allocations, 0U);
    EXPECT_EQ(sceneManager().objects.back()->waterCount, 1) << "afloat";
}

TEST_F(Allocation, ACrateIsCarriedAndSwungWithoutAllocating) {
    addBox(500, 400, 5000, 50, 0);
    const SceneObject* crate = addBox(535, 470, 20, 20, 2);
    TestPlayer* player = addProtagonist();
    step(60);
    auto& hands = static_cast<Hands&>(*player->equipment->current);
    hands.primaryDown();
    player->keys = playerKey::primary | playerKey::right;
    step(30);
    ASSERT_EQ(hands.heldObject(), crate);
    const auto swing = [this, player](float x, float y) {
        for (int i = 0; i < 60; ++i) {
            player->aimPoint = originOf(*player) + btVector3(x, y, 0);
            step();
        }
    };
    swing(-100.0F, 0.0F);
    swing(100.0F, 0.0F);
    allocations = 0;
    swing(-100.0F, 0.0F);
    swing(100.0F, 0.0F);
    EXPECT_EQ(allocations, 0U);
    EXPECT_EQ(hands.heldObject(), crate);
}

TEST_F(Allocation, TheProtagonistWalksAndTurnsInTheDarkWithoutAllocating) {
    addBox(500, 400, 5000, 50, 0);
    TestPlayer* player = addProtagonist();
    const auto walk = [player](std::uint32_t key) {
        player->keys = key;
        for (int i = 0; i < 120; ++i) {
            physicsModule().update();
        }
        graphicsModule().update();
    };
    walk(playerKey::left);
    walk(playerKey::right | playerKey::up);
    allocations = 0;
    walk(playerKey::left);
    walk(playerKey::right | playerKey::up);
    EXPECT_EQ(allocations, 0U);
}

TEST_F(Allocation, APackHuntsWithoutAllocating) {
    addBox(500, -50, 5000, 50, 0);
    addBox(500, 430, 50, 50, 0);
    const TestPlayer* prey = addProtagonist(); // on a shelf, out of reach
    for (const float x : {0.0F, 250.0F, 600.0F, 800.0F}) {
        auto* monster = new EvilPlayer;
        put(*monster, x, 250.0F);
        sceneManager().addSceneObject(monster);
    }
    graphicsModule().camera->setX(500.0F);
    step(300);
    auto* last = static_cast<EvilPlayer*>(sceneManager().objects.back());
    ASSERT_EQ(last->target, prey);
    allocations = 0;
    step(300);
    EXPECT_EQ(allocations, 0U);
    EXPECT_EQ(last->target, prey);
    EXPECT_NE(mixer->running().find("heart.wav 128"), std::string::npos);
}
