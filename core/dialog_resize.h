// Where the controls of a resizable dialog go when its client area changes
// size, from where they are at the size it opened with.
//
// Lists and multi-line edits grow in proportion to their size and move in
// proportion to their position; a list keeps to whole rows. A label just
// above a list, or a control just below it (its search row, its Add button),
// stays with it: the same distance from its edge, and as wide as the list
// when it was. Every other control keeps its size: one
// whose right edge is near the dialog's right edge (the OK/Cancel/Help
// column) moves by the whole change of width, one whose bottom is near the
// bottom by the whole change of height, and the rest move in proportion to
// their position. A group box holding a list or edit that grows grows with
// it; one holding none keeps its size, and what it holds keeps its place in
// it. Controls that did not overlap at the original size do not overlap at
// any larger one.
#pragma once

#include <vector>

#include "core/dialog_grid.h"
#include "core/seam.h"

namespace kvs {

struct ResizeItem {
    enum class Kind {
        Fixed,    // keeps its size
        Stretch,  // a multi-line edit
        List,     // a list box: stretches, in whole rows
        Box,      // a button: a group box when it wholly holds other controls
    };
    DialogRect rect;
    Kind kind = Kind::Fixed;
};

// How close (dialog units) to the right or bottom edge a control keeps its
// distance from that edge.
inline constexpr int kEdgeNear = 10;
// How close above or below a list a control stays with it: as close as the
// label of a search row under its list.
inline constexpr int kAttachNear = kGridGap + kGridLabelDrop;

// The rects of items (in their order) at a client area of width x height,
// the items being laid out for original; a size smaller than original is
// taken as original.
std::vector<DialogRect> resizedLayout(const std::vector<ResizeItem>& items, const DialogRect& original, int width,
                                      int height);

// The kind of item a laid-out control is.
ResizeItem::Kind resizeKindOf(const ControlLayout& control);

}  // namespace kvs
