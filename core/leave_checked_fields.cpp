#include "core/leave_checked_fields.h"

#include <limits>

namespace kvs {

namespace {

// What the field check reads: enough for any number a user types.
constexpr std::uint16_t kCheckedWidth = 120;

}  // namespace

void LeaveCheckedFields::attach(DialogView& view, std::span<const int> ids) {
    fields_.clear();
    for (int id : ids) {
        if (!view.has(id)) continue;
        NumericField& field = fields_.emplace_back();
        field.dialog = view.handle();
        field.controlId = static_cast<std::uint16_t>(id);
        field.width = kCheckedWidth;
        field.realAllowed = 1;
        field.minimum = std::numeric_limits<double>::lowest();
        field.maximum = std::numeric_limits<double>::max();
        field.blankAllowed = true;
        ui().attachNumericField(view, field, 0);
    }
}

}  // namespace kvs
