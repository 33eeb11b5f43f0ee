// KORVAN.exe --tour: every dialog of the library once, with a screenshot.
#pragma once

#include <string>

namespace kvs::standin {

// Opens the dialog of every command id that has a template, over the sample
// data file, saves a screenshot of it as OUTDIR\ID-TEMPLATE.bmp and cancels
// it; message boxes and file dialogs on the way are answered with their
// cancelling button. What happened goes to OUTDIR\tour.txt in transcript
// form. Returns 0, or 1 when the library or the output cannot be opened.
int runTour(const std::string& outDir);

}  // namespace kvs::standin
