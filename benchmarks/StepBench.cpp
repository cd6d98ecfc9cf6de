#include "Ratio.h"

#include "graphicsModule/TextureStore.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "physicsModule/btFixedWorld.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/SceneObjectDescription.h"

#include <BulletCollision/CollisionDispatch/btBox2dBox2dCollisionAlgorithm.h>
#include <BulletCollision/CollisionDispatch/btConvex2dConvex2dAlgorithm.h>
#include <BulletCollision/NarrowPhaseCollision/btMinkowskiPenetrationDepthSolver.h>
#include <btBulletDynamicsCommon.h>

#include <memory>
#include <vector>

// One step of the game with plain bodies against the bare step of the same bodies in a world of
// their own, set up the same.

namespace {

constexpr float roomHalfWidth = 900.0F;
constexpr int columns = 40;

/// Calls `make(x, y, isDisc)` for each loose body of the scene, in rows over the floor.
template <class Make>
void placeBodies(int count, Make make) {
    for (int i = 0; i < count; ++i) {
        const float x = (static_cast<float>(i % columns) - columns / 2.0F) * 44.0F;
        make(x, 40.0F + static_cast<float>(i / columns) * 44.0F, i % 3 == 0);
    }
}

/// Calls `make(x, y, halfWidth, halfHeight)` for floor and walls.
template <class Make>
void placeRoom(Make make) {
    make(0.0F, -40.0F, roomHalfWidth + 80.0F, 40.0F);
    make(-roomHalfWidth - 40.0F, 1000.0F, 40.0F, 1100.0F);
    make(roomHalfWidth + 40.0F, 1000.0F, 40.0F, 1100.0F);
}

/// The bodies without anything of ours around them.
class BareWorld {
public:
    explicit BareWorld(int count)
        : dispatcher(&configuration),
          world(&dispatcher, &broadphase, &solver, &configuration) {
        convexFunction =
            std::make_unique<btConvex2dConvex2dAlgorithm::CreateFunc>(&simplex, &penetration);
        const int box = BOX_2D_SHAPE_PROXYTYPE;
        const int convex = CONVEX_2D_SHAPE_PROXYTYPE;
        dispatcher.registerCollisionCreateFunc(convex, convex, convexFunction.get());
        dispatcher.registerCollisionCreateFunc(box, convex, convexFunction.get());
        dispatcher.registerCollisionCreateFunc(convex, box, convexFunction.get());
        dispatcher.registerCollisionCreateFunc(box, box, &boxFunction);
        world.setGravity(physicsModule().world->getGravity());
        world.getSolverInfo() = physicsModule().world->getSolverInfo();
        placeRoom([this](float x, float y, float w, float h) {
            add(createBox(x, y, w, h, 0.1F, 0.5F, 0.0F), 2, 0xFFF5);
        });
        placeBodies(count, [this](float x, float y, bool disc) {
            add(disc ? createSphere(x, y, 18.0F, 0.1F, 0.5F, 1.0F)
                     : createBox(x, y, 18.0F, 18.0F, 0.1F, 0.5F, 1.0F),
                1, 0xFFF7);
        });
    }
    ~BareWorld() {
        for (const auto& object : bodies) {
            world.removeRigidBody(object->body.get());
        }
    }
    BareWorld(const BareWorld&) = delete;
    BareWorld& operator=(const BareWorld&) = delete;

    void step() { world.stepSimulation(1.0F / 60.0F, 0, 1.0F / 60.0F); }

private:
    void add(PhysicsObject* object, int group, int mask) {
        bodies.emplace_back(object);
        world.addRigidBody(object->body.get(), group, mask);
    }

    static btDefaultCollisionConstructionInfo makeInfo() {
        btDefaultCollisionConstructionInfo info;
        info.m_defaultMaxPersistentManifoldPoolSize = 32768;
        return info;
    }

    btDefaultCollisionConfiguration configuration{makeInfo()};
    btCollisionDispatcher dispatcher;
    btDbvtBroadphase broadphase;
    btSequentialImpulseConstraintSolver solver;
    btVoronoiSimplexSolver simplex;
    btMinkowskiPenetrationDepthSolver penetration;
    std::unique_ptr<btConvex2dConvex2dAlgorithm::CreateFunc> convexFunction;
    btBox2dBox2dCollisionAlgorithm::CreateFunc boxFunction;
    btFixedWorld world;
    std::vector<std::unique_ptr<PhysicsObject>> bodies;
};

void fillScene(int count) {
    SceneObjectDescription wall{};
    wall.physical = true;
    wall.friction = 0.5F;
    wall.restitution = 0.1F;
    wall.texture = textureStore().find("stone.tga");
    SceneObjectDescription loose = wall;
    loose.mass = 1.0F;
    placeRoom([&wall](float x, float y, float w, float h) {
        sceneManager().addSceneObject(new SceneObject(makeBoxParts(wall, x, y, w, h)));
    });
    placeBodies(count, [&loose](float x, float y, bool disc) {
        sceneManager().addSceneObject(new SceneObject(
            disc ? makeSphereParts(loose, x, y, 18.0F) : makeBoxParts(loose, x, y, 18.0F, 18.0F)));
    });
}

void wholeStep(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    fillScene(count);
    BareWorld bare(count);
    compare(
        state, 120, 1.10, [] { physicsModule().update(); }, [&bare] { bare.step(); });
    sceneManager().clearScene();
}

} // namespace

BENCHMARK(wholeStep)->Arg(300)->Arg(1000)->Iterations(1);
