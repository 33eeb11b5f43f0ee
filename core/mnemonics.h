// Mnemonics of the controls the library adds to an open dialog: a letter no
// other label or button of the dialog uses, so Alt and the letter still
// reach exactly one control.
#pragma once

#include <string>
#include <string_view>

#include "core/seam.h"

namespace kvs {

// Appends the letter after the single '&' of a label or button text, lower
// case; nothing when the text has none ("&&" is a plain '&').
void collectMnemonic(std::string_view text, std::string& used);

// "Copy" -> "&Copy", or with the first of its letters no other label or
// button of the dialog uses as its mnemonic, nor any of taken; the text as
// it is when every letter is in use.
std::string withFreeMnemonic(const DialogView& view, std::string_view text, std::string_view taken = {});

}  // namespace kvs
