#include "inputModule/InputFrame.h"
#include "graphicsModule/InterfaceGraphicsObject.h"
#include "inputModule/InputModule.h"
#include "support/EngineFixture.h"

#include <vector>

namespace {

class InputFrameTest : public EngineFixture {
protected:
    static InputObject* makeBrick(float width, float height) {
        return new InputObject(new InterfaceGraphicsObject(0.0F, 0.0F, width, height, -1));
    }

    static std::vector<std::pair<float, float>> placesOf(const InputFrame& frame) {
        std::vector<std::pair<float, float>> places;
        for (const InputObject* child : frame.getChildren()) {
            places.emplace_back(child->graphics->getLeft(), child->graphics->getBottom());
        }
        return places;
    }

    static InputFrame* onlyFrame() {
        EXPECT_EQ(inputModule().getFrames().size(), 1U);
        return inputModule().getFrames().at(0);
    }
};

} // namespace

TEST_F(InputFrameTest, RowsWrapAndTheFirstComesOutOnTop) {
    const std::unique_ptr<InputFrame> frame(layoutRows(
        {makeBrick(60, 10), makeBrick(40, 10), makeBrick(50, 20), makeBrick(51, 20)}, 100, 5));
    const std::vector<std::pair<float, float>> expected{{0, 40}, {60, 40}, {0, 20}, {0, 0}};
    EXPECT_EQ(placesOf(*frame), expected);
    EXPECT_EQ(frame->graphics->getBottom(), -5);
    EXPECT_EQ(frame->graphics->getTop(), 50);
    EXPECT_EQ(frame->graphics->getWidth(), 100);
}

TEST_F(InputFrameTest, ATipIsCentredAtTheTopWhateverItsLength) {
    std::string longWords = "word";
    for (int i = 0; i < 60; ++i) {
        longWords += " word";
    }
    for (const std::string& words : {std::string("x"), longWords}) {
        inputModule().showTip(words, 10, -20, false, false);
        const InputFrame* tip = onlyFrame();
        const GraphicsObject& panel = *tip->graphics;
        EXPECT_NEAR((panel.getLeft() + panel.getRight()) / 2, 650, 1e-2);
        EXPECT_NEAR(panel.getTop(), 780, 1e-2);
        EXPECT_LE(panel.getWidth(), 800);
        for (const InputObject* word : tip->getChildren()) {
            EXPECT_GE(word->graphics->getBottom(), panel.getBottom() - 1e-2);
            EXPECT_LE(word->graphics->getTop(), panel.getTop() + 1e-2);
        }
    }
}

TEST_F(InputFrameTest, ATipTakesThePlaceOfOneThatIsThereAndABlankOneOnlyRemovesIt) {
    for (const std::string blank : {"", " ", "    "}) {
        inputModule().showTip("x", 0, 0, false, false);
        inputModule().showTip("y", 0, 0, false, false);
        inputModule().removeFrame(onlyFrame()); // others may close it
        testing::internal::CaptureStdout();
        inputModule().showTip("z", 0, 0, false, false);
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
        onlyFrame();
        inputModule().showTip(blank, 0, 0, false, false);
        EXPECT_TRUE(inputModule().getFrames().empty());
    }
}
