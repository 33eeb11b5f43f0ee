// The checker of preview marks finds an OK that did otherwise than its
// preview showed, and lets through what the preview cannot know.
#include <gtest/gtest.h>

#include "tools/scenario/preview_check.h"

namespace kvs::scenario {
namespace {

TEST(PreviewCheck, LinesMustBeThePushedCommandsInOrder) {
    const PreviewReport same = checkPreviews("dialog \"Sort\"\n#preview \"SORT A \"\nAddCmd \"SORT A \" null\nStartDialog 72 = 1\n");
    EXPECT_TRUE(same.mismatches.empty());
    EXPECT_EQ(same.checked, 1);
    EXPECT_EQ(same.transcript, "dialog \"Sort\"\nAddCmd \"SORT A \" null\nStartDialog 72 = 1\n");

    const PreviewReport other = checkPreviews("#preview \"SORT A\"\nAddCmd \"SORT A \" null\nStartDialog 72 = 1\n");
    ASSERT_EQ(other.mismatches.size(), 1u);
    EXPECT_NE(other.mismatches[0].find("\"SORT A\""), std::string::npos);

    const PreviewReport stayed =
        checkPreviews("#preview \"SORT A \"\nmessage \"KORVAN\" stop \"You must select variables.\"\n");
    EXPECT_EQ(stayed.mismatches.size(), 1u);
}

TEST(PreviewCheck, RefusalMustBeTheMessageShown) {
    EXPECT_TRUE(checkPreviews("#preview refused \"No \\\"x\\\".\"\nmessage \"KORVAN\" stop \"No \\\"x\\\".\"\n")
                    .mismatches.empty());
    EXPECT_EQ(checkPreviews("#preview refused \"No.\"\nmessage \"KORVAN\" stop \"Other.\"\n").mismatches.size(), 1u);
    EXPECT_EQ(checkPreviews("#preview refused \"No.\"\nAddCmd \"X\" null\nStartDialog 1 = 1\n").mismatches.size(), 1u);
}

TEST(PreviewCheck, SaveLinesMatchAnyChosenPathWithTheSameQualifier) {
    const char* chosen = "#preview \"SAVE 'LOGIT.KVD' / X\" \"MODEL\"\nchooser save \"Save a File\" \"LOGIT.KVD\"\n"
                         "AddCmd \"SAVE 'C:\\\\O'K.KVD' / X\" null\nAddCmd \"MODEL\" null\nStartDialog 1 = 1\n";
    EXPECT_TRUE(checkPreviews(chosen).mismatches.empty());
    const char* qualifier = "#preview \"SAVE 'A' / X\"\nAddCmd \"SAVE 'B' / Y\" null\nStartDialog 1 = 1\n";
    EXPECT_EQ(checkPreviews(qualifier).mismatches.size(), 1u);
    // A cancelled chooser refuses the OK without a word: nothing to compare.
    const char* cancelled = "#preview \"SAVE 'A'\" \"SORT A \"\nchooser save \"Save a File\" \"A\"\nStartDialog 1 = 1\n";
    const PreviewReport report = checkPreviews(cancelled);
    EXPECT_TRUE(report.mismatches.empty());
    EXPECT_EQ(report.checked, 0);
}

}  // namespace
}  // namespace kvs::scenario
