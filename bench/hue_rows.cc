// Rows of hue and saturation.
#include "tables.h"

namespace keli::bench {
namespace {

// Floats in [0, 1), where colors are.
constexpr Choices unit() {
  Choices choices;
  choices.most = 1;
  return choices;
}

const AddFamily kHue({"hue",
                      "Hue and saturation",
                      {
                          {"keliRGBToHSV_{8u,16u}_{C3R,AC4R}", Limit::kMove},
                          {"keliHSVToRGB_{8u,16u}_{C3R,AC4R}", Limit::kMove},
                          {"keliRGBToHLS_{8u,16u,16s}_{C3R,AC4R}", Limit::kMove},
                          {"keliRGBToHLS_32f_{C3R,AC4R}", Limit::kMove, unit()},
                          {"keliHLSToRGB_{8u,16u,16s}_{C3R,AC4R}", Limit::kMove},
                          {"keliHLSToRGB_32f_{C3R,AC4R}", Limit::kMove, unit()},
                          {"keliBGRToHLS_8u_{AC4R,AC4P4R,AP4C4R,AP4R,C3P3R,P3C3R,P3R}",
                           Limit::kMove},
                          {"keliHLSToBGR_8u_{AC4P4R,AP4C4R,AP4R,C3P3R,P3C3R,P3R}", Limit::kMove},
                      }});

}  // namespace
}  // namespace keli::bench
