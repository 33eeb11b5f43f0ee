#include "data/key_selection.h"

#include <new>

#include "core/command_text.h"
#include "data/data_family.h"
#include "core/descriptor.h"
#include "core/dialog_behaviour.h"
#include "core/dialog_defaults.h"
#include "core/launcher.h"
#include "core/messages.h"
#include "core/join_names.h"
#include "resources/common_ids.h"

namespace kvs::data {

namespace {

struct KeySettings {
    int flag = 0;  // 1 once a key selection was confirmed
    std::string keys;
};

KeySettings settings;

class KeySelectionDialog : public DialogBehaviour {
public:
    bool accept(DialogContext& context, int) override {
        DialogView& view = context.view;
        CommandText joined;
        if (joinNames(view, IDC_TARGET1, joined, ' ') == 0) {
            showStop(view.handle(), kvs::text::kSelectVariables);
            return false;
        }
        try {
            std::string fresh = joined.str();
            settings.keys.swap(fresh);
        } catch (const std::bad_alloc&) {
            showNoMemory(view.handle());
            return false;
        }
        return true;
    }

    // The selection goes with the keys: its arrays are released whatever
    // ReinitDialogs is asked to do.
    void addDefaults(DefaultsTable& table) override {
        table.record(settings);
        table.routine([](bool) {
            if (Descriptor* d = descriptorFor(kKeySelectionId)) resetSelection(*d, true, 1);
        });
    }
};

}  // namespace

DialogBehaviour& keySelectionBehaviour() { return soleInstance<KeySelectionDialog>(); }

int runKeySelection(WindowRef owner) {
    const int result = launchDialog(kKeySelectionId, owner, true);
    if (result == 1) settings.flag = 1;
    return result;
}

int keyFlag() { return settings.flag; }
const std::string& keyText() { return settings.keys; }

}  // namespace kvs::data
