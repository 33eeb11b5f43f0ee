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

}  // namespace
