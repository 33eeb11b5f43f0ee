#include "standin/win/tour.h"

#include <cctype>
#include <cstdint>
#include <cstdio>
#include <set>
#include <string>
#include <vector>
#include <functional>

#include "resources/common_ids.h"
#include "resources/data_ids.h"
#include "standin/host_state.h"
#include "standin/win/bitmap_file.h"
#include "standin/win/help_catcher.h"
#include "standin/win/library.h"
#include "standin/win/owner_window.h"
#include "standin/win/picture_board.h"
#include "standin/win/sample_data.h"
#include "standin/win/window_backend.h"
#include "standin/win/window_roles.h"
#include "standin/win/window_watch.h"
#include "tools/scenario/transcript.h"

namespace kvs::standin {

namespace {

// Ticks a dialog stays up before its picture is taken, so that it has
// painted itself.
constexpr int kSettleTicks = 3;

class Tour {
public:
    Tour(std::string outDir, std::FILE* log, HWND owner)
        : outDir_(std::move(outDir)), log_(log), owner_(owner), backend_(library_, owner) {}

    int run();

private:
    void emit(const std::string& line) {
        std::fputs(line.c_str(), log_);
        std::fputc('\n', log_);
        std::fflush(log_);
    }
    void onTick(HWND top);
    // Runs open, taking a picture of the first library dialog it shows.
    void visit(const std::string& shotName, const std::function<std::string()>& open);
    // Opens a graph dialog, presses an option button and picks a menu item
    // (none: the picture is of the menu), taking the picture of what is up
    // at the end; dropDown, when not 0, is a combo box of it to drop down.
    void visitRoute(const std::string& shotName, std::uint16_t dialog, int button, int code, int dropDown = 0);
    // Opens a dialog and takes its picture after the steps, one per tick:
    // the dialog as a user has worked in it.
    void visitWorked(const std::string& shotName, std::uint16_t dialog, std::vector<std::function<void()>> steps);
    // Drags the dialog's frame to half as large again as its client area.
    void growByHalf(HWND dialog);
    void pictureOfUnlisted();
    void pictureOfPictures();
    void showProgress();

    std::string outDir_;
    std::FILE* log_;
    HWND owner_;
    Library library_;
    HelpCatcher help_;
    WindowWatch watch_;
    WindowBackend backend_;
    std::string shotName_;
    std::set<std::string> shownTemplates_;  // upper case, as resource names are kept
    bool shot_ = true;
    int settle_ = 0;
    std::vector<std::function<void()>> steps_;  // done one per tick before the picture
    std::size_t step_ = 0;
    HWND shotWindow_ = nullptr;  // what to picture instead of the top window
};

// A dialog's picture is named by its command id and template.
std::string shotNameOf(const KvsDialogEntry& row) {
    std::string id = std::to_string(row.commandId);
    while (id.size() < 4) id.insert(id.begin(), '0');
    return id + "-" + row.templateName;
}

void Tour::onTick(HWND top) {
    if (!top) return;
    if (!shot_ && step_ < steps_.size()) {
        steps_[step_++]();
        settle_ = 0;
        return;
    }
    const scenario::WindowKind kind = roleOf(top, library_.module());
    const bool pictured = kind == scenario::WindowKind::Dialog || kind == scenario::WindowKind::FontChooser ||
                          kind == scenario::WindowKind::Menu;
    if (pictured && !shot_) {
        if (++settle_ < kSettleTicks) return;
        const std::string path = outDir_ + "\\" + shotName_ + ".bmp";
        const HWND shown = shotWindow_ && IsWindowVisible(shotWindow_) ? shotWindow_ : top;
        shotWindow_ = nullptr;
        if (!saveWindowBitmap(shown, path)) emit(scenario::errorLine("cannot save " + path));
        shot_ = true;
    }
    backend_.dismissTop();
}

void Tour::visit(const std::string& shotName, const std::function<std::string()>& open) {
    shotName_ = shotName;
    shot_ = false;
    settle_ = 0;
    emit(open());
    shot_ = true;
}

void Tour::visitRoute(const std::string& shotName, std::uint16_t dialog, int button, int code, int dropDown) {
    steps_ = {[this, button] { backend_.click(button); }};
    if (code) steps_.push_back([this, code] { backend_.pickMenuItem(code); });
    // A dropped-down list is a window of its own: it is what is pictured.
    if (dropDown)
        steps_.push_back([this, dropDown] {
            const HWND combo = GetDlgItem(topDialogWindow(), dropDown);
            SendMessageA(combo, CB_SHOWDROPDOWN, TRUE, 0);
            COMBOBOXINFO info{};
            info.cbSize = sizeof info;
            if (GetComboBoxInfo(combo, &info)) shotWindow_ = info.hwndList;
        });
    step_ = 0;
    visit(shotName, [&] {
        return "StartDialog " + std::to_string(dialog) + " = " +
               std::to_string(library_.startDialog(dialog, owner_, kSampleHelpFile));
    });
    steps_.clear();
}

void Tour::visitWorked(const std::string& shotName, std::uint16_t dialog, std::vector<std::function<void()>> steps) {
    steps_ = std::move(steps);
    step_ = 0;
    visit(shotName, [&] {
        return "StartDialog " + std::to_string(dialog) + " = " +
               std::to_string(library_.startDialog(dialog, owner_, kSampleHelpFile));
    });
    steps_.clear();
}

void Tour::growByHalf(HWND dialog) {
    RECT client{}, scale{0, 0, 4, 8};
    if (!dialog || !GetClientRect(dialog, &client) || !MapDialogRect(dialog, &scale) || !scale.right || !scale.bottom)
        return;
    backend_.resizeDialog(MulDiv(client.right, 4 * 3, scale.right * 2), MulDiv(client.bottom, 8 * 3, scale.bottom * 2));
}

// Checks the first button of every radio group, as each dialog's own logic
// does when it opens, so a picture shows no group without a choice.
BOOL CALLBACK checkFirstRadio(HWND control, LPARAM) {
    char className[16] = {};
    GetClassNameA(control, className, sizeof className);
    if (_stricmp(className, "Button") != 0) return TRUE;
    const LONG style = GetWindowLongA(control, GWL_STYLE);
    const LONG type = style & BS_TYPEMASK;
    if ((type == BS_AUTORADIOBUTTON || type == BS_RADIOBUTTON) && (style & WS_GROUP))
        SendMessageA(control, BM_SETCHECK, BST_CHECKED, 0);
    return TRUE;
}

INT_PTR CALLBACK pictureProcedure(HWND dialog, UINT message, WPARAM, LPARAM) {
    if (message != WM_INITDIALOG) return FALSE;
    EnumChildWindows(dialog, checkFirstRadio, 0);
    return TRUE;
}

// Templates no StartDialog opens by itself: shown modeless under a procedure
// that does nothing, just for their pictures.
// A named callback, not a lambda: the 32-bit build needs the stdcall convention.
BOOL CALLBACK collectTemplateName(HMODULE, LPCSTR, LPSTR name, LONG_PTR found) {
    if (!IS_INTRESOURCE(name)) reinterpret_cast<std::vector<std::string>*>(found)->emplace_back(name);
    return TRUE;
}

void Tour::pictureOfUnlisted() {
    struct Unlisted {
        const char* shotName;
        const char* templateName;
    };
    // The note, page-title and print-format dialogs (no menu entry), and
    // Merge's key selection.
    constexpr Unlisted kUnlisted[] = {
        {"0051-Note", "Note"}, {"0052-PageTitle", "PageTitle"}, {"0053-PrintFormat", "PrintFormat"},
        {"0091-KeyVars", "KeyVars"}};
    std::vector<Unlisted> templates(std::begin(kUnlisted), std::end(kUnlisted));
    // Every other template no dialog of the tour showed: the option
    // sub-dialogs, under their template's own caption.
    std::vector<std::string> others;
    EnumResourceNamesA(library_.module(), RT_DIALOG, collectTemplateName, reinterpret_cast<LONG_PTR>(&others));
    std::vector<std::string> shotNames;
    for (const std::string& name : others) {
        if (shownTemplates_.count(name)) continue;
        bool listed = false;
        for (const Unlisted& u : kUnlisted) listed = listed || _stricmp(u.templateName, name.c_str()) == 0;
        if (!listed) shotNames.push_back("template-" + name);
    }
    for (std::size_t i = 0; i < shotNames.size(); ++i)
        templates.push_back({shotNames[i].c_str(), shotNames[i].c_str() + 9});
    for (const Unlisted& unlisted : templates) {
        if (!FindResourceA(library_.module(), unlisted.templateName, RT_DIALOG)) continue;
        const HWND dialog = CreateDialogParamA(library_.module(), unlisted.templateName, owner_, pictureProcedure, 0);
        if (!dialog) {
            emit(scenario::errorLine(std::string("cannot create ") + unlisted.templateName));
            continue;
        }
        ShowWindow(dialog, SW_SHOW);
        UpdateWindow(dialog);
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&message);
        const std::string path = outDir_ + "\\" + unlisted.shotName + ".bmp";
        if (!saveWindowBitmap(dialog, path)) emit(scenario::errorLine("cannot save " + path));
        DestroyWindow(dialog);
    }
}

// The progress window is modeless, opened by the sampling exports rather
// than StartDialog: shown part-way through a job of 100 samples.
void Tour::showProgress() {
    const scenario::LibraryExports& e = library_.exports();
    if (!e.startSamplingDialog || !e.updateSamplingDialog || !e.clearSamplingDialog) return;
    e.startSamplingDialog(1, 100);
    e.updateSamplingDialog(40, 3725);
    const HWND window = topDialogWindow();
    if (window && roleOf(window, library_.module()) == scenario::WindowKind::Dialog) {
        const std::string path = outDir_ + "\\progress-ProcessBox.bmp";
        if (!saveWindowBitmap(window, path)) emit(scenario::errorLine("cannot save " + path));
    }
    e.clearSamplingDialog();
}

// The symbol, line-style and axis pictures the graph dialogs list.
void Tour::pictureOfPictures() {
    const scenario::LibraryExports& e = library_.exports();
    if (!e.loadSymbolBitmapsEx || !e.deleteSymbolBitmapsEx) return;
    void* table = nullptr;
    const int count = e.loadSymbolBitmapsEx(&table);
    const HWND board = showPictureBoard(library_.module(), static_cast<HBITMAP*>(table), count);
    if (board) {
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&message);
        const std::string path = outDir_ + "\\pictures-symbols-lines-axes.bmp";
        if (!saveWindowBitmap(board, path)) emit(scenario::errorLine("cannot save " + path));
        closePictureBoard(board);
    }
    e.deleteSymbolBitmapsEx();
}

int Tour::run() {
    std::string error;
    if (!library_.load(error)) {
        emit(scenario::errorLine(error));
        return 1;
    }
    HostState::instance().setSink([this](const std::string& line) { emit(line); });
    installSampleData();
    help_.open([this](const std::string& line) { emit(line); });
    watch_.start(library_.module(), [this](const std::string& line) { emit(line); },
                 [this](HWND top) { onTick(top); });
    for (const KvsDialogEntry& row : library_.dialogs()) {
        // Only the dialogs the library has a template for are shown.
        if (!row.templateName || !FindResourceA(library_.module(), row.templateName, RT_DIALOG)) continue;
        std::string upper(row.templateName);
        for (char& c : upper) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        shownTemplates_.insert(upper);
        visit(shotNameOf(row), [&] {
            return "StartDialog " + std::to_string(row.commandId) + " = " +
                   std::to_string(library_.startDialog(row.commandId, owner_, kSampleHelpFile));
        });
    }
    // Sub-dialogs as their menus open them: titled by their code, with the
    // lists that draw pictures beside their entries.
    visitRoute("route-0101-AxesMenu", 101, 502, 0);
    visitRoute("route-0101-YAxis", 101, 502, 2002);
    visitRoute("route-0101-AllAxes", 101, 502, 2004);
    visitRoute("route-0101-AllAxes-2D", 101, 502, 2004, 60);
    visitRoute("route-0101-AllAxes-3D", 101, 502, 2004, 62);
    visitRoute("route-0101-SymbolAndLabel", 101, 503, 2007);
    visitRoute("route-0101-SymbolAndLabel-list", 101, 503, 2007, 82);
    visitRoute("route-0101-SurfaceLineStyle", 101, 503, 2008);
    visitRoute("route-0101-SurfaceLineStyle-list", 101, 503, 2008, 93);
    visitRoute("route-0109-LineStyle", 109, 512, 2008);
    // The command preview of dialogs a user has filled: Sort with two keys
    // and a save file, Regression with its model.
    visitWorked("worked-0072-Sort", 72,
                {[this] { backend_.selectItems(IDC_SOURCE, {0, 3}); }, [this] { backend_.click(IDC_ADD1); },
                 [this] { backend_.click(IDC_SORT_DESCENDING); }, [this] { backend_.click(IDC_SAVEFILE); }});
    visitWorked("worked-0221-Regression", 221,
                {[this] { backend_.selectItems(IDC_SOURCE, {3}); }, [this] { backend_.click(IDC_ADD_DEPENDENT); },
                 [this] { backend_.selectItems(IDC_SOURCE, {0, 4, 6}); }, [this] { backend_.click(IDC_ADD1); }});
    // A source list filtered by its search box.
    visitWorked("worked-0289-Logit-filtered", 289,
                {[this] { backend_.typeText(IDC_SOURCE_FILTER, "ht"); },
                 [this] { backend_.selectItems(IDC_SOURCE, {0}); }});
    // The same, its frame dragged to half as large again.
    visitWorked("worked-0221-Regression-resized", 221,
                {[this] { backend_.selectItems(IDC_SOURCE, {3}); }, [this] { backend_.click(IDC_ADD_DEPENDENT); },
                 [this] { backend_.selectItems(IDC_SOURCE, {0, 4, 6}); }, [this] { backend_.click(IDC_ADD1); },
                 [this] { growByHalf(GetActiveWindow()); }});
    // The dialogs the host opens through exports of their own.
    const scenario::LibraryExports& exports = library_.exports();
    if (exports.doSaveDataOptionsDlg)
        visit("export-SaveAsOpts", [&] {
            return "DoSaveDataOptionsDlg = " + std::to_string(exports.doSaveDataOptionsDlg(owner_));
        });
    if (exports.doImpExpOptionsDlg)
        visit("export-IDD_OPTIONSIMPORTEXPORT", [&] {
            return "DoImpExpOptionsDlg 0 = " + std::to_string(exports.doImpExpOptionsDlg(owner_, 0, 0));
        });
    // The font chooser of the graph font command.
    visit("0150-Font", [&] {
        return "StartDialog 150 = " + std::to_string(library_.startDialog(150, owner_, kSampleHelpFile));
    });
    if (const auto picker = exports.colorPickerDialogEx)
        visit("export-ColorPicker", [&] {
            float colour = 0.5f;
            return "ColorPickerDialogEx = " + std::to_string(picker(owner_, &colour));
        });
    // The progress window of a sampling job.
    showProgress();
    for (const char* shown : {"SAVEASOPTS", "IDD_OPTIONSIMPORTEXPORT", "COLORPICKER", "PROCESSBOX"})
        shownTemplates_.insert(shown);
    watch_.stop();
    pictureOfUnlisted();
    pictureOfPictures();
    HostState::instance().setSink(nullptr);
    library_.unload();
    return 0;
}

}  // namespace

int runTour(const std::string& outDir) {
    const std::string logPath = outDir + "\\tour.txt";
    std::FILE* log = std::fopen(logPath.c_str(), "wb");
    if (!log) return 1;
    const HWND owner = createOwnerWindow(kSampleTitle);
    int result = 1;
    if (owner) {
        Tour tour(outDir, log, owner);
        result = tour.run();
        DestroyWindow(owner);
    }
    std::fclose(log);
    return result;
}

}  // namespace kvs::standin
