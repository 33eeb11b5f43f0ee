#include "core/dialog_resize.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>


namespace kvs {

namespace {

// v scaled by to/from, rounded to the nearest unit (halves up).
int scaled(int v, int to, int from) {
    if (from <= 0) return v;
    const std::int64_t product = static_cast<std::int64_t>(v) * to;
    return static_cast<int>((2 * product + from) / (2 * static_cast<std::int64_t>(from)));
}

bool holds(const DialogRect& outer, const DialogRect& inner) {
    const bool same = outer.x == inner.x && outer.y == inner.y && outer.width == inner.width &&
                      outer.height == inner.height;
    return !same && outer.x <= inner.x && outer.y <= inner.y && outer.right() >= inner.right() &&
           outer.bottom() >= inner.bottom();
}

std::int64_t area(const DialogRect& r) { return static_cast<std::int64_t>(r.width) * r.height; }

constexpr std::size_t kNone = static_cast<std::size_t>(-1);

bool grows(ResizeItem::Kind kind) { return kind == ResizeItem::Kind::Stretch || kind == ResizeItem::Kind::List; }

struct Planner {
    const std::vector<ResizeItem>& items;
    const DialogRect& original;
    int width, height;
    std::vector<std::size_t> box;   // the smallest box holding each item, or kNone
    std::vector<bool> stretches;    // an item, or a box holding one, that grows
    struct Anchor {
        std::size_t list = kNone;  // the list an item stays with
        bool over = false;         // sitting just above it (else just below)
    };
    std::vector<Anchor> anchor;
    std::vector<bool> done;
    std::vector<DialogRect> result;

    // One axis of the general rule: position from, size, original extent,
    // new extent; returns the new position and size.
    static std::pair<int, int> axis(int from, int size, bool grows, int extent, int to) {
        if (grows) {
            const int start = scaled(from, to, extent);
            return {start, scaled(from + size, to, extent) - start};
        }
        if (extent - (from + size) <= kEdgeNear) return {from + to - extent, size};
        return {scaled(from, to, extent), size};
    }

    const DialogRect& place(std::size_t i) {
        if (done[i]) return result[i];
        const DialogRect& r = items[i].rect;
        DialogRect next;
        const std::size_t holder = box[i];
        if (holder != kNone && !stretches[holder]) {
            // Inside a box that keeps its size: the same place in the box.
            const DialogRect& from = items[holder].rect;
            const DialogRect& to = place(holder);
            next = {to.x + r.x - from.x, to.y + r.y - from.y, r.width, r.height};
        } else if (const Anchor& a = anchor[i]; a.list != kNone) {
            const DialogRect& from = items[a.list].rect;
            const DialogRect& to = place(a.list);
            const int x = to.x + r.x - from.x;
            const int w = r.right() == from.right() ? to.right() - x : r.width;
            const int y = a.over ? to.y - (from.y - r.y) : to.bottom() + (r.y - from.bottom());
            next = {x, y, w, r.height};
        } else {
            const auto [x, w] = axis(r.x, r.width, stretches[i], original.width, width);
            auto [y, h] = axis(r.y, r.height, stretches[i], original.height, height);
            if (items[i].kind == ResizeItem::Kind::List) {
                // One-name lists keep their height; taller ones show whole rows.
                h = r.height < kGridListRow * 2 + kGridListBorder ? r.height : std::max(wholeListRows(h), r.height);
            }
            next = {x, y, w, h};
        }
        result[i] = next;
        done[i] = true;
        return result[i];
    }
};

// Whether item sits next to list on the side given (above: its bottom over
// the list's top), near enough and starting within its width.
bool attached(const DialogRect& item, const DialogRect& list, bool over) {
    constexpr int kSlack = 2;  // a label may start or end a little outside its list
    const int gap = over ? list.y - item.bottom() : item.y - list.bottom();
    return gap >= 0 && gap <= kAttachNear && item.x >= list.x - kSlack && item.x < list.right() &&
           item.right() <= list.right() + kSlack;
}

}  // namespace

ResizeItem::Kind resizeKindOf(const ControlLayout& control) {
    if (control.type == ControlType::ListBox) return ResizeItem::Kind::List;
    if (control.type == ControlType::Edit && control.multiLine) return ResizeItem::Kind::Stretch;
    return control.type == ControlType::Button ? ResizeItem::Kind::Box : ResizeItem::Kind::Fixed;
}

std::vector<DialogRect> resizedLayout(const std::vector<ResizeItem>& items, const DialogRect& original, int width,
                                      int height) {
    const std::size_t n = items.size();
    Planner plan{items, original, std::max(width, original.width), std::max(height, original.height),
                 std::vector<std::size_t>(n, kNone), std::vector<bool>(n, false),
                 std::vector<Planner::Anchor>(n), std::vector<bool>(n, false), std::vector<DialogRect>(n)};
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t b = 0; b < n; ++b) {
            if (items[b].kind != ResizeItem::Kind::Box || !holds(items[b].rect, items[i].rect)) continue;
            if (plan.box[i] == kNone || area(items[b].rect) < area(items[plan.box[i]].rect)) plan.box[i] = b;
        }
    }
    std::vector<bool> holdsOthers(n, false);
    for (std::size_t i = 0; i < n; ++i)
        if (plan.box[i] != kNone) holdsOthers[plan.box[i]] = true;
    for (std::size_t i = 0; i < n; ++i) {
        if (grows(items[i].kind) || holdsOthers[i] || plan.box[i] != kNone) continue;
        // Above a list first: a label over a list stays with the list it names.
        for (const bool over : {true, false}) {
            for (std::size_t l = 0; l < n && plan.anchor[i].list == kNone; ++l) {
                const bool list = items[l].kind == ResizeItem::Kind::List && plan.box[l] == kNone;
                if (list && attached(items[i].rect, items[l].rect, over)) plan.anchor[i] = {l, over};
            }
        }
    }
    for (std::size_t i = 0; i < n; ++i) {
        if (!grows(items[i].kind)) continue;
        plan.stretches[i] = true;
        // Every box around a growing control grows too.
        for (std::size_t b = plan.box[i]; b != kNone; b = plan.box[b]) plan.stretches[b] = true;
    }
    for (std::size_t i = 0; i < n; ++i) plan.place(i);
    return plan.result;
}

}  // namespace kvs
