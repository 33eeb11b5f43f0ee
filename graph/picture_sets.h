// The picture sets of the graph option lists, loaded from the library's
// bitmap resources by name ("symbol1", "dash1", "axes2d1", ...). A picture
// that cannot be loaded leaves 0 in its slot. The library owns every
// bitmap; each set is deleted by its own routine.
#pragma once

#include <array>
#include <cstdint>

#include "core/seam.h"

namespace kvs::graph {

inline constexpr int kSymbolPictures = 22;
inline constexpr int kDashPictures = 11;
inline constexpr int kAxes2dPictures = 12;
inline constexpr int kAxes3dPictures = 8;

// Slot i - 1 holds "symbol<i>"; the table the host is handed.
using SymbolTable = std::array<BitmapRef, kSymbolPictures>;
// Slot i - 1 holds "dash<i>".
using DashTable = std::array<BitmapRef, kDashPictures>;
// The axis sets are indexed from 1: slot 0 holds nothing.
using Axes2dTable = std::array<BitmapRef, kAxes2dPictures + 1>;
using Axes3dTable = std::array<BitmapRef, kAxes3dPictures + 1>;

// Loads the symbols (deleting any loaded before) and returns 22, however
// many could be loaded.
int loadSymbolPictures();
void deleteSymbolPictures();
SymbolTable& symbolPictures();

void loadDashPictures();
void deleteDashPictures();
const DashTable& dashPictures();

// The colours the axis lists draw their entries with, read when the axis
// pictures are loaded.
struct ListColours {
    std::uint32_t text = 0;
    std::uint32_t highlightText = 0;
};

// Reads the list colours, then loads both axis sets.
void loadAxisPictures();
void deleteAxisPictures();
const Axes2dTable& axes2dPictures();
const Axes3dTable& axes3dPictures();
ListColours axisListColours();

// Every set empty, as at load; handles of an earlier load are forgotten.
void forgetPictures();

}  // namespace kvs::graph
