#include "support/EngineFixture.h"

#include "PhysicsBodies.h"
#include "TextStream.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/MultiGraphics.h"
#include "graphicsModule/TransformGraphicsObject.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/MapFile.h"
#include "sceneManager/So_Addons/HealthAdd.h"

namespace {

class ShatterTest : public EngineFixture {
protected:
    static GraphicsObjectData boxData(float halfWidth, float halfHeight) {
        return makeBoxData(halfWidth, halfHeight, -1, 0.0F, 1.0F, 1, 1.0F, 1.0F, 1.0F, 1.0F);
    }

    static GraphicsObject* polygon(PhysicsObject* physics, float x = 0.0F) {
        auto* made = new PhysicsGraphicsObject(boxData(4.0F, 2.0F), physics);
        made->moveBy(x, 0.0F);
        return made;
    }

    static SceneObject* add(PhysicsObject* physics, GraphicsObject* graphics) {
        auto* object = new SceneObject({physics, graphics, sceneObjectType::plain});
        sceneManager().addSceneObject(object);
        return object;
    }

    static SceneObject* addPolygon() {
        PhysicsObject* physics = createBox(0.0F, 0.0F, 10.0F, 10.0F, 0.0F, 0.5F, 0.0F);
        return add(physics, polygon(physics));
    }

    /// The body that a listed graphics object hangs on.
    static btRigidBody& pieceBody(std::size_t index) {
        auto& graphics =
            dynamic_cast<PhysicsGraphicsObject&>(*graphicsModule().getObjects().at(index));
        return *graphics.physicsObject->body;
    }

    void SetUp() override {
        EngineFixture::SetUp();
        drawnBefore = graphicsModule().getObjects().size();
    }

    std::size_t drawnBefore = 0;
};

} // namespace

TEST_F(ShatterTest, AGroupGivesAPieceForEachLeafInItsPlace) {
    PhysicsObject* physics = createBox(100.0F, 50.0F, 10.0F, 10.0F, 0.0F, 0.5F, 1.0F);
    physics->body->getWorldTransform().setBasis(btMatrix3x3(0, -1, 0, 1, 0, 0, 0, 0, 1));
    auto* nested = new MultiGraphics();
    nested->addChild(polygon(physics, 20.0F));
    nested->addChild(polygon(physics));
    nested->addChild(new TransformGraphicsObject(0.0F, 0.0F, boxData(1, 1)));
    auto* group = new MultiGraphics();
    group->addChild(polygon(physics, 10.0F));
    group->addChild(nested);
    group->addChild(new TransformGraphicsObject(0.0F, 0.0F, boxData(1, 1)));
    SceneObject* object = add(physics, group);

    object->shatter();
    EXPECT_EQ(object->graphicsObject, nullptr);
    EXPECT_EQ(sceneManager().debrisCount(), 3U);
    ASSERT_EQ(graphicsModule().getObjects().size(), drawnBefore + 3);
    // The object stood a quarter turn to the left: what lay to its right lies above it now.
    const btTransform& first = pieceBody(drawnBefore).getWorldTransform();
    EXPECT_NEAR(first.getOrigin().x(), 100.0F, 1e-3F);
    EXPECT_NEAR(first.getOrigin().y(), 60.0F, 1e-3F);
    EXPECT_EQ(first.getBasis(), btMatrix3x3::getIdentity());
    EXPECT_NEAR(pieceBody(drawnBefore + 1).getWorldTransform().getOrigin().y(), 70.0F, 1e-3F);

    EXPECT_FALSE(pieceBody(drawnBefore).hasContactResponse());

    EXPECT_TRUE(sceneManager().contains(object));
    sceneManager().flushRemovals();
    EXPECT_FALSE(sceneManager().contains(object));
}

TEST_F(ShatterTest, AnObjectThatBreaksInThisStepIsNotStoredAndItsPiecesSurviveTheScene) {
    SceneObject* object = addPolygon();
    object->shatter();
    object->shatter();
    TextWriter writer;
    writeScene(writer);
    EXPECT_EQ(writer.text().rfind("0 0 ", 0), 0U) << writer.text();
    sceneManager().clearScene();
    EXPECT_EQ(sceneManager().debrisCount(), 1U);
}

TEST_F(ShatterTest, PiecesFadeAfterFourSecondsAndGo) {
    addPolygon()->addAddition(new HealthAdd(0));
    step(1);
    const GraphicsObject* graphics = graphicsModule().getObjects().at(drawnBefore);
    step(240);
    EXPECT_NEAR(alphaOf(*graphics), 1.0F, 0.011F);
    step(50);
    EXPECT_NEAR(alphaOf(*graphics), 0.5F, 0.02F);
    EXPECT_EQ(sceneManager().debrisCount(), 1U);
    step(52);
    EXPECT_EQ(sceneManager().debrisCount(), 0U);
    EXPECT_EQ(graphicsModule().getObjects().size(), drawnBefore);
    EXPECT_TRUE(physicsModule().getPhysicsObjects().empty());
}
