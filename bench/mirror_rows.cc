// Rows of Mirror, about each axis.
#include "tables.h"

namespace keli::bench {
namespace {

std::vector<Row> mirrorRows() {
  std::vector<Row> rows;
  for (const KelAxis axis : {kelAxisHorizontal, kelAxisVertical, kelAxisBoth}) {
    Choices choices;
    choices.axis = axis;
    rows.push_back(
        {"keliMirror_{8u,16u,32s}_{C1R,C3R,C4R,AC4R,C1IR,C3IR,C4IR,AC4IR}", Limit::kMove, choices});
  }
  return rows;
}

const AddFamily kMirror({"mirror", "Mirror", mirrorRows()});

}  // namespace
}  // namespace keli::bench
