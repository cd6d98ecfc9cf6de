#include "SceneObject.h"

#include "NameIndex.h"
#include "SceneManager.h"
#include "So_Addons/Contacts.h"
#include "So_Addons/HealthAdd.h"
#include "So_Addons/ObjectNameAdd.h"
#include "TextStream.h"
#include "graphicsModule/GraphicsObject.h"
#include "physicsModule/PhysicsObject.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>
#include <cassert>
#include <memory>
#include <utility>

namespace {

int numberFor(const PhysicsObject* physics) {
    if (physics == nullptr) {
        return 0;
    }
    return physics->body->isStaticObject() ? -1 : sceneManager().nextObjectNumber();
}

/// While additions run, those that are removed wait here: a chain may call a command that removes
/// the chain itself, which still has to find its way back out of it.
class Graveyard {
public:
    void enter() { ++depth; }
    void leave() {
        if (--depth == 0) {
            removed.clear();
        }
    }
    void take(So_Addition* addition) {
        removed.emplace_back(addition);
        if (depth == 0) {
            removed.clear();
        }
    }

private:
    int depth = 0;
    std::vector<std::unique_ptr<So_Addition>> removed;
};

Graveyard graveyard;

void forgetName(const So_Addition& addition) {
    if (addition.type == AdditionType::objectName) {
        NameIndex::forget();
    }
}

} // namespace

SceneObject::SceneObject(const SceneParts& parts)
    : physicsObject(parts.physics),
      graphicsObject(parts.graphics),
      type(parts.type),
      number(numberFor(parts.physics)),
      seed(sceneManager().nextSeed()) {
    if (physicsObject != nullptr) {
        physicsObject->body->setUserPointer(this); // how contacts lead back to the scene
    }
}

SceneObject::~SceneObject() {
    clearAdditions();
}

void SceneObject::save(TextWriter& stream) const {
    stream << type;
    visibleGraphics()->write(stream);
    if (physicsObject != nullptr) {
        physicsObject->write(stream);
    } else {
        stream << "00000000";
    }
    stream << additions.size();
    for (const So_Addition* addition : additions) {
        addition->save(stream);
    }
}

void SceneObject::moveBy(float dx, float dy) {
    if (physicsObject != nullptr) {
        physicsObject->body->getWorldTransform().getOrigin() += btVector3(dx, dy, 0.0F);
    } else if (graphicsObject != nullptr) {
        graphicsObject->moveBy(dx, dy);
    }
}

void SceneObject::update() {
    graveyard.enter();
    for (std::size_t i = 0; i < additions.size(); ++i) {
        additions[i]->update(this);
    }
    graveyard.leave();
}

void SceneObject::hurt(int amount) {
    if (So_Addition* health = findAddition(AdditionType::health)) {
        static_cast<HealthAdd*>(health)->take(amount);
    }
}

void SceneObject::addAddition(So_Addition* addition) {
    if (addition->type != AdditionType::health) {
        assert(physicsObject != nullptr);
        physicsObject->wantsContacts = true;
    }
    additions.push_back(addition);
    additionsWork = additionsWork || addition->type != AdditionType::objectName;
    forgetName(*addition);
}

void SceneObject::removeAddition(So_Addition* addition) {
    const auto place = std::find(additions.begin(), additions.end(), addition);
    if (place != additions.end()) {
        additions.erase(place);
        forgetName(*addition);
        graveyard.take(addition);
    }
}

void SceneObject::clearAdditions() {
    for (So_Addition* addition : std::exchange(additions, {})) {
        forgetName(*addition);
        graveyard.take(addition);
    }
}

So_Addition* SceneObject::findAddition(AdditionType wanted) const {
    const auto place =
        std::find_if(additions.begin(), additions.end(),
                     [wanted](const So_Addition* addition) { return addition->type == wanted; });
    return place == additions.end() ? nullptr : *place;
}

bool SceneObject::hasName(const std::string& name) const {
    return std::any_of(additions.begin(), additions.end(), [&name](const So_Addition* addition) {
        return addition->type == AdditionType::objectName &&
               static_cast<const ObjectNameAdd*>(addition)->getName() == name;
    });
}

bool SceneObject::touchesObject(const std::string& name) const {
    for (const btPersistentManifold* manifold : manifoldsOf(this)) {
        const Contact contact = contactOf(this, *manifold);
        if (contact.other != nullptr && contact.other->hasName(name) &&
            contact.pointsWithin(0.0) > 0) {
            return true;
        }
    }
    return false;
}

bool SceneObject::isTouching() const {
    for (const btPersistentManifold* manifold : manifoldsOf(this)) {
        const Contact contact = contactOf(this, *manifold);
        if (contact.body.hasContactResponse() && contact.pointsWithin(0.0) > 0) {
            return true;
        }
    }
    return false;
}

GraphicsObject* SceneObject::visibleGraphics() const {
    return graphicsObject != nullptr ? graphicsObject : unbroken;
}
