// Writes, for the release archives, from the library's own rows and the
// very templates windres compiles:
//   served_dialogs             the menu commands kvs_dlg.dll serves through
//                              StartDialog, with family, caption and template
//   served_dialogs --controls  the control ids of each served dialog, with
//                              kind and label, for hosts that drive the
//                              dialogs in their own tests
#include <cstdio>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "families/library.h"
#include "headless/embedded_resources.h"
#include "headless/headless_dialog.h"
#include "headless/rc_template.h"
#include "include/kvs_dlg.h"

namespace {

using kvs::headless::ControlKind;
using kvs::headless::ControlTemplate;
using kvs::headless::DialogTemplate;

std::vector<KvsDialogEntry> servedEntries() {
    kvs::installLibraryFamilies();
    const int32_t count = GetDialogList(nullptr, 0);
    std::vector<KvsDialogEntry> entries(static_cast<std::size_t>(count > 0 ? count : 0));
    GetDialogList(entries.data(), count);
    return entries;
}

std::string libraryVersion() {
    char version[32] = {};
    GetLibraryVersion(version, sizeof version);
    return version;
}

// What a command without a dialog of its own does when StartDialog runs it.
const char* withoutDialog(unsigned id) {
    switch (id) {
        case 76: return "asks for a file name in a save-file chooser titled \"Extract\" and queues \"EXTRACT 'name'\"";
        case 150: return "the graph font chooser; on OK writes the chosen font into the exported `lfKvgFont`; queues nothing";
        case 153: return "copies the exported `lfDefKvgFont` (set it first) into `lfKvgFont`; no window, queues nothing";
        case 242: return "queues the series command \"CLEAR\"";
        case 245: return "queues \"MISSING=DELETE\", then `CheckMainMenuItem(245, 1)` and `CheckMainMenuItem(246, 0)`";
        case 246: return "queues \"MISSING=INTERPOLATE\", then `CheckMainMenuItem(245, 0)` and `CheckMainMenuItem(246, 1)`";
        default: return "runs without a dialog of its own";
    }
}

int writeServedList() {
    static const char* const kFamilies[] = {"data", "graph", "statistics"};
    const std::vector<KvsDialogEntry> entries = servedEntries();
    std::printf("# Menu commands served by kvs_dlg.dll %s\n\n", libraryVersion().c_str());
    std::printf("StartDialog(id, ...) shows the dialog named here. The ids without a caption run without a\n"
                "dialog of their own; the last column says what they do.\n\n");
    std::printf("| id | family | caption | template | without a dialog |\n|---:|---|---|---|---|\n");
    for (const KvsDialogEntry& entry : entries) {
        const bool ownDialog = entry.caption != nullptr;
        std::printf("| %u | %s | %s | %s | %s |\n", static_cast<unsigned>(entry.commandId),
                    entry.family < 3 ? kFamilies[entry.family] : "?", ownDialog ? entry.caption : "",
                    entry.templateName ? entry.templateName : "", ownDialog ? "" : withoutDialog(entry.commandId));
    }
    return 0;
}

const char* kindOf(const ControlTemplate& control) {
    switch (control.kind) {
        case ControlKind::Button:
            if (control.isGroupBox()) return "group box";
            if (control.isRadio()) return "radio button";
            if (control.isCheckBox()) return "check box";
            return "button";
        case ControlKind::Edit: return "edit";
        case ControlKind::ListBox: return control.listMulti() ? "list (multiple choice)" : "list";
        case ControlKind::ComboBox: return control.comboDropList() ? "drop-down list" : "combo box";
        case ControlKind::Static: return "text";
        case ControlKind::ScrollBar: return "scroll bar";
        case ControlKind::Other: break;
    }
    return control.className.c_str();
}

// A button's own text; a list's, edit's or combo box's the static just before it.
std::string labelOf(const DialogTemplate& dialog, std::size_t index) {
    const ControlTemplate& control = dialog.controls[index];
    std::string text;
    if (control.kind == ControlKind::Button || control.kind == ControlKind::Static) {
        text = control.text;
    } else if (index > 0 && dialog.controls[index - 1].kind == ControlKind::Static) {
        text = dialog.controls[index - 1].text;
    }
    text = kvs::headless::withoutMnemonics(text);
    std::string cell;
    for (char c : text) cell += c == '|' ? '/' : c;
    return cell;
}

bool unnamed(int id) { return id == -1 || id == 0xFFFF; }

int writeControlIds() {
    kvs::headless::ResourceSet resources;
    resources.load(kvs::headless::embeddedResources());
    std::printf("# Control ids of the dialogs of kvs_dlg.dll %s\n\n", libraryVersion().c_str());
    std::printf("Written from the dialog templates the DLL is built from. The ids are stable within a major\n"
                "version. A list, edit field or combo box is labelled by the text just before it. Labels are\n"
                "shown without their \"&\". Texts without an id (-1) are left out.\n");
    // Dialogs that share a template are listed once, under all their ids.
    std::map<std::string, std::vector<unsigned>> idsOfTemplate;
    std::vector<std::string> order;
    for (const KvsDialogEntry& entry : servedEntries()) {
        if (!entry.templateName) continue;
        auto& ids = idsOfTemplate[entry.templateName];
        if (ids.empty()) order.push_back(entry.templateName);
        ids.push_back(entry.commandId);
    }
    for (const std::string& name : order) {
        const DialogTemplate* dialog = resources.dialog(name);
        if (!dialog) continue;
        std::string ids;
        for (unsigned id : idsOfTemplate[name]) ids += (ids.empty() ? "" : ", ") + std::to_string(id);
        std::printf("\n## %s (template %s; menu command %s)\n\n", dialog->caption.c_str(), dialog->name.c_str(),
                    ids.c_str());
        std::printf("| id | kind | label |\n|---:|---|---|\n");
        for (std::size_t i = 0; i < dialog->controls.size(); ++i) {
            const ControlTemplate& control = dialog->controls[i];
            if (unnamed(control.id)) continue;
            std::printf("| %d | %s | %s |\n", control.id, kindOf(control), labelOf(*dialog, i).c_str());
        }
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc > 1 && std::strcmp(argv[1], "--controls") == 0) return writeControlIds();
    return writeServedList();
}
