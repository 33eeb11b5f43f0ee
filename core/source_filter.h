// The search box under a source list: a short label and a one-line edit put
// under the list when the dialog opens. Typing shows only the entries that
// contain the text, ignoring case; clearing it shows them all again, in
// their order. Entries that are not variables of the list's catalogue (the
// sets a dialog offers at the top, "Case") stay in view whatever is typed.
//
// The filter keeps a copy of the whole list, taken when the box first takes
// the focus or its text first changes, and what the list shows as positions
// in that copy. A keystroke changes the list by the cheaper of two ways:
// deleting and inserting the entries that differ, or emptying it from the
// first difference on and adding the rest; a keystroke that leaves the same
// entries shown changes nothing. When someone else changes the list (a
// dialog refills it from another file, or puts its sets at the top), the
// copy follows: a refilled list is copied afresh and the box's text applied
// to it; entries inserted or deleted in the filtered list are inserted or
// deleted in the copy, so no name is lost or shown twice.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/seam.h"

namespace kvs {

class VariableCatalogue;

// What the search box shows for a typed text: the text without the blanks
// around it, its letters in lower case.
std::string filterKey(std::string_view typed);

class SourceFilter {
public:
    SourceFilter(int listId, int boxId, int labelId) : listId_(listId), boxId_(boxId), labelId_(labelId) {}

    // Shrinks the list from its bottom and puts the label and the box in
    // the room, right after the list in tab order. catalogue tells the
    // variables from the other entries and must outlive the filter. False
    // when the dialog has no such list box, it is too small, or the view
    // cannot add controls.
    bool install(DialogView& view, const VariableCatalogue* catalogue);
    bool installed() const { return installed_; }
    int listId() const { return listId_; }
    bool owns(int controlId) const { return installed_ && (controlId == boxId_ || controlId == labelId_); }

    // The box took the focus: the list is copied now if the copy is stale,
    // so the first keystroke need not wait for it.
    void prepare(DialogView& view);
    // The box's text changed: the list shows the entries that hold it.
    // True when an entry that was selected went out of view.
    bool apply(DialogView& view);
    // After a command of someone else's: if the list was changed, the copy
    // follows it and the box's text is applied again.
    void follow(DialogView& view);
    // Empties the box; the list shows every entry again.
    void clear(DialogView& view);

private:
    std::string_view entry(std::uint32_t position) const;
    std::string_view foldedEntry(std::uint32_t position) const;
    std::size_t entryCount() const { return pinned_.size(); }
    void resetEntries(std::size_t reserve);
    void appendEntry(std::string_view text, bool pinned);
    bool isVariable(std::string_view text) const;
    bool showsEverything() const { return !copied_ || shown_.size() == entryCount(); }

    void sync(DialogView& view);
    void copyList(const DialogView& view);
    void mergeEdits(const DialogView& view);
    std::vector<std::uint32_t> matching(const std::string& key) const;
    bool show(DialogView& view, const std::vector<std::uint32_t>& next);
    std::vector<std::uint32_t> editInPlace(DialogView& view, const std::vector<std::uint32_t>& next);
    std::vector<std::uint32_t> refillFrom(DialogView& view, const std::vector<std::uint32_t>& next,
                                          std::size_t from);

    int listId_, boxId_, labelId_;
    const VariableCatalogue* catalogue_ = nullptr;
    bool installed_ = false;

    // The copy: the texts end to end, the same with letters in lower case,
    // where each starts (one more than entries), and which are not variables.
    std::string chars_;
    std::string folded_;
    std::vector<std::uint32_t> starts_{0};
    std::vector<bool> pinned_;
    bool copied_ = false;
    // Positions in the copy the list shows, in order (always ascending).
    std::vector<std::uint32_t> shown_;
    // The key shown_ answers; complete when shown_ holds every entry that
    // matches it (a list that ran out of room holds fewer), so a longer key
    // need only look among them.
    std::string key_;
    bool complete_ = true;
    // The list's change counts when the filter last left it.
    DialogView::ListChanges seen_;
};

// The search boxes of a dialog's two source lists, 4 and 5.
class SourceFilters {
public:
    SourceFilters();
    // Adds a box under each source list the dialog has, with the catalogue
    // of its names.
    void install(DialogView& view, const VariableCatalogue& first, const VariableCatalogue& second);
    bool owns(int controlId) const;
    // A notification of a box or label: the list whose selection the
    // filtering changed, else 0.
    int command(DialogView& view, int controlId, int notifyCode);
    void follow(DialogView& view);
    void clear(DialogView& view);

private:
    std::array<SourceFilter, 2> filters_;
};

}  // namespace kvs
