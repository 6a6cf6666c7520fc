// Row drivers of the pixel-wise operations: dst[i] = op(src1[i], ...) over the rows of a band.
//
// An operation (Op) has
//   kPeriod                 length of the cycle of its constants: 1, or the number of channels
//   kUnroll                 vectors in flight, a multiple of those that the cycle makes different
//   at(d, phase)            what a vector that starts at that phase of the cycle needs,
//   loop-invariant vector(d, at, a...)     the vector form; d is the tag of the destination's
//   samples scalar(phase, a...)     the definition; it alone runs on the scalar target
// A keeper (Keep) tells which destination samples are written: all, or the first kUsed of every
// kPeriod; the row then ends with the last sample written, and nothing after it is touched.
//
// An operation that makes narrower samples has a constant kLoads, and is given the sources'
// pointers where others are given vectors: it loads several for a whole vector of the destination.
//
// Rows of at least a vector: the last vector is computed first and stored last, which is right in
// place too. Shorter rows: the same with vectors of 16, 8 and 4 bytes, then samples. Vectors are of
// 32 bytes at most: longer ones measured slower, in the caches and beyond. An operation whose
// computing outweighs that takes longer ones by a constant kVectorBytes.
#if defined(KELI_CORE_MAP_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CORE_MAP_INL_H_
#undef KELI_CORE_MAP_INL_H_
#else
#define KELI_CORE_MAP_INL_H_
#endif

#include <algorithm>
#include <numeric>

#include <hwy/cache_control.h>

#include "core/band.h"
#include "core/simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

struct Nothing {};

struct KeepNone {
  static constexpr std::size_t kPeriod = 1;
  static constexpr std::size_t kTrim = 0;
  static constexpr bool written(std::size_t) { return true; }
  template <class D>
  HWY_INLINE Nothing at(D, std::size_t) const {
    return {};
  }
  template <class D>
  HWY_INLINE void put(D d, Nothing, hn::Vec<D> v, hn::TFromD<D>* dst) const {
    hn::StoreU(v, d, dst);
  }
};

// Writes the samples whose position in a cycle of kCycle is below kUsed: KeepOthers<4, 3> is AC4,
// KeepOthers<3, 1> one channel of three.
template <std::size_t kCycle, std::size_t kUsed>
struct KeepOthers {
  static constexpr std::size_t kPeriod = kCycle;
  static constexpr std::size_t kTrim = kCycle - kUsed;
  static constexpr bool written(std::size_t phase) { return phase < kUsed; }
  template <class D>
  HWY_INLINE auto at(D d, std::size_t phase) const {
    return cycleMask<kCycle, kUsed>(d, phase);
  }
  template <class D, class M>
  HWY_INLINE void put(D d, M mask, hn::Vec<D> v, hn::TFromD<D>* dst) const {
    storeWhere(d, mask, v, dst);
  }
};

namespace map {

// The longest vectors that an operation asks for: 64 bytes pay where instructions and not memory
// bound it.
template <class Op, class = void>
constexpr std::size_t kMostBytes = 32;
template <class Op>
constexpr std::size_t kMostBytes<Op, std::void_t<decltype(Op::kVectorBytes)>> = Op::kVectorBytes;

// Whether an operation loads its samples itself.
template <class Op, class = void>
constexpr bool kLoadsItself = false;
template <class Op>
constexpr bool kLoadsItself<Op, std::void_t<decltype(Op::kLoads)>> = Op::kLoads;

constexpr std::size_t cycle(std::size_t a, std::size_t b) { return a == 1 ? b : a; }

template <class Op, class Keep, class TD, class... TS>
struct Row {
  static constexpr std::size_t kPeriod = cycle(Op::kPeriod, Keep::kPeriod);
  static_assert(Op::kPeriod == 1 || Keep::kPeriod == 1 || Op::kPeriod == Keep::kPeriod);
  static constexpr std::size_t kWidest =
      kLoadsItself<Op> ? sizeof(TD) : std::max({sizeof(TD), sizeof(TS)...});

  template <class D>
  struct Vector {  // of a vector that starts at one phase: the loop-invariant parts
    decltype(std::declval<Op>().at(D(), 0)) op;
    decltype(std::declval<Keep>().at(D(), 0)) keep;
  };

  template <class D>
  static HWY_INLINE Vector<D> at(D d, const Op& op, std::size_t phase) {
    return {op.at(d, phase), Keep().at(d, phase)};
  }

  template <class D>
  static HWY_INLINE hn::Vec<D> compute(D d, const Op& op, const Vector<D>& k, const TS*... src) {
    if constexpr (kLoadsItself<Op>) {
      return op.vector(d, k.op, src...);
    } else {
      return op.vector(d, k.op, hn::LoadU(hn::Rebind<TS, D>(), src)...);
    }
  }

  static HWY_INLINE void samples(const Op& op, std::size_t phase, std::size_t n, TD* dst,
                                 const TS*... src) {
    for (std::size_t i = 0; i < n; ++i) {
      const std::size_t place = (phase + i) % kPeriod;
      if (Keep::written(place)) store<TD>(op.scalar(place, load(src + i)...), dst + i);
    }
  }

  // n at least a vector; the first sample stands at `phase` of the cycle. kStreams: stores around
  // the caches, or under a mask, to what they do not hold.
  template <bool kStreams, class D>
  static HWY_INLINE void vectors(D d, const Op& op, std::size_t phase, std::size_t n, TD* dst,
                                 const TS*... src) {
    constexpr std::size_t kN = hn::MaxLanes(D());
    constexpr std::size_t kUnroll = Op::kUnroll;
    const std::size_t end = n - kN;
    const Vector<D> atLast = at(d, op, (phase + end) % kPeriod);
    const hn::Vec<D> last = compute(d, op, atLast, (src + end)...);
    // Every kDistinct-th vector starts at the same phase.
    constexpr std::size_t kDistinct = kPeriod / std::gcd(kN, kPeriod);
    static_assert(kUnroll % kDistinct == 0);
    Vector<D> k[kDistinct];
    unrolled<kDistinct>([&](auto u) KELI_LAMBDA { k[u] = at(d, op, (phase + u * kN) % kPeriod); });
    std::size_t i = 0;
    for (; i + kUnroll * kN <= end; i += kUnroll * kN) {
      hn::Vec<D> v[kUnroll];
      unrolled<kUnroll>([&](auto u) KELI_LAMBDA {
        v[u] = compute(d, op, k[u % kDistinct], (src + i + u * kN)...);
      });
      unrolled<kUnroll>([&](auto u) KELI_LAMBDA {
        if constexpr (kStreams && Keep::kPeriod == 1) {
          hn::Stream(v[u], d, dst + i + u * kN);
        } else {
          if constexpr (kStreams) fetchAhead(dst + i + u * kN);
          Keep().put(d, k[u % kDistinct].keep, v[u], dst + i + u * kN);
        }
        keepOrder();
      });
    }
    unrolled<kUnroll>([&](auto u) KELI_LAMBDA {
      if (i < end) {
        const Vector<D>& here = k[u % kDistinct];
        Keep().put(d, here.keep, compute(d, op, here, (src + i)...), dst + i);
        i += kN;
      }
    });
    Keep().put(d, atLast.keep, last, dst + end);
  }

  // At most two vectors of kBytes.
  template <std::size_t kBytes>
  static HWY_INLINE void shorter(const Op& op, std::size_t n, TD* dst, const TS*... src) {
    using D = hn::CappedTag<TD, kBytes / kWidest>;
    constexpr std::size_t kN = hn::MaxLanes(D());
    if (n >= kN) {
      const D d;
      const std::size_t end = n - kN;
      const Vector<D> atFirst = at(d, op, 0), atLast = at(d, op, end % kPeriod);
      const hn::Vec<D> last = compute(d, op, atLast, (src + end)...);
      if (end != 0) Keep().put(d, atFirst.keep, compute(d, op, atFirst, src...), dst);
      Keep().put(d, atLast.keep, last, dst + end);
    } else if constexpr (kBytes > 4 && kBytes / 2 >= kWidest) {
      shorter<kBytes / 2>(op, n, dst, src...);
    } else {
      samples(op, 0, n, dst, src...);
    }
  }

  // Samples before the first that starts a block of kBytes, or none if no sample does.
  template <std::size_t kBytes, class T, class... Others>
  static HWY_INLINE std::size_t samplesToBlock(const T* p, const Others*...) {
    const std::size_t missing = (0 - reinterpret_cast<std::uintptr_t>(p)) % kBytes;
    return missing % sizeof(T) == 0 ? missing / sizeof(T) : 0;
  }

  // Stores that straddle cache lines cost a third of the speed in the second-level cache, and those
  // around the caches need alignment: a long row's first samples are set apart up to the next line.
  // Where more is read than stored, loads that straddle lines cost as much, and are set on them
  // instead.
  static HWY_INLINE void run(const Op& op, bool streams, std::size_t n, TD* dst, const TS*... src) {
    if constexpr (kScalarTarget) {
      samples(op, 0, n, dst, src...);
    } else {
      constexpr std::size_t kVectorBytes = std::min<std::size_t>(HWY_MAX_BYTES, kMostBytes<Op>);
      using D = hn::CappedTag<TD, kVectorBytes / kWidest>;
      constexpr std::size_t kN = hn::MaxLanes(D());
      // Narrow results fill no lines; two vectors are one, or half of one on 16-byte targets.
      constexpr bool kWhole = kN * sizeof(TD) == kVectorBytes;
      constexpr std::size_t kLine = std::min<std::size_t>(2 * kVectorBytes, 64);
      constexpr std::size_t kLong = 1024 / sizeof(TD);
      constexpr bool kReadsMore = kLoadsItself<Op> && (sizeof(TS) + ... + 0) > sizeof(TD);
      std::size_t head = 0;
      if (n < 2 * kN) {
        head = n;
      } else if (kWhole && n >= kLong) {
        head = samplesToBlock<kLine>(dst);
        if constexpr (kReadsMore) {
          if (!streams) head = samplesToBlock<kLine>(src...);
        }
      }
      if (head != 0) shorter<kVectorBytes>(op, head, dst, src...);
      if (head == n) return;
      const bool aligned = reinterpret_cast<std::uintptr_t>(dst + head) % kLine == 0;
      if (streams && (Keep::kPeriod > 1 || (kWhole && aligned))) {
        vectors<true>(D(), op, head % kPeriod, n - head, dst + head, (src + head)...);
      } else {
        vectors<false>(D(), op, head % kPeriod, n - head, dst + head, (src + head)...);
      }
    }
  }
};

}  // namespace map

// Drivers over a band of n samples a row, for no, one and two sources.
template <class TD, class Keep = KeepNone, class Op>
HWY_INLINE void mapRows(const Band<0>& b, const Op& op) {
  for (std::size_t y = 0; y < b.rows; ++y) {
    map::Row<Op, Keep, TD>::run(op, b.streams, b.n - Keep::kTrim, b.template dstRow<TD>(y));
  }
  if (b.streams) hwy::FlushStream();
}

// One row of the band; where b.streams, the stores of all rows are still to be flushed.
template <class TS, class TD, class Keep = KeepNone, class Op>
HWY_INLINE void mapRow(const Band<1>& b, std::size_t y, const Op& op) {
  map::Row<Op, Keep, TD, TS>::run(op, b.streams, b.n - Keep::kTrim, b.template dstRow<TD>(y),
                                  b.template srcRow<TS>(0, y));
}

template <class TS, class TD, class Keep = KeepNone, class Op>
HWY_INLINE void mapRows(const Band<1>& b, const Op& op) {
  for (std::size_t y = 0; y < b.rows; ++y) mapRow<TS, TD, Keep>(b, y, op);
  if (b.streams) hwy::FlushStream();
}

template <class TS1, class TS2, class TD, class Keep = KeepNone, class Op>
HWY_INLINE void mapRows(const Band<2>& b, const Op& op) {
  for (std::size_t y = 0; y < b.rows; ++y) {
    map::Row<Op, Keep, TD, TS1, TS2>::run(op, b.streams, b.n - Keep::kTrim,
                                          b.template dstRow<TD>(y), b.template srcRow<TS1>(0, y),
                                          b.template srcRow<TS2>(1, y));
  }
  if (b.streams) hwy::FlushStream();
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
