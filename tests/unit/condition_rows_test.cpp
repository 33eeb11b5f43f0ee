// The pure pieces of the condition dialogs: the character-expression test,
// quoting, the function catalogue and the line composers.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "data/composers.h"
#include "data/condition_rows.h"
#include "data/data_texts.h"
#include "data/function_catalogue.h"

namespace kvs::data {
namespace {

TEST(CharacterExpression, QuotesDollarsAndCharacterFunctions) {
    EXPECT_FALSE(isCharacterExpression("M"));
    EXPECT_FALSE(isCharacterExpression("30"));
    EXPECT_FALSE(isCharacterExpression(""));
    EXPECT_FALSE(isCharacterExpression("LOG(Y)"));
    EXPECT_TRUE(isCharacterExpression("\"M\""));
    EXPECT_TRUE(isCharacterExpression("O'BRIEN"));
    EXPECT_TRUE(isCharacterExpression("NAME$"));
    EXPECT_TRUE(isCharacterExpression("VAL(A)"));  // a function without "$"
    EXPECT_TRUE(isCharacterExpression("ICH(B,1)"));
    // A substring match: a plain word holding a function name counts too.
    EXPECT_TRUE(isCharacterExpression("WINDOW"));
    EXPECT_FALSE(isCharacterExpression("upr(x)"));  // names are matched as written
}

TEST(Quoting, DoubleQuotesUnlessTheTextHoldsOne) {
    EXPECT_EQ(quoted("ABC"), "\"ABC\"");
    EXPECT_EQ(quoted(""), "\"\"");
    EXPECT_EQ(quoted("SAY \"HI\""), "'SAY \"HI\"'");
    EXPECT_EQ(quoted("IT'S"), "\"IT'S\"");
}

TEST(Bounds, TextIsCutAndBlanksCountAsMissing) {
    EXPECT_EQ(bounded(std::string(100000, 'A'), kVariableTextBound).size(), 32u);
    EXPECT_EQ(bounded("AB", kValueTextBound), "AB");
    EXPECT_FALSE(hasText("   "));
    EXPECT_FALSE(hasText(""));
    EXPECT_TRUE(hasText(" X "));
}

TEST(FunctionCatalogue, OneHundredAndFiveSortedUniqueFunctions) {
    const auto functions = functionCatalogue();
    ASSERT_EQ(functions.size(), 105u);
    EXPECT_EQ(functions.front().name, "ABS()");
    EXPECT_EQ(functions.back().name, "ZRN()");
    EXPECT_TRUE(std::is_sorted(functions.begin(), functions.end(),
                               [](const FunctionEntry& a, const FunctionEntry& b) { return a.name < b.name; }));
    std::set<std::string_view> names;
    std::array<int, kFunctionCategoryCount> perCategory{};
    for (const FunctionEntry& f : functions) {
        EXPECT_TRUE(names.insert(f.name).second) << f.name;
        EXPECT_TRUE(f.name.ends_with("()")) << f.name;
        ++perCategory[static_cast<std::size_t>(f.category)];
    }
    for (int count : perCategory) EXPECT_GT(count, 0);
}

// Every character function the test knows is offered under "Character",
// and only character functions mark a value there: nothing in the other
// categories would make its result count as text.
TEST(FunctionCatalogue, CharacterFunctionsAgreeWithTheTest) {
    for (std::string_view name : text::kCharacterFunctions) {
        const std::string entry = std::string(name) + "()";
        const auto functions = functionCatalogue();
        const auto it = std::find_if(functions.begin(), functions.end(),
                                     [&](const FunctionEntry& f) { return f.name == entry; });
        ASSERT_NE(it, functions.end()) << entry;
        EXPECT_EQ(it->category, FunctionCategory::Character) << entry;
    }
    for (const FunctionEntry& f : functionCatalogue()) {
        if (f.category != FunctionCategory::Character) {
            EXPECT_FALSE(isCharacterExpression(f.name)) << f.name;
        }
    }
    EXPECT_EQ(categoryName(categoryAt(5)), "Distribution");
    EXPECT_EQ(categoryName(categoryAt(99)), "Mathematical");
}

ConditionState rows(std::initializer_list<ConditionRow> filled) {
    ConditionState state;
    std::size_t i = 0;
    for (const ConditionRow& row : filled) state.rows[i++] = row;
    return state;
}

TEST(ComposeSelect, ContinuesALineAndStopsAtTheFirstIncompleteRow) {
    ConditionState state = rows({{0, "AGE", 1, "30"}, {1, "X", 5, "1"}, {0, "", 0, ""}, {0, "Z", 0, "9"}});
    CommandText line("SELECT (B= 2) ");
    ASSERT_TRUE(composeSelect(state, line, true));
    EXPECT_EQ(line.str(), "SELECT (B= 2) (AGE> 30) OR (X<> 1) ");
    state.complete = true;
    ASSERT_TRUE(composeSelect(state, line, false));
    EXPECT_EQ(line.str(), "SELECT (AGE> 30) OR (X<> 1)  / COMPLETE");
    state.rows[0].value = "  ";
    EXPECT_FALSE(composeSelect(state, line, false));
}

TEST(ComposeLet, TwoBlanksBeforeAQuotedText) {
    CommandText line;
    ASSERT_TRUE(composeLet(rows({{0, "NAME$", 0, "ABC"}}), line));
    EXPECT_EQ(line.str(), "LET NAME$ =  \"ABC\"");
    ASSERT_TRUE(composeLet(rows({{0, "NAME$", 0, "UPR$(N$)"}}), line));
    EXPECT_EQ(line.str(), "LET NAME$ = UPR$(N$)");
    EXPECT_FALSE(composeLet(rows({{0, "NAME$", 0, ""}}), line));
}

TEST(ComposeIfThenLet, AThenRowEndsTheLine) {
    ConditionState state = rows({{0, "AGE", 1, "65"}, {0, "OLD", 0, "1"}, {0, "C", 0, "3"}, {0, "D", 0, "4"}});
    state.thenConnectors = {0, 1};  // row 2 assigns
    CommandText line;
    ASSERT_TRUE(composeIfThenLet(state, line));
    EXPECT_EQ(line.str(), "IF (AGE>65)  THEN LET OLD=1");
    state.rows[1].op = 5;  // a THEN row writes the operator it shows; only "Then let" has a fixed "="
    ASSERT_TRUE(composeIfThenLet(state, line));
    EXPECT_EQ(line.str(), "IF (AGE>65)  THEN LET OLD<>1");
    state.rows[1].op = 0;
    state.rows[1].value.clear();  // a THEN row half filled
    EXPECT_FALSE(composeIfThenLet(state, line));
    state.thenConnectors = {3, 4};
    state.ifNot = true;
    state.rows[1].value = "2";
    state.rows[3] = {};  // an untouched "Then let" row
    ASSERT_TRUE(composeIfThenLet(state, line));
    EXPECT_EQ(line.str(), "IF NOT (AGE>65) AND NOT (OLD=2) OR NOT (C=3) ");
    state.rows[0].variable.clear();  // row 1 empty: nothing counts
    EXPECT_FALSE(composeIfThenLet(state, line));
}

}  // namespace
}  // namespace kvs::data
