#include "headless/rc_template.h"
#include "tools/scenario/text_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <stdexcept>

namespace kvs::headless {
namespace {

constexpr std::uint32_t kWsChild = 0x40000000u, kWsVisible = 0x10000000u, kWsDisabled = 0x08000000u,
                        kWsCaption = 0x00C00000u, kWsBorder = 0x00800000u, kWsVScroll = 0x00200000u,
                        kWsGroup = 0x00020000u, kWsTabStop = 0x00010000u;

// The resource scripts as they are on disk.
ResourceFiles resourceDir() {
    ResourceFiles files;
    for (const auto& entry : std::filesystem::directory_iterator(KVS_RESOURCE_DIR))
        files[entry.path().filename().string()] = kvs::scenario::readTextFile(entry.path().string()).value_or("");
    return files;
}

// One script "t.rc" that may include the real windows_styles.h.
ResourceSet parse(const std::string& rc, ResourceFiles files = {}) {
    files["windows_styles.h"] = resourceDir().at("windows_styles.h");
    files["t.rc"] = rc;
    ResourceSet set;
    set.load(files);
    return set;
}

std::string errorOf(const std::string& rc, ResourceFiles files = {}) {
    try {
        parse(rc, std::move(files));
    } catch (const std::runtime_error& e) {
        return e.what();
    }
    return "no error";
}

const ControlTemplate& byId(const DialogTemplate& d, int id) {
    for (const ControlTemplate& c : d.controls) {
        if (c.id == id) return c;
    }
    throw std::runtime_error("no control " + std::to_string(id));
}

std::string dialogWith(const std::string& controls, const std::string& type = "DIALOGEX") {
    return "#include \"windows_styles.h\"\nD " + type + " 0, 0, 100, 50\nBEGIN\n" + controls + "\nEND\n";
}

// ---------------------------------------------------------------------------

TEST(RcTemplateResources, SortTemplateHasItsControls) {
    ResourceSet set;
    set.load(resourceDir());
    const DialogTemplate* sort = set.dialog("sort");
    ASSERT_NE(sort, nullptr);
    EXPECT_EQ(sort->caption, "Sort");
    EXPECT_EQ(sort->fontSize, 8);
    EXPECT_EQ(sort->fontName, "MS Shell Dlg");
    EXPECT_EQ(sort->w, 312);
    EXPECT_EQ(sort->h, 150);
    EXPECT_EQ(sort->style & kWsCaption, kWsCaption);
    EXPECT_EQ(sort->controls.size(), 15u);

    const ControlTemplate& source = byId(*sort, 4);
    EXPECT_EQ(source.kind, ControlKind::ListBox);
    EXPECT_TRUE(source.listSorted());
    EXPECT_TRUE(source.listMulti());
    EXPECT_EQ(source.style & (kWsBorder | kWsVScroll | kWsChild | kWsVisible),
              kWsBorder | kWsVScroll | kWsChild | kWsVisible);
    EXPECT_FALSE(byId(*sort, 10).listSorted());
    EXPECT_TRUE(byId(*sort, 10).listMulti());

    const ControlTemplate& add = byId(*sort, 6);
    EXPECT_EQ(add.text, " &Add-->");
    EXPECT_TRUE(add.isPushButton());
    EXPECT_TRUE(add.disabled());
    EXPECT_TRUE(add.tabStop());

    EXPECT_TRUE(byId(*sort, 31).isRadio() && byId(*sort, 31).isAuto() && byId(*sort, 31).group());
    EXPECT_TRUE(byId(*sort, 32).isRadio() && !byId(*sort, 32).group());
    EXPECT_TRUE(byId(*sort, 99).isCheckBox() && byId(*sort, 99).isAuto());
    EXPECT_TRUE(byId(*sort, 1).isDefault());
    EXPECT_TRUE(byId(*sort, 2).isPushButton() && !byId(*sort, 2).isDefault());
    EXPECT_TRUE(sort->controls[0].group());  // LTEXT's default WS_GROUP
}

TEST(RcTemplateResources, EveryDialogHasTheCommonButtons) {
    ResourceSet set;
    set.load(resourceDir());
    const std::vector<std::string> names = set.dialogNames();
    for (const char* name : {"SORT", "RANK", "TRANSPOSE", "APPEND", "MERGE", "KEYVARS"})
        EXPECT_NE(std::find(names.begin(), names.end(), name), names.end()) << name;
    for (const std::string& name : names) {
        const DialogTemplate* d = set.dialog(name);
        EXPECT_NO_THROW(byId(*d, 2)) << name << " 2";
        // The progress window offers only Cancel.
        if (name == "PROCESSBOX") continue;
        // OK, or Continue in the statistics family's sub-dialogs.
        const bool continues = std::any_of(d->controls.begin(), d->controls.end(),
                                           [](const auto& c) { return c.id == 1001; });
        EXPECT_NO_THROW(byId(*d, continues ? 1001 : 1)) << name << " OK";
        EXPECT_NO_THROW(byId(*d, 12)) << name << " 12";
    }
    for (const char* name : {"SORT", "RANK", "TRANSPOSE", "MERGE", "KEYVARS"})
        for (int id : {4, 6, 7, 10}) EXPECT_NO_THROW(byId(*set.dialog(name), id)) << name << " " << id;
    EXPECT_EQ(set.dialog("Rank")->caption, "Rank");
    EXPECT_EQ(set.dialog("NOSUCH"), nullptr);
}

TEST(RcTemplateResources, BitmapNamesAreKeptWithoutTheirFiles) {
    const ResourceSet set = parse(R"(symbol1 BITMAP "pictures/symbol1.bmp"
"dash 2" BITMAP MOVEABLE "dash2.bmp"
APP ICON "app.ico")");
    EXPECT_TRUE(set.hasBitmap("symbol1"));
    EXPECT_TRUE(set.hasBitmap("SYMBOL1"));
    EXPECT_TRUE(set.hasBitmap("dash 2"));
    EXPECT_FALSE(set.hasBitmap("APP"));
    EXPECT_FALSE(set.hasBitmap("symbol2"));

    ResourceSet real;
    real.load(resourceDir());
    for (const std::string prefix : {"symbol", "dash", "axes2d", "axes3d"})
        EXPECT_TRUE(real.hasBitmap(prefix + "1")) << prefix;
    EXPECT_TRUE(real.hasBitmap("symbol22"));
    EXPECT_FALSE(real.hasBitmap("symbol23"));
    EXPECT_TRUE(real.hasBitmap("axes3d8"));
    EXPECT_FALSE(real.hasBitmap("axes3d9"));
}

// ---------------------------------------------------------------------------

TEST(RcTemplatePreprocessor, DefinesConditionalsAndIncludes) {
    const ResourceFiles files = {
        {"ids.h", "#pragma once\n#define BASE 0x10L\n#define NEXT (BASE + 2)\n#define ALIAS NEXT\n"
                  "X MENU\nBEGIN\nMENUITEM \"x\", 1\nEND\n"},  // a resource: included twice it would clash
        {"more.h", "#include \"ids.h\"\n#define MORE (ALIAS * 2)\n"},
    };
    const ResourceSet set = parse(R"(#include "windows_styles.h"
#include "ids.h"
#include "more.h"
#ifdef RC_INVOKED
#error windows.h path taken
#endif
#if defined(BASE) && !defined(NOPE)
#define PICKED 7
#elif 1
#define PICKED 8
#else
#define PICKED 9
#endif
#if 0
  garbage ' @ that is never read
#if 1
#else
  nor this
#endif
#endif
D DIALOGEX 0, 0, 10, 10
BEGIN
    LTEXT "a", BASE, 0, 0, 1, 1
    LTEXT "b", ALIAS, 0, 0, 1, 1
    LTEXT "c", MORE, 0, 0, 1, 1
    LTEXT "d", PICKED, 0, 0, 1, 1
END
)", files);
    const DialogTemplate& d = *set.dialog("D");
    EXPECT_EQ(d.controls[0].id, 16);
    EXPECT_EQ(d.controls[1].id, 18);
    EXPECT_EQ(d.controls[2].id, 36);
    EXPECT_EQ(d.controls[3].id, 7);
    EXPECT_NE(set.menu("x"), nullptr);
}

// Function-like macros: arguments split at commas outside parentheses, a
// body of several statements on continued lines, a macro within a macro, and
// a name followed by no parenthesis left as it is.
TEST(RcTemplatePreprocessor, FunctionLikeMacros) {
    const ResourceSet set = parse(R"(#include "windows_styles.h"
#define DSTYLE DS_MODALFRAME | WS_POPUP
#define AT(x, y) x, y
#define BUTTONS(x, y) \
    DEFPUSHBUTTON "&OK", IDOK, AT(x, y), 50, 14 \
    PUSHBUTTON "&Help", 12, AT(x, (y) + 18), 50, 14
#define NOARGS() 7
D DIALOGEX 0, 0, 100, 50
STYLE DSTYLE
BEGIN
    BUTTONS(40, 3)
    LTEXT "n", NOARGS(), 0, 0, 1, 1
END
)");
    const DialogTemplate& d = *set.dialog("D");
    ASSERT_EQ(d.controls.size(), 3u);
    EXPECT_EQ(d.style & 0x80u, 0x80u);
    EXPECT_EQ(d.controls[0].text, "&OK");
    EXPECT_EQ(d.controls[0].x, 40);
    EXPECT_EQ(d.controls[0].y, 3);
    EXPECT_EQ(d.controls[1].id, 12);
    EXPECT_EQ(d.controls[1].y, 21);
    EXPECT_EQ(d.controls[2].id, 7);
}

TEST(RcTemplatePreprocessor, CommentsAndStrings) {
    const ResourceSet set = parse(dialogWith(R"(
    LTEXT "a // b /* c */", 1, 0, 0, 1, 1  // trailing comment
    LTEXT "say ""hi"" \"x\"", /* spans
       two lines */ 2, 0, 0, 1, 1
    LTEXT "C:\DATA\\F\tG\nH", 3, 0, 0, 1, 1
    PUSHBUTTON L"wide", 4, 0, 0, 1, 1)"));
    const DialogTemplate& d = *set.dialog("d");
    EXPECT_EQ(d.controls[0].text, "a // b /* c */");
    EXPECT_EQ(d.controls[1].text, "say \"hi\" \"x\"");
    EXPECT_EQ(d.controls[1].id, 2);
    EXPECT_EQ(d.controls[2].text, "C:\\DATA\\F\tG\nH");
    EXPECT_EQ(d.controls[3].text, "wide");
}

// ---------------------------------------------------------------------------

TEST(RcTemplateControls, DefaultStylesOfEachStatement) {
    const ResourceSet set = parse(dialogWith(R"(
    LTEXT "", 1, 0, 0, 1, 1
    RTEXT "", 2, 0, 0, 1, 1
    CTEXT "", 3, 0, 0, 1, 1
    PUSHBUTTON "", 4, 0, 0, 1, 1
    DEFPUSHBUTTON "", 5, 0, 0, 1, 1
    CHECKBOX "", 6, 0, 0, 1, 1
    AUTOCHECKBOX "", 7, 0, 0, 1, 1
    RADIOBUTTON "", 8, 0, 0, 1, 1
    AUTORADIOBUTTON "", 9, 0, 0, 1, 1
    STATE3 "", 10, 0, 0, 1, 1
    AUTO3STATE "", 11, 0, 0, 1, 1
    GROUPBOX "", 12, 0, 0, 1, 1
    LISTBOX 13, 0, 0, 1, 1
    EDITTEXT 14, 0, 0, 1, 1
    COMBOBOX 15, 0, 0, 1, 1
    SCROLLBAR 16, 0, 0, 1, 1
    ICON "APP", 17, 0, 0)"));
    const std::uint32_t base = kWsChild | kWsVisible;
    const std::uint32_t expected[] = {
        base | kWsGroup,           base | kWsGroup | 2,       base | kWsGroup | 1,      base | kWsTabStop,
        base | kWsTabStop | 1,     base | kWsTabStop | 2,     base | kWsTabStop | 3,    base | kWsTabStop | 4,
        base | kWsTabStop | 9,     base | kWsTabStop | 5,     base | kWsTabStop | 6,    base | 7,
        base | kWsBorder | 1,      base | kWsBorder | kWsTabStop, base | kWsTabStop | 1, base,
        base | 3,
    };
    const DialogTemplate& d = *set.dialog("D");
    ASSERT_EQ(d.controls.size(), std::size(expected));
    for (std::size_t i = 0; i < d.controls.size(); ++i) EXPECT_EQ(d.controls[i].style, expected[i]) << i;
    EXPECT_EQ(d.controls[12].kind, ControlKind::ListBox);
    EXPECT_EQ(d.controls[13].kind, ControlKind::Edit);
    EXPECT_EQ(d.controls[14].kind, ControlKind::ComboBox);
    EXPECT_EQ(d.controls[15].kind, ControlKind::ScrollBar);
    EXPECT_EQ(d.controls[16].text, "APP");
}

// A style argument starts from the statement's base style, not its default:
// what windres builds, checked against its output.
TEST(RcTemplateControls, GivenStyleReplacesTheDefault) {
    const ResourceSet set = parse(dialogWith(R"(
    LTEXT "", 1, 0, 0, 1, 1, SS_SUNKEN
    COMBOBOX 2, 0, 0, 1, 1, CBS_DROPDOWN
    AUTORADIOBUTTON "", 3, 0, 0, 1, 1, WS_GROUP
    PUSHBUTTON "", 4, 0, 0, 1, 1, WS_DISABLED
    STATE3 "", 5, 0, 0, 1, 1, WS_GROUP
    LISTBOX 6, 0, 0, 1, 1, LBS_SORT
    EDITTEXT 7, 0, 0, 1, 1, ES_MULTILINE
    ICON "I", 8, 0, 0, 20, 20, SS_SUNKEN)"));
    const std::uint32_t base = kWsChild | kWsVisible;
    const std::uint32_t expected[] = {
        base | 0x1000,                base | 2,                         base | kWsGroup | 9,
        base | kWsDisabled | kWsTabStop, base | kWsGroup | 5,           base | kWsBorder | 3,
        base | kWsBorder | kWsTabStop | 4, base | 0x1003,
    };
    const DialogTemplate& d = *set.dialog("D");
    ASSERT_EQ(d.controls.size(), std::size(expected));
    for (std::size_t i = 0; i < d.controls.size(); ++i) EXPECT_EQ(d.controls[i].style, expected[i]) << i;
    EXPECT_FALSE(d.controls[0].group());  // no longer closes a radio group
    EXPECT_FALSE(d.controls[1].comboDropList());
    EXPECT_EQ(d.controls[7].w, 0);  // an icon sizes itself
}

TEST(RcTemplateControls, StyleExpressionsAndGenericControls) {
    const ResourceSet set = parse(dialogWith(R"(
    PUSHBUTTON "p", 1, 0, 0, 1, 1, NOT WS_TABSTOP | WS_GROUP
    LTEXT "t", 2, 0, 0, 1, 1, NOT WS_VISIBLE | NOT WS_GROUP, 0x20
    CONTROL "c", 3, "Button", BS_AUTOCHECKBOX | WS_TABSTOP, 1, 2, 3, 4, 0x200
    CONTROL "", 4, LISTBOX, LBS_SORT | (LBS_MULTIPLESEL + 0), 0, 0, 1, 1
    CONTROL "", 5, "Tmicroscroll", 0, 0, 0, 1, 1
    CONTROL "", 6, "ComboBox", CBS_DROPDOWNLIST | CBS_SORT | NOT WS_VISIBLE, 0, 0, 1, 1
    EDITTEXT 7, 0, 0, 1, 1, ES_MULTILINE | WS_DISABLED)"));
    const DialogTemplate& d = *set.dialog("D");
    EXPECT_EQ(d.controls[0].style, kWsChild | kWsVisible | kWsGroup);
    EXPECT_EQ(d.controls[1].style, kWsChild);
    EXPECT_EQ(d.controls[1].exStyle, 0x20u);
    EXPECT_TRUE(d.controls[2].isCheckBox() && d.controls[2].isAuto());
    EXPECT_EQ(d.controls[2].exStyle, 0x200u);
    EXPECT_EQ(d.controls[2].h, 4);
    EXPECT_EQ(d.controls[3].className, "ListBox");
    EXPECT_TRUE(d.controls[3].listSorted() && d.controls[3].listMulti());
    EXPECT_EQ(d.controls[4].kind, ControlKind::Other);
    EXPECT_EQ(d.controls[4].className, "Tmicroscroll");
    EXPECT_TRUE(d.controls[5].comboDropList() && d.controls[5].comboSorted() && !d.controls[5].visible());
    EXPECT_TRUE(d.controls[6].editMultiline() && d.controls[6].disabled());
    EXPECT_EQ(d.controls[6].style & kWsDisabled, kWsDisabled);
}

TEST(RcTemplateControls, DialogHeaderAndSixteenBitIds) {
    const ResourceSet set = parse(R"(#include "windows_styles.h"
#define IDD_NUM 100
Plain DIALOG DISCARDABLE 1, 2, 30, 40
STYLE WS_POPUP
CAPTION "Plain"
FONT 9, "Arial"
MENU Bar
CLASS "MyClass"
{
    LTEXT "x", -1, 0, 0, 1, 1
}
IDD_NUM DIALOGEX 0, 0, 1, 1, 55
EXSTYLE 8
BEGIN
    LTEXT "x", -1, 0, 0, 1, 1
END
)");
    const DialogTemplate& plain = *set.dialog("PLAIN");
    EXPECT_FALSE(plain.extended);
    EXPECT_EQ(plain.x, 1);
    EXPECT_EQ(plain.h, 40);
    EXPECT_EQ(plain.style, 0x80000000u | kWsCaption | 0x40u);  // CAPTION and FONT add their bits
    EXPECT_EQ(plain.menuName, "Bar");
    EXPECT_EQ(plain.controls[0].id, 0xFFFF);
    const DialogTemplate* numbered = set.dialog("#100");
    ASSERT_NE(numbered, nullptr);
    EXPECT_EQ(numbered->controls[0].id, -1);
    EXPECT_EQ(numbered->exStyle, 8u);
}

// ---------------------------------------------------------------------------

TEST(RcTemplateMenus, PopupTreesAndFlags) {
    const ResourceSet set = parse(R"(
Options MENU
BEGIN
    POPUP "&Axis"
    BEGIN
        MENUITEM "&Scale...", 601
        MENUITEM SEPARATOR
        MENUITEM "&Ticks", 602, GRAYED CHECKED
        POPUP "More", INACTIVE
        BEGIN
            MENUITEM "Deep", 603, CHECKED, MENUBREAK
        END
    END
END
Ex MENUEX
BEGIN
    POPUP "P", 0, 0, 0
    BEGIN
        MENUITEM "A", 701
        MENUITEM "", 0, 0x800
        MENUITEM "B", 702, 0, 3 | 8
    END
END
STRINGTABLE
BEGIN
    5, "five"
    6 "six"
END
)");
    const MenuTemplate* options = set.menu("OPTIONS");
    ASSERT_NE(options, nullptr);
    ASSERT_EQ(options->items.size(), 1u);
    const MenuItem& axis = options->items[0];
    EXPECT_TRUE(axis.popup);
    EXPECT_EQ(axis.text, "&Axis");
    ASSERT_EQ(axis.children.size(), 4u);
    EXPECT_TRUE(axis.children[1].separator);
    EXPECT_FALSE(axis.children[2].enabled);
    EXPECT_TRUE(axis.children[2].checked);
    EXPECT_FALSE(axis.children[3].enabled);
    EXPECT_EQ(options->findItem(603)->text, "Deep");
    EXPECT_TRUE(options->findItem(603)->checked);
    EXPECT_EQ(options->findItem(999), nullptr);

    const MenuTemplate& ex = *set.menu("ex");
    const std::vector<MenuItem>& items = ex.items[0].children;
    ASSERT_EQ(items.size(), 3u);
    EXPECT_EQ(items[0].id, 701);
    EXPECT_TRUE(items[1].separator);
    EXPECT_TRUE(!items[2].enabled && items[2].checked);
    EXPECT_EQ(*set.stringText(5), "five");
    EXPECT_EQ(*set.stringText(6), "six");
    EXPECT_EQ(set.stringText(7), nullptr);
}

// ---------------------------------------------------------------------------

struct BadInput {
    const char* source;
    const char* error;  // what the message starts with
};

TEST(RcTemplateErrors, ReportFileAndLine) {
    const BadInput cases[] = {
        {"\n\nFOO BAR\n", "t.rc:3: unknown resource type 'BAR'"},
        {"D DIALOGEX 0, 0, 1, 1\nBEGIN\n  WIDGET 1, 0, 0, 1, 1\nEND\n", "t.rc:3: unknown control statement 'WIDGET'"},
        {"D DIALOGEX 0, 0, 1, 1\nBEGIN\n  LTEXT \"a\" 1, 0, 0, 1, 1\nEND\n", "t.rc:3: expected ','"},
        {"D DIALOGEX 0, 0, 1, 1\nCAPTION \"oops\nBEGIN\nEND\n", "t.rc:2: expected a quoted string, found unterminated string"},
        {"D DIALOGEX 0, 0, 1, 1\n/* open\n\nBEGIN\nEND\n", "t.rc:2: unterminated comment"},
        {"D DIALOGEX 0, 0, 1, 1\nBEGIN\n  LTEXT \"a\", IDC_NOPE, 0, 0, 1, 1\nEND\n", "t.rc:3: unknown name 'IDC_NOPE'"},
        {"D DIALOGEX 0, 0, 1, 1\nBEGIN\n  LTEXT \"a\", 1, 0, 0, 1, 1\n", "t.rc:4: END missing at end of file"},
        {"D DIALOGEX 0, 0, 1, 1\nSIZE 3\nBEGIN\nEND\n", "t.rc:2: unknown dialog statement 'SIZE'"},
        {"\n#ifdef X\n", "t.rc:2: #if without #endif"},
        {"#else\n", "t.rc:1: #else without #if"},
        {"#if 1\n#else\n#else\n#endif\n", "t.rc:3: #else without #if"},
        {"\n#include \"missing.h\"\n", "t.rc:2: cannot open include file 'missing.h'"},
        {"#include \"bad.h\"\n", "bad.h:2: unknown directive 'frobnicate'"},
        {"#define F(x, y) x\nD DIALOGEX F(1), 0, 1, 1\n", "t.rc:2: macro 'F' takes 2 arguments"},
        {"#define F(x) x\nD DIALOGEX F(1, 0, 1, 1\n", "t.rc:2: macro 'F' used without ')'"},
        {"#define F(x\n", "t.rc:1: macro 'F' lacks ')'"},
        {"#define F(1) x\n", "t.rc:1: a macro parameter must be a name"},
        {"#if 1/0\n#endif\n", "t.rc:1: division by zero"},
        {"#define A A\nD DIALOGEX A, 0, 1, 1\n", "t.rc:2: unknown name 'A'"},
        {"D DIALOGEX 0, 0, 1, 1\nBEGIN\nEND\nd DIALOG 0, 0, 1, 1\nBEGIN\nEND\n", "t.rc:4: dialog 'd' defined twice"},
        {"D DIALOGEX 0x, 0, 1, 1\n", "t.rc:1: expected a number, found bad number '0x'"},
        {"M MENU\nBEGIN\n  MENUITEM \"a\", 1, BOLD\nEND\n", "t.rc:3: expected a menu option, found 'BOLD'"},
        {"M MENU\nBEGIN\n  MENUITEM \"a\", 1,\nEND\n", "t.rc:4: expected a menu option, found 'END'"},
    };
    const ResourceFiles files = {{"bad.h", "// fine\n#frobnicate\n"}};
    for (const BadInput& c : cases) {
        const std::string error = errorOf(c.source, files);
        EXPECT_EQ(error.rfind(c.error, 0), 0u) << c.source << "\n got: " << error;
    }
}

TEST(RcTemplateErrors, HostileInputIsAnErrorNotACrash) {
    EXPECT_NE(errorOf("D DIALOGEX " + std::string(5000, '(') + "1").find("nested too deeply"), std::string::npos);
    EXPECT_NE(errorOf("D DIALOGEX " + std::string(5000, '-') + "1").find("nested too deeply"), std::string::npos);
    std::string bomb = "#define M0 1\n";
    for (int i = 1; i < 30; ++i) {
        bomb += "#define M" + std::to_string(i) + " M" + std::to_string(i - 1) + " M" + std::to_string(i - 1) + "\n";
    }
    EXPECT_NE(errorOf(bomb + "M29\n").find("too large"), std::string::npos);
    std::string menus = "M MENU\n";
    for (int i = 0; i < 100; ++i) menus += "BEGIN POPUP \"p\"\n";
    EXPECT_NE(errorOf(menus).find("nested too deeply"), std::string::npos);
}

// Truncations (through the first dialog) and random corruptions of a real
// script either parse or throw std::runtime_error; under the sanitizers this
// finds overruns.
TEST(RcTemplateErrors, TruncatedAndCorruptedScripts) {
    ResourceFiles files = resourceDir();
    const std::string original = files.at("data.rc");
    const std::size_t firstDialogs = std::min<std::size_t>(original.size(), 1400);
    for (std::size_t n = 0; n <= firstDialogs; ++n) {
        files["data.rc"] = original.substr(0, n);
        ResourceSet set;
        try {
            set.load(files);
        } catch (const std::runtime_error&) {
        }
    }
    std::mt19937 random(12345);
    const std::string alphabet = "\"\\/*(),|{}#\n \x01\xff" "0123456789xLNOTBEGINEND";
    for (int round = 0; round < 600; ++round) {
        std::string text = original;
        for (int k = 0; k < 3; ++k) text[random() % text.size()] = alphabet[random() % alphabet.size()];
        files["data.rc"] = text;
        ResourceSet set;
        try {
            set.load(files);
        } catch (const std::runtime_error&) {
        }
    }
}

TEST(RcTemplateErrors, FailedLoadKeepsThePreviousSet) {
    ResourceSet set;
    set.load(resourceDir());
    ResourceFiles broken = resourceDir();
    broken["data.rc"] += "\nBROKEN\n";
    EXPECT_THROW(set.load(broken), std::runtime_error);
    EXPECT_NE(set.dialog("SORT"), nullptr);
}

}  // namespace
}  // namespace kvs::headless
