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

// An operation whose first operand is a divisor, which notes whether one of those that are used (of
// the samples that Keep writes) was 0.
template <class Op, class Keep>
struct NotingZeros {
  static constexpr std::size_t kPeriod = Keep::kPeriod;
  static constexpr std::size_t kUnroll = Op::kUnroll;
  static_assert(Op::kPeriod == 1);

  Op op;
  bool* zero;

  template <class D>
  struct Vectors {
    decltype(std::declval<Op>().at(D(), 0)) op;
    decltype(std::declval<Keep>().at(D(), 0)) used;
  };

  template <class D>
  HWY_INLINE Vectors<D> at(D d, std::size_t phase) const {
    return {op.at(d, 0), Keep().at(d, phase)};
  }
  template <class D, class V>
  HWY_INLINE V vector(D d, const Vectors<D>& k, V a, V b) const {
    auto zeros = hn::Eq(a, hn::Zero(d));
    if constexpr (Keep::kPeriod != 1) zeros = hn::And(zeros, k.used);
    *zero |= !hn::AllFalse(d, zeros);
    return op.vector(d, k.op, a, b);
  }
  template <class T>
  HWY_INLINE T scalar(std::size_t, T a, T b) const {
    *zero |= a == 0;
    return op.scalar(0, a, b);
  }
};

template <class T, class Keep, class Op>
HWY_INLINE bool divideImages(const Band<2>& b, const Op& op) {
  bool zero = false;
  mapTwoImages<T, Keep>(b, NotingZeros<Op, Keep>{op, &zero});
  return zero;
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
