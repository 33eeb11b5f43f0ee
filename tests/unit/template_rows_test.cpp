// Every dialog row the library installs names a template that the resource
// scripts define, with the row's caption; a row without a behaviour is a
// dialog of a family not written yet and is only counted.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

#include "core/command_preview.h"
#include "core/dispatch_table.h"
#include "core/mnemonics.h"
#include "core/source_filter.h"
#include "core/variable_list.h"
#include "families/library.h"
#include "headless/embedded_resources.h"
#include "headless/headless_dialog.h"
#include "headless/rc_template.h"
#include "tests/unit/library_resources.h"

namespace {

const kvs::headless::ResourceSet& resources() { return kvs::testing::libraryResources(); }

TEST(TemplateRows, EveryWrittenDialogHasItsTemplateAndCaption) {
    kvs::installLibraryFamilies();
    int written = 0, notYetWritten = 0;
    for (const kvs::DispatchRow& row : kvs::dialogRows()) {
        if (row.launch == kvs::Launch::Special) continue;
        if (!row.behaviour) {
            ++notYetWritten;
            continue;
        }
        ++written;
        ASSERT_NE(row.templateName, nullptr) << row.id;
        const kvs::headless::DialogTemplate* dialog = resources().dialog(row.templateName);
        ASSERT_NE(dialog, nullptr) << row.id << " " << row.templateName;
        EXPECT_EQ(dialog->caption, row.caption) << row.id << " " << row.templateName;
    }
    EXPECT_GE(written, 116);
    EXPECT_EQ(notYetWritten, 0) << "every menu command with a template opens its dialog";
}

// The letter after the single '&' of a text, lower-cased; 0 for none.
char mnemonicOf(const std::string& text) {
    std::string letter;
    kvs::collectMnemonic(text, letter);
    return letter.empty() ? 0 : letter.front();
}

// Every label and button of a written dialog, with the controls the dialog
// adds when it opens (the command preview and the search boxes under its
// source lists), carries a mnemonic of its own, so a user reaches each
// control from the keyboard. OK and Cancel answer
// Enter and Escape, group boxes and notes (SS_NOPREFIX) take no focus, a text without a letter or a
// digit ("=") has nothing to mark, and the catalogue's "Add" 153 comes third
// after two other "Add" buttons and is reached by Tab or a double click.
TEST(TemplateRows, LabelsAndButtonsOfWrittenDialogsHaveMnemonicsOfTheirOwn) {
    kvs::installLibraryFamilies();
    std::vector<std::string> faults;
    for (const kvs::DispatchRow& row : kvs::dialogRows()) {
        if (!row.behaviour || !row.templateName) continue;
        const kvs::headless::DialogTemplate* dialogTemplate = resources().dialog(row.templateName);
        if (!dialogTemplate) continue;
        kvs::headless::HeadlessDialog dialog(*dialogTemplate);
        // In the order the dialog adds them when it opens.
        kvs::VariableCatalogue names;
        kvs::SourceFilters filters;
        filters.install(dialog, names, names);
        kvs::CommandPreview preview;
        EXPECT_TRUE(preview.install(dialog)) << row.templateName;
        std::string taken;
        for (const auto& state : dialog.controls()) {
            const auto& control = state.def;
            const bool button = control.kind == kvs::headless::ControlKind::Button;
            if (!button && control.kind != kvs::headless::ControlKind::Static) continue;
            const bool groupBox = button && (control.style & 0x0Fu) == 0x07u;
            const bool note = !button && (control.style & 0x80u) != 0;  // SS_NOPREFIX: a note, not a label
            const bool noLetter = std::none_of(control.text.begin(), control.text.end(),
                                               [](char c) { return std::isalnum(static_cast<unsigned char>(c)); });
            if (control.id == 1 || control.id == 2 || groupBox || note || noLetter || control.id == 153) continue;
            const char letter = mnemonicOf(control.text);
            const std::string where = std::string(row.templateName) + ": \"" + control.text + "\"";
            if (!letter) faults.push_back(where + " has no mnemonic");
            else if (taken.find(letter) != std::string::npos) faults.push_back(where + " repeats '" + letter + "'");
            else taken += letter;
        }
    }
    EXPECT_TRUE(faults.empty()) << kvs::testing::listed(faults);
}

}  // namespace
