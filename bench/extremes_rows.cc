// Rows of minima, maxima, their places and counts. Layouts share kernels but for C3, and Min and
// Max are each other's mirror images.
#include <algorithm>

#include "tables.h"

namespace keli::bench {
namespace {

// Places of integers end early where every channel meets the bound of its type, as random samples
// do in their first rows: these stop short of it, so that all rows are read.
Work withoutBounds(const Frame& f) {
  const Image& image = f.source();
  if (image.type() != registry::Type::k32f) {
    const Block b = image.block();
    for (std::size_t y = 0; y < b.rows; ++y) {
      std::uint8_t* const row = b.data + y * b.step;
      for (std::size_t i = 0; i < b.rowBytes; ++i) row[i] = std::clamp<int>(row[i], 1, 254);
    }
  }
  return [&f] { f.call(); };
}

const AddFamily kExtremes({"extremes",
                           "Minima, maxima, their places, and counts of samples in a range",
                           {
                               {"keli{Min,Max,MinMax}_{8u,16s,32f}_{C1R,C3R,AC4R}", Limit::kRead},
                               {"keli{MinIndx,MaxIndx}_{8u,16s,32f}_{C1R,C3R,AC4R,C4R}",
                                Limit::kRead,
                                {},
                                {},
                                withoutBounds},
                               {"keliCountInRange_{8u,32f}_{C1R,C3R,AC4R}", Limit::kRead},
                           }});

}  // namespace
}  // namespace keli::bench
