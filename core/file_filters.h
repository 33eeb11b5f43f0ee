// The file-type filters of the file choosers, as "description|pattern|..."
// texts. At load the combined filters get their shared fragments appended;
// turning '|' into NUL for the common dialogs is the backend's business.
#pragma once

#include <string>

namespace kvs {

struct FileFilters {
    std::string data;
    std::string output;
    std::string picture;
    std::string graphExport;
    std::string command;
    std::string dataOnly;
    std::string allTypes;
    std::string outputFirst;
    std::string graphFirst;
    std::string commandFirst;
    std::string import;
};

// The filters as prepared at load.
const FileFilters& fileFilters();
void prepareFileFilters();

// A filter with every '|' turned into NUL, ready for OPENFILENAME.
std::string nulSeparated(const std::string& filter);

}  // namespace kvs
