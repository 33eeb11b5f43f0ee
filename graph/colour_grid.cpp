#include "graph/colour_grid.h"

#include <array>
#include <charconv>
#include <cmath>

namespace kvs::graph {

namespace {

constexpr double kFirst = 0.01;
constexpr double kStep = (0.99 - 0.01) / 63.0;

}  // namespace

double cellValue(int index) { return kFirst + index * kStep; }

// Rounds by adding 100/201 rather than a half, then truncates, so a value
// just above a cell's own sits in that cell.
int cellForValue(double value) {
    const double position = (value - kFirst) / kStep + 100.0 / 201.0;
    if (!(position >= 0.0)) return 0;  // negative, or not a number
    if (position >= kColourCells - 1) return kColourCells - 1;
    return static_cast<int>(position);
}

CellSize cellSize(int clientWidth, int clientHeight) {
    return {(clientWidth - 4) / kGridColumns, (clientHeight - 4) / kGridRows};
}

int cellAt(int x, int y, CellSize size) {
    int row = size.height > 0 ? (y - 2) / size.height : 0;
    int column = size.width > 0 ? (x - 2) / size.width : 0;
    if (row < 0) row = 0;
    if (row > kGridRows - 1) row = kGridRows - 1;
    if (column < 0) column = 0;
    if (column > kGridColumns - 1) column = kGridColumns - 1;
    return row * kGridColumns + column;
}

CellRect cellRect(int index, CellSize size) {
    const int column = index % kGridColumns;
    const int row = index / kGridColumns;
    const int left = 4 + column * size.width;
    const int top = 4 + row * size.height;
    return {left, top, left + size.width - 3, top + size.height - 3};
}

std::string formatColourValue(double value) {
    // The widest fixed-point double: 309 digits, sign, point and three decimals.
    std::array<char, 320> buffer{};
    const auto [end, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, 3);
    std::string text = error == std::errc{} ? std::string(buffer.data(), end) : std::string("0.000");
    if (text.size() < 5) text.insert(0, 5 - text.size(), ' ');
    return text;
}

double colourFromField(std::string_view text) {
    // The number the field's text begins with, read the same whatever locale
    // the host has set.
    text = text.substr(0, kColourFieldLength);
    const std::size_t start = text.find_first_not_of(" \t");
    if (start == std::string_view::npos) return 0.0;
    text.remove_prefix(start);
    if (text.front() == '+') text.remove_prefix(1);
    double value = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    (void)end;
    if (error != std::errc{} || std::isnan(value) || value < 0.0) return 0.0;
    return value > 1.0 ? 1.0 : value;
}

}  // namespace kvs::graph
