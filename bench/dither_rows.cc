// Rows of bit-depth reduction. The limit moves the same bytes; error diffusion, where each pixel
// waits for the one before it, is far from it by nature.
#include "tables.h"

namespace keli::bench {
namespace {

Choices choose(int dither, int grayLevels, int noise = 0) {
  Choices c;
  c.dither = dither;
  c.grayLevels = grayLevels;
  c.noise = noise;
  return c;
}

const AddFamily kDither(
    {"dither",
     "Bit-depth reduction",
     {
         {"keliReduceBits_{8u,16u,16s,16u8u,16s8u,32f8u,32f16u,32f16s}_{C1R,C3R,C4R,AC4R}",
          Limit::kMove, choose(kelDitherBayer, 8)},
         {"keliReduceBits_{8u,16u,16u8u,32f8u}_{C1R,C3R,C4R}", Limit::kMove,
          choose(kelDitherFloydSteinberg, 8)},
         {"keliReduceBits_8u_{C1R,C3R}", Limit::kMove, choose(kelDitherJarvisJudiceNinke, 8)},
         {"keliReduceBits_8u_{C1R,C3R}", Limit::kMove, choose(kelDitherStucki, 8)},
         {"keliReduceBits_8u_C1R", Limit::kMove, choose(kelDitherBayer, 8, 20)},
         {"keliReduceBits_8u_C1R", Limit::kMove, choose(kelDitherFloydSteinberg, 8, 20)},
     }});

}  // namespace
}  // namespace keli::bench
