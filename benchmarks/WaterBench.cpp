#include "Ratio.h"

#include "graphicsModule/WaterGraphics.h"
#include "graphicsModule/Yaw.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/WaterAddition.h"

#include <BulletCollision/CollisionShapes/btCollisionShape.h>
#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <cmath>
#include <memory>
#include <vector>

// What water costs a step: its surface, and the bodies that float in it, each against the bare
// arithmetic of the same.

namespace {

constexpr int columns = 400;
constexpr int floaters = 100;
constexpr float halfWidth = 5000.0F;

/// The recurrence of the surface on plain arrays, hit like ours now and then.
class BareSurface {
public:
    void step(float dt) {
        pull(1, (y[2] + y[0]) / 3.0F, dt);
        pull(columns - 2, (y[columns - 3] + y[columns - 1]) / 3.0F, dt);
        float sum = disturbance;
        for (std::size_t i = 2; i + 2 < columns; ++i) {
            pull(i, (y[i + 2] + y[i - 2] + y[i - 1] + y[i + 1] + rest) / 5.0F, dt);
            sum += std::abs(rest - y[i]);
        }
        disturbance = sum / columns;
        if (ticks++ % 30 == 0) {
            speed[static_cast<std::size_t>(ticks * 7 % columns)] += 10.0F;
        }
        y[0] = y[1];
        y[columns - 1] = y[columns - 2];
        benchmark::DoNotOptimize(y.data());
    }

private:
    void pull(std::size_t i, float mean, float dt) {
        speed[i] += mean - y[i];
        speed[i] *= 0.991F;
        y[i] += speed[i] * dt;
    }

    float rest = 100.0F;
    std::vector<float> y = std::vector<float>(columns, rest);
    std::vector<float> speed = std::vector<float>(columns, 0.0F);
    float disturbance = 0.0F;
    int ticks = 0;
};

void waveSurface(benchmark::State& state) {
    WaterGraphics water(0.0F, 0.0F, columns * StaticWaterGraphics::columnWidth, 100.0F, -1, 0.0F,
                        1.0F, 2, 1.0F, 1.0F, 1.0F, 1.0F);
    BareSurface bare;
    const auto dt = static_cast<float>(physicsModule().period);
    compare(
        state, 5000, 1.5, [&water] { water.updateSurface(); }, [&bare, dt] { bare.step(dt); });
}

/// A water with bodies at its surface, none touching another, a step old.
class Pool {
public:
    Pool() {
        PhysicsObject* physics = createBox(0.0F, -100.0F, halfWidth, 100.0F, 0.0F, 0.5F, 0.0F);
        physics->body->setCollisionFlags(physics->body->getCollisionFlags() |
                                         btCollisionObject::CF_NO_CONTACT_RESPONSE);
        auto* graphics = new StaticWaterGraphics(-halfWidth, -100.0F, halfWidth, 100.0F, -1, 0.0F,
                                                 1.0F, 2, 1.0F, 1.0F, 1.0F, 1.0F);
        graphics->setPhysicsObject(physics);
        water = new SceneObject({physics, graphics});
        water->addAddition(new WaterAddition(0.0F));
        sceneManager().addSceneObject(water);
        for (int i = 0; i < floaters; ++i) {
            const float x = (static_cast<float>(i) - floaters / 2.0F) * 90.0F;
            PhysicsObject* floater = createBox(x, 0.0F, 30.0F, 12.0F, 0.0F, 0.5F, 1.0F);
            const GraphicsObjectData look =
                makeBoxData(30.0F, 12.0F, -1, 0.0F, 1.0F, 1, 1.0F, 1.0F, 1.0F, 1.0F);
            sceneManager().addSceneObject(
                new SceneObject({floater, new PhysicsGraphicsObject(look, floater)}));
            bodies.push_back(floater);
        }
        for (int i = 0; i < 3; ++i) {
            physicsModule().update();
        }
    }
    ~Pool() { sceneManager().clearScene(); }
    Pool(const Pool&) = delete;
    Pool& operator=(const Pool&) = delete;

    SceneObject* water = nullptr; // the scene's, as the bodies are
    std::vector<PhysicsObject*> bodies;
};

float areaTurned(const btRigidBody& body, const Yaw& yaw, float cosine, float sine) {
    const float c = yaw.cosine * cosine - yaw.sine * sine;
    const float s = yaw.sine * cosine + yaw.cosine * sine;
    btVector3 low;
    btVector3 high;
    body.getCollisionShape()->getAabb(
        btTransform(btMatrix3x3(c, -s, 0.0F, s, c, 0.0F, 0.0F, 0.0F, 1.0F),
                    body.getWorldTransform().getOrigin()),
        low, high);
    return (high.x() - low.x()) * (high.y() - low.y());
}

void liftBare(const PhysicsObject& floater, float surface, float gravity) {
    btRigidBody& body = *floater.body;
    btVector3 low;
    btVector3 high;
    body.getAabb(low, high);
    const Yaw yaw = yawOf(body.getWorldTransform());
    const float on = areaTurned(body, yaw, 0.5403F, 0.8415F);
    const float back = areaTurned(body, yaw, 0.5403F, -0.8415F);
    const float aside = on > back ? on / back - 1.0F : (1.0F - back / on) * 0.5F;
    const float height = high.y() - low.y();
    const float share = (std::min(high.y(), surface) - low.y()) / height;
    const btVector3 arm((high.x() - low.x()) * aside, height * 0.5F, 0.0F);
    body.applyForce({0.0F, gravity * share * floater.waterFactor / body.getInvMass(), 0.0F},
                    arm * (1.0F - share));
}

void floatingBodies(benchmark::State& state) {
    const Pool pool;
    for (const PhysicsObject* body : pool.bodies) {
        if (static_cast<SceneObject*>(body->body->getUserPointer())->waterCount != 1) {
            state.SkipWithError("a body does not float");
        }
    }
    compare(
        state, 5000, 1.5, [&pool] { pool.water->update(); },
        [&pool] {
            for (const PhysicsObject* body : pool.bodies) {
                liftBare(*body, 0.0F, 640.0F);
            }
        });
}

} // namespace

BENCHMARK(waveSurface)->Iterations(1);
BENCHMARK(floatingBodies)->Iterations(1);
