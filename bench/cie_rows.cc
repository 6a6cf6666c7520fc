// Rows of CIE XYZ and LUV.
#include "tables.h"

namespace keli::bench {
namespace {

// Floats of [0, 1], of XYZ whose RGB is less than 1, and of LUV with both parts of L.
std::vector<Row> cieRows() {
  Choices unit, dim, luv;
  unit.most = 1;
  dim.most = 0.3;
  luv.most = 100;
  luv.content = Content::kPhotograph;
  return {
      {"keliRGBToXYZ_{8u,16u,16s,32f}_{C3R,AC4R}", Limit::kMove, unit},
      {"keliXYZToRGB_{8u,16u,16s,32f}_{C3R,AC4R}", Limit::kMove, dim},
      {"keliRGBToLUV_{8u,16u,16s,32f}_{C3R,AC4R}", Limit::kMove, unit},
      {"keliLUVToRGB_{8u,16u,16s,32f}_{C3R,AC4R}", Limit::kMove, luv},
  };
}

const AddFamily kCie({"cie", "CIE XYZ and LUV", cieRows()});

}  // namespace
}  // namespace keli::bench
