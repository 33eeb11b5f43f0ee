#include <gtest/gtest.h>

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

}  // namespace
