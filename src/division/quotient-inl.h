// Quotients of integer samples in lanes of single precision, and the look-out for zero divisors.
#if defined(KELI_DIVISION_QUOTIENT_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_DIVISION_QUOTIENT_INL_H_
#undef KELI_DIVISION_QUOTIENT_INL_H_
#else
#define KELI_DIVISION_QUOTIENT_INL_H_
#endif

#include "core/pointwise-inl.h"
#include "core/wide-inl.h"
#include "division/quotient.h"
#include "division/rows.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// f(a, b) of the lanes of two vectors, as lanes of 32 bits; the results saturate.
template <class D, class F>
HWY_INLINE hn::Vec<D> mapAsInts(D d, hn::Vec<D> a, hn::Vec<D> b, const F& f) {
  const WideTag<D> dw;
  const Wide<D> wa = widen(d, a), wb = widen(d, b);
  const auto half = [&](auto va, auto vb) KELI_LAMBDA {
    if constexpr (sizeof(hn::TFromD<D>) == 1) {
      return mapAsInts(dw, va, vb, f);
    } else {
      const hn::RebindToSigned<WideTag<D>> di;
      return hn::BitCast(dw, f(hn::BitCast(di, va), hn::BitCast(di, vb)));
    }
  };
  Wide<D> result;
  result.lo = half(wa.lo, wb.lo);
  if constexpr (kTwoHalves<D>) result.hi = half(wa.hi, wb.hi);
  return narrow(d, result);
}

// An operation whose first operand is a divisor, which notes whether one was 0.
template <class Op>
struct NotingZeros {
  static constexpr std::size_t kPeriod = Op::kPeriod;
  static constexpr std::size_t kUnroll = Op::kUnroll;
  static constexpr std::size_t kVectorBytes = map::kMostBytes<Op>;

  Op op;
  bool* zero;

  template <class D>
  HWY_INLINE auto at(D d, std::size_t phase) const {
    return op.at(d, phase);
  }
  template <class D, class K, class V>
  HWY_INLINE V vector(D d, const K& k, V a, V b) const {
    *zero |= !hn::AllFalse(d, hn::Eq(a, hn::Zero(d)));
    return op.vector(d, k, a, b);
  }
  template <class T>
  HWY_INLINE T scalar(std::size_t phase, T a, T b) const {
    *zero |= a == 0;
    return op.scalar(phase, a, b);
  }
};

template <class T, class Op>
HWY_INLINE bool divideImages(const Band<2>& b, const Op& op) {
  bool zero = false;
  mapTwoImages<T, KeepNone>(b, NotingZeros<Op>{op, &zero});
  return zero;
}

// The lanes of two vectors as the lower and upper halves of lanes twice as wide.
template <class D, class V>
HWY_INLINE Wide<D> pairUp(D d, V lower, V upper) {
  if constexpr (kTwoHalves<D>) {
    return joined(zip(d, lower, upper));
  } else {
    constexpr int kBits = 8 * sizeof(hn::TFromD<D>);
    const WideTag<D> dw;
    return {hn::Or(hn::PromoteTo(dw, lower), hn::ShiftLeft<kBits>(hn::PromoteTo(dw, upper))),
            hn::Zero(dw)};
  }
}

// A cycle of constants twice as wide as the samples, T unsigned, in halves.
template <class T, std::size_t kCycle>
struct WideCycle {
  static constexpr std::size_t kLanes = kScalarTarget ? 1 : std::min(HWY_MAX_BYTES, 64) / sizeof(T);
  static constexpr std::size_t kSize = kLanes + kCycle;  // a vector can begin at any of them

  T lower[kSize];
  T upper[kSize];

  HWY_INLINE void set(std::size_t k, std::uint32_t value) {
    for (std::size_t i = k; i < kSize; i += kCycle) {
      lower[i] = static_cast<T>(value);
      upper[i] = static_cast<T>(value >> (8 * sizeof(T)));
    }
  }
  template <class D>
  HWY_INLINE Wide<hn::RebindToUnsigned<D>> at(D, std::size_t phase) const {
    const hn::RebindToUnsigned<D> du;
    return pairUp(du, hn::LoadU(du, lower + phase), hn::LoadU(du, upper + phase));
  }
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
