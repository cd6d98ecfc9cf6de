#include "OneArgAdds.h"

#include "Bodies.h"
#include "Contacts.h"
#include "Language.h"
#include "graphicsModule/Camera.h"
#include "graphicsModule/GraphicsModule.h"
#include "inputModule/InputModule.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/SceneManager.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/ConstraintSolver/btGeneric6DofSpringConstraint.h>
#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>

/// A tip on a white screen stands this much lower, in units of the logical screen.
static constexpr float whiteTipShift = -400.0F;
static constexpr int bellVolume = 128;

ReverseMotorAdd::ReverseMotorAdd(ScriptWords& words)
    : OneArgCall(AdditionType::reverseMotor, keyword, words) {}
ReverseMotorAdd::ReverseMotorAdd(TextReader& stream)
    : OneArgCall(AdditionType::reverseMotor, stream) {}

bool ReverseMotorAdd::fire(SceneObject*) {
    btTypedConstraint* joint = firstJoint(sceneManager().getSceneObject(arg));
    if (joint != nullptr && joint->getConstraintType() == D6_SPRING_CONSTRAINT_TYPE) {
        auto* spring = static_cast<btGeneric6DofSpringConstraint*>(joint);
        btVector3& push = spring->getTranslationalLimitMotor()->m_targetVelocity;
        push = -push;
        btScalar& turn = spring->getRotationalLimitMotor(2)->m_targetVelocity;
        turn = -turn;
    }
    return true;
}

LookAtAdd::LookAtAdd(ScriptWords& words) : OneArgCall(AdditionType::lookAt, keyword, words) {}
LookAtAdd::LookAtAdd(TextReader& stream) : OneArgCall(AdditionType::lookAt, stream) {}

bool LookAtAdd::fire(SceneObject*) {
    Camera* camera = graphicsModule().camera;
    if (camera->owner != nullptr) {
        if (const btRigidBody* body = bodyOf(sceneManager().getSceneObject(arg))) {
            const btVector3& position = body->getWorldTransform().getOrigin();
            camera->setX(position.x());
            camera->setY(position.y());
        }
    }
    return false;
}

SetLockAdd::SetLockAdd(ScriptWords& words) : OneArgCall(AdditionType::setLock, keyword, words) {}
SetLockAdd::SetLockAdd(TextReader& stream) : OneArgCall(AdditionType::setLock, stream) {}

bool SetLockAdd::fire(SceneObject*) {
    if (const SceneObject* object = sceneManager().getSceneObject(arg)) {
        for (So_Addition* addition : object->additions) {
            addition->lock();
        }
    }
    return true;
}

RemoveJointAdd::RemoveJointAdd(ScriptWords& words)
    : OneArgCall(AdditionType::removeJoint, keyword, words) {}
RemoveJointAdd::RemoveJointAdd(TextReader& stream)
    : OneArgCall(AdditionType::removeJoint, stream) {}

bool RemoveJointAdd::fire(SceneObject*) {
    if (btTypedConstraint* joint = firstJoint(sceneManager().getSceneObject(arg))) {
        physicsModule().removeConstraint(joint);
    }
    return true;
}

ScratchAdd::ScratchAdd(ScriptWords& words) : OneArgCall(AdditionType::scratch, keyword, words) {}
ScratchAdd::ScratchAdd(TextReader& stream) : OneArgCall(AdditionType::scratch, stream) {}

bool ScratchAdd::fire(SceneObject* owner) {
    if (owner != nullptr && arg == "NULL") {
        owner->contactNoise = false;
    }
    return false;
}

AmbientSetAdd::AmbientSetAdd(ScriptWords& words)
    : OneArgCall(AdditionType::ambientSet, keyword, words) {}
AmbientSetAdd::AmbientSetAdd(TextReader& stream) : OneArgCall(AdditionType::ambientSet, stream) {}

bool AmbientSetAdd::fire(SceneObject*) {
    graphicsModule().ambientTarget = {arg, arg, arg};
    return true;
}

TipMessageAdd::TipMessageAdd(ScriptWords& words)
    : OneArgCall(AdditionType::tipMessage, keyword, words) {}
TipMessageAdd::TipMessageAdd(TextReader& stream) : OneArgCall(AdditionType::tipMessage, stream) {}

bool TipMessageAdd::fire(SceneObject*) {
    const std::string line = text(static_cast<int>(arg));
    const Colour4& fade = graphicsModule().screenFadeTarget;
    const bool white = std::all_of(fade.begin(), fade.end(), [](float c) { return c == 1.0F; });
    if (!line.empty() && line != " " && !white) {
        soundManager().playFlat("minibell.wav", bellVolume);
    }
    inputModule().showTip(line, 0.0F, white ? whiteTipShift : 0.0F, white, white);
    return true;
}

static void hurtTouching(const SceneObject* owner, int damage, bool onlyMonsters) {
    for (const btPersistentManifold* manifold : manifoldsOf(owner)) {
        const Contact contact = contactOf(owner, *manifold);
        if (!onlyMonsters ||
            (contact.other != nullptr && contact.other->type == sceneObjectType::evilPlayer)) {
            contact.hurtOther(damage);
        }
    }
}

DamageCallAdd::DamageCallAdd(ScriptWords& words)
    : OneArgCall(AdditionType::damageCall, keyword, words) {}
DamageCallAdd::DamageCallAdd(TextReader& stream) : OneArgCall(AdditionType::damageCall, stream) {}

bool DamageCallAdd::fire(SceneObject* owner) {
    hurtTouching(owner, arg, false);
    return true;
}

EvilDamageCallAdd::EvilDamageCallAdd(ScriptWords& words)
    : OneArgCall(AdditionType::evilDamageCall, keyword, words) {}
EvilDamageCallAdd::EvilDamageCallAdd(TextReader& stream)
    : OneArgCall(AdditionType::evilDamageCall, stream) {}

bool EvilDamageCallAdd::fire(SceneObject* owner) {
    hurtTouching(owner, arg, true);
    return true;
}
