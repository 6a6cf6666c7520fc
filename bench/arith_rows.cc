// Rows of addition, subtraction and multiplication: scale factors of every kernel.
#include "tables.h"

namespace keli::bench {
namespace {

// The members of one operation at the scale factors that its kernels tell apart.
void addScaled(std::vector<Row>& rows, const char* functions, const std::vector<int>& factors) {
  for (const int scaleFactor : factors) {
    Choices choices;
    choices.scaleFactor = scaleFactor;
    rows.push_back({functions, Limit::kMove, choices});
  }
}

std::vector<Row> arithRows() {
  std::vector<Row> rows;
  addScaled(rows, "keli{Add,Sub,Mul}_8u_C1RSfs", {0, 1, 2, 3, 6, 8, -1});
  addScaled(rows, "keli{Add,Sub,Mul}_16s_C1RSfs", {0, 1, 6, 15, -1});
  addScaled(rows, "keli{Add,Sub,Mul}_{8u,16s}_{C3,AC4}RSfs", {1});
  addScaled(rows, "keli{Add,Sub,Mul}_{8u,16s}_C1IRSfs", {1});
  addScaled(rows, "keli{AddC,SubC,MulC}_{8u,16s}_{C1,C3,C4,AC4}RSfs", {0, 3});
  rows.push_back({"keli{Add,Sub,Mul,AddC,SubC,MulC}_32f_{C1R,C3R,AC4R,C1IR}", Limit::kMove});
  rows.push_back({"keli{MulScale,MulCScale}_{8u,16u}_{C1R,C3R,C4R,AC4R}", Limit::kMove});
  return rows;
}

const AddFamily kArith({"arith", "Addition, subtraction, multiplication", arithRows()});

}  // namespace
}  // namespace keli::bench
