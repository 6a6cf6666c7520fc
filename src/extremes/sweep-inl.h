// Row driver of reductions that may meet samples twice: a row's last vectors overlap those before
// them instead of being filled up, and rows too short for long vectors take shorter ones.
//
// An operation (Op) for vectors of D has
//   kDistinct          vectors until the cycle of channels begins anew: 1, or 3 of three channels
//   kUnroll            vectors in flight, a even multiple of kDistinct
//   add<u>(d, v)       takes vector u; each of its lanes is of the same channel whenever it comes
//   addTwo<u>(d, a, b) takes vectors u and u + kUnroll / 2, whose lanes are of the same channels
//   addRest<u>(d, v, seen)  the same for a vector whose first `seen` lanes were taken before
//   addHead<u>(d, v, lanes) the same for one of which only the first lanes are not taken later
#if defined(KELI_EXTREMES_SWEEP_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_EXTREMES_SWEEP_INL_H_
#undef KELI_EXTREMES_SWEEP_INL_H_
#else
#define KELI_EXTREMES_SWEEP_INL_H_
#endif

#include <algorithm>

#include "core/band.h"
#include "core/simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// How many vectors hold whole cycles: a block.
template <std::size_t kCycle>
constexpr std::size_t kDistinctOf = kCycle == 3 ? 3 : 1;

// Calls f with the tag of vectors of kMost bytes, or of 16 where n samples hold no block of those;
// returns false where they hold no block at all.
template <class T, std::size_t kDistinct, std::size_t kMost, class F>
HWY_INLINE bool withVectors(std::size_t n, const F& f) {
  if constexpr (kScalarTarget) {
    return false;
  } else {
    constexpr std::size_t kLong = std::min<std::size_t>(kMost, HWY_MAX_BYTES) / sizeof(T);
    constexpr std::size_t kShort = 16 / sizeof(T);
    if (n < kDistinct * kShort) return false;
    if (kLong == kShort || n < kDistinct * kLong) {
      f(hn::CappedTag<T, kShort>());
    } else {
      f(hn::CappedTag<T, kLong>());
    }
    return true;
  }
}

// Accumulators of which each takes every kUnroll-th vector, or two of them where one operation
// follows another in a single cycle, as those of integers do.
template <class T, std::size_t kUnroll>
constexpr std::size_t kAccumulators = hwy::IsFloat<T>() ? kUnroll : kUnroll / 2;

// Where a long row is to go on after its first block for vectors of 64 bytes to be whole cache
// lines: less than a block from its start, at a pixel of any layout. Loads of two lines each
// took 1.7 times as long.
template <std::size_t kDistinct, class D>
HWY_INLINE std::size_t lineAfter(D, const hn::TFromD<D>* src, std::size_t n) {
  using T = hn::TFromD<D>;
  constexpr std::size_t kUnit = kDistinct == 3 ? 3 : 4, kLong = 512 / sizeof(T);
  if (hn::MaxLanes(D()) * sizeof(T) != 64 || n < kLong) return 0;
  const std::size_t units = unitsToLine(src, kUnit * sizeof(T), n);
  return units == n ? 0 : units * kUnit;
}

// Row of at least a block.
template <class D, class Op>
HWY_INLINE void sweepRow(D d, Op& op, const hn::TFromD<D>* src, std::size_t n) {
  constexpr std::size_t kN = hn::MaxLanes(D());
  constexpr std::size_t kUnroll = Op::kUnroll, kDistinct = Op::kDistinct;
  static_assert(kUnroll % (2 * kDistinct) == 0);
  constexpr std::size_t kBlock = kDistinct * kN;
  std::size_t i = lineAfter<kDistinct>(d, src, n);
  if (i != 0) {
    unrolled<kDistinct>([&](auto u) KELI_LAMBDA {
      const std::size_t lanes = i > u * kN ? std::min(i - u * kN, kN) : 0;
      op.template addHead<u>(d, hn::LoadU(d, src + u * kN), lanes);
    });
  }
  for (; i + kUnroll * kN <= n; i += kUnroll * kN) {
    unrolled<kUnroll / 2>([&](auto u) KELI_LAMBDA {
      op.template addTwo<u>(d, hn::LoadU(d, src + i + u * kN),
                            hn::LoadU(d, src + i + (u + kUnroll / 2) * kN));
    });
  }
  for (; i + kBlock <= n; i += kBlock) {
    unrolled<kDistinct>([&](auto u)
                            KELI_LAMBDA { op.template add<u>(d, hn::LoadU(d, src + i + u * kN)); });
  }
  if (i == n) return;
  const std::size_t begin = n - kBlock, seen = i - begin;
  unrolled<kDistinct>([&](auto u) KELI_LAMBDA {
    const std::size_t inside = seen > u * kN ? std::min(seen - u * kN, kN) : 0;
    op.template addRest<u>(d, hn::LoadU(d, src + begin + u * kN), inside);
  });
}

// Folds kBlock lanes of equal cycles by combine(d, a, b) down to the last kLeft; both are powers of
// two times the same odd number, which the cycle divides.
template <std::size_t kLeft, std::size_t kBlock, class T, class Combine>
HWY_INLINE void foldLanes(T* lanes, const Combine& combine) {
  if constexpr (kBlock > kLeft) {
    constexpr std::size_t kOdd = kLeft % 3 == 0 ? 3 : 1, kHalf = kBlock / 2;
    constexpr std::size_t kLanes = kHalf / kOdd;
    const hn::CappedTag<T, kLanes> d;
    unrolled<kOdd>([&](auto i) KELI_LAMBDA {
      T* const at = lanes + i * kLanes;
      hn::StoreU(combine(d, hn::LoadU(d, at), hn::LoadU(d, at + kHalf)), d, at);
    });
    foldLanes<kLeft, kHalf>(lanes, combine);
  }
}

// The samples of a cycle, over and over, from that of lane `first` on.
template <std::size_t kCycle, class D>
HWY_INLINE hn::Vec<D> repeatCycle(D d, const void* cycle, std::size_t first) {
  constexpr std::size_t kBytes = kCycle * sizeof(hn::TFromD<D>);
  return repeatPixel<kBytes>(d, static_cast<const std::uint8_t*>(cycle),
                             first % kCycle * sizeof(hn::TFromD<D>));
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
