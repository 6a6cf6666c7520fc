// Row kernels of RShiftC of 16u, 16s and 32s: dst = floor(src / 2^count), so that a sign is
// repeated into the vacated bits; 0, or -1 for what is negative, for counts of the sample's width
// and more.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "logic/shift_right_rows.cc"
#include <hwy/foreach_target.h>
//
#include "logic/shift-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// The upper 16 bits of the product with 2^(16 - count). The factor that a lane holds is 2^16 less
// where that does not fit, for which the sample itself is added.
template <class Sample>
struct Right16 : Right<Sample> {
  PerChannel<Sample> factors;
  PerChannel<Sample> tooLow;

  HWY_INLINE void set(std::size_t k, std::uint32_t count) {
    const std::int32_t factor = 1 << (16 - (count < 16 ? count : 16));
    factors.values[k] = static_cast<Sample>(factor);
    tooLow.values[k] = static_cast<Sample>(factors.values[k] == factor ? 0 : -1);
  }

  template <class D>
  struct Vectors {
    hn::Vec<D> factor;
    hn::Vec<D> tooLow;
  };
  template <std::size_t kPeriod, class D>
  HWY_INLINE Vectors<D> at(D d, std::size_t phase) const {
    return {factors.template at<kPeriod>(d, phase), tooLow.template at<kPeriod>(d, phase)};
  }
  template <class D, class V>
  static HWY_INLINE V vector(D, const Vectors<D>& k, V v) {
    const V high = hn::MulHigh(v, k.factor);
    if constexpr (std::is_signed_v<Sample>) return high + hn::And(v, k.tooLow);
    return hn::OrAnd(high, v, k.tooLow);  // one of them is 0
  }
};

// Lanes that have shifts of their own: signed ones of 32 bits, and of 16 on the best targets.
template <class Sample>
struct RightByLane : Right<Sample> {
  PerChannel<Sample> counts;

  HWY_INLINE void set(std::size_t k, std::uint32_t count) {
    constexpr std::uint32_t kMost = Right<Sample>::kBits - 1;
    counts.values[k] = static_cast<Sample>(count < kMost ? count : kMost);
  }
  template <std::size_t kPeriod, class D>
  HWY_INLINE auto at(D d, std::size_t phase) const {
    return counts.template at<kPeriod>(d, phase);
  }
  template <class D, class V>
  static HWY_INLINE V vector(D, V count, V v) {
    return v >> count;
  }
};

using Right16s = std::conditional_t<kShiftsNarrowLanes, RightByLane<Kel16s>, Right16<Kel16s>>;

constexpr logic::ShiftKernels kRight16u = kShifts<Right16<Kel16u>>;
constexpr logic::ShiftKernels kRight16s = kShifts<Right16s>;
constexpr logic::ShiftKernels kRight32s = kShifts<RightByLane<Kel32s>>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::logic {
template <>
KELI_SELECT_ROWS(ShiftKernels, kRight16u, rightShifts<Kel16u>)
template <>
KELI_SELECT_ROWS(ShiftKernels, kRight16s, rightShifts<Kel16s>)
template <>
KELI_SELECT_ROWS(ShiftKernels, kRight32s, rightShifts<Kel32s>)
}  // namespace keli::logic
#endif
