// Detection of the processor's SIMD targets.
//
// The requirements of a target are those of the instruction sets that its code is compiled with
// (see HWY_TARGET_STR in hwy/ops/set_macros-inl.h). Detecting them here keeps the library free of a
// run-time dependence on libhwy.
#include "core/target.h"

#include "core/simd_config.h"
//
#include <hwy/targets.h>

#if HWY_ARCH_X86
#include <cpuid.h>
#endif

namespace keli {
namespace {

constexpr int kFallback = HWY_MAX_DYNAMIC_TARGETS;

#if HWY_ARCH_X86
// Two instruction sets that not every compiler's __builtin_cpu_supports knows by name.
bool hasF16cAndLzcnt() {
  unsigned a, b, c, d;
  if (__get_cpuid(1, &a, &b, &c, &d) == 0 || (c & bit_F16C) == 0) return false;
  return __get_cpuid(0x80000001u, &a, &b, &c, &d) != 0 && (c & bit_LZCNT) != 0;
}

std::int64_t detect() {
  __builtin_cpu_init();
  std::int64_t bits = HWY_SCALAR;
  if (!__builtin_cpu_supports("sse4.2") || !__builtin_cpu_supports("pclmul") ||
      !__builtin_cpu_supports("aes")) {
    return bits;
  }
  bits |= HWY_SSE4;
  if (!__builtin_cpu_supports("avx2") || !__builtin_cpu_supports("fma") ||
      !__builtin_cpu_supports("bmi") || !__builtin_cpu_supports("bmi2") || !hasF16cAndLzcnt()) {
    return bits;
  }
  bits |= HWY_AVX2;
  if (!__builtin_cpu_supports("avx512f") || !__builtin_cpu_supports("avx512vl") ||
      !__builtin_cpu_supports("avx512dq") || !__builtin_cpu_supports("avx512bw")) {
    return bits;
  }
  bits |= HWY_AVX3;
  if (!__builtin_cpu_supports("avx512vnni") || !__builtin_cpu_supports("vpclmulqdq") ||
      !__builtin_cpu_supports("avx512vbmi") || !__builtin_cpu_supports("avx512vbmi2") ||
      !__builtin_cpu_supports("avx512vpopcntdq") || !__builtin_cpu_supports("avx512bitalg") ||
      !__builtin_cpu_supports("gfni")) {
    return bits;
  }
  return bits | HWY_AVX3_DL;
}
#else
// The targets compiled elsewhere are those of the baseline.
std::int64_t detect() { return HWY_SCALAR | HWY_STATIC_TARGET; }
#endif

// Position of a target in the tables: the lower a target's bit, the better it is.
int positionOf(std::int64_t bits) {
  constexpr int kFirstBit = HWY_HIGHEST_TARGET_BIT + 1 - HWY_MAX_DYNAMIC_TARGETS;
  for (int i = 0; i < HWY_MAX_DYNAMIC_TARGETS; ++i) {
    if ((bits >> (kFirstBit + i)) & 1) return i;
  }
  return kFallback;
}

}  // namespace

std::atomic<int> gTarget{-1};

std::int64_t supportedTargets() {
  static const std::int64_t bits = detect();
  return bits;
}

int chooseTarget() {
  const int position = positionOf(supportedTargets() & ~std::int64_t{HWY_SCALAR});
  gTarget.store(position, std::memory_order_relaxed);
  return position;
}

std::int64_t limitTargets(std::int64_t mask) {
  const std::int64_t usable = supportedTargets() & mask & ~std::int64_t{HWY_SCALAR};
  gTarget.store(positionOf(usable), std::memory_order_relaxed);
  return usable != 0 ? usable & -usable : std::int64_t{HWY_SCALAR};
}

}  // namespace keli
