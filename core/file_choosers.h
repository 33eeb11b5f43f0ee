// The library's file choosers over the common Open and Save dialogs.
#pragma once

#include <string>

#include "core/seam.h"

namespace kvs {

// "Save a File" with the data filter. On OK the chosen path is left in path
// and recorded as the last saved name; on Cancel path is left as it was.
bool saveAFile(WindowRef owner, std::string& path);

// The name recorded by the last successful saveAFile (at most 129 characters).
const std::string& savedFileName();

void resetFileChoosers();

}  // namespace kvs
