#include "graph/picture_sets.h"

#include <string>
#include <string_view>

#include "graph/colour_font_texts.h"

namespace kvs::graph {

namespace {

SymbolTable symbols{};
DashTable dashes{};
Axes2dTable axes2d{};
Axes3dTable axes3d{};
ListColours listColours{};

// Loads prefix1 ... prefixN into slots first ... first + N - 1.
template <std::size_t Size>
void load(std::array<BitmapRef, Size>& table, std::string_view prefix, std::size_t first) {
    for (std::size_t slot = first; slot < Size; ++slot) {
        if (table[slot]) ui().deleteBitmap(table[slot]);
        table[slot] = ui().loadBitmap(std::string(prefix) + std::to_string(slot - first + 1));
    }
}

template <std::size_t Size>
void release(std::array<BitmapRef, Size>& table) {
    for (BitmapRef& bitmap : table) {
        if (bitmap) ui().deleteBitmap(bitmap);
        bitmap = 0;
    }
}

}  // namespace

int loadSymbolPictures() {
    load(symbols, text::kSymbolPicture, 0);
    return kSymbolPictures;
}

void deleteSymbolPictures() { release(symbols); }
SymbolTable& symbolPictures() { return symbols; }

void loadDashPictures() { load(dashes, text::kDashPicture, 0); }
void deleteDashPictures() { release(dashes); }
const DashTable& dashPictures() { return dashes; }

void loadAxisPictures() {
    listColours.text = ui().systemColour(SystemColour::WindowText);
    listColours.highlightText = ui().systemColour(SystemColour::HighlightText);
    load(axes2d, text::kAxes2dPicture, 1);
    load(axes3d, text::kAxes3dPicture, 1);
}

void deleteAxisPictures() {
    release(axes2d);
    release(axes3d);
}

const Axes2dTable& axes2dPictures() { return axes2d; }
const Axes3dTable& axes3dPictures() { return axes3d; }
ListColours axisListColours() { return listColours; }

void forgetPictures() {
    symbols = {};
    dashes = {};
    axes2d = {};
    axes3d = {};
    listColours = {};
}

}  // namespace kvs::graph
