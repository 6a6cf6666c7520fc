// Rows of floats to vectors of columns, and back: what batches of transforms along rows need.
#if defined(KELI_FFT_TILES_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_FFT_TILES_INL_H_
#undef KELI_FFT_TILES_INL_H_
#else
#define KELI_FFT_TILES_INL_H_
#endif

#include "core/settled.h"
#include "core/simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

#if HWY_TARGET != HWY_SCALAR
// Four floats of rows i, i + 4, i + 8, ... as the 16-byte blocks of a vector.
template <class D, class Rows>
HWY_INLINE hn::Vec<D> loadBlocks(D d, const Rows& rows, std::size_t i, std::size_t x) {
  constexpr std::size_t kN = hn::MaxLanes(D());
  if constexpr (kN <= 4) {
    return hn::LoadU(d, rows[i] + x);
  } else {
    const hn::Half<D> dh;
    return hn::Combine(d, loadBlocks(dh, rows, i + kN / 2, x), loadBlocks(dh, rows, i, x));
  }
}

template <class D, class Rows>
HWY_INLINE void storeBlocks(D d, hn::Vec<D> v, const Rows& rows, std::size_t i, std::size_t x) {
  constexpr std::size_t kN = hn::MaxLanes(D());
  if constexpr (kN <= 4) {
    hn::StoreU(v, d, rows[i] + x);
  } else {
    const hn::Half<D> dh;
    storeBlocks(dh, hn::LowerHalf(dh, v), rows, i, x);
    storeBlocks(dh, hn::UpperHalf(dh, v), rows, i + kN / 2, x);
  }
}

// Exchanges rows and columns of the 4 x 4 floats that the blocks of four vectors hold.
template <class D>
HWY_INLINE void exchangeBlocks(D d, hn::Vec<D> (&v)[4]) {
  // As integers, whose shuffles have more units than those of floats.
  const hn::RebindToUnsigned<D> du;
  const hn::RepartitionToWide<decltype(du)> dw;
  const auto v0 = hn::BitCast(du, v[0]), v1 = hn::BitCast(du, v[1]), v2 = hn::BitCast(du, v[2]),
             v3 = hn::BitCast(du, v[3]);
  const auto low01 = hn::BitCast(dw, hn::InterleaveLower(du, v0, v1));
  const auto low23 = hn::BitCast(dw, hn::InterleaveLower(du, v2, v3));
  const auto high01 = hn::BitCast(dw, hn::InterleaveUpper(du, v0, v1));
  const auto high23 = hn::BitCast(dw, hn::InterleaveUpper(du, v2, v3));
  v[0] = hn::BitCast(d, hn::InterleaveLower(dw, low01, low23));
  v[1] = hn::BitCast(d, hn::InterleaveUpper(dw, low01, low23));
  v[2] = hn::BitCast(d, hn::InterleaveLower(dw, high01, high23));
  v[3] = hn::BitCast(d, hn::InterleaveUpper(dw, high01, high23));
}

// Exchanges rows and columns of the 16-byte blocks of two or four vectors.
template <class D>
HWY_INLINE void exchangeWholeBlocks(D d, hn::Vec<D>& a, hn::Vec<D>& b) {
  const hn::Vec<D> low = hn::ConcatLowerLower(d, b, a);
  b = hn::ConcatUpperUpper(d, b, a);
  a = low;
}
template <class D>
HWY_INLINE void exchangeWholeBlocks(D d, hn::Vec<D>& a, hn::Vec<D>& b, hn::Vec<D>& c,
                                    hn::Vec<D>& e) {
  exchangeWholeBlocks(d, a, c);
  exchangeWholeBlocks(d, b, e);
  const auto pair = [](hn::Vec<D>& even, hn::Vec<D>& odd) KELI_LAMBDA {
    const hn::Vec<D> first = hn::OddEvenBlocks(hn::SwapAdjacentBlocks(odd), even);
    odd = hn::OddEvenBlocks(odd, hn::SwapAdjacentBlocks(even));
    even = first;
  };
  pair(a, b);
  pair(c, e);
}

// Exchanges rows and columns of a square of as many vectors as they have lanes: whole cache lines
// are read and written at once, as rows a power of two apart share few places of the caches.
template <class D, std::size_t kN>
HWY_INLINE void exchangeSquare(D d, hn::Vec<D> (&v)[kN]) {
  if constexpr (kN == 16) {
    unrolled<4>([&](auto i)
                    KELI_LAMBDA { exchangeWholeBlocks(d, v[i], v[i + 4], v[i + 8], v[i + 12]); });
  } else if constexpr (kN == 8) {
    unrolled<4>([&](auto i) KELI_LAMBDA { exchangeWholeBlocks(d, v[i], v[i + 4]); });
  }
  unrolled<kN / 4>([&](auto b) KELI_LAMBDA {
    hn::Vec<D> four[4];
    unrolled<4>([&](auto i) KELI_LAMBDA { four[i] = v[4 * b + i]; });
    exchangeBlocks(d, four);
    unrolled<4>([&](auto i) KELI_LAMBDA { v[4 * b + i] = four[i]; });
  });
}
#endif  // HWY_TARGET != HWY_SCALAR

// Column x of as many rows as D has lanes, for all x < n, to the vector at(x).
template <class D, class At>
HWY_INLINE void readRows(D d, const float* const* rows, std::size_t n, const At& at) {
  constexpr std::size_t kN = hn::MaxLanes(D());
  std::size_t x = 0;
  if constexpr (kN >= 4) {
    for (; x + kN <= n; x += kN) {
      hn::Vec<D> v[kN];
      unrolled<kN>([&](auto i) KELI_LAMBDA { v[i] = hn::LoadU(d, rows[i] + x); });
      exchangeSquare(d, v);
      unrolled<kN>([&](auto i) KELI_LAMBDA { hn::Store(v[i], d, at(x + i)); });
    }
    for (; x + 4 <= n; x += 4) {
      hn::Vec<D> v[4];
      unrolled<4>([&](auto i) KELI_LAMBDA { v[i] = loadBlocks(d, rows, i, x); });
      exchangeBlocks(d, v);
      unrolled<4>([&](auto i) KELI_LAMBDA { hn::Store(v[i], d, at(x + i)); });
    }
  }
  for (; x < n; ++x) {
    float* const column = at(x);
    for (std::size_t i = 0; i < kN; ++i) column[i] = load(rows[i] + x);
  }
}

// The way back, each sample multiplied.
template <class D, class At>
HWY_INLINE void writeRows(D d, float* const* rows, std::size_t n, float scale, const At& at) {
  constexpr std::size_t kN = hn::MaxLanes(D());
  const auto factor = hn::Set(d, scale);
  std::size_t x = 0;
  if constexpr (kN >= 4) {
    for (; x + kN <= n; x += kN) {
      hn::Vec<D> v[kN];
      unrolled<kN>([&](auto i)
                       KELI_LAMBDA { v[i] = settledLanes(d, hn::Load(d, at(x + i)) * factor); });
      exchangeSquare(d, v);
      unrolled<kN>([&](auto i) KELI_LAMBDA { hn::StoreU(v[i], d, rows[i] + x); });
    }
    for (; x + 4 <= n; x += 4) {
      hn::Vec<D> v[4];
      unrolled<4>([&](auto i)
                      KELI_LAMBDA { v[i] = settledLanes(d, hn::Load(d, at(x + i)) * factor); });
      exchangeBlocks(d, v);
      unrolled<4>([&](auto i) KELI_LAMBDA { storeBlocks(d, v[i], rows, i, x); });
    }
  }
  for (; x < n; ++x) {
    const float* const column = at(x);
    for (std::size_t i = 0; i < kN; ++i) store(settled(column[i] * scale), rows[i] + x);
  }
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
