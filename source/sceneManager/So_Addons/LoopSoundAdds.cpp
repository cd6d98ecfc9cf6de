#include "LoopSoundAdds.h"

#include "Bodies.h"
#include "TextStream.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>

/// A body at this speed or below counts as resting, world units a second.
static constexpr float restSpeed = 30.0F;
/// Below this speed the turning of a body is heard instead.
static constexpr float slowSpeed = 0.1F;
static constexpr float volumePerTurning = 50.0F; // at one radian a second

static SoundOwner soundOwner(const SceneObject* object) {
    return reinterpret_cast<SoundOwner>(object);
}

LoopSoundAdd::LoopSoundAdd(AdditionType code, const char* word, ScriptWords& words)
    : CallbackAdd(code) {
    takeKeyword(words, word);
    file = takeFileName(words);
    if (takeInnerOption(words, "-V")) {
        volume = takeNumber(words, volume);
    }
}

LoopSoundAdd::LoopSoundAdd(AdditionType code, TextReader& stream) : CallbackAdd(code) {
    stream >> file >> volume;
}

LoopSoundAdd::~LoopSoundAdd() {
    SoundManager* sounds = existingService<SoundManager>(); // dies before the global scripts do
    if (lastOwner != nullptr && sounds != nullptr) {
        sounds->stop(file, soundOwner(lastOwner));
    }
}

bool LoopSoundAdd::fire(SceneObject* owner) {
    if (const btRigidBody* body = bodyOf(owner)) {
        lastOwner = owner;
        soundManager().play(file, body->getWorldTransform().getOrigin(), soundOwner(owner),
                            loudness(*owner), false);
    }
    return true;
}

void LoopSoundAdd::saveFields(TextWriter& stream) const {
    stream << file << volume;
}

SoundSourceAdd::SoundSourceAdd(ScriptWords& words)
    : LoopSoundAdd(AdditionType::soundSource, keyword, words) {}
SoundSourceAdd::SoundSourceAdd(TextReader& stream)
    : LoopSoundAdd(AdditionType::soundSource, stream) {}

std::uint8_t SoundSourceAdd::loudness(const SceneObject&) {
    return fullVolume();
}

MovSoundAdd::MovSoundAdd(ScriptWords& words)
    : LoopSoundAdd(AdditionType::movSound, keyword, words) {}
MovSoundAdd::MovSoundAdd(TextReader& stream) : LoopSoundAdd(AdditionType::movSound, stream) {}

bool MovSoundAdd::hasBeenMoved(const btVector3& position) {
    const bool known = !lastPosition.isZero();
    const bool moved = known && !(position == lastPosition);
    lastPosition = position;
    return moved;
}

std::uint8_t MovSoundAdd::loudness(const SceneObject& source) {
    const btRigidBody& body = *bodyOf(&source);
    // A static body has no velocity: it moves when code sets its transform.
    const bool moving = body.isStaticObject() ? hasBeenMoved(body.getWorldTransform().getOrigin())
                                              : body.getLinearVelocity().length() > restSpeed;
    return moving ? fullVolume() : 0;
}

VSoundAdd::VSoundAdd(ScriptWords& words) : LoopSoundAdd(AdditionType::vSound, keyword, words) {}
VSoundAdd::VSoundAdd(TextReader& stream) : LoopSoundAdd(AdditionType::vSound, stream) {}

std::uint8_t VSoundAdd::loudness(const SceneObject& source) {
    const btRigidBody& body = *bodyOf(&source);
    float speed = body.getLinearVelocity().length();
    if (speed < slowSpeed) {
        speed = volumePerTurning * body.getAngularVelocity().length();
    }
    return static_cast<std::uint8_t>(std::clamp(speed, 1.0F, 128.0F));
}
