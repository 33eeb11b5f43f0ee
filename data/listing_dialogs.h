// The listing and output-format dialogs: small settings dialogs that each
// compose one or two lines on OK and remember their settings between
// openings.
#pragma once

#include <string_view>

#include "core/command_text.h"
#include "core/dialog_behaviour.h"

namespace kvs::data {

DialogBehaviour& listCasesBehaviour();      // 43 "LIST "
DialogBehaviour& byGroupsBehaviour();       // 45 "BY "
DialogBehaviour& weightBehaviour();         // 47 "WEIGHT "
DialogBehaviour& noteBehaviour();           // 51 "NOTE="
DialogBehaviour& pageTitleBehaviour();      // 52 "PAGE TITLE="
DialogBehaviour& printFormatBehaviour();    // 53 "PRINT" and "FORMAT "
DialogBehaviour& standardizeBehaviour();    // 70 "STANDARDIZE "
DialogBehaviour& idVariableBehaviour();     // 77 "IDVAR "
DialogBehaviour& orderBehaviour();          // 83 "ORDER "
DialogBehaviour& categoryBehaviour();       // 84 "CATEGORY "
DialogBehaviour& frequencyBehaviour();      // 85 "FREQUENCY "
DialogBehaviour& basicBehaviour();          // 87 "BASIC" and the typed lines
DialogBehaviour& matrixBehaviour();         // 88 "MATRIX" and the typed lines
DialogBehaviour& reshapeBehaviour();        // 92 "WRAP " / "UNWRAP="

// Every remembered setting of these dialogs back to its default.
void resetListingDefaults();

// Helpers the members share.
namespace listing {
// Shows a stop message; OK is then refused, so it returns 0.
int refuse(const DialogView& view, std::string_view message);
// Pushes the line; a data command also sets the library's data-command flag.
void queueLine(const CommandText& line, bool dataCommand);
// The text of a field cut at its bound.
std::string fieldText(const DialogView& view, int id, std::size_t limit);
// Checks exactly one of two radio buttons.
void showChoice(DialogView& view, int first, int second, int chosen);

void resetVariableDialogs();
void resetOneVariableDialogs();
void resetOutputDialogs();
void resetProgramDialogs();
}  // namespace listing

}  // namespace kvs::data
