#include "core/numeric_field.h"

#include <array>
#include <charconv>
#include <climits>
#include <cmath>

#include "core/blank_text.h"
#include "resources/common_ids.h"

namespace kvs {

namespace {

// Exponents past this make every digit integral or every fraction digit
// non-zero anyway; it keeps the arithmetic bounded.
constexpr long kExponentCap = 100000;
// The focus-time text is kept up to this many characters.
constexpr std::size_t kFocusTextLimit = 32;
constexpr double kPositionSlack = 1e-15;
// The field is read into a 128-byte buffer with a blank after the text.
constexpr std::size_t kReadLimit = 126;
constexpr int kRealDigits = 15;

bool isBlank(char c) { return c == ' ' || c == '\t'; }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool allZeros(std::string_view digits) { return digits.find_first_not_of('0') == std::string_view::npos; }

// Whether digits I.F times ten to the exponent has no fractional part.
bool integralDigits(std::string_view whole, std::string_view fraction, long exponent) {
    if (exponent >= 0) {
        const auto shifted = static_cast<std::size_t>(exponent);
        return shifted >= fraction.size() || allZeros(fraction.substr(shifted));
    }
    const auto dropped = static_cast<std::size_t>(-exponent);
    const std::string_view tail = dropped >= whole.size() ? whole : whole.substr(whole.size() - dropped);
    return allZeros(tail) && allZeros(fraction);
}

// Whether digits I.F times ten to the exponent is at least one: a number
// out of a double's reach is then too large rather than too small.
bool largeMagnitude(std::string_view whole, long exponent) {
    const std::size_t first = whole.find_first_not_of('0');
    if (first == std::string_view::npos) return exponent > 0;
    return exponent + static_cast<long>(whole.size() - first) > 0;
}

bool inMessage = false;
std::string rememberedText;

template <typename T>
std::string_view written(std::array<char, 64>& buffer, T value) {
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    return error == std::errc() ? std::string_view(buffer.data(), static_cast<std::size_t>(end - buffer.data()))
                                : std::string_view();
}

void notifyChange(const NumericField& field) {
    if (field.notify && field.callback) field.callback(field.controlId, field.value);
}

}  // namespace

std::optional<ParsedNumber> parseNumber(std::string_view text) {
    std::size_t i = 0;
    const std::size_t n = text.size();
    while (i < n && isBlank(text[i])) ++i;
    std::size_t end = n;
    while (end > i && isBlank(text[end - 1])) --end;

    bool negative = false;
    if (i < end && (text[i] == '+' || text[i] == '-')) negative = text[i++] == '-';
    const std::size_t body = i;

    const std::size_t wholeStart = i;
    while (i < end && isDigit(text[i])) ++i;
    const std::string_view whole = text.substr(wholeStart, i - wholeStart);
    std::string_view fraction;
    if (i < end && text[i] == '.') {
        const std::size_t fractionStart = ++i;
        while (i < end && isDigit(text[i])) ++i;
        fraction = text.substr(fractionStart, i - fractionStart);
    }
    if (whole.empty() && fraction.empty()) return std::nullopt;

    long exponent = 0;
    if (i < end && (text[i] == 'e' || text[i] == 'E')) {
        ++i;
        bool negativeExponent = false;
        if (i < end && (text[i] == '+' || text[i] == '-')) negativeExponent = text[i++] == '-';
        if (i >= end || !isDigit(text[i])) return std::nullopt;
        while (i < end && isDigit(text[i])) {
            if (exponent < kExponentCap) exponent = exponent * 10 + (text[i] - '0');
            ++i;
        }
        if (negativeExponent) exponent = -exponent;
    }
    if (i != end) return std::nullopt;

    double magnitude = 0.0;
    const char* first = text.data() + body;
    const char* last = text.data() + end;
    const auto [stop, error] = std::from_chars(first, last, magnitude, std::chars_format::general);
    // A value too small for a double reads as zero, one too large is no number.
    if (error == std::errc::result_out_of_range && !largeMagnitude(whole, exponent)) magnitude = 0.0;
    else if (error != std::errc() || stop != last) return std::nullopt;

    ParsedNumber parsed;
    parsed.value = negative ? -magnitude : magnitude;
    parsed.integral = integralDigits(whole, fraction, exponent);
    return parsed;
}

namespace {

std::size_t readRoom(const NumericField& field) {
    const std::size_t room = static_cast<std::size_t>(field.width) + 3;
    return room < kReadLimit ? room : kReadLimit;
}

}  // namespace

bool isNumberOrBlank(std::string_view text) {
    return text.find_first_not_of(' ') == std::string_view::npos || parseNumber(text).has_value();
}

int validateText(NumericField& field, std::string_view text) {
    const std::size_t room = readRoom(field);
    if (text.size() > room) text = text.substr(0, room);
    if (text.empty()) return kFieldEmpty;
    const auto parsed = parseNumber(text);
    if (!parsed) return kFieldNotNumber;
    if (!field.realAllowed && !parsed->integral) return kFieldNotInteger;
    if (parsed->value < field.minimum || parsed->value > field.maximum) return kFieldOutOfRange;
    field.value = parsed->value;
    return kFieldValid;
}

std::string_view fieldErrorText(int code) {
    switch (code) {
    case kFieldEmpty: return fieldtext::kEmpty;
    case kFieldNotNumber: return fieldtext::kNotNumber;
    case kFieldNotInteger: return fieldtext::kNotInteger;
    case kFieldOutOfRange: return fieldtext::kOutOfRange;
    default: return fieldtext::kBadCode;
    }
}

double steppedValue(const NumericField& field, int direction) {
    double next = field.value;
    if (direction == kStepUp) next += field.step;
    else if (direction == kStepDown) next -= field.step;
    if (next > field.maximum) next = field.maximum;
    if (next < field.minimum) next = field.minimum;
    return next;
}

std::string formatFieldValue(const NumericField& field) {
    std::array<char, 64> buffer{};
    const double value = field.value == 0.0 ? 0.0 : field.value;  // no "-0"
    if (!field.realAllowed && std::fabs(value) < 9.0e18)
        return std::string(written(buffer, static_cast<long long>(std::trunc(value))));
    const auto [end, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, kRealDigits);
    return error == std::errc() ? std::string(buffer.data(), end) : std::string();
}

namespace {

int positionsFor(double from, double to, double step) {
    if (!(step > 0.0)) return 1;
    const double count = std::trunc((to + kPositionSlack - from) / step) + 1.0;
    if (!(count >= 1.0)) return 1;
    return count >= static_cast<double>(INT_MAX) ? INT_MAX : static_cast<int>(count);
}

}  // namespace

int upDownPositions(const NumericField& field) { return positionsFor(field.minimum, field.maximum, field.step); }

int upDownPosition(const NumericField& field) {
    const int position = positionsFor(field.minimum, field.value, field.step);
    const int count = upDownPositions(field);
    return field.value < field.minimum ? 1 : position > count ? count : position;
}

std::string upDownText(int first, int count, int position) {
    std::array<char, 64> buffer{};
    std::string out(written(buffer, first));
    out += ',';
    out += written(buffer, count);
    out += ',';
    out += written(buffer, position);
    return out;
}

int validateField(NumericField& field, const DialogView& view) {
    std::string text = view.text(field.controlId);
    const std::size_t room = readRoom(field);
    if (text.size() > room) text.resize(room);
    return validateText(field, text);
}

void reportFieldError(int code) {
    inMessage = true;
    MessageRequest request;
    request.owner = ui().focusWindow();
    request.text = std::string(fieldErrorText(code));
    request.caption = std::string(fieldtext::kCaption);
    request.icon = MessageIcon::None;
    request.buttons = MessageButtons::Ok;
    try {
        ui().messageBox(request);
    } catch (...) {
        inMessage = false;
        throw;
    }
    inMessage = false;
}

bool fieldMessageUp() { return inMessage; }

void rememberFocusText(std::string_view text) {
    rememberedText.assign(text.substr(0, kFocusTextLimit));
}

const std::string& focusText() { return rememberedText; }

void refreshField(NumericField& field, DialogView& view) { view.setText(field.controlId, formatFieldValue(field)); }

namespace {

bool changedSinceFocus(const std::string& text) { return text.substr(0, kFocusTextLimit) != rememberedText; }

}  // namespace

int confirmField(NumericField& field, DialogView& view) {
    const std::string text = view.text(field.controlId);
    if (!changedSinceFocus(text) || fieldMessageUp()) return kFieldValid;
    const int code = validateField(field, view);
    if (code > kFieldValid) {
        reportFieldError(code);
        return code;
    }
    // An emptied field has no value of its own: it shows the last valid one
    // again, and nothing changed to notify.
    refreshField(field, view);
    if (code == kFieldValid) notifyChange(field);
    rememberFocusText(view.text(field.controlId));
    return code;
}

int leaveField(NumericField& field, DialogView& view) {
    if (fieldMessageUp()) return kFieldValid;
    if (field.blankAllowed && isBlankText(view.text(field.controlId))) return kFieldValid;
    const int code = validateField(field, view);
    if (code == kFieldValid && changedSinceFocus(view.text(field.controlId))) notifyChange(field);
    return code;
}

bool leavingIsChecked(int gainingId) {
    return gainingId != kIdOk && gainingId != kIdCancel && gainingId != IDC_CONTINUE;
}

int stepField(NumericField& field, DialogView& view, int direction) {
    const int code = validateField(field, view);
    if (code != kFieldValid) {
        reportFieldError(code);
        return code;
    }
    field.value = steppedValue(field, direction);
    refreshField(field, view);
    notifyChange(field);
    return code;
}

}  // namespace kvs
