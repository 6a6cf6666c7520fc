// Rows of copy, set and channel exchange.
//
// Functions that write a part of every pixel, or of the pixels, keep the rest: what bounds them is
// moving all of the destination's bytes, not filling them.
#include "tables.h"

namespace keli::bench {
namespace {

// The cost of a call as such: no reflection, next to no pixels, rows apart.
Work smallCopy(const Frame& f) {
  return [s = &f.source(), d = &f.destination()] {
    keliCopy_8u_C1R(s->data(), s->step(), d->data(), d->step(), {s->width(), s->height()});
  };
}

const AddFamily kOverhead({"overhead",
                           "Cost of a call",
                           {{"keliCopy_8u_C1R", Limit::kMove, {}, {{16, 16, 48}}, smallCopy}}});

const AddFamily kData({"data",
                       "Copy, set and channel exchange",
                       {
                           {"keliCopy_{8u,16s,32f}_{C1R,C3R,C4R,AC4R}", Limit::kMove},
                           {"keliCopy_{8u,16s,32f}_{C1MR,C3MR,C4MR,AC4MR}", Limit::kMove},
                           {"keliCopy_{8u,16s,32f}_{C3C1R,C4C1R,C1C3R,C1C4R}", Limit::kMove},
                           {"keliCopy_{8u,16s,32f}_{C3CR,C4CR,AC4C3R,C3AC4R}", Limit::kMove},
                           {"keliCopy_{8u,16s,32f}_{C3P3R,C4P4R,P3C3R,P4C4R}", Limit::kMove},
                           {"keliSet_{8u,16s,32f}_{C1R,C3R,C4R}", Limit::kFill},
                           {"keliSet_{8u,16s,32f}_{AC4R,C3CR,C4CR}", Limit::kMove},
                           {"keliSet_{8u,16s,32f}_{C1MR,C3MR,C4MR,AC4MR}", Limit::kMove},
                           {"keliSwapChannels_{8u,16u,32s,32f}_{C3R,AC4R}", Limit::kMove},
                           {"keliSwapChannels_8u_C3IR", Limit::kMove},
                       }});

}  // namespace
}  // namespace keli::bench
