// Rows of the functions of one operand. The layouts of a function share their kernels but for AC4,
// so each stands for another way of scaling.
#include "tables.h"

namespace keli::bench {
namespace {

// Images of exponents that neither overflow nor underflow.
constexpr Choices kExponents = {0, 17, false, 16};

const AddFamily kMath({"math",
                       "Absolute value, square, square root, logarithm, exponential",
                       {
                           {"keliAbs_{16s,32f}_{C1R,AC4R}", Limit::kMove},
                           {"keliSqr_{8u,16u,16s}_C1RSfs", Limit::kMove},
                           {"keliSqr_{8u,16u,16s}_C3RSfs", Limit::kMove, {1}},
                           {"keliSqr_{8u,16u,16s}_{C4RSfs,AC4RSfs}", Limit::kMove, {8}},
                           {"keliSqr_{8u,16u,16s}_C1IRSfs", Limit::kMove, {-3}},
                           {"keliSqr_32f_{C1R,AC4R}", Limit::kMove},
                           {"keliSqrt_{8u,16u,16s}_{C1RSfs,AC4RSfs}", Limit::kMove},
                           {"keliSqrt_{16u,16s}_C3RSfs", Limit::kMove, {-5}},
                           {"keliSqrt_32f_{C1R,AC4R}", Limit::kMove},
                           {"keliLn_{8u,16s}_C1RSfs", Limit::kMove, {-1}},
                           {"keliLn_16s_C3RSfs", Limit::kMove, {-5}},
                           {"keliLn_32f_C1R", Limit::kMove},
                           {"keliExp_{8u,16s}_C1RSfs", Limit::kMove},
                           {"keliExp_16s_C3RSfs", Limit::kMove, {100}},
                           {"keliExp_32f_C1R", Limit::kMove, kExponents},
                       }});

}  // namespace
}  // namespace keli::bench
