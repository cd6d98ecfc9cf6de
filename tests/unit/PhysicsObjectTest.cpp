#include "Failure.h"
#include "PhysicsBodies.h"
#include "ProcessValues.h"
#include "TextStream.h"
#include "physicsModule/PhysicsModule.h"
#include "support/EngineFixture.h"

#include <vector>

namespace {

using Owned = std::unique_ptr<PhysicsObject>;

std::string textOf(const PhysicsObject& object) {
    TextWriter writer;
    object.write(writer);
    return writer.takeText();
}

Owned readFrom(const std::string& text) {
    TextReader reader(text);
    return Owned(readPhysicsObject(reader));
}

class PhysicsObjectTest : public EngineFixture {};

} // namespace

TEST_F(PhysicsObjectTest, DamagedRecordsAreRefused) {
    const std::string tail = " 0 0 1 0 0 1 0 0 1 1 0.7 ";
    for (const std::string& damaged : std::vector<std::string>{
             "5 0 0 1 10" + tail,     // unknown shape
             "18 0 0 1 10" + tail,    // never stored
             "8 0 0 -1 10" + tail,    // negative mass
             "8 0 0 1e-40 10" + tail, // mass without a finite inverse
             "8 0 0 1 0" + tail,      // no size
             "8 0 0 1 -3" + tail,
             "8 0 0 1 2e6" + tail, //
             "17 0 0 1 10 0" + tail,
             "17 0 0 1 nan 1" + tail, //
             "4 0 0 1 0" + tail,      // no points
             "4 0 0 1 -1" + tail,
             "4 0 0 1 999999999 1 2" + tail,
             "4 0 0 1 2 1 2 3 3e6" + tail,
             "31 0 0 1 0" + tail,                                  // no children
             "31 0 0 1 2 0 0 1 0 0 1 8 5" + tail,                  // a child is missing
             "31 0 0 1 1 0 0 1 0 0 1 31 1 0 0 1 0 0 1 8 5" + tail, // nested
             "31 0 0 1 2 0 0 1 0 0 1 8 5 0 0 1 0 0 1 18 5" + tail,
             "8 0 0 1 5 inf 0 1 0 0 1 0 0 1 1 0.7 ",
             "8 0 0 1 5 0 0 1 0 0 1 0 0 1 9 0.7 ", // unknown kind
             "8 0 0 1 5 0 0 1 0 0 1 0 0 ",         // cut off
         }) {
        SCOPED_TRACE(damaged);
        EXPECT_TRUE(isCorruption(failureOf([&damaged] { readFrom(damaged); })));
    }
}

TEST_F(PhysicsObjectTest, AThingThatHasFallenForAnHourCanBeSavedAndRead) {
    const Owned crate(createBox(0, 0, 10, 10, 0, 0.5F, 1));
    crate->body->getWorldTransform().setOrigin(btVector3(5, -4.2e9F, 0));
    crate->body->setLinearVelocity(btVector3(0, -2.3e6F, 0));
    EXPECT_EQ(textOf(*readFrom(textOf(*crate))), textOf(*crate));
}

TEST_F(PhysicsObjectTest, MoveTowardsArrivesOnTheCallThatFindsItNearerThanAStep) {
    SceneObject* lift = addBox(0, 0, 10, 10, 0);
    PhysicsObject& physics = *lift->physicsObject;
    EXPECT_FALSE(physics.moveTowards(6, 8, 4));
    EXPECT_NEAR(originOf(*lift).x(), 2.4F, 1e-5);
    EXPECT_NEAR(originOf(*lift).y(), 3.2F, 1e-5);
    EXPECT_FALSE(physics.moveTowards(6, 8, 6)); // exactly the rest of the way
    EXPECT_NEAR(originOf(*lift).x(), 6, 1e-5);
    EXPECT_TRUE(physics.moveTowards(6, 8, 6));
    EXPECT_FALSE(physics.moveTowards(6, 8, 0)); // no way and no step
    EXPECT_EQ(originOf(*lift), btVector3(6, 8, 0));
    EXPECT_EQ(physicsModule().queryBox(16, 18, 1, 1).size(), 1U); // its box came along
}

TEST_F(PhysicsObjectTest, TheDrawnTransformLiesWhereTheRenderModeSays) {
    const Owned object(createBox(10, 0, 1, 1, 0, 0.5F, 1));
    object->previousTransform.setOrigin(btVector3(4, 0, 0));
    object->body->setLinearVelocity(btVector3(60, 0, 0));
    const auto drawnX = [&object](int mode, float fraction) {
        renderMode = mode;
        physicsFraction = fraction;
        object->updateRenderTransform();
        return object->getRenderTransform().getOrigin().x();
    };
    physicsModule().accumulator = 0.0;
    EXPECT_EQ(drawnX(0, 0.5F), 10);
    physicsModule().accumulator = 0.5;
    EXPECT_EQ(drawnX(0, 0.5F), 40);
    EXPECT_EQ(drawnX(1, 0.0F), 4);
    EXPECT_EQ(drawnX(1, 0.5F), 7);
    EXPECT_EQ(drawnX(1, 1.0F), 10);
    EXPECT_EQ(drawnX(2, 0.5F), 13);
    EXPECT_EQ(drawnX(3, 0.5F), 10);
}

TEST_F(PhysicsObjectTest, HalfATurnInOneStepIsStillDrawnAsATurn) {
    const Owned object(createBox(0, 0, 1, 1, 0, 0.5F, 1));
    object->body->getWorldTransform().setRotation(btQuaternion(btVector3(0, 0, 1), SIMD_PI));
    renderMode = 1;
    physicsFraction = 0.5F;
    object->updateRenderTransform();
    for (int row = 0; row < 3; ++row) {
        EXPECT_NEAR(object->getRenderTransform().getBasis()[row].length(), 1, 1e-4);
    }
}
