#include "core/help_requests.h"

#include <cctype>
#include <string>

#include "core/library_state.h"
#include "core/messages.h"
#include "resources/common_ids.h"

namespace kvs {

std::string htmlHelpBeside(std::string_view helpFile) {
    constexpr std::string_view kHlp = ".hlp";
    if (helpFile.size() <= kHlp.size()) return {};
    const std::string_view extension = helpFile.substr(helpFile.size() - kHlp.size());
    for (std::size_t i = 0; i < kHlp.size(); ++i)
        if (std::tolower(static_cast<unsigned char>(extension[i])) != kHlp[i]) return {};
    // Letter by letter in the case of the original: ".Hlp" gives ".Chm".
    std::string html(helpFile.substr(0, helpFile.size() - kHlp.size() + 1));
    constexpr std::string_view kChm = "chm";
    for (std::size_t i = 0; i < kChm.size(); ++i) {
        const bool upper = std::isupper(static_cast<unsigned char>(extension[i + 1])) != 0;
        html += upper ? static_cast<char>(std::toupper(static_cast<unsigned char>(kChm[i]))) : kChm[i];
    }
    return html;
}

namespace {

// WinHelp is gone from current Windows; a .chm standing beside the .hlp is
// opened at the same topic instead. Help on help is WinHelp's own.
void sendHelp(HelpRequest request) {
    if (request.kind != HelpKind::HelpOnHelp) {
        std::string html = htmlHelpBeside(request.file);
        if (!html.empty() && ui().fileExists(html)) request.htmlFile = std::move(html);
    }
    ui().help(request);
}

}  // namespace

void openHelpTopic(WindowRef owner, std::uint32_t context) {
    HelpRequest request;
    request.owner = owner;
    request.file = library().helpPath;
    request.kind = HelpKind::Context;
    request.context = context;
    sendHelp(std::move(request));
}

int runModalWithTopic(WindowRef owner, std::string_view templateName, DialogHandler& handler, std::uint32_t topic) {
    LibraryState& lib = library();
    const std::uint32_t previous = lib.helpContext;
    lib.helpContext = topic;
    const int result = ui().runModal(owner, templateName, handler);
    lib.helpContext = previous;
    return result;
}

void answerHelpCommand(int code) {
    const LibraryState& lib = library();
    HelpRequest request;
    request.owner = lib.hostWindow;
    request.file = lib.helpPath;
    switch (code) {
    case IDM_HELP_CONTENTS: request.kind = HelpKind::Contents; break;
    case IDM_HELP_SEARCH:
        request.kind = HelpKind::Key;
        request.key = std::string(text::kHelpSearchKey);
        break;
    case IDM_HELP_ON_HELP:
        request.kind = HelpKind::HelpOnHelp;
        request.file = std::string(text::kHelpOnHelpFile);
        break;
    case IDM_HELP_CONTEXT:
        if (lib.helpContext == 0) return;
        request.kind = HelpKind::Context;
        request.context = lib.helpContext;
        break;
    default: return;
    }
    sendHelp(std::move(request));
}

}  // namespace kvs
