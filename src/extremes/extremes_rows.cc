// Row kernels of Min, Max and MinMax.
#include <algorithm>

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "extremes/extremes_rows.cc"
#include <hwy/foreach_target.h>
//
#include "extremes/order-inl.h"
#include "extremes/sweep-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// The extremes in one order.
template <class Order, class D, std::size_t kCycle, std::size_t kVectors>
struct Accumulators {
  using T = hn::TFromD<D>;
  using OrderOf = Order;
  static constexpr std::size_t kDistinct = kDistinctOf<kCycle>;
  static constexpr std::size_t kCount = kAccumulators<T, kVectors>;
  hn::Vec<D> best[kCount];  // indices are constants everywhere, so that all stay in registers

  HWY_INLINE Accumulators() {
    unrolled<kCount>([&](auto u) KELI_LAMBDA { best[u] = hn::Set(D(), Order::kLast); });
  }
  template <std::size_t u>
  HWY_INLINE void take(hn::Vec<D> v) {
    best[u % kCount] = Order::of(v, best[u % kCount]);
  }
  HWY_INLINE void finish(T* minima, T* maxima) {
    constexpr std::size_t kN = hn::MaxLanes(D());
    HWY_ALIGN T lanes[kDistinct * kN];
    unrolled<kCount - kDistinct>([&](auto u) KELI_LAMBDA {
      best[u % kDistinct] = Order::of(best[u + kDistinct], best[u % kDistinct]);
    });
    unrolled<kDistinct>([&](auto u) KELI_LAMBDA { hn::Store(best[u], D(), lanes + u * kN); });
    foldLanes<kCycle, kDistinct * kN>(
        lanes, [](auto, auto a, auto b) KELI_LAMBDA { return Order::of(a, b); });
    std::memcpy(Order::pick(minima, maxima), lanes, kCycle * sizeof(T));
  }
};

// Those in all orders asked for, from one sweep.
template <std::size_t kVectors, class... Parts>
struct ExtremesSweep : Parts... {
  static constexpr std::size_t kUnroll = kVectors;
  static constexpr std::size_t kDistinct = kVectors % 3 == 0 ? 3 : 1;

  // Of two vectors of integers in order only one has to be compared with either extreme. Floats
  // would lose a number beside a NaN.
  template <class D>
  static constexpr bool kOrdersTwo = sizeof...(Parts) == 2 && !hwy::IsFloat<hn::TFromD<D>>();

  HWY_INLINE ExtremesSweep() : Parts()... {}
  template <std::size_t u, class D>
  HWY_INLINE void add(D, hn::Vec<D> v) {
    (Parts::template take<u>(v), ...);
  }
  template <std::size_t u, class D>
  HWY_INLINE void addTwo(D d, hn::Vec<D> a, hn::Vec<D> b) {
    if constexpr (kOrdersTwo<D>) {
      sortTwo(a, b);
      (Parts::template take<u>(Parts::OrderOf::pick(a, b)), ...);
    } else {
      add<u>(d, a);
      add<u + kUnroll / 2>(d, b);
    }
  }
  template <std::size_t u, class D>
  HWY_INLINE void addRest(D, hn::Vec<D> v, std::size_t) {
    (Parts::template take<u>(v), ...);
  }
  template <std::size_t u, class D>
  HWY_INLINE void addHead(D, hn::Vec<D> v, std::size_t) {
    (Parts::template take<u>(v), ...);
  }
  template <class T>
  HWY_INLINE void finish(T* minima, T* maxima) {
    (Parts::finish(minima, maxima), ...);
  }
};

template <std::size_t kCycle, class Order, class T>
HWY_INLINE void extremesOfSamples(const Band<1>& b, T* extremes) {
  std::fill(extremes, extremes + kCycle, Order::kLast);
  for (std::size_t y = 0; y < b.rows; ++y) {
    const T* const row = b.srcRow<T>(0, y);
    for (std::size_t i = 0; i < b.n; ++i) {
      const T v = load(row + i);
      T& best = extremes[i % kCycle];
      if (Order::first(v, best)) best = v;
    }
  }
}

template <class T, std::size_t kCycle, class... Operations>
void ownExtremes(const Band<1>& b, T* minima, T* maxima) {
  const bool done = withVectors<T, kDistinctOf<kCycle>, 64>(b.n, [&](auto d) KELI_LAMBDA {
    using D = decltype(d);
    constexpr std::size_t kVectors = kCycle == 3 ? 6 : 4;
    ExtremesSweep<kVectors, Accumulators<Order<Operations, T>, D, kCycle, kVectors>...> sweep;
    for (std::size_t y = 0; y < b.rows; ++y) sweepRow(d, sweep, b.srcRow<T>(0, y), b.n);
    sweep.finish(minima, maxima);
  });
  if (done) return;
  (extremesOfSamples<kCycle, Order<Operations, T>>(b, Order<Operations, T>::pick(minima, maxima)),
   ...);
}

template <class T, class... Operations>
constexpr extremes::ExtremeRows<T> kRows = {ownExtremes<T, 4, Operations...>,
                                            ownExtremes<T, 3, Operations...>};

using extremes::Max;
using extremes::Min;
constexpr extremes::ExtremeRows<Kel8u> kMin8u = kRows<Kel8u, Min>;
constexpr extremes::ExtremeRows<Kel8u> kMax8u = kRows<Kel8u, Max>;
constexpr extremes::ExtremeRows<Kel8u> kMinMax8u = kRows<Kel8u, Min, Max>;
constexpr extremes::ExtremeRows<Kel16s> kMin16s = kRows<Kel16s, Min>;
constexpr extremes::ExtremeRows<Kel16s> kMax16s = kRows<Kel16s, Max>;
constexpr extremes::ExtremeRows<Kel16s> kMinMax16s = kRows<Kel16s, Min, Max>;
constexpr extremes::ExtremeRows<Kel32f> kMin32f = kRows<Kel32f, Min>;
constexpr extremes::ExtremeRows<Kel32f> kMax32f = kRows<Kel32f, Max>;
constexpr extremes::ExtremeRows<Kel32f> kMinMax32f = kRows<Kel32f, Min, Max>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::extremes {
template <>
KELI_SELECT_ROWS(ExtremeRows<Kel8u>, kMin8u, extremeRows<Min, Kel8u>)
template <>
KELI_SELECT_ROWS(ExtremeRows<Kel8u>, kMax8u, extremeRows<Max, Kel8u>)
template <>
KELI_SELECT_ROWS(ExtremeRows<Kel8u>, kMinMax8u, extremeRows<MinMax, Kel8u>)
template <>
KELI_SELECT_ROWS(ExtremeRows<Kel16s>, kMin16s, extremeRows<Min, Kel16s>)
template <>
KELI_SELECT_ROWS(ExtremeRows<Kel16s>, kMax16s, extremeRows<Max, Kel16s>)
template <>
KELI_SELECT_ROWS(ExtremeRows<Kel16s>, kMinMax16s, extremeRows<MinMax, Kel16s>)
template <>
KELI_SELECT_ROWS(ExtremeRows<Kel32f>, kMin32f, extremeRows<Min, Kel32f>)
template <>
KELI_SELECT_ROWS(ExtremeRows<Kel32f>, kMax32f, extremeRows<Max, Kel32f>)
template <>
KELI_SELECT_ROWS(ExtremeRows<Kel32f>, kMinMax32f, extremeRows<MinMax, Kel32f>)
}  // namespace keli::extremes
#endif
