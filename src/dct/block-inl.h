// 8 x 8 cosine transforms in single precision, lanes side by side: the factorisation of Arai, Agui
// and Nakajima ("A fast DCT-SQ scheme for images", 1988), whose outputs lack a factor each, and its
// transpose. Its rotation is in four products: as many operations as in three, but fewer in a row.
// Every sum and product is rounded by itself, in one order on all targets.
#if defined(KELI_DCT_BLOCK_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_DCT_BLOCK_INL_H_
#undef KELI_DCT_BLOCK_INL_H_
#else
#define KELI_DCT_BLOCK_INL_H_
#endif

#include <algorithm>

#include "core/simd-inl.h"
#include "core/types.h"

#ifndef KELI_DCT_FACTORS
#define KELI_DCT_FACTORS
namespace keli::dct {

// Of coefficient (u, v), at 8 v + u: the product of those of both dimensions, 1 / sqrt(8) for 0 and
// 1 / (4 cos(k pi / 16)) for k > 0; divided by the unit of the samples.
constexpr std::array<float, 64> blockFactors(double unit) {
  constexpr double kSide[8] = {0.35355339059327376, 0.25489778955207960, 0.27059805007309851,
                               0.30067244346752264, 0.35355339059327376, 0.44998811156820785,
                               0.65328148243818826, 1.28145772387075309};
  std::array<float, 64> all{};
  for (std::size_t i = 0; i < 64; ++i)
    all[i] = static_cast<float>(kSide[i / 8] * kSide[i % 8] / unit);
  return all;
}

// The numbers of words become floats times kWordUnit, which spares a shift and costs no digit.
constexpr float kWordUnit = 65536;

struct OfFloats {
  alignas(64) static constexpr std::array<float, 64> kFactors = blockFactors(1);
};
struct OfWords {
  alignas(64) static constexpr std::array<float, 64> kFactors = blockFactors(kWordUnit);
};
static_assert(OfFloats::kFactors[0] == 0.125f && OfFloats::kFactors[4] == 0.125f &&
                  OfFloats::kFactors[36] == 0.125f,
              "quotients by eight are exact");

}  // namespace keli::dct
#endif

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// A coefficient that is 0. Sums and products with it are made when compiling.
struct Nothing {};
HWY_INLINE Nothing operator+(Nothing, Nothing) { return {}; }
HWY_INLINE Nothing operator-(Nothing, Nothing) { return {}; }
template <class V>
HWY_INLINE V operator+(V a, Nothing) {
  return a;
}
template <class V>
HWY_INLINE V operator-(V a, Nothing) {
  return a;
}
template <class V>
HWY_INLINE Nothing operator*(V, Nothing) {
  return {};
}

template <std::size_t k>
using Index = std::integral_constant<std::size_t, k>;

// cos(k pi / 16).
constexpr float kCos2 = 0.92387953251128674f, kCos4 = 0.70710678118654752f;
constexpr float kCos6 = 0.38268343236508977f;

// Eight samples to coefficients without their factors.
template <class D, class V = hn::Vec<D>>
HWY_INLINE void forwardLanes(D d, V (&v)[8]) {
  const auto cos2 = hn::Set(d, kCos2), cos4 = hn::Set(d, kCos4), cos6 = hn::Set(d, kCos6);
  const V s0 = v[0] + v[7], s1 = v[1] + v[6], s2 = v[2] + v[5], s3 = v[3] + v[4];
  const V d0 = v[0] - v[7], d1 = v[1] - v[6], d2 = v[2] - v[5], d3 = v[3] - v[4];

  const V outer = s0 + s3, inner = s1 + s2, e2 = s1 - s2, e3 = s0 - s3;
  const V turned = (e2 + e3) * cos4;
  v[0] = outer + inner;
  v[4] = outer - inner;
  v[2] = e3 + turned;
  v[6] = e3 - turned;

  const V t0 = d3 + d2, t1 = d2 + d1, t2 = d1 + d0;
  const V low = cos2 * t0 - cos6 * t2, high = cos6 * t0 + cos2 * t2;
  const V middle = t1 * cos4;
  const V plus = d0 + middle, minus = d0 - middle;
  v[1] = plus + high;
  v[7] = plus - high;
  v[5] = minus + low;
  v[3] = minus - low;
}

// Its transpose: eight coefficients times their factors, of which all from kUsed on are 0, to
// samples.
template <std::size_t kUsed, class D, class V = hn::Vec<D>>
HWY_INLINE void inverseLanes(D d, V (&v)[8]) {
  static_assert(kUsed >= 2);
  const auto at = [&](auto k) KELI_LAMBDA {
    if constexpr (k < kUsed) {
      return v[k];
    } else {
      return Nothing{};
    }
  };
  const V y0 = v[0], y1 = v[1];
  const auto y2 = at(Index<2>{});
  const auto y3 = at(Index<3>{});
  const auto y4 = at(Index<4>{});
  const auto y5 = at(Index<5>{});
  const auto y6 = at(Index<6>{});
  const auto y7 = at(Index<7>{});
  const auto cos2 = hn::Set(d, kCos2), cos4 = hn::Set(d, kCos4), cos6 = hn::Set(d, kCos6);

  const V e0 = y0 + y4, e1 = y0 - y4;
  const auto e2 = cos4 * (y2 - y6);
  const auto e3 = y2 + y6 + e2;
  const V s0 = e0 + e3, s3 = e0 - e3, s1 = e1 + e2, s2 = e1 - e2;

  const V plus = y1 + y7, high = y1 - y7;
  const auto minus = y3 + y5;
  const auto low = y3 - y5;
  const V middle = cos4 * (plus - minus);
  const V t0 = cos6 * high - cos2 * low, t2 = cos2 * high + cos6 * low;
  const V d3 = t0, d2 = t0 + middle, d1 = middle + t2, d0 = plus + minus + t2;

  v[0] = s0 + d0;
  v[7] = s0 - d0;
  v[1] = s1 + d1;
  v[6] = s1 - d1;
  v[2] = s2 + d2;
  v[5] = s2 - d2;
  v[3] = s3 + d3;
  v[4] = s3 - d3;
}

// A block is walked in parts of as many rows or columns as a vector has lanes.
using Lanes = hn::CappedTag<float, 8>;
constexpr std::size_t kLanes = hn::MaxLanes(Lanes());

#if HWY_TARGET != HWY_SCALAR
// Four floats of row y in the first block of 16 bytes and of row y + 4 in the second.
template <class D>
HWY_INLINE hn::Vec<D> loadBlocks(D d, const float* p, std::size_t y) {
  if constexpr (hn::MaxLanes(D()) == 8) {
    const hn::Half<D> dh;
    return hn::Combine(d, hn::LoadU(dh, p + 8 * (y + 4)), hn::LoadU(dh, p + 8 * y));
  } else {
    return hn::LoadU(d, p + 8 * y);
  }
}

// Exchanges rows and columns of the 4 x 4 floats that the blocks of four vectors hold: as integers,
// whose lanes two units of the processor interleave, and those of floats only one.
template <class D, class V = hn::Vec<D>>
HWY_INLINE void exchangeBlocks(D d, V& v0, V& v1, V& v2, V& v3) {
  const hn::RebindToUnsigned<D> du;
  const hn::RepartitionToWide<decltype(du)> dw;
  const auto u0 = hn::BitCast(du, v0), u1 = hn::BitCast(du, v1);
  const auto u2 = hn::BitCast(du, v2), u3 = hn::BitCast(du, v3);
  const auto low01 = hn::BitCast(dw, hn::InterleaveLower(du, u0, u1));
  const auto low23 = hn::BitCast(dw, hn::InterleaveLower(du, u2, u3));
  const auto high01 = hn::BitCast(dw, hn::InterleaveUpper(du, u0, u1));
  const auto high23 = hn::BitCast(dw, hn::InterleaveUpper(du, u2, u3));
  v0 = hn::BitCast(d, hn::InterleaveLower(dw, low01, low23));
  v1 = hn::BitCast(d, hn::InterleaveUpper(dw, low01, low23));
  v2 = hn::BitCast(d, hn::InterleaveLower(dw, high01, high23));
  v3 = hn::BitCast(d, hn::InterleaveUpper(dw, high01, high23));
}
#endif

// Columns 0 .. kColumns - 1 of as many rows of eight floats as there are lanes, four or eight.
template <std::size_t kColumns, class D, class V = hn::Vec<D>>
HWY_INLINE void readColumns(D d, const float* p, V (&v)[8]) {
#if HWY_TARGET != HWY_SCALAR
  unrolled<kColumns / 4>([&](auto half) KELI_LAMBDA {
    V* const four = v + 4 * half;
    unrolled<4>([&](auto k) KELI_LAMBDA { four[k] = loadBlocks(d, p + 4 * half, k); });
    exchangeBlocks(d, four[0], four[1], four[2], four[3]);
  });
#else
  unrolled<kColumns>([&](auto k) KELI_LAMBDA { v[k] = hn::Set(d, load(p + k)); });
#endif
}

template <class D, class V>
HWY_INLINE void storeRows(D d, const V (&v)[8], float* p) {
  unrolled<8>([&](auto k) KELI_LAMBDA { hn::StoreU(v[k], d, p + 8 * k); });
}

// Multiplies coefficients from column or row `part` on by their factors, which are the same for
// both.
template <class Factors, std::size_t kUsed, class D, class V>
HWY_INLINE void scaleLanes(D d, std::size_t part, V (&v)[8]) {
  const float* const factors = Factors::kFactors.data() + part;
  unrolled<kUsed>([&](auto k) KELI_LAMBDA { v[k] = v[k] * hn::LoadU(d, factors + 8 * k); });
}

template <class T>
HWY_INLINE T* rowAt(T* p, std::ptrdiff_t step, std::size_t y) {
  using Byte = std::conditional_t<std::is_const_v<T>, const std::uint8_t, std::uint8_t>;
  return reinterpret_cast<T*>(reinterpret_cast<Byte*>(p) + step * static_cast<std::ptrdiff_t>(y));
}

// Lanes rounded to the nearest integer, ties to even; below 2^22 in size. Of these floats the sum
// has its last digit in the place of 1.
template <class V>
HWY_INLINE auto nearestIntegers(Lanes d, V v) {
  const hn::RebindToSigned<Lanes> di;
  const auto shifted = v + hn::Set(d, 12582912.f);  // 1.5 * 2^23
  return hn::BitCast(di, shifted) - hn::Set(di, 0x4B400000);
}

#if HWY_TARGET != HWY_SCALAR
// Lanes of 32 bits of a vector with eight of them, in another order; of one with four as they are.
template <int... kOrder, class V>
HWY_INLINE V reordered(V v) {
  if constexpr (kLanes == 8) {
    const hn::Repartition<std::uint32_t, Lanes> d32;
    HWY_ALIGN static constexpr int kIndices[] = {kOrder...};
    const auto indices = hn::SetTableIndices(d32, kIndices);
    return hn::BitCast(hn::DFromV<V>(), hn::TableLookupLanes(hn::BitCast(d32, v), indices));
  }
  return v;
}
#endif

// Rounds the rows v, which begin at column `part`, and stores them as words, saturated.
template <class V>
HWY_INLINE void writeWords(Lanes d, std::size_t part, const V (&v)[8], Kel16s* dst,
                           std::ptrdiff_t step) {
#if HWY_TARGET != HWY_SCALAR
  const hn::Repartition<Kel16s, Lanes> dw;
  const hn::Half<decltype(dw)> dh;
  unrolled<4>([&](auto pair) KELI_LAMBDA {
    const auto first = nearestIntegers(d, v[2 * pair]);
    const auto second = nearestIntegers(d, v[2 * pair + 1]);
    const auto rows = reordered<0, 1, 4, 5, 2, 3, 6, 7>(packSaturated(dw, first, second));
    hn::StoreU(hn::LowerHalf(dh, rows), dh, rowAt(dst, step, 2 * pair) + part);
    hn::StoreU(hn::UpperHalf(dh, rows), dh, rowAt(dst, step, 2 * pair + 1) + part);
  });
#else
  unrolled<8>([&](auto k) KELI_LAMBDA {
    const int value = hn::GetLane(nearestIntegers(d, v[k]));
    store(static_cast<Kel16s>(std::clamp(value, -32768, 32767)), rowAt(dst, step, k) + part);
  });
#endif
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
