#include "standin/win/tour.h"

#include <cstdio>

#include "core/dispatch_table.h"
#include "standin/host_state.h"
#include "standin/win/bitmap_file.h"
#include "standin/win/help_catcher.h"
#include "standin/win/library.h"
#include "standin/win/owner_window.h"
#include "standin/win/sample_data.h"
#include "standin/win/window_backend.h"
#include "standin/win/window_roles.h"
#include "standin/win/window_watch.h"
#include "tools/scenario/transcript.h"

namespace kvs::standin {

namespace {

// Ticks a dialog stays up before its picture is taken, so that it has
// painted itself.
constexpr int kSettleTicks = 3;

class Tour {
public:
    Tour(std::string outDir, std::FILE* log, HWND owner)
        : outDir_(std::move(outDir)), log_(log), owner_(owner), backend_(library_, owner) {}

    int run();

private:
    void emit(const std::string& line) {
        std::fputs(line.c_str(), log_);
        std::fputc('\n', log_);
        std::fflush(log_);
    }
    void onTick(HWND top);
    void showProgress();

    std::string outDir_;
    std::FILE* log_;
    HWND owner_;
    Library library_;
    HelpCatcher help_;
    WindowWatch watch_;
    WindowBackend backend_;
    const DispatchRow* row_ = nullptr;
    bool shot_ = false;
    int settle_ = 0;
};

void Tour::onTick(HWND top) {
    if (!top) return;
    if (roleOf(top, library_.module()) == scenario::WindowKind::Dialog && !shot_ && row_) {
        if (++settle_ < kSettleTicks) return;
        std::string id = std::to_string(row_->id);
        while (id.size() < 4) id.insert(id.begin(), '0');
        const std::string path = outDir_ + "\\" + id + "-" + row_->templateName + ".bmp";
        if (!saveWindowBitmap(top, path)) emit("error " + scenario::quote("cannot save " + path));
        shot_ = true;
    }
    backend_.dismissTop();
}

// The progress window is modeless, opened by the sampling exports rather
// than StartDialog: shown part-way through a job of 100 samples.
void Tour::showProgress() {
    const scenario::LibraryExports& e = library_.exports();
    if (!e.startSamplingDialog || !e.updateSamplingDialog || !e.clearSamplingDialog) return;
    e.startSamplingDialog(1, 100);
    e.updateSamplingDialog(40, 3725);
    const HWND window = topDialogWindow();
    if (window && roleOf(window, library_.module()) == scenario::WindowKind::Dialog) {
        const std::string path = outDir_ + "\\progress-ProcessBox.bmp";
        if (!saveWindowBitmap(window, path)) emit("error " + scenario::quote("cannot save " + path));
    }
    e.clearSamplingDialog();
}

int Tour::run() {
    std::string error;
    if (!library_.load(error)) {
        emit("error " + scenario::quote(error));
        return 1;
    }
    HostState::instance().setSink([this](const std::string& line) { emit(line); });
    installSampleData();
    help_.open([this](const std::string& line) { emit(line); });
    watch_.start(library_.module(), [this](const std::string& line) { emit(line); },
                 [this](HWND top) { onTick(top); });
    for (const DispatchRow& row : dispatchTable()) {
        // Only the dialogs the library has a template for are shown.
        if (!row.templateName || !FindResourceA(library_.module(), row.templateName, RT_DIALOG)) continue;
        row_ = &row;
        shot_ = false;
        settle_ = 0;
        const auto result = library_.startDialog(row.id, owner_, kSampleHelpFile);
        emit("StartDialog " + std::to_string(row.id) + " = " + std::to_string(result));
    }
    showProgress();
    watch_.stop();
    HostState::instance().setSink(nullptr);
    library_.unload();
    return 0;
}

}  // namespace

int runTour(const std::string& outDir) {
    const std::string logPath = outDir + "\\tour.txt";
    std::FILE* log = std::fopen(logPath.c_str(), "wb");
    if (!log) return 1;
    const HWND owner = createOwnerWindow(kSampleTitle);
    int result = 1;
    if (owner) {
        Tour tour(outDir, log, owner);
        result = tour.run();
        DestroyWindow(owner);
    }
    std::fclose(log);
    return result;
}

}  // namespace kvs::standin
