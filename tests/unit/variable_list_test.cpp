#include <gtest/gtest.h>

#include <string>

#include "core/variable_list.h"

namespace {

TEST(VariableNames, CutAtTheFirstBlankAfterTheFirstCharacter) {
    EXPECT_EQ(kvs::nameFromField("AGE         "), "AGE");
    EXPECT_EQ(kvs::nameFromField("ABCDEFGHIJKL"), "ABCDEFGHIJKL");
    EXPECT_EQ(kvs::nameFromField("ABCDEFGHIJKLMNOP"), "ABCDEFGHIJKL");
    EXPECT_EQ(kvs::nameFromField(" X          "), " X") << "a name is never empty";
    EXPECT_EQ(kvs::nameFromField("            "), " ");
    EXPECT_EQ(kvs::nameFromField("A B"), "A");
}

TEST(VariableCatalogue, MapsListedNamesBothWays) {
    kvs::VariableCatalogue catalogue;
    catalogue.add("AGE", true);
    catalogue.add("NAME$", false);
    catalogue.add("INCOME", true);
    EXPECT_EQ(catalogue.indexOf("INCOME"), 2);
    EXPECT_EQ(catalogue.indexOf("NAME$"), -1) << "a name left out of the list cannot be selected";
    EXPECT_EQ(catalogue.indexOf("income"), -1) << "matching is exact";
    EXPECT_EQ(catalogue.nameAt(1), "NAME$");
    EXPECT_EQ(catalogue.nameAt(3), "");
    EXPECT_EQ(catalogue.nameAt(-1), "");
}

TEST(VariableCatalogue, GrowsPastItsReserveKeepsTheFirstOfTwinsAndForgetsWhatIsCut) {
    kvs::VariableCatalogue catalogue;
    catalogue.reserve(4);
    for (int i = 0; i < 5000; ++i) catalogue.add("V" + std::to_string(i), true);
    catalogue.add("V17", true);
    EXPECT_EQ(catalogue.indexOf("V4999"), 4999);
    EXPECT_EQ(catalogue.indexOf("V17"), 17) << "a name listed twice maps to its first place";
    EXPECT_EQ(catalogue.indexOf("V5000"), -1);

    catalogue.truncate(100);
    EXPECT_EQ(catalogue.size(), 100u);
    EXPECT_EQ(catalogue.indexOf("V99"), 99);
    EXPECT_EQ(catalogue.indexOf("V100"), -1);
    catalogue.add("V100", true);
    EXPECT_EQ(catalogue.indexOf("V100"), 100);

    catalogue.clear();
    EXPECT_EQ(catalogue.indexOf("V1"), -1);
    catalogue.add("V1", true);
    EXPECT_EQ(catalogue.indexOf("V1"), 0);
}

// A few names are found by reading the names in order, many through the
// index; both give the same answers.
TEST(VariableCatalogue, FindsFewAndManyNamesAlike) {
    kvs::VariableCatalogue catalogue;
    for (int i = 0; i < 300; ++i) catalogue.add("V" + std::to_string(i), i != 7);
    catalogue.add("V3", true);
    const std::vector<std::string> few = {"V299", "V3", "V7", "NONE", "V3"};
    const std::vector<std::int32_t> fewFound = {299, 3, -1, -1, 3};
    EXPECT_EQ(catalogue.indicesOf(few), fewFound);

    // Many names in list order, one out of order and one unknown among them.
    std::vector<std::string> inOrder;
    std::vector<std::int32_t> inOrderFound;
    for (int i = 0; i < 300; i += 2) {
        inOrder.push_back("V" + std::to_string(i));
        inOrderFound.push_back(i);
    }
    inOrder.insert(inOrder.begin() + 50, "V1");
    inOrderFound.insert(inOrderFound.begin() + 50, 1);
    inOrder.push_back("NONE");
    inOrderFound.push_back(-1);
    EXPECT_EQ(catalogue.indicesOf(inOrder), inOrderFound);

    std::vector<std::string> many;
    std::vector<std::int32_t> manyFound;
    for (int i = 299; i >= 0; --i) {
        many.push_back("V" + std::to_string(i));
        manyFound.push_back(i == 7 ? -1 : i);
    }
    EXPECT_EQ(catalogue.indicesOf(many), manyFound);
    EXPECT_EQ(catalogue.indicesOf(few), fewFound) << "once the index is built, few names use it too";
}

}  // namespace
