// Sums and differences of two products of integer parts, exact in lanes twice as wide, and the way
// back to parts. They fit their lanes but for one: the sum of two products of the least parts,
// 2^31 or 2^63, wraps. The largest value of the lanes in its place gives the same after rounding,
// whatever the scale: scaled up or by less than a part it saturates, else the 1 that it lacks is
// less than half of a unit, and at half of a unit the tie is rounded to the even 0 below.
#if defined(KELI_COMPLEX_PRODUCT_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_COMPLEX_PRODUCT_INL_H_
#undef KELI_COMPLEX_PRODUCT_INL_H_
#else
#define KELI_COMPLEX_PRODUCT_INL_H_
#endif

#include "complex/samples-inl.h"
#include "core/scale-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// One lane for each sample, as wide as the sample.
template <class D>
using WholeTag = hn::RebindToSigned<D>;

template <class D>
HWY_INLINE hn::Vec<WholeTag<D>> unwrapped(D, hn::Vec<WholeTag<D>> sum) {
  const WholeTag<D> dw;
  const auto least = hn::Set(dw, std::numeric_limits<hn::TFromD<WholeTag<D>>>::min());
  return sum + hn::VecFromMask(dw, hn::Eq(sum, least));
}

// x.re * y.re + x.im * y.im, wrapping
template <class T, class D, class V>
HWY_INLINE hn::Vec<WholeTag<D>> sumsOfProducts(D d, V x, V y) {
  const WholeTag<D> dw;
  const PartTag<T, D> dp;
  if constexpr (sizeof(PartOf<T>) == 2) {
    return multiplyAddPairs(dw, hn::BitCast(dp, x), hn::BitCast(dp, y));
  } else {
    (void)d;
    return hn::MulEven(hn::BitCast(dp, x), hn::BitCast(dp, y)) +
           hn::MulEven(hn::BitCast(dp, hn::ShiftRight<32>(x)),
                       hn::BitCast(dp, hn::ShiftRight<32>(y)));
  }
}

// x.re * y.re - x.im * y.im, which fits
template <class T, class D, class V>
HWY_INLINE hn::Vec<WholeTag<D>> differencesOfProducts(D d, V x, V y) {
  const WholeTag<D> dw;
  const PartTag<T, D> dp;
  if constexpr (sizeof(PartOf<T>) == 2) {
    // -y.im is ~y.im + 1; what wraps on the way does so twice.
    const auto inverted = hn::Xor(y, hn::Set(d, 0xFFFF0000));
    return multiplyAddPairs(dw, hn::BitCast(dp, x), hn::BitCast(dp, inverted)) +
           hn::ShiftRight<16>(hn::BitCast(dw, x));
  } else {
    return hn::MulEven(hn::BitCast(dp, x), hn::BitCast(dp, y)) -
           hn::MulEven(hn::BitCast(dp, hn::ShiftRight<32>(x)),
                       hn::BitCast(dp, hn::ShiftRight<32>(y)));
  }
}

// Real and imaginary parts saturated, by turns. dp: tag of the parts.
template <class D, class V>
HWY_INLINE hn::Vec<D> saturatedParts(D dp, V re, V im) {
  if constexpr (sizeof(hn::TFromD<D>) == 2) {
    return packAlternately(dp, re, im);
  } else {
    const auto part = [&](V v) KELI_LAMBDA { return hn::BitCast(dp, v); };
    const auto low = hn::OddEven(part(hn::ShiftLeft<32>(im)), part(re));
    const auto high = hn::OddEven(part(im), part(hn::ShiftRight<32>(re)));
    const auto limit =
        hn::Xor(hn::ShiftRight<31>(high), hn::Set(dp, std::numeric_limits<Kel32s>::max()));
    return hn::IfThenElse(hn::Eq(hn::ShiftRight<31>(low), high), low, limit);
  }
}

// The same for one sample.
constexpr std::int64_t exactSum(std::int64_t a, std::int64_t b) {
  using L = std::numeric_limits<std::int64_t>;
  const auto sum =
      static_cast<std::int64_t>(static_cast<std::uint64_t>(a) + static_cast<std::uint64_t>(b));
  return sum == L::min() ? L::max() : sum;
}

struct ProductUnscaled {  // 0
  template <class D>
  static HWY_INLINE Nothing at(D, int) {
    return {};
  }
  template <class D, class V>
  static HWY_INLINE hn::Vec<D> apply(D dp, Nothing, V re, V im) {
    return saturatedParts(dp, re, im);
  }
};

struct ProductUp {  // 0 and less
  template <class D>
  static HWY_INLINE ScaleUp<D> at(D dp, int scaleFactor) {
    return ScaleUp<D>::make(dp, scaleFactor);
  }
  template <class D, class V>
  static HWY_INLINE hn::Vec<D> apply(D dp, const ScaleUp<D>& up, V re, V im) {
    return up(saturatedParts(dp, re, im));
  }
};

struct ProductDown {  // 1 and more
  template <class D>
  static HWY_INLINE auto at(D, int scaleFactor) {
    const hn::RepartitionToWide<D> dw;
    return RoundAny<hn::RepartitionToWide<D>>::make(dw, scaleFactor);
  }
  template <class D, class K, class V>
  static HWY_INLINE hn::Vec<D> apply(D dp, const K& round, V re, V im) {
    return saturatedParts(dp, round(re), round(im));
  }
};

template <class T, class How>
struct Product {
  static constexpr std::size_t kPeriod = 1;
  static constexpr std::size_t kUnroll = 2;
  static constexpr std::size_t kVectorBytes = 64;
  int scaleFactor;

  template <class D>
  HWY_INLINE auto at(D, std::size_t) const {
    return How::at(PartTag<T, D>(), scaleFactor);
  }
  template <class D, class K, class V>
  HWY_INLINE V vector(D d, const K& k, V a, V b) const {
    const auto re = differencesOfProducts<T>(d, b, a);
    const auto im = unwrapped(d, sumsOfProducts<T>(d, b, exchanged(d, a)));
    return hn::BitCast(d, How::apply(PartTag<T, D>(), k, re, im));
  }
  HWY_INLINE BitsOf<T> scalar(std::size_t, BitsOf<T> a, BitsOf<T> b) const {
    const T x = fromBits<T>(a), y = fromBits<T>(b);
    const std::int64_t re = std::int64_t{x.re} * y.re - std::int64_t{x.im} * y.im;
    const std::int64_t im = exactSum(std::int64_t{x.re} * y.im, std::int64_t{x.im} * y.re);
    return toBits(T{scaled<PartOf<T>>(re, scaleFactor), scaled<PartOf<T>>(im, scaleFactor)});
  }
};

template <class T>
struct Products {
  template <bool kFlat, class Run>
  static HWY_INLINE void run(int sf, const Run& f) {
    if (kFlat && sf == 0) return f(Product<T, ProductUnscaled>{sf});
    if (sf <= 0) return f(Product<T, ProductUp>{sf});
    f(Product<T, ProductDown>{sf});
  }
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
