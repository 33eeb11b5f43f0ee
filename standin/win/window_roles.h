// Which of the thread's windows a scenario acts on, and what each one is: a
// library dialog, a message box or a common file dialog. All three are
// top-level windows of the dialog class #32770.
#pragma once

#include <windows.h>

#include <string>

#include "tools/scenario/engine.h"
#include "win32/control_reading.h"

namespace kvs::standin {

// Control ids of the common file dialogs' file-name field: the Explorer
// style's ComboBoxEx32 and the old style's edit.
inline constexpr int kChooserNameCombo = 0x47C;
inline constexpr int kChooserNameEdit = 0x480;
// The font dialog's face, style and size combo boxes (cmb1 to cmb3).
inline constexpr int kFontFaceCombo = 0x470;
inline constexpr int kFontStyleCombo = 0x471;
inline constexpr int kFontSizeCombo = 0x472;
// A message box's text and icon statics.
inline constexpr int kMessageTextId = 0xFFFF;
inline constexpr int kMessageIconId = 0x440;

bool hasClass(HWND window, const char* name);  // the window's class name, ignoring case
bool isDialogWindow(HWND window);  // a top-level #32770
bool isMenuWindow(HWND window);    // a popup menu (#32768)

// A popup menu is a menu. What a #32770 is: a dialog when its instance is library (the module the
// library's templates come from), a file dialog when it has a file-name
// field, the font dialog when it has the face and size combo boxes, a
// message box when it has the message text static, and otherwise a dialog of
// someone else's that statements still act on.
scenario::WindowKind roleOf(HWND window, HMODULE library);

// The popup menu that is up, else the topmost visible, enabled #32770 of this
// thread, or null. A modal window disables its owner, so this is the window a
// user could act on.
HWND topDialogWindow();

using win32::windowText;

// A message box's text and its icon as a transcript word: stop,
// exclamation, question, info or none.
std::string messageText(HWND box);
const char* messageIcon(HWND box);
// The buttons a message box offers.
scenario::Buttons messageButtons(HWND box);

// A file dialog's kind (its OK button reads "Save" in a save dialog) and the
// file name it shows.
bool chooserSaves(HWND chooser);
std::string chooserName(HWND chooser);

// The font dialog's transcript line: its title, the face and size it shows
// and its OK button's text.
std::string fontChooserLine(HWND chooser);

}  // namespace kvs::standin
