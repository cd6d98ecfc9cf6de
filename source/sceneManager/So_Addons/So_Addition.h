#pragma once

class SceneObject;
class TextReader;
class TextWriter;

/// Codes of the additions: the first field of a stored record, and what code looks an addition up
/// by on its object.
enum class AdditionType : int {
    dialog = 0,
    damage = 1,
    health = 2,
    customCallback = 3,
    trigger = 4,
    stickyTrigger = 5,
    objectName = 6,
    upCallback = 7,
    reverseMotor = 8,
    lock = 9,
    delay = 10,
    unlock = 11,
    movSound = 12,
    soundSource = 13,
    particleEmiter = 14,
    forcefield = 15,
    light = 16,
    water = 17,
    obscured = 18,
    sound = 19,
    squeak = 20,
    creak = 21,
    ambientSet = 22,
    lightReader = 23,
    tipMessage = 24,
    delayOrKey = 25,
    vSound = 26,
    scratch = 27,
    lookAt = 28,
    setLock = 29,
    damageCall = 30,
    evilDamageCall = 31,
    removeJoint = 32,
};

/// A small behaviour that runs once a step on the scene object that owns it, or, as a global
/// script, on none.
class So_Addition {
public:
    explicit So_Addition(AdditionType code) : type(code) {}
    virtual ~So_Addition() = default;
    So_Addition(const So_Addition&) = delete;
    So_Addition& operator=(const So_Addition&) = delete;

    /// Appends the record; the base writes the type.
    virtual void save(TextWriter& stream) const;
    virtual void unlock() {}
    virtual bool contains(const So_Addition* addition) const { return addition == this; }
    virtual void lock() {}
    /// One step. `owner` is null for a global script.
    virtual void update(SceneObject* owner) = 0;

    const AdditionType type;
};

/// Reads the record of any addition, type first. The result belongs to the caller; null for a
/// dialog without entries.
/// @throws std::string "file corrupted"
So_Addition* readAddition(TextReader& stream);
