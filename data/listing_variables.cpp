// The listing dialogs built on target list 10: List Cases, By Groups,
// Category, Reshape, Standardize and Order.
#include "core/bound_dialog.h"
#include "core/descriptor.h"
#include "core/library_state.h"
#include "core/messages.h"
#include "data/composers.h"
#include "data/data_texts.h"
#include "core/save_file_step.h"

namespace kvs::data {

namespace {

constexpr std::uint16_t kStandardizeId = 70;

ListCasesSettings listCases;
ByGroupsSettings byGroups;
CategorySettings category;
ReshapeSettings reshape;

// A dialog of target list 10 whose lines are data commands.
template <typename Record>
class ListingDialog : public BoundDialog<Record> {
protected:
    using Composer = Composition (*)(const Record&, const Names&);
    ListingDialog(Record& record, Bindings<Record> bindings, Composer composer)
        : BoundDialog<Record>(record, std::move(bindings)), composer_(composer) {}

    Composition compose(const Record& record, const DialogView& view) const override {
        return composer_(record, listNames(view, IDC_TARGET1));
    }
    void accepted() override { library().dataCommand = 1; }

private:
    Composer composer_;
};

class ListCasesDialog : public ListingDialog<ListCasesSettings> {
public:
    ListCasesDialog()
        : ListingDialog(listCases,
                        Bindings<ListCasesSettings>()
                            .text(IDC_LIST_CHARACTERS, &ListCasesSettings::characters, kListFieldLimit)
                            .text(IDC_LIST_DECIMALS, &ListCasesSettings::decimals, kListFieldLimit)
                            .text(IDC_LIST_LAST_CASE, &ListCasesSettings::lastCase, kListFieldLimit)
                            .check(IDC_LIST_LABELS, &ListCasesSettings::labels)
                            .radio({IDC_LIST_ALL_CASES, IDC_LIST_SOME_CASES}, &ListCasesSettings::cases,
                                   Commit::OnClick)
                            .enableWith(IDC_LIST_LAST_CASE, IDC_LIST_SOME_CASES),
                        composeListCases) {}
};

class ByGroupsDialog : public ListingDialog<ByGroupsSettings> {
public:
    ByGroupsDialog()
        : ListingDialog(byGroups,
                        Bindings<ByGroupsSettings>()
                            .check(IDC_BY_EXCLUDE_MISSING, &ByGroupsSettings::excludeMissing)
                            .check(IDC_BY_NEW_PAGE, &ByGroupsSettings::newPage)
                            .check(IDC_BY_OFF, &ByGroupsSettings::off),
                        composeByGroups) {}
};

class CategoryDialog : public ListingDialog<CategorySettings> {
public:
    CategoryDialog()
        : ListingDialog(category,
                        Bindings<CategorySettings>()
                            .check(IDC_CATEGORY_MISSING, &CategorySettings::missing)
                            .check(IDC_CATEGORY_OFF, &CategorySettings::off),
                        composeCategory) {}
};

class ReshapeDialog : public ListingDialog<ReshapeSettings> {
public:
    // The choice itself is kept at OK; a click only shows what it needs.
    ReshapeDialog()
        : ListingDialog(reshape,
                        Bindings<ReshapeSettings>()
                            .text(IDC_RESHAPE_UNWRAP_BY, &ReshapeSettings::unwrapBy, kUnwrapFieldLimit)
                            .radio({IDC_RESHAPE_WRAP, IDC_RESHAPE_UNWRAP}, &ReshapeSettings::choice)
                            .enableWith(IDC_RESHAPE_UNWRAP_BY, IDC_RESHAPE_UNWRAP),
                        composeReshape) {}
};

// The method is kept in the extra option word of the Standardize descriptor.
std::int32_t& standardizeMethod() {
    static std::int32_t fallback = IDC_STANDARDIZE_SD;
    Descriptor* descriptor = descriptorFor(kStandardizeId);
    return descriptor ? descriptor->extra[0] : fallback;
}

class StandardizeDialog : public DialogBehaviour {
public:
    int init(DialogContext& context) override {
        const int method = standardizeMethod() == IDC_STANDARDIZE_RANGE ? IDC_STANDARDIZE_RANGE : IDC_STANDARDIZE_SD;
        context.view.setChecked(IDC_STANDARDIZE_SD, method == IDC_STANDARDIZE_SD);
        context.view.setChecked(IDC_STANDARDIZE_RANGE, method == IDC_STANDARDIZE_RANGE);
        return 0;
    }

    bool accept(DialogContext& context, int) override {
        DialogView& view = context.view;
        standardizeMethod() = view.isChecked(IDC_STANDARDIZE_RANGE) ? IDC_STANDARDIZE_RANGE : IDC_STANDARDIZE_SD;
        // Checked before the file is asked for, so a refused OK queues nothing.
        const Composition composition = composeStandardize(standardizeMethod(), listNames(view, IDC_TARGET1));
        if (composition.refused()) return deliver(view.handle(), composition);
        if (!runSaveFileStep(view, "")) return false;
        deliver(view.handle(), composition);
        library().dataCommand = 1;
        return true;
    }

    std::optional<Composition> preview(DialogContext& context) override {
        const int method = context.view.isChecked(IDC_STANDARDIZE_RANGE) ? IDC_STANDARDIZE_RANGE : IDC_STANDARDIZE_SD;
        return withProposedSave(context.view, "", composeStandardize(method, listNames(context.view, IDC_TARGET1)));
    }
};

class OrderDialog : public DialogBehaviour {
public:
    bool accept(DialogContext& context, int) override {
        if (!deliver(context.view.handle(), composeOrder(listNames(context.view, IDC_TARGET1)))) return false;
        library().dataCommand = 1;
        return true;
    }

    std::optional<Composition> preview(DialogContext& context) override {
        return composeOrder(listNames(context.view, IDC_TARGET1));
    }
};

}  // namespace

Composition composeListCases(const ListCasesSettings& s, const Names& names) {
    CommandText line(text::kList);
    joinNames(names, line, ' ');
    bool slash = false;
    if (s.cases == IDC_LIST_SOME_CASES && !isBlank(s.lastCase)) {
        const CommandText::Piece piece(line);
        line.append(text::kListCases).append(s.lastCase);
        slash = true;
    }
    if (s.labels) {
        if (!slash) line.append(text::kListSlash);
        line.append(text::kListLabel);
        slash = true;
    }
    if (!isBlank(s.characters)) {
        if (!slash) line.append(text::kListSlash);
        // Without decimals the line keeps its slash and nothing more.
        const CommandText::Piece piece(line);
        if (!isBlank(s.decimals)) line.append(text::kListFormat).append(s.characters).append(',').append(s.decimals);
    }
    return Composition().add(line);
}

Composition composeByGroups(const ByGroupsSettings& s, const Names& names) {
    if (s.off) return Composition().add(text::kBy);
    Composition composition = namesLine(text::kBy, names);
    if (composition.refused()) return composition;
    if (s.excludeMissing || s.newPage) composition.extend(text::kByOptions);
    if (s.excludeMissing) composition.extend(text::kByMissing);
    if (s.newPage) composition.extend(text::kByPage);
    return composition;
}

Composition composeCategory(const CategorySettings& s, const Names& names) {
    if (s.off) return Composition().add(text::kCategory);
    Composition composition = namesLine(text::kCategory, names);
    if (s.missing) composition.extend(text::kCategoryMissing);
    return composition;
}

Composition composeReshape(const ReshapeSettings& s, const Names& names) {
    if (s.choice == IDC_RESHAPE_WRAP) return namesLine(text::kWrap, names);
    if (isBlank(s.unwrapBy)) return Composition::refuse(text::kUnwrapValue);
    return Composition().add(CommandText(text::kUnwrap).append(s.unwrapBy));
}

Composition composeStandardize(int method, const Names& names) {
    Composition composition = namesLine(text::kStandardize, names);
    if (method == IDC_STANDARDIZE_RANGE) composition.extend(text::kStandardizeRange);
    return composition;
}

Composition composeOrder(const Names& names) { return namesLine(text::kOrder, names); }

DialogBehaviour& listCasesBehaviour() { return soleInstance<ListCasesDialog>(); }
DialogBehaviour& byGroupsBehaviour() { return soleInstance<ByGroupsDialog>(); }
DialogBehaviour& categoryBehaviour() { return soleInstance<CategoryDialog>(); }
DialogBehaviour& reshapeBehaviour() { return soleInstance<ReshapeDialog>(); }
DialogBehaviour& standardizeBehaviour() { return soleInstance<StandardizeDialog>(); }
DialogBehaviour& orderBehaviour() { return soleInstance<OrderDialog>(); }

}  // namespace kvs::data
