// The scripts without an owner, which `PhysicsModule` runs behind the scene objects of a step.

#include "PhysicsModule.h"
#include "sceneManager/So_Addons/So_Addition.h"

#include <algorithm>

void PhysicsModule::addScript(So_Addition* script) {
    if (std::ranges::find(globalScripts, script) == globalScripts.end()) {
        globalScripts.push_back(script);
    }
}

void PhysicsModule::removeScript(So_Addition* link) {
    if (std::ranges::find(pendingRemovals, link) == pendingRemovals.end()) {
        pendingRemovals.push_back(link);
    }
}

void PhysicsModule::removeAllScripts() {
    for (So_Addition* script : globalScripts) {
        removeScript(script);
    }
}

void PhysicsModule::runScripts() {
    flushScripts();
    // By index: a script may add others, which run in the same pass.
    // NOLINTNEXTLINE(modernize-loop-convert)
    for (std::size_t i = 0; i < globalScripts.size(); ++i) {
        globalScripts[i]->update(nullptr);
    }
    flushScripts();
}

void PhysicsModule::flushScripts() {
    for (const So_Addition* link : pendingRemovals) {
        std::erase_if(globalScripts, [link](So_Addition* script) {
            if (!script->contains(link)) {
                return false;
            }
            delete script;
            return true;
        });
    }
    pendingRemovals.clear();
}
