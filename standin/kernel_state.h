// The stand-in statistics kernel: the variables of the data file in use and
// an allocator that counts what it hands out and can be told to fail.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

namespace kvs::standin {

class KernelState {
public:
    static KernelState& instance();

    void setVariables(std::vector<std::string> names);
    const std::vector<std::string>& variables() const { return variables_; }

    // Allocation calls from now on: the nth one (1 = the next) fails; 0: none.
    // The kernel's reallocations and the library's global memory (through
    // takeAllocation) count alike.
    void failAllocation(int nth) { failCountdown_ = nth; }
    // Counts one allocation; false when it is the one to fail.
    bool takeAllocation() {
        ++allocations_;
        const bool fails = failCountdown_ > 0 && --failCountdown_ == 0;
        if (fails) failedElementSize_ = 0;
        return !fails;
    }
    // The element size of the kernel reallocation that was made to fail
    // last; 0 for the library's global memory, -1 when none failed.
    std::int32_t failedElementSize() const { return failedElementSize_; }
    void* reallocate(void** block, std::int32_t count, std::int32_t elementSize);
    void release(void** block);

    int allocations() const { return allocations_; }
    int frees() const { return frees_; }
    std::size_t liveBlocks() const { return live_.size(); }

    // Where the calls the library makes to the kernel are reported, one line
    // each (CancelSampling). reset() keeps it.
    void setSink(std::function<void(const std::string&)> sink) { sink_ = std::move(sink); }
    void record(const std::string& line) const {
        if (sink_) sink_(line);
    }

    // Releases every live block and forgets all counts and settings.
    void reset();

private:
    std::function<void(const std::string&)> sink_;
    std::vector<std::string> variables_;
    std::unordered_map<void*, std::size_t> live_;
    int allocations_ = 0;
    int frees_ = 0;
    int failCountdown_ = 0;
    std::int32_t failedElementSize_ = -1;
};

}  // namespace kvs::standin
