// Library-wide state that lives from load to unload.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/seam.h"

namespace kvs {

inline constexpr std::uint16_t kNoCommand = 0xFFFF;
inline constexpr std::size_t kHelpPathCapacity = 260;

struct LibraryState {
    std::string helpPath;                       // at most kHelpPathCapacity - 1 bytes
    std::uint16_t currentCommandId = kNoCommand;
    std::array<std::int32_t, 5> optionSlots{-1, -1, -1, -1, -1};
    std::int32_t sortList = 0;                  // SetDlgSortList
    bool dialogUp = false;                      // a library dialog or file chooser is up
    std::int32_t commandsQueued = 0;            // set by routines that queue outside a builder
    std::int32_t dataCommand = 0;               // set to 1 when a data dialog queues a data command
    std::int32_t seriesMissingDelete = 0;       // 245 sets 1, 246 sets 0
    std::uint32_t helpContext = 0;              // help-context word of the open dialog
    WindowRef hostWindow = 0;                   // owner given to the running StartDialog
};

LibraryState& library();

// Marks a library window as up while it lives, so that no dialog starts
// over it; a window opened from a library dialog leaves the mark as that
// dialog needs it.
class DialogUpScope {
public:
    DialogUpScope() : previous_(library().dialogUp) { library().dialogUp = true; }
    ~DialogUpScope() { library().dialogUp = previous_; }
    DialogUpScope(const DialogUpScope&) = delete;
    DialogUpScope& operator=(const DialogUpScope&) = delete;

private:
    bool previous_;
};

// Sets the help path, cut to fit its buffer.
void setHelpPath(const char* path);

// How variable names go into list boxes under the sort-list preference.
ListInsert listInsertRule();

}  // namespace kvs
