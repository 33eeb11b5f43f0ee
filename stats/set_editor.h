// The set editor: names sets of variables (the discrete-choice sets of
// Logit, the time-dependent covariates of survival analysis, whose variables
// are shown in list 33 instead of 10). It works on a
// copy of the record while open; Continue stores the set being edited and
// keeps the copy.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "stats/stats_composers.h"
#include "stats/variable_subdialog.h"

namespace kvs::stats {

class SetEditor : public VariableSubDialog {
public:
    SetEditor(ChoiceSets& record, std::uint16_t commandId, std::uint32_t helpTopic);

    // The next default name: "Set%d" ("TDC%d" for survival, 292) from the
    // counter plus 1, the number raised past the names already taken.
    static std::string defaultName(std::uint16_t commandId, int counter, const std::vector<NamedSet>& sets);

private:
    void show(DialogView& view) override;
    bool keep(DialogView& view) override;
    void other(DialogView& view, const Notification& n) override;

    bool storeCurrent(DialogView& view, bool typedName);
    void newSet(DialogView& view);
    void showSets(DialogView& view);

    ChoiceSets& record_;
    ChoiceSets working_;
    std::uint16_t commandId_;
    int variablesList_;  // the list of the current set's variables
    int current_ = -1;
    int counter_ = 0;
    std::string renamed_;  // a name typed into the combo box, not yet stored
};

// The working copy's room: 16 sets more than it holds as the editor opens,
// and 16 more whenever a new set would not fit.
inline constexpr std::size_t kSetRoomStep = 16;
void openRoom(std::vector<NamedSet>& sets);
void roomForNewSet(std::vector<NamedSet>& sets);

// Shows the sets at the top of a source list as "*" entries: adds the sets
// not shown yet after the leading "*" entries, then takes away, from the
// bottom of those up, the entries that are no longer sets.
void showSetsInSource(DialogView& view, int sourceId, const std::vector<NamedSet>& sets);
// Removes the leading "*" entries of a source list.
void removeSetsFromSource(DialogView& view, int sourceId);

}  // namespace kvs::stats
