// Message boxes and file dialogs as the driver sees them: the transcript
// line with caption, icon and text, the buttons, the answers.
#include <windows.h>
#include <commdlg.h>

#include <string>

#include "standin/win/library.h"
#include "standin/win/tests/check.h"
#include "standin/win/tests/watch_fixture.h"
#include "standin/win/window_backend.h"
#include "standin/win/window_roles.h"

namespace {

using kvs::scenario::Buttons;
using kvs::scenario::WindowKind;
using kvs::standin::test::WatchFixture;

struct MessageCase {
    UINT style;
    const char* line;
    Buttons buttons;
    int dismissed;  // what closing it without a choice answers
};

KVS_TEST(message_boxes_report_caption_icon_text_and_buttons) {
    const MessageCase cases[] = {
        {MB_ICONSTOP | MB_OK, "message \"KORVAN\" stop \"You must select variables.\"", Buttons::Ok, IDOK},
        {MB_ICONEXCLAMATION | MB_OKCANCEL, "message \"KORVAN\" exclamation \"You must select variables.\"",
         Buttons::OkCancel, IDCANCEL},
        {MB_ICONQUESTION | MB_YESNO, "message \"KORVAN\" question \"You must select variables.\"", Buttons::YesNo,
         IDNO},
        {MB_ICONINFORMATION | MB_OK, "message \"KORVAN\" info \"You must select variables.\"", Buttons::Ok, IDOK},
        {MB_YESNO, "message \"KORVAN\" none \"You must select variables.\"", Buttons::YesNo, IDNO},
    };
    const kvs::standin::Library noLibrary;
    kvs::standin::WindowBackend backend(noLibrary, nullptr);
    for (const MessageCase& c : cases) {
        WatchFixture fixture;
        Buttons seen = Buttons::Ok;
        WindowKind kind = WindowKind::None;
        std::string text;
        fixture.then([&](HWND) {
            kind = backend.topKind();
            text = backend.topText();
            seen = backend.messageButtons();
            backend.dismissTop();
        });
        const int answer = MessageBoxA(nullptr, "You must select variables.", "KORVAN", c.style);
        KVS_CHECK(kind == WindowKind::Message);
        KVS_CHECK_EQ(std::string("You must select variables."), text);
        KVS_CHECK(seen == c.buttons);
        KVS_CHECK_EQ(c.dismissed, answer);
        KVS_CHECK_EQ(std::size_t{1}, fixture.lines.size());
        if (!fixture.lines.empty()) KVS_CHECK_EQ(std::string(c.line), fixture.lines[0]);
    }
}

KVS_TEST(message_box_without_caption_shows_the_system_default) {
    WatchFixture fixture;
    const kvs::standin::Library noLibrary;
    kvs::standin::WindowBackend backend(noLibrary, nullptr);
    fixture.then([&](HWND) { backend.answerMessage(IDOK); });
    KVS_CHECK_EQ(IDOK, MessageBoxA(nullptr, "Line one\r\nline two  ", nullptr, MB_OK));
    KVS_CHECK_EQ(std::size_t{1}, fixture.lines.size());
    if (!fixture.lines.empty())
        KVS_CHECK_EQ(std::string("message \"Error\" none \"Line one\\r\\nline two  \""), fixture.lines[0]);
}

struct Chosen {
    BOOL result;
    std::string path;
};

Chosen choose(bool save, const char* initial, const std::optional<std::string>& answer, WatchFixture& fixture,
              WindowKind& kind) {
    const kvs::standin::Library noLibrary;
    kvs::standin::WindowBackend backend(noLibrary, nullptr);
    fixture.then([&](HWND) {
        kind = backend.topKind();
        backend.answerChooser(answer);
    });
    char file[MAX_PATH] = {};
    lstrcpynA(file, initial, MAX_PATH);
    OPENFILENAMEA dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.lpstrFilter = "All files (*.*)\0*.*\0";
    dialog.lpstrFile = file;
    dialog.nMaxFile = MAX_PATH;
    dialog.lpstrTitle = save ? "Save a File" : "Open a File";
    dialog.Flags = OFN_HIDEREADONLY | OFN_PATHMUSTEXIST | (save ? OFN_OVERWRITEPROMPT : 0);
    const BOOL result = save ? GetSaveFileNameA(&dialog) : GetOpenFileNameA(&dialog);
    return Chosen{result, file};
}

KVS_TEST(file_dialogs_report_kind_title_and_shown_name_and_take_a_typed_path) {
    WindowKind kind = WindowKind::None;
    {
        WatchFixture fixture;
        const Chosen chosen = choose(true, "APPEND.KVD", std::string("C:\\TEMP\\SORTED.KVD"), fixture, kind);
        KVS_CHECK(kind == WindowKind::Chooser);
        KVS_CHECK(chosen.result);
        KVS_CHECK_EQ(std::string("C:\\TEMP\\SORTED.KVD"), chosen.path);
        KVS_CHECK_EQ(std::size_t{1}, fixture.lines.size());
        if (!fixture.lines.empty())
            KVS_CHECK_EQ(std::string("chooser save \"Save a File\" \"APPEND.KVD\""), fixture.lines[0]);
    }
    {
        WatchFixture fixture;
        const Chosen chosen = choose(false, "", std::nullopt, fixture, kind);
        KVS_CHECK(!chosen.result);
        KVS_CHECK_EQ(std::size_t{1}, fixture.lines.size());
        if (!fixture.lines.empty()) KVS_CHECK_EQ(std::string("chooser open \"Open a File\" \"\""), fixture.lines[0]);
    }
}

}  // namespace
