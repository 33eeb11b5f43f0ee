// Which Add and Remove buttons serve which target list, and where the names
// come from. The list-transfer code and both scenario drivers read this one
// table.
#pragma once

#include "common_ids.h"
#include "estimate_ids.h"

namespace kvs {

struct ListTransferRow {
    int addButton;
    int removeButton;
    int targetList;
    int sources[2];  // the first of these the dialog has is the source list
};

inline constexpr ListTransferRow kListTransfers[] = {
    {IDC_ADD1, IDC_REMOVE1, IDC_TARGET1, {IDC_SOURCE, IDC_SOURCE}},
    {IDC_ADD1, IDC_REMOVE1, IDC_ONE_VARIABLE, {IDC_SOURCE, IDC_SOURCE}},
    {IDC_ADD2, IDC_REMOVE2, IDC_TARGET2, {IDC_SOURCE2, IDC_SOURCE}},
    {IDC_ADD3, IDC_REMOVE3, IDC_TARGET3, {IDC_SOURCE, IDC_SOURCE}},
    {IDC_ADD4, IDC_REMOVE4, IDC_TARGET4, {IDC_SOURCE, IDC_SOURCE}},
    {IDC_ADD5, IDC_REMOVE5, IDC_TARGET5, {IDC_SOURCE, IDC_SOURCE}},
    {IDC_ADD_DEPENDENT, IDC_REMOVE_DEPENDENT, IDC_DEPENDENT, {IDC_SOURCE, IDC_SOURCE}},
    {IDC_ADD_VARIABLE, IDC_REMOVE_VARIABLE, IDC_VARIABLE_LIST, {IDC_SOURCE, IDC_SOURCE}},
    {IDC_TDC_ADD, IDC_TDC_REMOVE, IDC_TDC_VARIABLES, {IDC_SOURCE, IDC_SOURCE}},
};

}  // namespace kvs
