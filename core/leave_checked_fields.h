// The number fields of one open dialog, checked as the user leaves them (a
// click or Tab elsewhere) as well as by the dialog's own check at OK. Each
// may be left blank: an option without a value.
#pragma once

#include <deque>
#include <span>

#include "core/numeric_field.h"
#include "core/seam.h"

namespace kvs {

class LeaveCheckedFields {
public:
    // Ties the fields ids of the dialog that has just opened to the user
    // interface; those of an earlier opening are let go.
    void attach(DialogView& view, std::span<const int> ids);

private:
    // The windows hold the records' addresses while the dialog is open.
    std::deque<NumericField> fields_;
};

}  // namespace kvs
