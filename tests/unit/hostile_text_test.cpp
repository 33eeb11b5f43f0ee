// A megabyte typed into every edit field of every dialog, then OK: no crash,
// and every line the host is handed stays within the composition buffer.
// Headless only: a real edit control takes minutes to lay out such a text.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "headless/embedded_resources.h"
#include "headless/headless_backend.h"
#include "include/kvs_dlg.h"

namespace kvs {
namespace {

constexpr int kMegabyte = 1 << 20;

TEST(HostileTextTest, AMegabyteInEveryFieldKeepsEveryLineWithinItsBound) {
    headless::ResourceSet resources;
    resources.load(headless::embeddedResources());
    headless::HeadlessRunner runner(resources);
    // The served dialogs, as the library lists them to a host.
    runner.run("");
    std::vector<KvsDialogEntry> rows(static_cast<std::size_t>(GetDialogList(nullptr, 0)));
    ASSERT_FALSE(rows.empty());
    GetDialogList(rows.data(), static_cast<int32_t>(rows.size()));
    std::vector<std::pair<unsigned, std::string>> dialogs;  // id, template
    for (const KvsDialogEntry& row : rows)
        if (row.templateName) dialogs.emplace_back(row.commandId, row.templateName);

    int fields = 0;
    for (const auto& [id, templateName] : dialogs) {
        const headless::DialogTemplate* found = resources.dialog(templateName);
        if (!found) continue;
        std::string source = "vars AGE INCOME SEX$\nstart " + std::to_string(id) + "\n";
        for (const headless::ControlTemplate& control : found->controls) {
            if (control.kind != headless::ControlKind::Edit) continue;
            source += "  typerepeat " + std::to_string(control.id) + " \"W\" " + std::to_string(kMegabyte) + "\n";
            ++fields;
        }
        source += "  ok\n";
        const std::string transcript = runner.run(source);
        std::size_t at = 0;
        while ((at = transcript.find("AddCmd \"", at)) != std::string::npos) {
            const std::size_t end = transcript.find('\n', at);
            const std::size_t length = (end == std::string::npos ? transcript.size() : end) - at;
            // The line's text, quoted with its escapes, and the argument.
            EXPECT_LT(length, 2 * 9999u + 300) << "dialog " << id;
            at = end;
        }
    }
    EXPECT_GE(fields, 30) << "the edit fields of the dialogs were found";
}

}  // namespace
}  // namespace kvs
