// The colour picker's grid of 64 colour values, 16 columns by 4 rows, as
// plain numbers: the values, which cell a value or a click selects, where a
// cell is drawn, and the value field's text. Free of windows so both
// backends and the drawing code share it.
#pragma once

#include <cstddef>

#include <string>
#include <string_view>

namespace kvs::graph {

inline constexpr int kColourCells = 64;
inline constexpr int kGridColumns = 16;
inline constexpr int kGridRows = 4;

// The colour value of cell index: 0.01 + index * (0.99 - 0.01) / 63.
double cellValue(int index);

// The cell a colour value selects: the nearest one, from 0 to 63.
int cellForValue(double value);

struct CellSize {
    int width = 0;
    int height = 0;
};

// Cells of a grid whose client area is width x height pixels.
CellSize cellSize(int clientWidth, int clientHeight);

// The cell under a point of the grid's client area; points on the border
// and beyond the last cell go to the nearest row and column.
int cellAt(int x, int y, CellSize size);

struct CellRect {
    int left = 0, top = 0, right = 0, bottom = 0;
};

// The filled part of a cell, right and bottom exclusive.
CellRect cellRect(int index, CellSize size);

// The value field's text: the value as "%5.3f" formats it.
std::string formatColourValue(double value);

// The colour value a field text stands for: read as a number, then held to
// 0..1; text that is not a number is 0. At most the first 16 characters
// count, as the field is read into a 16-character buffer.
double colourFromField(std::string_view text);
inline constexpr std::size_t kColourFieldLength = 16;

}  // namespace kvs::graph
