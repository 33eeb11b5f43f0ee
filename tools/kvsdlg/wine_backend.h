// The Wine backend of kvsdlg: scenario files run by the stand-in host
// KORVAN.exe against the real kvs_dlg.dll under Wine (64-bit, Xvfb when
// there is no display), all in one Wine process.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace kvs::tools {

// Runs the files and gives one transcript per file, in order. Returns 0 when
// every file ran; otherwise non-zero with error set, and the transcripts of
// the files that ran (the rest empty).
//
// The runner script is tools/wine/korvan.sh: the environment variable
// KVS_WINE_SCRIPT names it, else the compile definition of the same name.
// The script finds KORVAN.exe through KVS_WINE_DIR (default
// build/x86_64/wine) and makes the Wine prefix on first use.
int runUnderWine(const std::vector<std::string>& scenarioFiles, std::vector<std::string>& transcripts,
                 std::string& error);

// Splits KORVAN.exe --scenario output ("#scenario N PATH" before the
// transcript of file N, "#end" after the last) into fileCount transcripts.
// False with error when a file's section is missing or the run did not end.
bool splitScenarioOutput(const std::string& output, std::size_t fileCount, std::vector<std::string>& transcripts,
                         std::string& error);

// Splits arguments into runs of consecutive ones, each taking at most room
// characters of a command line (at least one argument a run): [first, last).
inline constexpr std::size_t kScenarioPathRoom = 30000;
std::vector<std::pair<std::size_t, std::size_t>> commandLineBatches(const std::vector<std::string>& arguments,
                                                                    std::size_t room);

// The Windows name Wine gives a Linux path: Z: is the root folder.
std::string windowsPath(const std::string& absolutePath);

}  // namespace kvs::tools
