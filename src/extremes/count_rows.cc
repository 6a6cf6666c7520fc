// Row kernels of CountInRange: lanes count the samples of their channel that lie in its range.
// Lanes of bytes are summed up in 64 bits before they can overflow, lanes of 32 bits from time to
// time.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "extremes/count_rows.cc"
#include <hwy/foreach_target.h>
//
#include "extremes/operations.h"
#include "extremes/sweep-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// The ranges of the channels that a vector's lanes hold.
template <class T>
struct Range;

// With upper moved to 127 the range becomes the largest signed bytes, which one comparison tells
// from the others, unless it is all bytes: then it tells none.
template <>
struct Range<Kel8u> {
  static bool contains(Kel8u v, Kel8u lower, Kel8u upper) { return lower <= v && v <= upper; }

  template <class D>
  struct Lanes {
    hn::Vec<D> move;
    hn::Vec<hn::RebindToSigned<D>> below;

    HWY_INLINE void set(D d, hn::Vec<D> lower, hn::Vec<D> upper) {
      const hn::RebindToSigned<D> ds;
      move = hn::Sub(hn::Set(d, 127), upper);
      below = hn::BitCast(ds, hn::Sub(hn::Add(lower, move), hn::Set(d, 1)));
    }
    HWY_INLINE auto contain(D d, hn::Vec<D> v) const {
      const hn::RebindToSigned<D> ds;
      return hn::RebindMask(d, hn::Gt(hn::BitCast(ds, hn::Add(v, move)), below));
    }
  };
};

template <>
struct Range<Kel32f> {
  static bool contains(Kel32f v, Kel32f lower, Kel32f upper) { return lower <= v && v <= upper; }

  template <class D>
  struct Lanes {
    hn::Vec<D> lower;
    hn::Vec<D> upper;

    HWY_INLINE void set(D, hn::Vec<D> low, hn::Vec<D> high) {
      lower = low;
      upper = high;
    }
    HWY_INLINE auto contain(D, hn::Vec<D> v) const {
      const hn::RebindToUnsigned<D> du;
      return hn::RebindMask(du, hn::And(hn::Ge(v, lower), hn::Le(v, upper)));
    }
  };
};

template <class D, std::size_t kCycle>
struct CountSweep {
  using T = hn::TFromD<D>;
  using Counts = hn::RebindToUnsigned<D>;
  static constexpr std::size_t kN = hn::MaxLanes(D());
  static constexpr std::size_t kDistinct = kDistinctOf<kCycle>;
  static constexpr std::size_t kUnroll = kDistinct == 3 ? 6 : 4;
  // Most samples that a lane counts before it is emptied.
  static constexpr std::size_t kMost = sizeof(T) == 1 ? 255 : 1 << 20;

  typename Range<T>::template Lanes<D> ranges[kDistinct];
  hn::Vec<Counts> lanes[kUnroll];  // indices are constants everywhere: all stay in registers
  std::size_t counted = 0;         // samples that a lane has counted at most
  std::uint64_t* totals;

  HWY_INLINE CountSweep(const Cycle& lower, const Cycle& upper, std::uint64_t* counts)
      : totals(counts) {
    const D d;
    unrolled<kDistinct>([&](auto u) KELI_LAMBDA {
      ranges[u].set(d, repeatCycle<kCycle>(d, lower.bytes, u * kN),
                    repeatCycle<kCycle>(d, upper.bytes, u * kN));
    });
    unrolled<kUnroll>([&](auto u) KELI_LAMBDA { lanes[u] = hn::Zero(Counts()); });
  }

  template <std::size_t u>
  HWY_INLINE void add(D d, hn::Vec<D> v) {
    lanes[u] = countLanes(Counts(), lanes[u], ranges[u % kDistinct].contain(d, v));
  }
  template <std::size_t u>
  HWY_INLINE void addTwo(D d, hn::Vec<D> a, hn::Vec<D> b) {
    add<u>(d, a);
    add<u + kUnroll / 2>(d, b);
  }
  template <std::size_t u>
  HWY_INLINE void addRest(D d, hn::Vec<D> v, std::size_t seen) {
    const auto rest = hn::Not(hn::FirstN(Counts(), seen));
    lanes[u] = countLanes(Counts(), lanes[u], hn::And(rest, ranges[u % kDistinct].contain(d, v)));
  }
  template <std::size_t u>
  HWY_INLINE void addHead(D d, hn::Vec<D> v, std::size_t count) {
    const auto head = hn::FirstN(Counts(), count);
    lanes[u] = countLanes(Counts(), lanes[u], hn::And(head, ranges[u % kDistinct].contain(d, v)));
  }

  HWY_INLINE void empty() {
    if constexpr (sizeof(T) == 1) {
      emptyBytes();
    } else {
      emptyWords();
    }
    unrolled<kUnroll>([&](auto u) KELI_LAMBDA { lanes[u] = hn::Zero(Counts()); });
    counted = 0;
  }

  // Lanes of one channel after the other: it stands where (lane + u * kN - k) is a multiple of the
  // cycle.
  HWY_INLINE void emptyBytes() {
    const hn::Repartition<std::uint64_t, Counts> d64;
    unrolled<kCycle>([&](auto k) KELI_LAMBDA {
      auto sum = hn::Zero(d64);
      unrolled<kUnroll>([&](auto u) KELI_LAMBDA {
        const auto own = cycleMask<kCycle, 1>(Counts(), (u * kN + kCycle - k) % kCycle);
        sum = hn::Add(sum, hn::SumsOf8(hn::IfThenElseZero(own, lanes[u])));
      });
      totals[k] += hn::GetLane(hn::SumOfLanes(d64, sum));
    });
  }

  HWY_INLINE void emptyWords() {
    HWY_ALIGN std::uint32_t sums[kDistinct * kN];
    unrolled<kDistinct>([&](auto u) KELI_LAMBDA {
      auto sum = hn::Add(lanes[u], lanes[u + kDistinct]);
      if constexpr (kUnroll == 4 * kDistinct)
        sum = hn::Add(sum, hn::Add(lanes[u + 2 * kDistinct], lanes[u + 3 * kDistinct]));
      hn::Store(sum, Counts(), sums + u * kN);
    });
    foldLanes<kCycle, kDistinct * kN>(
        sums, [](auto, auto a, auto b) KELI_LAMBDA { return hn::Add(a, b); });
    for (std::size_t k = 0; k < kCycle; ++k) totals[k] += sums[k];
  }

  // A row of at least a block.
  HWY_INLINE void row(const T* src, std::size_t n) {
    constexpr std::size_t kStep = kUnroll * kN, kPiece = (kMost / 2 - 8) * kStep;
    while (n != 0) {
      // What is left is never less than a block, nor more than the lanes can count.
      const std::size_t piece = n < 2 * kPiece ? n : kPiece;
      const std::size_t most = piece / kStep + kUnroll / kDistinct + 1;
      if (counted + most > kMost) empty();
      counted += most;
      sweepRow(D(), *this, src, piece);
      src += piece;
      n -= piece;
    }
  }
};

template <class T, std::size_t kCycle>
HWY_INLINE void countSamples(const Band<1>& b, const Cycle& lower, const Cycle& upper,
                             std::uint64_t* counts) {
  const T* const low = reinterpret_cast<const T*>(lower.bytes);
  const T* const high = reinterpret_cast<const T*>(upper.bytes);
  for (std::size_t y = 0; y < b.rows; ++y) {
    const T* const row = b.srcRow<T>(0, y);
    for (std::size_t i = 0; i < b.n; ++i) {
      const std::size_t k = i % kCycle;
      counts[k] += Range<T>::contains(load(row + i), load(low + k), load(high + k));
    }
  }
}

template <class T, std::size_t kCycle>
void ownCount(const Band<1>& b, const Cycle& lower, const Cycle& upper, std::uint64_t* counts) {
  for (std::size_t k = 0; k < kCycle; ++k) counts[k] = 0;
  const bool done = withVectors<T, kDistinctOf<kCycle>, 64>(b.n, [&](auto d) KELI_LAMBDA {
    CountSweep<decltype(d), kCycle> sweep(lower, upper, counts);
    for (std::size_t y = 0; y < b.rows; ++y) sweep.row(b.srcRow<T>(0, y), b.n);
    sweep.empty();
  });
  if (!done) countSamples<T, kCycle>(b, lower, upper, counts);
}

constexpr extremes::CountRows k8u = {ownCount<Kel8u, 4>, ownCount<Kel8u, 3>};
constexpr extremes::CountRows k32f = {ownCount<Kel32f, 4>, ownCount<Kel32f, 3>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::extremes {
template <>
KELI_SELECT_ROWS(CountRows, k8u, countRows<Kel8u>)
template <>
KELI_SELECT_ROWS(CountRows, k32f, countRows<Kel32f>)
}  // namespace keli::extremes
#endif
