#include "StoryMonsters.h"

#include "physicsModule/PhysicsObject.h"
#include "sceneManager/EvilPlayer.h"
#include "sceneManager/So_Addons/ObjectNameAdd.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

namespace {

void removeFirst(SceneObject& object, AdditionType type) {
    if (So_Addition* addition = object.findAddition(type)) {
        object.removeAddition(addition);
    }
}

} // namespace

Player* makePlayedMonster() {
    auto* monster = new EvilPlayer;
    monster->state = EvilState::patrol;
    monster->addAddition(new ObjectNameAdd(playedMonsterName));
    return monster;
}

Player* makePuppet() {
    auto* monster = new EvilPlayer;
    monster->state = EvilState::puppet;
    removeFirst(*monster, AdditionType::soundSource);
    removeFirst(*monster, AdditionType::lightReader);
    monster->physicsObject->body->setLinearFactor({0.0F, 0.0F, 0.0F});
    return monster;
}
