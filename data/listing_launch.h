// The note (51), page-title (52) and print-format (53) dialogs have templates
// and OK handlers but no case in the data dispatcher; these rows and
// descriptors let them run under the standard launcher all the same.
#pragma once

#include <cstdint>

#include "core/descriptor.h"

namespace kvs::data {

// The row of id 51, 52 or 53, or null for any other id.
const DispatchRow* outputSettingsRow(std::uint16_t id);
// The descriptor that row launches with (no variable lists), or null.
Descriptor* outputSettingsDescriptor(std::uint16_t id);

}  // namespace kvs::data
