// The SIMD targets of this processor that the library is compiled for, each to be used in turn.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"
//
#include <hwy/targets.h>

namespace keli::test {

// Uses the best of the targets up to one of them while it lives; fails the test if another one
// runs.
class UseTarget {
 public:
  explicit UseTarget(std::int64_t target) {
    // A target's bit is lower the better it is.
    EXPECT_EQ(limitTargets(~(target - 1)), target) << hwy::TargetName(target) << " does not run";
  }
  ~UseTarget() { limitTargets(~std::int64_t{0}); }
  UseTarget(const UseTarget&) = delete;
  UseTarget& operator=(const UseTarget&) = delete;
};

// Best first, the scalar one last. Files compiled without AVX-512 run AVX2 where it is chosen.
inline std::vector<std::int64_t> testedTargets() {
  std::vector<std::int64_t> targets;
  const std::int64_t compiled = HWY_TARGETS | HWY_SCALAR;
  for (int bit = 0; bit < 63; ++bit) {
    const std::int64_t target = std::int64_t{1} << bit;
    if ((supportedTargets() & compiled & target) != 0) targets.push_back(target);
  }
  return targets;
}

inline const char* targetName(std::int64_t target) { return hwy::TargetName(target); }

}  // namespace keli::test
