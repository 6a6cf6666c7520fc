// What the shifts to the left and to the right share: an operation for the row drivers from the way
// that lanes are shifted (Lanes), by counts that differ from channel to channel.
//
// Lanes of 8 and 16 bits have no shifts of their own by different counts; they are multiplied by
// powers of two instead. Bytes are taken in lanes of 16 bits, the even and the odd ones apart, with
// products whose wanted half lies where the byte belongs. Only the best targets can do without.
//
// Lanes has
//   set(k, count)                prepares channel k
//   at<kPeriod>(d, phase)        what a vector needs that starts at that channel
//   vector(d, at, v)             the vector form
//   scalar(v, count)             the definition, as in Left and Right
#if defined(KELI_LOGIC_SHIFT_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_LOGIC_SHIFT_INL_H_
#undef KELI_LOGIC_SHIFT_INL_H_
#else
#define KELI_LOGIC_SHIFT_INL_H_
#endif

#include "core/map-inl.h"
#include "logic/shift_rows.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// ---- Definitions

// 2^count, or 0 where all bits leave.
template <class T>
HWY_INLINE T powerOfTwo(std::uint32_t count) {
  return count < 8 * sizeof(T) ? static_cast<T>(T{1} << count) : T{0};
}

template <class Sample>
struct Left {
  using T = Sample;
  static constexpr bool kToLeft = true;
  static HWY_INLINE T scalar(T v, std::uint32_t count) {
    using Bits = hwy::MakeUnsigned<T>;
    return static_cast<T>(static_cast<Bits>(v) * powerOfTwo<Bits>(count));
  }
};

template <class Sample>
struct Right {
  using T = Sample;
  static constexpr bool kToLeft = false;
  static constexpr std::uint32_t kBits = 8 * sizeof(T);
  // In 64 bits a count of the sample's width is an ordinary one.
  static HWY_INLINE T scalar(T v, std::uint32_t count) {
    return static_cast<T>(std::int64_t{v} >> (count < kBits ? count : kBits));
  }
};

// ---- Vectors

// One value for each channel, to be had as a vector that starts at any of them.
template <class T>
struct PerChannel {
  alignas(16) T values[16 / sizeof(T)] = {};

  template <std::size_t kPeriod, class D>
  HWY_INLINE auto at(D, std::size_t phase) const {
    return repeatPixel<kPeriod * sizeof(T)>(
        hn::Repartition<T, D>(), reinterpret_cast<const std::uint8_t*>(values), phase * sizeof(T));
  }
};

// Vectors in lanes of 16 bits, for the even and for the odd bytes.
template <class V>
struct EvenOdd {
  V even;
  V odd;
};

// Bytes where pickBits is one instruction: 8 bits from a place next to the byte, of which those of
// the byte itself stay. A sign that has moved to bit m is extended by (v ^ 2^m) - 2^m.
// Definition: Left or Right.
template <class Definition>
struct PickedBytes : Definition {
  using typename Definition::T;
  PerChannel<std::uint8_t> moves;  // bits to the right
  PerChannel<std::uint8_t> stays;
  PerChannel<std::uint8_t> sign;

  HWY_INLINE void set(std::size_t k, std::uint32_t count) {
    constexpr std::uint32_t kMost = std::is_signed_v<T> ? 7 : 8;
    const int places = static_cast<int>(count < kMost ? count : kMost);
    moves.values[k] = static_cast<std::uint8_t>(Definition::kToLeft ? -places : places);
    stays.values[k] =
        static_cast<std::uint8_t>(Definition::kToLeft ? 0xFF << places : 0xFF >> places);
    sign.values[k] = static_cast<std::uint8_t>(128 >> places);
  }

  template <class D>
  using Unsigned = hn::RebindToUnsigned<D>;
  template <class D>
  struct Vectors {
    hn::Vec<Unsigned<D>> firstBits;
    hn::Vec<Unsigned<D>> stays;
    hn::Vec<Unsigned<D>> sign;
  };
  template <std::size_t kPeriod, class D>
  HWY_INLINE Vectors<D> at(D, std::size_t phase) const {
    const Unsigned<D> du;
    return {hn::ShiftLeft<3>(hn::Iota(du, 0)) + moves.at<kPeriod>(du, phase),
            stays.at<kPeriod>(du, phase), sign.at<kPeriod>(du, phase)};
  }
  template <class D, class V>
  static HWY_INLINE V vector(D d, const Vectors<D>& k, V v) {
    const Unsigned<D> du;
    const auto moved = hn::And(pickBits(du, hn::BitCast(du, v), k.firstBits), k.stays);
    if constexpr (std::is_signed_v<T>) return hn::BitCast(d, hn::Xor(moved, k.sign) - k.sign);
    return hn::BitCast(d, moved);
  }
};

template <class Lanes, std::size_t kChannels>
struct Shift {
  using T = typename Lanes::T;
  static constexpr std::size_t kPeriod = kChannels;
  static constexpr std::size_t kUnroll = kChannels == 3 ? 6 : 4;
  const std::uint32_t* counts;
  Lanes lanes;

  HWY_INLINE explicit Shift(const std::uint32_t* c) : counts(c) {
    for (std::size_t k = 0; k < kChannels; ++k) lanes.set(k, counts[k]);
  }

  template <class D>
  HWY_INLINE auto at(D d, std::size_t phase) const {
    return lanes.template at<kPeriod>(d, phase);
  }
  template <class D, class K, class V>
  HWY_INLINE V vector(D d, const K& k, V v) const {
    return Lanes::vector(d, k, v);
  }
  HWY_INLINE T scalar(std::size_t phase, T v) const { return Lanes::scalar(v, counts[phase]); }
};

template <class Lanes, std::size_t kChannels, class Keep>
void ownShift(const Band<1>& b, const std::uint32_t* counts) {
  using T = typename Lanes::T;
  mapRows<T, T, Keep>(b, Shift<Lanes, kChannels>(counts));
}

// Common: how lanes are shifted by one count for all.
template <class Lanes, class Common>
constexpr logic::ShiftKernels kShiftsWithCommon = {
    ownShift<Common, 1, KeepNone>, ownShift<Lanes, 3, KeepNone>, ownShift<Lanes, 4, KeepNone>,
    ownShift<Lanes, 4, KeepOthers<4, 3>>};

template <class Lanes>
constexpr logic::ShiftKernels kShifts = {ownShift<Lanes, 4, KeepNone>, ownShift<Lanes, 3, KeepNone>,
                                         ownShift<Lanes, 4, KeepNone>,
                                         ownShift<Lanes, 4, KeepOthers<4, 3>>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
