#include <gtest/gtest.h>

#include "tools/scenario/scenario.h"
#include "tools/scenario/transcript.h"

namespace {

using kvs::scenario::parse;
using kvs::scenario::quote;

TEST(ScenarioParse, KeywordsWordsAndQuotedStrings) {
    const auto result = parse("vars AGE INCOME$   # two variables\n\n  add \"Variable(s):\" AGE\n");
    ASSERT_TRUE(result.errors.empty());
    ASSERT_EQ(result.statements.size(), 2u);
    EXPECT_EQ(result.statements[0].keyword, "vars");
    EXPECT_EQ(result.statements[0].texts(), (std::vector<std::string>{"AGE", "INCOME$"}));
    EXPECT_EQ(result.statements[1].line, 3);
    ASSERT_EQ(result.statements[1].args.size(), 2u);
    EXPECT_TRUE(result.statements[1].args[0].quoted);
    EXPECT_EQ(result.statements[1].args[0].text, "Variable(s):");
    EXPECT_FALSE(result.statements[1].args[1].quoted);
}

TEST(ScenarioParse, EscapesAndHashInsideQuotes) {
    const auto result = parse(R"(file "C:\\DATA\\A#1 \"x\".KVD" A B)");
    ASSERT_TRUE(result.errors.empty());
    ASSERT_EQ(result.statements.size(), 1u);
    EXPECT_EQ(result.statements[0].args[0].text, "C:\\DATA\\A#1 \"x\".KVD");
    EXPECT_EQ(result.statements[0].args.size(), 3u);
}

TEST(ScenarioParse, ErrorsNameTheLine) {
    const auto result = parse("ok\nfile \"open\ntype 34 \"bad \\q\"\n\"quoted\" first\n");
    ASSERT_EQ(result.errors.size(), 3u);
    EXPECT_EQ(result.errors[0], "line 2: unterminated string");
    EXPECT_EQ(result.errors[1], "line 3: unknown escape in string");
    EXPECT_EQ(result.errors[2], "line 4: a statement starts with a keyword");
    ASSERT_EQ(result.statements.size(), 1u);
}

TEST(ScenarioParse, Numbers) {
    EXPECT_EQ(kvs::scenario::toNumber("245"), 245);
    EXPECT_EQ(kvs::scenario::toNumber("-1"), -1);
    EXPECT_FALSE(kvs::scenario::toNumber("12a"));
    EXPECT_FALSE(kvs::scenario::toNumber(""));
}

TEST(Transcript, QuoteShowsBlanksAndEscapes) {
    EXPECT_EQ(quote("SORT A  / D"), "\"SORT A  / D\"");
    EXPECT_EQ(quote("a\"b\\c\r\n\t"), R"("a\"b\\c\r\n\t")");
    EXPECT_EQ(quote(std::string("\x01", 1)), "\"\\x01\"");
}

}  // namespace
