#include "headless/headless_backend.h"

#include <cstdlib>
#include <utility>

#include "core/command_queue.h"
#include "core/global_memory.h"
#include "core/launcher.h"
#include "core/library_state.h"
#include "core/numeric_field.h"
#include "families/library.h"
#include "core/dispatch_table.h"
#include "include/kvs_dlg.h"
#include "standin/host_state.h"
#include "standin/kernel_state.h"
#include "tools/scenario/library_exports.h"

namespace kvs::headless {

using scenario::Buttons;
using scenario::ControlInfo;
using scenario::WindowKind;
using standin::HostState;
using standin::KernelState;

namespace {

// The owner window StartDialog is given; its title is the backend's to say.
const auto kOwner = reinterpret_cast<KvsWindow>(static_cast<std::uintptr_t>(0x10010));


scenario::ControlKind kindOf(ControlKind kind) {
    switch (kind) {
    case ControlKind::Static: return scenario::ControlKind::Static;
    case ControlKind::Button: return scenario::ControlKind::Button;
    case ControlKind::Edit: return scenario::ControlKind::Edit;
    case ControlKind::ListBox: return scenario::ControlKind::ListBox;
    case ControlKind::ComboBox: return scenario::ControlKind::ComboBox;
    default: return scenario::ControlKind::Other;
    }
}

}  // namespace

void HeadlessBackend::setVariables(const std::vector<std::string>& names) {
    KernelState::instance().setVariables(names);
}

void HeadlessBackend::setOwnerTitle(const std::string& title) { ui_.setOwnerTitle(title); }
void HeadlessBackend::failAllocation(int nth) { KernelState::instance().failAllocation(nth); }
long HeadlessBackend::liveAllocations() { return static_cast<long>(KernelState::instance().liveBlocks()); }

const scenario::LibraryExports& HeadlessBackend::exports() {
    static const scenario::LibraryExports linked = [] {
        scenario::LibraryExports e;
        e.startDialog = &StartDialog;
        e.reinitDialogs = &ReinitDialogs;
        e.setDlgSortList = &SetDlgSortList;
        e.startSamplingDialog = &StartSamplingDialog;
        e.updateSamplingDialog = &UpdateSamplingDialog;
        e.clearSamplingDialog = &ClearSamplingDialog;
        e.doSaveDataOptionsDlg = &DoSaveDataOptionsDlg;
        e.doImpExpOptionsDlg = &DoImpExpOptionsDlg;
        e.attachSaveAsOptions = &AttachSaveAsOptions;
        e.attachImpExpOptions = &AttachImpExpOptions;
        e.colorPickerDialogEx = &ColorPickerDialogEx;
        e.loadSymbolBitmapsEx = &LoadSymbolBitmapsEx;
        e.deleteSymbolBitmapsEx = &DeleteSymbolBitmapsEx;
        e.traxCallDialog = &TRAXCallDialog;
        e.getDialogList = &GetDialogList;
        e.getLibraryVersion = &GetLibraryVersion;
        e.kvgFont = &lfKvgFont;
        e.defKvgFont = &lfDefKvgFont;
        return e;
    }();
    return linked;
}

KvsWindow HeadlessBackend::ownerWindow() { return kOwner; }

std::int32_t HeadlessBackend::startDialog(std::uint32_t id, const std::string& helpFile) {
    return StartDialog(id, kOwner, helpFile.c_str());
}

std::optional<std::int32_t> HeadlessBackend::launchUnlisted(std::uint32_t id, const std::string& helpFile) {
    const auto commandId = static_cast<std::uint16_t>(id);
    const DispatchRow* row = findDialogRow(commandId);
    Descriptor* descriptor = descriptorFor(commandId);
    if (!row || row->has(kMenuEntry) || !descriptor) return std::nullopt;
    // What StartDialog does around a case: the help path, the current id, and
    // afterwards the hand-off of the queue and the reset of the slots.
    LibraryState& lib = library();
    setHelpPath(helpFile.c_str());
    lib.hostWindow = reinterpret_cast<WindowRef>(kOwner);
    lib.currentCommandId = commandId;
    const int result = launchDialog(*row, *descriptor, reinterpret_cast<WindowRef>(kOwner));
    queue::flush();
    queue::clearCount();
    lib.optionSlots.fill(-1);
    lib.currentCommandId = kNoCommand;
    return result;
}

void HeadlessBackend::reinitDialogs(std::int32_t value) { ReinitDialogs(value); }
void HeadlessBackend::setSortList(std::int32_t value) { SetDlgSortList(value); }

WindowKind HeadlessBackend::topKind() {
    const auto window = ui_.top();
    if (!window) return WindowKind::None;
    if (window->dialog) return WindowKind::Dialog;
    if (window->font) return WindowKind::FontChooser;
    if (window->menu) return WindowKind::Menu;
    return window->message ? WindowKind::Message : WindowKind::Chooser;
}

std::string HeadlessBackend::topText() {
    const auto window = ui_.top();
    if (!window) return {};
    if (window->dialog) return window->dialog->dialog->caption();
    if (window->message) return window->message->request.text;
    if (window->font) return HeadlessUi::kFontChooserTitle;
    if (window->menu) return {};  // a popup menu has no title
    return window->chooser->request.title;
}

DialogWindow* HeadlessBackend::dialog() {
    const auto window = ui_.top();
    return window ? window->dialog : nullptr;
}

std::optional<int> HeadlessBackend::controlByLabel(std::string_view label) {
    DialogWindow* window = dialog();
    return window ? window->dialog->findByLabel(label) : std::nullopt;
}

std::optional<int> HeadlessBackend::fieldByLabel(std::string_view label) {
    DialogWindow* window = dialog();
    return window ? window->dialog->findByLabel(label, true) : std::nullopt;
}

bool HeadlessBackend::hasControl(int id) {
    DialogWindow* window = dialog();
    return window && window->dialog->control(id);
}

std::optional<ControlInfo> HeadlessBackend::controlState(int id) {
    DialogWindow* window = dialog();
    const ControlState* state = window ? window->dialog->control(id) : nullptr;
    if (!state) return std::nullopt;
    const HeadlessDialog& d = *window->dialog;
    ControlInfo info;
    info.kind = kindOf(state->def.kind);
    info.enabled = state->enabled;
    info.checkable = state->def.kind == ControlKind::Button && state->def.canCheck();
    info.checked = info.checkable && d.isChecked(id);
    info.text = d.text(id);
    info.comboSelection = info.kind == scenario::ControlKind::ComboBox ? d.comboSelection(id) : -1;
    return info;
}

std::optional<ControlInfo> HeadlessBackend::control(int id) {
    std::optional<ControlInfo> info = controlState(id);
    if (!info) return info;
    const ControlState& state = *dialog()->dialog->control(id);
    info->items.reserve(state.items.size());
    for (const ListEntry& item : state.items) info->items.push_back(item.text);
    return info;
}

// Looks the names up in the list's own entries instead of a copy of them.
std::optional<std::vector<int>> HeadlessBackend::listIndicesOf(int listId, const std::vector<std::string>& names) {
    DialogWindow* window = dialog();
    const ControlState* state = window ? window->dialog->control(listId) : nullptr;
    if (!state || state->def.kind != ControlKind::ListBox) return std::nullopt;
    return scenario::firstIndicesOf(
        state->items.size(), [&](std::size_t i) -> std::string_view { return state->items[i].text; }, names);
}

void HeadlessBackend::selectItems(int listId, const std::vector<int>& indices) {
    DialogWindow* window = dialog();
    if (!window) return;
    HeadlessDialog& d = *window->dialog;
    moveFocus(*window, listId);
    const int count = d.listCount(listId);
    for (int i = 0; i < count; ++i) d.listSelect(listId, i, false);
    for (int index : indices) d.listSelect(listId, index, true);
    window->handler->onCommand(d, listId, kListSelChange);
}

// A press that moves the focus out of a field whose number fails is
// cancelled: the button is released away from itself, so no click follows.
void HeadlessBackend::click(int id) {
    DialogWindow* window = dialog();
    if (!window) return;
    if (moveFocus(*window, id) && window->dialog->isButton(id)) return;
    window->dialog->click(id);
    window->handler->onCommand(*window->dialog, id, kButtonClicked);
}

void HeadlessBackend::doubleClick(int listId, int index) {
    selectItems(listId, {index});
    if (DialogWindow* window = dialog()) window->handler->onCommand(*window->dialog, listId, kListDblClick);
}

// A user clicks into an edit field (it takes the focus and says so), types
// the text and leaves the caret after it.
void HeadlessBackend::typeText(int id, const std::string& text) {
    DialogWindow* window = dialog();
    if (!window) return;
    HeadlessDialog& d = *window->dialog;
    const bool edit = d.isEdit(id);
    if (edit && d.focus() != id && d.isEnabled(id)) {
        moveFocus(*window, id);
        window->handler->onCommand(d, id, kEditSetFocus);
    }
    d.setText(id, text);
    if (edit) d.setEditSelection(id, static_cast<int>(d.text(id).size()), -1);
    window->handler->onCommand(d, id, d.isComboBox(id) ? kComboEditChange : kEditChange);
}

void HeadlessBackend::chooseEntry(int id, int index) {
    DialogWindow* window = dialog();
    if (!window) return;
    HeadlessDialog& d = *window->dialog;
    if (d.isComboBox(id)) {
        moveFocus(*window, id);
        d.comboSelect(id, index);
        window->handler->onCommand(d, id, kComboSelChange);
    } else {
        selectItems(id, {index});
    }
}

namespace {

NumericField* numericFieldAt(const DialogWindow& window, int id) {
    for (NumericField* field : window.numericFields)
        if (field->controlId == id) return field;
    return nullptr;
}

void selectAllText(HeadlessDialog& d, int id) {
    if (d.isEdit(id)) d.setEditSelection(id, 0, -1);
}

}  // namespace

bool HeadlessBackend::moveFocus(DialogWindow& window, int target) {
    HeadlessDialog& d = *window.dialog;
    const int left = d.focus();
    if (left == target || !d.isEnabled(target)) return false;
    d.setFocus(target);
    if (numericFieldAt(window, target)) rememberFocusText(d.text(target));
    NumericField* field = numericFieldAt(window, left);
    if (!field || !leavingIsChecked(target)) return false;
    const int code = leaveField(*field, d);
    if (code == kFieldValid) return false;
    selectAllText(d, left);
    pending_ = {&d, left, code};
    return true;
}

// The press on the list gives it the focus; a drag the dialog does not take
// from that list, or a drop it does not take there, changes nothing, as the
// real list box's drag code asks the dialog the same.
void HeadlessBackend::dragSelection(int from, int to, int at) {
    DialogWindow* window = dialog();
    if (!window) return;
    HeadlessDialog& d = *window->dialog;
    moveFocus(*window, from);
    if (!window->handler->canDrop(d, from, 0)) return;
    window->handler->onDrop(d, from, to, at < 0 ? d.listCount(to) : at);
}

// A key the dialog does not take is left to the list box, which does
// nothing with Delete or Ctrl+A.
void HeadlessBackend::pressKeyIn(int id, scenario::Key key) {
    DialogWindow* window = dialog();
    if (!window) return;
    moveFocus(*window, id);
    window->handler->onListKey(*window->dialog, id, key == scenario::Key::Delete ? ListKey::Delete : ListKey::SelectAll);
}

// As the frame dragged by the user: the window keeps to its smallest size,
// then the dialog hears the client size it got.
bool HeadlessBackend::resizeDialog(int width, int height) {
    DialogWindow* window = dialog();
    if (!window || !window->dialog->resizable()) return false;
    HeadlessDialog& d = *window->dialog;
    d.resizeClient(width, height);
    const DialogRect client = d.clientRect();
    window->handler->onResize(d, client.width, client.height);
    return true;
}

int HeadlessBackend::focusedControl() {
    DialogWindow* window = dialog();
    return window ? window->dialog->focus() : 0;
}

std::string HeadlessBackend::accessibleName(int id) {
    DialogWindow* window = dialog();
    return window ? window->dialog->accessibleName(id) : std::string();
}

// Tab moves the focus to the next control, in template order, that is a
// visible, enabled tab stop; an edit field it reaches has its text selected.
void HeadlessBackend::pressTab() {
    DialogWindow* window = dialog();
    if (!window) return;
    HeadlessDialog& d = *window->dialog;
    const std::vector<ControlState>& controls = d.controls();
    const std::size_t count = controls.size();
    std::size_t from = count - 1;
    for (std::size_t i = 0; i < count; ++i)
        if (controls[i].def.id == d.focus() && d.focus() != 0) from = i;
    for (std::size_t step = 1; step <= count; ++step) {
        const ControlState& c = controls[(from + step) % count];
        if (!c.def.tabStop() || !c.def.visible() || !c.enabled) continue;
        const int id = c.def.id;
        moveFocus(*window, id);
        selectAllText(d, id);
        if (d.isEdit(id)) window->handler->onCommand(d, id, kEditSetFocus);
        return;
    }
}

// Enter: a number field that reports its changes checks itself; otherwise
// the focused push button or else the dialog's default button (OK when the
// template names none) is pressed, and the focus stays where it is.
std::string HeadlessBackend::clipboardText() { return ui_.clipboard(); }

void HeadlessBackend::pressEnter() {
    DialogWindow* window = dialog();
    if (!window) return;
    HeadlessDialog& d = *window->dialog;
    if (NumericField* field = numericFieldAt(*window, d.focus()); field && field->notify) {
        if (confirmField(*field, d) > kFieldValid) selectAllText(d, field->controlId);
        return;
    }
    int pressed = kIdOk;
    const ControlState* focused = d.control(d.focus());
    if (focused && focused->def.kind == ControlKind::Button && focused->def.isPushButton()) {
        pressed = focused->def.id;
    } else {
        for (const ControlState& c : d.controls()) {
            if (c.def.kind != ControlKind::Button || !c.def.isDefault()) continue;
            if (!c.enabled) return;
            pressed = c.def.id;
            break;
        }
    }
    window->handler->onCommand(d, pressed, kButtonClicked);
}

// The report of a field left with no number: shown once the statement that
// moved the focus is done; the field then takes the focus back with its text
// selected (the control it went to is not checked on the way).
void HeadlessBackend::settle() {
    if (!leftFieldFailed()) return;
    const PendingReport report = std::exchange(pending_, PendingReport{});
    reportFieldError(report.code);
    DialogWindow* window = dialog();
    if (!window || window->dialog.get() != report.dialog) return;
    HeadlessDialog& d = *window->dialog;
    d.setFocus(report.fieldId);
    rememberFocusText(d.text(report.fieldId));
    selectAllText(d, report.fieldId);
}

// Closing from the system menu reaches the dialog as WM_CLOSE, as the
// dialog manager passes it on.
void HeadlessBackend::sysCommand(int code) {
    constexpr int kSysClose = 0xF060;  // SC_CLOSE
    DialogWindow* window = dialog();
    if (!window) return;
    if (code == kSysClose) window->handler->onClose(*window->dialog);
    else window->handler->onSysCommand(*window->dialog, code);
}

std::optional<long> HeadlessBackend::userWord() {
    DialogWindow* window = dialog();
    if (!window) return std::nullopt;
    return window->modeless ? static_cast<long>(window->userWord) : 0L;
}

Buttons HeadlessBackend::messageButtons() {
    const auto window = ui_.top();
    if (!window || !window->message) return Buttons::Ok;
    switch (window->message->request.buttons) {
    case MessageButtons::OkCancel: return Buttons::OkCancel;
    case MessageButtons::YesNo: return Buttons::YesNo;
    case MessageButtons::Ok: break;
    }
    return Buttons::Ok;
}

std::vector<scenario::MenuEntry> HeadlessBackend::menuItems() {
    const auto window = ui_.top();
    std::vector<scenario::MenuEntry> items;
    if (!window || !window->menu) return items;
    for (const MenuItem& item : window->menu->items)
        items.push_back({item.id, scenario::shownMenuText(item.text), !item.enabled, item.checked});
    return items;
}

void HeadlessBackend::pickMenuItem(int id) {
    const auto window = ui_.top();
    if (!window || !window->menu) return;
    window->menu->picked = id;
    window->menu->answered = true;
}

void HeadlessBackend::answerMessage(int buttonId) {
    const auto window = ui_.top();
    if (window && window->message) window->message->answer = buttonId;
}

void HeadlessBackend::answerChooser(const std::optional<std::string>& path) {
    const auto window = ui_.top();
    if (!window || !window->chooser) return;
    window->chooser->answered = true;
    window->chooser->path = path;
}

// A control's client area in pixels: its template size in dialog units
// converted as MapDialogRect does with the base units Wine gives the
// templates' 8-point "MS Shell Dlg" at 96 dpi, 6 x 12 pixels (measured with
// clicks on the colour grid's cell borders).
void HeadlessBackend::clickAt(int id, int x, int y) {
    DialogWindow* window = dialog();
    const ControlState* state = window ? window->dialog->control(id) : nullptr;
    if (!state) return;
    constexpr int kBaseUnitX = 6, kBaseUnitY = 12;
    const int width = state->def.w * kBaseUnitX / 4;
    const int height = state->def.h * kBaseUnitY / 8;
    window->handler->onClick(*window->dialog, id, x, y, width, height);
}

bool HeadlessBackend::answerFont(const std::optional<scenario::FontAnswer>& font) {
    const auto window = ui_.top();
    if (!window || !window->font) return false;
    window->font->answered = true;
    if (font) window->font->font = HeadlessUi::chosenFont(font->face, font->points, font->bold, font->italic);
    else window->font->font.reset();
    return true;
}

namespace {

long globalBlocks = 0;

// The library's global memory under the stand-in kernel's fault hook.
void* globalAllocate(std::size_t bytes) {
    if (!standin::KernelState::instance().takeAllocation()) return nullptr;
    void* block = std::calloc(bytes ? bytes : 1, 1);
    if (block) ++globalBlocks;
    return block;
}

void globalRelease(void* block) {
    --globalBlocks;
    std::free(block);
}

}  // namespace

HeadlessRunner::HeadlessRunner(const ResourceSet& resources)
    : ui_(resources, [this](const std::string& line) { emit(line); }),
      backend_(ui_),
      engine_(backend_, [this](const std::string& line) { emit(line); }) {
    ui_.setDriver(Driver{[this] { return engine_.step(); }, [this] { engine_.windowLeftOpen(); }});
    setGlobalMemory({globalAllocate, globalRelease});
}

void HeadlessRunner::emit(const std::string& line) {
    transcript_ += line;
    transcript_ += '\n';
}

long HeadlessRunner::liveGlobalBlocks() { return globalBlocks; }

std::string HeadlessRunner::run(std::string_view source) {
    transcript_.clear();
    unloadLibrary();
    KernelState::instance().reset();
    HostState& host = HostState::instance();
    host.reset();
    host.setSink([this](const std::string& line) { emit(line); });
    ui_.setOwnerTitle(scenario::Engine::kDefaultTitle);
    setUi(&ui_);
    loadLibrary();

    KernelState::instance().setSink([this](const std::string& line) { emit(line); });

    engine_.load(source);
    while (engine_.step()) {
    }
    // A modeless window outlives the statements that opened it.
    if (ui_.top()) engine_.windowLeftOpen();
    ui_.closeAllModeless();
    unloadLibrary();
    KernelState::instance().setSink(nullptr);
    host.setSink(nullptr);
    setUi(nullptr);
    return transcript_;
}

}  // namespace kvs::headless
