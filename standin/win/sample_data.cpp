#include "standin/win/sample_data.h"

#include <string>
#include <vector>

#include "standin/host_state.h"
#include "standin/kernel_state.h"
#include "standin/win/kernel_control.h"

namespace kvs::standin {

void installSampleData() {
    KvsStandinSetVariables(static_cast<int32_t>(kSampleVariables.size()), kSampleVariables.data());
    KernelState::instance().setVariables({kSampleVariables.begin(), kSampleVariables.end()});
    HostState::instance().setFile(kOtherFile, {kOtherVariables.begin(), kOtherVariables.end()});
}

}  // namespace kvs::standin
