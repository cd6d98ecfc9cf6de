#include "BareWorld.h"
#include "Ratio.h"

#include "graphicsModule/TextureStore.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/SceneObjectDescription.h"

#include <memory>
#include <optional>
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

/// The bodies in our scene, and the same in a bare world.
class Pile {
public:
    explicit Pile(int count) {
        fillScene(count);
        placeRoom([this](float x, float y, float w, float h) {
            add(createBox(x, y, w, h, 0.1F, 0.5F, 0.0F));
        });
        placeBodies(count, [this](float x, float y, bool disc) {
            add(disc ? createSphere(x, y, 18.0F, 0.1F, 0.5F, 1.0F)
                     : createBox(x, y, 18.0F, 18.0F, 0.1F, 0.5F, 1.0F));
        });
    }
    ~Pile() { sceneManager().clearScene(); }
    Pile(const Pile&) = delete;
    Pile& operator=(const Pile&) = delete;

    void stepBare() { bare.step(); }
    /// Both come to the same rest, with contacts of their own.
    void settle() {
        stepBoth(200);
        bare.follow(0.0F);
        stepBoth(40);
    }

private:
    void stepBoth(int steps) {
        for (int i = 0; i < steps; ++i) {
            physicsModule().update();
            stepBare();
        }
    }
    void add(PhysicsObject* object) {
        bare.add(*bodies.emplace_back(object), sceneManager().objects[bodies.size() - 1]);
    }

    std::vector<std::unique_ptr<PhysicsObject>> bodies;
    BareWorld bare;
};

void wholeStep(benchmark::State& state) {
    std::optional<Pile> pile;
    const auto prepare = [&](int turn) {
        if (turn == 0) { // where a pile comes to lie in memory makes some percent: each has its own
            pile.reset();
            pile.emplace(static_cast<int>(state.range(0)));
            pile->settle();
        }
    };
    compareInTurn(
        state, 120, 1.10, prepare, [] { physicsModule().update(); }, [&] { pile->stepBare(); });
}

} // namespace

BENCHMARK(wholeStep)->Arg(300)->Arg(1000)->Iterations(1);
