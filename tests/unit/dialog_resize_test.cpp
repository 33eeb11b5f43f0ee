// Resizable variable dialogs: the layout rule on a table of sizes, then the
// generic dialog over real templates: every dialog at larger sizes, the size
// remembered by menu command and forgotten by ReinitDialogs.
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "core/dialog_resize.h"
#include "core/dispatch_table.h"
#include "core/generic_dialog.h"
#include "core/resizable_layout.h"
#include "headless/embedded_resources.h"
#include "headless/headless_dialog.h"
#include "headless/rc_template.h"
#include "include/kvs_dlg.h"
#include "tests/unit/loaded_library.h"

namespace {

using kvs::DialogRect;
using kvs::ResizeItem;
using Kind = ResizeItem::Kind;

bool overlap(const DialogRect& a, const DialogRect& b) {
    return a.x < b.right() && b.x < a.right() && a.y < b.bottom() && b.y < a.bottom();
}

bool inside(const DialogRect& outer, const DialogRect& inner) {
    return outer.x <= inner.x && outer.y <= inner.y && outer.right() >= inner.right() &&
           outer.bottom() >= inner.bottom();
}

std::string describe(const DialogRect& r) {
    return "(" + std::to_string(r.x) + "," + std::to_string(r.y) + " " + std::to_string(r.width) + "x" +
           std::to_string(r.height) + ")";
}

// What no layout may break: controls apart stay apart, a control inside a
// button (a group box) or inside the client area stays inside it.
void expectKeptApartAndInside(const std::vector<ResizeItem>& items, const DialogRect& client,
                              const std::vector<DialogRect>& after, int width, int height, const std::string& what) {
    std::vector<DialogRect> before;
    for (const ResizeItem& item : items) before.push_back(item.rect);
    ASSERT_EQ(before.size(), after.size());
    const DialogRect grown{0, 0, width, height};
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (inside(client, before[i])) {
            EXPECT_TRUE(inside(grown, after[i])) << what << ": control " << i << " leaves the dialog at "
                                                 << describe(after[i]);
        }
        for (std::size_t j = 0; j < before.size(); ++j) {
            if (i == j || before[i].width <= 0 || before[j].width <= 0) continue;
            if (j > i && !overlap(before[i], before[j])) {
                EXPECT_FALSE(overlap(after[i], after[j]))
                    << what << ": controls " << i << " " << describe(after[i]) << " and " << j << " "
                    << describe(after[j]) << " now overlap";
            }
            if (items[i].kind == Kind::Box && inside(before[i], before[j]) && before[i].width * before[i].height > before[j].width * before[j].height) {
                EXPECT_TRUE(inside(after[i], after[j]))
                    << what << ": control " << j << " " << describe(after[j]) << " leaves " << i << " "
                    << describe(after[i]);
            }
        }
    }
}

// A variable dialog in miniature, 320 x 200: a label over the source list,
// the arrow between the lists, a group box of two radio buttons, a check
// box reaching across, the OK/Cancel/Help column and the preview along the
// bottom.
enum Control : std::size_t { Label, Source, Arrow, Target, Group, Radio1, Radio2, Wide, Ok, Cancel, Help, Preview, Copy };
const DialogRect kClient{0, 0, 320, 200};
const std::vector<ResizeItem> kDialog = {
    {{7, 7, 60, 8}, Kind::Fixed},        {{7, 18, 100, 100}, Kind::Stretch},  {{115, 50, 24, 14}, Kind::Box},
    {{147, 18, 100, 40}, Kind::Stretch}, {{147, 64, 100, 40}, Kind::Box},     {{153, 74, 80, 10}, Kind::Box},
    {{153, 88, 80, 10}, Kind::Box},      {{7, 124, 240, 10}, Kind::Box},      {{263, 7, 50, 14}, Kind::Box},
    {{263, 24, 50, 14}, Kind::Box},      {{263, 41, 50, 14}, Kind::Box},      {{7, 150, 245, 43}, Kind::Stretch},
    {{263, 150, 50, 14}, Kind::Box},
};

std::vector<DialogRect> rectsOf(const std::vector<ResizeItem>& items) {
    std::vector<DialogRect> rects;
    for (const ResizeItem& item : items) rects.push_back(item.rect);
    return rects;
}

TEST(DialogResize, LayoutAtLargerSizes) {
    const std::vector<DialogRect> before = rectsOf(kDialog);
    struct Size {
        int width, height;
    };
    for (const Size size : {Size{320, 200}, Size{480, 300}, Size{400, 200}, Size{320, 350}, Size{321, 201},
                            Size{1000, 700}}) {
        const std::string what = std::to_string(size.width) + "x" + std::to_string(size.height);
        const auto after = kvs::resizedLayout(kDialog, kClient, size.width, size.height);
        expectKeptApartAndInside(kDialog, kClient, after, size.width, size.height, what);
        // The button column keeps its distance from the right edge and its size.
        for (std::size_t i : {Ok, Cancel, Help, Copy}) {
            EXPECT_EQ(size.width - after[i].right(), kClient.width - before[i].right()) << what << " " << i;
            EXPECT_EQ(after[i].width, before[i].width) << what;
            EXPECT_EQ(after[i].height, before[i].height) << what;
        }
        // Lists and the preview grow with the dialog, in both directions
        // (a unit or two more may be lost to rounding).
        for (std::size_t i : {Source, Target, Preview}) {
            if (size.width >= kClient.width * 11 / 10) {
                EXPECT_GT(after[i].width, before[i].width) << what << " " << i;
            }
            if (size.width == kClient.width) {
                EXPECT_EQ(after[i].width, before[i].width) << what << " " << i;
            }
            if (size.height >= kClient.height * 11 / 10) {
                EXPECT_GT(after[i].height, before[i].height) << what << " " << i;
            }
            if (size.height == kClient.height) {
                EXPECT_EQ(after[i].height, before[i].height) << what << " " << i;
            }
            EXPECT_GE(after[i].width, before[i].width) << what;
            EXPECT_GE(after[i].height, before[i].height) << what;
        }
        // The other controls keep their size; the radio buttons their place in their box.
        for (std::size_t i : {Label, Arrow, Group, Radio1, Radio2, Wide}) {
            EXPECT_EQ(after[i].width, before[i].width) << what << " " << i;
            EXPECT_EQ(after[i].height, before[i].height) << what << " " << i;
        }
        EXPECT_EQ(after[Radio1].x - after[Group].x, before[Radio1].x - before[Group].x) << what;
        EXPECT_EQ(after[Radio2].y - after[Group].y, before[Radio2].y - before[Group].y) << what;
    }
}

TEST(DialogResize, SmallerSizesAndTheOpeningSizeLeaveEveryControlWhereItIs) {
    for (const auto& [w, h] : {std::pair{320, 200}, std::pair{100, 50}, std::pair{0, 0}, std::pair{200, 300}}) {
        const auto after = kvs::resizedLayout(kDialog, kClient, w, h);
        for (std::size_t i = 0; i < kDialog.size(); ++i) {
            if (h > kClient.height) continue;  // taller but narrower: checked for width only
            EXPECT_EQ(describe(after[i]), describe(kDialog[i].rect)) << w << "x" << h << " " << i;
        }
        for (std::size_t i = 0; i < kDialog.size(); ++i) EXPECT_EQ(after[i].x, kDialog[i].rect.x) << w << "x" << h;
    }
}

// A group box holding a list grows with it and keeps holding it.
TEST(DialogResize, ABoxAroundAListGrowsWithIt) {
    const std::vector<ResizeItem> items = {
        {{7, 7, 150, 120}, Kind::Box},
        {{14, 18, 100, 100}, Kind::Stretch},
        {{120, 18, 30, 14}, Kind::Box},
        {{200, 7, 50, 14}, Kind::Box},
    };
    const DialogRect client{0, 0, 257, 140};
    const auto after = kvs::resizedLayout(items, client, 385, 210);
    expectKeptApartAndInside(items, client, after, 385, 210, "box");
    EXPECT_GT(after[0].width, 150);
    EXPECT_GT(after[0].height, 120);
    EXPECT_EQ(after[3].right(), 385 - 7);
}

// A list keeps whole rows as it grows; its label and its search row stay
// with it, the search row as wide as the list.
TEST(DialogResize, AListShowsWholeRowsAndKeepsItsLabelAndSearchRow) {
    const std::vector<ResizeItem> items = {
        {{7, 7, 60, 8}, Kind::Fixed},      // label
        {{7, 18, 90, 91}, Kind::List},     // 11 rows
        {{7, 113, 36, 8}, Kind::Fixed},    // search label
        {{45, 111, 52, 12}, Kind::Fixed},  // search box, to the list's right edge
        {{103, 18, 24, 14}, Kind::Box},
        {{200, 7, 50, 14}, Kind::Box},
    };
    const DialogRect client{0, 0, 257, 130};
    for (const auto& [w, h] : {std::pair{300, 160}, std::pair{257, 131}, std::pair{500, 417}}) {
        const auto after = kvs::resizedLayout(items, client, w, h);
        const std::string what = std::to_string(w) + "x" + std::to_string(h);
        expectKeptApartAndInside(items, client, after, w, h, what);
        EXPECT_EQ((after[1].height - 3) % 8, 0) << what << " " << describe(after[1]);
        EXPECT_EQ(after[1].y - after[0].bottom(), 3) << what;
        EXPECT_EQ(after[3].y - after[1].bottom(), 2) << what;
        EXPECT_EQ(after[3].right(), after[1].right()) << what;
        EXPECT_EQ(after[2].y - after[3].y, 2) << what;
    }
}

// The generic dialog over the real templates: a UI whose modal run opens
// the template headlessly under the handler, lets the test act, and cancels.
class ResizingUi : public kvs::testing::FakeUi {
public:
    kvs::headless::ResourceSet resources;
    std::function<void(kvs::headless::HeadlessDialog&, kvs::DialogHandler&)> act;

    ResizingUi() { resources.load(kvs::headless::embeddedResources()); }

    int runModal(kvs::WindowRef, std::string_view name, kvs::DialogHandler& handler) override {
        opened.emplace_back(name);
        const kvs::headless::DialogTemplate* dialogTemplate = resources.dialog(name);
        if (!dialogTemplate) return -1;
        kvs::headless::HeadlessDialog view(*dialogTemplate);
        handler.onInit(view);
        if (act) act(view, handler);
        if (!view.ended()) handler.onCommand(view, kvs::kIdCancel, kvs::kButtonClicked);
        return view.result();
    }
};

using ResizingDialogTest = kvs::testing::LoadedLibraryTest<ResizingUi>;

std::vector<ResizeItem> layoutItems(const kvs::headless::HeadlessDialog& view) {
    std::vector<ResizeItem> items;
    for (const kvs::ControlLayout& control : view.layout()) items.push_back({control.rect, kvs::resizeKindOf(control)});
    return items;
}

std::vector<DialogRect> layoutRects(const kvs::headless::HeadlessDialog& view) {
    std::vector<DialogRect> rects;
    for (const kvs::ControlLayout& control : view.layout()) rects.push_back(control.rect);
    return rects;
}

void resize(kvs::headless::HeadlessDialog& view, kvs::DialogHandler& handler, int width, int height) {
    view.resizeClient(width, height);
    handler.onResize(view, view.clientRect().width, view.clientRect().height);
}

// Every variable dialog opens resizable at its own size, and at one and a
// half times that size (and wider only) nothing overlaps that did not,
// nothing leaves its group box or the dialog, and the right column stays
// right-aligned.
TEST_F(ResizingDialogTest, EveryVariableDialogResizesWithoutOverlap) {
    int resized = 0;
    for (const kvs::DispatchRow& row : kvs::dialogRows()) {
        if (row.launch == kvs::Launch::Special || !row.behaviour || !row.has(kvs::kMenuEntry)) continue;
        const std::string id = std::to_string(row.id);
        ui.act = [&](kvs::headless::HeadlessDialog& view, kvs::DialogHandler& handler) {
            if (!dynamic_cast<kvs::GenericDialog*>(&handler)) return;
            ASSERT_TRUE(view.resizable()) << id;
            const DialogRect opening = view.clientRect();
            EXPECT_EQ(view.minimumClient().width, opening.width) << id;
            EXPECT_EQ(view.minimumClient().height, opening.height) << id;
            const std::vector<ResizeItem> items = layoutItems(view);
            const std::vector<DialogRect> before = layoutRects(view);
            const auto okBefore = view.controlRect(kvs::kIdOk);
            for (const auto& [w, h] : {std::pair{opening.width * 3 / 2, opening.height * 3 / 2},
                                       std::pair{opening.width * 13 / 10, opening.height}}) {
                resize(view, handler, w, h);
                expectKeptApartAndInside(items, opening, layoutRects(view), w, h, id);
                EXPECT_EQ(w - view.controlRect(kvs::kIdOk).right(), opening.width - okBefore.right()) << id;
            }
            resize(view, handler, opening.width, opening.height);
            EXPECT_EQ(layoutRects(view).size(), before.size());
            for (std::size_t i = 0; i < before.size(); ++i)
                EXPECT_EQ(describe(layoutRects(view)[i]), describe(before[i])) << id << " back at the opening size";
            ++resized;
        };
        StartDialog(row.id, nullptr, "");
    }
    EXPECT_GE(resized, 100);
}

// The size is the user's for the session: Cancel keeps it, the next opening
// of the same command is at it with its lists grown, another command opens
// at its own size, and ReinitDialogs forgets it.
TEST_F(ResizingDialogTest, SizeIsRememberedByCommandUntilReinit) {
    DialogRect sortOpening, sort;
    ui.act = [&](kvs::headless::HeadlessDialog& view, kvs::DialogHandler&) { sort = view.clientRect(); };
    StartDialog(72, nullptr, "");
    sortOpening = sort;

    DialogRect opening, grownList, grownClient;
    ui.act = [&](kvs::headless::HeadlessDialog& view, kvs::DialogHandler& handler) {
        opening = view.clientRect();
        const DialogRect list = view.controlRect(IDC_SOURCE);
        resize(view, handler, opening.width * 3 / 2, opening.height * 3 / 2);
        grownList = view.controlRect(IDC_SOURCE);
        grownClient = view.clientRect();
        EXPECT_GT(grownList.width, list.width);
        EXPECT_GT(grownList.height, list.height);
        // Smaller than the opening size is as small as the dialog goes.
        resize(view, handler, 10, 10);
        EXPECT_EQ(describe(view.clientRect()), describe(opening));
        EXPECT_EQ(describe(view.controlRect(IDC_SOURCE)), describe(list));
        resize(view, handler, grownClient.width, grownClient.height);
    };
    StartDialog(221, nullptr, "");
    EXPECT_EQ(describe(kvs::rememberedDialogSize(221)), describe(grownClient));

    DialogRect reopened, reopenedList;
    ui.act = [&](kvs::headless::HeadlessDialog& view, kvs::DialogHandler&) {
        reopened = view.clientRect();
        reopenedList = view.controlRect(IDC_SOURCE);
    };
    StartDialog(221, nullptr, "");
    EXPECT_EQ(describe(reopened), describe(grownClient));
    EXPECT_EQ(describe(reopenedList), describe(grownList));

    ui.act = [&](kvs::headless::HeadlessDialog& view, kvs::DialogHandler&) { sort = view.clientRect(); };
    StartDialog(72, nullptr, "");
    EXPECT_EQ(describe(sort), describe(sortOpening));

    ReinitDialogs(0);
    EXPECT_EQ(kvs::rememberedDialogSize(221).width, 0);
    ui.act = [&](kvs::headless::HeadlessDialog& view, kvs::DialogHandler&) { reopened = view.clientRect(); };
    StartDialog(221, nullptr, "");
    EXPECT_EQ(describe(reopened), describe(opening));
}

}  // namespace
