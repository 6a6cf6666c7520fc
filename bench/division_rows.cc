// Rows of division. Divisors are not 0, for which libraries differ.
#include "tables.h"

namespace keli::bench {
namespace {

constexpr Choices kOdd = {0, 17, true};

const AddFamily kDivision({"division",
                           "Division",
                           {
                               {"keliDiv_{8u,16s}_{C1RSfs,C3RSfs}", Limit::kMove, kOdd},
                               {"keliDiv_32f_{C1R,C3R,C4R,AC4R}", Limit::kMove},
                               {"keliDivC_{8u,16s}_{C1RSfs,C3RSfs}", Limit::kMove},
                               {"keliDivC_32f_{C1R,C3R}", Limit::kMove},
                           }});

}  // namespace
}  // namespace keli::bench
