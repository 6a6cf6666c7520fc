// Integer operations with a scale factor: dst = (src1 op src2) * 2^-scaleFactor, rounded to nearest
// with ties to even, saturated.
//
// One operation is several kernels, by scale factor: results of scale factors of 0 and less depend
// on the saturated result alone; those of larger ones are formed in lanes of twice the width, or in
// bytes where they fit. Kernels that are not flat (C3 constants, AC4) make do with fewer.
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

// ---- Exact and saturated results
// -----------------------------------------------------------------

constexpr std::int64_t exact(Add, std::int64_t a, std::int64_t b) { return a + b; }
constexpr std::int64_t exact(Sub, std::int64_t a, std::int64_t b) { return b - a; }
constexpr std::int64_t exact(Mul, std::int64_t a, std::int64_t b) { return a * b; }

template <class D, class V>
HWY_INLINE Wide<D> exactWide(Add, D d, V a, V b) {
  return weighted<1, 1>(d, a, b);
}
template <class D, class V>
HWY_INLINE Wide<D> exactWide(Sub, D d, V a, V b) {
  return weighted<-1, 1>(d, a, b);
}
template <class D, class V>
HWY_INLINE Wide<D> exactWide(Mul, D d, V a, V b) {
  return products(d, a, b);
}

template <class D, class V>
HWY_INLINE V saturated(Add, D, V a, V b) {
  return hn::SaturatedAdd(a, b);
}
template <class D, class V>
HWY_INLINE V saturated(Sub, D, V a, V b) {
  return hn::SaturatedSub(b, a);
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

// ---- By scale factor
// -----------------------------------------------------------------------------

struct Unscaled {  // 0
  template <class D>
  static HWY_INLINE Nothing at(D, int) {
    return {};
  }
  template <class Operation, class D, class V>
  static HWY_INLINE V apply(Operation operation, D d, Nothing, V a, V b) {
    return saturated(operation, d, a, b);
  }
};

struct Up {  // 0 and less
  template <class D>
  static HWY_INLINE ScaleUp<D> at(D d, int scaleFactor) {
    return ScaleUp<D>::make(d, scaleFactor);
  }
  template <class Operation, class D, class V>
  static HWY_INLINE V apply(Operation operation, D d, const ScaleUp<D>& up, V a, V b) {
    return up(saturated(operation, d, a, b));
  }
};

struct Half {  // 1, of 8u
  template <class D>
  static HWY_INLINE Nothing at(D, int) {
    return {};
  }
  template <class D, class V>
  static HWY_INLINE V apply(Add, D d, Nothing, V a, V b) {
    // The average is rounded up; an odd one that was a tie is one too large.
    const V up = hn::AverageRound(a, b);
    return up - hn::And(hn::And(hn::Xor(a, b), up), hn::Set(d, 1));
  }
  template <class D, class V>
  static HWY_INLINE V apply(Sub, D d, Nothing, V a, V b) {
    return roundHalf(d, hn::SaturatedSub(b, a));
  }
  template <class D, class V>
  static HWY_INLINE V apply(Mul, D d, Nothing, V a, V b) {
    const WideTag<D> dw;
    return narrow(
        d, mapWide(d, products(d, a, b), [&](auto v) KELI_LAMBDA { return roundHalf(dw, v); }));
  }
};

struct Down8 {  // 2 and more, of 8u: no difference below 0 gives more than 0
  template <class D>
  static HWY_INLINE RoundUnsigned<WideTag<D>> at(D, int scaleFactor) {
    return RoundUnsigned<WideTag<D>>::make(WideTag<D>(), scaleFactor);
  }
  template <class Operation, class D, class V>
  static HWY_INLINE V apply(Operation operation, D d, const RoundUnsigned<WideTag<D>>& round, V a,
                            V b) {
    return narrow(d, mapWide(d, exactWide(operation, d, a, b), round));
  }
};

struct DownBytes {  // Sub of 8u: 2 and more; Add of 8u: 3 and more
  template <class D>
  static HWY_INLINE RoundUnsigned<D> at(D d, int scaleFactor) {
    return RoundUnsigned<D>::make(d, scaleFactor);
  }
  template <class D, class V>
  static HWY_INLINE V apply(Sub, D, const RoundUnsigned<D>& round, V a, V b) {
    return round(hn::SaturatedSub(b, a));
  }
};

struct DownBytesOfSum {  // 3 and more, of 8u
  template <class D>
  static HWY_INLINE RoundUnsigned<D> at(D d, int scaleFactor) {
    return RoundUnsigned<D>::make(d, scaleFactor - 1);
  }
  // Half of the sum, its last bit set where the half lost one: below the bit that decides a tie it
  // only tells that there is something.
  template <class D, class V>
  static HWY_INLINE V apply(Add, D d, const RoundUnsigned<D>& round, V a, V b) {
    const V up = hn::AverageRound(a, b);
    return round(up - hn::And(hn::AndNot(up, hn::Xor(a, b)), hn::Set(d, 1)));
  }
};

struct Down16 {  // 1 and more, of 16s
  template <class D>
  static HWY_INLINE RoundSigned<WideTag<D>> at(D, int scaleFactor) {
    return RoundSigned<WideTag<D>>::make(WideTag<D>(), scaleFactor);
  }
  template <class Operation, class D, class V>
  static HWY_INLINE V apply(Operation operation, D d, const RoundSigned<WideTag<D>>& round, V a,
                            V b) {
    return narrow(d, mapWide(d, exactWide(operation, d, a, b), round));
  }
};

// ---- Operations for the drivers
// ------------------------------------------------------------------

template <class Operation, class T, class How>
struct Scaled {
  static constexpr std::size_t kPeriod = 1;
  static constexpr std::size_t kUnroll = 4;
  int scaleFactor;

  template <class D>
  HWY_INLINE auto at(D d, std::size_t) const {
    return How::at(d, scaleFactor);
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
  if (kFlat && sf == 0) return run(Scaled<Operation, T, Unscaled>{sf});
  if (sf <= 0) return run(Scaled<Operation, T, Up>{sf});
  if constexpr (sizeof(T) == 2) {
    run(Scaled<Operation, T, Down16>{sf});
  } else {
    if (sf == 1) return run(Scaled<Operation, T, Half>{sf});
    if constexpr (std::is_same_v<Operation, Sub>) {
      run(Scaled<Operation, T, DownBytes>{sf});
    } else {
      if constexpr (kFlat && std::is_same_v<Operation, Add>) {
        if (sf > 2) return run(Scaled<Operation, T, DownBytesOfSum>{sf});
      }
      run(Scaled<Operation, T, Down8>{sf});
    }
  }
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
