// Numeric fields: edit controls of option dialogs that take a number, checked
// as the user leaves them and optionally stepped by a "Tmicroscroll" up/down
// control beside them. This is the window-free part: the field record, the
// number parser, validation, the messages, stepping and the up/down text.
// win32/numeric_field_window does the subclassing and the up/down window.
//
// Number grammar (parseNumber): optional blanks, an optional sign '+' or '-',
// digits with an optional '.' and fraction (at least one digit in all, so
// "5", "5.", ".5" are numbers and "." is not), an optional exponent 'e' or
// 'E' with an optional sign and at least one digit, optional blanks. Nothing
// else may follow. The text is integral when the number it writes has no
// fractional part, decided on the digits themselves: "12", "12.0", "1.5e1"
// and "1200e-2" are integral, "12.5" and "1e-1" are not.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/seam.h"

namespace kvs {

// Results of validation.
inline constexpr int kFieldEmpty = -1;
inline constexpr int kFieldValid = 0;
inline constexpr int kFieldNotNumber = 1;
inline constexpr int kFieldNotInteger = 2;
inline constexpr int kFieldOutOfRange = 3;

// Step directions.
inline constexpr int kStepUp = 1;
inline constexpr int kStepDown = 2;

namespace fieldtext {
inline constexpr std::string_view kCaption = "KFW";
inline constexpr std::string_view kEmpty = "Control is empty.";
inline constexpr std::string_view kNotNumber = "String in control is not a number.";
inline constexpr std::string_view kNotInteger = "String in control is not a integer.";
inline constexpr std::string_view kOutOfRange = "Out of range error.";
inline constexpr std::string_view kBadCode = "KFW Error. Bad Error code.";
}  // namespace fieldtext

// Called when a field with its notify flag set takes a new value.
using NumericNotify = void (*)(int controlId, double value);

// One numeric edit control, declared by the dialog that owns it and living
// as long as that dialog.
struct NumericField {
    WindowRef dialog = 0;
    std::uint16_t controlId = 0;
    std::uint16_t width = 16;        // characters the field accepts
    std::uint16_t realAllowed = 0;   // 0: the value must be an integer
    double minimum = 0.0;            // inclusive
    double maximum = 0.0;            // inclusive
    double step = 1.0;               // one click of the up/down control
    double value = 0.0;              // last valid value
    WindowRef edit = 0;              // the edit control's window
    std::int32_t notify = 0;
    NumericNotify callback = nullptr;
    // Nothing but blanks is no value rather than an error when the field is
    // left: an option the user leaves unset.
    bool blankAllowed = false;
    // The edit control's own window procedure, kept while it is subclassed.
    std::uintptr_t previousProcedure = 0;
};

struct ParsedNumber {
    double value = 0.0;
    bool integral = false;
};

// The number the text writes, or nothing when it is not one (see above).
std::optional<ParsedNumber> parseNumber(std::string_view text);
// Blanks (no value) or a number: what an option's number field may hold.
bool isNumberOrBlank(std::string_view text);

// Checks text as the field's content: -1 empty, 1 not a number, 2 not an
// integer, 3 out of range, 0 valid (the value is stored). Only the first
// width + 3 characters (at most 126) count, as that is all the field reads.
int validateText(NumericField& field, std::string_view text);

// The message for a validation result.
std::string_view fieldErrorText(int code);

// value moved one step in direction (kStepUp adds), kept within the range.
double steppedValue(const NumericField& field, int direction);

// The value as the field shows it: an integer field as a whole number, a
// real one with up to 15 significant digits.
std::string formatFieldValue(const NumericField& field);

// Positions of the up/down control: trunc((max + 1e-15 - min) / step) + 1,
// and the 1-based position of the current value among them.
int upDownPositions(const NumericField& field);
int upDownPosition(const NumericField& field);
// The up/down window's text "first,count,position".
std::string upDownText(int first, int count, int position);

// What follows goes through the seam.

// Reads the field's text (width + 3 characters) from view and validates it.
int validateField(NumericField& field, const DialogView& view);

// Shows the message for code under "KFW", owned by the focused window, with
// the in-message flag set meanwhile.
void reportFieldError(int code);
bool fieldMessageUp();

// The text a field held when it got the focus (at most 32 characters).
void rememberFocusText(std::string_view text);
const std::string& focusText();

// Writes the field's value into its edit control.
void refreshField(NumericField& field, DialogView& view);

// Enter or Tab in a field with its notify flag set: validates a changed text
// (unless a message is up) and reports an error, or refreshes the field,
// notifies a change and remembers the new text. Returns the validation
// result, 0 when nothing was checked.
int confirmField(NumericField& field, DialogView& view);

// The field lost the focus: validates (unless a message is up, then 0) and
// on success notifies a changed text. A field that allows blanks passes
// when it holds nothing else. Errors are not reported here: the caller
// defers the report until the focus has settled.
int leaveField(NumericField& field, DialogView& view);

// Whether leaving a field for control gainingId is checked at all: not for
// the buttons that end the dialog (OK and Continue check every field
// themselves, Cancel gives up).
bool leavingIsChecked(int gainingId);

// One click of the up/down control: validates, steps within the range,
// writes the value back and notifies. On an error reports it and keeps the
// value. Returns the validation result.
int stepField(NumericField& field, DialogView& view, int direction);

}  // namespace kvs
