// Rows of complex arithmetic. Integer products and quotients are scaled to the range of their
// parts.
#include "tables.h"

namespace keli::bench {
namespace {

constexpr Choices kProducts16 = {15};
constexpr Choices kProducts32 = {31};
constexpr Choices kQuotients16 = {-13};
constexpr Choices kQuotients32 = {-29};

const AddFamily kComplex({"complex",
                          "Complex arithmetic",
                          {
                              {"keli{Add,Sub}_{16sc,32sc}_{C1RSfs,AC4RSfs}", Limit::kMove},
                              {"keli{Add,Sub}_32fc_{C1R,AC4R}", Limit::kMove},
                              {"keliMul_16sc_{C1RSfs,AC4RSfs}", Limit::kMove, kProducts16},
                              {"keliMul_32sc_{C1RSfs,AC4RSfs}", Limit::kMove, kProducts32},
                              {"keliMul_32fc_{C1R,AC4R}", Limit::kMove},
                              {"keliDiv_16sc_{C1RSfs,AC4RSfs}", Limit::kMove, kQuotients16},
                              {"keliDiv_32sc_{C1RSfs,AC4RSfs}", Limit::kMove, kQuotients32},
                              {"keliDiv_32fc_{C1R,AC4R}", Limit::kMove},
                              {"keli{AddC,SubC}_{16sc,32sc}_{C1RSfs,C3RSfs}", Limit::kMove},
                              {"keli{AddC,SubC}_32fc_{C1R,C3R}", Limit::kMove},
                              {"keliMulC_{16sc,32sc}_{C1RSfs,C3RSfs,AC4RSfs}", Limit::kMove},
                              {"keliMulC_32fc_{C1R,C3R,AC4R}", Limit::kMove},
                              {"keliDivC_{16sc,32sc}_{C1RSfs,C3RSfs}", Limit::kMove},
                              {"keliDivC_32fc_{C1R,C3R}", Limit::kMove},
                          }});

}  // namespace
}  // namespace keli::bench
