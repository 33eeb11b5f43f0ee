// The behaviours of the statistics dialogs, for the family's rows.
#pragma once

#include "core/dialog_behaviour.h"

namespace kvs::stats {

DialogBehaviour& twoSampleTtestBehaviour();
DialogBehaviour& pairedTtestBehaviour();
DialogBehaviour& oneSampleTtestBehaviour();
DialogBehaviour& logitBehaviour();
DialogBehaviour& logitHypothesisBehaviour();
DialogBehaviour& logitDecilesBehaviour();
DialogBehaviour& logitQuantilesBehaviour();
DialogBehaviour& logitSimulationBehaviour();
DialogBehaviour& anovaBehaviour();
DialogBehaviour& glmBehaviour();
DialogBehaviour& regressionBehaviour();
DialogBehaviour& discriminantBehaviour();

}  // namespace kvs::stats
