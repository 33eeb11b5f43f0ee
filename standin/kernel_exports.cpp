// The kernel functions kvs_dlg imports from kernkvs.dll, over the stand-in
// kernel.
#include <cmath>
#include <cstring>
#include <string>

#include "include/kvs_imports.h"
#include "standin/kernel_state.h"

using kvs::standin::KernelState;

extern "C" {

void* KVS_CALL reallocate_mem_ex(void** block, int32_t count, int32_t elementSize, int32_t) {
    return KernelState::instance().reallocate(block, count, elementSize);
}

void KVS_CALL free_mem_ex(void** block) { KernelState::instance().release(block); }

int32_t KVS_CALL kvs_strlen_ex(const char* text) {
    return text ? static_cast<int32_t>(std::strlen(text)) : 0;
}

int32_t KVS_CALL INQFMV_EX(void) {
    return static_cast<int32_t>(KernelState::instance().variables().size());
}

int32_t KVS_CALL INQFML_EX(void) { return 12; }

int32_t KVS_CALL INQKS_EX(void) { return KernelState::instance().variables().empty() ? -1 : 0; }

int32_t KVS_CALL INQVARNAME_EX(int32_t varNumber, char* field, int32_t fieldWidth) {
    const auto& names = KernelState::instance().variables();
    if (!field || fieldWidth <= 0 || varNumber < 1 || static_cast<std::size_t>(varNumber) > names.size()) return 0;
    const std::string& name = names[static_cast<std::size_t>(varNumber - 1)];
    const auto width = static_cast<std::size_t>(fieldWidth);
    std::memset(field, ' ', width);
    std::memcpy(field, name.data(), name.size() < width ? name.size() : width);
    return 1;
}

int32_t KVS_CALL INQPRT_EX(void) { return 1; }

int32_t KVS_CALL DXNUM_EX(int32_t varNumber) {
    const auto& names = KernelState::instance().variables();
    if (varNumber < 1 || static_cast<std::size_t>(varNumber) > names.size()) return 0;
    return names[static_cast<std::size_t>(varNumber - 1)].find('$') == std::string::npos ? 1 : 0;
}

double KVS_CALL DMIS_EX(void) { return -1.0e36; }

int32_t KVS_CALL NBLANK_EX(const char* text, int32_t length) {
    if (!text) return 0;
    while (length > 0 && text[length - 1] == ' ') --length;
    return length;
}

int32_t KVS_CALL choll(double* matrix, int32_t n) {
    if (!matrix || n <= 0) return 0;
    for (int32_t j = 0; j < n; ++j) {
        double diagonal = matrix[j * n + j];
        for (int32_t k = 0; k < j; ++k) diagonal -= matrix[j * n + k] * matrix[j * n + k];
        if (diagonal <= 0.0) return 0;
        diagonal = std::sqrt(diagonal);
        matrix[j * n + j] = diagonal;
        for (int32_t i = j + 1; i < n; ++i) {
            double sum = matrix[i * n + j];
            for (int32_t k = 0; k < j; ++k) sum -= matrix[i * n + k] * matrix[j * n + k];
            matrix[i * n + j] = sum / diagonal;
        }
    }
    return 1;
}

void KVS_CALL CancelSampling(int32_t job) { KernelState::instance().record("CancelSampling " + std::to_string(job)); }


}  // extern "C"
