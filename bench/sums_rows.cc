// Rows of sums, means, norms and the quality index.
#include "tables.h"

namespace keli::bench {
namespace {

const AddFamily kSums({"sums",
                       "Sums, means, norms",
                       {
                           {"keliSum_{8u,16s,32f}_{C1R,C3R,AC4R}", Limit::kRead},
                           {"keliMean_{8u,16s,32f}_C3R", Limit::kRead},
                           {"keliNorm_{Inf,L1,L2}_{8u,16s,32f}_{C1R,C3R,C4R}", Limit::kRead},
                           {"keliNorm_Inf_32s_C1R", Limit::kRead},
                           {"keliNormDiff_{Inf,L1,L2}_{8u,16s,32f}_{C1R,C3R,C4R}", Limit::kRead},
                           {"keliNormRel_{Inf,L1,L2}_{8u,16s,32f}_{C1R,C3R}", Limit::kRead},
                           {"keliQualityIndex_{8u32f,32f}_{C1R,C3R}", Limit::kRead},
                       }});

}  // namespace
}  // namespace keli::bench
