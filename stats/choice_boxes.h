// The entries of a statistics dialog's drop-down lists, put up before its
// remembered positions are shown.
#pragma once

#include <span>
#include <string_view>

#include "core/seam.h"
#include "stats/stats_texts.h"

namespace kvs::stats {

inline void fillChoices(DialogView& view, int id, std::span<const text::Choice> choices) {
    view.comboClear(id);
    for (const text::Choice& choice : choices) view.comboAdd(id, choice.entry);
}

inline void fillEntries(DialogView& view, int id, std::span<const std::string_view> entries) {
    view.comboClear(id);
    for (std::string_view entry : entries) view.comboAdd(id, entry);
}

inline void enableIf(DialogView& view, int id, bool on) {
    if (view.has(id)) view.enable(id, on);
}

}  // namespace kvs::stats
