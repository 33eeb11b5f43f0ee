#include "standin/kernel_state.h"

#include <cstdlib>
#include <cstring>

namespace kvs::standin {

KernelState& KernelState::instance() {
    static KernelState state;
    return state;
}

void KernelState::setVariables(std::vector<std::string> names) { variables_ = std::move(names); }

void* KernelState::reallocate(void** block, std::int32_t count, std::int32_t elementSize) {
    void* old = block ? *block : nullptr;
    const bool fail = !takeAllocation();
    if (fail) failedElementSize_ = elementSize;
    const std::size_t size = count > 0 && elementSize > 0
                                 ? static_cast<std::size_t>(count) * static_cast<std::size_t>(elementSize)
                                 : 0;
    if (fail || size == 0 || !block) {
        // On failure the old block is the kernel's to release.
        if (old) {
            live_.erase(old);
            std::free(old);
        }
        if (block) *block = nullptr;
        return nullptr;
    }
    std::size_t oldSize = 0;
    if (old) {
        auto it = live_.find(old);
        oldSize = it == live_.end() ? 0 : it->second;
    }
    void* grown = std::realloc(old, size);
    if (!grown) {
        if (old) {
            live_.erase(old);
            std::free(old);
        }
        *block = nullptr;
        return nullptr;
    }
    if (old) live_.erase(old);
    if (size > oldSize) std::memset(static_cast<char*>(grown) + oldSize, 0, size - oldSize);
    live_[grown] = size;
    *block = grown;
    return grown;
}

void KernelState::release(void** block) {
    if (!block || !*block) return;
    ++frees_;
    live_.erase(*block);
    std::free(*block);
    *block = nullptr;
}

void KernelState::reset() {
    for (auto& [pointer, size] : live_) std::free(pointer);
    live_.clear();
    variables_.clear();
    allocations_ = frees_ = failCountdown_ = 0;
    failedElementSize_ = -1;
}

}  // namespace kvs::standin
