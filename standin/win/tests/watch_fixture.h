// Runs modal windows under a WindowWatch whose ticks play a list of
// actions, one per tick, each on the window then on top; collects the lines
// the watch reports.
#pragma once

#include <windows.h>

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "standin/win/window_watch.h"

namespace kvs::standin::test {

class WatchFixture {
public:
    using Action = std::function<void(HWND top)>;

    explicit WatchFixture(HMODULE library = nullptr) {
        watch_.start(library, [this](const std::string& line) { lines.push_back(line); },
                     [this](HWND top) { onTick(top); });
    }

    void then(Action action) { actions_.push_back(std::move(action)); }

    std::vector<std::string> lines;
    std::vector<HWND> tops;  // the window each action was given

private:
    void onTick(HWND top) {
        if (!top || actions_.empty()) return;
        Action action = std::move(actions_.front());
        actions_.pop_front();
        tops.push_back(top);
        action(top);
    }

    WindowWatch watch_;
    std::deque<Action> actions_;
};

}  // namespace kvs::standin::test
