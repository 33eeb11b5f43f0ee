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
DialogBehaviour& traxSelectBehaviour();
DialogBehaviour& anovaBehaviour();
DialogBehaviour& glmBehaviour();
DialogBehaviour& regressionBehaviour();
DialogBehaviour& discriminantBehaviour();
DialogBehaviour& arimaBehaviour();
DialogBehaviour& expoBehaviour();
DialogBehaviour& fourierBehaviour();
DialogBehaviour& lowessBehaviour();
DialogBehaviour& seasonalBehaviour();
DialogBehaviour& smoothBehaviour();
DialogBehaviour& tplotBehaviour();
DialogBehaviour& acfBehaviour();
DialogBehaviour& pacfBehaviour();
DialogBehaviour& ccfBehaviour();
DialogBehaviour& timeBehaviour();
DialogBehaviour& transformBehaviour();
DialogBehaviour& shewhartBehaviour();
DialogBehaviour& operatingCurveBehaviour();
DialogBehaviour& averageRunLengthBehaviour();
DialogBehaviour& paretoBehaviour();
DialogBehaviour& boxChartBehaviour();
DialogBehaviour& movingAverageBehaviour();
DialogBehaviour& ewmaBehaviour();
DialogBehaviour& regressionChartBehaviour();
DialogBehaviour& cusumBehaviour();
DialogBehaviour& tsqBehaviour();
DialogBehaviour& pcaBehaviour();
DialogBehaviour& probitBehaviour();
DialogBehaviour& tslsBehaviour();
DialogBehaviour& glmPairwiseBehaviour();
DialogBehaviour& glmHypothesisBehaviour();
DialogBehaviour& anovaHypothesisBehaviour();
DialogBehaviour& nonlinBehaviour();
DialogBehaviour& lossBehaviour();
DialogBehaviour& survivalBehaviour();
DialogBehaviour& friedmanBehaviour();
DialogBehaviour& twoSampleKsBehaviour();
DialogBehaviour& kruskalWallisBehaviour();
DialogBehaviour& signTestBehaviour();
DialogBehaviour& runsTestBehaviour();
DialogBehaviour& wilcoxonBehaviour();
DialogBehaviour& oneSampleKsBehaviour();
DialogBehaviour& oneWayTablesBehaviour();
DialogBehaviour& twoWayTablesBehaviour();
DialogBehaviour& multiwayTablesBehaviour();
DialogBehaviour& loglinBehaviour();
DialogBehaviour& loglinTabulateBehaviour();
DialogBehaviour& designBehaviour();

}  // namespace kvs::stats
