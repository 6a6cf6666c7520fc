// Row kernels of And, Or and Xor: dst = src1 op src2.
#include "logic/bitwise_rows.h"

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "logic/bitwise_rows.cc"
#include <hwy/foreach_target.h>
//
#include "core/pointwise-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

struct Bitwise {
  static constexpr std::size_t kPeriod = 1;
  static constexpr std::size_t kUnroll = 4;
  template <class D>
  HWY_INLINE Nothing at(D, std::size_t) const {
    return {};
  }
};

struct BitAnd : Bitwise {
  template <class D, class V>
  HWY_INLINE V vector(D, Nothing, V a, V b) const {
    return hn::And(a, b);
  }
  template <class T>
  HWY_INLINE T scalar(std::size_t, T a, T b) const {
    return a & b;
  }
};

struct BitOr : Bitwise {
  template <class D, class V>
  HWY_INLINE V vector(D, Nothing, V a, V b) const {
    return hn::Or(a, b);
  }
  template <class T>
  HWY_INLINE T scalar(std::size_t, T a, T b) const {
    return a | b;
  }
};

struct BitXor : Bitwise {
  template <class D, class V>
  HWY_INLINE V vector(D, Nothing, V a, V b) const {
    return hn::Xor(a, b);
  }
  template <class T>
  HWY_INLINE T scalar(std::size_t, T a, T b) const {
    return a ^ b;
  }
};

template <class T, class Op, class Keep>
void ownBitwise(const Band<2>& b) {
  mapTwoImages<T, Keep>(b, Op());
}

template <class Op>
constexpr logic::TwoImages kOf = {ownBitwise<std::uint8_t, Op, KeepNone>,
                                  KELI_BY_SIZE(ownBitwise, Op, KeepOthers<4, 3>)};

constexpr logic::BitwiseRows kBitwiseRows = {kOf<BitAnd>, kOf<BitOr>, kOf<BitXor>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::logic {
KELI_SELECT_ROWS(BitwiseRows, kBitwiseRows, bitwiseRows)
}  // namespace keli::logic
#endif
