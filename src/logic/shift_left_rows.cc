// Row kernels of LShiftC: dst = src << count without the bits that leave the sample, 0 for counts
// of its width and more.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "logic/shift_left_rows.cc"
#include <hwy/foreach_target.h>
//
#include "logic/shift-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

struct Left8 : Left<std::uint8_t> {
  PerChannel<std::uint8_t> factors;

  HWY_INLINE void set(std::size_t k, std::uint32_t count) {
    factors.values[k] = powerOfTwo<std::uint8_t>(count);
  }
  template <std::size_t kPeriod, class D>
  HWY_INLINE auto at(D d, std::size_t phase) const {
    const hn::Repartition<std::uint16_t, D> d16;
    const auto both = hn::BitCast(d16, factors.at<kPeriod>(d, phase));
    return EvenOdd<hn::Vec<decltype(d16)>>{hn::And(both, hn::Set(d16, 0xFF)),
                                           hn::ShiftRight<8>(both)};
  }
  template <class D, class K, class V>
  static HWY_INLINE V vector(D d, const K& k, V v) {
    const hn::Repartition<std::uint16_t, D> d16;
    const auto both = hn::BitCast(d16, v);
    const auto even = both * k.even;
    const auto odd = hn::And(both, hn::Set(d16, 0xFF00)) * k.odd;
    return hn::OddEven(hn::BitCast(d, odd), hn::BitCast(d, even));
  }
};

// What stays is taken out first; then no byte leaves its place.
struct LeftCommon8 : Left<std::uint8_t> {
  std::uint32_t count;

  HWY_INLINE void set(std::size_t, std::uint32_t c) { count = c < 8 ? c : 8; }

  template <class D>
  struct Vectors {
    hn::Vec<D> stays;
    hn::Vec<hn::Repartition<std::uint16_t, D>> factor;
  };
  template <std::size_t, class D>
  HWY_INLINE Vectors<D> at(D d, std::size_t) const {
    const hn::Repartition<std::uint16_t, D> d16;
    return {hn::Set(d, static_cast<std::uint8_t>(0xFF >> count)),
            hn::Set(d16, powerOfTwo<std::uint16_t>(count))};
  }
  template <class D, class V>
  static HWY_INLINE V vector(D d, const Vectors<D>& k, V v) {
    const hn::Repartition<std::uint16_t, D> d16;
    return hn::BitCast(d, hn::BitCast(d16, hn::And(v, k.stays)) * k.factor);
  }
};

struct Left16 : Left<std::uint16_t> {
  PerChannel<std::uint16_t> factors;

  HWY_INLINE void set(std::size_t k, std::uint32_t count) {
    factors.values[k] = powerOfTwo<std::uint16_t>(count);
  }
  template <std::size_t kPeriod, class D>
  HWY_INLINE auto at(D d, std::size_t phase) const {
    return factors.at<kPeriod>(d, phase);
  }
  template <class D, class V>
  static HWY_INLINE V vector(D, V factor, V v) {
    return v * factor;
  }
};

struct Left32 : Left<std::int32_t> {
  PerChannel<std::int32_t> counts;
  PerChannel<std::int32_t> stays;

  HWY_INLINE void set(std::size_t k, std::uint32_t count) {
    counts.values[k] = static_cast<std::int32_t>(count % 32);
    stays.values[k] = count < 32 ? -1 : 0;
  }

  template <class D>
  struct Vectors {
    hn::Vec<D> counts;
    hn::Vec<D> stays;
  };
  template <std::size_t kPeriod, class D>
  HWY_INLINE Vectors<D> at(D d, std::size_t phase) const {
    return {counts.at<kPeriod>(d, phase), stays.at<kPeriod>(d, phase)};
  }
  template <class D, class V>
  static HWY_INLINE V vector(D, const Vectors<D>& k, V v) {
    return hn::And(v << k.counts, k.stays);
  }
};

using LeftBytes = std::conditional_t<kShiftsNarrowLanes, PickedBytes<Left<Kel8u>>, Left8>;

constexpr logic::ShiftKernels kLeft8 = kShiftsWithCommon<LeftBytes, LeftCommon8>;
constexpr logic::ShiftKernels kLeft16 = kShifts<Left16>;
constexpr logic::ShiftKernels kLeft32 = kShifts<Left32>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::logic {
template <>
KELI_SELECT_ROWS(ShiftKernels, kLeft8, leftShifts<Kel8u>)
template <>
KELI_SELECT_ROWS(ShiftKernels, kLeft16, leftShifts<Kel16u>)
template <>
KELI_SELECT_ROWS(ShiftKernels, kLeft32, leftShifts<Kel32s>)
}  // namespace keli::logic
#endif
