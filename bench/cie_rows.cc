// Rows of CIE XYZ and LUV.
#include "tables.h"

namespace keli::bench {
namespace {

// Floats of [0, 1], of XYZ whose RGB is less than 1, and of LUV with both parts of L; one colour in
// LUV of bytes, as OpenCV's black is another.
std::vector<Row> cieRows() {
  Choices unit, dim, luv, color;
  unit.most = 1;
  dim.most = 0.3;
  luv.most = 100;
  luv.content = Content::kPhotograph;
  color.content = Content::kFlat;
  return {
      {"keliRGBToXYZ_{8u,16u,16s,32f}_{C3R,AC4R}", Limit::kMove, unit},
      {"keliXYZToRGB_{8u,16u,16s,32f}_{C3R,AC4R}", Limit::kMove, dim},
      {"keliRGBToLUV_{8u,16u,16s,32f}_{C3R,AC4R}", Limit::kMove, unit},
      {"keliLUVToRGB_8u_{C3R,AC4R}", Limit::kMove, color},
      {"keliLUVToRGB_{16u,16s,32f}_{C3R,AC4R}", Limit::kMove, luv},
  };
}

const AddFamily kCie({"cie", "CIE XYZ and LUV", cieRows()});

}  // namespace
}  // namespace keli::bench
