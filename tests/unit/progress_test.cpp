#include "core/progress.h"

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>

#include "headless/headless_ui.h"
#include "resources/progress_ids.h"
#include "standin/host_state.h"
#include "standin/kernel_state.h"
#include "tools/scenario/text_file.h"

namespace kvs {
namespace {

TEST(ProgressTimes, ClockAndEstimates) {
    EXPECT_EQ(formatClock(3725), "1:02:05");
    EXPECT_EQ(formatClock(0), "0:00:00");
    EXPECT_EQ(formatClock(59), "0:00:59");
    EXPECT_EQ(formatClock(360000), "100:00:00");
    EXPECT_EQ(formatClock(-5), "0:00:00");
    EXPECT_EQ(samplesDone(100, 99), 2u);
    EXPECT_EQ(remainingSeconds(3725, 100, 2), 3725 * 50 - 3725);
    EXPECT_EQ(remainingSeconds(10, 100, 1), 990) << "the first sample estimates from t x total";
    EXPECT_EQ(remainingSeconds(2000000000, 2000000000, 3), 2000000000LL * 2000000000 / 3 - 2000000000)
        << "no 32-bit overflow";
}

TEST(ProgressBar, NeverQuiteFull) {
    ProgressBar bar;
    bar.high = 100;
    EXPECT_EQ(barPosition(bar, 0), 0);
    EXPECT_EQ(barPosition(bar, 2), 2 * 32767 / 101);
    EXPECT_EQ(barPosition(bar, 100), 32767 * 100 / 101);
    EXPECT_LT(barPosition(bar, 100), PROGRESS_BAR_FULL);
    bar.low = 0;
    bar.high = -1;
    EXPECT_EQ(barPosition(bar, 5), 0) << "an empty span draws nothing rather than dividing by zero";
}

// The progress window over the headless backend, the confirmation answered
// from a list.
class ProgressRun : public ::testing::Test {
protected:
    void SetUp() override {
        headless::ResourceFiles files;
        for (const auto& entry : std::filesystem::directory_iterator(KVS_RESOURCE_DIR))
            files[entry.path().filename().string()] = scenario::readTextFile(entry.path().string()).value_or("");
        resources.load(files);
        ui.emplace(resources, [this](const std::string& line) { lines.push_back(line); });
        ui->setDriver(headless::Driver{[this] {
                                           if (answers.empty()) return false;
                                           const auto top = ui->top();
                                           if (!top || !top->message) return false;
                                           top->message->answer = answers.front();
                                           answers.pop_front();
                                           return true;
                                       },
                                       nullptr});
        setUi(&*ui);
        auto sink = [this](const std::string& line) { lines.push_back(line); };
        standin::HostState::instance().setSink(sink);
        standin::KernelState::instance().setSink(sink);
    }
    void TearDown() override {
        ui->closeAllModeless();
        standin::HostState::instance().setSink(nullptr);
        standin::KernelState::instance().setSink(nullptr);
        setUi(nullptr);
    }
    headless::HeadlessDialog& window() { return *ui->top()->dialog->dialog; }

    headless::ResourceSet resources;
    std::optional<headless::HeadlessUi> ui;
    std::vector<std::string> lines;
    std::deque<int> answers;
    SamplingProgress progress;  // outlives TearDown, which closes what is left open
};

TEST_F(ProgressRun, NoKeepsTheJobAndFocusesCancel) {
    progress.start(7, 100);
    ASSERT_TRUE(progress.open());
    EXPECT_EQ(ui->top()->dialog->userWord, 0) << "the bar is reset at the start";
    EXPECT_EQ(window().focus(), 2);

    progress.onCommand(window(), 2, 0);
    window().setFocus(2152);
    answers = {kIdNo};
    EXPECT_EQ(progress.update(50, 60), 0);
    EXPECT_FALSE(progress.cancelRequested());
    EXPECT_EQ(window().focus(), 2) << "No gives the focus back to Cancel";
    EXPECT_EQ(window().text(IDC_PROGRESS_DONE), "51");
    EXPECT_EQ(ui->top()->dialog->userWord, barPosition(progress.bar(), 51)) << "the bar moves after a No";

    progress.onCommand(window(), 2, 0);
    answers = {kIdYes};
    EXPECT_EQ(progress.update(40, 90), 1);
    EXPECT_EQ(lines.back(), "CancelSampling 7");
    // Later updates of the cancelled job answer 1 without asking or telling the kernel again.
    const std::size_t told = lines.size();
    EXPECT_EQ(progress.update(30, 95), 1);
    EXPECT_EQ(lines.size(), told);
    progress.clear();
    EXPECT_EQ(progress.update(30, 95), 0) << "after the clear nothing is cancelled any more";
    EXPECT_FALSE(progress.open());
    EXPECT_EQ(lines.back(), "DoWindowEnable 1");
    EXPECT_FALSE(ui->top());
}

TEST_F(ProgressRun, OutOfRangeUpdatesChangeNothing) {
    progress.start(3, 10);
    progress.update(9, 5);
    const auto before = ui->top()->dialog->userWord;
    for (int remaining : {10, 11, 0, -1}) EXPECT_EQ(progress.update(remaining, 500), 0);
    EXPECT_EQ(window().text(IDC_PROGRESS_ELAPSED), "0:00:05");
    EXPECT_EQ(ui->top()->dialog->userWord, before);
    EXPECT_EQ(progress.remaining(), 2u);
}

TEST_F(ProgressRun, ClosedWindowStillAsksWithNoOwner) {
    progress.start(5, 10);
    progress.onClose(window());
    EXPECT_FALSE(progress.open());
    EXPECT_FALSE(ui->top());
    answers = {kIdNo};
    EXPECT_EQ(progress.update(5, 10), 0);
    EXPECT_TRUE(answers.empty()) << "the question came";
    progress.clear();
}

}  // namespace
}  // namespace kvs
