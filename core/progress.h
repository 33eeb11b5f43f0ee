// The progress dialog of sampling jobs: the modeless "ProcessBox" that the
// host opens with StartSamplingDialog, feeds once per sample with
// UpdateSamplingDialog and closes with ClearSamplingDialog. The times and
// the bar position are plain functions; the dialog runs through the seam.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/seam.h"

namespace kvs {

namespace progresstext {
inline constexpr std::string_view kTemplate = "ProcessBox";
inline constexpr std::string_view kConfirm = " Are you sure you want to Cancel this process?";
inline constexpr std::string_view kConfirmCaption = "Cancel";
}  // namespace progresstext

// Seconds as "h:mm:ss" ("%ld:%02ld:%02ld"); negative seconds count as 0.
std::string formatClock(std::int64_t seconds);

// The number of the sample being drawn: total - remaining + 1.
std::uint32_t samplesDone(std::uint32_t total, std::uint32_t remaining);

// Estimated seconds left: elapsed x total / done - elapsed.
std::int64_t remainingSeconds(std::int64_t elapsed, std::uint32_t total, std::uint32_t done);

struct ProgressBar {
    bool started = false;
    std::int64_t low = 0;
    std::int64_t high = 0;
    std::int64_t value = 0;
    std::int64_t offset = 0;
    std::int64_t scale = 1;
    std::int64_t lastPosition = 0;
};

// (done - low) x 32767 / ((high - low + 1) x scale) + offset, truncated; 0
// when the span is empty.
std::int64_t barPosition(const ProgressBar& bar, std::int64_t done);

class SamplingProgress : public DialogHandler {
public:
    void start(std::int32_t job, std::int32_t total);
    // 1 when the user confirmed a cancel and the job was cancelled, else 0.
    std::int32_t update(std::int32_t remaining, std::int32_t elapsed);
    void clear();

    int onInit(DialogView& view) override;
    void onCommand(DialogView& view, int controlId, int notifyCode) override;
    void onSysCommand(DialogView&, int) override {}
    void onClose(DialogView& view) override;

    bool open() const { return view_ != nullptr; }
    bool cancelRequested() const { return cancel_; }
    std::int32_t job() const { return job_; }
    std::uint32_t remaining() const { return remaining_; }
    const ProgressBar& bar() const { return bar_; }

private:
    void pump();
    void confirmCancel();

    DialogView* view_ = nullptr;
    std::int32_t job_ = 0;
    std::uint32_t total_ = 0;
    std::uint32_t remaining_ = 0;
    bool cancel_ = false;
    bool cancelled_ = false;
    ProgressBar bar_;
};

// The one progress dialog of the library.
SamplingProgress& samplingProgress();

}  // namespace kvs
