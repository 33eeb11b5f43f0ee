// The file filters on the real common Open dialog: every filter the library
// prepares offers exactly its descriptions, in order, in the dialog's file
// type box. A thread timer reads the box and cancels the dialog.
#include <windows.h>

#include <string>
#include <vector>

#include "core/file_filters.h"
#include "core/seam.h"
#include "tests/win/controls_checks.h"

namespace {

constexpr int kFileTypeBox = 0x470;  // cmb1 of the common file dialogs
constexpr char kTitle[] = "Open a File";

std::vector<std::string> shownTypes;
bool dialogSeen = false;

// The descriptions of a filter: every other '|'-separated piece.
std::vector<std::string> descriptionsOf(const std::string& filter) {
    std::vector<std::string> descriptions;
    std::size_t start = 0;
    for (bool description = true; start < filter.size(); description = !description) {
        const std::size_t bar = filter.find('|', start);
        if (bar == std::string::npos) break;
        if (description) descriptions.push_back(filter.substr(start, bar - start));
        start = bar + 1;
    }
    return descriptions;
}

void CALLBACK readAndCancel(HWND, UINT, UINT_PTR timer, DWORD) {
    const HWND dialog = FindWindowA("#32770", kTitle);
    if (!dialog || !IsWindowVisible(dialog)) return;
    KillTimer(nullptr, timer);
    dialogSeen = true;
    const HWND box = GetDlgItem(dialog, kFileTypeBox);
    const auto count = box ? static_cast<int>(SendMessageA(box, CB_GETCOUNT, 0, 0)) : 0;
    for (int i = 0; i < count; ++i) {
        const auto length = SendMessageA(box, CB_GETLBTEXTLEN, static_cast<WPARAM>(i), 0);
        std::vector<char> buffer(length > 0 ? static_cast<std::size_t>(length) + 1 : 1, '\0');
        SendMessageA(box, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(buffer.data()));
        shownTypes.emplace_back(buffer.data());
    }
    PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
}

}  // namespace

kvs::check::Failures checkFileFilters() {
    kvs::check::Failures failures;
    kvs::prepareFileFilters();
    const kvs::FileFilters& f = kvs::fileFilters();
    const struct {
        const char* name;
        const std::string* filter;
    } filters[] = {{"data", &f.data},          {"output", &f.output},         {"picture", &f.picture},
                   {"graph export", &f.graphExport}, {"command", &f.command}, {"all types", &f.allTypes},
                   {"output first", &f.outputFirst}, {"graph first", &f.graphFirst},
                   {"command first", &f.commandFirst}, {"import", &f.import}};
    for (const auto& entry : filters) {
        shownTypes.clear();
        dialogSeen = false;
        SetTimer(nullptr, 0, 50, readAndCancel);
        kvs::FileRequest request;
        request.title = kTitle;
        request.filter = *entry.filter;
        request.flags = OFN_HIDEREADONLY | OFN_FILEMUSTEXIST;
        const auto chosen = kvs::ui().chooseFile(request);
        const std::string name = std::string("file filter ") + entry.name;
        kvs::check::expect(failures, !chosen, name + ": the cancelled dialog returned a file");
        kvs::check::expect(failures, dialogSeen, name + ": no Open dialog appeared");
        if (dialogSeen)
            kvs::check::expect(failures, shownTypes == descriptionsOf(*entry.filter),
                               name + ": the dialog offers " + std::to_string(shownTypes.size()) +
                                   " types, not the filter's " + std::to_string(descriptionsOf(*entry.filter).size()));
    }
    return failures;
}
