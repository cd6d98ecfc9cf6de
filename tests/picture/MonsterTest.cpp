#include "PictureFixture.h"

#include "graphicsModule/Camera.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/LightReaderAdd.h"
#include "graphicsModule/TransformGraphicsObject.h"
#include "sceneManager/EvilPlayer.h"
#include "sceneManager/SceneManager.h"

namespace {

/// A monster before a white wall, seen from near.
class MonsterTest : public PictureFixture {
protected:
    static constexpr float zoom = 8.0F;

    void SetUp() override {
        PictureFixture::SetUp();
        addSquare(0.0F, 0.0F, 3000.0F, -1.5F, 1.0F, 1.0F, 1.0F);
        graphicsModule().camera->setView(0.0F, 0.0F, zoom);
        monster = new EvilPlayer;
        sceneManager().addSceneObject(monster);
    }

    static void setAmbient(float level) {
        graphicsModule().ambient = graphicsModule().ambientTarget = {level, level, level};
    }
    /// Compares at a place on the monster, in world units.
    static void expectAt(float x, float y, float r, float g, float b) {
        expectColour(centreX + zoom * x, centreY + zoom * y, r, g, b);
    }

    EvilPlayer* monster = nullptr;
};

} // namespace

TEST_F(MonsterTest, IsBlacknessWithHornsBeforeWhatIsLit) {
    setAmbient(0.5F);
    draw();
    for (const float side : {-1.0F, 1.0F}) {
        expectAt(side * 6.0F, 13.0F, 0.0F, 0.0F, 0.0F); // a horn
        expectAt(side * 9.0F, 0.0F, 0.0F, 0.0F, 0.0F);
        expectAt(side * 5.0F, 5.0F, 0.4F, 0.0F, 0.0F); // an eye
        expectAt(side * 12.0F, 13.0F, 0.5F, 0.5F, 0.5F);
    }
    expectAt(0.0F, 14.0F, 0.5F, 0.5F, 0.5F); // between the horns
}

TEST_F(MonsterTest, InTheDarkItsOpenEyesAreAllThatIsSeenAndDoNotKillIt) {
    setAmbient(0.0F);
    draw();
    expectAt(5.0F, 5.0F, 0.0F, 0.0F, 0.0F);
    monster->lightEyes();
    for (int i = 0; i < 3; ++i) {
        monster->update();
        draw();
    }
    for (const float side : {-1.0F, 1.0F}) {
        expectAt(side * 5.0F, 5.0F, 0.8F, 0.0F, 0.0F);
        expectAt(side * 5.0F, 0.0F, 0.0F, 0.0F, 0.0F);
        expectAt(side * 5.0F, 12.0F, 0.0F, 0.0F, 0.0F);
        expectAt(side * 15.0F, 5.0F, 0.0F, 0.0F, 0.0F);
    }
    const auto& reader =
        static_cast<LightReaderAdd&>(*monster->findAddition(AdditionType::lightReader));
    EXPECT_TRUE(reader.onScreen);
    EXPECT_EQ(reader.red, 0);
    EXPECT_EQ(monster->statistics.health, 100);
    monster->dimEyes();
    draw();
    expectAt(5.0F, 5.0F, 0.0F, 0.0F, 0.0F);
}
