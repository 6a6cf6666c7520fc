// Single-precision sums in the lanes of FloatTotals: sample i of every row goes to lane i % kLanes.
#if defined(KELI_SUMS_LANES_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_SUMS_LANES_INL_H_
#undef KELI_SUMS_LANES_INL_H_
#else
#define KELI_SUMS_LANES_INL_H_
#endif

#include <cmath>

#include "core/simd-inl.h"
#include "sums/totals.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// Term makes summands of the samples of one or two images; scalar() is the definition.
#if HWY_TARGET == HWY_SCALAR
template <std::size_t kBytes, class Term, class... TS>
struct Lanes {
  float* sum;

  explicit Lanes(sums::FloatTotals& totals) : sum(totals.lanes) {}
  void get(const sums::FloatTotals&) {}
  void put(sums::FloatTotals&) const {}
  void round(std::size_t n, const TS*... src) {
    for (std::size_t i = 0; i < n; ++i)
      sum[i % sums::FloatTotals::kLanes] += Term::scalar(load(src + i)...);
  }
};
#else
template <std::size_t kBytes, class Term, class... TS>
struct Lanes {
  static constexpr std::size_t kLanes = sums::FloatTotals::kLanes;
  using D = hn::CappedTag<float, kBytes / sizeof(float)>;
  static constexpr std::size_t kN = hn::MaxLanes(D());
  static constexpr std::size_t kVectors = kLanes / kN;

  hn::Vec<D> sum[kVectors];

  HWY_INLINE explicit Lanes(sums::FloatTotals& totals) { get(totals); }
  HWY_INLINE void get(const sums::FloatTotals& totals) {
    unrolled<kVectors>([&](auto u) KELI_LAMBDA { sum[u] = hn::Load(D(), totals.lanes + u * kN); });
  }
  HWY_INLINE void put(sums::FloatTotals& totals) const {
    unrolled<kVectors>([&](auto u) KELI_LAMBDA { hn::Store(sum[u], D(), totals.lanes + u * kN); });
  }

  // Zeros that fill up a vector change no lane: none is ever -0.
  HWY_INLINE void round(std::size_t n, const TS*... src) {
    std::size_t i = 0;
    for (; i + kLanes <= n; i += kLanes) {
      unrolled<kVectors>([&](auto u) KELI_LAMBDA {
        sum[u] = sum[u] + Term::vector(D(), hn::LoadU(D(), src + i + u * kN)...);
      });
    }
    unrolled<kVectors>([&](auto u) KELI_LAMBDA {
      if (i + kN <= n) {
        sum[u] = sum[u] + Term::vector(D(), hn::LoadU(D(), src + i)...);
        i += kN;
      } else if (i < n) {
        sum[u] = sum[u] + Term::vector(D(), loadFirst(D(), src + i, n - i)...);
        i = n;
      }
    });
  }
};
#endif

// The row's samples in runs of so many rounds as the lanes have left.
template <std::size_t kBytes, class Term, class... TS, std::size_t... S>
HWY_INLINE void addRowsToLanes(std::index_sequence<S...>, const Band<sizeof...(TS)>& b,
                               sums::FloatTotals& totals) {
  constexpr std::size_t kLanes = sums::FloatTotals::kLanes;
  constexpr std::size_t kRounds = sums::FloatTotals::kRounds;
  Lanes<kBytes, Term, TS...> lanes(totals);
  for (std::size_t y = 0; y < b.rows; ++y) {
    for (std::size_t i = 0; i < b.n;) {
      const std::size_t n = std::min(b.n - i, (kRounds - totals.rounds) * kLanes);
      lanes.round(n, (b.template srcRow<TS>(S, y) + i)...);
      totals.rounds += static_cast<unsigned>((n + kLanes - 1) / kLanes);
      if (totals.rounds == kRounds) {
        lanes.put(totals);
        totals.empty();
        lanes.get(totals);
      }
      i += n;
    }
  }
  lanes.put(totals);
}

// Rows that do not all start cache lines are read in vectors of half a line: whole ones would lie
// across two lines each.
template <class Term, class... TS>
HWY_INLINE void addToLanes(const Band<sizeof...(TS)>& b, sums::FloatTotals& totals) {
  constexpr std::index_sequence_for<TS...> kSources;
  std::uintptr_t places = 0;
  for (std::size_t i = 0; i < sizeof...(TS); ++i)
    places |=
        reinterpret_cast<std::uintptr_t>(b.src[i]) | static_cast<std::uintptr_t>(b.srcStep[i]);
  if (HWY_MAX_BYTES == 64 && places % 64 == 0) {
    addRowsToLanes<64, Term, TS...>(kSources, b, totals);
  } else {
    addRowsToLanes<32, Term, TS...>(kSources, b, totals);
  }
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
