// Rows of the thresholds.
#include "tables.h"

namespace keli::bench {
namespace {

std::vector<Row> thresholdRows() {
  std::vector<Row> rows;
  for (const int op : {kelCmpLess, kelCmpGreater}) {
    Choices choices;
    choices.constant = 60;
    choices.compareOp = op;
    rows.push_back({"keli{Threshold,Threshold_Val}_{8u,16s,32f}_C1R", Limit::kMove, choices});
  }
  Choices choices;
  choices.constant = 60;
  rows.push_back({"keli{Threshold,Threshold_Val}_{8u,16s,32f}_{C3R,AC4R}", Limit::kMove, choices});
  rows.push_back({"keli{Threshold,Threshold_Val}_8u_C1IR", Limit::kMove, choices});
  rows.push_back({"keli{Threshold_LT,Threshold_GT}_8u_C1R", Limit::kMove, choices});
  rows.push_back(
      {"keli{Threshold_LTVal,Threshold_GTVal}_{8u,16s,32f}_{C1R,C4R}", Limit::kMove, choices});
  rows.push_back({"keliThreshold_LTValGTVal_{8u,16s,32f}_{C1R,C3R,AC4R}", Limit::kMove, choices});
  return rows;
}

const AddFamily kThreshold({"threshold", "Thresholds", thresholdRows()});

}  // namespace
}  // namespace keli::bench
