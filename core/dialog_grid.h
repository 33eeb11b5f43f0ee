// The grid the dialog templates follow (docs/layout.md), in dialog units,
// for the controls the logic adds or moves at run time.
#pragma once

#include <algorithm>

namespace kvs {

inline constexpr int kGridMargin = 7;      // from every edge of the client area
inline constexpr int kGridGap = 4;         // between controls that belong together
inline constexpr int kGridLabelHeight = 8;
inline constexpr int kGridFieldHeight = 12;  // a one-line edit
inline constexpr int kGridButtonWidth = 50;
inline constexpr int kGridButtonHeight = 14;
inline constexpr int kGridListRow = 8;     // a list box row: the dialog font's height
inline constexpr int kGridListBorder = 3;  // a list box's two borders, rounded up
inline constexpr int kGridLabelDrop = 2;   // a label beside a 12-unit field starts this far below its top

// The tallest height of whole rows that fits in height, so a list never
// shows a cut last row; at least one row.
constexpr int wholeListRows(int height) {
    const int rows = std::max((height - kGridListBorder) / kGridListRow, 1);
    return rows * kGridListRow + kGridListBorder;
}

// Whether a list of this height shows only whole rows.
constexpr bool showsWholeRows(int height) { return (height - kGridListBorder) % kGridListRow == 0; }

}  // namespace kvs
