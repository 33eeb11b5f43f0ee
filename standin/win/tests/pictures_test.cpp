// The picture resources as the real kvs_dlg.dll carries them: every name
// loads as a bitmap of its set's size.
#include <windows.h>

#include <string>

#include "standin/win/library.h"
#include "standin/win/tests/check.h"

namespace {

struct PictureSet {
    const char* prefix;
    int count;
    int width;
    int height;
};

constexpr PictureSet kSets[] = {
    {"symbol", 22, 16, 16},
    {"dash", 11, 64, 12},
    {"axes2d", 12, 48, 36},
    {"axes3d", 8, 48, 36},
};

}  // namespace

KVS_TEST(every_picture_is_a_bitmap_of_its_sets_size) {
    // As data: the library's imports from KORVAN.exe are not this program's.
    const std::string path = kvs::standin::Library::exeFolder() + "kvs_dlg.dll";
    const HMODULE library = LoadLibraryExA(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    KVS_CHECK(library != nullptr);
    if (!library) return;
    for (const PictureSet& set : kSets) {
        for (int i = 1; i <= set.count + 1; ++i) {
            const std::string name = set.prefix + std::to_string(i);
            const auto bitmap = static_cast<HBITMAP>(LoadImageA(library, name.c_str(), IMAGE_BITMAP, 0, 0, 0));
            if (i > set.count) {
                KVS_CHECK(bitmap == nullptr);  // one past the set
                if (bitmap) DeleteObject(bitmap);
                continue;
            }
            BITMAP info{};
            KVS_CHECK(bitmap != nullptr && GetObjectA(bitmap, sizeof info, &info) == sizeof info);
            KVS_CHECK_EQ(set.width, static_cast<int>(info.bmWidth));
            KVS_CHECK_EQ(set.height, static_cast<int>(info.bmHeight));
            if (bitmap) DeleteObject(bitmap);
        }
    }
    FreeLibrary(library);
}
