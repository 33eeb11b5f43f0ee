// The listing dialogs built on target list 10: List Cases, By Groups,
// Category, Reshape, Standardize and Order.
#include "core/descriptor.h"
#include "data/join_names.h"
#include "data/listing_compose.h"
#include "data/listing_dialogs.h"
#include "data/data_texts.h"
#include "data/save_file_step.h"
#include "core/messages.h"
#include "resources/data_ids.h"

namespace kvs::data {

namespace {

using listing::queueLine;
using listing::refuse;

constexpr std::uint16_t kStandardizeId = 70;

bool clicked(int notifyCode) { return notifyCode == kButtonClicked; }

struct ListCasesSettings {
    std::string characters;
    std::string decimals;
    std::string lastCase;
    int cases = IDC_LIST_ALL_CASES;  // stored at each click
    bool labels = false;
};

struct ByGroupsSettings {
    bool excludeMissing = false;
    bool newPage = false;
    bool off = false;
};

struct CategorySettings {
    bool missing = false;
    bool off = false;
};

struct ReshapeSettings {
    int choice = IDC_RESHAPE_WRAP;
    std::string unwrapBy;
};

ListCasesSettings listCases;
ByGroupsSettings byGroups;
CategorySettings category;
ReshapeSettings reshape;

class ListCasesDialog : public DialogBehaviour {
public:
    int init(DialogContext& context) override {
        DialogView& view = context.view;
        for (int id : {IDC_LIST_CHARACTERS, IDC_LIST_DECIMALS, IDC_LIST_LAST_CASE}) view.limitText(id, kListFieldLimit);
        view.setText(IDC_LIST_CHARACTERS, listCases.characters);
        view.setText(IDC_LIST_DECIMALS, listCases.decimals);
        view.setText(IDC_LIST_LAST_CASE, listCases.lastCase);
        view.setChecked(IDC_LIST_LABELS, listCases.labels);
        showCases(view);
        return 0;
    }

    int command(DialogContext& context, int controlId, int notifyCode) override {
        DialogView& view = context.view;
        if ((controlId == IDC_LIST_ALL_CASES || controlId == IDC_LIST_SOME_CASES) && clicked(notifyCode)) {
            listCases.cases = controlId;
            showCases(view);
            if (controlId == IDC_LIST_SOME_CASES) view.setFocus(IDC_LIST_LAST_CASE);
            return 0;
        }
        if (controlId != kIdOk) return 0;
        listCases.characters = listing::fieldText(view, IDC_LIST_CHARACTERS, kListFieldLimit);
        listCases.decimals = listing::fieldText(view, IDC_LIST_DECIMALS, kListFieldLimit);
        listCases.lastCase = listing::fieldText(view, IDC_LIST_LAST_CASE, kListFieldLimit);
        listCases.labels = view.isChecked(IDC_LIST_LABELS);

        CommandText line(text::kList);
        joinNames(view, IDC_TARGET1, line, ' ');
        bool slash = false;
        if (listCases.cases == IDC_LIST_SOME_CASES && !isBlank(listCases.lastCase)) {
            line.append(text::kListCases).append(listCases.lastCase);
            slash = true;
        }
        if (listCases.labels) {
            if (!slash) line.append(text::kListSlash);
            line.append(text::kListLabel);
            slash = true;
        }
        if (!isBlank(listCases.characters)) {
            if (!slash) line.append(text::kListSlash);
            // Without decimals the line keeps its slash and nothing more.
            if (!isBlank(listCases.decimals))
                line.append(text::kListFormat).append(listCases.characters).append(',').append(listCases.decimals);
        }
        queueLine(line, true);
        return 1;
    }

private:
    static void showCases(DialogView& view) {
        listing::showChoice(view, IDC_LIST_ALL_CASES, IDC_LIST_SOME_CASES, listCases.cases);
        view.enable(IDC_LIST_LAST_CASE, listCases.cases == IDC_LIST_SOME_CASES);
    }
};

class ByGroupsDialog : public DialogBehaviour {
public:
    int init(DialogContext& context) override {
        DialogView& view = context.view;
        view.setChecked(IDC_BY_EXCLUDE_MISSING, byGroups.excludeMissing);
        view.setChecked(IDC_BY_NEW_PAGE, byGroups.newPage);
        view.setChecked(IDC_BY_OFF, byGroups.off);
        return 0;
    }

    int command(DialogContext& context, int controlId, int) override {
        if (controlId != kIdOk) return 0;
        DialogView& view = context.view;
        byGroups.excludeMissing = view.isChecked(IDC_BY_EXCLUDE_MISSING);
        byGroups.newPage = view.isChecked(IDC_BY_NEW_PAGE);
        byGroups.off = view.isChecked(IDC_BY_OFF);
        CommandText line(text::kBy);
        if (!byGroups.off) {
            if (joinNames(view, IDC_TARGET1, line, ' ') == 0) return refuse(view, kvs::text::kSelectVariables);
            if (byGroups.excludeMissing || byGroups.newPage) line.append(text::kByOptions);
            if (byGroups.excludeMissing) line.append(text::kByMissing);
            if (byGroups.newPage) line.append(text::kByPage);
        }
        queueLine(line, true);
        return 1;
    }
};

class CategoryDialog : public DialogBehaviour {
public:
    int init(DialogContext& context) override {
        context.view.setChecked(IDC_CATEGORY_MISSING, category.missing);
        context.view.setChecked(IDC_CATEGORY_OFF, category.off);
        return 0;
    }

    int command(DialogContext& context, int controlId, int) override {
        if (controlId != kIdOk) return 0;
        DialogView& view = context.view;
        category.missing = view.isChecked(IDC_CATEGORY_MISSING);
        category.off = view.isChecked(IDC_CATEGORY_OFF);
        CommandText line(text::kCategory);
        if (!category.off) {
            if (joinNames(view, IDC_TARGET1, line, ' ') == 0) return refuse(view, kvs::text::kSelectVariables);
            if (category.missing) line.append(text::kCategoryMissing);
        }
        queueLine(line, true);
        return 1;
    }
};

class ReshapeDialog : public DialogBehaviour {
public:
    int init(DialogContext& context) override {
        DialogView& view = context.view;
        view.limitText(IDC_RESHAPE_UNWRAP_BY, kUnwrapFieldLimit);
        view.setText(IDC_RESHAPE_UNWRAP_BY, reshape.unwrapBy);
        showChoice(view, reshape.choice);
        return 0;
    }

    int command(DialogContext& context, int controlId, int notifyCode) override {
        DialogView& view = context.view;
        if ((controlId == IDC_RESHAPE_WRAP || controlId == IDC_RESHAPE_UNWRAP) && clicked(notifyCode)) {
            // The choice itself is kept at OK; a click only shows what it needs.
            view.enable(IDC_RESHAPE_UNWRAP_BY, controlId == IDC_RESHAPE_UNWRAP);
            if (controlId == IDC_RESHAPE_UNWRAP) view.setFocus(IDC_RESHAPE_UNWRAP_BY);
            return 0;
        }
        if (controlId != kIdOk) return 0;
        reshape.choice = view.isChecked(IDC_RESHAPE_UNWRAP) ? IDC_RESHAPE_UNWRAP : IDC_RESHAPE_WRAP;
        reshape.unwrapBy = listing::fieldText(view, IDC_RESHAPE_UNWRAP_BY, kUnwrapFieldLimit);
        CommandText line;
        if (reshape.choice == IDC_RESHAPE_WRAP) {
            line.append(text::kWrap);
            if (joinNames(view, IDC_TARGET1, line, ' ') == 0) return refuse(view, kvs::text::kSelectVariables);
        } else {
            if (isBlank(reshape.unwrapBy)) return refuse(view, text::kUnwrapValue);
            line.append(text::kUnwrap).append(reshape.unwrapBy);
        }
        queueLine(line, true);
        return 1;
    }

private:
    static void showChoice(DialogView& view, int choice) {
        listing::showChoice(view, IDC_RESHAPE_WRAP, IDC_RESHAPE_UNWRAP, choice);
        view.enable(IDC_RESHAPE_UNWRAP_BY, choice == IDC_RESHAPE_UNWRAP);
    }
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
        listing::showChoice(context.view, IDC_STANDARDIZE_SD, IDC_STANDARDIZE_RANGE, method);
        return 0;
    }

    int command(DialogContext& context, int controlId, int) override {
        if (controlId != kIdOk) return 0;
        DialogView& view = context.view;
        standardizeMethod() = view.isChecked(IDC_STANDARDIZE_RANGE) ? IDC_STANDARDIZE_RANGE : IDC_STANDARDIZE_SD;
        // Checked before the file is asked for, so a refused OK queues nothing.
        CommandText line(text::kStandardize);
        if (joinNames(view, IDC_TARGET1, line, ' ') == 0) return refuse(view, kvs::text::kSelectVariables);
        if (standardizeMethod() == IDC_STANDARDIZE_RANGE) line.append(text::kStandardizeRange);
        if (!runSaveFileStep(view, "")) return 0;
        queueLine(line, true);
        return 1;
    }
};

class OrderDialog : public DialogBehaviour {
public:
    int command(DialogContext& context, int controlId, int) override {
        if (controlId != kIdOk) return 0;
        DialogView& view = context.view;
        CommandText line(text::kOrder);
        if (joinNames(view, IDC_TARGET1, line, ' ') == 0) return refuse(view, kvs::text::kSelectVariables);
        queueLine(line, true);
        return 1;
    }
};

}  // namespace

DialogBehaviour& listCasesBehaviour() { return soleInstance<ListCasesDialog>(); }
DialogBehaviour& byGroupsBehaviour() { return soleInstance<ByGroupsDialog>(); }
DialogBehaviour& categoryBehaviour() { return soleInstance<CategoryDialog>(); }
DialogBehaviour& reshapeBehaviour() { return soleInstance<ReshapeDialog>(); }
DialogBehaviour& standardizeBehaviour() { return soleInstance<StandardizeDialog>(); }
DialogBehaviour& orderBehaviour() { return soleInstance<OrderDialog>(); }

void listing::resetVariableDialogs() {
    listCases = {};
    byGroups = {};
    category = {};
    reshape = {};
    standardizeMethod() = IDC_STANDARDIZE_SD;
}

}  // namespace kvs::data
