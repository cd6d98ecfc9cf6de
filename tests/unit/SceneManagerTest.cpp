#include "support/EngineFixture.h"

#include "Files.h"
#include "PhysicsBodies.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/LockedCamera.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/MapFile.h"
#include "sceneManager/So_Addons/HealthAdd.h"

#include <limits>

namespace {

constexpr const char* unknownObject = "niema takiego obiektu SceneObject\n";

using SceneManagerTest = EngineFixture;

} // namespace

TEST_F(SceneManagerTest, AddingTwiceAndRemovingTheUnknownOnlySaySo) {
    SceneObject* box = addBox(0.0F, 0, 5, 5, 0);
    SceneObject other({nullptr, nullptr, sceneObjectType::withoutPhysics});
    testing::internal::CaptureStdout();
    sceneManager().addSceneObject(box);
    sceneManager().removeSceneObject(&other);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              std::string("jest juz taki obiekt SceneObject\n") + unknownObject);
    EXPECT_EQ(sceneManager().objects.size(), 1U);
    EXPECT_EQ(physicsModule().getPhysicsObjects().size(), 1U);
}

TEST_F(SceneManagerTest, AMarkedObjectSurvivesItsStepAndGoesOnce) {
    int deaths = 0;
    SceneObject* box = addBox(0.0F, 0, 5, 5, 0);
    const auto leave = [&] {
        sceneManager().markForRemoval(box);
        sceneManager().markForRemoval(box);
        EXPECT_EQ(deaths, 0);
    };
    box->addAddition(new Probe(leave, &deaths));
    testing::internal::CaptureStdout();
    step(2);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(deaths, 1);
}

TEST_F(SceneManagerTest, AMarkDoesNotPassToAnotherObject) {
    SceneObject* box = addBox(0.0F, 0, 5, 5, 0);
    sceneManager().markForRemoval(box);
    sceneManager().removeSceneObject(box);
    for (int i = 0; i < 20; ++i) { // one of these likely gets the old address
        addBox(20.0F * static_cast<float>(i), 0, 5, 5, 0);
    }
    testing::internal::CaptureStdout();
    sceneManager().flushRemovals();
    EXPECT_EQ(testing::internal::GetCapturedStdout(), unknownObject);
    EXPECT_EQ(sceneManager().objects.size(), 20U);
}

TEST_F(SceneManagerTest, TheViewStaysWhereTheFollowedObjectWent) {
    SceneObject* box = addBox(300.0F, 0, 5, 5, 0);
    SceneObject* other = addBox(0.0F, 0, 5, 5, 0);
    delete graphicsModule().camera;
    auto* camera = new LockedCamera(box);
    graphicsModule().camera = camera;
    sceneManager().removeSceneObject(other);
    EXPECT_EQ(graphicsModule().camera, camera);
    sceneManager().removeSceneObject(box);
    EXPECT_EQ(graphicsModule().camera->owner, nullptr);
    EXPECT_EQ(graphicsModule().camera->getX(), 300.0F);
    EXPECT_EQ(graphicsModule().camera->getZoom(), 1.0F);
}

TEST_F(SceneManagerTest, AStoredSceneIsReadAgainWithoutItsFile) {
    addNamed("door", 7.0F, 0.0F);
    graphicsModule().ambientTarget = {0.25F, 0.5F, 0.75F};
    sceneManager().saveMap("save/a.vkl");
    sceneManager().clearScene();
    EXPECT_THROW(sceneManager().parseStoredScene("save/a.vkl"), std::string);
    EXPECT_TRUE(sceneManager().preloadScene("save/a.vkl"));
    writeFile("damaged", "save/a.vkl");
    EXPECT_TRUE(sceneManager().preloadScene("save/a.vkl")); // what is there stays
    graphicsModule().ambient = {};
    SceneBundle first = sceneManager().parseStoredScene("save/a.vkl");
    const SceneBundle second = sceneManager().parseStoredScene("save/a.vkl");
    EXPECT_EQ(second.objects.size(), 1U);
    EXPECT_EQ(graphicsModule().ambient, (Colour3{0.25F, 0.5F, 0.75F}));
    sceneManager().addScene(std::move(first));
    ASSERT_NE(sceneManager().getSceneObject("door"), nullptr);
    EXPECT_THROW(sceneManager().preloadScene("save/none.vkl"), std::string);
}

TEST_F(SceneManagerTest, AnAdditionAddedDuringTheRoundRunsInIt) {
    int updates = 0;
    int deaths = 0;
    int copies = 2;
    SceneObject* box = addBox(0, 0, 5, 5, 0.0F);
    auto* first = new Probe(
        [&] {
            ++updates;
            if (copies-- > 0) {
                box->addAddition(new Probe([&] { ++updates; }, &deaths));
            }
        },
        &deaths);
    box->addAddition(first);
    box->update();
    EXPECT_EQ(updates, 2);
    box->update();
    EXPECT_EQ(updates, 5);
    box->removeAddition(first);
    EXPECT_EQ(deaths, 1);
    box->clearAdditions();
    EXPECT_EQ(deaths, 3);
    EXPECT_TRUE(box->additions.empty());
}

TEST_F(SceneManagerTest, HurtReachesHitPointsAndNothingElse) {
    SceneObject* box = addBox(0, 0, 5, 5, 0.0F);
    box->hurt(5);
    auto* health = new HealthAdd(3);
    box->addAddition(health);
    EXPECT_FALSE(box->physicsObject->wantsContacts);
    box->hurt(5);
    EXPECT_EQ(health->value, -2);
    box->hurt(std::numeric_limits<int>::max());
    box->hurt(std::numeric_limits<int>::max());
    EXPECT_EQ(health->value, std::numeric_limits<int>::min());
}
