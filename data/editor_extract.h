// The editor's extract command (menu id 76): a save chooser for the file to
// extract into, then "EXTRACT '<path>'".
#pragma once

namespace kvs::data {

void runEditorExtract();

}  // namespace kvs::data
