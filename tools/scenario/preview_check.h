// Checks a transcript written with preview marks (Engine::setMarkPreviews):
// what the command preview showed just before each OK must be what that OK
// then did. Lines must be the commands the host received, in order (a SAVE
// line's path aside: the preview names the proposed file, the chooser the
// chosen one); a refusal must be the message the OK showed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kvs::scenario {

struct PreviewReport {
    std::vector<std::string> mismatches;  // one sentence each, with the transcript line
    int checked = 0;                      // OKs whose outcome was compared
    std::string transcript;               // the transcript without the marks
};

PreviewReport checkPreviews(std::string_view transcript);

}  // namespace kvs::scenario
