#include "myAABBCallback.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

bool myAABBCallback::process(const btBroadphaseProxy* proxy) {
    bodies.push_back(btRigidBody::upcast(static_cast<btCollisionObject*>(proxy->m_clientObject)));
    return true;
}
