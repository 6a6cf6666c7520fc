// The scale factor rule (core/scale.h) in vectors: v * 2^-scaleFactor, ties to even, saturated.
//
// Halves: with q = v >> sf, the rule is (v + 2^(sf-1) - 1 + (q & 1)) >> sf. In unsigned lanes that
// the sum would leave, the rounding average of the vector units, (x + y + 1) >> 1 without overflow,
// takes the first step of the shift: avg(v, 2^(sf-1) - 2 + (q & 1)) >> (sf - 1), for sf of 2 and
// more. Shifts of 8 and 16 bits by a count known at run time are high products with powers of two.
#if defined(KELI_CORE_SCALE_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CORE_SCALE_INL_H_
#undef KELI_CORE_SCALE_INL_H_
#else
#define KELI_CORE_SCALE_INL_H_
#endif

#include "core/scale.h"
#include "core/wide-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// Unsigned lanes of 8 or 16 bits to the right by 1 and more.
template <class D>
struct ShiftRightBy {
  using D16 = hn::Repartition<std::uint16_t, D>;
  hn::Vec<D16> factor;
  hn::Vec<D> mask;  // takes off what 8-bit lanes get from their neighbours

  static HWY_INLINE ShiftRightBy make(D d, int count) {
    return {hn::Set(D16(), static_cast<std::uint16_t>(0x10000 >> count)),
            hn::Set(d, static_cast<hn::TFromD<D>>(0xFF >> count))};
  }

  HWY_INLINE hn::Vec<D> operator()(hn::Vec<D> v) const {
    const D d;
    const hn::Vec<D> shifted = hn::BitCast(d, hn::MulHigh(hn::BitCast(D16(), v), factor));
    if constexpr (sizeof(hn::TFromD<D>) == 1) return hn::And(shifted, mask);
    return shifted;
  }
};

// Unsigned lanes of 8 or 16 bits scaled by 2 and more.
template <class D>
struct RoundUnsigned {
  using D16 = hn::Repartition<std::uint16_t, D>;
  hn::Vec<D16> toOdd;  // brings the quotient's last bit to its place
  hn::Vec<D> odd;      // that bit, or none where the quotient is 0
  hn::Vec<D> bias;
  ShiftRightBy<D> rest;

  static HWY_INLINE RoundUnsigned make(D d, int scaleFactor) {
    using T = hn::TFromD<D>;
    const ShiftRightBy<D> all = ShiftRightBy<D>::make(d, scaleFactor);
    return {all.factor, hn::Set(d, scaleFactor < static_cast<int>(8 * sizeof(T)) ? T{1} : T{0}),
            hn::Set(d, static_cast<T>((1 << (scaleFactor - 1)) - 2)),
            ShiftRightBy<D>::make(d, scaleFactor - 1)};
  }

  HWY_INLINE hn::Vec<D> operator()(hn::Vec<D> v) const {
    const D d;
    const auto quotient = hn::BitCast(d, hn::MulHigh(hn::BitCast(D16(), v), toOdd));
    return rest(hn::AverageRound(v, hn::Or(hn::And(quotient, odd), bias)));
  }
};

// Unsigned lanes of 8 or 16 bits scaled by 1.
template <class D>
HWY_INLINE hn::Vec<D> roundHalf(D d, hn::Vec<D> v) {
  const hn::Vec<D> up = hn::AverageRound(v, hn::Zero(d));
  return up - hn::And(hn::And(up, v), hn::Set(d, 1));
}

// Unsigned lanes that hold floor(v / 2) and, in the last bit of rest, what that lost, scaled by
// what is left of a scale factor of 2.
template <class D>
HWY_INLINE hn::Vec<D> roundQuarter(D d, hn::Vec<D> half, hn::Vec<D> rest) {
  const hn::Vec<D> quarter = ShiftRightBy<D>::make(d, 1)(half);
  const hn::Vec<D> up = hn::And(hn::And(half, hn::Or(rest, quarter)), hn::Set(d, 1));
  return quarter + up;
}

// Signed lanes of 32 bits scaled by 1.
template <class D>
HWY_INLINE hn::Vec<D> roundHalfSigned(D d, hn::Vec<D> v) {
  const hn::Vec<D> odd = hn::And(hn::ShiftRight<1>(v), hn::Set(d, 1));
  return hn::ShiftRight<1>(v + odd);
}

// Signed lanes of 32 bits scaled by 2 to 31, where v + 2^(sf-1) does not overflow: v - ~c is
// v + c + 1, and c is even without q & 1.
template <class D>
struct RoundSigned {
  int scaleFactor;
  hn::Vec<D> notBias;
  hn::Vec<D> one;

  static HWY_INLINE RoundSigned make(D d, int sf) {
    const std::uint32_t bias = (std::uint32_t{1} << (sf - 1)) - 2;
    return {sf, hn::Set(d, static_cast<std::int32_t>(~bias)), hn::Set(d, 1)};
  }

  HWY_INLINE hn::Vec<D> operator()(hn::Vec<D> v) const {
    const D d;
    const hn::Vec<D> odd = hn::And(shiftRightBy(d, v, scaleFactor), one);
    return shiftRightBy(d, v - hn::AndNot(odd, notBias), scaleFactor);
  }
};

// Signed lanes of 32 or 64 bits of any value, scaled by 1 and more, less than they have bits. No
// sum overflows: what is shifted out is compared with one half, or with the next smaller value
// where the quotient is odd.
template <class D>
struct RoundAny {
  using T = hn::TFromD<D>;
  using Unsigned = hn::RebindToUnsigned<D>;
  static constexpr int kBits = 8 * sizeof(T);
  int scaleFactor;
  hn::Vec<D> mask;
  hn::Vec<D> half;
  hn::Vec<D> one;
  hn::Vec<D> sign;
  hn::Vec<D> shiftedSign;

  static HWY_INLINE RoundAny make(D d, int sf) {
    using U = hwy::MakeUnsigned<T>;
    const auto set = [&](U bits) KELI_LAMBDA { return hn::Set(d, static_cast<T>(bits)); };
    return {sf,     set((U{1} << sf) - 1),    set(U{1} << (sf - 1)),
            set(1), set(U{1} << (kBits - 1)), set(U{1} << (kBits - 1 - sf))};
  }

  HWY_INLINE hn::Vec<D> shifted(hn::Vec<D> v) const {
    const D d;
    if constexpr (kBits == 32) {
      return shiftRightBy(d, v, scaleFactor);
    } else {  // not all targets have this shift: add 2^63, shift, take it off again
      const Unsigned du;
      const auto above = shiftRightBy(du, hn::BitCast(du, hn::Xor(v, sign)), scaleFactor);
      return hn::BitCast(d, above) - shiftedSign;
    }
  }

  HWY_INLINE hn::Vec<D> operator()(hn::Vec<D> v) const {
    const hn::Vec<D> quotient = shifted(v);
    return rounded(v, quotient, quotient);
  }
  // v and half of bit 0 of `more`: with it, a tie of v is past the half.
  HWY_INLINE hn::Vec<D> operator()(hn::Vec<D> v, hn::Vec<D> more) const {
    const hn::Vec<D> quotient = shifted(v);
    return rounded(v, quotient, hn::Or(quotient, more));
  }

 private:
  HWY_INLINE hn::Vec<D> rounded(hn::Vec<D> v, hn::Vec<D> quotient, hn::Vec<D> upAtHalf) const {
    const D d;
    const hn::Vec<D> limit = half - hn::And(upAtHalf, one);
    return quotient - hn::VecFromMask(d, hn::And(v, mask) > limit);
  }
};

// Lanes scaled by a factor of 0 or less: v << -scaleFactor, saturated. Unsigned ones have 8 bits.
template <class D>
struct ScaleUp {
  using T = hn::TFromD<D>;
  using D16 = hn::Repartition<std::uint16_t, D>;
  static constexpr int kMost = sizeof(T) == 1 ? 8 : 8 * sizeof(T) - 1;
  int count;       // kMost saturates all but 0, and but -1 of signed lanes
  hn::Vec<D> top;  // of 8 bits, the largest value that does not saturate

  static HWY_INLINE ScaleUp make(D d, int scaleFactor) {
    const int count = scaleFactor < -kMost ? kMost : -scaleFactor;
    return {count, hn::Set(d, static_cast<T>(0xFF >> count))};
  }

  HWY_INLINE hn::Vec<D> operator()(hn::Vec<D> v) const {
    const D d;
    if constexpr (sizeof(T) == 1) {
      // A shifted lane stays within its byte, so neighbours may share a shift of 16 bits.
      const hn::Vec<D> fits = hn::Min(v, top);
      const hn::Vec<D> shifted = hn::BitCast(d, hn::ShiftLeftSame(hn::BitCast(D16(), fits), count));
      return hn::Or(shifted, hn::VecFromMask(d, hn::Not(hn::Eq(fits, v))));
    } else {
      const hn::Vec<D> shifted = hn::ShiftLeftSame(v, count);
      const hn::Vec<D> limit =
          hn::Xor(hn::ShiftRight<kMost>(v), hn::Set(d, std::numeric_limits<T>::max()));
      return hn::IfThenElse(hn::Eq(hn::ShiftRightSame(shifted, count), v), shifted, limit);
    }
  }
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
