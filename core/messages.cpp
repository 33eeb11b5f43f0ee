#include "core/messages.h"

namespace kvs {

void showStop(WindowRef owner, std::string_view message) {
    MessageRequest request;
    request.owner = owner;
    request.text = std::string(message);
    request.caption = std::string(text::kCaption);
    request.icon = MessageIcon::Stop;
    ui().messageBox(request);
}

void showNoMemory(WindowRef owner) {
    MessageRequest request;
    request.owner = owner;
    request.text = std::string(text::kNoMemory);
    request.caption = std::string(text::kWarningCaption);
    request.icon = MessageIcon::Exclamation;
    ui().messageBox(request);
}

}  // namespace kvs
