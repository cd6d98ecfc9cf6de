#pragma once

#include "PlayerStatistics.h"
#include "SceneObject.h"

#include <LinearMath/btVector3.h>

#include <cstdint>
#include <deque>
#include <memory>
#include <string>

class Equipment;
struct FootContact;
class Text;
class TextReader;
class btRigidBody;

/// Bits of `Player::keys`.
namespace playerKey {
constexpr std::uint32_t left = 0x1;
constexpr std::uint32_t up = 0x2;
constexpr std::uint32_t right = 0x4;
constexpr std::uint32_t primary = 0x2000;
constexpr std::uint32_t secondary = 0x4000;
constexpr std::uint32_t down = 0x8000;
constexpr std::uint32_t extra = 0x10000;
constexpr std::uint32_t movement = left | up | right | down;
} // namespace playerKey

/// A walking character: an ordinary round body whose velocity is blended towards a target every
/// step, so that it pushes and is pushed. All directions go through the world frame of
/// `PhysicsModule`. Velocities are world units a second.
class Player : public SceneObject {
public:
    /// Sets the body up; the parts must have a physics object with a round shape.
    explicit Player(const SceneParts& parts);
    ~Player() override;

    void save(TextWriter& stream) const override;
    void update() override;
    void hurt(int damage) override;
    Player* asPlayer() override { return this; }

    /// The strongest impulse among the contacts under the feet.
    virtual float footImpulse();
    virtual bool crouch() { return false; }
    virtual bool moveLeft();
    virtual bool moveRight();
    virtual bool jump(); ///< True on a real take-off.
    virtual bool swimUp();
    virtual bool swimDown();
    virtual bool swimLeft();
    virtual bool swimRight();
    /// Told by the water that lets the character go: coming up counts as a jump, which the key for
    /// up lifts further.
    void leaveWater();
    virtual void die();
    virtual void setStatistics(const PlayerStatistics& values);

    /// Queues a spoken line, shown above the character for that many steps (at least 1).
    void say(const std::string& line, int frames);
    /// Whether a line shows or waits, and in the step after the last one.
    bool isSpeaking() const { return sayTimer >= 0; }
    /// Drops all lines, the one that shows included.
    void silence();
    /// Walks by itself until nearer than 9 units to the point.
    void setWalkTarget(const btVector3& point);
    /// Lets go of left, right, up and down.
    void stopKeys();

    /// Reads the statistics that follow an object's record and builds the character.
    static Player* load(TextReader& stream, const SceneParts& parts);

    std::uint32_t keys = 0; ///< Held keys, bits of `playerKey`.
    std::unique_ptr<Equipment> equipment;
    bool noLegTuck = false;
    PlayerStatistics statistics;
    btVector3 aimPoint;                ///< World point looked at.
    SceneObject* supportNow = nullptr; ///< Under the feet in this step; not owned.
    std::uint32_t lastJumpStep;        ///< Of the last take-off or stroke, or of the making.

protected:
    bool leftFree = true;
    bool rightFree = true;
    std::uint32_t lastGroundStep = 0;
    SceneObject* supportRecent = nullptr; ///< Last stood on, for a grace time; not owned.
    btVector3 contactOffset{0, 0, 0};     ///< From the support's centre to the contact.
    btVector3 supportVelocity{0, 0, 0};
    btVector3 walkTarget{0, 0, 0}; ///< Zero means none.

    btRigidBody& body() const;

private:
    struct Line {
        std::string text;
        int frames;
    };
    void setUpBody();

    void scanContacts(float threshold);
    void blockSides(const FootContact& contact);
    void standOn(const FootContact& contact);
    void loseGround();

    void updateLines();
    void moveByKeys();
    void moveOnLand();
    void moveInWater();
    void stopWalking();
    void useItem();

    void walk(float direction);
    void swim(float direction);
    bool isTooFast(float direction) const;
    void blendVelocity(float direction, float share);
    void shift(float direction);
    void pushSupport(float direction);
    void boostJump();
    void takeOff();

    void showLine(const std::string& line);
    void removeSayText();

    Text* sayText = nullptr;    ///< Owned by `GraphicsModule`.
    std::string idleLine;       ///< Shown when the queue has run dry.
    std::int32_t sayTimer = -1; ///< Steps until the next line.
    std::deque<Line> sayQueue;
};
