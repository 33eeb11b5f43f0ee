// The table dialogs (266 one-way, 267 two-way, 253 multiway): the XTAB
// block of an optional PRINT line and the TABULATE line.
#include <algorithm>
#include <iterator>

#include "core/descriptor.h"
#include "core/messages.h"
#include "stats/line_endings.h"
#include "stats/procedure_dialog.h"
#include "stats/stats_dialogs_list.h"
#include "stats/stats_texts.h"
#include "stats/stored_options.h"
#include "stats/tables_composers.h"

namespace kvs::stats {

namespace {

// The PRINT line when the statistics asked for are not the counts alone;
// "PRINT NONE" when none is.
void addPrintLine(Composition& body, const TableSettings& s) {
    const bool prints[] = {s.counts,   s.percents,     s.rowPercents, s.columnPercents,
                           s.expected, s.deviates,     s.standardized, s.chiSquare};
    const TableSettings standard;
    const bool defaults[] = {standard.counts,   standard.percents, standard.rowPercents,  standard.columnPercents,
                             standard.expected, standard.deviates, standard.standardized, standard.chiSquare};
    if (std::equal(std::begin(prints), std::end(prints), std::begin(defaults))) return;
    CommandText line(text::kPrint);
    line.append(text::kPrintOnly);
    for (std::size_t i = 0; i < std::size(prints); ++i)
        if (prints[i]) line.append(text::kTablePrints[i]);
    line.stripTrailing('/');
    body.add(line);
}

}  // namespace

ProcedureBlock composeTables(std::uint16_t commandId, const TableSettings& s, const Names& variables,
                             const Names& columns) {
    if (variables.empty() || (commandId == 267 && columns.empty()))
        return ProcedureBlock::refuse(text::kXtab, kvs::text::kSelectVariables);
    if (commandId == 253 && variables.size() < 2) return ProcedureBlock::refuse(text::kXtab, kvs::text::kProvideMoreInput);

    Composition body;
    addPrintLine(body, s);
    CommandText line(text::kTabulate);
    if (commandId == 253) {
        joinNames(variables, line, '*');
    } else {
        joinNames(variables, line, ' ');
        if (commandId == 267) {
            line.append(text::kCrossedBy);
            joinNames(columns, line, ' ');
        }
    }
    line.append(text::kOptionsSlash);
    if (s.listLayout) line.append(text::kListLayout);
    if (s.missing) line.append(text::kMissing);
    if (commandId == 253 && s.mantel) {
        line.append(text::kMantel);
        appendOptionUnlessDefault(line, text::kConfi, s.confidence, text::kDefaultConfi);
    }
    closeOptions(line);
    body.add(line);
    return {text::kXtab, text::kTablesFile, {}, std::move(body)};
}

namespace {

template <std::uint16_t Id>
class TablesDialog : public ProcedureDialog<TableSettings> {
public:
    TablesDialog() : ProcedureDialog(settings(), bindings()) {}

    std::vector<OwnList> ownLists() override {
        if (Id != 267) return {};
        return {{IDC_TARGET3, &columns_, kListCapacity}};
    }

    void addDefaults(DefaultsTable& table) override {
        ProcedureDialog::addDefaults(table);
        table.record(columns_);
    }

private:
    static constexpr std::int32_t kListCapacity = 256;

    static TableSettings& settings() {
        static TableSettings remembered;
        return remembered;
    }
    static Bindings<TableSettings> bindings() {
        Bindings<TableSettings> b;
        b.check(IDC_XTAB_FREQ, &TableSettings::counts).check(IDC_XTAB_PERCENT, &TableSettings::percents);
        if (Id != 266) {
            b.check(IDC_XTAB_ROWP, &TableSettings::rowPercents)
                .check(IDC_XTAB_COLP, &TableSettings::columnPercents)
                .check(IDC_XTAB_EXPECT, &TableSettings::expected)
                .check(IDC_XTAB_DEVIATE, &TableSettings::deviates)
                .check(IDC_XTAB_STANDARD, &TableSettings::standardized)
                .check(IDC_XTAB_CHISQ, &TableSettings::chiSquare);
        }
        b.check(IDC_XTAB_LIST, &TableSettings::listLayout).check(IDC_XTAB_MISSING, &TableSettings::missing);
        if (Id == 253) {
            b.check(IDC_XTAB_MANTEL, &TableSettings::mantel)
                .number(IDC_XTAB_CONFIDENCE, &TableSettings::confidence, kStoredValueLimit);
        }
        return b;
    }

    // The confidence belongs to the Mantel-Haenszel test.
    void shown(DialogView& view) override {
        if (Id == 253) view.enable(IDC_XTAB_CONFIDENCE, view.isChecked(IDC_XTAB_MANTEL));
    }
    void changed(DialogContext& context, const Notification& n) override {
        if (n.clicked(IDC_XTAB_MANTEL)) shown(context.view);
    }

    ProcedureBlock compose(const TableSettings& s, const DialogView& view) const override {
        static const Names none;
        return composeTables(Id, s, listNames(view, IDC_TARGET1), Id == 267 ? listNames(view, IDC_TARGET3) : none);
    }

    SelectionArray columns_{};
};

}  // namespace

DialogBehaviour& oneWayTablesBehaviour() { return soleInstance<TablesDialog<266>>(); }
DialogBehaviour& twoWayTablesBehaviour() { return soleInstance<TablesDialog<267>>(); }
DialogBehaviour& multiwayTablesBehaviour() { return soleInstance<TablesDialog<253>>(); }

}  // namespace kvs::stats
