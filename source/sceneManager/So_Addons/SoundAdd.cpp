#include "SoundAdd.h"

#include "Bodies.h"
#include "TextStream.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

static constexpr int positional = -1;

SoundAdd::SoundAdd(ScriptWords& words) : CallbackAdd(AdditionType::sound) {
    takeKeyword(words, keyword);
    file = takeFileName(words);
    if (takeInnerOption(words, "-V")) {
        volume = takeNumber(words, volume);
        if (takeOption(words, "-P")) {
            volume = positional;
        }
    } else if (takeInnerOption(words, "-P")) {
        volume = positional;
    }
}

SoundAdd::SoundAdd(TextReader& stream) : CallbackAdd(AdditionType::sound) {
    stream >> file >> volume;
}

bool SoundAdd::fire(SceneObject* owner) {
    if (volume != positional) {
        soundManager().playFlat(file, static_cast<std::uint8_t>(volume));
    } else if (const btRigidBody* body = bodyOf(owner)) {
        soundManager().playAt(file, body->getWorldTransform().getOrigin());
    }
    return true;
}

void SoundAdd::saveFields(TextWriter& stream) const {
    stream << file << volume;
}
