#include "core/help_requests.h"

#include "core/library_state.h"
#include "core/messages.h"
#include "resources/common_ids.h"

namespace kvs {

void openHelpTopic(WindowRef owner, std::uint32_t context) {
    HelpRequest request;
    request.owner = owner;
    request.file = library().helpPath;
    request.kind = HelpKind::Context;
    request.context = context;
    ui().help(request);
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
    ui().help(request);
}

}  // namespace kvs
