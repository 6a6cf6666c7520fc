// Rows of the bitwise operations and shifts. Those on two images read twice what they write, and
// are bound by a move all the same.
#include "tables.h"

namespace keli::bench {
namespace {

// Counts 1, 2, 3 and 4 for the channels.
constexpr Choices kShift = {0, 1};

const AddFamily kLogic({"logic",
                        "Bitwise operations and shifts",
                        {
                            {"keli{And,Or,Xor}_8u_C1R", Limit::kMove},
                            {"keliAnd_{8u,16u,32s}_AC4R", Limit::kMove},
                            {"keliAnd_8u_{C3R,C1IR}", Limit::kMove},
                            {"keli{AndC,OrC,XorC,Not}_8u_C1R", Limit::kMove},
                            {"keliAndC_{8u,16u,32s}_{C3R,C4R,AC4R}", Limit::kMove},
                            {"keli{LShiftC,RShiftC}_{8u,16u,32s}_{C1R,C3R,C4R,AC4R}", Limit::kMove,
                             kShift},
                            {"keliRShiftC_{8s,16s}_{C1R,C3R,C4R,AC4R}", Limit::kMove, kShift},
                            {"keli{LShiftC,RShiftC}_8u_C1IR", Limit::kMove, kShift},
                        }});

}  // namespace
}  // namespace keli::bench
