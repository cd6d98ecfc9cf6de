#include "support/EngineFixture.h"

#include "graphicsModule/GraphicsLetter.h"
#include "graphicsModule/Text.h"

#include <vector>

namespace {

using TextLayout = EngineFixture;

std::vector<float> leftsOf(const Text& text) {
    std::vector<float> lefts;
    for (const GraphicsObject* letter : text.getChildren()) {
        lefts.push_back(letter->getLeft());
    }
    return lefts;
}

const std::vector<float>& cellOf(const Text& text, std::size_t index) {
    return static_cast<const GraphicsLetter*>(text.getChildren()[index])->getData().texcoords;
}

TEST_F(TextLayout, LettersOverlapBySevenUnitsAndBlanksAreNarrow) {
    const Text text("AB C", 300.0F, 200.0F, 4.0F, 1.0F, 0.5F, 0.25F);
    // Cells are 20 wide. The pen moves 20 for the first letter, 13 for the others, 10 for a blank.
    EXPECT_EQ(leftsOf(text), (std::vector<float>{0.0F, 13.0F, 23.0F, 36.0F}));
    EXPECT_EQ(text.getTextWidth(), 20.0F + 13.0F + 10.0F + 13.0F);
    EXPECT_EQ(text.getRight(), 56.0F);
    EXPECT_EQ(text.getBottom(), 0.0F);
    EXPECT_EQ(text.getTop(), 20.0F);
}

TEST_F(TextLayout, ATextOfTheSameLengthKeepsItsLettersInTheirSlots) {
    Text text("A 1", 0.0F, 0.0F, 0.0F, 1.0F, 1.0F, 1.0F);
    const std::vector<GraphicsObject*> letters = text.getChildren();
    const std::vector<float> lefts = leftsOf(text);
    text.setText(" A2");
    EXPECT_EQ(text.getChildren(), letters);
    EXPECT_EQ(leftsOf(text), lefts);
    EXPECT_EQ(text.getTextWidth(), 6.0F + 9.0F + 9.0F);
    const Text fresh("A2", 0.0F, 0.0F, 0.0F, 1.0F, 1.0F, 1.0F);
    EXPECT_EQ(cellOf(text, 1), cellOf(fresh, 0));
    EXPECT_EQ(cellOf(text, 2), cellOf(fresh, 1));
}

TEST_F(TextLayout, AnEmptiedTextStartsAgainWhereItWasMoved) {
    Text text("AB", 0.0F, 0.0F, 0.0F, 1.0F, 1.0F, 1.0F);
    text.setZ(5.0F);
    text.moveBy(100.0F, 50.0F);
    EXPECT_EQ(leftsOf(text), (std::vector<float>{100.0F, 109.0F}));
    text.setText("");
    EXPECT_TRUE(text.getChildren().empty());
    EXPECT_EQ(text.getLeft(), 100.0F);
    EXPECT_EQ(text.getBottom(), 50.0F);
    text.setText("C");
    EXPECT_EQ(leftsOf(text), std::vector<float>{100.0F});
    EXPECT_EQ(text.getBottom(), 50.0F);
    EXPECT_EQ(text.getChildren()[0]->getZ(), 5.0F);
}

TEST_F(TextLayout, ACharacterShowsItsCellOfTheFont) {
    struct Cell {
        char character;
        float column, row; // counted from the upper left, as the texture repeats
    };
    constexpr float inset = 0.0059F;
    for (const Cell cell : {Cell{' ', 0, 0}, Cell{'A', 1, 2}, Cell{'/', 15, 0}, Cell{'~', 14, 5},
                            Cell{'\xFF', -1, -2}, Cell{'\xB9', -7, -6}}) {
        const GraphicsLetter letter(0.0F, 0.0F, 16.0F, 16.0F, cell.character, 1, 1, 1, 1);
        const float left = cell.column / 16.0F + inset;
        const float right = (cell.column + 1.0F) / 16.0F - inset;
        const float top = 1.0F - cell.row / 16.0F - inset;
        const float bottom = 1.0F - (cell.row + 1.0F) / 16.0F + inset;
        const std::vector<float> corners{left, bottom, left, top, right, top, right, bottom};
        ASSERT_EQ(letter.getData().texcoords.size(), corners.size());
        for (std::size_t i = 0; i < corners.size(); ++i) {
            EXPECT_NEAR(letter.getData().texcoords[i], corners[i], 1e-6F) << cell.character << i;
        }
    }
}

} // namespace
