// Row kernels of RShiftC of 8u and 8s: dst = floor(src / 2^count), so that a sign is repeated into
// the vacated bits; 0, or -1 for what is negative, for counts of the sample's width and more.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "logic/shift_right_bytes_rows.cc"
#include <hwy/foreach_target.h>
//
#include "core/scale-inl.h"
#include "logic/shift-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// The products with 2^(8 - count) of a byte in the upper half of 16 bits, of which the upper 16
// bits begin with the result, and of a byte in the lower half, whose upper half is the result.
template <class Sample>
struct Right8 : Right<Sample> {
  using Pair = std::conditional_t<std::is_signed_v<Sample>, std::int16_t, std::uint16_t>;
  PerChannel<Sample> lower;  // halves of the factors
  PerChannel<Sample> upper;

  HWY_INLINE void set(std::size_t k, std::uint32_t count) {
    const int factor = 1 << (8 - (count < 8 ? count : 8));
    lower.values[k] = static_cast<Sample>(factor & 0xFF);
    upper.values[k] = static_cast<Sample>(factor >> 8);
  }
  template <std::size_t kPeriod, class D>
  HWY_INLINE auto at(D d, std::size_t phase) const {
    const hn::Repartition<std::uint16_t, D> du;
    const hn::Repartition<Pair, D> d16;
    const auto low = lower.template at<kPeriod>(d, phase);
    const auto high = upper.template at<kPeriod>(d, phase);
    const auto highOfEven = hn::BitCast(d, hn::ShiftLeft<8>(hn::BitCast(du, high)));
    const auto lowOfOdd = hn::BitCast(d, hn::ShiftRight<8>(hn::BitCast(du, low)));
    return EvenOdd<hn::Vec<decltype(d16)>>{hn::BitCast(d16, hn::OddEven(highOfEven, low)),
                                           hn::BitCast(d16, hn::OddEven(high, lowOfOdd))};
  }
  template <class D, class K, class V>
  static HWY_INLINE V vector(D d, const K& k, V v) {
    const auto both = hn::BitCast(hn::Repartition<Pair, D>(), v);
    const auto even = hn::MulHigh(hn::ShiftLeft<8>(both), k.even);
    const auto odd = hn::ShiftRight<8>(both) * k.odd;
    return hn::OddEven(hn::BitCast(d, odd), hn::BitCast(d, even));
  }
};

// By 1 and more. A sign that has moved to bit m is extended by (v ^ 2^m) - 2^m.
template <class Sample>
struct RightCommon8 : Right<Sample> {
  int count;

  HWY_INLINE void set(std::size_t, std::uint32_t c) { count = static_cast<int>(c < 8 ? c : 8); }

  template <class D>
  using Unsigned = hn::RebindToUnsigned<D>;
  template <class D>
  struct Vectors {
    ShiftRightBy<Unsigned<D>> shift;
    hn::Vec<Unsigned<D>> sign;
  };
  template <std::size_t, class D>
  HWY_INLINE Vectors<D> at(D, std::size_t) const {
    const int places = std::is_signed_v<Sample> && count > 7 ? 7 : count;
    const Unsigned<D> du;
    return {ShiftRightBy<Unsigned<D>>::make(du, places),
            hn::Set(du, static_cast<std::uint8_t>(128 >> places))};
  }
  template <class D, class V>
  static HWY_INLINE V vector(D d, const Vectors<D>& k, V v) {
    const auto moved = k.shift(hn::BitCast(Unsigned<D>(), v));
    if constexpr (std::is_signed_v<Sample>) return hn::BitCast(d, hn::Xor(moved, k.sign) - k.sign);
    return hn::BitCast(d, moved);
  }
};

template <class T>
using RightBytes = std::conditional_t<kShiftsNarrowLanes, PickedBytes<Right<T>>, Right8<T>>;

constexpr logic::ShiftKernels kRight8u = kShiftsWithCommon<RightBytes<Kel8u>, RightCommon8<Kel8u>>;
constexpr logic::ShiftKernels kRight8s = kShiftsWithCommon<RightBytes<Kel8s>, RightCommon8<Kel8s>>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::logic {
template <>
KELI_SELECT_ROWS(ShiftKernels, kRight8u, rightShifts<Kel8u>)
template <>
KELI_SELECT_ROWS(ShiftKernels, kRight8s, rightShifts<Kel8s>)
}  // namespace keli::logic
#endif
