#include "headless/headless_dialog.h"

#include <algorithm>
#include <atomic>

namespace kvs::headless {
namespace {

// The seam's kind of a template control (statics and others alike).
ControlType typeOf(ControlKind kind) {
    switch (kind) {
    case ControlKind::Button: return ControlType::Button;
    case ControlKind::Edit: return ControlType::Edit;
    case ControlKind::ListBox: return ControlType::ListBox;
    case ControlKind::ComboBox: return ControlType::ComboBox;
    default: return ControlType::Other;
    }
}


// A Win32 control keeps a C string: text ends at an embedded NUL.
std::string cText(std::string_view text) { return std::string(text.substr(0, text.find('\0'))); }

std::string_view trimBlanks(std::string_view s) {
    const auto first = s.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    const auto last = s.find_last_not_of(" \t");
    return s.substr(first, last - first + 1);
}

int charClass(unsigned char c) {
    if (c >= '0' && c <= '9') return 1;
    if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z')) return 2;
    return c >= 0x80 ? 3 : 0;
}

unsigned char fold(unsigned char c) { return (c >= 'A' && c <= 'Z') ? static_cast<unsigned char>(c - 'A' + 'a') : c; }

bool validIndex(const std::vector<ListEntry>& items, int index) {
    return index >= 0 && static_cast<std::size_t>(index) < items.size();
}

int firstSelected(const std::vector<ListEntry>& items) {
    const auto it = std::find_if(items.begin(), items.end(), [](const ListEntry& e) { return e.selected; });
    return it == items.end() ? -1 : static_cast<int>(it - items.begin());
}

void selectAll(std::vector<ListEntry>& items, bool on) {
    for (ListEntry& e : items) e.selected = on;
}

// Single selection: the chosen item only.
void selectOnly(ControlState& c, int index) {
    if (validIndex(c.items, c.chosen)) c.items[static_cast<std::size_t>(c.chosen)].selected = false;
    c.items[static_cast<std::size_t>(index)].selected = true;
    c.chosen = index;
}

void selectNone(ControlState& c) {
    if (validIndex(c.items, c.chosen)) c.items[static_cast<std::size_t>(c.chosen)].selected = false;
    c.chosen = -1;
}

// After every entry that sorts before or equal to text, so equal names keep
// the order they were added in.
std::size_t sortedPosition(const std::vector<ListEntry>& items, std::string_view text) {
    const auto it = std::upper_bound(items.begin(), items.end(), text, [](std::string_view t, const ListEntry& e) {
        return compareListText(t, e.text) < 0;
    });
    return static_cast<std::size_t>(it - items.begin());
}

// The selected item keeps its selection when an entry goes in before it.
int insertEntry(ControlState& c, std::string_view text, bool sorted) {
    const std::size_t at = sorted ? sortedPosition(c.items, text) : c.items.size();
    c.items.insert(c.items.begin() + static_cast<std::ptrdiff_t>(at), ListEntry{cText(text), false});
    if (c.chosen >= static_cast<int>(at)) ++c.chosen;
    return static_cast<int>(at);
}

WindowRef nextHandle() {
    static std::atomic<WindowRef> last{0};
    return ++last;
}

}  // namespace

int compareListText(std::string_view a, std::string_view b) {
    const std::size_t n = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < n; ++i) {
        const auto ca = static_cast<unsigned char>(a[i]);
        const auto cb = static_cast<unsigned char>(b[i]);
        if (charClass(ca) != charClass(cb)) return charClass(ca) < charClass(cb) ? -1 : 1;
        if (fold(ca) != fold(cb)) return fold(ca) < fold(cb) ? -1 : 1;
    }
    if (a.size() == b.size()) return 0;
    return a.size() < b.size() ? -1 : 1;
}

std::string withoutMnemonics(std::string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '&') {
            out += text[i];
        } else if (i + 1 < text.size()) {
            out += text[++i];
        }
    }
    return out;
}

HeadlessDialog::HeadlessDialog(const DialogTemplate& dialogTemplate)
    : handle_(nextHandle()), templateName_(dialogTemplate.name), caption_(dialogTemplate.caption),
      width_(dialogTemplate.w), height_(dialogTemplate.h) {
    controls_.reserve(dialogTemplate.controls.size());
    for (const ControlTemplate& def : dialogTemplate.controls) {
        ControlState state;
        state.def = def;
        state.text = def.text;
        state.enabled = !def.disabled();
        controls_.push_back(std::move(state));
    }
}

std::vector<ControlLayout> HeadlessDialog::layout() const {
    std::vector<ControlLayout> all;
    all.reserve(controls_.size());
    for (const ControlState& c : controls_) {
        ControlLayout control{c.def.id, typeOf(c.def.kind), {}, {c.def.x, c.def.y, c.def.w, c.def.h}};
        control.multiLine = c.def.editMultiline();
        if (control.type == ControlType::Button || control.type == ControlType::Other) control.text = c.text;
        all.push_back(std::move(control));
    }
    return all;
}

DialogRect HeadlessDialog::controlRect(int id) const {
    const ControlState* c = find(id);
    return c ? DialogRect{c->def.x, c->def.y, c->def.w, c->def.h} : DialogRect{};
}

void HeadlessDialog::moveControl(int id, const DialogRect& rect) {
    if (ControlState* c = find(id)) {
        c->def.x = rect.x, c->def.y = rect.y, c->def.w = rect.width, c->def.h = rect.height;
    }
}

void HeadlessDialog::growClient(int width, int height) {
    width_ += width;
    height_ += height;
}

void HeadlessDialog::arrange(const std::vector<DialogRect>& rects) {
    for (std::size_t i = 0; i < rects.size() && i < controls_.size(); ++i) {
        ControlTemplate& def = controls_[i].def;
        def.x = rects[i].x, def.y = rects[i].y, def.w = rects[i].width, def.h = rects[i].height;
    }
}

void HeadlessDialog::makeResizable(int minWidth, int minHeight) {
    resizable_ = true;
    minWidth_ = minWidth;
    minHeight_ = minHeight;
}

void HeadlessDialog::resizeClient(int width, int height) {
    width_ = std::max(width, minWidth_);
    height_ = std::max(height, minHeight_);
}

// Built as the resource compiler builds the same statements: a LTEXT, a
// PUSHBUTTON, an EDITTEXT, and an EDITTEXT with ES_MULTILINE | ES_READONLY.
bool HeadlessDialog::addControl(const AddedControl& added) {
    if (find(added.id)) return false;
    constexpr std::uint32_t kChild = 0x50000000u;  // WS_CHILD | WS_VISIBLE
    constexpr std::uint32_t kTabStop = 0x00010000u, kBorder = 0x00800000u;
    ControlState state;
    ControlTemplate& def = state.def;
    def.id = added.id;
    def.text = added.text;
    def.x = added.rect.x, def.y = added.rect.y, def.w = added.rect.width, def.h = added.rect.height;
    switch (added.kind) {
    case AddedKind::Label:
        def.kind = ControlKind::Static, def.className = "Static", def.style = kChild;
        break;
    case AddedKind::PushButton:
        def.kind = ControlKind::Button, def.className = "Button", def.style = kChild | kTabStop;
        break;
    case AddedKind::Edit:
        def.kind = ControlKind::Edit, def.className = "Edit", def.style = kChild | kTabStop | kBorder | 0x80u;
        break;
    case AddedKind::ReadOnlyText:
        // ES_MULTILINE | ES_AUTOVSCROLL | ES_READONLY, WS_VSCROLL
        def.kind = ControlKind::Edit, def.className = "Edit";
        def.style = kChild | kTabStop | kBorder | 0x00200000u | 0x4u | 0x40u | 0x800u;
        break;
    }
    state.text = added.text;
    auto at = controls_.end();
    if (added.after) {
        const auto previous = std::find_if(controls_.begin(), controls_.end(),
                                           [&](const ControlState& c) { return c.def.id == added.after; });
        if (previous != controls_.end()) at = previous + 1;
    }
    controls_.insert(at, std::move(state));
    return true;
}

const ControlState* HeadlessDialog::find(int id) const {
    const auto it = std::find_if(controls_.begin(), controls_.end(),
                                 [id](const ControlState& c) { return c.def.id == id; });
    return it == controls_.end() ? nullptr : &*it;
}

ControlState* HeadlessDialog::find(int id) {
    return const_cast<ControlState*>(static_cast<const HeadlessDialog*>(this)->find(id));
}

const ControlState* HeadlessDialog::reach(int id) const {
    const ControlState* c = find(id);
    if (!c && onMissing_) onMissing_(id);
    return c;
}

ControlState* HeadlessDialog::reach(int id) {
    return const_cast<ControlState*>(static_cast<const HeadlessDialog*>(this)->reach(id));
}

const ControlState* HeadlessDialog::reachKind(int id, ControlKind kind) const {
    const ControlState* c = reach(id);
    return c && c->def.kind == kind ? c : nullptr;
}

ControlState* HeadlessDialog::reachKind(int id, ControlKind kind) {
    return const_cast<ControlState*>(static_cast<const HeadlessDialog*>(this)->reachKind(id, kind));
}

const ControlState* HeadlessDialog::findKind(int id, ControlKind kind) const {
    const ControlState* c = find(id);
    return c != nullptr && c->def.kind == kind ? c : nullptr;
}

ControlState* HeadlessDialog::findKind(int id, ControlKind kind) {
    ControlState* c = find(id);
    return c != nullptr && c->def.kind == kind ? c : nullptr;
}

std::optional<ControlKind> HeadlessDialog::kindOf(int id) const {
    const ControlState* c = find(id);
    if (c == nullptr) return std::nullopt;
    return c->def.kind;
}

ControlType HeadlessDialog::controlType(int id) const { return typeOf(kindOf(id).value_or(ControlKind::Other)); }

// ---------------------------------------------------------------------------
// Window text, state and focus

std::string HeadlessDialog::text(int id) const {
    const ControlState* c = reach(id);
    if (c == nullptr) return {};
    if (c->def.comboDropList()) {
        const int selected = firstSelected(c->items);
        return selected < 0 ? std::string() : c->items[static_cast<std::size_t>(selected)].text;
    }
    return c->text;
}

// A drop-down list has no edit field: setting its text changes nothing.
void HeadlessDialog::setText(int id, std::string_view text) {
    ControlState* c = reach(id);
    if (c == nullptr || c->def.comboDropList()) return;
    c->text = cText(text);
    c->selStart = c->selEnd = 0;
}

std::pair<int, int> HeadlessDialog::editSelection(int id) const {
    const ControlState* c = reachKind(id, ControlKind::Edit);
    if (c == nullptr) return {0, 0};
    const int length = static_cast<int>(c->text.size());
    return {std::clamp(c->selStart, 0, length), std::clamp(c->selEnd, 0, length)};
}

// As EM_SETSEL: -1 as the end means the end of the text; the two are
// clamped to the text and put in order.
void HeadlessDialog::setEditSelection(int id, int start, int end) {
    ControlState* c = reachKind(id, ControlKind::Edit);
    if (c == nullptr) return;
    const int length = static_cast<int>(c->text.size());
    if (end < 0) end = length;
    if (start < 0) start = end = 0;
    start = std::clamp(start, 0, length);
    end = std::clamp(end, 0, length);
    c->selStart = std::min(start, end);
    c->selEnd = std::max(start, end);
}

bool HeadlessDialog::isEnabled(int id) const {
    const ControlState* c = reach(id);
    return c != nullptr && c->enabled;
}

// Disabling the focused control leaves the dialog without focus.
void HeadlessDialog::enable(int id, bool on) {
    ControlState* c = reach(id);
    if (c == nullptr) return;
    c->enabled = on;
    if (!on && focus_ == id) focus_ = 0;
}

bool HeadlessDialog::isChecked(int id) const {
    const ControlState* c = reach(id);
    return c != nullptr && c->def.canCheck() && c->check == kChecked;
}

// BM_SETCHECK: only check boxes and radio buttons keep a state, and checking
// a radio button does not uncheck the others (only a click does).
void HeadlessDialog::setChecked(int id, bool on) {
    ControlState* c = reach(id);
    if (c != nullptr && c->def.canCheck()) c->check = on ? kChecked : kUnchecked;
}

// A disabled control does not take the focus.
void HeadlessDialog::setFocus(int id) {
    const ControlState* c = reach(id);
    if (c != nullptr && c->enabled) focus_ = id;
}

void HeadlessDialog::setRedraw(int id, bool on) {
    ControlState* c = reach(id);
    if (c != nullptr) c->redraw = on;
}

void HeadlessDialog::listReserve(int id, std::size_t count) {
    ControlState* c = reachKind(id, ControlKind::ListBox);
    if (c != nullptr) c->items.reserve(c->items.size() + count);
}

void HeadlessDialog::end(int result) {
    ended_ = true;
    result_ = result;
}

// ---------------------------------------------------------------------------
// List boxes

int HeadlessDialog::listCount(int id) const {
    const ControlState* c = reachKind(id, ControlKind::ListBox);
    return c == nullptr ? 0 : static_cast<int>(c->items.size());
}

std::string HeadlessDialog::listText(int id, int index) const {
    const ControlState* c = reachKind(id, ControlKind::ListBox);
    if (c == nullptr || !validIndex(c->items, index)) return {};
    return c->items[static_cast<std::size_t>(index)].text;
}

// LB_ADDSTRING sorts only in a list box with LBS_SORT; LB_INSERTSTRING at -1 appends.
int HeadlessDialog::listAdd(int id, std::string_view text, ListInsert how) {
    ControlState* c = reachKind(id, ControlKind::ListBox);
    if (c == nullptr) return kListError;
    if (c->items.size() >= listCapacity_) return kListNoSpace;
    noteListChange(id);
    return insertEntry(*c, text, how == ListInsert::Sorted && c->def.listSorted());
}

// Sorted, the new entries are sorted among themselves and merged in: the
// order one sorted insert after another gives, in n log n.
HeadlessDialog::ListAddResult HeadlessDialog::listAddAll(int id, std::size_t count, const TextAt& textAt,
                                                         ListInsert how) {
    ControlState* c = reachKind(id, ControlKind::ListBox);
    if (c == nullptr || how != ListInsert::Sorted || !c->def.listSorted()) return DialogView::listAddAll(id, count, textAt, how);
    ListAddResult result;
    const std::size_t before = c->items.size();
    const std::size_t room = listCapacity_ > before ? listCapacity_ - before : 0;
    result.added = std::min(count, room);
    result.noSpace = result.added < count;
    if (result.added > 0) noteListChange(id);
    c->items.reserve(before + result.added);
    for (std::size_t i = 0; i < result.added; ++i) c->items.push_back(ListEntry{cText(textAt(i)), false});
    const auto less = [](const ListEntry& a, const ListEntry& b) { return compareListText(a.text, b.text) < 0; };
    const auto middle = c->items.begin() + static_cast<std::ptrdiff_t>(before);
    std::stable_sort(middle, c->items.end(), less);
    if (c->chosen >= 0) {
        const std::string chosen = c->items[static_cast<std::size_t>(c->chosen)].text;
        c->chosen += static_cast<int>(std::count_if(middle, c->items.end(), [&chosen](const ListEntry& e) {
            return compareListText(e.text, chosen) < 0;
        }));
    }
    std::inplace_merge(c->items.begin(), middle, c->items.end(), less);
    return result;
}

int HeadlessDialog::listInsertAt(int id, int index, std::string_view text) {
    ControlState* c = reachKind(id, ControlKind::ListBox);
    if (c == nullptr || index < 0 || static_cast<std::size_t>(index) > c->items.size()) return kListError;
    if (c->items.size() >= listCapacity_) return kListNoSpace;
    noteListChange(id);
    c->items.insert(c->items.begin() + index, ListEntry{cText(text), false});
    if (c->chosen >= index) ++c->chosen;
    return index;
}

void HeadlessDialog::listDelete(int id, int index) {
    ControlState* c = reachKind(id, ControlKind::ListBox);
    if (c == nullptr || !validIndex(c->items, index)) return;
    noteListChange(id);
    c->items.erase(c->items.begin() + index);
    if (index == c->chosen) c->chosen = -1;
    else if (index < c->chosen) --c->chosen;
}

void HeadlessDialog::listClear(int id) {
    ControlState* c = reachKind(id, ControlKind::ListBox);
    if (c == nullptr) return;
    noteListChange(id, true);
    c->items.clear();
    c->chosen = -1;
}

// LB_GETSELITEMS for a multi-select list box, LB_GETCURSEL otherwise.
std::vector<int> HeadlessDialog::listSelection(int id) const {
    const ControlState* c = reachKind(id, ControlKind::ListBox);
    std::vector<int> selected;
    if (c == nullptr) return selected;
    for (std::size_t i = 0; i < c->items.size(); ++i) {
        if (c->items[i].selected) selected.push_back(static_cast<int>(i));
    }
    return selected;
}

// Multi-select: LB_SETSEL, where index -1 means every item. Single-select:
// selecting makes the item the only selection; deselecting the selected item
// (or -1) leaves none.
void HeadlessDialog::listSelect(int id, int index, bool on) {
    ControlState* c = reachKind(id, ControlKind::ListBox);
    if (c == nullptr) return;
    std::vector<ListEntry>& items = c->items;
    if (c->def.listMulti()) {
        if (index == -1) selectAll(items, on);
        else if (validIndex(items, index)) items[static_cast<std::size_t>(index)].selected = on;
    } else if (on) {
        if (validIndex(items, index)) selectOnly(*c, index);
    } else if (index == -1 || (validIndex(items, index) && items[static_cast<std::size_t>(index)].selected)) {
        selectNone(*c);
    }
}

// LB_SETCURSEL: ignored by multi-select list boxes; -1 clears; an index out
// of range changes nothing.
void HeadlessDialog::listSetCurrent(int id, int index) {
    ControlState* c = reachKind(id, ControlKind::ListBox);
    if (c == nullptr || c->def.listMulti()) return;
    if (index == -1) selectNone(*c);
    else if (validIndex(c->items, index)) selectOnly(*c, index);
}

// ---------------------------------------------------------------------------
// Combo boxes

void HeadlessDialog::comboAdd(int id, std::string_view text) {
    ControlState* c = reachKind(id, ControlKind::ComboBox);
    if (c != nullptr) insertEntry(*c, text, c->def.comboSorted());
}

// CB_RESETCONTENT empties the list and the edit field.
void HeadlessDialog::comboClear(int id) {
    ControlState* c = reachKind(id, ControlKind::ComboBox);
    if (c == nullptr) return;
    c->items.clear();
    c->chosen = -1;
    c->text.clear();
}

int HeadlessDialog::comboSelection(int id) const {
    const ControlState* c = reachKind(id, ControlKind::ComboBox);
    return c == nullptr ? -1 : firstSelected(c->items);
}

// CB_SETCURSEL copies the item into the edit field; -1 or an index out of
// range clears both the selection and the edit field.
void HeadlessDialog::comboSelect(int id, int index) {
    ControlState* c = reachKind(id, ControlKind::ComboBox);
    if (c == nullptr) return;
    if (validIndex(c->items, index)) {
        selectOnly(*c, index);
        c->text = c->items[static_cast<std::size_t>(index)].text;
    } else {
        selectNone(*c);
        c->text.clear();
    }
}

// ---------------------------------------------------------------------------
// Driver side

bool HeadlessDialog::click(int id) {
    const auto it = std::find_if(controls_.begin(), controls_.end(),
                                 [id](const ControlState& c) { return c.def.id == id; });
    if (it == controls_.end() || it->def.kind != ControlKind::Button || it->def.isGroupBox()) return false;
    ControlState& c = *it;
    if (c.def.isAuto() && c.def.isRadio()) {
        checkAutoRadio(static_cast<std::size_t>(it - controls_.begin()));
    } else if (c.def.isAuto() && c.def.isThreeState()) {
        c.check = (c.check + 1) % 3;  // unchecked, checked, indeterminate
    } else if (c.def.isAuto()) {
        c.check = c.check == kChecked ? kUnchecked : kChecked;
    }
    if (c.enabled) focus_ = id;
    return true;
}

// The group runs from the nearest WS_GROUP control at or before the button
// up to, not including, the next WS_GROUP control.
void HeadlessDialog::checkAutoRadio(std::size_t index) {
    std::size_t first = index;
    while (first > 0 && !controls_[first].def.group()) --first;
    std::size_t last = index + 1;
    while (last < controls_.size() && !controls_[last].def.group()) ++last;
    for (std::size_t i = first; i < last; ++i) {
        const ControlTemplate& def = controls_[i].def;
        if (i != index && def.isRadio() && def.isAuto()) controls_[i].check = kUnchecked;
    }
    controls_[index].check = kChecked;
}

// The edit or combo box on the button's row, nearest to its right: the value
// a check box or radio choice labels ("Number: [  ]").
std::optional<int> HeadlessDialog::fieldBeside(const ControlState& button) const {
    std::optional<int> nearest;
    int nearestX = 0;
    for (const ControlState& c : controls_) {
        if (c.def.kind != ControlKind::Edit && c.def.kind != ControlKind::ComboBox) continue;
        const bool sameRow = c.def.y < button.def.y + button.def.h && button.def.y < c.def.y + c.def.h;
        if (!sameRow || c.def.x <= button.def.x || (nearest && c.def.x >= nearestX)) continue;
        nearest = c.def.id;
        nearestX = c.def.x;
    }
    return nearest;
}

std::optional<int> HeadlessDialog::findByLabel(std::string_view label, bool field) const {
    const std::string_view wanted = trimBlanks(label);
    const auto matches = [wanted](const ControlState& c) {
        return trimBlanks(withoutMnemonics(c.text)) == wanted;
    };
    for (std::size_t i = 0; i < controls_.size(); ++i) {
        const ControlState& c = controls_[i];
        const ControlKind kind = c.def.kind;
        if (kind == ControlKind::Button && !c.def.isGroupBox() && matches(c)) {
            if (const std::optional<int> value = field ? fieldBeside(c) : std::nullopt) return value;
            return c.def.id;
        }
        const bool labelled = kind == ControlKind::ListBox || kind == ControlKind::Edit || kind == ControlKind::ComboBox;
        if (labelled && i > 0 && controls_[i - 1].def.kind == ControlKind::Static && matches(controls_[i - 1])) {
            return c.def.id;
        }
    }
    return std::nullopt;
}

// The static text just before the control in template order, as the
// scenario drivers find a list by its label.
std::string HeadlessDialog::labelOf(int id) const {
    for (std::size_t i = 1; i < controls_.size(); ++i)
        if (controls_[i].def.id == id)
            return controls_[i - 1].def.kind == ControlKind::Static ? controls_[i - 1].text : std::string();
    return {};
}

void HeadlessDialog::setAccessibleName(int id, std::string_view name) {
    if (reach(id)) accessibleNames_[id] = std::string(name);
}

std::string HeadlessDialog::accessibleName(int id) const {
    if (const auto named = accessibleNames_.find(id); named != accessibleNames_.end()) return named->second;
    const ControlState* c = find(id);
    return c ? withoutMnemonics(c->text) : std::string();
}

}  // namespace kvs::headless
