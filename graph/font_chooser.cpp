#include "graph/font_chooser.h"

#include <cstring>

#include "core/library_state.h"
#include "graph/colour_font_texts.h"
#include "include/kvs_dlg.h"

namespace kvs::graph {

namespace {

constexpr std::uint16_t kGraphFontCommand = 150;
constexpr std::uint16_t kDefaultFontCommand = 153;

KvsLogFont chosen{};

void setFace(KvsLogFont& font, std::string_view face) {
    std::memset(font.faceName, 0, sizeof font.faceName);
    const std::size_t length = face.size() < sizeof font.faceName ? face.size() : sizeof font.faceName - 1;
    std::memcpy(font.faceName, face.data(), length);
}

}  // namespace

bool chooseGraphFont(WindowRef owner) {
    FontRequest request;
    request.owner = owner;
    request.initial = chosen;
    // Twelve points: a sixth of the screen's pixels per inch.
    request.initial.height = -(ui().screenPixelsPerInchY() / 6);
    setFace(request.initial, text::kDefaultFontFace);
    request.okText = std::string(text::kFontOkText);
    DialogUpScope up;  // no dialog starts over the chooser
    const std::optional<KvsLogFont> answer = ui().chooseFont(request);
    if (!answer) return false;
    chosen = *answer;
    chosen.faceName[sizeof chosen.faceName - 1] = '\0';
    chosen.height = lfDefKvgFont.height;
    chosen.width = 0;
    return true;
}

const KvsLogFont& chosenFont() { return chosen; }

void runFontCommand(std::uint16_t commandId, WindowRef owner) {
    if (commandId == kGraphFontCommand) {
        if (chooseGraphFont(owner)) lfKvgFont = chosen;
    } else if (commandId == kDefaultFontCommand) {
        lfKvgFont = lfDefKvgFont;
        chosen = lfDefKvgFont;
    }
}

void resetFontChooser() { chosen = {}; }

}  // namespace kvs::graph
