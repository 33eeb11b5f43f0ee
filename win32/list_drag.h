// Drag and drop between a dialog's source and target list boxes, and the
// Delete and Ctrl+A keys in them. The list boxes are subclassed; what a drag
// or a key does is the dialog handler's business (DialogHandler::canDrop,
// onDrop, onListKey).
#pragma once

#include <windows.h>

namespace kvs::win32 {

// Subclasses the list boxes of the transfer table that the dialog has.
void attachListGestures(HWND dialog);

// Frees the drag cursor; at unload.
void releaseDragCursor();

}  // namespace kvs::win32
