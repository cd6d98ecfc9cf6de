#include "HandsPause.h"

#include "Equipment.h"
#include "Hands.h"
#include "Player.h"
#include "physicsModule/PhysicsObject.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

HandsPause::HandsPause(Player* player) {
    EqItem* item = player == nullptr ? nullptr : player->equipment->current;
    if (item == nullptr || item->getType() != itemType::hands) {
        return;
    }
    auto& hands = static_cast<Hands&>(*item);
    if (const SceneObject* held = hands.heldObject()) {
        held->physicsObject->body->setLinearVelocity({0.0F, 0.0F, 0.0F});
        hands.drop(true);
        emptied = &hands;
    }
}

HandsPause::~HandsPause() {
    if (emptied != nullptr) {
        emptied->grab(true);
    }
}
