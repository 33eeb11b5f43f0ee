// The host functions kvs_dlg imports from KORVAN.exe, over the stand-in host.
#include <cstring>
#include <string>

#include "include/kvs_imports.h"
#include "standin/host_state.h"
#include "standin/kernel_state.h"
#include "tools/scenario/transcript.h"

using kvs::scenario::quote;
using kvs::scenario::quoteOrNull;
using kvs::standin::HostState;

extern "C" {

int32_t KVS_CALL AddCmd(const char* command, const char* argument) {
    HostState::instance().record("AddCmd " + quoteOrNull(command) + " " + quoteOrNull(argument));
    return 1;
}

int32_t KVS_CALL AddTitle(const char* module, const char* title) {
    HostState::instance().record("AddTitle " + quoteOrNull(module) + " " + quoteOrNull(title));
    return 1;
}

int32_t KVS_CALL IsThisModuleNameActive(const char* module) {
    return module && HostState::instance().isActive(module) ? 1 : 0;
}

int32_t KVS_CALL CheckMainMenuItem(uint32_t commandId, int32_t checked) {
    HostState::instance().record("CheckMainMenuItem " + std::to_string(commandId) + " " + std::to_string(checked));
    return 1;
}

int32_t KVS_CALL GetFileVariables(const char* fileName, char** block) {
    if (!block) return 0;
    *block = nullptr;
    const auto* names = fileName ? HostState::instance().file(fileName) : nullptr;
    if (!names || names->empty()) return 0;
    constexpr int32_t kEntry = 13;
    void* memory = nullptr;
    const auto count = static_cast<int32_t>(names->size());
    if (!reallocate_mem_ex(&memory, count, kEntry, 0)) return 0;
    char* entries = static_cast<char*>(memory);
    for (int32_t i = 0; i < count; ++i) {
        const std::string& name = (*names)[static_cast<std::size_t>(i)];
        const std::size_t length = name.size() < 12 ? name.size() : 12;
        std::memcpy(entries + i * kEntry, name.data(), length);
        entries[i * kEntry + static_cast<int32_t>(length)] = '\0';
    }
    *block = entries;
    return count;
}

int32_t KVS_CALL GetNumVars(void) {
    return static_cast<int32_t>(kvs::standin::KernelState::instance().variables().size());
}

int32_t KVS_CALL IsCurrentUseFileAMatrix(void) { return HostState::instance().matrix ? 1 : 0; }

int32_t KVS_CALL GetMNType(int32_t, int32_t) { return HostState::instance().mnType; }

int32_t KVS_CALL IsMGLHActive(void) { return HostState::instance().mglhActive ? 1 : 0; }

int32_t KVS_CALL AbortCommands(void) {
    HostState::instance().record("AbortCommands");
    return 1;
}

int32_t KVS_CALL DoWindowEnable(int32_t enable) {
    HostState::instance().record("DoWindowEnable " + std::to_string(enable));
    return 1;
}

}  // extern "C"
