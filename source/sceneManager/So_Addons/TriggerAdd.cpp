#include "TriggerAdd.h"

#include "Bodies.h"
#include "Contacts.h"
#include "TextStream.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>

/// How far beyond its margin a body already counts as touching, world units.
static constexpr double triggerSlack = 1.0;
static constexpr double plateSlack = 10.0;

TriggerAdd::TriggerAdd(ScriptWords& words) : CallbackAdd(AdditionType::trigger) {
    takeKeyword(words, keyword);
    playerOnly = takeOption(words, "-P");
}

TriggerAdd::TriggerAdd(TextReader& stream) : CallbackAdd(AdditionType::trigger) {
    stream >> fired >> playerOnly;
}

static bool isPlayer(const SceneObject* object) {
    return object != nullptr && object == sceneManager().player;
}

bool TriggerAdd::isTouched(const SceneObject* owner) const {
    const auto manifolds = manifoldsOf(owner);
    return std::any_of(manifolds.begin(), manifolds.end(), [&](const auto* manifold) {
        const Contact contact = contactOf(owner, *manifold);
        return (!playerOnly || isPlayer(contact.other)) && contact.body.hasContactResponse() &&
               !contact.body.isStaticObject() && contact.pointsWithin(triggerSlack) > 0;
    });
}

bool TriggerAdd::fire(SceneObject* owner) {
    if (isTouched(owner)) {
        return !fired && getNext() != nullptr;
    }
    fired = false;
    return false;
}

// On record only after it was acted on: a save that the chain makes meanwhile has it happen again.
void TriggerAdd::finish(SceneObject*) {
    fired = true;
}

void TriggerAdd::saveFields(TextWriter& stream) const {
    stream << fired << playerOnly;
}

StickyTriggerAdd::StickyTriggerAdd(ScriptWords& words) : CallbackAdd(AdditionType::stickyTrigger) {
    takeKeyword(words, keyword);
}

StickyTriggerAdd::StickyTriggerAdd(TextReader& stream) : CallbackAdd(AdditionType::stickyTrigger) {
    stream >> pressed;
}

static bool isPressed(const SceneObject* owner) {
    const auto manifolds = manifoldsOf(owner);
    return std::any_of(manifolds.begin(), manifolds.end(), [&](const auto* manifold) {
        const Contact contact = contactOf(owner, *manifold);
        return !contact.body.isStaticObject() && contact.pointsWithin(plateSlack) > 0;
    });
}

bool StickyTriggerAdd::fire(SceneObject* owner) {
    touched = isPressed(owner);
    if (bodyOf(owner) == nullptr || touched == pressed || (touched && getNext() == nullptr)) {
        return false;
    }
    pressed = false; // a press is on record when it has been acted on, a release before
    return true;
}

void StickyTriggerAdd::finish(SceneObject* owner) {
    soundManager().playAt(touched ? "switch.wav" : "switchoff.wav",
                          bodyOf(owner)->getWorldTransform().getOrigin());
    pressed = touched;
}

void StickyTriggerAdd::saveFields(TextWriter& stream) const {
    stream << pressed;
}
