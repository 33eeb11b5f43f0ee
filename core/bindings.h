// Declarative ties between a dialog's controls and a record of remembered
// settings. One list of bindings gives the dialog's set-up (show), what OK
// reads back (read), what a click stores at once (clicked), which field a
// choice enables, the typing limits, and the numbers OK checks (validate).
// A record's defaults are its member initialisers, so ReinitDialogs resets
// it whole (DefaultsTable::record) and Reset All shows Record{}.
//
// Every family declares its controls so: the data and statistics dialogs
// over typed records (member pointers, checked by the compiler), the graph
// family over its store of values by control id (entry()), since its option
// records are one generic store per graph type and option code.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <initializer_list>
#include <string>
#include <string_view>
#include <functional>
#include <vector>

#include "core/blank_text.h"
#include "core/numeric_field.h"
#include "core/seam.h"

namespace kvs {

// When a control's state reaches the record: at OK, or at each click (so it
// is kept even when the dialog is then cancelled).
enum class Commit { OnOk, OnClick };

// How a control's value is kept in a store of texts by control id: a check
// box or radio button as "1" or empty (RadioFirst: the group's first button,
// chosen when nothing was), an edit's text, a text that must read as a
// number, a drop-down list's position, a list's names one a line.
enum class Kept { Check, RadioFirst, Text, Number, Combo, Names };

// The message of a number field whose text is not a number.
inline constexpr std::string_view kNotANumber = "Entry is not a valid number.";

template <typename Record>
class Bindings {
public:
    // A check box and its flag.
    Bindings& check(int id, bool Record::*flag, Commit commit = Commit::OnOk) {
        Binding b{{id}, commit, false};
        b.show = [id, flag](DialogView& view, const Record& r) { view.setChecked(id, r.*flag); };
        b.read = [id, flag](const DialogView& view, Record& r) { r.*flag = view.isChecked(id); };
        b.click = [flag](DialogView& view, int clicked, Record& r) { r.*flag = view.isChecked(clicked); };
        return add(std::move(b));
    }
    // A group of radio buttons and the id of the chosen one. When none is
    // checked at OK the record keeps its choice.
    Bindings& radio(std::initializer_list<int> ids, int Record::*chosen, Commit commit = Commit::OnOk) {
        Binding b{ids, commit, true};
        const std::vector<int> group(ids);
        b.show = [group, chosen](DialogView& view, const Record& r) { showChoice(view, group, r.*chosen); };
        b.read = [group, chosen](const DialogView& view, Record& r) {
            for (int id : group)
                if (view.isChecked(id)) r.*chosen = id;
        };
        b.click = [group, chosen](DialogView& view, int clicked, Record& r) {
            r.*chosen = clicked;
            showChoice(view, group, clicked);
        };
        return add(std::move(b));
    }
    // An edit field and its text, cut at limit, where the user's typing stops too.
    Bindings& text(int id, std::string Record::*value, std::size_t limit) {
        Binding b{{id}, Commit::OnOk, false};
        b.show = [id, value, limit](DialogView& view, const Record& r) {
            view.limitText(id, limit);
            view.setText(id, r.*value);
        };
        b.read = [id, value, limit](const DialogView& view, Record& r) {
            std::string text = view.text(id);
            if (text.size() > limit) text.resize(limit);
            r.*value = std::move(text);
        };
        return add(std::move(b));
    }
    // An edit field whose text must read as a number when given (validate);
    // the blanks around a typed number are not kept.
    Bindings& number(int id, std::string Record::*value, std::size_t limit) {
        text(id, value, limit);
        Binding& b = bindings_.back();
        b.read = [id, value, limit](const DialogView& view, Record& r) {
            std::string text = view.text(id);
            if (text.size() > limit) text.resize(limit);
            r.*value = std::string(withoutBlanks(text));
        };
        b.valid = [value](const Record& r) { return isNumberOrBlank(r.*value); };
        return *this;
    }
    // A list box and the names it holds.
    Bindings& names(int id, std::vector<std::string> Record::*list) {
        Binding b{{id}, Commit::OnOk, false};
        b.show = [id, list](DialogView& view, const Record& r) {
            view.listClear(id);
            for (const std::string& name : r.*list) view.listAdd(id, name, ListInsert::Append);
        };
        b.read = [id, list](const DialogView& view, Record& r) { r.*list = view.listTexts(id); };
        return add(std::move(b));
    }
    // A control kept in a record that is a store of texts by control id (a
    // std::map<int, std::string>). A control the dialog lacks is not read.
    Bindings& entry(int id, Kept kept) {
        Binding b{{id}, Commit::OnOk, false};
        b.show = [id, kept](DialogView& view, const Record& r) {
            const auto found = r.find(id);
            const std::string none;
            const std::string& value = found == r.end() ? none : found->second;
            switch (kept) {
            case Kept::Check:
            case Kept::RadioFirst: view.setChecked(id, value == "1"); break;
            case Kept::Text:
            case Kept::Number: view.setText(id, value); break;
            case Kept::Combo: view.comboSelect(id, std::atoi(value.c_str())); break;
            case Kept::Names:
                view.listClear(id);
                for (std::size_t at = 0; at < value.size();) {
                    const std::size_t end = std::min(value.find('\n', at), value.size());
                    view.listAdd(id, std::string_view(value).substr(at, end - at), ListInsert::Append);
                    at = end + 1;
                }
                break;
            }
        };
        b.read = [id, kept](const DialogView& view, Record& r) {
            if (!view.has(id)) return;
            std::string value;
            switch (kept) {
            case Kept::Check:
            case Kept::RadioFirst:
                if (view.isChecked(id)) value.assign(1, '1');
                break;
            case Kept::Text:
            case Kept::Number: value = view.text(id); break;
            case Kept::Combo: value = std::to_string(std::max(view.comboSelection(id), 0)); break;
            case Kept::Names: {
                const std::vector<std::string>& names = view.listTexts(id);
                for (std::size_t i = 0; i < names.size(); ++i) {
                    if (i) value += '\n';
                    value += names[i];
                }
                break;
            }
            }
            r[id] = std::move(value);
        };
        if (kept == Kept::Number) {
            b.valid = [id](const Record& r) {
                const auto found = r.find(id);
                return found == r.end() || isNumberOrBlank(found->second);
            };
        }
        return add(std::move(b));
    }

    // A drop-down list and the position chosen in it.
    Bindings& combo(int id, int Record::*position) {
        Binding b{{id}, Commit::OnOk, false};
        b.show = [id, position](DialogView& view, const Record& r) { view.comboSelect(id, r.*position); };
        b.read = [id, position](const DialogView& view, Record& r) { r.*position = view.comboSelection(id); };
        return add(std::move(b));
    }
    // Field enabled exactly while the radio button choice is checked; a click
    // on choice moves the focus to it.
    Bindings& enableWith(int fieldId, int choiceId) {
        enablings_.push_back({fieldId, choiceId});
        return *this;
    }

    // The record's settings into the controls.
    void show(DialogView& view, const Record& record) const {
        for (const Binding& b : bindings_) b.show(view, record);
        for (const Enabling& e : enablings_) view.enable(e.field, view.isChecked(e.choice));
    }

    // The controls' state into the record, as OK takes it.
    void read(const DialogView& view, Record& record) const {
        for (const Binding& b : bindings_) b.read(view, record);
    }

    // Why the record may not be kept ("Entry is not a valid number."), or
    // empty when every number field holds a number or nothing.
    std::string_view validate(const Record& record) const {
        for (const Binding& b : bindings_)
            if (b.valid && !b.valid(record)) return kNotANumber;
        return {};
    }

    // The number fields, to be checked as the user leaves them too.
    std::vector<int> numberIds() const {
        std::vector<int> ids;
        for (const Binding& b : bindings_)
            if (b.valid) ids.push_back(b.ids.front());
        return ids;
    }

    // A click on control id: bindings that commit on click store it, and the
    // fields it enables follow. True when a binding knew the control.
    bool clicked(DialogView& view, int id, Record& record) const {
        bool known = false;
        for (const Binding& b : bindings_) {
            if (!holds(b, id)) continue;
            known = true;
            if (b.commit == Commit::OnClick && b.click) b.click(view, id, record);
        }
        for (const Enabling& e : enablings_) {
            if (!inGroupOf(e.choice, id)) continue;
            known = true;
            view.enable(e.field, view.isChecked(e.choice));
            if (id == e.choice) view.setFocus(e.field);
        }
        return known;
    }

private:
    struct Binding {
        std::vector<int> ids;
        Commit commit = Commit::OnOk;
        bool group = false;
        std::function<void(DialogView&, const Record&)> show = {};
        std::function<void(const DialogView&, Record&)> read = {};
        std::function<void(DialogView&, int, Record&)> click = {};
        std::function<bool(const Record&)> valid = {};
    };

    struct Enabling {
        int field;
        int choice;
    };

    Bindings& add(Binding binding) {
        bindings_.push_back(std::move(binding));
        return *this;
    }
    static void showChoice(DialogView& view, const std::vector<int>& group, int chosen) {
        for (int id : group) view.setChecked(id, id == chosen);
    }
    static bool holds(const Binding& b, int id) {
        for (int own : b.ids)
            if (own == id) return true;
        return false;
    }
    // Whether id is choice or another button of choice's radio group.
    bool inGroupOf(int choice, int id) const {
        for (const Binding& b : bindings_)
            if (b.group && holds(b, choice) && holds(b, id)) return true;
        return choice == id;
    }

    std::vector<Binding> bindings_;
    std::vector<Enabling> enablings_;
};

}  // namespace kvs
