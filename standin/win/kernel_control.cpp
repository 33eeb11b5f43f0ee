#include "standin/win/kernel_control.h"

#include <string>
#include <vector>

#include "standin/kernel_state.h"

using kvs::standin::KernelState;

extern "C" {

void KVS_CALL KvsStandinSetVariables(int32_t count, const char* const* names) {
    std::vector<std::string> copied;
    for (int32_t i = 0; names && i < count; ++i) copied.emplace_back(names[i] ? names[i] : "");
    KernelState::instance().setVariables(std::move(copied));
}

void KVS_CALL KvsStandinFailAllocation(int32_t nth) { KernelState::instance().failAllocation(nth); }

int32_t KVS_CALL KvsStandinTakeAllocation(void) { return KernelState::instance().takeAllocation() ? 1 : 0; }

int32_t KVS_CALL KvsStandinLiveBlocks(void) { return static_cast<int32_t>(KernelState::instance().liveBlocks()); }

void KVS_CALL KvsStandinReset(void) { KernelState::instance().reset(); }

void KVS_CALL KvsStandinSetLineSink(KvsStandinLineSink sink) {
    if (!sink) KernelState::instance().setSink(nullptr);
    else KernelState::instance().setSink([sink](const std::string& line) { sink(line.c_str()); });
}

}
