// Rows of extremes: each sample the extreme of those at some distances after its place in rows of
// scratch memory, from where the windows of one length follow from those of a shorter one.
//
// Rows of scratch memory hold ordered samples and room for some vectors after them, so that
// vectors may work beyond their end. Rows of images are met exactly, the last vector overlapping
// the one before it: an extreme is the same when it is taken twice.
#if defined(KELI_MORPHOLOGY_WINDOWS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_MORPHOLOGY_WINDOWS_INL_H_
#undef KELI_MORPHOLOGY_WINDOWS_INL_H_
#else
#define KELI_MORPHOLOGY_WINDOWS_INL_H_
#endif

#include <algorithm>

#include <hwy/cache_control.h>

#include "morphology/order-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

using morphology::Step;

template <class Lane, std::size_t kBytes = 64>
using LanesTag = hn::CappedTag<Lane, kBytes / sizeof(Lane)>;

// The least samples of a row that vectors of so many bytes are for: of the longest, two vectors.
// What overlaps a vector just stored waits for it, longer where the vectors are.
template <class Lane, std::size_t kBytes>
constexpr std::size_t kLeast = hn::MaxLanes(LanesTag<Lane, kBytes>()) *
                               (kBytes == 64 && HWY_MAX_BYTES >= 64 ? 2 : 1);

// Calls body(d, i) so that the vectors from each i on cover n samples of a row and no others; some
// meet samples that another has met.
template <class Lane, std::size_t kBytes = 64, class Body, class Last>
HWY_INLINE void overRow(std::size_t n, const Body& body, const Last& last) {
  const LanesTag<Lane, kBytes> d;
  constexpr std::size_t kN = hn::MaxLanes(LanesTag<Lane, kBytes>());
  std::size_t i = 0;
  if (n < kLeast<Lane, kBytes>) {
    if constexpr (kN * sizeof(Lane) > 16) {
      overRow<Lane, kN * sizeof(Lane) / 2>(n, body, last);
    } else {
      for (; i < n; ++i) body(hn::CappedTag<Lane, 1>(), i);
    }
    return;
  }
  for (; i + 4 * kN <= n; i += 4 * kN) {
    unrolled<4>([&](auto u) KELI_LAMBDA { body(d, i + u * kN); });
  }
  for (; i + kN <= n; i += kN) body(d, i);
  if (i < n) last(d, n - kN);
}

template <class Lane, class Body>
HWY_INLINE void overRow(std::size_t n, const Body& body) {
  overRow<Lane>(n, body, body);
}

// The extreme of kCount samples, or of a number known at run time: extremes(d, i, v) gives those of
// kVectors vectors that follow each other.
template <class Operation, class Lane, std::size_t kCount>
struct Starts {
  const Lane* row[kCount];

  HWY_INLINE Starts(const Lane* src, const Step& step) {
    for (std::size_t k = 0; k < kCount; ++k) row[k] = src + step.start[k];
  }
  template <std::size_t kVectors, class D>
  HWY_INLINE void extremes(D d, std::size_t i, hn::Vec<D> (&v)[kVectors]) const {
    constexpr std::size_t kN = hn::MaxLanes(D());
    unrolled<kVectors>([&](auto u) KELI_LAMBDA {
      v[u] = loadAnywhere(d, row[0] + i + u * kN);
      unrolled<kCount - 1>([&](auto k) KELI_LAMBDA {
        v[u] = Extreme<Operation>::of(v[u], loadAnywhere(d, row[k + 1] + i + u * kN));
      });
    });
  }
};

template <class Operation, class Lane>
struct AnyStarts {
  const void* const* rows;
  std::size_t count;

  template <std::size_t kVectors, class D>
  HWY_INLINE void extremes(D d, std::size_t i, hn::Vec<D> (&v)[kVectors]) const {
    constexpr std::size_t kN = hn::MaxLanes(D());
    const auto at = [&](std::size_t k, std::size_t u) KELI_LAMBDA {
      return loadAnywhere(d, static_cast<const Lane*>(rows[k]) + i + u * kN);
    };
    std::size_t k = count % 2 == 0 ? 2 : 1;
    unrolled<kVectors>([&](auto u) KELI_LAMBDA {
      v[u] = at(0, u);
      if (k == 2) v[u] = Extreme<Operation>::of(v[u], at(1, u));
    });
    for (; k < count; k += 2) {
      unrolled<kVectors>([&](auto u) KELI_LAMBDA {
        v[u] = Extreme<Operation>::of(v[u], Extreme<Operation>::of(at(k, u), at(k + 1, u)));
      });
    }
  }
};

// To n samples of a row of scratch memory, which may be the one read: what is stored lies before
// all that is still to be loaded.
template <class Lane, std::size_t kBytes = 64, class Windows>
HWY_INLINE void toScratch(const Windows& windows, std::size_t n, Lane* dst) {
  using D = LanesTag<Lane, kBytes>;
  const D d;
  constexpr std::size_t kN = hn::MaxLanes(D());
  if constexpr (kN * sizeof(Lane) == 64) {
    if (n < kLeast<Lane, kBytes>) return toScratch<Lane, 32>(windows, n, dst);
  }
  std::size_t i = 0;
  for (; i + 4 * kN <= n; i += 4 * kN) {
    hn::Vec<D> v[4];
    windows.extremes(d, i, v);
    unrolled<4>([&](auto u) KELI_LAMBDA { storeAnywhere(d, v[u], dst + i + u * kN); });
  }
  for (; i < n; i += kN) {
    hn::Vec<D> v[1];
    windows.extremes(d, i, v);
    storeAnywhere(d, v[0], dst + i);
  }
}

// Destinations: what becomes of a vector of extremes at sample i of a row.
template <class T>
struct WriteAll {
  static constexpr std::size_t kTrim = 0;
  static constexpr bool kMayStream = true;
  template <class D>
  static HWY_INLINE void put(D d, hn::Vec<D> v, T* dst, std::size_t i) {
    storeAnywhere(d, Ordered<T>::turn(v), reinterpret_cast<LaneOf<T>*>(dst) + i);
  }
};

// AC4, up to the last row's last colour.
template <class T>
struct WriteColours {
  static constexpr std::size_t kTrim = 1;
  static constexpr bool kMayStream = false;
  template <class D>
  static HWY_INLINE void put(D d, hn::Vec<D> v, T* dst, std::size_t i) {
    LaneOf<T>* const p = reinterpret_cast<LaneOf<T>*>(dst) + i;
    if constexpr (hn::MaxLanes(D()) == 1) {
      if (i % 4 != 3) storeAnywhere(d, Ordered<T>::turn(v), p);
    } else {
      storeWhere(d, cycleMask<4, 3>(d, i % 4), Ordered<T>::turn(v), p);
    }
  }
};

template <class T, class Write, class Windows>
HWY_INLINE void toRow(const Windows& windows, std::size_t n, T* dst) {
  overRow<LaneOf<T>>(n, [&](auto d, std::size_t i) KELI_LAMBDA {
    hn::Vec<decltype(d)> v[1];
    windows.extremes(d, i, v);
    Write::put(d, v[0], dst, i);
  });
}

// A long row, in blocks from the first cache line of the destination on that lies in it.
template <class T, class Write, class Windows>
HWY_INLINE void toLines(const Windows& windows, bool streams, std::size_t n, T* dst) {
  using Lane = LaneOf<T>;
  const LanesTag<Lane> d;
  constexpr std::size_t kN = hn::MaxLanes(LanesTag<Lane>());
  const std::uintptr_t address = reinterpret_cast<std::uintptr_t>(dst);
  const std::size_t head = (0 - address) % 64 / sizeof(T);
  const auto one = [&](std::size_t i) KELI_LAMBDA {
    hn::Vec<LanesTag<Lane>> v[1];
    windows.extremes(d, i, v);
    Write::put(d, v[0], dst, i);
  };
  for (std::size_t i = 0; i < head; i += kN) one(i);
  std::size_t i = head;
  const bool around = Write::kMayStream && streams && address % sizeof(T) == 0;
  for (; i + 4 * kN <= n; i += 4 * kN) {
    hn::Vec<LanesTag<Lane>> v[4];
    windows.extremes(d, i, v);
    unrolled<4>([&](auto u) KELI_LAMBDA {
      if (around) {
        hn::Stream(Ordered<T>::turn(v[u]), d, reinterpret_cast<Lane*>(dst) + i + u * kN);
      } else {
        Write::put(d, v[u], dst, i + u * kN);
      }
      keepOrder();
    });
  }
  for (; i + kN <= n; i += kN) one(i);
  if (i < n) one(n - kN);
}

template <class T, class Write, class Windows>
HWY_INLINE void toImage(const Windows& windows, bool streams, std::size_t n, T* dst) {
  if (!kScalarTarget && n >= 512 / sizeof(T)) {
    toLines<T, Write>(windows, streams, n, dst);
  } else {
    toRow<T, Write>(windows, n, dst);
  }
}

// Calls f with the number of a step's starts as a constant.
template <class F>
HWY_INLINE void withStarts(const Step& step, const F& f) {
  switch (step.starts) {
    case 1:
      return f(std::integral_constant<std::size_t, 1>());
    case 2:
      return f(std::integral_constant<std::size_t, 2>());
    case 3:
      return f(std::integral_constant<std::size_t, 3>());
    default:
      return f(std::integral_constant<std::size_t, 4>());
  }
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
