// The memory the library keeps in Windows global memory: the selection
// arrays of its dialogs. It is taken through a pair of functions the
// platform sets (GlobalAlloc in the DLL; an allocator that can be told to
// fail under the headless backend), so that running out of it is a path
// that can be tested.
#pragma once

#include <cstddef>
#include <cstdint>
#include <new>
#include <vector>

namespace kvs {

struct GlobalMemory {
    void* (*allocate)(std::size_t bytes) = nullptr;  // zero-filled; null when there is none
    void (*release)(void* block) = nullptr;
};

// Until this is called, the C heap serves.
void setGlobalMemory(GlobalMemory functions);
void* allocateGlobal(std::size_t bytes);
void releaseGlobal(void* block);

template <typename T>
struct GlobalAllocator {
    using value_type = T;
    GlobalAllocator() = default;
    template <typename U>
    GlobalAllocator(const GlobalAllocator<U>&) {}

    T* allocate(std::size_t count) {
        if (count > static_cast<std::size_t>(-1) / sizeof(T)) throw std::bad_alloc();
        void* block = allocateGlobal(count * sizeof(T));
        if (!block) throw std::bad_alloc();
        return static_cast<T*>(block);
    }
    void deallocate(T* block, std::size_t) { releaseGlobal(block); }

    template <typename U>
    bool operator==(const GlobalAllocator<U>&) const {
        return true;
    }
};

// An array of variable indices in global memory.
using GlobalIndices = std::vector<std::int32_t, GlobalAllocator<std::int32_t>>;

}  // namespace kvs
