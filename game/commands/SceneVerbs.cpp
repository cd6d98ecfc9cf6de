#include "NamedObjects.h"
#include "Verbs.h"
#include "graphicsModule/LightAdd.h"
#include "graphicsModule/ParticleEmiter.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/ObscuredAdd.h"

#include <LinearMath/btVector3.h>

// The verbs that change what a map has named.

namespace verb {
namespace {

/// Ends the loop when the object is there, or gone.
void moveOn(PhysicsObject* physics, const btVector3& target, float step,
            const ScriptCallback& arrived, So_Addition* link) {
    if (physics != nullptr && !physics->moveTowards(target.x(), target.y(), step)) {
        return;
    }
    physicsModule().removeScript(link);
    if (physics != nullptr && arrived) {
        arrived(nullptr, link);
    }
}

/// The first addition of that kind on the named object, or null.
template <class Addition>
Addition* additionOf(const std::string& object, AdditionType type) {
    const SceneObject* found = sceneManager().getSceneObject(object);
    return found != nullptr ? static_cast<Addition*>(found->findAddition(type)) : nullptr;
}

ScriptCallback setHiding(std::string object, bool gone) {
    return [object = std::move(object), gone](SceneObject*, So_Addition*) {
        if (auto* cover = additionOf<ObscuredAdd>(object, AdditionType::obscured)) {
            cover->active = gone;
            cover->done = false;
        }
    };
}

} // namespace

ScriptCallback moveLoop(const std::string& object, float x, float y, float step,
                        const ScriptCallback& arrived) {
    return [=](SceneObject*, So_Addition* link) {
        moveOn(physicsOf(object), btVector3(x, y, 0.0F), step, arrived, link);
    };
}

ScriptCallback moveLoopTo(const std::string& object, const std::string& destination, float step,
                          const ScriptCallback& arrived) {
    return [=](SceneObject*, So_Addition* link) {
        btVector3 target;
        PhysicsObject* physics = placeOf(destination, target) ? physicsOf(object) : nullptr;
        moveOn(physics, target, step, arrived, link);
    };
}

ScriptCallback release(std::string object) {
    return [object = std::move(object)](SceneObject*, So_Addition*) { releaseJoint(object); };
}

ScriptCallback unhide(std::string object) {
    return setHiding(std::move(object), true);
}

ScriptCallback hide(std::string object) {
    return setHiding(std::move(object), false);
}

ScriptCallback remove(std::string object) {
    return [object = std::move(object)](SceneObject*, So_Addition*) {
        if (SceneObject* found = sceneManager().getSceneObject(object)) {
            sceneManager().markForRemoval(found);
        }
    };
}

ScriptCallback emit(std::string object, float rate) {
    return [object = std::move(object), rate](SceneObject*, So_Addition*) {
        if (auto* emitter = additionOf<ParticleEmiter>(object, AdditionType::particleEmiter)) {
            emitter->params.rate = rate;
        }
    };
}

ScriptCallback colourLight(const std::string& object, float r, float g, float b) {
    return [=](SceneObject*, So_Addition*) {
        if (auto* light = additionOf<LightAdd>(object, AdditionType::light)) {
            LightProperties look = light->getProperties();
            if (look.red == r && look.green == g && look.blue == b) {
                return; // loops ask for the same again and again
            }
            look.red = r;
            look.green = g;
            look.blue = b;
            light->setProperties(look);
        }
    };
}

} // namespace verb
