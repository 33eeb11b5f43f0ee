// Statements of the colour picker, the symbol pictures and the graph font
// records.
#include <array>
#include <charconv>
#include <cstdlib>
#include <cstring>

#include "tools/scenario/call_statements.h"
#include "tools/scenario/transcript.h"

namespace kvs::scenario {

namespace {

// The shortest text that reads back as the same colour value.
std::string shortest(float value) {
    std::array<char, 64> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    return error == std::errc{} ? std::string(buffer.data(), end) : std::string("?");
}

std::optional<double> toDouble(const std::string& text) {
    if (text.empty()) return std::nullopt;
    char* end = nullptr;
    const double value = std::strtod(text.c_str(), &end);
    if (end != text.c_str() + text.size()) return std::nullopt;
    return value;
}

std::string describeFont(const char* name, const KvsLogFont& font) {
    const std::string face(font.faceName, strnlen(font.faceName, sizeof font.faceName));
    return std::string(name) + " " + quote(face) + " height " + std::to_string(font.height) + " width " +
           std::to_string(font.width) + " weight " + std::to_string(font.weight) +
           (font.italic ? " italic" : " upright");
}

}  // namespace

void runColourPicker(CallContext& call) {
    const auto fn = call.exports().colorPickerDialogEx;
    if (!call.has(reinterpret_cast<const void*>(fn), "ColorPickerDialogEx")) return;
    const auto start = call.statement.args.size() == 1 ? toDouble(call.statement.args[0].text) : std::nullopt;
    if (!start) {
        call.fail("colorpicker takes the colour value the picker opens with");
        return;
    }
    float value = static_cast<float>(*start);
    const std::int32_t result = fn(call.backend.ownerWindow(), &value);
    call.emit("ColorPickerDialogEx = " + std::to_string(result) + " value " + shortest(value));
}

void runSymbols(CallContext& call) {
    const auto load = call.exports().loadSymbolBitmapsEx;
    const auto remove = call.exports().deleteSymbolBitmapsEx;
    if (!call.has(reinterpret_cast<const void*>(load), "LoadSymbolBitmapsEx") ||
        !call.has(reinterpret_cast<const void*>(remove), "DeleteSymbolBitmapsEx"))
        return;
    void* table = nullptr;
    const std::int32_t count = load(&table);
    // The table holds one bitmap handle per symbol.
    auto loaded = [&] {
        int n = 0;
        const auto* handles = static_cast<void* const*>(table);
        for (std::int32_t i = 0; handles && i < count; ++i) n += handles[i] != nullptr ? 1 : 0;
        return n;
    };
    call.emit("LoadSymbolBitmapsEx = " + std::to_string(count) + " loaded " + std::to_string(loaded()));
    remove();
    call.emit("DeleteSymbolBitmapsEx loaded " + std::to_string(loaded()));
}

void runShowFont(CallContext& call) {
    const LibraryExports& e = call.exports();
    if (!call.has(e.kvgFont, "lfKvgFont") || !call.has(e.defKvgFont, "lfDefKvgFont")) return;
    call.emit(describeFont("lfKvgFont", *e.kvgFont));
    call.emit(describeFont("lfDefKvgFont", *e.defKvgFont));
}

// deffont "FACE" HEIGHT [bold] [italic]: the host sets the default graph font.
void runDefaultFont(CallContext& call) {
    KvsLogFont* font = call.exports().defKvgFont;
    if (!call.has(font, "lfDefKvgFont")) return;
    const auto& args = call.statement.args;
    const auto height = args.size() >= 2 && args[0].quoted ? toNumber(args[1].text) : std::nullopt;
    if (!height) {
        call.fail("deffont takes a face, a height and optionally bold and italic");
        return;
    }
    KvsLogFont record{};
    record.height = static_cast<std::int32_t>(*height);
    record.weight = 400;
    for (std::size_t i = 2; i < args.size(); ++i) {
        if (args[i].text == "bold") record.weight = 700;
        else if (args[i].text == "italic") record.italic = 1;
    }
    args[0].text.copy(record.faceName, sizeof record.faceName - 1);
    *font = record;
}

}  // namespace kvs::scenario
