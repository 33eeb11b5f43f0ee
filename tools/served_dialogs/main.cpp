// Writes the menu commands kvs_dlg.dll serves through StartDialog, with their
// family, dialog caption and template, as the Markdown table that ships in
// the release archives. Generated from the library's own rows.
#include <cstdio>
#include <vector>

#include "families/library.h"
#include "include/kvs_dlg.h"

int main() {
    kvs::installLibraryFamilies();
    const int32_t count = GetDialogList(nullptr, 0);
    std::vector<KvsDialogEntry> entries(static_cast<std::size_t>(count > 0 ? count : 0));
    GetDialogList(entries.data(), count);
    static const char* const kFamilies[] = {"data", "graph", "statistics"};
    char version[32] = {};
    GetLibraryVersion(version, sizeof version);
    std::printf("# Menu commands served by kvs_dlg.dll %s\n\n", version);
    std::printf("StartDialog(id, ...) shows the dialog named here. An id without a caption runs without a\n"
                "dialog of its own (a file chooser, the font chooser, or lines queued at once).\n\n");
    std::printf("| id | family | caption | template |\n|---:|---|---|---|\n");
    for (const KvsDialogEntry& entry : entries)
        std::printf("| %u | %s | %s | %s |\n", static_cast<unsigned>(entry.commandId),
                    entry.family < 3 ? kFamilies[entry.family] : "?", entry.caption ? entry.caption : "",
                    entry.templateName ? entry.templateName : "");
    return 0;
}
