#include "core/global_memory.h"

#include <cstdlib>

namespace kvs {

namespace {

void* heapAllocate(std::size_t bytes) { return std::calloc(bytes ? bytes : 1, 1); }
void heapRelease(void* block) { std::free(block); }

GlobalMemory& functions() {
    static GlobalMemory current{heapAllocate, heapRelease};
    return current;
}

}  // namespace

void setGlobalMemory(GlobalMemory given) {
    if (given.allocate && given.release) functions() = given;
}

void* allocateGlobal(std::size_t bytes) { return functions().allocate(bytes); }

void releaseGlobal(void* block) {
    if (block) functions().release(block);
}

}  // namespace kvs
