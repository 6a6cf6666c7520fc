// Sums and differences of 32-bit parts, scaled. They have 33 bits: scaled down, they are formed as
// half of the sum, rounded down, and the bit that the half has lost.
#if defined(KELI_COMPLEX_SUM_32SC_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_COMPLEX_SUM_32SC_INL_H_
#undef KELI_COMPLEX_SUM_32SC_INL_H_
#else
#define KELI_COMPLEX_SUM_32SC_INL_H_
#endif

#include "arith/scaled-inl.h"
#include "complex/samples-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class D>
struct Halved {
  hn::Vec<D> floor;
  hn::Vec<D> lost;  // in bit 0
};

template <class D, class V>
HWY_INLINE Halved<D> halved(Add, D, V a, V b) {
  const V differing = hn::Xor(a, b);
  return {hn::And(a, b) + hn::ShiftRight<1>(differing), differing};
}

// b - a is b + ~a + 1, whose half is the sum's half rounded up.
template <class D, class V>
HWY_INLINE Halved<D> halved(Sub, D, V a, V b) {
  const V inverted = hn::Not(a);
  return {hn::Or(inverted, b) - hn::ShiftRight<1>(hn::Xor(inverted, b)), hn::Xor(a, b)};
}

struct Half32 {  // 1
  static constexpr bool kLong = false;
  template <class Operation, class D>
  static HWY_INLINE Nothing at(Operation, D, int) {
    return {};
  }
  template <class Operation, class D, class V>
  static HWY_INLINE V apply(Operation operation, D d, Nothing, V a, V b) {
    const Halved<D> half = halved(operation, d, a, b);
    const V rounded = half.floor + hn::And(hn::And(half.floor, half.lost), hn::Set(d, 1));
    // The largest difference is rounded to 2^31.
    return rounded + hn::VecFromMask(d, half.floor > rounded);
  }
};

struct Down32 {  // 2 and more
  static constexpr bool kLong = false;
  template <class Operation, class D>
  static HWY_INLINE RoundAny<D> at(Operation, D d, int scaleFactor) {
    return RoundAny<D>::make(d, scaleFactor - 1);
  }
  template <class Operation, class D, class V>
  static HWY_INLINE V apply(Operation operation, D d, const RoundAny<D>& round, V a, V b) {
    const Halved<D> half = halved(operation, d, a, b);
    return round(half.floor, half.lost);
  }
};

template <class Operation>
struct Sums32 {
  template <class How>
  using Op = PartByPart<Kel32sc, Scaled<Operation, Kel32s, How>>;

  template <bool kFlat, class Run>
  static HWY_INLINE void run(int sf, const Run& f) {
    if (kFlat && sf == 0) return f(Op<Unscaled>{{sf}});
    if (sf <= 0) return f(Op<Up>{{sf}});
    if (sf == 1) return f(Op<Half32>{{sf}});
    f(Op<Down32>{{sf}});
  }
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
