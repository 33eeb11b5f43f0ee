// The statement that calls the library's exports with the null pointers and
// out-of-range values their contracts let a host pass, and reports what each
// call gave back or wrote.
#include <climits>
#include <cstring>
#include <string>
#include <vector>

#include "tools/scenario/call_statements.h"

namespace kvs::scenario {

namespace {

constexpr std::uint16_t kUntouched = 0xBEEF;

struct Caller {
    CallContext& call;
    void line(const std::string& what, const std::string& result) const { call.emit("nullcall " + what + " = " + result); }
};

std::string sameAs(std::int32_t result, std::int32_t expected, const char* name) {
    return result == expected ? std::string(name) : std::to_string(result);
}

// What a text export wrote into eight bytes filled with 'X'.
std::string written(const char (&text)[8]) {
    if (text[0] == 'X') return "nothing written";
    const std::size_t length = strnlen(text, sizeof text);
    if (length == sizeof text) return "no end written";
    if (length + 1 < sizeof text && text[length + 1] != 'X') return "written past the end";
    if (length == 0) return "only the end";
    return std::to_string(length) + " characters and the end";
}

void listAndVersion(const Caller& c, const LibraryExports& e) {
    const std::int32_t served = e.getDialogList(nullptr, 0);
    c.line("GetDialogList(null, 0)", served > 0 ? "the number of dialogs" : std::to_string(served));
    c.line("GetDialogList(null, -5)", sameAs(e.getDialogList(nullptr, -5), served, "the number of dialogs"));
    std::vector<KvsDialogEntry> entries(2, KvsDialogEntry{kUntouched, 0, nullptr, nullptr});
    const std::int32_t listed = e.getDialogList(entries.data(), 1);
    c.line("GetDialogList(room for 2, 1)", sameAs(listed, served, "the number of dialogs") +
                                               (entries[1].commandId == kUntouched ? ", one entry written"
                                                                                   : ", written past the room given"));

    const std::int32_t version = e.getLibraryVersion(nullptr, 100);
    c.line("GetLibraryVersion(null, 100)", version > 0 ? "the length of the version" : std::to_string(version));
    for (const std::int32_t capacity : {0, 1, 3, -1}) {
        char text[8];
        std::memset(text, 'X', sizeof text);
        const std::int32_t result = e.getLibraryVersion(text, capacity);
        c.line("GetLibraryVersion(8 bytes, " + std::to_string(capacity) + ")",
               sameAs(result, version, "the length of the version") + ", " + written(text));
    }
}

void settings(const Caller& c, const LibraryExports& e) {
    for (const std::int32_t value : {INT_MIN, INT_MAX})
        c.line("ReinitDialogs(" + std::to_string(value) + ")", std::to_string(e.reinitDialogs(value)));
    for (const std::int32_t value : {INT_MIN, INT_MAX, 0})
        c.line("SetDlgSortList(" + std::to_string(value) + ")", std::to_string(e.setDlgSortList(value)));
}

void withoutState(const Caller& c, const LibraryExports& e) {
    c.line("AttachSaveAsOptions(null)", std::to_string(e.attachSaveAsOptions(nullptr)));
    c.line("AttachImpExpOptions(null)", std::to_string(e.attachImpExpOptions(nullptr)));
    c.line("ColorPickerDialogEx(null, null)", std::to_string(e.colorPickerDialogEx(nullptr, nullptr)));
    c.line("LoadSymbolBitmapsEx(null)", std::to_string(e.loadSymbolBitmapsEx(nullptr)));
    e.deleteSymbolBitmapsEx();
    e.deleteSymbolBitmapsEx();
    c.line("DeleteSymbolBitmapsEx() twice", "done");
    e.clearSamplingDialog();
    e.clearSamplingDialog();
    c.line("ClearSamplingDialog() twice", "done");
    for (const auto& [remaining, elapsed] : {std::pair{-1, INT_MIN}, std::pair{INT_MAX, INT_MAX}})
        c.line("UpdateSamplingDialog(" + std::to_string(remaining) + ", " + std::to_string(elapsed) + ")",
               std::to_string(e.updateSamplingDialog(remaining, elapsed)));
}

}  // namespace

void runNullCalls(CallContext& call) {
    const LibraryExports& e = call.exports();
    const std::pair<const void*, const char*> needed[] = {
        {reinterpret_cast<const void*>(e.getDialogList), "GetDialogList"},
        {reinterpret_cast<const void*>(e.getLibraryVersion), "GetLibraryVersion"},
        {reinterpret_cast<const void*>(e.reinitDialogs), "ReinitDialogs"},
        {reinterpret_cast<const void*>(e.setDlgSortList), "SetDlgSortList"},
        {reinterpret_cast<const void*>(e.attachSaveAsOptions), "AttachSaveAsOptions"},
        {reinterpret_cast<const void*>(e.attachImpExpOptions), "AttachImpExpOptions"},
        {reinterpret_cast<const void*>(e.colorPickerDialogEx), "ColorPickerDialogEx"},
        {reinterpret_cast<const void*>(e.loadSymbolBitmapsEx), "LoadSymbolBitmapsEx"},
        {reinterpret_cast<const void*>(e.deleteSymbolBitmapsEx), "DeleteSymbolBitmapsEx"},
        {reinterpret_cast<const void*>(e.clearSamplingDialog), "ClearSamplingDialog"},
        {reinterpret_cast<const void*>(e.updateSamplingDialog), "UpdateSamplingDialog"},
    };
    for (const auto& [entry, name] : needed)
        if (!call.has(entry, name)) return;
    const Caller caller{call};
    listAndVersion(caller, e);
    settings(caller, e);
    withoutState(caller, e);
}

}  // namespace kvs::scenario
