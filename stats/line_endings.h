// How a command line with an options part ends when no option followed its
// slash: "ARIMA x /" reads "ARIMA x", as "ESTIMATE /" reads "ESTIMATE".
#pragma once

#include "core/command_text.h"

namespace kvs::stats {

// Drops a trailing "/" and, when one was dropped, the blank before it.
inline void closeOptions(CommandText& line) {
    const std::string& text = line.str();
    if (text.empty() || text.back() != '/') return;
    line.dropLast();
    if (!line.str().empty() && line.str().back() == ' ') line.dropLast();
}

}  // namespace kvs::stats
