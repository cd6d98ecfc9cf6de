#include "IntroMovers.h"

#include "IntroStage.h"
#include "Random.h"
#include "game/commands/CommandTables.h"
#include "graphicsModule/Camera.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/ParticleEmiter.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/EvilPlayer.h"
#include "soundModule/SoundManager.h"

#include <array>
#include <string>

namespace {

constexpr float burstParticles = 100.0F;

/// Whether the object is there; one that has gone is.
bool moveTo(SceneObject* object, float x, float y, float step) {
    return object == nullptr || object->physicsObject->moveTowards(x, y, step);
}

void zoomBy(float factor) {
    Camera& camera = *graphicsModule().camera;
    camera.setZoom(camera.getTargetZoom() * factor);
}

void endIf(bool arrived, So_Addition* link) {
    if (arrived) {
        physicsModule().removeScript(link);
    }
}

void sink(SceneObject*, So_Addition* link) {
    endIf(moveTo(introBackdrop(), 0.0F, -600.0F, 1.0F), link);
}

/// The first to arrive stops both.
void chase(SceneObject*, So_Addition* link) {
    const bool caught = moveTo(introBackdrop(), 700.0F, 0.0F, 1.0F);
    const bool catching = moveTo(introPartner(), 700.0F, 0.0F, 1.5F);
    endIf(caught || catching, link);
}

void drawNear(SceneObject*, So_Addition* link) {
    endIf(moveTo(introPartner(), 300.0F, 0.0F, 0.7F), link);
}

void walkTogether(SceneObject*, So_Addition* link) {
    const bool first = moveTo(introBackdrop(), 300.0F, 25.0F, 0.7F);
    const bool second = moveTo(introPartner(), 300.0F, 0.0F, 0.7F);
    endIf(first && second, link);
}

void settle(SceneObject*, So_Addition* link) {
    const bool arrived = moveTo(introBackdrop(), 0.0F, 5.0F, 0.1F);
    ParticleEmiter* emitter = introEmiter();
    if (arrived && emitter != nullptr) {
        emitter->params.rate = 0.0F;
    }
    endIf(arrived, link);
}

void comeNearer(SceneObject*, So_Addition*) {
    zoomBy(1.002F);
}

void retreat(SceneObject*, So_Addition*) {
    zoomBy(0.998F);
}

void fallBack(SceneObject*, So_Addition*) {
    zoomBy(0.9945F);
}

bool isTime(unsigned everySteps) {
    return physicsModule().stepCount % everySteps == 0;
}

/// Now and then a burst in all directions.
void pulse(SceneObject*, So_Addition*) {
    ParticleEmiter* emitter = introEmiter();
    if (emitter != nullptr && isTime(100)) {
        emitter->params.speed = 10.0F;
        emitter->randomSpeed = true;
        emitter->accumulator += burstParticles;
        emitter->update(introBackdrop());
        emitter->params.speed = 0.0F;
    }
    zoomBy(1.002F);
}

/// Sparks and eyes take turns.
void flicker(ParticleEmiter& emitter, EvilPlayer& monster) {
    if (emitter.params.rate != 0.0F) {
        emitter.params.rate = 0.0F;
        monster.lightEyes();
        monster.growl();
        return;
    }
    soundManager().playFlat("electro" + std::to_string(drawRandom() % 4 + 1) + ".wav", 55);
    monster.dimEyes();
    emitter.params.rate = 0.1F;
    emitter.accumulator += burstParticles;
}

void crackle(SceneObject*, So_Addition*) {
    zoomBy(1.002F);
    ParticleEmiter* emitter = introEmiter();
    EvilPlayer* monster = introMonster();
    if (emitter != nullptr && monster != nullptr && isTime(120)) {
        flicker(*emitter, *monster);
    }
}

} // namespace

void registerIntroMovers() {
    addCommands(std::array{
        NamedCommand{"CH2T4", sink},
        NamedCommand{"CH3T5", chase},
        NamedCommand{"CH4T6", drawNear},
        NamedCommand{"CH8T6", walkTogether},
        NamedCommand{"CH9T6", settle},
        NamedCommand{"CH9T7", comeNearer},
        NamedCommand{"CH10T7", crackle},
        NamedCommand{"CH11T7", retreat},
        NamedCommand{"CH12T7", pulse},
        NamedCommand{"CH13T7", comeNearer},
        NamedCommand{"CH14T6", fallBack},
    });
}
