#include "stats/model_line.h"

#include "stats/stats_texts.h"

namespace kvs::stats {

CommandText modelLine(const Names& dependents, bool constant, const Names& independents,
                      const Names& conditionals) {
    CommandText model(text::kModel);
    joinNames(dependents, model, ' ');
    model.append(text::kEquals);
    if (constant) model.append(text::kConstant);
    if (!conditionals.empty()) {
        joinNames(conditionals, model, '+');
        model.append(text::kConditionalEnd);
    }
    joinNames(independents, model, '+');
    model.stripTrailing('+');
    return model;
}

}  // namespace kvs::stats
