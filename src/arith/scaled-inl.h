// Integer operations with a scale factor: dst = (src1 op src2) * 2^-scaleFactor, rounded to nearest
// with ties to even, saturated.
//
// One operation is several kernels, by scale factor: results of scale factors of 0 and less depend
// on the saturated result alone. Sums and differences are scaled in lanes of their own width, from
// their exact halves; products in lanes of twice the width.
#if defined(KELI_ARITH_SCALED_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_ARITH_SCALED_INL_H_
#undef KELI_ARITH_SCALED_INL_H_
#else
#define KELI_ARITH_SCALED_INL_H_
#endif

#include "arith/operations.h"
#include "core/pointwise-inl.h"
#include "core/scale-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

using arith::Add;
using arith::Mul;
using arith::Sub;

// ---- Exact and saturated results ------------------------------------------------------------

constexpr std::int64_t exact(Add, std::int64_t a, std::int64_t b) { return a + b; }
constexpr std::int64_t exact(Sub, std::int64_t a, std::int64_t b) { return b - a; }
constexpr std::int64_t exact(Mul, std::int64_t a, std::int64_t b) { return a * b; }

// Where the wrapped result overflows, its sign is not the one that the operands' signs give.
template <class D, class V>
HWY_INLINE V overflows(Add, D, V a, V b, V sum) {
  return hn::And(hn::Xor(sum, a), hn::Xor(sum, b));
}
template <class D, class V>
HWY_INLINE V overflows(Sub, D, V a, V b, V difference) {
  return hn::And(hn::Xor(b, a), hn::Xor(b, difference));
}

// Of 32-bit lanes, for which there are no saturating instructions.
template <class Operation, class D, class V>
HWY_INLINE V saturated32(Operation operation, D d, V a, V b) {
  const V wrapped = std::is_same_v<Operation, Add> ? a + b : b - a;
  const V limit =
      hn::Xor(hn::ShiftRight<31>(wrapped), hn::Set(d, std::numeric_limits<Kel32s>::min()));
  return hn::IfVecThenElse(hn::BroadcastSignBit(overflows(operation, d, a, b, wrapped)), limit,
                           wrapped);
}

template <class D, class V>
HWY_INLINE V saturated(Add operation, D d, V a, V b) {
  if constexpr (sizeof(hn::TFromD<D>) == 4) {
    return saturated32(operation, d, a, b);
  } else {
    return hn::SaturatedAdd(a, b);
  }
}
template <class D, class V>
HWY_INLINE V saturated(Sub operation, D d, V a, V b) {
  if constexpr (sizeof(hn::TFromD<D>) == 4) {
    return saturated32(operation, d, a, b);
  } else {
    return hn::SaturatedSub(b, a);
  }
}
template <class D, class V>
HWY_INLINE V saturated(Mul, D d, V a, V b) {
  const Wide<D> w = products(d, a, b);
  if constexpr (sizeof(hn::TFromD<D>) == 1) {
    const auto most = hn::Set(WideTag<D>(), 255);  // above 32767 narrow would take them as negative
    return narrow(d, mapWide(d, w, [&](auto v) KELI_LAMBDA { return hn::Min(v, most); }));
  } else {
    return narrow(d, w);
  }
}

// ---- Halves of sums and differences ---------------------------------------------------------
//
// In lanes of the operands' own width. Signed ones are biased by 2^15 each, which adds 2^16 to the
// sum: an even number of units of the result for every scale factor below 16, so ties still go to
// the even neighbour, and it comes off at the end.

template <class D>
using Unsigned = hn::RebindToUnsigned<D>;

// floor(v / 2), and 1 where that lost one half.
template <class D>
struct HalfOf {
  hn::Vec<Unsigned<D>> floor;
  hn::Vec<Unsigned<D>> rest;
};

template <class D>
constexpr hn::TFromD<Unsigned<D>> kBias =
    std::is_signed_v<hn::TFromD<D>> ? hn::TFromD<Unsigned<D>>{1} << (8 * sizeof(hn::TFromD<D>) - 1)
                                    : hn::TFromD<Unsigned<D>>{0};

// 2^16 of the bias, scaled.
template <class D>
constexpr hn::TFromD<Unsigned<D>> biasOf(int scaleFactor) {
  return static_cast<hn::TFromD<Unsigned<D>>>(std::uint32_t{2} * kBias<D> >> scaleFactor);
}

template <class D, class V>
HWY_INLINE hn::Vec<Unsigned<D>> biased(D, V v, bool complement = false) {
  const Unsigned<D> du;
  const auto bits = static_cast<hn::TFromD<Unsigned<D>>>(complement ? ~kBias<D> : kBias<D>);
  return hn::Xor(hn::BitCast(du, v), hn::Set(du, bits));
}

template <class D, class V>
HWY_INLINE hn::Vec<Unsigned<D>> halfLost(D, V a, V b) {
  const Unsigned<D> du;
  return hn::And(hn::BitCast(du, hn::Xor(a, b)), hn::Set(du, 1));
}

template <class D, class V>
HWY_INLINE HalfOf<D> half(Add, D d, V a, V b) {
  const auto rest = halfLost(d, a, b);
  return {hn::AverageRound(biased(d, a), biased(d, b)) - rest, rest};
}
template <class D, class V>
HWY_INLINE HalfOf<D> half(Sub, D d, V a, V b) {
  // b + ~a + 1 is b - a, and the average adds the 1.
  return {hn::AverageRound(biased(d, b), biased(d, a, true)), halfLost(d, a, b)};
}

// The half rounded to the nearest integer, ties to even.
template <class D, class V>
HWY_INLINE hn::Vec<Unsigned<D>> halfToEven(Add, D d, V a, V b) {
  const auto up = hn::AverageRound(biased(d, a), biased(d, b));
  return up - hn::And(up, halfLost(d, a, b));
}
template <class D, class V>
HWY_INLINE hn::Vec<Unsigned<D>> halfToEven(Sub, D d, V a, V b) {
  const HalfOf<D> h = half(Sub(), d, a, b);
  return hn::SaturatedAdd(h.floor, hn::And(h.floor, h.rest));  // the largest saturates
}

// The half rounded to the odd integer next to it: below the bit that decides a tie its last bit
// only tells that there is something.
template <class Operation, class D, class V>
HWY_INLINE hn::Vec<Unsigned<D>> halfToOdd(Operation operation, D d, V a, V b) {
  const HalfOf<D> h = half(operation, d, a, b);
  return hn::Or(h.floor, h.rest);
}

// ---- By scale factor ------------------------------------------------------------------------

struct Unscaled {  // 0
  static constexpr bool kLong = false;
  template <class Operation, class D>
  static HWY_INLINE Nothing at(Operation, D, int) {
    return {};
  }
  template <class Operation, class D, class V>
  static HWY_INLINE V apply(Operation operation, D d, Nothing, V a, V b) {
    return saturated(operation, d, a, b);
  }
};

struct Up {  // 0 and less
  static constexpr bool kLong = true;
  template <class Operation, class D>
  static HWY_INLINE ScaleUp<D> at(Operation, D d, int scaleFactor) {
    return ScaleUp<D>::make(d, scaleFactor);
  }
  template <class Operation, class D, class V>
  static HWY_INLINE V apply(Operation operation, D d, const ScaleUp<D>& up, V a, V b) {
    return up(saturated(operation, d, a, b));
  }
};

struct ByOne {  // 1
  static constexpr bool kLong = true;
  template <class Operation, class D>
  static HWY_INLINE Nothing at(Operation, D, int) {
    return {};
  }
  template <class Operation, class D, class V>
  static HWY_INLINE V apply(Operation operation, D d, Nothing, V a, V b) {
    if constexpr (std::is_same_v<Operation, Mul>) {
      const WideTag<D> dw;
      return narrow(d, mapWide(d, products(d, a, b), [&](auto v) KELI_LAMBDA {
                      if constexpr (sizeof(hn::TFromD<D>) == 1) return roundHalf(dw, v);
                      if constexpr (sizeof(hn::TFromD<D>) == 2) return roundHalfSigned(dw, v);
                    }));
    } else if constexpr (std::is_same_v<Operation, Sub> && !std::is_signed_v<hn::TFromD<D>>) {
      return roundHalf(d, hn::SaturatedSub(b, a));  // no difference below 0 gives more than 0
    } else {
      const Unsigned<D> du;
      return hn::BitCast(d, halfToEven(operation, d, a, b) - hn::Set(du, biasOf<D>(1)));
    }
  }
};

struct ByTwo {  // 2, of sums and differences
  static constexpr bool kLong = true;
  template <class Operation, class D>
  static HWY_INLINE Nothing at(Operation, D, int) {
    return {};
  }
  template <class Operation, class D, class V>
  static HWY_INLINE V apply(Operation operation, D d, Nothing, V a, V b) {
    const Unsigned<D> du;
    const HalfOf<D> h = half(operation, d, a, b);
    return hn::BitCast(d, roundQuarter(du, h.floor, h.rest) - hn::Set(du, biasOf<D>(2)));
  }
};

struct Down {  // 2 and more; for sums, and differences of 16s, 3 and more
  static constexpr bool kLong = true;

  template <class D>
  struct Biased {
    RoundUnsigned<Unsigned<D>> round;
    hn::Vec<Unsigned<D>> bias;
  };

  template <class Operation, class D>
  static HWY_INLINE auto at(Operation, D d, int scaleFactor) {
    const WideTag<D> dw;
    const Unsigned<D> du;
    if constexpr (std::is_same_v<Operation, Mul>) {
      if constexpr (sizeof(hn::TFromD<D>) == 1)
        return RoundUnsigned<WideTag<D>>::make(dw, scaleFactor);
      if constexpr (sizeof(hn::TFromD<D>) == 2)
        return RoundSigned<WideTag<D>>::make(dw, scaleFactor);
    } else if constexpr (std::is_same_v<Operation, Sub> && !std::is_signed_v<hn::TFromD<D>>) {
      return RoundUnsigned<D>::make(d, scaleFactor);
    } else {
      return Biased<D>{RoundUnsigned<Unsigned<D>>::make(du, scaleFactor - 1),
                       hn::Set(du, biasOf<D>(scaleFactor))};
    }
  }
  template <class D, class R, class V>
  static HWY_INLINE V apply(Mul, D d, const R& round, V a, V b) {
    return narrow(d, mapWide(d, products(d, a, b), round));
  }
  template <class D, class V>
  static HWY_INLINE V apply(Sub, D, const RoundUnsigned<D>& round, V a, V b) {
    return round(hn::SaturatedSub(b, a));
  }
  template <class Operation, class D, class V>
  static HWY_INLINE V apply(Operation operation, D d, const Biased<D>& k, V a, V b) {
    return hn::BitCast(d, k.round(halfToOdd(operation, d, a, b)) - k.bias);
  }
};

struct BySixteen {  // 16, of sums and differences of 16s: 1 above 2^15, -1 below -2^15
  static constexpr bool kLong = true;
  template <class Operation, class D>
  static HWY_INLINE Nothing at(Operation, D, int) {
    return {};
  }
  template <class Operation, class D, class V>
  static HWY_INLINE V apply(Operation operation, D d, Nothing, V a, V b) {
    const V v = hn::BitCast(d, biased(d, hn::BitCast(d, halfToOdd(operation, d, a, b))));
    const V tie = hn::Set(d, 1 << 14);
    return hn::VecFromMask(d, hn::Lt(v, hn::Neg(tie))) - hn::VecFromMask(d, hn::Gt(v, tie));
  }
};

// ---- Operations for the drivers -------------------------------------------------------------

template <class Operation, class T, class How>
struct Scaled {
  static constexpr std::size_t kPeriod = 1;
  static constexpr std::size_t kUnroll = 4;
  static constexpr std::size_t kVectorBytes = How::kLong ? 64 : 32;
  int scaleFactor;

  template <class D>
  HWY_INLINE auto at(D d, std::size_t) const {
    return How::at(Operation(), d, scaleFactor);
  }
  template <class D, class K, class V>
  HWY_INLINE V vector(D d, const K& k, V a, V b) const {
    return How::apply(Operation(), d, k, a, b);
  }
  HWY_INLINE T scalar(std::size_t, T a, T b) const {
    return scaled<T>(exact(Operation(), a, b), scaleFactor);
  }
};

// Calls run with the operation for a scale factor of at most kBits.
template <class Operation, class T, bool kFlat, class Run>
HWY_INLINE void forScaleFactor(int sf, const Run& run) {
  constexpr bool kHalves = !std::is_same_v<Operation, Mul> &&
                           !(std::is_same_v<Operation, Sub> && std::is_same_v<T, Kel8u>);
  if (kFlat && sf == 0) return run(Scaled<Operation, T, Unscaled>{sf});
  if (sf <= 0) return run(Scaled<Operation, T, Up>{sf});
  if (sf == 1) return run(Scaled<Operation, T, ByOne>{sf});
  if constexpr (kHalves) {
    if (sf == 2) return run(Scaled<Operation, T, ByTwo>{sf});
    if constexpr (sizeof(T) == 2) {
      if (sf == 16) return run(Scaled<Operation, T, BySixteen>{sf});
    }
  }
  run(Scaled<Operation, T, Down>{sf});
}

template <class Operation, class T, class Keep>
void ownScaled(const Band<2>& b, int sf) {
  forScaleFactor<Operation, T, Keep::kPeriod == 1>(
      sf, [&](const auto& op) KELI_LAMBDA { mapTwoImages<T, Keep>(b, op); });
}

template <class Operation, class T, std::size_t kCycle, class Keep>
void ownScaledConstant(const Band<1>& b, const void* constants, int sf) {
  forScaleFactor<Operation, T, kCycle == 4 && Keep::kPeriod == 1>(
      sf,
      [&](const auto& op) KELI_LAMBDA { mapImageAndConstant<T, kCycle, Keep>(b, constants, op); });
}

template <class Operation, class T>
constexpr arith::TwoImages kScaledTwoImages = {ownScaled<Operation, T, KeepNone>,
                                               ownScaled<Operation, T, KeepOthers<4, 3>>};

template <class Operation, class T>
constexpr arith::ImageAndConstant kScaledConstant = {
    ownScaledConstant<Operation, T, 4, KeepNone>, ownScaledConstant<Operation, T, 3, KeepNone>,
    ownScaledConstant<Operation, T, 4, KeepOthers<4, 3>>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
