// Every dialog template keeps the layout grid of docs/layout.md: lists show
// whole rows, a label sits level with the field it names, the labels of one
// column put their fields in one column, and sister dialogs share columns.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "core/dialog_grid.h"
#include "core/dispatch_table.h"
#include "core/source_filter.h"
#include "core/variable_list.h"
#include "families/library.h"
#include "headless/headless_dialog.h"
#include "headless/rc_template.h"
#include "resources/common_ids.h"
#include "tests/unit/library_resources.h"

namespace {

using kvs::testing::listed;

using kvs::headless::ControlKind;
using kvs::headless::ControlTemplate;
using kvs::headless::DialogTemplate;

const kvs::headless::ResourceSet& resources() { return kvs::testing::libraryResources(); }

constexpr std::uint32_t kNoIntegralHeight = 0x0100u;
constexpr int kOneRowList = 19;  // lower than this a list holds one name

std::string where(const DialogTemplate& d, const ControlTemplate& c) {
    return d.name + ": " + std::to_string(c.id) + " \"" + c.text + "\" at (" + std::to_string(c.x) + ", " +
           std::to_string(c.y) + ")";
}

bool isLabel(const ControlTemplate& c) {
    const std::uint32_t type = c.style & 0x1Fu;
    return c.kind == ControlKind::Static && type <= 2 && c.h <= 10 && !c.text.empty();
}

bool isField(const ControlTemplate& c) {
    return (c.kind == ControlKind::Edit && !c.editMultiline()) || c.kind == ControlKind::ComboBox;
}

// The field a label names on its row: the nearest one to its right whose
// shown height the label's text overlaps.
const ControlTemplate* fieldOf(const DialogTemplate& d, const ControlTemplate& label) {
    constexpr int kFarthest = 40;
    const ControlTemplate* best = nullptr;
    for (const ControlTemplate& c : d.controls) {
        if (!isField(c) || c.x <= label.x || c.x + 2 < label.x + label.w || c.x - (label.x + label.w) > kFarthest) continue;
        const bool overlaps = label.y < c.y + kvs::testing::shownHeight(c) && c.y < label.y + label.h;
        if (overlaps && (!best || c.x < best->x)) best = &c;
    }
    return best;
}

// The smallest group box wholly around a control, as an index; -1 for none.
int boxAround(const DialogTemplate& d, const ControlTemplate& c) {
    int best = -1;
    for (std::size_t i = 0; i < d.controls.size(); ++i) {
        const ControlTemplate& b = d.controls[i];
        if (!b.isGroupBox() || &b == &c) continue;
        const bool holds = b.x <= c.x && b.y <= c.y && b.x + b.w >= c.x + c.w && b.y + b.h >= c.y + c.h;
        if (holds && (best < 0 || b.w * b.h < d.controls[best].w * d.controls[best].h)) best = static_cast<int>(i);
    }
    return best;
}

struct Pair {
    const ControlTemplate* label;
    const ControlTemplate* field;
    int box;
};

std::vector<Pair> labelledFields(const DialogTemplate& d) {
    std::vector<Pair> pairs;
    for (const ControlTemplate& c : d.controls)
        if (isLabel(c))
            if (const ControlTemplate* field = fieldOf(d, c)) pairs.push_back({&c, field, boxAround(d, c)});
    return pairs;
}

TEST(TemplateGrid, ListsShowWholeRows) {
    std::vector<std::string> faults;
    for (const std::string& name : resources().dialogNames()) {
        const DialogTemplate& d = *resources().dialog(name);
        for (const ControlTemplate& c : d.controls) {
            if (c.kind != ControlKind::ListBox || !(c.style & kNoIntegralHeight) || c.isOwnerDraw()) continue;
            if (c.h >= kOneRowList && !kvs::showsWholeRows(c.h)) faults.push_back(where(d, c) + " is " + std::to_string(c.h) + " high");
        }
    }
    EXPECT_TRUE(faults.empty()) << faults.size() << " lists" << listed(faults);
}

// The search box takes its room from the source list in whole rows, and its
// row ends level with the lists beside it.
TEST(TemplateGrid, SourceListsKeepWholeRowsAndEndLevelWithTheirNeighbours) {
    kvs::installLibraryFamilies();
    std::vector<std::string> faults;
    for (const kvs::DispatchRow& row : kvs::dialogRows()) {
        if (!row.behaviour || !row.templateName) continue;
        const DialogTemplate* dialogTemplate = resources().dialog(row.templateName);
        if (!dialogTemplate) continue;
        kvs::headless::HeadlessDialog dialog(*dialogTemplate);
        kvs::VariableCatalogue names;
        kvs::SourceFilters filters;
        filters.install(dialog, names, names);
        std::map<int, int> columnBottoms;  // the lowest list bottom at each x right of the source list
        const kvs::DialogRect source = dialog.controlRect(IDC_SOURCE);
        for (const ControlTemplate& c : dialogTemplate->controls) {
            if (c.kind != ControlKind::ListBox) continue;
            if (c.x > source.right()) columnBottoms[c.x] = std::max(columnBottoms[c.x], c.y + c.h);
            if (!(c.style & kNoIntegralHeight) || c.h < kOneRowList) continue;
            const int height = dialog.controlRect(c.id).height;
            if (!kvs::showsWholeRows(height)) faults.push_back(where(*dialogTemplate, c) + " is " + std::to_string(height) + " high");
        }
        // The search row ends level with a list beside it that ends near it.
        const int rowBottom = dialog.has(IDC_SOURCE_FILTER) ? dialog.controlRect(IDC_SOURCE_FILTER).bottom() : 0;
        for (const auto& [x, bottom] : columnBottoms)
            if (rowBottom && bottom != rowBottom && std::abs(bottom - rowBottom) <= 6)
                faults.push_back(std::string(row.templateName) + ": the list at x " + std::to_string(x) + " ends at " +
                                 std::to_string(bottom) + ", the search row at " + std::to_string(rowBottom));
    }
    EXPECT_TRUE(faults.empty()) << listed(faults);
}

TEST(TemplateGrid, LabelsSitLevelWithTheirFields) {
    std::vector<std::string> faults;
    for (const std::string& name : resources().dialogNames()) {
        const DialogTemplate& d = *resources().dialog(name);
        for (const Pair& p : labelledFields(d)) {
            const int drop = p.label->y - p.field->y;
            if (drop != kvs::kGridLabelDrop && drop != kvs::kGridLabelDrop + 1)
                faults.push_back(where(d, *p.label) + " is " + std::to_string(drop) + " below its field " +
                                 std::to_string(p.field->id));
        }
    }
    EXPECT_TRUE(faults.empty()) << faults.size() << " labels" << listed(faults);
}

// The field columns of a dialog: per group box (or none) and label column,
// where the fields of those labels start.
using Columns = std::map<std::pair<int, int>, std::vector<int>>;

Columns fieldColumns(const DialogTemplate& d) {
    Columns columns;
    for (const Pair& p : labelledFields(d)) {
        std::vector<int>& xs = columns[{p.box, p.label->x}];
        if (std::find(xs.begin(), xs.end(), p.field->x) == xs.end()) xs.push_back(p.field->x);
    }
    return columns;
}

TEST(TemplateGrid, OneLabelColumnPutsItsFieldsInOneColumn) {
    std::vector<std::string> faults;
    for (const std::string& name : resources().dialogNames()) {
        const DialogTemplate& d = *resources().dialog(name);
        for (const auto& [key, xs] : fieldColumns(d)) {
            if (xs.size() < 2) continue;
            std::string columns;
            for (int x : xs) columns += " " + std::to_string(x);
            faults.push_back(d.name + ": labels at x " + std::to_string(key.second) + " put fields at" + columns);
        }
    }
    EXPECT_TRUE(faults.empty()) << faults.size() << " dialogs" << listed(faults);
}

// Dialogs a user meets side by side, for the same kind of setting.
const std::vector<std::vector<std::string>> kSisters = {
    {"BARLABEL", "PYRAMIDLABEL", "SLICELABEL", "CASELABELS"},
    {"BAROPTIONS", "DOTOPTIONS", "HISTOGRAMOPTIONS"},
    {"REGRESSIONOPTIONS", "GLMOPTIONS", "LOGITOPTS", "DISCRIMOPTIONS"},
    {"COLORCREATE", "COLORANDFILLCREATE"},
    {"LINESTYLE", "SURFACELINESTYLE", "SYMBOLANDLABELCREATE"},
    {"SMOOTHER", "RESIDUALS"},
    {"COORDINATES", "COMMONCOORDINATES"},
    {"PLOTOPTIONS", "SPLOMOPTIONS"},
};

// Where the fields of a dialog's labels start, in or out of group boxes.
std::set<int> fieldStarts(const DialogTemplate& d) {
    std::set<int> xs;
    for (const auto& [key, columns] : fieldColumns(d)) xs.insert(columns.begin(), columns.end());
    return xs;
}

TEST(TemplateGrid, SisterDialogsShareTheirFieldColumns) {
    std::vector<std::string> faults;
    for (const auto& sisters : kSisters) {
        std::map<std::set<int>, std::vector<std::string>> byColumns;
        for (const std::string& name : sisters) {
            const DialogTemplate* d = resources().dialog(name);
            ASSERT_NE(d, nullptr) << name;
            if (const std::set<int> xs = fieldStarts(*d); !xs.empty()) byColumns[xs].push_back(name);
        }
        if (byColumns.size() < 2) continue;
        std::string all;
        for (const auto& [xs, names] : byColumns) {
            std::string columns;
            for (int x : xs) columns += (columns.empty() ? "" : ",") + std::to_string(x);
            for (const std::string& n : names) all += " " + n + "@" + columns;
        }
        faults.push_back(all);
    }
    EXPECT_TRUE(faults.empty()) << listed(faults);
}

}  // namespace
