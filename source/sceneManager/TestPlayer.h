#pragma once

#include "Player.h"

struct ProtagonistPose;

/// The protagonist: the character that the user steers. What it adds is a body of four parts that a
/// procedural walk cycle moves, its sounds, drowning, and the fear that the sound manager turns
/// into breath and heartbeat, fed by the light that falls on it. It comes with `Hands`, which are
/// empty.
class TestPlayer : public Player {
public:
    /// A new one at (500, 500) that looks left, with parts and a `LightReaderAdd` of its own.
    TestPlayer();
    /// One from a file, which looks where its texture coordinates say. The graphics must be what
    /// `load` asks for; additions are the caller's to add.
    explicit TestPlayer(const SceneParts& parts);
    ~TestPlayer() override;

    void save(TextWriter& stream) const override;
    void update() override;
    bool moveLeft() override;
    bool moveRight() override;
    bool jump() override;
    void die() override;
    void setStatistics(const PlayerStatistics& values) override;

    /// The gasp of coming up: louder the longer the dive was, and none after a dip.
    void breath();

    /// Reads what follows an object's record and builds the character. Its graphics must be a group
    /// of at least four polygons: leg, body, leg, and the arm as the last.
    /// @throws std::string "file corrupted"
    static TestPlayer* load(TextReader& stream, const SceneParts& parts);

    /// Cleared for the rest of an update in which drowning takes health: who drowns neither cries
    /// nor bleeds.
    static inline bool breathing = true;

    std::int32_t waterSteps = 0; ///< Steps with the head under water without a break.

private:
    // What a step does besides walking, in order.
    void feelLight();
    void animate();
    void holdBreath();
    void drown();
    void feelPain();
    void hearLanding();

    void hearStep(const char* atStart, const char* atHalf);
    void playFeet(std::uint8_t volume);
    void playFoot(const char* name, std::uint8_t volume);

    ProtagonistPose standingPose() const;
    void aimArm(ProtagonistPose& pose) const;

    float lastHealth; // hit points at the end of the last step, to notice what a step took
    bool facingLeft;
    bool justArrived = true; // has not been updated yet
};
