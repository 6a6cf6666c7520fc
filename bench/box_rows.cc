// Rows of the box filter: masks of the usual sizes, and a large one, which should cost hardly more.
#include "tables.h"

namespace keli::bench {
namespace {

constexpr Choices mask(int side) {
  Choices choices;
  choices.mask = {side, side};
  return choices;
}

const AddFamily kBox({"box",
                      "Box filter",
                      {
                          {"keliFilterBox_8u_{C1R,C3R,C4R}", Limit::kMove, mask(3)},
                          {"keliFilterBox_{8u,16s,32f}_{C1R,C3R,C4R,AC4R}", Limit::kMove, mask(5)},
                          {"keliFilterBox_8u_C1R", Limit::kMove, mask(15)},
                          {"keliFilterBox_{8u,16s,32f}_{C1R,C3R,C4R}", Limit::kMove, mask(31)},
                          {"keliFilterBox_{8u,16s,32f}_C1IR", Limit::kMove, mask(5)},
                      }});

}  // namespace
}  // namespace keli::bench
