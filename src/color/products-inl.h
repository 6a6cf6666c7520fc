// Pixels of bytes times a matrix of integers: result k is (factors . channels + offset) >> shift,
// saturated, which is exact. Two channels stand side by side in the halves of a 32-bit lane, so
// that one instruction makes both products and their sum.
//
// A matrix has kShift, at most 16, and kRows, an array of ProductRow. A factor that does not fit 16
// bits is a multiple of 2^shift, which passes the shift and is added after it, and a rest that
// fits.
#if defined(KELI_COLOR_PRODUCTS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_COLOR_PRODUCTS_INL_H_
#undef KELI_COLOR_PRODUCTS_INL_H_
#else
#define KELI_COLOR_PRODUCTS_INL_H_
#endif

#include "color/lanes-inl.h"
#include "color/product_row.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// Bytes in signed lanes of 16 bits.
template <class D>
using Words = Wide<hn::RebindToSigned<D>>;
template <class D>
using WordTag = WideTag<hn::RebindToSigned<D>>;

template <class D>
HWY_INLINE Words<D> wordsOf(D d, hn::Vec<D> bytes) {
  const WordTag<D> dw;
  const Wide<D> words = widen(d, bytes);
  return {hn::BitCast(dw, words.lo), hn::BitCast(dw, words.hi)};
}

// f(d, words...) of the 16-bit lanes of each.
template <class D, class F, class... W>
HWY_INLINE Words<D> mapHalves(D, const F& f, const W&... words) {
  const WordTag<D> dw;
  Words<D> result;
  result.lo = f(dw, words.lo...);
  if constexpr (kTwoHalves<D>) result.hi = f(dw, words.hi...);
  return result;
}

template <class D>
HWY_INLINE hn::Vec<D> bytesOf(D d, const Words<D>& words) {
  const WideTag<D> du;
  return narrow(d, Wide<D>{hn::BitCast(du, words.lo), hn::BitCast(du, words.hi)});
}

// Two channels of whole vectors of bytes, a in the lower halves of the 32-bit lanes of four vectors
// and b in the upper ones.
template <class D>
using PairTag = hn::Repartition<std::int16_t, D>;
template <class D>
using Pairs = std::array<hn::Vec<PairTag<D>>, 4>;

template <class D>
HWY_INLINE Pairs<D> pairs(D d, hn::Vec<D> a, hn::Vec<D> b) {
  const PairTag<D> dp;
  const auto zero = hn::Zero(d);
  const Zipped<D> both = zip(d, a, b);
  const Zipped<D> lo = zip(d, both.lo, zero), hi = zip(d, both.hi, zero);
  return {hn::BitCast(dp, lo.lo), hn::BitCast(dp, lo.hi), hn::BitCast(dp, hi.lo),
          hn::BitCast(dp, hi.hi)};
}

// A vector of pairs of factors.
template <class D>
HWY_INLINE hn::Vec<PairTag<D>> factorPair(D, std::int32_t a, std::int32_t b) {
  const hn::Repartition<std::int32_t, D> dw;
  const std::uint32_t halves =
      (static_cast<std::uint32_t>(a) & 0xFFFF) | static_cast<std::uint32_t>(b) << 16;
  return hn::BitCast(PairTag<D>(), hn::Set(dw, static_cast<std::int32_t>(halves)));
}

// sum(p) >> kShift of the 32-bit lanes of each part p of four, saturated to 16 bits.
template <int kShift, class D, class F>
HWY_INLINE Words<D> shiftedSums(D, const F& sum) {
  const PairTag<D> dp;
  const auto part = [&](auto p) KELI_LAMBDA { return hn::ShiftRight<kShift>(sum(p)); };
  return {packSaturated(dp, part(std::integral_constant<std::size_t, 0>()),
                        part(std::integral_constant<std::size_t, 1>())),
          packSaturated(dp, part(std::integral_constant<std::size_t, 2>()),
                        part(std::integral_constant<std::size_t, 3>()))};
}

// The rows of a matrix for a pixel's channels, before they are saturated to bytes.
template <class Matrix, class D>
HWY_INLINE auto productRows(D d, const Channels<D>& in) {
  constexpr std::size_t kCount = std::size(Matrix::kRows);
  constexpr int kShift = Matrix::kShift;
  std::array<Words<D>, kCount> out;
  if constexpr (kTwoHalves<D>) {
    const hn::Repartition<std::int32_t, D> dw;
    const WordTag<D> d16;
    const Pairs<D> first = pairs(d, in[0], in[1]), second = pairs(d, in[2], hn::Zero(d));
    unrolled<kCount>([&](auto k) KELI_LAMBDA {
      constexpr color::SplitRow kRow(Matrix::kRows[k], kShift);
      static_assert(kRow.fits(kShift), "a sum leaves its lane");
      out[k] = shiftedSums<kShift>(d, [&](auto p) KELI_LAMBDA {
        auto sum = addProductsOfPairs(dw, hn::Set(dw, kRow.offset), first[p],
                                      factorPair(d, kRow.rest[0], kRow.rest[1]));
        if constexpr (kRow.rest[2] != 0) {
          sum = addProductsOfPairs(dw, sum, second[p], factorPair(d, kRow.rest[2], 0));
        }
        return sum;
      });
      unrolled<3>([&](auto c) KELI_LAMBDA {
        constexpr std::int16_t kWhole = kRow.whole[c];
        if constexpr (kWhole != 0) {
          out[k] = mapHalves(
              d,
              [&](auto, auto sum, auto v) KELI_LAMBDA {
                return kWhole == 1 ? sum + v
                                   : (kWhole == -1 ? sum - v : sum + v * hn::Set(d16, kWhole));
              },
              out[k], wordsOf(d, in[c]));
        }
      });
    });
  } else {
    const hn::Rebind<std::int32_t, D> dw;
    unrolled<kCount>([&](auto k) KELI_LAMBDA {
      auto sum = hn::Set(dw, Matrix::kRows[k].offset);
      for (std::size_t c = 0; c < 3; ++c) {
        sum = sum + hn::PromoteTo(dw, in[c]) * hn::Set(dw, Matrix::kRows[k].factors[c]);
      }
      out[k].lo = hn::DemoteTo(WordTag<D>(), hn::ShiftRight<kShift>(sum));
    });
  }
  return out;
}

// The rows of a matrix of three for pixels of four bytes: blocks of four pixels, row by row.
template <class Matrix, class D>
HWY_INLINE hn::Vec<D> productFours(D d, hn::Vec<D> pixels) {
  const hn::Repartition<std::int32_t, D> dw;
  const hn::Repartition<std::int8_t, D> di;
  const PairTag<D> dp;
  const hn::RebindToUnsigned<PairTag<D>> du;
  const auto words = hn::BitCast(du, pixels);
  const auto even = hn::BitCast(dp, words & hn::Set(du, 0xFF)),
             odd = hn::BitCast(dp, hn::ShiftRight<8>(words));
  hn::Vec<decltype(dw)> rows[3];
  unrolled<3>([&](auto k) KELI_LAMBDA {
    constexpr color::SplitRow kRow(Matrix::kRows[k], Matrix::kShift);
    auto sum = addProductsOfPairs(dw, hn::Set(dw, kRow.offset), even,
                                  factorPair(d, kRow.rest[0], kRow.rest[2]));
    if constexpr (kRow.rest[1] != 0) {
      sum = addProductsOfPairs(dw, sum, odd, factorPair(d, kRow.rest[1], 0));
    }
    rows[k] = hn::ShiftRight<Matrix::kShift>(sum);
    constexpr std::int32_t kWhole = kRow.wholeBytes();
    if constexpr (kWhole != 0) {
      rows[k] = addProductsOfFours(dw, rows[k], pixels, hn::BitCast(di, hn::Set(dw, kWhole)));
    }
  });
  return packSaturated(d, packSaturated(dp, rows[0], rows[1]), packSaturated(dp, rows[2], rows[2]));
}

// An operation of core/pixels-inl.h: bytes to as many channels as the matrix has rows.
template <class Matrix>
struct ProductPixels {
  static constexpr bool kOnce = true;

  template <class D>
  HWY_INLINE auto vector(D d, const Channels<D>& in) const {
    const auto rows = productRows<Matrix>(d, in);
    Channels<D, kResults<decltype(rows)>> out;
    unrolled<kResults<decltype(rows)>>([&](auto k) KELI_LAMBDA { out[k] = bytesOf(d, rows[k]); });
    return out;
  }
  static constexpr bool kFours = std::size(Matrix::kRows) == 3;
  template <class D>
  HWY_INLINE std::array<hn::Vec<D>, 4> fours(D d, const hn::Vec<D> (&in)[4]) const {
    std::array<hn::Vec<D>, 4> out;
    unrolled<4>([&](auto j) KELI_LAMBDA { out[j] = productFours<Matrix>(d, in[j]); });
    return out;
  }
  HWY_INLINE auto scalar(const std::array<Kel8u, 3>& in) const { return onOneLane(*this, in); }
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
