#include "ObscuredAdd.h"

#include "Contacts.h"
#include "TextStream.h"
#include "graphicsModule/GraphicsObject.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"

#include <algorithm>

static constexpr float fadeStep = 0.01F; // of alpha, a step

ObscuredAdd::ObscuredAdd(ScriptWords& words) : CallbackAdd(AdditionType::obscured) {
    takeKeyword(words, keyword);
    once = takeOption(words, "-O");
}

ObscuredAdd::ObscuredAdd(TextReader& stream) : CallbackAdd(AdditionType::obscured) {
    stream >> active >> once;
}

bool ObscuredAdd::fire(SceneObject* owner) {
    if (owner == nullptr) {
        return false;
    }
    if (!done) {
        fade(*owner);
    }
    if (isEntered(*owner)) {
        return !active;
    }
    if (active && !once) {
        active = false;
        done = false;
    }
    return false;
}

void ObscuredAdd::finish(SceneObject*) {
    active = true;
    done = false;
}

void ObscuredAdd::fade(const SceneObject& owner) {
    if (owner.graphicsObject == nullptr) { // shattered in this step
        return;
    }
    float r = 0.0F;
    float g = 0.0F;
    float b = 0.0F;
    float a = 0.0F;
    owner.graphicsObject->getColour(r, g, b, a);
    if (active && a > 0.0F) {
        a -= fadeStep;
    } else if (!active && a < 1.0F) {
        a += fadeStep;
    } else {
        a = active ? 0.0F : 1.0F;
        done = true;
    }
    owner.graphicsObject->setColour(r, g, b, a);
}

bool ObscuredAdd::isEntered(const SceneObject& owner) const {
    const SceneObject* player = sceneManager().player;
    const auto manifolds = manifoldsOf(&owner);
    return player != nullptr &&
           std::any_of(manifolds.begin(), manifolds.end(), [&](const auto* manifold) {
               const Contact contact = contactOf(&owner, *manifold);
               return contact.other == player && (!once || contact.overlaps());
           });
}

void ObscuredAdd::unlockLink() {
    if (once) {
        active = false;
        done = false;
    }
}

void ObscuredAdd::saveFields(TextWriter& stream) const {
    stream << active << once;
}
