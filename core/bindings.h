// Declarative ties between a dialog's controls and a record of remembered
// settings. One list of bindings gives the dialog's set-up (show), what OK
// reads back (read), what a click stores at once (clicked), which field a
// choice enables, and the typing limits. A record's defaults are its member
// initialisers, so ReinitDialogs resets it whole (DefaultsTable::record).
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <functional>
#include <vector>

#include "core/seam.h"

namespace kvs {

// When a control's state reaches the record: at OK, or at each click (so it
// is kept even when the dialog is then cancelled).
enum class Commit { OnOk, OnClick };

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
