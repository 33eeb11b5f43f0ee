// Test controls of the stand-in kernkvs.dll: how KORVAN.exe's scenario driver
// and demo host tell the kernel which data file is in use and how its
// allocator behaves. Exported undecorated, as the kernel functions are.
#pragma once

#include <cstdint>

#include "include/kvs_platform.h"

extern "C" {

// The variables of the data file in use, in file order (names are copied).
void KVS_CALL KvsStandinSetVariables(int32_t count, const char* const* names);
// Allocation calls from now on: the nth one (1 = the next) fails; 0: none.
void KVS_CALL KvsStandinFailAllocation(int32_t nth);
// Counts an allocation the library makes elsewhere (its global memory) under
// the same countdown; 0 when it is the one to fail.
int32_t KVS_CALL KvsStandinTakeAllocation(void);
// Blocks handed out by reallocate_mem_ex and not yet released.
int32_t KVS_CALL KvsStandinLiveBlocks(void);
// Releases every live block and forgets the variables and all settings.
void KVS_CALL KvsStandinReset(void);
// Where the kernel reports the calls the library makes to it, one line each
// (CancelSampling); null: nowhere. The line is the kernel's for the call.
typedef void(KVS_CALL* KvsStandinLineSink)(const char* line);
void KVS_CALL KvsStandinSetLineSink(KvsStandinLineSink sink);

}
