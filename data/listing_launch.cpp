#include "data/listing_launch.h"

namespace kvs::data {

namespace {

constexpr DispatchRow kRows[] = {
    {51, "Note", "Note", Family::Data, Launch::Standard, 1, 0, 0, 0, 0},
    {52, "PageTitle", "Page Title", Family::Data, Launch::Standard, 1, 0, 0, 0, 0},
    {53, "PrintFormat", "Print Format", Family::Data, Launch::Standard, 1, 0, 0, 0, 0},
};

Descriptor descriptors[] = {freshDescriptor(kRows[0]), freshDescriptor(kRows[1]), freshDescriptor(kRows[2])};

int indexOf(std::uint16_t id) {
    for (std::size_t i = 0; i < std::size(kRows); ++i)
        if (kRows[i].id == id) return static_cast<int>(i);
    return -1;
}

}  // namespace

const DispatchRow* outputSettingsRow(std::uint16_t id) {
    const int i = indexOf(id);
    return i < 0 ? nullptr : &kRows[i];
}

Descriptor* outputSettingsDescriptor(std::uint16_t id) {
    const int i = indexOf(id);
    return i < 0 ? nullptr : &descriptors[i];
}

}  // namespace kvs::data
