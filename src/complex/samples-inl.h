// Complex samples in the row drivers. A sample is one lane, as wide as its two parts, so that
// layouts, constants and the ends of rows are those of any other samples; operations look at the
// same vector as lanes of parts, real ones at even and imaginary ones at odd places.
#if defined(KELI_COMPLEX_SAMPLES_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_COMPLEX_SAMPLES_INL_H_
#undef KELI_COMPLEX_SAMPLES_INL_H_
#else
#define KELI_COMPLEX_SAMPLES_INL_H_
#endif

#include "complex/operations.h"
#include "core/pointwise-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

using complex::BitsOf;
using complex::PartOf;

template <class T>
HWY_INLINE T fromBits(BitsOf<T> bits) {
  T sample;
  std::memcpy(&sample, &bits, sizeof(sample));
  return sample;
}

template <class T>
HWY_INLINE BitsOf<T> toBits(T sample) {
  BitsOf<T> bits;
  std::memcpy(&bits, &sample, sizeof(bits));
  return bits;
}

// Two lanes for each of D.
template <class T, class D>
using PartTag = hn::Repartition<PartOf<T>, D>;

// Each sample's parts exchanged.
template <class D>
HWY_INLINE hn::Vec<D> exchanged(D d, hn::Vec<D> samples) {
  if constexpr (sizeof(hn::TFromD<D>) == 4) {
    (void)d;
    return hn::RotateRight<16>(samples);
  } else {
    const hn::Repartition<std::uint32_t, D> dp;
    return hn::BitCast(d, hn::Reverse2(dp, hn::BitCast(dp, samples)));
  }
}

// An operation on parts, done to both parts of each sample.
template <class T, class Op>
struct PartByPart {
  static constexpr std::size_t kPeriod = 1;
  static constexpr std::size_t kUnroll = Op::kUnroll;
  Op op;

  template <class D>
  HWY_INLINE auto at(D, std::size_t) const {
    return op.at(PartTag<T, D>(), 0);
  }
  template <class D, class K, class V>
  HWY_INLINE V vector(D d, const K& k, V a, V b) const {
    const PartTag<T, D> dp;
    return hn::BitCast(d, op.vector(dp, k, hn::BitCast(dp, a), hn::BitCast(dp, b)));
  }
  HWY_INLINE BitsOf<T> scalar(std::size_t, BitsOf<T> a, BitsOf<T> b) const {
    const T x = fromBits<T>(a), y = fromBits<T>(b);
    return toBits(T{op.scalar(0, x.re, y.re), op.scalar(0, x.im, y.im)});
  }
};

// The kernels of an operation. Choice::run<kFlat>(scaleFactor, f) calls f with what computes it for
// a scale factor; kFlat tells the layouts that are worth more than the least number of those.
template <class T, class Choice, class Keep>
void ownTwoImages(const Band<2>& b, int sf) {
  Choice::template run<Keep::kPeriod == 1>(
      sf, [&](const auto& op) KELI_LAMBDA { mapTwoImages<BitsOf<T>, Keep>(b, op); });
}

template <class T, class Choice, std::size_t kCycle, class Keep>
void ownConstant(const Band<1>& b, const void* constants, int sf) {
  Choice::template run<kCycle == 4 && Keep::kPeriod == 1>(sf, [&](const auto& op) KELI_LAMBDA {
    mapImageAndConstant<BitsOf<T>, kCycle, Keep>(b, constants, op);
  });
}

template <class T, class Choice>
constexpr arith::TwoImages kTwoImages = {ownTwoImages<T, Choice, KeepNone>,
                                         ownTwoImages<T, Choice, KeepOthers<4, 3>>};

template <class T, class Choice>
constexpr arith::ImageAndConstant kImageAndConstant = {ownConstant<T, Choice, 4, KeepNone>,
                                                       ownConstant<T, Choice, 3, KeepNone>,
                                                       ownConstant<T, Choice, 4, KeepOthers<4, 3>>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
