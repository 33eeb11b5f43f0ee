// The data dialogs' composers, one row per setting and the text it writes.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "data/composers.h"

namespace kvs::data {
namespace {

using Lines = std::vector<std::string>;

struct Row {
    const char* what;
    std::function<Composition()> compose;
    Lines lines;
    std::string refusal;
};

void expectRows(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        const Composition c = row.compose();
        EXPECT_EQ(c.lines, row.lines) << row.what;
        EXPECT_EQ(c.refusal, row.refusal) << row.what;
    }
}

const std::string kSelect = "You must select variables.";
const Names kTwo{"AGE", "INCOME"};

TEST(DataComposers, SortRankTranspose) {
    Names twelve;
    for (int i = 0; i < 12; ++i) twelve.push_back(std::string("K").append(std::to_string(i)));
    expectRows({
        {"ascending keys end with a blank", [] { return composeSort(kTwo, IDC_SORT_ASCENDING); }, {"SORT AGE INCOME "}, ""},
        {"descending", [] { return composeSort(kTwo, IDC_SORT_DESCENDING); }, {"SORT AGE INCOME  / D"}, ""},
        {"ten keys at most", [&] { return composeSort(twelve, IDC_SORT_ASCENDING); },
         {"SORT K0 K1 K2 K3 K4 K5 K6 K7 K8 K9 "}, ""},
        {"no keys", [] { return composeSort({}, IDC_SORT_ASCENDING); }, {}, kSelect},
        {"rank", [] { return composeRank(kTwo); }, {"RANK AGE INCOME"}, ""},
        {"rank refused", [] { return composeRank({}); }, {}, kSelect},
        {"transpose", [] { return composeTranspose(kTwo); }, {"TRANSPOSE AGE INCOME "}, ""},
        {"transpose of nothing", [] { return composeTranspose({}); }, {"TRANSPOSE "}, ""},
    });
}

TEST(DataComposers, ListCases) {
    auto with = [](auto change) {
        ListCasesSettings s;
        change(s);
        return s;
    };
    const auto some10 = with([](ListCasesSettings& s) { s.cases = IDC_LIST_SOME_CASES, s.lastCase = "10"; });
    const auto labels = with([](ListCasesSettings& s) { s.labels = true; });
    const auto both = with([](ListCasesSettings& s) { s.cases = IDC_LIST_SOME_CASES, s.lastCase = "10", s.labels = true; });
    const auto format = with([](ListCasesSettings& s) { s.characters = "8", s.decimals = "2"; });
    const auto noDecimals = with([](ListCasesSettings& s) { s.characters = "8"; });
    const auto blankLast = with([](ListCasesSettings& s) { s.cases = IDC_LIST_SOME_CASES, s.lastCase = "  "; });
    expectRows({
        {"plain, empty list allowed", [] { return composeListCases({}, {}); }, {"LIST "}, ""},
        {"names", [] { return composeListCases({}, kTwo); }, {"LIST AGE INCOME"}, ""},
        {"cases", [&] { return composeListCases(some10, {"A"}); }, {"LIST A /N=10"}, ""},
        {"labels", [&] { return composeListCases(labels, {"A"}); }, {"LIST A /  LABEL"}, ""},
        {"cases and labels", [&] { return composeListCases(both, {"A"}); }, {"LIST A /N=10 LABEL"}, ""},
        {"format", [&] { return composeListCases(format, {"A"}); }, {"LIST A /  FORMAT=8,2"}, ""},
        {"characters alone keep the slash", [&] { return composeListCases(noDecimals, {"A"}); }, {"LIST A / "}, ""},
        {"blank last case", [&] { return composeListCases(blankLast, {"A"}); }, {"LIST A"}, ""},
    });
}

TEST(DataComposers, GroupsCategoriesReshapeStandardizeOrder) {
    expectRows({
        {"by", [] { return composeByGroups({}, kTwo); }, {"BY AGE INCOME"}, ""},
        {"by missing and page", [] { return composeByGroups({true, true, false}, {"SEX$", "REGION"}); },
         {"BY SEX$ REGION/ MISS PAGE"}, ""},
        {"by page", [] { return composeByGroups({false, true, false}, {"A"}); }, {"BY A/ PAGE"}, ""},
        {"by off ignores the list", [] { return composeByGroups({true, true, true}, {}); }, {"BY "}, ""},
        {"by refused", [] { return composeByGroups({}, {}); }, {}, kSelect},
        {"category", [] { return composeCategory({true, false}, {"A"}); }, {"CATEGORY A / MISSING"}, ""},
        {"category off", [] { return composeCategory({true, true}, {}); }, {"CATEGORY "}, ""},
        {"category refused", [] { return composeCategory({}, {}); }, {}, kSelect},
        {"wrap", [] { return composeReshape({}, kTwo); }, {"WRAP AGE INCOME"}, ""},
        {"unwrap", [] { return composeReshape({IDC_RESHAPE_UNWRAP, "3"}, {}); }, {"UNWRAP=3"}, ""},
        {"unwrap blank", [] { return composeReshape({IDC_RESHAPE_UNWRAP, " "}, kTwo); }, {},
         "You must provide a value for Unwrapping."},
        {"standardize", [] { return composeStandardize(IDC_STANDARDIZE_SD, kTwo); }, {"STANDARDIZE AGE INCOME"}, ""},
        {"standardize range", [] { return composeStandardize(IDC_STANDARDIZE_RANGE, {"A"}); },
         {"STANDARDIZE A / RANGE"}, ""},
        {"standardize refused", [] { return composeStandardize(IDC_STANDARDIZE_RANGE, {}); }, {}, kSelect},
        {"order", [] { return composeOrder(kTwo); }, {"ORDER AGE INCOME"}, ""},
        {"order refused", [] { return composeOrder({}); }, {}, kSelect},
    });
}

TEST(DataComposers, OneVariablePrintAndProgram) {
    PrintSettings shortUnderflow;
    shortUnderflow.length = IDC_PRINT_SHORT;
    shortUnderflow.decimals = "5";
    shortUnderflow.underflow = true;
    expectRows({
        {"weight", [] { return composeOneVariable("WEIGHT ", false, {"W"}); }, {"WEIGHT W"}, ""},
        {"weight off", [] { return composeOneVariable("WEIGHT ", true, {}); }, {"WEIGHT "}, ""},
        {"weight refused", [] { return composeOneVariable("WEIGHT ", false, {}); }, {}, kSelect},
        {"print defaults", [] { return composePrintFormat({}); }, {"PRINT LONG", "FORMAT 3"}, ""},
        {"print short", [&] { return composePrintFormat(shortUnderflow); }, {"PRINT SHORT", "FORMAT 5 /UNDERFLOW"}, ""},
        {"program", [] { return composeProgram("BASIC", "LET X=1\r\n\r\nLET Y=2"); }, {"BASIC", "LET X=1", "LET Y=2"}, ""},
        {"program of blanks", [] { return composeProgram("MATRIX", " \r\n "); }, {}, "You must provide more input."},
    });
}

// A line that reaches the composition buffer's bound is cut there, never past it.
TEST(DataComposers, LongLinesStayInTheCompositionBuffer) {
    const Names many(2000, "ABCDEFGHIJKL");
    const Composition order = composeOrder(many);
    ASSERT_EQ(order.lines.size(), 1u);
    EXPECT_LE(order.lines[0].size(), CommandText::kCapacity - 1);
    EXPECT_EQ(order.lines[0].substr(0, 19), "ORDER ABCDEFGHIJKL ");
}

// Long lists stop after the whole name that passed 9,900 characters, never
// inside one.
TEST(DataComposers, TransposeStopsAfterAWholeName) {
    Names names;
    for (int i = 0; i < 769; ++i) {
        const std::string number = std::to_string(i);
        names.push_back(std::string("ABCD").append(8 - number.size(), '0').append(number));
    }
    const std::string line = composeTranspose(names).lines.at(0);
    EXPECT_GT(line.size(), kJoinLimit);
    EXPECT_LE(line.size(), kJoinLimit + 13);
    EXPECT_EQ(line.substr(line.size() - 13), "ABCD00000760 ");
}

TEST(DataComposers, LabelLineLeavesOutAPairThatDoesNotFitWhole) {
    std::vector<ValueLabel> labels;
    for (int i = 0; i < 400; ++i) labels.emplace_back(std::to_string(i), std::string(30, 'x'));
    const std::string line = composeLabelLine("SEX", labels);
    EXPECT_LE(line.size(), CommandText::kCapacity - 1);
    EXPECT_EQ(line.back(), '"');
    EXPECT_EQ(line.substr(0, 12), "LABEL SEX / ");
    EXPECT_EQ(composeLabelLine("SEX$", {{"1", "Male"}, {"2", "Female"}}), "LABEL SEX$ / \"1\"=\"Male\", \"2\"=\"Female\"");
}

}  // namespace
}  // namespace kvs::data
