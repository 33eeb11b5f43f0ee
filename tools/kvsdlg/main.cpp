// kvsdlg: runs scenario files against the dialog library and prints their
// transcripts.
//
//   kvsdlg run [--backend=headless|wine] [--strict] FILE.scn...
//   kvsdlg check [--backend=...] FILE.scn...    compares each transcript with FILE.out
//   kvsdlg update [--backend=...] FILE.scn...   writes each transcript to FILE.out
//   kvsdlg fields LENGTH DIR                    writes DIR/fields_*.scn: LENGTH characters typed
//                                               into every edit field of every dialog and option
//                                               sub-dialog, then OK
//   kvsdlg bounds DIR                           writes DIR/bounds_*.scn: graph commands taken to
//                                               the bounds of their buffer
//
// The wine backend runs every file in one KORVAN.exe under Wine against the
// real kvs_dlg.dll (tools/wine/korvan.sh; build x86_64 first).
#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <fstream>
#include <mutex>
#include <thread>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "headless/embedded_resources.h"
#include "headless/bound_scenarios.h"
#include "headless/field_scenario.h"
#include "headless/headless_backend.h"
#include "tools/kvsdlg/wine_backend.h"
#include "tools/scenario/preview_check.h"
#include "tools/scenario/text_file.h"

namespace {

// The longest a scenario file may run headlessly.
constexpr int kSecondsPerFile = 60;


int usage() {
    std::cerr << "usage: kvsdlg run|check|update [--backend=headless|wine] [--strict] [--previews] FILE.scn...\n"
                 "       kvsdlg fields LENGTH DIR\n"
                 "       kvsdlg bounds DIR\n"
                 "  --strict (headless only): a dialog touching a control its template lacks is an error line\n"
                 "  --previews (headless only): before every OK the command preview is read and compared with\n"
                 "             what the OK then does\n";
    return 2;
}

// Writes FOLDER/PREFIX_NAME.scn for each generated scenario.
template <typename Scenarios>
int writeScenarios(const std::string& folder, const std::string& prefix, const Scenarios& scenarios) {
    int written = 0;
    for (const auto& scenario : scenarios) {
        const std::string path = folder + "/" + prefix + "_" + scenario.name + ".scn";
        std::ofstream file(path, std::ios::binary);
        file << scenario.source;
        if (!file) {
            std::cerr << "kvsdlg: cannot write " << path << "\n";
            return 1;
        }
        ++written;
    }
    std::cout << written << " scenarios written to " << folder << "\n";
    return 0;
}

int writeFieldScenarios(const std::string& length, const std::string& folder) {
    char* end = nullptr;
    const unsigned long long count = std::strtoull(length.c_str(), &end, 10);
    if (length.empty() || *end != '\0' || count == 0 || count > (16u << 20)) return usage();
    kvs::headless::ResourceSet resources;
    resources.load(kvs::headless::embeddedResources());
    return writeScenarios(folder, "fields", kvs::headless::everyFieldScenario(resources, static_cast<std::size_t>(count)));
}

int writeBoundScenarios(const std::string& folder) {
    return writeScenarios(folder, "bounds", kvs::headless::everyBoundScenario());
}

std::string expectedPath(const std::string& scenario) {
    const std::size_t dot = scenario.rfind(".scn");
    return (dot == std::string::npos ? scenario : scenario.substr(0, dot)) + ".out";
}

// The first line where two transcripts part, for the failure report.
std::string firstDifference(const std::string& expected, const std::string& actual) {
    std::istringstream a(expected), b(actual);
    std::string left, right;
    for (int line = 1;; ++line) {
        const bool moreA = static_cast<bool>(std::getline(a, left));
        const bool moreB = static_cast<bool>(std::getline(b, right));
        if (!moreA && !moreB) return "transcripts differ only in line ends";
        if (!moreA || !moreB || left != right)
            return "line " + std::to_string(line) + ":\n  expected: " + (moreA ? left : "(end)") +
                   "\n  actual:   " + (moreB ? right : "(end)");
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) return usage();
    const std::string command = argv[1];
    if (command == "fields") return argc == 4 ? writeFieldScenarios(argv[2], argv[3]) : usage();
    if (command == "bounds") return argc == 3 ? writeBoundScenarios(argv[2]) : usage();
    if (command != "run" && command != "check" && command != "update") return usage();
    std::vector<std::string> files;
    bool wine = false;
    bool strict = false;
    bool previews = false;
    for (int i = 2; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument == "--strict") {
            strict = true;
            continue;
        }
        if (argument == "--previews") {
            previews = true;
            continue;
        }
        if (argument.rfind("--backend=", 0) == 0) {
            if (argument != "--backend=headless" && argument != "--backend=wine") return usage();
            wine = argument == "--backend=wine";
            continue;
        }
        files.push_back(argument);
    }

    if ((strict || previews) && wine) return usage();  // the real windows cannot tell what the logic touched

    // Under Wine every file runs in one process, before any is compared.
    std::vector<std::string> wineTranscripts;
    bool wineFailed = false;
    if (wine) {
        std::string error;
        wineFailed = kvs::tools::runUnderWine(files, wineTranscripts, error) != 0;
        if (wineFailed) std::cerr << "kvsdlg: " << error << '\n';
        if (wineFailed && command == "update") return 1;
    }

    kvs::headless::ResourceSet resources;
    try {
        resources.load(kvs::headless::embeddedResources());
    } catch (const std::exception& error) {
        std::cerr << "kvsdlg: " << error.what() << '\n';
        return 2;
    }
    kvs::headless::HeadlessRunner runner(resources);
    runner.setStrict(strict);
    runner.setMarkPreviews(previews);
    int previewsChecked = 0;

    // A scenario that runs too long ends the run: a hang fails at once
    // instead of holding the test command until its own limit.
    std::mutex watched;
    std::condition_variable fileDone;
    std::string running;
    bool finished = false;
    std::thread watchdog([&] {
        std::unique_lock lock(watched);
        std::string last;
        while (!finished) {
            last = running;
            if (fileDone.wait_for(lock, std::chrono::seconds(kSecondsPerFile), [&] { return finished || running != last; }))
                continue;
            if (last.empty()) continue;
            std::cout << "FAIL " << last << ": ran over " << kSecondsPerFile << " s" << std::endl;
            std::_Exit(3);
        }
    });
    const auto watch = [&](const std::string& file) {
        {
            const std::lock_guard lock(watched);
            running = file;
        }
        fileDone.notify_all();
    };

    int passed = 0, failed = 0;
    for (std::size_t i = 0; i < files.size(); ++i) {
        const std::string& file = files[i];
        if (!wine) watch(file + "#" + std::to_string(i));
        const std::optional<std::string> source = kvs::scenario::readTextFile(file);
        if (!source) {
            std::cerr << "kvsdlg: cannot read " << file << '\n';
            ++failed;
            continue;
        }
        std::string transcript = wine ? wineTranscripts[i] : runner.run(*source);
        if (previews) {
            kvs::scenario::PreviewReport report = kvs::scenario::checkPreviews(transcript);
            previewsChecked += report.checked;
            for (const std::string& mismatch : report.mismatches) std::cout << "PREVIEW " << file << ": " << mismatch << '\n';
            if (!report.mismatches.empty()) ++failed;
            if (command != "run") transcript = std::move(report.transcript);
        }
        if (command == "run") {
            std::cout << transcript;
            continue;
        }
        const std::string outPath = expectedPath(file);
        if (command == "update") {
            std::ofstream(outPath, std::ios::binary) << transcript;
            continue;
        }
        const std::optional<std::string> expected = kvs::scenario::readTextFile(outPath);
        if (!expected) {
            std::cout << "FAIL " << file << ": no " << outPath << '\n';
            ++failed;
        } else if (*expected != transcript) {
            std::cout << "FAIL " << file << ": " << firstDifference(*expected, transcript) << '\n';
            ++failed;
        } else {
            ++passed;
        }
    }
    {
        const std::lock_guard lock(watched);
        finished = true;
    }
    fileDone.notify_all();
    watchdog.join();
    if (command == "check") std::cout << "scenarios: " << passed << " passed, " << failed << " failed\n";
    if (previews) std::cout << "previews: " << previewsChecked << " OKs compared with their preview\n";
    return failed == 0 && !wineFailed ? 0 : 1;
}
