// The save-as and import/export option dialogs the host asks for around its
// own Save As, Import and Export commands, and the clauses their choices add
// to the host's command lines. The choices last as long as the library.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/command_text.h"
#include "core/seam.h"

namespace kvs::data {

// Runs "SaveAsOpts"; 1 for OK, 0 for Cancel.
int runSaveAsOptions(WindowRef owner);
// Appends " / TYPE=" and the chosen kind's keyword to a caller's line of at
// most kSaveAsLineLimit characters; a clause that would pass it is left off.
void attachSaveAsOptions(char* line);
inline constexpr std::size_t kSaveAsLineLimit = CommandText::kHostLineCapacity - 1;

// Runs "IDD_OPTIONSIMPORTEXPORT"; exporting retitles it and picks the export
// help topic. 1 for OK, 0 for Cancel.
int runImportExportOptions(WindowRef owner, std::int32_t exportFlag, std::int32_t value);
// Appends the ROWS=, COLUMNS= and RANGE= clauses of the choices to a line
// that may grow to kImportExportLineLimit characters.
void attachImportExportOptions(char* line);
inline constexpr std::size_t kImportExportLineLimit = CommandText::kHostLineCapacity - 1;

}  // namespace kvs::data
