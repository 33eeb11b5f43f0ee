// The exported version of the library.
#include <cstdint>
#include <algorithm>
#include <cstring>

#include "core/export_guard.h"
#include "include/kvs_dlg.h"
#include "kvs_version.h"

extern "C" int32_t KVS_CALL GetLibraryVersion(char* text, int32_t capacity) {
    return kvs::guardedExport(0, [&] {
        if (text && capacity > 0) {
            const std::size_t room = static_cast<std::size_t>(capacity) - 1;
            const std::size_t length = std::min(std::strlen(KVS_VERSION_TEXT), room);
            std::memcpy(text, KVS_VERSION_TEXT, length);
            text[length] = '\0';
        }
        return static_cast<int32_t>((KVS_VERSION_MAJOR << 16) | (KVS_VERSION_MINOR << 8) | KVS_VERSION_PATCH);
    });
}
