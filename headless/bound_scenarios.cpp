#include "headless/bound_scenarios.h"

namespace kvs::headless {

namespace {

// "add LIST PREFIX1 ... PREFIXn" over names first..last.
std::string addNames(const std::string& list, const std::string& prefix, int first, int last) {
    std::string statement = "  add " + list;
    for (int i = first; i <= last; ++i) statement += " " + prefix + std::to_string(i);
    return statement + "\n";
}

// A bar graph of twelve-character names: 256 Z-variables, 256 Y-variables
// (a list takes 256) and the X-variables WEIGHTCLS612 to WEIGHTCLS(lastX).
std::string barOfLongNames(int lastX) {
    return "manyvars WEIGHTCLS 870\nstart 103\n" + addNames("\"Z - variable(s):\"", "WEIGHTCLS", 100, 355) +
           addNames("\"Y - variable(s):\"", "WEIGHTCLS", 356, 611) +
           addNames("\"X - variable(s):\"", "WEIGHTCLS", 612, lastX);
}

}  // namespace

std::vector<BoundScenario> everyBoundScenario() {
    std::vector<BoundScenario> all;

    // An X label that fits and a Y maximum that no longer does: the maximum
    // is left out whole, the label keeps its closing quote.
    all.push_back({"scatter_long_label",
                   "vars x y\nstart 101\n  add \"X - variable:\" x\n  add \"Y - variable(s):\" y\n"
                   "  click \"Axes\"\n  menu 2001\n  typerepeat \"Label:\" \"L\" 9970\n  ok\n"
                   "  click \"Axes\"\n  menu 2002\n  type \"Maximum:\" \"1000\"\n  ok\n  ok\n",
                   "LLL'", {"YMAX"}, ""});

    // Three lists of twelve-character names (a list takes 256) stay below
    // the list bound; of the two axis labels after them only the first fits.
    all.push_back({"bar_labels_past_the_buffer",
                   barOfLongNames(860) +
                       "  click \"Axes\"\n  menu 2001\n  type \"Label:\" \"Weight class of the respondent in kilograms\"\n"
                       "  ok\n  click \"Axes\"\n  menu 2002\n"
                       "  type \"Label:\" \"Number of respondents in each weight class\"\n  ok\n  ok\n",
                   "kilograms'", {"YLABEL"}, ""});

    // Names past the bound end the command after the name that passed it
    // (the 250th X-variable): no slash, no grouping keyword, no axis minimum.
    all.push_back({"bar_names_past_the_bound",
                   barOfLongNames(867) +
                       "  add \"Grouping variable(s):\" WEIGHTCLS868\n"
                       "  click \"Axes\"\n  menu 2001\n  type \"Minimum:\" \"-250\"\n  ok\n  ok\n",
                   "", {}, ""});
    all.back().ending = "WEIGHTCLS860 WEIGHTCLS861";
    all.back().absent = {"/", "GROUP", "XMIN", "WEIGHTCLS862"};

    // Triangular coordinates with more W-variables than the bound takes.
    all.push_back({"scatter_w_variables_past_the_bound",
                   "manyvars W 1840\nstart 101\n  add \"X - variable:\" W1838\n  add \"Y - variable(s):\" W1839\n"
                   "  add \"Z - variable(s):\" W1840\n  click \"Options\"\n  menu 2015\n  click \"Triangular\"\n" +
                       addNames("\"W-variables:\"", "W", 1, 1834) + "  ok\n  ok\n",
                   "", {"*", "/", "TRI", "W1838", "W1839", "W1840"}, ""});

    // A long right side with its closing: the display keyword and the axis
    // maximum after it no longer fit and are left out whole.
    all.push_back({"function_long_right_side",
                   "vars x\nstart 119\n  type \"Left side:\" \"Y\"\n  typerepeat \"Right side (expression):\" \"X*X+\" 2495\n"
                   "  click \"3D\"\n  choose \"Display as:\" 1\n  click \"Axes\"\n  menu 2001\n  type \"Maximum:\" \"100\"\n"
                   "  ok\n  ok\n",
                   "X*X+ ;", {"CONTOUR", "XMAX"}, ""});

    // An equation the command cannot hold whole is not complete.
    all.push_back({"function_equation_past_the_buffer",
                   "vars x\nstart 119\n  type \"Left side:\" \"Y\"\n  typerepeat \"Right side (expression):\" \"X+\" 5000\n"
                   "  ok\n  reply ok\n  cancel\n",
                   "", {}, "You must enter a complete equation to produce a Function plot."});
    return all;
}

}  // namespace kvs::headless
