#include "core/progress.h"

#include "core/export_guard.h"

#include <array>
#include <charconv>

#include "include/kvs_dlg.h"
#include "include/kvs_imports.h"
#include "resources/progress_ids.h"

namespace kvs {

namespace {

constexpr unsigned kCancelBeep = 1;

void appendNumber(std::string& out, std::int64_t value, int minimumDigits) {
    std::array<char, 24> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    if (error != std::errc()) return;
    const auto length = static_cast<int>(end - buffer.data());
    for (int i = length; i < minimumDigits; ++i) out += '0';
    out.append(buffer.data(), end);
}

std::string unsignedText(std::uint32_t value) {
    std::string out;
    appendNumber(out, value, 1);
    return out;
}

}  // namespace

std::string formatClock(std::int64_t seconds) {
    if (seconds < 0) seconds = 0;
    const std::int64_t hours = seconds / 3600;
    const std::int64_t minutes = (seconds - 3600 * hours) / 60;
    std::string out;
    appendNumber(out, hours, 1);
    out += ':';
    appendNumber(out, minutes, 2);
    out += ':';
    appendNumber(out, seconds - 3600 * hours - 60 * minutes, 2);
    return out;
}

std::uint32_t samplesDone(std::uint32_t total, std::uint32_t remaining) { return total - remaining + 1; }

std::int64_t remainingSeconds(std::int64_t elapsed, std::uint32_t total, std::uint32_t done) {
    const std::int64_t estimated = done > 1 ? elapsed * total / done : elapsed * total;
    return estimated - elapsed;
}

std::int64_t barPosition(const ProgressBar& bar, std::int64_t done) {
    const std::int64_t span = (bar.high - bar.low + 1) * bar.scale;
    if (span == 0) return bar.offset;
    return (done - bar.low) * PROGRESS_BAR_FULL / span + bar.offset;
}

SamplingProgress& samplingProgress() {
    static SamplingProgress progress;
    return progress;
}

void SamplingProgress::pump() {
    if (view_ && ui().pumpMessages(*view_)) cancel_ = true;
}

void SamplingProgress::start(std::int32_t job, std::int32_t total) {
    // A second start without a clear replaces the dialog rather than losing it.
    if (view_) {
        ui().closeModeless(*view_);
        view_ = nullptr;
    }
    job_ = job;
    total_ = static_cast<std::uint32_t>(total);
    remaining_ = total_;
    cancel_ = false;
    cancelled_ = false;
    DoWindowEnable(0);
    view_ = ui().openModeless(0, progresstext::kTemplate, *this);
    pump();

    bar_ = ProgressBar{};
    if (!bar_.started) {
        if (view_) ui().userRequest(*view_, PROGRESS_RESET_BAR, 0);
        bar_.started = true;
    }
    bar_.low = 0;
    bar_.high = total_;
    bar_.value = 0;
}

std::int32_t SamplingProgress::update(std::int32_t remaining, std::int32_t elapsed) {
    // A job the user has cancelled stays cancelled: the question is not
    // asked, nor the kernel told, a second time.
    if (cancelled_) return 1;
    if (view_) ui().updateWindow(*view_);
    if (remaining < 1 || static_cast<std::uint32_t>(remaining) >= total_) return 0;

    const std::uint32_t done = samplesDone(total_, static_cast<std::uint32_t>(remaining));
    remaining_ = done;
    if (view_) {
        view_->setText(IDC_PROGRESS_DONE, unsignedText(done));
        view_->setText(IDC_PROGRESS_TOTAL, unsignedText(total_));
        view_->setText(IDC_PROGRESS_ELAPSED, formatClock(elapsed));
        view_->setText(IDC_PROGRESS_REMAINING, formatClock(remainingSeconds(elapsed, total_, done)));
    }
    pump();

    if (cancel_) {
        confirmCancel();
        if (cancelled_) return 1;
    }

    bar_.value = done;
    const std::int64_t position = barPosition(bar_, done);
    if (view_) ui().userRequest(*view_, PROGRESS_SET_BAR, static_cast<std::intptr_t>(position));
    bar_.lastPosition = position;
    pump();
    return 0;
}

// Asks whether to stop the job; after a closed window the question has no
// owner. Yes hands the job to the kernel, No puts the focus back on Cancel.
void SamplingProgress::confirmCancel() {
    cancelled_ = false;
    ui().messageBeep(kCancelBeep);
    MessageRequest request;
    request.owner = view_ ? view_->handle() : 0;
    request.text = std::string(progresstext::kConfirm);
    request.caption = std::string(progresstext::kConfirmCaption);
    request.icon = MessageIcon::Question;
    request.buttons = MessageButtons::YesNo;
    if (ui().messageBox(request) == kIdYes) {
        CancelSampling(job_);
        cancelled_ = true;
        return;
    }
    cancel_ = false;
    if (view_) view_->setFocus(kIdCancel);
}

void SamplingProgress::clear() {
    pump();
    cancel_ = false;
    cancelled_ = false;
    if (view_) {
        ui().closeModeless(*view_);
        view_ = nullptr;
    }
    DoWindowEnable(1);
}

int SamplingProgress::onInit(DialogView& view) {
    cancel_ = false;
    view.setFocus(kIdCancel);
    return kIdCancel;
}

void SamplingProgress::onCommand(DialogView&, int controlId, int) { cancel_ = controlId == kIdCancel; }

void SamplingProgress::onClose(DialogView& view) {
    cancel_ = true;
    ui().closeModeless(view);
    view_ = nullptr;
}

}  // namespace kvs

// The exports. No exception may reach the host.
extern "C" {

void KVS_CALL StartSamplingDialog(int32_t job, int32_t total) {
    kvs::guardedExport([&] { kvs::samplingProgress().start(job, total); });
}

int32_t KVS_CALL UpdateSamplingDialog(int32_t remaining, int32_t elapsedSeconds) {
    return kvs::guardedExport(0, [&] { return kvs::samplingProgress().update(remaining, elapsedSeconds); });
}

void KVS_CALL ClearSamplingDialog(void) {
    kvs::guardedExport([] { kvs::samplingProgress().clear(); });
}

}  // extern "C"
