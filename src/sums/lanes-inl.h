// Single-precision sums in the lanes of FloatTotals: sample i of every row goes to lane i % kLanes,
// where kLanes is floatLanes of the channels.
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
template <std::size_t kLanes, std::size_t kBytes, class Term, class... TS>
struct Lanes {
  float* sum;

  Lanes(sums::FloatTotals& totals, std::size_t) : sum(totals.lanes) {}
  void put(sums::FloatTotals&) const {}
  void empty(sums::FloatTotals& totals) { totals.empty(); }
  void round(std::size_t n, const TS*... src) {
    for (std::size_t i = 0; i < n; ++i) sum[i % kLanes] += Term::scalar(load(src + i)...);
  }
};
#else
template <std::size_t kLanes, std::size_t kBytes, class Term, class... TS>
struct Lanes {
  using D = hn::CappedTag<float, kBytes / sizeof(float)>;
  static constexpr std::size_t kN = hn::MaxLanes(D());
  static constexpr std::size_t kVectors = kLanes / kN;

  // Vectors start `head` samples after the row does, so lanes are turned by as many. The head's
  // samples go to the last vector.
  std::size_t head;
  hn::Vec<D> sum[kVectors];

  HWY_INLINE Lanes(const sums::FloatTotals& totals, std::size_t h) : head(h) {
    float lanes[2 * kLanes];
    std::memcpy(lanes, totals.lanes, kLanes * sizeof(float));
    std::memcpy(lanes + kLanes, totals.lanes, kLanes * sizeof(float));
    unrolled<kVectors>([&](auto u) KELI_LAMBDA { sum[u] = hn::LoadU(D(), lanes + head + u * kN); });
  }
  HWY_INLINE void put(sums::FloatTotals& totals) const {
    HWY_ALIGN float lanes[kLanes];
    unrolled<kVectors>([&](auto u) KELI_LAMBDA { hn::Store(sum[u], D(), lanes + u * kN); });
    const std::size_t rest = kLanes - head;
    std::memcpy(totals.lanes + head, lanes, rest * sizeof(float));
    std::memcpy(totals.lanes, lanes + rest, head * sizeof(float));
  }

  // As totals.empty(), some ten times as fast.
  HWY_INLINE void empty(sums::FloatTotals& totals) {
    const hn::CappedTag<double, kBytes / sizeof(double)> d;
    const hn::Rebind<float, decltype(d)> df;
    put(totals);
    for (std::size_t i = 0; i < kLanes; i += hn::MaxLanes(d)) {
      const auto lanes = hn::PromoteTo(d, hn::LoadU(df, totals.lanes + i));
      hn::StoreU(hn::LoadU(d, totals.sums + i) + lanes, d, totals.sums + i);
      hn::StoreU(hn::Zero(df), df, totals.lanes + i);
    }
    totals.rounds = 0;
    unrolled<kVectors>([&](auto u) KELI_LAMBDA { sum[u] = hn::Zero(D()); });
  }

  HWY_INLINE void round(std::size_t n, const TS*... src) {
    if constexpr (kBytes == 64) {
      const D d;
      const auto mask = hn::Not(hn::FirstN(d, kN - head));
      sum[kVectors - 1] =
          sum[kVectors - 1] + Term::vector(d, hn::MaskedLoad(mask, d, src + head - kN)...);
    }
    whole(n - head, (src + head)...);
  }

  // Zeros that fill up a vector change no lane: none is ever -0.
  HWY_INLINE void whole(std::size_t n, const TS*... src) {
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

// The row's samples in runs of so many rounds as the lanes have left. All runs start at the same
// place of a cache line, as kLanes floats fill lines.
template <std::size_t kLanes, std::size_t kBytes, class Term, class... TS, std::size_t... S>
HWY_INLINE void addRowsToLanes(std::index_sequence<S...>, const Band<sizeof...(TS)>& b,
                               std::size_t head, sums::FloatTotals& totals) {
  constexpr std::size_t kRounds = sums::FloatTotals::kRounds;
  static_assert(kLanes * sizeof(float) % 64 == 0);
  Lanes<kLanes, kBytes, Term, TS...> lanes(totals, head);
  for (std::size_t y = 0; y < b.rows; ++y) {
    for (std::size_t i = 0; i < b.n;) {
      const std::size_t n = std::min(b.n - i, (kRounds - totals.rounds) * kLanes);
      lanes.round(n, (b.template srcRow<TS>(S, y) + i)...);
      totals.rounds += static_cast<unsigned>((n + kLanes - 1) / kLanes);
      if (totals.rounds == kRounds) lanes.empty(totals);
      i += n;
    }
  }
  lanes.put(totals);
}

// Loads across cache lines would cost a third of the speed: where all rows start at the same place
// of one, whole lines are read from the first on. Else vectors of half a line meet fewer of them.
template <std::size_t kLanes, class Term, class... TS>
HWY_INLINE void addToLanes(const Band<sizeof...(TS)>& b, sums::FloatTotals& totals) {
  constexpr std::index_sequence_for<TS...> kSources;
  const auto place = [&](std::size_t i) { return reinterpret_cast<std::uintptr_t>(b.src[i]) % 64; };
  bool alike = place(0) % sizeof(float) == 0;
  for (std::size_t i = 0; i < sizeof...(TS); ++i)
    alike = alike && place(i) == place(0) && b.srcStep[i] % 64 == 0;
  if constexpr (HWY_MAX_BYTES == 64) {
    const std::size_t head = (64 - place(0)) % 64 / sizeof(float);
    const std::size_t shortestRun = (b.n + kLanes - 1) % kLanes + 1;
    if (alike && shortestRun >= head)
      return addRowsToLanes<kLanes, 64, Term, TS...>(kSources, b, head, totals);
  }
  addRowsToLanes<kLanes, 32, Term, TS...>(kSources, b, 0, totals);
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
