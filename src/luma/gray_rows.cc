// Row kernels of RGBToGray and ColorToGray. Bytes: (w0 c0 + w1 c1 + w2 c2) >> 12 with weights in
// units of 1 / 4096, exact and saturated. Other samples: w0 c0 + w1 c1 + w2 c2 in single precision
// in this order, integers rounded to nearest, ties to even, and saturated, with what is no number
// at the upper end.
#include "luma/gray.h"

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "luma/gray_rows.cc"
#include <hwy/foreach_target.h>
//
#include "color/products-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// Weights of any size.
struct GrayOfWords : Rounded {
  std::array<std::int32_t, 3> weights;

  template <class D>
  HWY_INLINE Channels<D, 1> operator()(D d, const Channels<D>& in) const {
    const auto c = [&](std::size_t k) KELI_LAMBDA { return in[k] * hn::Set(d, weights[k]); };
    return {hn::ShiftRight<12>(c(0) + c(1) + c(2))};
  }
};

// Weights of at most kMost in size, which fit 16 bits, and two digits of 8 in base 128.
struct GrayOfBytes {
  static constexpr bool kOnce = true;
  static constexpr std::int32_t kMost = 127 * 128;
  WordPixels<Kel8u, GrayOfWords> any;

  template <class D>
  HWY_INLINE Channels<D, 1> vector(D d, const Channels<D>& in) const {
    const hn::Repartition<std::int32_t, D> dw;
    const auto& w = any.formula.weights;
    const auto first = factorPair(d, w[0], w[1]), second = factorPair(d, w[2], 0);
    const Pairs<D> a = pairs(d, in[0], in[1]), b = pairs(d, in[2], hn::Zero(d));
    return {bytesOf(d, shiftedSums<12>(d, [&](auto p) KELI_LAMBDA {
                      return addProductsOfPairs(dw, multiplyAddPairs(dw, a[p], first), b[p],
                                                second);
                    }))};
  }
  // By digits of 7 bits, for products of bytes.
  static constexpr bool kFours = true;
  template <class D>
  HWY_INLINE std::array<hn::Vec<D>, 1> fours(D d, const hn::Vec<D> (&in)[4]) const {
    const PairTag<D> dp;
    const hn::Repartition<std::int32_t, D> dw;
    const auto high = digits(d, [](std::int32_t w) { return (w + 64) >> 7; }),
               low = digits(d, [](std::int32_t w) { return ((w + 64) & 127) - 64; });
    hn::Vec<decltype(dw)> gray[4];
    unrolled<4>([&](auto j) KELI_LAMBDA {
      const auto sum = addProductsOfFours(dw, hn::Zero(dw), in[j], high);
      gray[j] = hn::ShiftRight<12>(addProductsOfFours(dw, hn::ShiftLeft<7>(sum), in[j], low));
    });
    return {
        packSaturated(d, packSaturated(dp, gray[0], gray[1]), packSaturated(dp, gray[2], gray[3]))};
  }

  // A signed byte of each weight in the bytes of a pixel of four.
  template <class D, class F>
  HWY_INLINE hn::Vec<hn::RebindToSigned<D>> digits(D, const F& digit) const {
    std::uint32_t bytes = 0;
    for (std::size_t k = 0; k < 3; ++k)
      bytes |= (static_cast<std::uint32_t>(digit(any.formula.weights[k])) & 0xFF) << 8 * k;
    const hn::Repartition<std::uint32_t, D> dw;
    return hn::BitCast(hn::RebindToSigned<D>(), hn::Set(dw, bytes));
  }
  HWY_INLINE auto scalar(const std::array<Kel8u, 3>& in) const { return any.scalar(in); }
};

template <class T>
struct GrayOfReals {
  static constexpr bool kOnce = !std::is_floating_point_v<T>;

  luma::Weights weights;

  template <class DF>
  HWY_INLINE hn::Vec<DF> sum(DF df, hn::Vec<DF> c0, hn::Vec<DF> c1, hn::Vec<DF> c2) const {
    return hn::Set(df, weights[0]) * c0 + hn::Set(df, weights[1]) * c1 +
           hn::Set(df, weights[2]) * c2;
  }

  template <class D>
  HWY_INLINE Channels<D, 1> vector(D d, const Channels<D>& in) const {
    if constexpr (std::is_floating_point_v<T>) {
      return {settledLanes(d, sum(d, in[0], in[1], in[2]))};
    } else {
      using L = std::numeric_limits<T>;
      const WideTag<D> dw;
      const hn::RebindToSigned<WideTag<D>> di;
      const hn::RebindToFloat<WideTag<D>> df;
      const auto real = [&](auto v) KELI_LAMBDA { return hn::ConvertTo(df, hn::BitCast(di, v)); };
      const auto gray = [&](auto c0, auto c1, auto c2) KELI_LAMBDA {
        auto v = lessElse(sum(df, real(c0), real(c1), real(c2)), hn::Set(df, L::max()));
        v = greaterElse(v, hn::Set(df, L::min()));
        return hn::BitCast(dw, roundToInt(di, v));
      };
      const Wide<D> c[3] = {widen(d, in[0]), widen(d, in[1]), widen(d, in[2])};
      Wide<D> wide;
      wide.lo = gray(c[0].lo, c[1].lo, c[2].lo);
      if constexpr (kTwoHalves<D>) wide.hi = gray(c[0].hi, c[1].hi, c[2].hi);
      return {narrow(d, wide)};
    }
  }
  HWY_INLINE auto scalar(const std::array<T, 3>& in) const { return onOneLane(*this, in); }
};

template <class T, Layout kFrom>
void ownColorToGray(const PlanesBand& b, const luma::Weights& weights) {
  const auto map = [&](const auto& op)
                       KELI_LAMBDA { mapPixels<kFrom, Layout::C1, T, T, 64>(b, op); };
  if constexpr (std::is_same_v<T, Kel8u>) {
    WordPixels<Kel8u, GrayOfWords> any;
    bool narrow = true;
    for (std::size_t k = 0; k < 3; ++k) {
      const std::int32_t w = any.formula.weights[k] = luma::fixedWeight(weights[k]);
      narrow = narrow && -GrayOfBytes::kMost <= w && w <= GrayOfBytes::kMost;
    }
    if (narrow) {
      map(GrayOfBytes{any});
    } else {
      map(any);
    }
  } else {
    map(GrayOfReals<T>{weights});
  }
}

template <class T>
constexpr luma::GrayKernels kGray = {ownColorToGray<T, Layout::C3>, ownColorToGray<T, Layout::AC4>};

constexpr luma::GrayKernels kGray8u = kGray<Kel8u>;
constexpr luma::GrayKernels kGray16u = kGray<Kel16u>;
constexpr luma::GrayKernels kGray16s = kGray<Kel16s>;
constexpr luma::GrayKernels kGray32f = kGray<Kel32f>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::luma {
template <>
KELI_SELECT_ROWS(GrayKernels, kGray8u, grayKernels<Kel8u>)
template <>
KELI_SELECT_ROWS(GrayKernels, kGray16u, grayKernels<Kel16u>)
template <>
KELI_SELECT_ROWS(GrayKernels, kGray16s, grayKernels<Kel16s>)
template <>
KELI_SELECT_ROWS(GrayKernels, kGray32f, grayKernels<Kel32f>)
}  // namespace keli::luma
#endif
