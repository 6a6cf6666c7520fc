// Rows of CIE XYZ and LUV.
#include "tables.h"

namespace keli::bench {
namespace {

const AddFamily kCie({"cie",
                      "CIE XYZ and LUV",
                      {
                          {"keli{RGBToXYZ,XYZToRGB}_{8u,16u,16s,32f}_{C3R,AC4R}", Limit::kMove},
                          {"keli{RGBToLUV,LUVToRGB}_{8u,16u,16s,32f}_{C3R,AC4R}", Limit::kMove},
                      }});

}  // namespace
}  // namespace keli::bench
