#include "core/file_choosers.h"

#include "core/file_filters.h"

namespace kvs {

namespace {

constexpr std::size_t kSaveBufferCapacity = 260;
constexpr std::size_t kNameCapacity = 130;
constexpr std::uint32_t kSaveFlags = 2054;  // hide read-only, path must exist, prompt before overwriting

std::string& lastName() {
    static std::string name;
    return name;
}

std::string bounded(std::string text, std::size_t capacity) {
    if (text.size() >= capacity) text.resize(capacity - 1);
    return text;
}

}  // namespace

bool saveAFile(WindowRef owner, std::string& path) {
    FileRequest request;
    request.owner = owner;
    request.save = true;
    request.title = "Save a File";
    request.filter = fileFilters().data;
    request.defaultExtension = "KVD";
    request.initialName = bounded(path, kSaveBufferCapacity);
    request.flags = kSaveFlags;
    request.capacity = kSaveBufferCapacity;
    const std::optional<std::string> chosen = ui().chooseFile(request);
    if (!chosen) return false;
    path = bounded(*chosen, kSaveBufferCapacity);
    lastName() = bounded(path, kNameCapacity);
    return true;
}

const std::string& savedFileName() { return lastName(); }

void resetFileChoosers() { lastName().clear(); }

}  // namespace kvs
