// Row kernels of Convert from 32f to integers: clamped to the range of the integers, a NaN to its
// upper end, and rounded to nearest even or toward zero, whatever the caller's rounding mode.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "convert/round_rows.cc"
#include <hwy/foreach_target.h>
//
#include "convert/kernels-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class TD, bool kNearest>
struct Rounded : NarrowingOp {
  static constexpr Kel32f kLeast = std::numeric_limits<TD>::min();
  static constexpr Kel32f kMost = std::numeric_limits<TD>::max();

  // Only the upper bound needs care: what lies below the range, down to -2^31 that stands for all
  // beyond, saturates in the packs, and as bounds are integers it does not matter that it is
  // rounded before.
  template <class D>
  HWY_INLINE hn::Vec<D> vector(D d, Nothing, const Kel32f* src) const {
    return narrowed(d, src, [](auto df, auto v) KELI_LAMBDA {
      const hn::RebindToSigned<decltype(df)> di;
      const auto bounded = lessElse(v, hn::Set(df, kMost));
      if constexpr (kNearest) {
        return roundToInt(di, bounded);
      } else {
        return truncateToInt(di, bounded);
      }
    });
  }
  HWY_INLINE TD scalar(std::size_t, Kel32f v) const {
    v = v < kMost ? v : kMost;
    v = v > kLeast ? v : kLeast;
    return static_cast<TD>(kNearest ? nearestInteger(v) : static_cast<Kel32s>(v));
  }
};

template <class TD>
constexpr convert::RoundedRows kRounded = {kKernels<Rounded<TD, true>, Kel32f, TD>,
                                           kKernels<Rounded<TD, false>, Kel32f, TD>};

constexpr auto kRounded8u = kRounded<Kel8u>;
constexpr auto kRounded8s = kRounded<Kel8s>;
constexpr auto kRounded16u = kRounded<Kel16u>;
constexpr auto kRounded16s = kRounded<Kel16s>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::convert {
template <>
KELI_SELECT_ROWS(RoundedRows, kRounded8u, roundedRows<Kel8u>)
template <>
KELI_SELECT_ROWS(RoundedRows, kRounded8s, roundedRows<Kel8s>)
template <>
KELI_SELECT_ROWS(RoundedRows, kRounded16u, roundedRows<Kel16u>)
template <>
KELI_SELECT_ROWS(RoundedRows, kRounded16s, roundedRows<Kel16s>)
}  // namespace keli::convert
#endif
