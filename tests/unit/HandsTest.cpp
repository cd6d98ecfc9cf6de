#include "sceneManager/Hands.h"

#include "support/EngineFixture.h"

#include "People.h"
#include "TextStream.h"
#include "graphicsModule/Camera.h"
#include "physicsModule/CollisionRules.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/btFixedWorld.h"
#include "sceneManager/Equipment.h"
#include "sceneManager/EvilHands.h"
#include "sceneManager/HandsPause.h"
#include "sceneManager/MapFile.h"
#include "soundModule/SoundManager.h"

#include <BulletCollision/CollisionDispatch/btCollisionDispatcher.h>
#include <BulletCollision/NarrowPhaseCollision/btPersistentManifold.h>
#include <BulletDynamics/ConstraintSolver/btHingeConstraint.h>

#include <cmath>
#include <functional>

namespace {

constexpr float degree = 57.29578F;
constexpr float half = 20.0F; // of a crate

/// The protagonist on a wide floor whose top is at 0, ready to grab.
class HandsTest : public EngineFixture {
protected:
    void prepareDirectory() override {
        EngineFixture::prepareDirectory();
        writeSounds({"pick", "put"});
    }

    void SetUp() override {
        EngineFixture::SetUp();
        floor = addBox(0.0F, -50.0F, 5000.0F, 50.0F, 0.0F);
        player = addProtagonist(0.0F, 15.0F);
        player->clearAdditions(); // no heart
        step(25);
    }

    static btVector3& originOfBody(const SceneObject& object) {
        return object.physicsObject->body->getWorldTransform().getOrigin();
    }
    Hands& hands() const { return static_cast<Hands&>(*player->equipment->current); }

    /// A box at the right side of the character, touching it.
    SceneObject* addCrate(float mass, int kind = collisionKind::normal, float turn = 0.0F) const {
        const btVector3 place = originOf(*player) + btVector3(15.0F + half, half - 15.0F, 0.0F);
        PhysicsObject* physics = createBox(place.x(), place.y(), half, half, 0.0F, 0.5F, mass);
        physics->kind = kind;
        physics->body->getWorldTransform().setRotation({{0.0F, 0.0F, 1.0F}, turn});
        return addToScene(physics);
    }
    /// A crate in hand.
    SceneObject* hold(float mass, int kind = collisionKind::normal, float turn = 0.0F) {
        SceneObject* crate = addCrate(mass, kind, turn);
        step();
        EXPECT_TRUE(hands().heldObject() == crate || hands().grab(true));
        EXPECT_EQ(hands().heldObject(), crate);
        return crate;
    }
    void press() const {
        hands().primaryDown();
        player->keys |= playerKey::primary;
    }
    void release() const {
        hands().primaryUp();
        player->keys &= ~playerKey::primary;
    }
    void aim(float x, float y) const {
        player->aimPoint = originOf(*player) + btVector3(x, y, 0.0F);
    }
    float bearingOf(const SceneObject& object) const {
        const btVector3 way = originOf(object) - originOf(*player);
        return std::atan2(way.x(), way.y()) * degree;
    }
    /// Puts the ears where the character is: no sound loses anything on its way.
    void listen() const {
        graphicsModule().camera->setX(originOf(*player).x());
        graphicsModule().camera->setY(originOf(*player).y());
    }
    std::string heard() const { return mixer->takeRunning(); }
    static std::size_t joints() { return physicsModule().getJoints().size(); }

    SceneObject* floor = nullptr;
    TestPlayer* player = nullptr;
};

/// Contacts that objects remember and the world has freed.
int freedContacts() {
    const btDispatcher* dispatcher = physicsModule().world->getDispatcher();
    int freed = 0;
    for (const PhysicsObject* object : physicsModule().getPhysicsObjects()) {
        for (const btPersistentManifold* manifold : object->contacts) {
            int i = 0;
            while (i < dispatcher->getNumManifolds() &&
                   const_cast<btDispatcher*>(dispatcher)->getManifoldByIndexInternal(i) !=
                       manifold) {
                ++i;
            }
            freed += i == dispatcher->getNumManifolds() ? 1 : 0;
        }
    }
    return freed;
}

} // namespace

TEST_F(HandsTest, OnlyWhatIsLightLooseAndBesideIsGrabbed) {
    struct Case {
        const char* what;
        float mass;
        int kind;
        int type;
        bool answers, grabbed;
    };
    constexpr int plain = sceneObjectType::plain;
    const Case cases[] = {
        {"a crate", 2.0F, collisionKind::normal, plain, true, true},
        {"the heaviest", 3.0F, collisionKind::normal, plain, true, true},
        {"too heavy", 3.1F, collisionKind::normal, plain, true, false},
        {"a mountain", 1e6F, collisionKind::normal, plain, true, false},
        {"a heavy liana", 30.0F, collisionKind::loose, plain, true, true},
        {"a mote", 0.005F, collisionKind::normal, plain, true, false},
        {"a wall", 0.0F, collisionKind::normal, plain, true, false},
        {"a handle on a wall", 0.0F, collisionKind::loose, plain, true, true},
        {"the same without substance", 0.0F, collisionKind::loose, plain, false, true},
        {"a ghost", 2.0F, collisionKind::normal, plain, false, false},
        {"an enemy", 1.0F, collisionKind::normal, sceneObjectType::evilPlayer, true, false}};
    for (const Case& c : cases) {
        SceneObject* object = addCrate(c.mass, c.kind);
        object->type = c.type;
        if (!c.answers) {
            letThrough(object);
        }
        step();
        ASSERT_GE(player->physicsObject->contacts.size(), 2U) << c.what;
        EXPECT_EQ(hands().grab(true), c.grabbed) << c.what;
        EXPECT_EQ(hands().heldObject() == object, c.grabbed) << c.what;
        hands().drop(true);
        sceneManager().removeSceneObject(object);
    }
    originOfBody(*addCrate(2.0F)).setX(15.0F + half + 2.5F);
    step();
    EXPECT_FALSE(hands().grab(true)) << "out of reach";

    const SceneObject* box = addBox(300.0F, half, half, half, 2.0F);
    originOfBody(*player) = btVector3(300.0F, 2.0F * half + 15.0F, 0.0F);
    step();
    ASSERT_EQ(player->supportNow, box);
    EXPECT_FALSE(hands().grab(true)) << "under the feet";
}

TEST_F(HandsTest, AHeldButtonGrabsWhatComesAndWaitsAfterPuttingItDown) {
    press();
    step(5);
    EXPECT_TRUE(hands().isReaching());
    const SceneObject* crate = addCrate(2.0F);
    step(2);
    EXPECT_EQ(hands().heldObject(), crate);
    EXPECT_FALSE(hands().isReaching());
    EXPECT_EQ(heard().substr(0, 8), "pick.wav");
    float angle = 0.0F;
    EXPECT_TRUE(hands().holdAngle(angle));
    EXPECT_NEAR(angle * degree, -90.0F, 10.0F) << "the arm points at the grip, on the right";

    listen();
    release();
    EXPECT_EQ(hands().heldObject(), nullptr);
    EXPECT_EQ(heard(), "put.wav 64");
    EXPECT_EQ(joints(), 0U);
    EXPECT_FALSE(hands().holdAngle(angle));
    const std::uint32_t putDown = physicsModule().stepCount;
    press();
    player->keys |= playerKey::right; // keeps in touch
    while (hands().heldObject() == nullptr && physicsModule().stepCount < putDown + 100) {
        step();
    }
    EXPECT_EQ(physicsModule().stepCount - 1, putDown + 20);
    release();
    EXPECT_FALSE(hands().drop(false)) << "empty hands";
}

TEST_F(HandsTest, WhatIsHeldSwingsWithTheAimAsFarAsItMay) {
    struct Case {
        float x, y, bearing;
    };
    // Lifted by an aim below, up to 45 degrees beyond straight up, and down to where it was taken.
    const Case cases[] = {{100, 0, 82},     {100, -100, 45}, {0, -100, 0},
                          {-50, -100, -27}, {-100, 0, -45},  {100, 100, 82}};
    for (const float turn : {0.0F, 1.5708F, -1.5708F}) {
        SceneObject* crate = hold(2.0F, collisionKind::normal, turn);
        for (const Case& c : cases) {
            for (int i = 0; i < 60; ++i) {
                aim(c.x, c.y);
                step();
            }
            EXPECT_NEAR(bearingOf(*crate), c.bearing, 15.0F)
                << c.x << ' ' << c.y << " turned by " << turn;
        }
        EXPECT_LT(originOf(*player).y(), 16.0F) << "the floor was no obstacle";
        hands().drop(true);
        sceneManager().removeSceneObject(crate);
        player->update();
    }
}

TEST_F(HandsTest, NeitherLianasNorWhatIsTiedElsewhereFollowsTheAim) {
    for (const int kind : {collisionKind::normal, collisionKind::loose}) {
        SceneObject* crate = hold(2.0F, kind);
        if (kind == collisionKind::normal) {
            physicsModule().addConstraint(
                new btHingeConstraint(bodyOf(*crate), {0, 0, 0}, {0, 0, 1}));
        }
        aim(0.0F, -100.0F);
        step(20);
        EXPECT_GT(bearingOf(*crate), 60.0F) << kind;
        EXPECT_EQ(hands().heldObject(), crate);
        hands().drop(true);
        sceneManager().removeSceneObject(crate);
    }
}

TEST_F(HandsTest, AThrowGoesAtTheAimOrSteeplyAndOnceAPress) {
    struct Case {
        float mass, x, y, vx, vy;
    };
    constexpr float slant = 0.70710677F;
    const Case cases[] = {{2.0F, 100, 50, 250 * 0.8944F, 250 * 0.4472F},
                          {0.5F, 100, 50, 500 * 0.8944F, 500 * 0.4472F},
                          {1.0F, 10, 100, 500 * slant, 500 * slant},
                          {1.0F, -100, 0, -500 * slant, 500 * slant}};
    for (const Case& c : cases) {
        SceneObject* crate = hold(c.mass);
        heard();
        aim(c.x, c.y);
        bodyOf(*crate).setLinearVelocity({0, 0, 0});
        player->keys |= playerKey::primary | playerKey::secondary;
        physicsModule().stepCount += 20;
        listen();
        hands().use(0, 0, 0, 0, 0);
        const btVector3 velocity = bodyOf(*crate).getLinearVelocity();
        EXPECT_NEAR(velocity.x(), c.vx, 0.1F) << c.mass << ' ' << c.x;
        EXPECT_NEAR(velocity.y(), c.vy, 0.1F) << c.mass << ' ' << c.x;
        EXPECT_EQ(heard(), "put.wav 64");
        EXPECT_EQ(player->keys, playerKey::primary);
        EXPECT_EQ(hands().lastUse, physicsModule().stepCount);
        sceneManager().removeSceneObject(crate);
        player->keys = 0;
    }
    player->keys = playerKey::secondary;
    physicsModule().stepCount += 20;
    hands().use(0, 0, 0, 0, 0);
    EXPECT_EQ(player->keys, 0U) << "a press with empty hands is used up as well";
}

TEST_F(HandsTest, TheCharacterHangsOnALianaAndLeapsOnFromIt) {
    originOfBody(*player) = btVector3(0.0F, 300.0F, 0.0F);
    SceneObject* liana = hold(2.0F, collisionKind::loose);
    EXPECT_TRUE(hands().hangsOnLooseObject());
    bodyOf(*player).setLinearVelocity({100.0F, 0.0F, 0.0F});
    bodyOf(*liana).setLinearVelocity({100.0F, 0.0F, 0.0F});
    step();
    EXPECT_GT(bodyOf(*player).getLinearVelocity().x(), 95.0F) << "swings without being braked";

    bodyOf(*player).setLinearVelocity({0, 0, 0});
    bodyOf(*liana).setLinearVelocity({0, 0, 0});
    listen();
    EXPECT_TRUE(hands().leapOff());
    EXPECT_EQ(bodyOf(*player).getLinearVelocity().y(), 160.0F);
    EXPECT_EQ(bodyOf(*liana).getLinearVelocity().y(), -40.0F);
    EXPECT_EQ(player->lastJumpStep, physicsModule().stepCount);
    EXPECT_EQ(hands().heldObject(), nullptr);
    EXPECT_TRUE(hands().isReaching()) << "hand over hand";
    EXPECT_EQ(heard(), "put.wav 64");
    EXPECT_FALSE(hands().leapOff());
    sceneManager().removeSceneObject(liana);

    hold(2.0F);
    EXPECT_FALSE(hands().hangsOnLooseObject());
    EXPECT_FALSE(hands().leapOff()) << "a crate is nothing to leap off";
    EXPECT_NE(hands().heldObject(), nullptr);
}

TEST_F(HandsTest, WhatVanishesIsForgottenWheneverItGoes) {
    const auto vanish = [this](const std::function<void(SceneObject*)>& take) {
        press();
        SceneObject* crate = hold(2.0F);
        take(crate);
        // What comes now may lie where the crate and its joint lay, and is not held.
        SceneObject* heir = addCrate(2.0F);
        physicsModule().addConstraint(new btHingeConstraint(bodyOf(*heir), {0, 0, 0}, {0, 0, 1}));
        return heir;
    };
    const std::function<void()> uses[] = {
        [this] { release(); },
        [this] { step(2); },
        [this] {
            player->keys |= playerKey::secondary;
            hands().use(0, 0, 0, 0, 0);
        },
        [this] { hands().drop(false); },
        [this] { EXPECT_FALSE(hands().leapOff() || hands().hangsOnLooseObject()); },
        [this] {
            float angle = 7.0F;
            EXPECT_FALSE(hands().holdAngle(angle));
            EXPECT_EQ(angle, 7.0F);
        },
        [this] { const HandsPause pause(player); },
    };
    for (const auto& use : uses) {
        SceneObject* heir =
            vanish([](SceneObject* crate) { sceneManager().removeSceneObject(crate); });
        EXPECT_EQ(hands().heldObject(), nullptr);
        use();
        EXPECT_EQ(hands().heldObject(), nullptr) << "until the button is pressed again";
        EXPECT_EQ(joints(), 1U) << "the joint of another is left alone";
        release();
        sceneManager().removeSceneObject(heir);
        step(21);
    }
    SceneObject* crate = hold(2.0F);
    crate->shatter();
    step();
    EXPECT_EQ(hands().heldObject(), nullptr);
    EXPECT_EQ(joints(), 0U);

    crate = hold(2.0F);
    while (joints() > 0) { // a script cuts it loose
        physicsModule().removeConstraint(physicsModule().getJoints().front());
    }
    step();
    EXPECT_EQ(hands().heldObject(), nullptr);
    EXPECT_TRUE(sceneManager().contains(crate));
}

TEST_F(HandsTest, TheCharacterMayGoWithItsHandsFull) {
    hold(2.0F);
    sceneManager().removeSceneObject(player);
    EXPECT_EQ(joints(), 0U);
    step(2);

    player = addProtagonist(500.0F, 500.0F);
    hold(2.0F);
    player->hurt(1000);
    step(2);
    EXPECT_EQ(joints(), 0U);
    sceneManager().clearScene();
    step();
}

TEST_F(HandsTest, AGrabLeavesNobodyWithContactsThatAreGone) {
    SceneObject* crate = addCrate(2.0F);
    for (SceneObject* witness : {crate, floor}) {
        witness->physicsObject->wantsContacts = true;
    }
    step();
    ASSERT_GE(floor->physicsObject->contacts.size(), 2U);
    bodyOf(*crate).setGravity({0.0F, 640.0F, 0.0F});
    ASSERT_TRUE(hands().grab(false));
    EXPECT_EQ(freedContacts(), 0);
    EXPECT_TRUE(player->physicsObject->contacts.empty());
    EXPECT_EQ(bodyOf(*crate).getGravity().y(), 640.0F) << "it falls as it fell";
    step();
    for (const btPersistentManifold* manifold : player->physicsObject->contacts) {
        EXPECT_NE(manifold->getBody0(), &bodyOf(*crate));
        EXPECT_NE(manifold->getBody1(), &bodyOf(*crate));
    }
    hands().drop(false);
    player->keys = playerKey::right;
    step(2);
    EXPECT_GE(player->physicsObject->contacts.size(), 2U) << "they meet again";
}

TEST_F(HandsTest, ASaveIsWrittenWithEmptyHandsAndLeavesTheCrateInThem) {
    SceneObject* crate = hold(2.0F);
    step(3);
    bodyOf(*crate).setLinearVelocity({50.0F, 0.0F, 0.0F});
    heard();
    TextWriter saved;
    {
        const HandsPause pause(player);
        EXPECT_EQ(hands().heldObject(), nullptr);
        writeScene(saved);
    }
    EXPECT_EQ(hands().heldObject(), crate);
    EXPECT_EQ(heard(), "");
    EXPECT_TRUE(bodyOf(*crate).getLinearVelocity().isZero());
    hands().drop(true);
    step();
    originOfBody(*crate).setX(500.0F);
    step();
    EXPECT_FALSE(hands().grab(true)) << "a step later it must be within reach again";
    const HandsPause withoutCharacter(nullptr);

    press(); // keys are not stored, nor what the hands are at
    sceneManager().clearScene();
    TextReader reader(saved.text());
    sceneManager().addScene(parseScene(reader, false));
    ASSERT_EQ(sceneManager().objects.size(), 3U);
    player = dynamic_cast<TestPlayer*>(sceneManager().objects.at(1));
    crate = sceneManager().objects.at(2);
    sceneManager().player = player;
    step(25);
    EXPECT_EQ(joints(), 0U);
    EXPECT_EQ(hands().heldObject(), nullptr);
    EXPECT_FALSE(hands().isReaching());
    EXPECT_LT(bodyOf(*crate).getLinearVelocity().length(), 5.0F);
    press();
    player->keys |= playerKey::right;
    step(25);
    EXPECT_EQ(hands().heldObject(), crate) << "for the asking";
}

namespace {

class Launcher : public EqWeapon {
public:
    Launcher() : EqWeapon(300.0F, 30.0F) {}
    int getType() const override { return itemType::weapon; }
    SceneObject* makeProjectile(float x, float y, float a, float vx, float vy) override {
        PhysicsObject* physics = createSphere(x, y, 4.0F, 0.0F, 0.0F, a);
        physics->body->setLinearVelocity({vx, vy, 0.0F});
        const GraphicsObjectData look = makeBoxData(1, 1, -1, 0, 1, 1, 1, 1, 1, 1);
        return new SceneObject({physics, new PhysicsGraphicsObject(look, physics)});
    }
};

} // namespace

TEST_F(HandsTest, AWeaponFiresFromItsMuzzleAtItsRate) {
    auto* launcher = new Launcher;
    ASSERT_TRUE(player->equipment->add(launcher));
    launcher->select();
    EXPECT_EQ(player->equipment->current, launcher);
    EXPECT_EQ(player->equipment->items.back()->getType(), itemType::hands) << "in its place";
    EXPECT_EQ(launcher->use(0, 15, 0, 2, 0), nullptr) << "too soon after the making";
    step(20);
    bodyOf(*player).setLinearVelocity({10.0F, 0.0F, 0.0F});
    SceneObject* projectile = launcher->use(0, 15, -1.5707964F, 2, 0);
    ASSERT_TRUE(sceneManager().contains(projectile));
    EXPECT_NEAR(originOf(*projectile).x(), 30.0F, 0.01F) << "to the right";
    EXPECT_NEAR(originOf(*projectile).y(), 15.0F, 0.01F);
    EXPECT_NEAR(bodyOf(*projectile).getLinearVelocity().x(), 310.0F, 0.01F);
    EXPECT_EQ(bodyOf(*projectile).getInvMass(), 0.5F);
    EXPECT_EQ(launcher->use(0, 15, 0, 2, 0), nullptr);
}
