#include "core/remembered_memory.h"

#include <algorithm>

namespace kvs {

void OptionBlock::create(std::size_t size) {
    bytes_.resize(size, '\0');
    if (size > 0) bytes_.back() = '\0';
    state_ = State::Present;
}

void OptionBlock::markUnusable() {
    bytes_.clear();
    state_ = State::Unusable;
}

std::string_view OptionBlock::text() const {
    if (!present() || bytes_.empty()) return {};
    const auto end = std::find(bytes_.begin(), bytes_.end(), '\0');
    return std::string_view(bytes_.data(), static_cast<std::size_t>(end - bytes_.begin()));
}

void OptionBlock::setText(std::string_view text, std::size_t capacity) {
    if (!present() || bytes_.size() < capacity) create(capacity);
    if (bytes_.empty()) return;
    const std::size_t count = std::min(text.size(), bytes_.size() - 1);
    std::fill(bytes_.begin(), bytes_.end(), '\0');
    std::copy_n(text.begin(), count, bytes_.begin());
}

void OptionBlock::clear() {
    if (present()) std::fill(bytes_.begin(), bytes_.end(), '\0');
}

void OptionBlock::release() {
    if (!present()) return;
    bytes_.clear();
    bytes_.shrink_to_fit();
    state_ = State::Absent;
}

void IndexArray::create(std::size_t count) {
    entries_.assign(count, -1);
    present_ = true;
}

void IndexArray::clear(std::int32_t count) {
    if (!present_ || count <= 0) return;
    std::fill_n(entries_.begin(), std::min(entries_.size(), static_cast<std::size_t>(count)), -1);
}

void IndexArray::release() {
    entries_.clear();
    entries_.shrink_to_fit();
    present_ = false;
}

}  // namespace kvs
