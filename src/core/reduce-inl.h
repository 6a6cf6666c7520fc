// Row driver of reductions: feeds the samples of a band to an operation that accumulates.
//
// An operation (Op) has
//   kPeriod                    length of the cycle of channels that are kept apart
//   kUnroll                    accumulators, a multiple of kPeriod where a vector is not whole
//   cycles tag()                      of the vectors it takes neutral(s)                 a sample
//   of source s that changes nothing (with the others' neutral ones) add<u>(d, a...) adds vectors
//   to accumulator u; lane i of a vector that comes to it holds a
//                              sample of the same channel whenever it comes
//   scalar(phase, a...)        adds one sample of each source: the definition
// A row's last vector is filled up with neutral samples. So each sample meets the accumulators
// once; an operation whose result depends on the order of its sums is not for this driver.
#if defined(KELI_CORE_REDUCE_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CORE_REDUCE_INL_H_
#undef KELI_CORE_REDUCE_INL_H_
#else
#define KELI_CORE_REDUCE_INL_H_
#endif

#include "core/band.h"
#include "core/simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// The first count samples from src on, and neutral ones after them.
template <class D, class T>
HWY_INLINE hn::Vec<D> loadPadded(D d, const T* src, std::size_t count, T neutral) {
  HWY_ALIGN T samples[hn::MaxLanes(D())];
  hn::Store(hn::Set(d, neutral), d, samples);
  std::memcpy(samples, src, count * sizeof(T));
  return hn::Load(d, samples);
}

template <class Op, class... TS>
struct ReduceRow {
  static HWY_INLINE void samples(Op& op, std::size_t n, const TS*... src) {
    for (std::size_t i = 0; i < n; ++i) op.scalar(i % Op::kPeriod, load(src + i)...);
  }

  template <std::size_t... S>
  static HWY_INLINE void row(Op& op, std::index_sequence<S...>, std::size_t n, const TS*... src) {
    using D = decltype(op.tag());
    const D d;
    constexpr std::size_t kN = hn::MaxLanes(D());
    constexpr std::size_t kUnroll = Op::kUnroll;
    // Fewer samples than this are added sooner than padded.
    constexpr std::size_t kFew = 8;
    if (n < kFew) return samples(op, n, src...);
    std::size_t i = 0;
    for (; i + kUnroll * kN <= n; i += kUnroll * kN) {
      unrolled<kUnroll>([&](auto u) KELI_LAMBDA {
        op.template add<u>(d, hn::LoadU(hn::Rebind<TS, D>(), src + i + u * kN)...);
      });
    }
    unrolled<kUnroll>([&](auto u) KELI_LAMBDA {
      if (i + kN <= n) {
        op.template add<u>(d, hn::LoadU(hn::Rebind<TS, D>(), src + i)...);
        i += kN;
      } else if (i < n) {
        op.template add<u>(
            d, loadPadded(hn::Rebind<TS, D>(), src + i, n - i, op.template neutral<TS>(S))...);
        i = n;
      }
    });
  }

  static HWY_INLINE void run(Op& op, std::size_t n, const TS*... src) {
    if constexpr (kScalarTarget) {
      samples(op, n, src...);
    } else {
      row(op, std::index_sequence_for<TS...>(), n, src...);
    }
  }
};

// Sources of a reduction: a band without destination.
template <class TS, class Op>
HWY_INLINE void reduceRows(const Band<1>& b, Op& op) {
  for (std::size_t y = 0; y < b.rows; ++y)
    ReduceRow<Op, TS>::run(op, b.n, b.template srcRow<TS>(0, y));
}

template <class TS1, class TS2, class Op>
HWY_INLINE void reduceRows(const Band<2>& b, Op& op) {
  for (std::size_t y = 0; y < b.rows; ++y) {
    ReduceRow<Op, TS1, TS2>::run(op, b.n, b.template srcRow<TS1>(0, y),
                                 b.template srcRow<TS2>(1, y));
  }
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
