// The view checks on the headless twin; view_parity_wine.cpp runs the same
// checks on real windows, so the two backends cannot drift apart unseen.
#include <gtest/gtest.h>

#include "headless/headless_dialog.h"
#include "headless/rc_template.h"
#include "tests/win/view_checks.h"
#include "tools/scenario/text_file.h"

namespace kvs::headless {
namespace {

std::string readFile(const std::string& path) { return scenario::readTextFile(path).value_or(""); }

TEST(ViewParity, HeadlessDialogBehavesAsTheWin32Controls) {
    ResourceFiles files;
    files["windows_styles.h"] = readFile(KVS_RESOURCE_DIR "/windows_styles.h");
    files["view_parity.rc"] = readFile(KVS_RESOURCE_DIR "/../tests/win/view_parity.rc");
    ResourceSet resources;
    resources.load(files);
    const DialogTemplate* dialogTemplate = resources.dialog("VIEWPARITY");
    ASSERT_NE(dialogTemplate, nullptr);
    HeadlessDialog dialog(*dialogTemplate);
    const viewcheck::Failures failures = viewcheck::runAll(dialog, [&] { return dialog.focus(); });
    for (const std::string& failure : failures) ADD_FAILURE() << failure;
}

}  // namespace
}  // namespace kvs::headless
