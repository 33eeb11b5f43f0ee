// Reads the dialog templates, menus and string tables of resources/*.rc
// (the files windres compiles) so the headless backend builds exactly the
// controls the real dialogs have.
//
// The reader understands the subset of resource-script syntax the project
// uses: a small preprocessor (#include of files in the given set, object-like
// #define, #undef, #if/#ifdef/#ifndef/#elif/#else/#endif, comments), DIALOG
// and DIALOGEX with their control statements, MENU and MENUEX, STRINGTABLE,
// and file resources (BITMAP, ICON, CURSOR), of which only the names of the
// bitmaps are kept. RC_INVOKED is
// never defined here, so headers can give the reader its own definitions.
// Anything else is an error "file:line: message" thrown as std::runtime_error.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace kvs::headless {

enum class ControlKind { Static, Button, Edit, ListBox, ComboBox, ScrollBar, Other };

struct ControlTemplate {
    ControlKind kind = ControlKind::Other;
    std::string className;   // "Button", "Static", ... or the class a CONTROL names
    std::string text;
    int id = 0;              // in a DIALOG (not DIALOGEX) template a 16-bit id: -1 reads 65535
    int x = 0, y = 0, w = 0, h = 0;
    // As windres builds it: the statement's default style when the statement
    // gives none, else the statement's base style with the given terms applied.
    std::uint32_t style = 0;
    std::uint32_t exStyle = 0;

    // Low four style bits: the button type (BS_*) of a Button.
    std::uint32_t buttonType() const { return style & 0xFu; }
    bool isPushButton() const;   // BS_PUSHBUTTON, BS_DEFPUSHBUTTON
    bool isDefault() const;      // BS_DEFPUSHBUTTON
    bool isCheckBox() const;     // two- and three-state check boxes
    bool isThreeState() const;
    bool isRadio() const;
    bool isAuto() const;         // the button changes its own state when clicked
    bool isGroupBox() const;
    bool isOwnerDraw() const;
    bool canCheck() const { return isCheckBox() || isRadio(); }

    bool listSorted() const;     // LBS_SORT
    bool listMulti() const;      // LBS_MULTIPLESEL or LBS_EXTENDEDSEL
    bool comboDropList() const;  // CBS_DROPDOWNLIST: no edit field
    bool comboSorted() const;    // CBS_SORT
    bool editMultiline() const;  // ES_MULTILINE

    bool disabled() const;       // WS_DISABLED
    bool visible() const;        // WS_VISIBLE
    bool group() const;          // WS_GROUP
    bool tabStop() const;        // WS_TABSTOP
};

struct DialogTemplate {
    std::string name;        // as written; a numeric name reads "#123"
    bool extended = false;   // DIALOGEX
    std::string caption;
    std::uint32_t style = 0;
    std::uint32_t exStyle = 0;
    int x = 0, y = 0, w = 0, h = 0;
    int fontSize = 0;
    std::string fontName;
    std::string menuName;    // the MENU statement, if any
    std::vector<ControlTemplate> controls;  // in template (creation and tab) order
};

struct MenuItem {
    std::string text;
    int id = 0;
    bool separator = false;
    bool popup = false;          // a POPUP: children holds its items
    bool enabled = true;         // false for GRAYED or INACTIVE
    bool checked = false;
    std::vector<MenuItem> children;
};

struct MenuTemplate {
    std::string name;
    std::vector<MenuItem> items;

    // The first item, at any depth, with this command id that is neither a
    // separator nor a popup; null if there is none.
    const MenuItem* findItem(int id) const;
};

// Resource-script files by name ("data.rc", "common_ids.h", ...). #include
// "x.h" looks the name up here: exactly, else by its last path component
// ignoring case.
using ResourceFiles = std::map<std::string, std::string>;

class ResourceSet {
public:
    // Parses every file of the set whose name ends in ".rc" (ignoring case),
    // each with its own macros. Replaces what was loaded before only when all
    // files parse; otherwise throws std::runtime_error and keeps the old set.
    void load(const ResourceFiles& files);

    // Look-ups ignore case, as Windows resource names do. Null when missing.
    const DialogTemplate* dialog(std::string_view name) const;
    const MenuTemplate* menu(std::string_view name) const;
    // A STRINGTABLE entry, or null.
    const std::string* stringText(int id) const;
    // Whether a BITMAP resource of this name exists (its file is not read).
    bool hasBitmap(std::string_view name) const;

    std::vector<std::string> dialogNames() const;  // in file order
    std::vector<std::string> menuNames() const;

private:
    std::vector<DialogTemplate> dialogs_;
    std::vector<MenuTemplate> menus_;
    std::map<std::string, std::size_t> dialogIndex_;  // upper-cased name -> dialogs_
    std::map<std::string, std::size_t> menuIndex_;
    std::map<int, std::string> strings_;
    std::set<std::string> bitmaps_;  // upper-cased names
};

}  // namespace kvs::headless
