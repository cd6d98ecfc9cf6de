#include "support/ListeningFixture.h"
#include "support/Timetable.h"

#include "physicsModule/PhysicsModule.h"
#include "physicsModule/myGeneric6DofSpringConstraint.h"
#include "sceneManager/So_Addons/CallbackAdd.h"
#include "unit/PhysicsBodies.h"

// A scene is listened to as it is played: each sound in its step, and silence round them.

namespace {

constexpr int bellDelay = 150;    // steps
constexpr int doorDelay = 60;     // steps
constexpr float doorTurn = 0.8F;  // radians to both sides of the middle
constexpr float doorSpeed = 2.0F; // radians a second
constexpr int doorSteps =
    static_cast<int>(60.0F * (doorTurn - 0.1F) / doorSpeed); // up to its middle

/// A floor, a protagonist that walks along it, and on the way what scripts make of a door, a zone
/// that opens it and rings a bell, and a plate. The command NOTE keeps the step in which it runs.
class SceneSound : public ListeningFixture {
protected:
    void SetUp() override {
        ListeningFixture::SetUp();
        addCallback("NOTE", [this](SceneObject*, So_Addition*) { noted.push_back(now()); });
        addBox(0.0F, -50.0F, 2000.0F, 50.0F, 0.0F)->addAddition(parseScript("SCRATCH NULL"));
        player = addPlayer(-400.0F, 15.0F);
    }
    void TearDown() override {
        callbackTable().erase("NOTE");
        ListeningFixture::TearDown();
    }

    /// A flap that hangs overhead and is driven to its left end.
    static SceneObject* addDoor(float x, const std::string& name) {
        SceneObject* door = addBox(x, 250.0F, 10.0F, 40.0F, 5.0F);
        door->addAddition(parseScript("NAME " + name));
        door->addAddition(parseScript("SQUEAK squeak1.wav squeak2.wav"));
        btTransform pivot = btTransform::getIdentity();
        pivot.setOrigin({0.0F, 40.0F, 0.0F});
        btTransform hook = btTransform::getIdentity();
        hook.setOrigin({x, 290.0F, 0.0F});
        static btRigidBody& world = btTypedConstraint::getFixedBody();
        auto* joint =
            new myGeneric6DofSpringConstraint(world, *door->physicsObject->body, hook, pivot);
        joint->setLinearLowerLimit({0.0F, 0.0F, 0.0F});
        joint->setLinearUpperLimit({0.0F, 0.0F, 0.0F});
        joint->setAngularLowerLimit({0.0F, 0.0F, -doorTurn});
        joint->setAngularUpperLimit({0.0F, 0.0F, doorTurn});
        btRotationalLimitMotor& motor = *joint->getRotationalLimitMotor(2);
        motor.m_enableMotor = true;
        motor.m_targetVelocity = -doorSpeed;
        motor.m_maxMotorForce = 1e6F;
        physicsModule().addConstraint(joint);
        return door;
    }

    /// An area that lets everything through.
    static void addZone(float x, float halfWidth, const std::string& script) {
        SceneObject* zone = addBox(x, 30.0F, halfWidth, 60.0F, 0.0F);
        zone->physicsObject->body->setCollisionFlags(
            zone->physicsObject->body->getCollisionFlags() |
            btCollisionObject::CF_NO_CONTACT_RESPONSE);
        zone->addAddition(parseScript(script));
    }

    Player* player = nullptr;
    std::vector<int> noted; ///< Steps in which NOTE ran.
};

} // namespace

TEST_F(SceneSound, DoorBellAndPlateSoundWhenTheirTimeHasComeAndNothingElseDoes) {
    addDoor(100.0F, "DOOR");
    addZone(-100.0F, 10.0F,
            "TRIGGER -P LOCK NOTE DELAY 60 REVERSE DOOR DELAY 90 SOUND minibell.wav -V 100");
    addZone(100.0F, 50.0F, "STRIGGER NOTE");
    pass(120);
    player->keys = playerKey::right;
    pass(120);
    player->keys = 0;
    pass(280);
    ASSERT_EQ(noted.size(), 2U) << "zone and plate";
    // A delay that is reached in its first step fires in its last.
    const int opened = noted[0] + 59;
    const int rung = opened + 89;
    EXPECT_EQ(complaintsOf(heard(), {{"squeak1.wav", 0, 3, 20.0F}, // hung up in the middle
                                     {"squeak2.wav", opened + doorSteps, 4, 20.0F},
                                     {"minibell.wav", rung, 3, 99.0F},
                                     {"switch.wav", noted[1], 3, 100.0F}}),
              "");
}

TEST_F(SceneSound, WhereNothingMovesNothingIsHeard) {
    addDoor(0.0F, "DOOR");
    addZone(100.0F, 10.0F, "TRIGGER -P LOCK SOUND minibell.wav");
    addZone(-300.0F, 10.0F, "DELAY 100000 SOUND minibell.wav");
    pass(120);
    player->keys = playerKey::right;
    pass(60); // towards the zone, not into it
    player->keys = 0;
    pass(60);
    EXPECT_EQ(complaintsOf(heard(), {{"squeak1.wav", 0}}), "");
}
