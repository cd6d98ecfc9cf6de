#include "support/EngineFixture.h"

#include "TextStream.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/TexcoordChanger.h"
#include "graphicsModule/TransformGraphicsObject.h"
#include "physicsModule/PhysicsModule.h"

#include <algorithm>
#include <array>

namespace {

class TexcoordChangerTest : public EngineFixture {
protected:
    static constexpr SpriteSheet sheet{
        .rows = 2, .stepU = 0.25F, .stepV = 0.5F, .columns = 3, .delay = 4};

    float u() const { return object.getData().texcoords[2]; }
    float v() const { return object.getData().texcoords[3]; }

    TransformGraphicsObject object{0.0F, 0.0F,
                                   makeBoxData(1.0F, 1.0F, -1, 0.0F, 1.0F, 1, 1, 1, 1, 1)};
};

TEST_F(TexcoordChangerTest, ARowEndsAfterItsColumnsAndTheSheetAfterItsRows) {
    TexcoordChanger changer(sheet);
    struct Place {
        float u, v;
    };
    // The seventh change passes the sheet's six frames: back by two steps of u, up by three of v.
    constexpr std::array<Place, 8> places{{{0.25F, 0.0F},
                                           {0.5F, 0.0F},
                                           {0.75F, -0.5F},
                                           {1.0F, -0.5F},
                                           {1.25F, -0.5F},
                                           {1.5F, -1.0F},
                                           {1.25F, 0.5F},
                                           {1.5F, 0.5F}}};
    for (const Place& place : places) {
        physicsModule().stepCount += 4;
        changer.apply(object);
        EXPECT_EQ(u(), place.u);
        EXPECT_EQ(v(), place.v);
    }
    TextWriter record;
    changer.write(record);
    EXPECT_EQ(record.text(), "0 2 0.25 0.5 0 3 4 3 ");
}

TEST_F(TexcoordChangerTest, AOneShotSheetTakesItsObjectAlongAtTheEndOfTheFrame) {
    GraphicsObjectData data = makeBoxData(1.0F, 1.0F, -1, 0.0F, 1.0F, 1, 1, 1, 1, 1);
    data.modifiers = {
        new TexcoordChanger({.rows = 1, .stepU = 0.5F, .oneShot = true, .columns = 2, .delay = 0})};
    auto* flame = new TransformGraphicsObject(0.0F, 0.0F, data);
    graphicsModule().addObject(flame);
    const auto isThere = [flame] {
        const std::vector<GraphicsObject*>& objects = graphicsModule().getObjects();
        return std::find(objects.begin(), objects.end(), flame) != objects.end();
    };
    graphicsModule().update();
    graphicsModule().update();
    EXPECT_TRUE(isThere());
    graphicsModule().update();
    EXPECT_FALSE(isThere());
}

} // namespace
