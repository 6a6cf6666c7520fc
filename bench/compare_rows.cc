// Rows of the comparisons. Masks are smaller than what they are made from, all but those of bytes:
// these are bound by reading them and writing less.
#include "tables.h"

namespace keli::bench {
namespace {

std::vector<Row> compareRows() {
  std::vector<Row> rows;
  Choices choices;
  choices.constant = 60;
  for (const int op : {kelCmpLess, kelCmpLessEq, kelCmpEq}) {
    choices.compareOp = op;
    rows.push_back({"keli{Compare,CompareC}_8u_C1R", Limit::kMove, choices});
    rows.push_back({"keli{Compare,CompareC}_{16s,32f}_C1R", Limit::kFold, choices});
  }
  choices.compareOp = kelCmpGreater;
  rows.push_back({"keliCompareC_8u_C1R", Limit::kMove, choices});
  rows.push_back({"keliCompareC_{16s,32f}_C1R", Limit::kFold, choices});
  choices.compareOp = kelCmpLessEq;
  rows.push_back({"keli{Compare,CompareC}_{8u,16s,32f}_{C3R,C4R,AC4R}", Limit::kFold, choices});
  rows.push_back(
      {"keli{CompareEqualEps,CompareEqualEpsC}_32f_{C1R,C3R,C4R,AC4R}", Limit::kFold, choices});
  return rows;
}

const AddFamily kCompare({"compare", "Comparisons", compareRows()});

}  // namespace
}  // namespace keli::bench
