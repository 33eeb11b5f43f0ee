#include "core/numeric_field.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "headless/headless_dialog.h"
#include "tests/unit/fake_ui.h"
#include "tools/scenario/text_file.h"

namespace kvs {
namespace {

NumericField integerField(double minimum, double maximum, double step = 1.0) {
    NumericField field;
    field.controlId = 32;
    field.width = 8;
    field.minimum = minimum;
    field.maximum = maximum;
    field.step = step;
    field.value = minimum;
    return field;
}

TEST(NumberParser, ReadsSignsFractionsExponentsAndBlanks) {
    const auto check = [](std::string_view text, double value, bool integral) {
        const auto parsed = parseNumber(text);
        ASSERT_TRUE(parsed) << text;
        EXPECT_DOUBLE_EQ(parsed->value, value) << text;
        EXPECT_EQ(parsed->integral, integral) << text;
    };
    check("12", 12, true);
    check("  -7 ", -7, true);
    check("+3.", 3, true);
    check(".5", 0.5, false);
    check("12.0", 12, true);
    check("1.5e1", 15, true);
    check("1200E-2", 12, true);
    check("1250e-2", 12.5, false);
    check("1e-1", 0.1, false);
    check("1e-400", 0, false);
    for (std::string_view bad : {"", "  ", "abc", ".", "-", "1e", "1e+", "1.2.3", "12abc", "1 2", "0x10", "1e999"})
        EXPECT_FALSE(parseNumber(bad)) << bad;
}

TEST(NumericField, ValidationCodes) {
    NumericField field = integerField(1, 10);
    field.value = 4;
    EXPECT_EQ(validateText(field, ""), kFieldEmpty);
    EXPECT_EQ(validateText(field, "abc"), kFieldNotNumber);
    EXPECT_EQ(validateText(field, "12.5"), kFieldNotInteger);
    EXPECT_EQ(validateText(field, "11"), kFieldOutOfRange);
    EXPECT_EQ(validateText(field, "0"), kFieldOutOfRange);
    EXPECT_EQ(field.value, 4) << "a failed check keeps the last valid value";
    EXPECT_EQ(validateText(field, "1"), kFieldValid);
    EXPECT_EQ(field.value, 1);
    EXPECT_EQ(validateText(field, "10"), kFieldValid);
    EXPECT_EQ(field.value, 10);

    field.realAllowed = 1;
    EXPECT_EQ(validateText(field, "2.5"), kFieldValid);
    EXPECT_EQ(field.value, 2.5);
    // Only width + 3 characters are read: the rest is not part of the text.
    EXPECT_EQ(validateText(field, "5          x"), kFieldValid);
    EXPECT_EQ(validateText(field, "5      x"), kFieldNotNumber);
}

TEST(NumericField, MessageTexts) {
    EXPECT_EQ(fieldErrorText(kFieldEmpty), "Control is empty.");
    EXPECT_EQ(fieldErrorText(kFieldNotNumber), "String in control is not a number.");
    EXPECT_EQ(fieldErrorText(kFieldNotInteger), "String in control is not a integer.");
    EXPECT_EQ(fieldErrorText(kFieldOutOfRange), "Out of range error.");
    EXPECT_EQ(fieldErrorText(kFieldValid), "KFW Error. Bad Error code.");
    EXPECT_EQ(fieldErrorText(7), "KFW Error. Bad Error code.");
}

TEST(NumericField, SteppingStaysInRangeAndPositionsCount) {
    NumericField field = integerField(1, 10);
    field.value = 9;
    EXPECT_EQ(steppedValue(field, kStepUp), 10);
    field.value = 10;
    EXPECT_EQ(steppedValue(field, kStepUp), 10);
    field.value = 1;
    EXPECT_EQ(steppedValue(field, kStepDown), 1);
    EXPECT_EQ(steppedValue(field, 0), 1);

    EXPECT_EQ(upDownPositions(field), 10);
    field.value = 4;
    EXPECT_EQ(upDownPosition(field), 4);
    EXPECT_EQ(upDownText(1, upDownPositions(field), upDownPosition(field)), "1,10,4");

    NumericField level = integerField(0, 1, 0.1);
    level.realAllowed = 1;
    EXPECT_EQ(upDownPositions(level), 11) << "the slack keeps the last position of an inexact step";
    level.value = 0.3;
    EXPECT_EQ(formatFieldValue(level), "0.3");
    level.step = 0;
    EXPECT_EQ(upDownPositions(level), 1);
    EXPECT_EQ(upDownText(-5, 2147483647, 0), "-5,2147483647,0");
}

// The field logic over a real template's edit control.
class FieldOnView : public ::testing::Test {
protected:
    void SetUp() override {
        headless::ResourceFiles files;
        for (const auto& entry : std::filesystem::directory_iterator(KVS_RESOURCE_DIR))
            files[entry.path().filename().string()] = scenario::readTextFile(entry.path().string()).value_or("");
        resources.load(files);
        dialog.emplace(*resources.dialog("IDD_OPTIONSIMPORTEXPORT"));
        setUi(&fake);
        field = integerField(1, 10);
        field.value = 5;
        field.notify = 1;
        field.callback = [](int id, double value) { notes.emplace_back(id, value); };
        notes.clear();
    }
    void TearDown() override { setUi(nullptr); }

    headless::ResourceSet resources;
    std::optional<headless::HeadlessDialog> dialog;
    testing::FakeUi fake;
    NumericField field;
    static inline std::vector<std::pair<int, double>> notes;
};

TEST_F(FieldOnView, StepWritesClampsAndNotifies) {
    dialog->setText(32, "9");
    EXPECT_EQ(stepField(field, *dialog, kStepUp), kFieldValid);
    EXPECT_EQ(stepField(field, *dialog, kStepUp), kFieldValid);
    EXPECT_EQ(dialog->text(32), "10");
    EXPECT_EQ(notes, (std::vector<std::pair<int, double>>{{32, 10.0}, {32, 10.0}}));

    dialog->setText(32, "12.5");
    EXPECT_EQ(stepField(field, *dialog, kStepDown), kFieldNotInteger);
    EXPECT_EQ(fake.messages, std::vector<std::string>{"String in control is not a integer."});
    EXPECT_EQ(dialog->text(32), "12.5");
    EXPECT_EQ(field.value, 10);
    EXPECT_FALSE(fieldMessageUp());
}

TEST_F(FieldOnView, ConfirmChecksOnlyAChangedText) {
    dialog->setText(32, "abc");
    rememberFocusText("abc");
    EXPECT_EQ(confirmField(field, *dialog), kFieldValid) << "unchanged since the focus came: no check";
    EXPECT_TRUE(fake.messages.empty());

    dialog->setText(32, "11");
    EXPECT_EQ(confirmField(field, *dialog), kFieldOutOfRange);
    EXPECT_EQ(fake.messages, std::vector<std::string>{"Out of range error."});

    dialog->setText(32, " 7 ");
    EXPECT_EQ(confirmField(field, *dialog), kFieldValid);
    EXPECT_EQ(dialog->text(32), "7") << "the field is refreshed from its value";
    EXPECT_EQ(focusText(), "7");
    EXPECT_EQ(notes, (std::vector<std::pair<int, double>>{{32, 7.0}}));

    dialog->setText(32, "");
    EXPECT_EQ(confirmField(field, *dialog), kFieldEmpty);
    EXPECT_EQ(dialog->text(32), "7") << "an emptied field shows its last value again";
    EXPECT_EQ(notes.size(), 1u);
}

TEST_F(FieldOnView, LeavingChecksWithoutReporting) {
    rememberFocusText("5");
    dialog->setText(32, "abc");
    EXPECT_EQ(leaveField(field, *dialog), kFieldNotNumber);
    EXPECT_TRUE(fake.messages.empty()) << "the report is the window side's, once the focus has settled";
    dialog->setText(32, "5");
    EXPECT_EQ(leaveField(field, *dialog), kFieldValid);
    EXPECT_TRUE(notes.empty()) << "an unchanged text is not notified";
    dialog->setText(32, "6");
    EXPECT_EQ(leaveField(field, *dialog), kFieldValid);
    EXPECT_EQ(notes, (std::vector<std::pair<int, double>>{{32, 6.0}}));
}

TEST_F(FieldOnView, AnOptionalFieldMayBeLeftBlank) {
    dialog->setText(32, "   ");
    EXPECT_EQ(leaveField(field, *dialog), kFieldNotNumber) << "blanks are no number";
    dialog->setText(32, "");
    EXPECT_EQ(leaveField(field, *dialog), kFieldEmpty);
    field.blankAllowed = true;
    EXPECT_EQ(leaveField(field, *dialog), kFieldValid);
    dialog->setText(32, "   ");
    EXPECT_EQ(leaveField(field, *dialog), kFieldValid);
    dialog->setText(32, " x ");
    EXPECT_EQ(leaveField(field, *dialog), kFieldNotNumber);
    EXPECT_TRUE(notes.empty());
}

TEST(LeavingAField, IsNotCheckedForTheButtonsThatEndTheDialog) {
    EXPECT_FALSE(leavingIsChecked(1));     // OK
    EXPECT_FALSE(leavingIsChecked(2));     // Cancel
    EXPECT_FALSE(leavingIsChecked(1001));  // Continue
    EXPECT_TRUE(leavingIsChecked(12));
    EXPECT_TRUE(leavingIsChecked(0));
}

}  // namespace
}  // namespace kvs
