// What the kernels of the box filter share: sums of rows that lie apart in memory or are the same
// row shifted by pixels, and stores of means.
#if defined(KELI_BOX_BOX_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_BOX_BOX_INL_H_
#undef KELI_BOX_BOX_INL_H_
#else
#define KELI_BOX_BOX_INL_H_
#endif

#include "box/box_rows.h"
#include "core/simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class Cell>
HWY_INLINE Cell* cellsAt(const box::BoxRows& r, std::size_t row) {
  return reinterpret_cast<Cell*>(r.scratch) + row * static_cast<std::size_t>(box::cellsOfRow(r));
}

// The first sample of the row that lies `below` rows under the first row of the mask of row y.
template <class T>
HWY_INLINE const T* maskRow(const box::BoxRows& r, std::size_t y, std::size_t below) {
  return r.b.srcRow<T>(0, y + below);
}

// Up to a vector of samples.
template <class D>
HWY_INLINE hn::Vec<D> loadUpTo(D d, const hn::TFromD<D>* p, std::size_t count) {
  return count >= hn::MaxLanes(D()) ? hn::LoadU(d, p) : loadFirst(d, p, count);
}

// Stores lanes whose first is sample number i of its row.
template <bool kKeepsFourth, class D>
HWY_INLINE void put(D d, hn::Vec<D> v, hn::TFromD<D>* dst, std::size_t i) {
  constexpr std::size_t kN = hn::MaxLanes(D());
  if constexpr (kKeepsFourth) {
    storeWhere(d, cycleMask<4, 3>(d, kN % 4 == 0 ? 0 : i % 4), v, dst + i);
  } else {
    hn::StoreU(v, d, dst + i);
  }
}

template <bool kKeepsFourth, class D>
HWY_INLINE void putFirst(D d, hn::Vec<D> v, hn::TFromD<D>* dst, std::size_t i, std::size_t count) {
  if constexpr (kKeepsFourth) {
    v = hn::IfThenElse(cycleMask<4, 3>(d, 0), v, loadFirst(d, dst + i, count));
  }
  storeFirst(d, v, dst + i, count);
}

// Rows to be added, in their order.
template <class Cell>
struct Terms {
  static constexpr std::size_t kMost = 3 * 16;
  const Cell* row[kMost];
  std::size_t count = 0;

  void add(const Cell* p) { row[count++] = p; }
};

// The sums of the terms, of n samples: sink.put(i, v) for whole vectors, sink.putFirst(i, v, count)
// for the last. kCount: of terms, or 0 if it is known when running.
template <std::size_t kCount, class D, class Sink>
HWY_INLINE void sumTerms(D d, const Terms<hn::TFromD<D>>& terms, std::size_t n, const Sink& sink) {
  constexpr std::size_t kN = hn::MaxLanes(D());
  std::size_t i = 0;
  for (; i + 4 * kN <= n; i += 4 * kN) {
    const auto* p = terms.row[0] + i;
    auto a = hn::LoadU(d, p), b = hn::LoadU(d, p + kN);
    auto c = hn::LoadU(d, p + 2 * kN), e = hn::LoadU(d, p + 3 * kN);
    const auto add = [&](std::size_t t) KELI_LAMBDA {
      p = terms.row[t] + i;
      a = a + hn::LoadU(d, p);
      b = b + hn::LoadU(d, p + kN);
      c = c + hn::LoadU(d, p + 2 * kN);
      e = e + hn::LoadU(d, p + 3 * kN);
    };
    if constexpr (kCount != 0) {
      unrolled<kCount - 1>([&](auto t) KELI_LAMBDA { add(t + 1); });
    } else {
      for (std::size_t t = 1; t < terms.count; ++t) add(t);
    }
    sink.put(i, a);
    sink.put(i + kN, b);
    sink.put(i + 2 * kN, c);
    sink.put(i + 3 * kN, e);
  }
  for (; i < n; i += kN) {
    const std::size_t count = n - i;
    auto a = loadUpTo(d, terms.row[0] + i, count);
    for (std::size_t t = 1; t < terms.count; ++t) a = a + loadUpTo(d, terms.row[t] + i, count);
    if (count >= kN) {
      sink.put(i, a);
    } else {
      sink.putFirst(i, a, count);
    }
  }
}

// The same, faster for the numbers of terms of small masks.
template <class D, class Sink>
HWY_INLINE void sumFewTerms(D d, const Terms<hn::TFromD<D>>& terms, std::size_t n,
                            const Sink& sink) {
  if (terms.count == 3) return sumTerms<3>(d, terms, n, sink);
  if (terms.count == 5) return sumTerms<5>(d, terms, n, sink);
  sumTerms<0>(d, terms, n, sink);
}

// Into cells, of which the last vector may lie beyond the row.
template <class D>
struct ToCells {
  hn::TFromD<D>* cells;

  HWY_INLINE void put(std::size_t i, hn::Vec<D> v) const { hn::StoreU(v, D(), cells + i); }
  HWY_INLINE void putFirst(std::size_t i, hn::Vec<D> v, std::size_t) const { put(i, v); }
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
