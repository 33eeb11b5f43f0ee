// The data file the demo host and the tour pretend to have open.
#pragma once

#include <array>

namespace kvs::standin {

inline constexpr const char* kSampleTitle = "KORVAN - C:\\DATA\\SAMPLE.KVD";
inline constexpr const char* kSampleHelpFile = "C:\\KORVAN\\KORVAN.HLP";

inline constexpr std::array<const char*, 20> kSampleVariables = {
    "AGE", "SEX$", "RACE",  "INCOME", "EDUC", "STATE$", "WEIGHT", "HEIGHT", "SBP",    "DBP",
    "CHOL", "SMOKE", "LOW", "LWT",    "PTL",  "HT",     "UI",     "FTV",    "BWT",    "NAME$"};

// Another file, for the dialogs that ask the host for a file's variables.
inline constexpr const char* kOtherFile = "C:\\DATA\\OTHER.KVD";
inline constexpr std::array<const char*, 4> kOtherVariables = {"AGE", "REGION$", "SALES", "COST"};

}  // namespace kvs::standin

namespace kvs::standin {

// Tells the kernel and the host that the sample file is in use.
void installSampleData();

}  // namespace kvs::standin
