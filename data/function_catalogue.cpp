#include "data/function_catalogue.h"

#include <array>

namespace kvs::data {

namespace {

using enum FunctionCategory;

// Distributions follow one pattern: the letter of the distribution (Z
// normal, T, F, X chi-square, U uniform, B binomial, P Poisson, E
// exponential) and CF cumulative distribution, DF density, IF inverse
// distribution, RN random number.
constexpr FunctionEntry kFunctions[] = {
    {"ABS()", Mathematical},       {"ACS()", Mathematical},       {"AGE()", DateAndTime},
    {"ASC$()", Character},         {"ASN()", Mathematical},       {"ATH()", Mathematical},
    {"ATN()", Mathematical},       {"AVG()", Multivariable},      {"BCF()", Distribution},
    {"BDF()", Distribution},       {"BIF()", Distribution},       {"BRN()", Distribution},
    {"CAP$()", Character},         {"CAT$()", Character},         {"CNT$()", Character},
    {"CNT()", Multivariable},      {"COS()", Mathematical},       {"CSH()", Mathematical},
    {"CUM()", GroupsAndIntervals}, {"CUT()", GroupsAndIntervals}, {"DAY()", DateAndTime},
    {"DIF()", GroupsAndIntervals}, {"DOW()", DateAndTime},        {"DOY()", DateAndTime},
    {"DTE()", DateAndTime},        {"ECF()", Distribution},       {"EDF()", Distribution},
    {"EIF()", Distribution},       {"ERN()", Distribution},       {"EXP()", Mathematical},
    {"FCF()", Distribution},       {"FDF()", Distribution},       {"FIF()", Distribution},
    {"FRN()", Distribution},       {"GRP()", GroupsAndIntervals}, {"HRS()", DateAndTime},
    {"ICH()", Character},          {"IND()", Character},          {"INT()", Mathematical},
    {"JUL()", DateAndTime},        {"L10()", Mathematical},       {"LAB$()", Character},
    {"LAG()", GroupsAndIntervals}, {"LEN()", Character},          {"LFT$()", Character},
    {"LOG()", Mathematical},       {"LOW$()", Character},         {"LPD$()", Character},
    {"MAX()", Multivariable},      {"MDN()", Multivariable},      {"MID$()", Character},
    {"MIN()", Multivariable},      {"MIS()", Multivariable},      {"MNT()", DateAndTime},
    {"MOD()", Mathematical},       {"MTH()", DateAndTime},        {"NOW()", DateAndTime},
    {"NXT()", GroupsAndIntervals}, {"PCF()", Distribution},       {"PCT()", GroupsAndIntervals},
    {"PDF()", Distribution},       {"PIF()", Distribution},       {"PRN()", Distribution},
    {"PUT$()", Character},         {"QNT()", GroupsAndIntervals}, {"QTR()", DateAndTime},
    {"RGT$()", Character},         {"RNK()", GroupsAndIntervals}, {"RPD$()", Character},
    {"SDV()", Multivariable},      {"SEC()", DateAndTime},        {"SGN()", Mathematical},
    {"SIN()", Mathematical},       {"SND$()", Character},         {"SNH()", Mathematical},
    {"SQR()", Mathematical},       {"SQZ$()", Character},         {"STR$()", Character},
    {"SUB$()", Character},         {"SUM()", Multivariable},      {"TAN()", Mathematical},
    {"TCF()", Distribution},       {"TDF()", Distribution},       {"TIF()", Distribution},
    {"TIM()", DateAndTime},        {"TNH()", Mathematical},       {"TRM$()", Character},
    {"TRN()", Distribution},       {"UCF()", Distribution},       {"UDF()", Distribution},
    {"UIF()", Distribution},       {"UPR$()", Character},         {"URN()", Distribution},
    {"VAL()", Character},          {"VRN()", Multivariable},      {"WKN()", DateAndTime},
    {"XCF()", Distribution},       {"XDF()", Distribution},       {"XIF()", Distribution},
    {"XRN()", Distribution},       {"YRS()", DateAndTime},        {"ZCF()", Distribution},
    {"ZDF()", Distribution},       {"ZIF()", Distribution},       {"ZRN()", Distribution},
};

constexpr std::array<std::string_view, kFunctionCategoryCount> kCategoryNames = {
    "Mathematical", "Multivariable", "Groups and Intervals", "Date and Time", "Character", "Distribution",
};

}  // namespace

std::span<const FunctionEntry> functionCatalogue() { return kFunctions; }

std::string_view categoryName(FunctionCategory category) {
    return kCategoryNames[static_cast<std::size_t>(category)];
}

FunctionCategory categoryAt(int position) {
    if (position < 0 || position >= kFunctionCategoryCount) return FunctionCategory::Mathematical;
    return static_cast<FunctionCategory>(position);
}

}  // namespace kvs::data
