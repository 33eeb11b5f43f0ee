// The MODEL line of the dialogs whose model is two lists of variables, the
// right one optional.
#include "stats/model_line.h"
#include "stats/analysis_composers.h"
#include "stats/stats_texts.h"

namespace kvs::stats {

CommandText variablesModel(const Names& left, const Names& right) {
    if (!right.empty()) return modelLine(left, false, right);
    CommandText model(text::kModel);
    joinNames(left, model, ' ');
    return model;
}

}  // namespace kvs::stats
