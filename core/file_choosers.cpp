#include "core/file_choosers.h"

#include "core/command_queue.h"
#include "core/command_text.h"
#include "core/file_filters.h"
#include "core/library_state.h"
#include "include/kvs_imports.h"

namespace kvs {

namespace {

constexpr std::size_t kSaveBufferCapacity = 260;
constexpr std::size_t kNameCapacity = 130;
constexpr std::uint32_t kSaveFlags = 2054;   // hide read-only, path must exist, prompt before overwriting
constexpr std::uint32_t kOpenFlags = 4100;   // hide read-only, file must exist
constexpr std::string_view kUseStart = "USE '";
constexpr std::string_view kUseEnd = "'";

struct ChooserState {
    std::string lastName;
    FileRecord output, graph, data, command, timeData;
    // Filter and default extension of the last open, which codes without
    // their own keep.
    std::string lastFilter;
    std::string lastExtension;
};

ChooserState& state() {
    static ChooserState s;
    return s;
}

std::string bounded(std::string text, std::size_t capacity) {
    if (capacity == 0) return {};
    if (text.size() >= capacity) text.resize(capacity - 1);
    return text;
}

FileRecord* ownRecord(int purpose) {
    ChooserState& s = state();
    switch (purpose) {
    case kOpenOutput: return &s.output;
    case kOpenTimeData: return &s.timeData;
    case kOpenData: return &s.data;
    case kOpenGraph: return &s.graph;
    case kOpenCommand: return &s.command;
    default: return nullptr;
    }
}

// Folder and name of a path, joined again as the time dialog shows them.
std::string folderAndName(const std::string& path) {
    const std::size_t cut = path.find_last_of("\\/:");
    const std::string folder = cut == std::string::npos ? std::string() : path.substr(0, cut + 1);
    const std::string name = cut == std::string::npos ? path : path.substr(cut + 1);
    return bounded(folder + name, kFileRecordCapacity);
}

bool queueUseOf(const FileRecord* record) {
    if (!record || record->state != 1 || !isDataFile(record->path)) return false;
    CommandText line(kUseStart);
    line.append(record->path).append(kUseEnd);
    queue::push(line.c_str(), nullptr);
    library().commandsQueued = 1;
    return true;
}

}  // namespace

namespace {

// Runs the chooser; when Windows refuses to open it because the initial name
// cannot be a file name (a name the user typed), it opens again with none.
std::optional<std::string> runChooser(FileRequest request) {
    DialogUpScope up;  // no dialog starts while a chooser is up
    std::optional<std::string> chosen = ui().chooseFile(request);
    if (!chosen && !request.initialName.empty() && ui().chooserError() == UiServices::kChooserInvalidFileName) {
        request.initialName.clear();
        chosen = ui().chooseFile(request);
    }
    return chosen;
}

}  // namespace

bool chooseSaveFile(WindowRef owner, std::string_view title, std::string& path) {
    FileRequest request;
    request.owner = owner;
    request.save = true;
    request.title = std::string(title);
    request.filter = fileFilters().data;
    request.defaultExtension = "KVD";
    request.initialName = bounded(path, kSaveBufferCapacity);
    request.flags = kSaveFlags;
    request.capacity = kSaveBufferCapacity;
    const std::optional<std::string> chosen = runChooser(request);
    if (!chosen) return false;
    path = bounded(*chosen, kSaveBufferCapacity);
    return true;
}

bool saveAFile(WindowRef owner, std::string& path) {
    if (!chooseSaveFile(owner, "Save a File", path)) return false;
    state().lastName = bounded(path, kNameCapacity);
    return true;
}

const std::string& savedFileName() { return state().lastName; }

int openAFile(DialogView& owner, int purpose) {
    ChooserState& s = state();
    const FileFilters& filters = fileFilters();
    FileRecord* record = ownRecord(purpose);
    switch (purpose) {
    case kOpenOutput: s.lastFilter = filters.outputFirst; s.lastExtension = "DAT"; break;
    case kOpenTimeData: s.lastFilter = filters.dataOnly; s.lastExtension = "KVD"; break;
    case kOpenData:
    case kOpenLast: s.lastFilter = filters.allTypes; s.lastExtension = "KVD"; break;
    case kOpenGraph: s.lastFilter = filters.graphFirst; s.lastExtension = "KVG"; break;
    case kOpenCommand: s.lastFilter = filters.commandFirst; s.lastExtension = "KVC"; break;
    default: break;
    }
    // The record of the last open is forgotten after every open, so a code
    // without a record of its own chooses into one that is not kept.
    FileRecord scratch;
    if (!record) record = &scratch;

    s.lastName.clear();
    FileRequest request;
    request.owner = owner.handle();
    request.title = "Open a File";
    request.filter = s.lastFilter;
    request.defaultExtension = s.lastExtension;
    request.initialName = record->path;
    request.flags = kOpenFlags;
    request.capacity = kFileRecordCapacity;
    const std::optional<std::string> chosen = runChooser(request);
    if (!chosen) return 1;
    record->path = bounded(*chosen, kFileRecordCapacity);
    record->state = 1;
    if (purpose == kOpenTimeData)
        owner.setText(kTimeDataFileControl, folderAndName(record->path));
    else if (record != &scratch)
        queueUseOf(record);
    return 1;
}

bool queueUse(int purpose) { return queueUseOf(ownRecord(purpose)); }

const FileRecord* fileRecord(int purpose) { return ownRecord(purpose); }

bool browseForAFile(DialogView& owner, std::string& result, std::size_t capacity, const std::string& remembered,
                    int controlId) {
    result.clear();
    // The browse option of the data dialogs is on: the chooser starts from
    // the name the dialog remembers.
    FileRequest request;
    request.owner = owner.handle();
    request.title = "Browse for a File";
    request.filter = fileFilters().data;
    request.defaultExtension = "KVD";
    request.initialName = bounded(remembered, capacity);
    request.flags = kOpenFlags;
    request.capacity = capacity;
    const std::optional<std::string> chosen = runChooser(request);
    if (!chosen) return false;
    result = bounded(*chosen, capacity);
    owner.setText(controlId, result);
    return true;
}

bool isDataFile(const std::string& path) {
    if (path.find_first_not_of(' ') == std::string::npos) return false;
    char* block = nullptr;
    const std::int32_t count = GetFileVariables(path.c_str(), &block);
    if (block) {
        void* memory = block;
        free_mem_ex(&memory);
    }
    return count > 0;
}

void resetFileChoosers() { state() = ChooserState{}; }

}  // namespace kvs
