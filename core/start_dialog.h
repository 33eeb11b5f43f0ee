// The library's entry into a dialog: StartDialog, and the exports that open
// one dialog of their own the same way.
#pragma once

#include <cstdint>

#include "core/seam.h"

namespace kvs {

// StartDialog: runs the dialog of the menu command, then hands the queued
// lines to the host. Always 1.
std::int32_t startDialog(std::uint32_t commandId, WindowRef owner, const char* helpFile);

// Runs dialog dialogId as StartDialog does, with currentId as the current
// command id and helpFile (when given) as the help file; the dialog's
// result: 1 for OK, 0 otherwise.
std::int32_t runDialogAs(std::uint16_t dialogId, std::uint16_t currentId, WindowRef owner, const char* helpFile);

// ReinitDialogs.
std::int32_t reinitDialogs(std::int32_t freeFlag);

}  // namespace kvs
