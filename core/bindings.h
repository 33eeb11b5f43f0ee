// Declarative ties between a dialog's controls and a record of remembered
// settings. One list of bindings gives the dialog's set-up (show), what OK
// reads back (read), what a click stores at once (clicked), which field a
// choice enables, and the typing limits. A record's defaults are its member
// initialisers, so ReinitDialogs resets it whole (DefaultsTable::record).
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <variant>
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
        bindings_.push_back({Kind::Check, {id}, flag, 0, commit});
        return *this;
    }
    // A group of radio buttons and the id of the chosen one. When none is
    // checked at OK the record keeps its choice.
    Bindings& radio(std::initializer_list<int> ids, int Record::*chosen, Commit commit = Commit::OnOk) {
        bindings_.push_back({Kind::Radio, ids, chosen, 0, commit});
        return *this;
    }
    // An edit field and its text, cut at limit, where the user's typing stops too.
    Bindings& text(int id, std::string Record::*value, std::size_t limit) {
        bindings_.push_back({Kind::Text, {id}, value, limit, Commit::OnOk});
        return *this;
    }
    // A drop-down list and the position chosen in it.
    Bindings& combo(int id, int Record::*position) {
        bindings_.push_back({Kind::Combo, {id}, position, 0, Commit::OnOk});
        return *this;
    }
    // Field enabled exactly while the radio button choice is checked; a click
    // on choice moves the focus to it.
    Bindings& enableWith(int fieldId, int choiceId) {
        bindings_.push_back({Kind::Enable, {fieldId, choiceId}, {}, 0, Commit::OnOk});
        return *this;
    }

    // The record's settings into the controls.
    void show(DialogView& view, const Record& record) const {
        for (const Binding& b : bindings_) {
            switch (b.kind) {
            case Kind::Check: view.setChecked(b.ids[0], record.*std::get<bool Record::*>(b.member)); break;
            case Kind::Radio: showRadio(view, b, record.*std::get<int Record::*>(b.member)); break;
            case Kind::Text:
                view.limitText(b.ids[0], b.limit);
                view.setText(b.ids[0], record.*std::get<std::string Record::*>(b.member));
                break;
            case Kind::Combo: view.comboSelect(b.ids[0], record.*std::get<int Record::*>(b.member)); break;
            case Kind::Enable: break;
            }
        }
        showEnabling(view);
    }

    // The controls' state into the record, as OK takes it.
    void read(const DialogView& view, Record& record) const {
        for (const Binding& b : bindings_) {
            switch (b.kind) {
            case Kind::Check: record.*std::get<bool Record::*>(b.member) = view.isChecked(b.ids[0]); break;
            case Kind::Radio:
                for (int id : b.ids)
                    if (view.isChecked(id)) record.*std::get<int Record::*>(b.member) = id;
                break;
            case Kind::Text: {
                std::string text = view.text(b.ids[0]);
                if (text.size() > b.limit) text.resize(b.limit);
                record.*std::get<std::string Record::*>(b.member) = std::move(text);
                break;
            }
            case Kind::Combo: record.*std::get<int Record::*>(b.member) = view.comboSelection(b.ids[0]); break;
            case Kind::Enable: break;
            }
        }
    }

    // A click on control id: bindings that commit on click store it, and the
    // fields it enables follow. True when a binding knew the control.
    bool clicked(DialogView& view, int id, Record& record) const {
        bool known = false;
        for (const Binding& b : bindings_) {
            if (!holds(b, id)) continue;
            known = true;
            if (b.commit != Commit::OnClick) continue;
            if (b.kind == Kind::Check) record.*std::get<bool Record::*>(b.member) = view.isChecked(id);
            if (b.kind == Kind::Radio) {
                record.*std::get<int Record::*>(b.member) = id;
                showRadio(view, b, id);
            }
        }
        for (const Binding& b : bindings_) {
            if (b.kind != Kind::Enable || !inGroupOf(b.ids[1], id)) continue;
            known = true;
            view.enable(b.ids[0], view.isChecked(b.ids[1]));
            if (id == b.ids[1]) view.setFocus(b.ids[0]);
        }
        return known;
    }

private:
    enum class Kind { Check, Radio, Text, Combo, Enable };
    using Member = std::variant<std::monostate, bool Record::*, int Record::*, std::string Record::*>;
    struct Binding {
        Kind kind;
        std::vector<int> ids;
        Member member;
        std::size_t limit;
        Commit commit;
    };

    static void showRadio(DialogView& view, const Binding& b, int chosen) {
        for (int id : b.ids) view.setChecked(id, id == chosen);
    }
    static bool holds(const Binding& b, int id) {
        if (b.kind == Kind::Enable) return false;
        for (int own : b.ids)
            if (own == id) return true;
        return false;
    }
    // Whether id is choice or another button of choice's radio group.
    bool inGroupOf(int choice, int id) const {
        for (const Binding& b : bindings_)
            if (b.kind == Kind::Radio && holds(b, choice) && holds(b, id)) return true;
        return choice == id;
    }
    void showEnabling(DialogView& view) const {
        for (const Binding& b : bindings_)
            if (b.kind == Kind::Enable) view.enable(b.ids[0], view.isChecked(b.ids[1]));
    }

    std::vector<Binding> bindings_;
};

}  // namespace kvs
