#include "data/key_selection.h"

#include <new>

#include "core/command_text.h"
#include "core/descriptor.h"
#include "core/launcher.h"
#include "core/messages.h"
#include "data/join_names.h"
#include "resources/common_ids.h"

namespace kvs::data {

namespace {

// Not a menu entry: StartDialog(91) shows nothing; only Merge opens it.
constexpr DispatchRow kKeyRow{kKeySelectionId, "KeyVars", "Key Selection", Family::Data, Launch::Standard, 1, 256, 0,
                              0, 0};

Descriptor& keyDescriptor() {
    static Descriptor d = freshDescriptor(kKeyRow);
    return d;
}

int flag = 0;

std::string& keys() {
    static std::string text;
    return text;
}

class KeySelectionDialog : public DialogBehaviour {
public:
    int command(DialogContext& context, int controlId, int) override {
        if (controlId != kIdOk) return 0;
        DialogView& view = context.view;
        CommandText joined;
        if (joinNames(view, IDC_TARGET1, joined, ' ') == 0) {
            showStop(view.handle(), kvs::text::kSelectVariables);
            return 0;
        }
        try {
            std::string fresh = joined.str();
            keys().swap(fresh);
        } catch (const std::bad_alloc&) {
            showNoMemory(view.handle());
            return 0;
        }
        return 1;
    }
};

}  // namespace

DialogBehaviour& keySelectionBehaviour() { return soleInstance<KeySelectionDialog>(); }

int runKeySelection(WindowRef owner) {
    const int result = launchDialog(kKeyRow, keyDescriptor(), owner, true);
    if (result == 1) flag = 1;
    return result;
}

int keyFlag() { return flag; }
const std::string& keyText() { return keys(); }

void resetKeySelection() {
    flag = 0;
    keys().clear();
    resetSelection(keyDescriptor(), true, kKeyRow.mode);
}

}  // namespace kvs::data
