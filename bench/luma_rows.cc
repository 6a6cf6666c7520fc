// Rows of luma, chroma and gray.
#include "tables.h"

namespace keli::bench {
namespace {

// Weights of 0.16, 0.32 and 0.48.
Choices weights() {
  Choices choices;
  choices.constant = 0.16;
  return choices;
}

const AddFamily kLuma({"luma",
                       "Luma, chroma and gray",
                       {
                           {"keliRGBToYCC_{8u,16u,16s,32f}_{C3R,AC4R}", Limit::kMove},
                           {"keliYCCToRGB_{8u,16u,16s,32f}_{C3R,AC4R}", Limit::kMove},
                           {"keliRGBToYCbCr_8u_{C3R,AC4R,P3R}", Limit::kMove},
                           {"keliYCbCrToRGB_8u_{C3R,AC4R,P3R,P3C3R}", Limit::kMove},
                           {"keliRGBToYUV_8u_{C3R,AC4R,P3R,C3P3R}", Limit::kMove},
                           {"keliYUVToRGB_8u_{C3R,AC4R,P3R,P3C3R}", Limit::kMove},
                           {"keliRGBToGray_{8u,16u,16s,32f}_{C3C1R,AC4C1R}", Limit::kFold},
                           {"keliColorToGray_{8u,16u,16s,32f}_{C3C1R,AC4C1R}", Limit::kFold,
                            weights()},
                       }});

}  // namespace
}  // namespace keli::bench
