// The colour picker's grid arithmetic: values, the cell a value or a click
// selects, where cells are drawn, and the value field's text.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "graph/colour_grid.h"

namespace kvs::graph {
namespace {

TEST(ColourGrid, ValuesRunFromOneHundredthToNinetyNineHundredths) {
    EXPECT_DOUBLE_EQ(cellValue(0), 0.01);
    EXPECT_DOUBLE_EQ(cellValue(63), 0.99);
    EXPECT_NEAR(cellValue(31), 0.4922, 1e-4);
    EXPECT_NEAR(cellValue(32), 0.5078, 1e-4);
}

TEST(ColourGrid, EveryCellValueSelectsItsOwnCell) {
    for (int i = 0; i < kColourCells; ++i) EXPECT_EQ(cellForValue(cellValue(i)), i) << i;
}

TEST(ColourGrid, ValueSelectsByTheRoundingOfOneHundredTwoHundredAndFirsts) {
    EXPECT_EQ(cellForValue(0.5), 31);  // 31.9975: just short of 32
    const double step = (0.99 - 0.01) / 63.0;
    // The switch to the next cell lies 101/201 of a step above a cell's value.
    EXPECT_EQ(cellForValue(cellValue(10) + step * 0.502), 10);
    EXPECT_EQ(cellForValue(cellValue(10) + step * 0.504), 11);
}

TEST(ColourGrid, ValuesOutsideTheGridSelectTheEnds) {
    EXPECT_EQ(cellForValue(0.0), 0);
    EXPECT_EQ(cellForValue(-5.0), 0);
    EXPECT_EQ(cellForValue(1.0), 63);
    EXPECT_EQ(cellForValue(1e300), 63);
    EXPECT_EQ(cellForValue(std::numeric_limits<double>::quiet_NaN()), 0);
    EXPECT_EQ(cellForValue(std::numeric_limits<double>::infinity()), 63);
}

TEST(ColourGrid, CellSizeLeavesTheBorderOutAndTruncates) {
    const CellSize size = cellSize(288, 84);
    EXPECT_EQ(size.width, 17);   // 284 / 16
    EXPECT_EQ(size.height, 20);  // 80 / 4
}

TEST(ColourGrid, ClickPicksRowAndColumnFromTwoPixelsIn) {
    const CellSize size{17, 20};
    EXPECT_EQ(cellAt(2, 2, size), 0);
    EXPECT_EQ(cellAt(18, 21, size), 0);
    EXPECT_EQ(cellAt(19, 21, size), 1);
    EXPECT_EQ(cellAt(18, 22, size), 16);
    EXPECT_EQ(cellAt(2 + 17 * 15, 2 + 20 * 3, size), 63);
}

TEST(ColourGrid, ClicksOnTheBorderOrBeyondAreHeldToTheGrid) {
    const CellSize size{17, 20};
    EXPECT_EQ(cellAt(0, 50, size), 32);    // x below 2: column 0
    EXPECT_EQ(cellAt(100, 1, size), 5);    // y below 2: row 0
    EXPECT_EQ(cellAt(-40, -40, size), 0);
    EXPECT_EQ(cellAt(1000, 1000, size), 63);
    EXPECT_EQ(cellAt(10, 10, CellSize{0, 0}), 0);  // a grid too small for cells
}

TEST(ColourGrid, CellsAreFilledThreePixelsShortOfTheirPitch) {
    const CellSize size{17, 20};
    const CellRect first = cellRect(0, size);
    EXPECT_EQ(first.left, 4);
    EXPECT_EQ(first.top, 4);
    EXPECT_EQ(first.right, 18);
    EXPECT_EQ(first.bottom, 21);
    const CellRect last = cellRect(63, size);
    EXPECT_EQ(last.left, 4 + 15 * 17);
    EXPECT_EQ(last.top, 4 + 3 * 20);
}

TEST(ColourGrid, FieldTextIsFixedWithThreeDecimalsInFiveColumns) {
    EXPECT_EQ(formatColourValue(0.5), "0.500");
    EXPECT_EQ(formatColourValue(cellValue(31)), "0.492");
    EXPECT_EQ(formatColourValue(1.0), "1.000");
    EXPECT_EQ(formatColourValue(0.0004), "0.000");
    EXPECT_EQ(formatColourValue(-2.5), "-2.500");
    EXPECT_EQ(formatColourValue(123456.0), "123456.000");
    // The largest double still fits: 309 digits and the decimals.
    EXPECT_EQ(formatColourValue(std::numeric_limits<double>::max()).size(), 313u);
}

TEST(ColourGrid, FieldIsReadAsANumberHeldToTheUnitInterval) {
    EXPECT_DOUBLE_EQ(colourFromField("0.25"), 0.25);
    EXPECT_DOUBLE_EQ(colourFromField(" 0.75"), 0.75);
    EXPECT_DOUBLE_EQ(colourFromField("1.7"), 1.0);
    EXPECT_DOUBLE_EQ(colourFromField("-3"), 0.0);
    EXPECT_DOUBLE_EQ(colourFromField("blue"), 0.0);
    EXPECT_DOUBLE_EQ(colourFromField(""), 0.0);
    EXPECT_DOUBLE_EQ(colourFromField("nan"), 0.0);
    EXPECT_DOUBLE_EQ(colourFromField("inf"), 1.0);
    EXPECT_DOUBLE_EQ(colourFromField("0.3abc"), 0.3);  // the number that leads
}

TEST(ColourGrid, OnlyTheFirstSixteenCharactersOfTheFieldCount) {
    EXPECT_DOUBLE_EQ(colourFromField("0.12345678901234999"), 0.12345678901234);
    EXPECT_DOUBLE_EQ(colourFromField(std::string(5000, '0') + "1"), 0.0);
}

}  // namespace
}  // namespace kvs::graph
