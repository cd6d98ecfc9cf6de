#include "physicsModule/CollisionRules.h"
#include "PhysicsBodies.h"
#include "support/EngineFixture.h"

#include <BulletCollision/CollisionShapes/btBox2dShape.h>

namespace {

class CollisionRulesTest : public EngineFixture {
protected:
    struct Side {
        int kind;
        float mass;
    };

    /// Whether two bodies in one place are in contact after a step.
    bool meet(Side a, Side b) {
        SceneObject* first = place(a);
        SceneObject* second = place(b);
        step();
        const bool touching = !first->physicsObject->contacts.empty();
        EXPECT_EQ(touching, !second->physicsObject->contacts.empty());
        sceneManager().clearScene();
        return touching;
    }

private:
    static SceneObject* place(Side side) {
        PhysicsObject* physics = createBox(0, 0, 10, 10, 0, 0.5F, side.mass);
        physics->kind = side.kind;
        physics->wantsContacts = true;
        return addToScene(physics);
    }
};

} // namespace

TEST_F(CollisionRulesTest, KindsMeetWhomTheyShouldInEitherOrder) {
    constexpr float loose = 1.0F;
    constexpr float fixed = 0.0F;
    const struct {
        Side a;
        Side b;
        bool meets;
    } rows[] = {
        {{0, loose}, {1, fixed}, false}, {{0, loose}, {0, loose}, false},
        {{0, loose}, {4, loose}, false}, {{1, loose}, {1, loose}, true},
        {{1, loose}, {1, fixed}, true},  {{1, fixed}, {1, fixed}, false},
        {{1, loose}, {2, loose}, false}, {{1, fixed}, {2, loose}, true},
        {{1, loose}, {3, loose}, true},  {{2, loose}, {2, loose}, false},
        {{2, loose}, {2, fixed}, false}, {{2, loose}, {3, loose}, true},
        {{2, loose}, {3, fixed}, true},  {{2, loose}, {4, loose}, false},
        {{3, loose}, {3, loose}, true},  {{4, loose}, {1, loose}, true},
        {{4, fixed}, {1, loose}, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.a.kind << " mass " << row.a.mass << " and "
                                        << row.b.kind << " mass " << row.b.mass);
        EXPECT_EQ(meet(row.a, row.b), row.meets);
        EXPECT_EQ(meet(row.b, row.a), row.meets);
    }
}
