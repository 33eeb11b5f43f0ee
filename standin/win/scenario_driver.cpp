#include "standin/win/scenario_driver.h"

#include <array>
#include <cstdio>

#include "standin/host_state.h"
#include "standin/kernel_state.h"
#include "standin/win/help_catcher.h"
#include "standin/win/kernel_control.h"
#include "standin/win/library.h"
#include "standin/win/owner_window.h"
#include "standin/win/window_backend.h"
#include "standin/win/window_watch.h"
#include "tools/scenario/text_file.h"
#include "tools/scenario/transcript.h"

namespace kvs::standin {

namespace {

// A modal loop with no window a scenario could act on for this long is
// stuck (a window the driver does not know, such as a popup menu).
constexpr DWORD kStuckMilliseconds = 20000;
constexpr DWORD kQuietMilliseconds = 1000;
// The longest one scenario file may run; past it the run ends with an error.
constexpr DWORD kFileMilliseconds = 120000;
// Ticks a window waits on coming to the top before a statement acts on it.
constexpr int kSettleTicks = 3;
// Windows a scenario may leave open (modeless ones) closed at its end.
constexpr int kLeftOpenLimit = 8;

// The kernel's report of a call the library made to it, in the transcript.
void KVS_CALL kernelLine(const char* line) { HostState::instance().record(line ? line : ""); }

std::string fullPath(const std::string& path) {
    std::array<char, MAX_PATH> buffer{};
    const DWORD length = GetFullPathNameA(path.c_str(), static_cast<DWORD>(buffer.size()), buffer.data(), nullptr);
    return length > 0 && length < buffer.size() ? std::string(buffer.data(), length) : path;
}

std::string currentFolder() {
    std::array<char, MAX_PATH> buffer{};
    const DWORD length = GetCurrentDirectoryA(static_cast<DWORD>(buffer.size()), buffer.data());
    return length > 0 && length < buffer.size() ? std::string(buffer.data(), length) : std::string();
}

class ScenarioRun {
public:
    explicit ScenarioRun(std::FILE* out)
        : out_(out),
          owner_(createOwnerWindow(scenario::Engine::kDefaultTitle)),
          backend_(library_, owner_),
          engine_(backend_, [this](const std::string& line) { emit(line); }) {}

    ~ScenarioRun() {
        if (owner_) DestroyWindow(owner_);
    }

    bool ready() const { return owner_ != nullptr; }

    bool runFile(std::size_t number, const std::string& path);

private:
    void emit(const std::string& line) {
        std::fputs(line.c_str(), out_);
        std::fputc('\n', out_);
        std::fflush(out_);
    }
    void onTick(HWND top);
    void resetHostAndKernel();

    std::FILE* out_;
    Library library_;
    HWND owner_;
    HelpCatcher help_;
    WindowWatch watch_;
    WindowBackend backend_;
    scenario::Engine engine_;
    DWORD lastTick_ = 0;
    DWORD waitingSince_ = 0;  // 0: not waiting
    DWORD fileStarted_ = 0;
    HWND settledTop_ = nullptr;  // the top window statements act on
    int settleTicks_ = 0;        // ticks waited since a new window came to the top
};

void ScenarioRun::resetHostAndKernel() {
    HostState& host = HostState::instance();
    host.reset();
    host.setSink([this](const std::string& line) { emit(line); });
    KvsStandinReset();
    KvsStandinSetLineSink(kernelLine);
    KernelState::instance().reset();
    SetWindowTextA(owner_, scenario::Engine::kDefaultTitle);
}

void ScenarioRun::onTick(HWND top) {
    const DWORD now = GetTickCount();
    if (now - fileStarted_ > kFileMilliseconds) {
        emit(scenario::errorLine("the scenario ran over " + std::to_string(kFileMilliseconds / 1000) + " s"));
        std::fclose(out_);
        ExitProcess(3);
    }
    // A quiet timer means no modal loop ran in between: a new wait begins.
    if (now - lastTick_ > kQuietMilliseconds) waitingSince_ = 0;
    lastTick_ = now;
    if (top) {
        waitingSince_ = 0;
        // A window that has just come to the top gets a few ticks before
        // the next statement acts on it, as a user would take: a popup menu
        // opened at once in a dialog whose sub-dialog just closed can be
        // closed by the change of focus the window system reports late.
        if (top != settledTop_) {
            if (++settleTicks_ < kSettleTicks) return;
            settledTop_ = top;
        }
        settleTicks_ = 0;
        if (!engine_.step()) engine_.windowLeftOpen();
        return;
    }
    if (!waitingSince_) {
        waitingSince_ = now;
    } else if (now - waitingSince_ > kStuckMilliseconds) {
        emit(scenario::errorLine("stuck: no window to act on for " +
                                        std::to_string(kStuckMilliseconds / 1000) + " s"));
        std::fclose(out_);
        ExitProcess(3);
    }
}

bool ScenarioRun::runFile(std::size_t number, const std::string& path) {
    emit("#scenario " + std::to_string(number) + " " + path);
    const std::optional<std::string> source = scenario::readTextFile(path);
    if (!source) {
        emit(scenario::errorLine("cannot read " + path));
        return false;
    }
    resetHostAndKernel();
    std::string error;
    if (!library_.load(error)) {
        emit(scenario::errorLine(error));
        return false;
    }
    const bool watching = help_.open([this](const std::string& line) { emit(line); }) &&
                          watch_.start(library_.module(), [this](const std::string& line) { emit(line); },
                                       [this](HWND top) { onTick(top); });
    if (!watching) {
        emit(scenario::errorLine("cannot watch the library's windows"));
        library_.unload();
        return false;
    }
    lastTick_ = GetTickCount();
    fileStarted_ = lastTick_;
    waitingSince_ = 0;

    engine_.load(*source);
    while (engine_.step()) {
    }
    for (int i = 0; i < kLeftOpenLimit && backend_.topKind() != scenario::WindowKind::None; ++i)
        engine_.windowLeftOpen();

    watch_.stop();
    library_.unload();
    // Still mapped, the next file would meet this file's remembered settings.
    const bool unloaded = GetModuleHandleA("kvs_dlg.dll") == nullptr;
    if (!unloaded) emit(scenario::errorLine("kvs_dlg.dll stayed loaded after the scenario"));
    HostState::instance().setSink(nullptr);
    return unloaded;
}

}  // namespace

// A file dialog makes the folder it ends in the current one: each file starts
// from the folder the run started in, and names are resolved before any runs.
int runScenarioFiles(const std::string& outPath, const std::vector<std::string>& files) {
    const std::string folder = currentFolder();
    std::vector<std::string> paths;
    for (const std::string& file : files) paths.push_back(fullPath(file));
    std::FILE* out = std::fopen(outPath.c_str(), "wb");
    if (!out) return 1;
    bool allRun = true;
    {
        ScenarioRun run(out);
        if (!run.ready()) {
            std::fclose(out);
            return 1;
        }
        for (std::size_t i = 0; i < paths.size(); ++i) {
            SetCurrentDirectoryA(folder.c_str());
            allRun = run.runFile(i + 1, paths[i]) && allRun;
        }
    }
    std::fputs("#end\n", out);
    std::fclose(out);
    return allRun ? 0 : 1;
}

}  // namespace kvs::standin
