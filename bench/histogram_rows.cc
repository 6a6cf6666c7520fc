// Rows of the histograms: of noise, which meets all counters, of smooth images, whose neighbours
// meet the same ones, and of flat ones.
#include "tables.h"

namespace keli::bench {
namespace {

Choices choose(int levels, Content content) {
  Choices c;
  c.levels = levels;
  c.content = content;
  return c;
}

const Choices kBytes = choose(257, Content::kNoise);
const Choices kBytesOfPhotograph = choose(257, Content::kPhotograph);
const Choices kBytesFlat = choose(257, Content::kFlat);
const Choices kUneven = choose(256, Content::kNoise);  // no multiples of a power of two
const Choices kFew = choose(32, Content::kNoise);
const Choices kMany = choose(1025, Content::kNoise);

const AddFamily kHistogram(
    {"histogram",
     "Histograms",
     {
         {"keliHistogramEven_8u_C1R", Limit::kRead, kBytes},
         {"keliHistogramEven_8u_C1R", Limit::kRead, kBytesOfPhotograph},
         {"keliHistogramEven_8u_C1R", Limit::kRead, kBytesFlat},
         {"keliHistogramRange_8u_{C3R,C4R,AC4R}", Limit::kRead, kBytesOfPhotograph},
         {"keliHistogramEven_16s_C1R", Limit::kRead, kBytes},
         {"keliHistogramEven_16s_C1R", Limit::kRead, kBytesOfPhotograph},
         {"keliHistogramRange_16s_{C1R,C3R,C4R,AC4R}", Limit::kRead, kUneven},
         {"keliHistogramRange_32f_{C1R,C3R,C4R,AC4R}", Limit::kRead, kFew},
         {"keliHistogramRange_32f_C1R", Limit::kRead, kMany},
     }});

}  // namespace
}  // namespace keli::bench
