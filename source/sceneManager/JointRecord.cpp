#include "JointRecord.h"

#include "SceneObject.h"
#include "StoredObjects.h"
#include "TextStream.h"
#include "physicsModule/PhysicsObject.h"
#include "physicsModule/myGeneric6DofSpringConstraint.h"

#include <BulletDynamics/ConstraintSolver/btHingeConstraint.h>
#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <array>
#include <memory>

namespace {

constexpr int noObject = -1; // the world in place of a body

// The axes of a spring joint that lie in the plane, with the stiffness that holds each.
struct SpringAxis {
    int axis; // 0 and 1 slide along x and y, 5 turns about z
    float stiffness;
};
constexpr std::array<SpringAxis, 3> springAxes{{{0, 39.478F}, {1, 39.478F}, {5, 80000.0F}}};
constexpr float springDamping = 0.5F;
constexpr float stopSoftness = -0.001F; // slightly below zero keeps a pushed stop from giving way

const btVector3 planeNormal{0.0F, 0.0F, 1.0F};

btVector3 readPoint(TextReader& stream) {
    const auto x = stream.read<float>();
    const auto y = stream.read<float>();
    return {x, y, 0.0F};
}

void writePoint(TextWriter& stream, const btVector3& point) {
    stream << point.x() << point.y();
}

/// Reads the index of a joint's body.
class BodyReader {
public:
    BodyReader(TextReader& reader, const std::vector<SceneObject*>& listed)
        : stream(reader),
          objects(listed) {}

    /// Null for the world, where a joint may be fixed to that.
    btRigidBody* readBodyOrWorld() {
        stream.setRecord("joint body index");
        const int index = stream.read<int>();
        if (index == noObject) {
            return nullptr;
        }
        if (index < 0 || static_cast<std::size_t>(index) >= objects.size()) {
            stream.fail();
        }
        const PhysicsObject* physics = objects[static_cast<std::size_t>(index)]->physicsObject;
        if (physics == nullptr) {
            stream.fail();
        }
        stream.setRecord("joint");
        return physics->body.get();
    }

    btRigidBody& readBody() {
        btRigidBody* body = readBodyOrWorld();
        if (body == nullptr) {
            stream.fail();
        }
        return *body;
    }

    /// The second body of a joint: a body cannot be joined to itself, nor the world to the world.
    btRigidBody* readOther(const btRigidBody* first) {
        btRigidBody* body = readBodyOrWorld();
        if (body == first) {
            stream.setRecord("joint body index");
            stream.fail();
        }
        return body;
    }

private:
    TextReader& stream;
    const std::vector<SceneObject*>& objects;
};

struct Motor {
    bool on = false;
    float velocity = 0.0F;
    float strength = 0.0F; // impulse in a hinge, force in a spring joint
};

Motor readMotor(TextReader& stream) {
    Motor motor;
    motor.on = stream.read<int>() != 0;
    if (motor.on) {
        stream >> motor.velocity >> motor.strength;
    }
    return motor;
}

btTypedConstraint* readHinge(TextReader& stream, BodyReader& bodies) {
    btRigidBody& bodyA = bodies.readBody();
    const btVector3 pivotA = readPoint(stream);
    const auto lower = stream.read<float>();
    const auto upper = stream.read<float>();
    const Motor motor = readMotor(stream);
    btRigidBody* bodyB = bodies.readOther(&bodyA);

    std::unique_ptr<btHingeConstraint> hinge;
    if (bodyB == nullptr) {
        hinge = std::make_unique<btHingeConstraint>(bodyA, pivotA, planeNormal, true);
    } else {
        const btVector3 pivotB = readPoint(stream);
        hinge = std::make_unique<btHingeConstraint>(bodyA, *bodyB, pivotA, pivotB, planeNormal,
                                                    planeNormal, true);
    }
    hinge->setLimit(lower, upper, 0.9F, 0.3F, 1.0F);
    if (motor.on) {
        hinge->enableAngularMotor(true, motor.velocity, motor.strength);
    }
    return hinge.release();
}

void writeHinge(TextWriter& stream, btHingeConstraint& hinge, const StoredObjects& objects) {
    stream << objects.indexOf(hinge.getRigidBodyA());
    writePoint(stream, hinge.getAFrame().getOrigin());
    stream << hinge.getLowerLimit() << hinge.getUpperLimit() << hinge.getEnableAngularMotor();
    if (hinge.getEnableAngularMotor()) {
        stream << hinge.getMotorTargetVelocity() << hinge.getMaxMotorImpulse();
    }
    const int indexB = objects.indexOf(hinge.getRigidBodyB());
    stream << indexB;
    if (indexB != noObject) {
        writePoint(stream, hinge.getBFrame().getOrigin());
    }
}

struct LinearMotor {
    bool on = false;
    btVector3 velocity{0.0F, 0.0F, 0.0F};
    btVector3 force{0.0F, 0.0F, 0.0F};
};

/// All of a spring joint's record but the equilibrium points.
struct SpringRecord {
    btRigidBody* bodyA = nullptr; // null for the world
    btRigidBody* bodyB = nullptr;
    btVector3 pivotA, pivotB;
    float angularLower = 0.0F;
    float angularUpper = 0.0F;
    Motor angularMotor;
    btVector3 linearLower, linearUpper;
    LinearMotor linearMotor;
    bool spring = false;
};

SpringRecord readSpringRecord(TextReader& stream, BodyReader& bodies) {
    SpringRecord read;
    read.bodyA = bodies.readBodyOrWorld();
    read.pivotA = readPoint(stream);
    stream >> read.angularLower >> read.angularUpper;
    read.angularMotor = readMotor(stream);
    read.bodyB = bodies.readOther(read.bodyA);
    read.pivotB = readPoint(stream);
    read.linearLower = readPoint(stream);
    read.linearUpper = readPoint(stream);
    read.linearMotor.on = stream.read<int>() != 0;
    if (read.linearMotor.on) {
        read.linearMotor.velocity = readPoint(stream);
        read.linearMotor.force = readPoint(stream);
    }
    read.spring = stream.read<int>() != 0;
    return read;
}

btTransform frameAt(const btVector3& pivot) {
    return btTransform(btMatrix3x3::getIdentity(), pivot);
}

btRigidBody& orFixedBody(btRigidBody* body) {
    return body != nullptr ? *body : btTypedConstraint::getFixedBody();
}

void applyMotors(btGeneric6DofSpringConstraint& joint, const SpringRecord& read) {
    if (read.angularMotor.on) {
        btRotationalLimitMotor& motor = *joint.getRotationalLimitMotor(2);
        motor.m_enableMotor = true;
        motor.m_targetVelocity = read.angularMotor.velocity;
        motor.m_maxMotorForce = read.angularMotor.strength;
    }
    if (read.linearMotor.on) {
        btTranslationalLimitMotor& motor = *joint.getTranslationalLimitMotor();
        motor.m_enableMotor[0] = true;
        motor.m_enableMotor[1] = true;
        motor.m_targetVelocity = read.linearMotor.velocity;
        motor.m_maxMotorForce = read.linearMotor.force;
    }
}

void readEquilibria(TextReader& stream, btGeneric6DofSpringConstraint& joint) {
    for (const auto& [axis, stiffness] : springAxes) {
        joint.enableSpring(axis, true);
        joint.setStiffness(axis, stiffness);
        joint.setDamping(axis, springDamping);
        joint.setEquilibriumPoint(axis, stream.read<float>());
    }
}

btTypedConstraint* readSpring(TextReader& stream, BodyReader& bodies) {
    const SpringRecord read = readSpringRecord(stream, bodies);
    auto joint = std::make_unique<myGeneric6DofSpringConstraint>(
        orFixedBody(read.bodyA), orFixedBody(read.bodyB), frameAt(read.pivotA),
        frameAt(read.pivotB));
    joint->setAngularLowerLimit({0.0F, 0.0F, read.angularLower});
    joint->setAngularUpperLimit({0.0F, 0.0F, read.angularUpper});
    joint->setLinearLowerLimit(read.linearLower);
    joint->setLinearUpperLimit(read.linearUpper);
    applyMotors(*joint, read);
    if (read.spring) {
        readEquilibria(stream, *joint);
    }
    for (const int axis : {1, 0, 5}) {
        joint->setParam(BT_CONSTRAINT_STOP_CFM, stopSoftness, axis);
    }
    return joint.release();
}

void writeMotors(TextWriter& stream, const btTranslationalLimitMotor& motor) {
    stream << motor.m_enableMotor[0];
    if (motor.m_enableMotor[0]) {
        writePoint(stream, motor.m_targetVelocity);
        writePoint(stream, motor.m_maxMotorForce);
    }
}

void writeSpring(TextWriter& stream, btGeneric6DofSpringConstraint& joint,
                 const StoredObjects& objects) {
    const btRigidBody& bodyA = joint.getRigidBodyA();
    stream << (bodyA.getUserPointer() == nullptr ? noObject : objects.indexOf(bodyA));
    writePoint(stream, joint.getFrameOffsetA().getOrigin());
    const btRotationalLimitMotor& turning = *joint.getRotationalLimitMotor(2);
    stream << turning.m_loLimit << turning.m_hiLimit << turning.m_enableMotor;
    if (turning.m_enableMotor) {
        stream << turning.m_targetVelocity << turning.m_maxMotorForce;
    }
    stream << objects.indexOf(joint.getRigidBodyB());
    writePoint(stream, joint.getFrameOffsetB().getOrigin());
    const btTranslationalLimitMotor& sliding = *joint.getTranslationalLimitMotor();
    writePoint(stream, sliding.m_lowerLimit);
    writePoint(stream, sliding.m_upperLimit);
    writeMotors(stream, sliding);
    stream << joint.isSpringEnabled(0);
    if (joint.isSpringEnabled(0)) {
        for (const auto& [axis, stiffness] : springAxes) {
            stream << joint.getEquilibriumPoint(axis);
        }
    }
}

} // namespace

btTypedConstraint* readJoint(TextReader& stream, const std::vector<SceneObject*>& objects) {
    stream.setRecord("joint");
    BodyReader bodies(stream, objects);
    switch (stream.read<int>()) {
    case HINGE_CONSTRAINT_TYPE:
        return readHinge(stream, bodies);
    case D6_SPRING_CONSTRAINT_TYPE:
        return readSpring(stream, bodies);
    default:
        return nullptr;
    }
}

void writeJoint(TextWriter& stream, btTypedConstraint& joint, const StoredObjects& objects) {
    const int type = joint.getConstraintType();
    stream << type;
    if (type == HINGE_CONSTRAINT_TYPE) {
        writeHinge(stream, static_cast<btHingeConstraint&>(joint), objects);
    } else if (type == D6_SPRING_CONSTRAINT_TYPE) {
        writeSpring(stream, static_cast<btGeneric6DofSpringConstraint&>(joint), objects);
    }
}
