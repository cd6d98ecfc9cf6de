#pragma once

#include "Player.h"

#include <cstdint>
#include <vector>

class btRigidBody;

/// What a monster does by itself; the stored number. Any other number is as good as `puppet`.
enum class EvilState : std::int32_t {
    patrol = 0, ///< Walks its waypoints and never looks for prey.
    hunter = 1, ///< Looks for prey and chases it; walks its waypoints while it sees none.
    puppet = 3, ///< Nothing; neither do its like call it.
};

/// A monster: a character that steers itself by its own keys. It walks a ring of waypoints, sees
/// the protagonist in a box around it, through walls, chases and bites it, calls the monsters near
/// by, and dies in bright light. Its eyes are two lights that come on when it is roused. It carries
/// `EvilHands`, through which the user may steer it as well.
class EvilPlayer : public Player {
public:
    /// World units; x and y of a place that the centre of the body walks to.
    struct Waypoint {
        float x, y;
    };

    /// A new hunter at the world's origin with looks, footfall and a `LightReaderAdd` of its own.
    EvilPlayer();
    /// One from a file; looks and additions are the caller's.
    explicit EvilPlayer(const SceneParts& parts);

    /// Reads what follows an object's record and builds the monster.
    /// @throws std::string "file corrupted"
    static EvilPlayer* load(TextReader& stream, const SceneParts& parts);

    /// The object as a monster; null if it is none, or null itself.
    static EvilPlayer* of(SceneObject* object);

    /// What `target` points to in a monster that was called to a place and hunts nobody yet.
    static SceneObject* alerted() { return reinterpret_cast<SceneObject*>(~std::uintptr_t{0}); }

    void save(TextWriter& stream) const override;
    void moveBy(float dx, float dy) override; ///< Takes the waypoints along.
    void update() override;
    void die() override;

    void lightEyes();
    void dimEyes(); ///< Nothing if they are dark.
    void growl();

    /// Looks around: fills `neighbours`, and returns the protagonist if it is among them, or null.
    SceneObject* findPrey();
    /// What stood around at the last look, the monster itself included. Not owned, and good only
    /// right after the look.
    const std::vector<SceneObject*>& getNeighbours() const { return neighbours; }
    /// Sends it to a place, unless it is a puppet or has a target already. Whether it goes.
    bool call(const btVector3& place);

    EvilState state = EvilState::hunter;
    std::vector<Waypoint> waypoints; ///< Walked in a ring.
    /// What it hunts, `alerted` or null. Not owned, and stale when the prey has gone.
    SceneObject* target = nullptr;

private:
    // What a step does besides walking, in order.
    void feelLight();
    void behave();
    void spreadDread() const;
    void bite();
    void howlByChance();

    void hunt();
    void lookForPrey();
    void chase();
    void alertNeighbours(const btVector3& place);
    void patrol();

    std::uint32_t lastBiteStep = 0;
    bool called = false; // since its last hunt
    std::vector<SceneObject*> neighbours;
    std::vector<btRigidBody*> bodiesAround; // of the last look; kept for its room
    bool eyesLit = false;
    std::int32_t calmSteps = 0; // of patrol since prey was seen
    std::uint32_t waypointIndex = 0;
};
