// Kernels of MinIndx and MaxIndx: the extreme of each channel and the first place it has.
//
// Vectors keep the extremes of a block of rows alone. Only where a block holds a better one than
// those before it, its rows are searched for the first sample equal to the new extreme, beginning
// with the first group of rows after which the extremes had it. Blocks fit the first-level cache,
// so that a search reads nothing from beyond it. Integers end when every channel has met the bound
// of its type, and read no row after that: each row is tested for lanes at the bound, and one that
// has some ends its block.
#if defined(KELI_EXTREMES_PLACES_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_EXTREMES_PLACES_INL_H_
#undef KELI_EXTREMES_PLACES_INL_H_
#else
#define KELI_EXTREMES_PLACES_INL_H_
#endif

#include <algorithm>

#include "extremes/order-inl.h"
#include "extremes/sweep-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

using extremes::Place;

struct Channels {
  std::size_t count;  // in a pixel
  std::size_t used;

  // The channel at place k of a cycle; of C1 all places are one channel.
  std::size_t at(std::size_t k) const { return count == 1 ? 0 : k; }
};

// Whether every channel has met the bound, after which integers have nothing better.
template <class Order, class T>
HWY_INLINE bool complete(const Channels& channels, const Place<T>* places) {
  if (hwy::IsFloat<T>()) return false;
  for (std::size_t k = 0; k < channels.used; ++k) {
    if (places[k].value != Order::kBound) return false;
  }
  return true;
}

template <class Order, class T>
void placesOfSamples(const Band<1>& b, const Channels& channels, Place<T>* places) {
  for (std::size_t y = 0; y < b.rows && !complete<Order>(channels, places); ++y) {
    const T* pixel = b.srcRow<T>(0, y);
    for (std::size_t x = 0; x * channels.count < b.n; ++x, pixel += channels.count) {
      for (std::size_t k = 0; k < channels.used; ++k) {
        const T v = load(pixel + k);
        if (Order::first(v, places[k].value)) places[k] = {v, x, y};
      }
    }
  }
}

// The samples of a cycle, which vectors repeat.
template <class T, std::size_t kCycle>
struct Pixel {
  alignas(16) T samples[16 / sizeof(T)] = {};

  template <class D>
  HWY_INLINE hn::Vec<D> vector(D d, std::size_t u) const {
    return repeatCycle<kCycle>(d, samples, u * hn::MaxLanes(D()));
  }
};

// The lanes of channels by their bits.
template <class D, std::size_t kCycle>
HWY_INLINE void channelLanes(const Channels& channels, unsigned bits,
                             hn::Mask<D> (&masks)[kDistinctOf<kCycle>]) {
  using Bits = hwy::MakeUnsigned<hn::TFromD<D>>;
  Pixel<Bits, kCycle> pixel;
  for (std::size_t k = 0; k < kCycle; ++k)
    pixel.samples[k] = static_cast<Bits>(0 - (bits >> channels.at(k) & 1));
  unrolled<kDistinctOf<kCycle>>([&](auto u) KELI_LAMBDA {
    const hn::RebindToUnsigned<D> du;
    masks[u] = hn::MaskFromVec(hn::BitCast(D(), pixel.vector(du, u)));
  });
}

// Finds the first samples that equal the values of the channels wanted.
template <class D, std::size_t kCycle>
struct Search {
  using T = hn::TFromD<D>;
  static constexpr std::size_t kN = hn::MaxLanes(D()), kDistinct = kDistinctOf<kCycle>;

  const Channels& channels;
  unsigned wanted;  // bits of channels
  Place<T>* places;
  hn::Vec<D> values[kDistinct];
  hn::Mask<D> lanes[kDistinct];  // of the channels wanted

  template <std::size_t u>
  HWY_INLINE hn::Mask<D> hits(const T* block) const {
    return hn::And(hn::LoadU(D(), block + u * kN) == values[u], lanes[u]);
  }

  // Whether a block has hits.
  HWY_INLINE bool hitsAny(const T* block) const {
    hn::Mask<D> any = hits<0>(block);
    if constexpr (kDistinct == 3) any = hn::Or(any, hn::Or(hits<1>(block), hits<2>(block)));
    return !hn::AllFalse(D(), any);
  }

  // Takes the hits of a block, the samples from `first` on of row y.
  void take(const T* block, std::size_t first, std::size_t y) {
    unrolled<kDistinct>([&](auto u) KELI_LAMBDA {
      for (auto hit = hits<u>(block); !hn::AllFalse(D(), hit); hit = hits<u>(block)) {
        const std::size_t lane = static_cast<std::size_t>(hn::FindFirstTrue(D(), hit)) + u * kN;
        const std::size_t at = first + lane, k = at % channels.count;
        places[k] = {load(block + lane), at / channels.count, y};
        wanted &= ~(1u << k);
        channelLanes<D, kCycle>(channels, wanted, lanes);
      }
    });
  }

  // row: of n samples, at least a block.
  void run(const T* row, std::size_t n, std::size_t y) {
    constexpr std::size_t kBlock = kDistinct * kN;
    for (std::size_t i = 0; i < n && wanted != 0;) {
      const Search quick = *this;  // which is not written to, and stays in registers
      std::size_t first;
      do {
        first = std::min(i, n - kBlock);
        i += kBlock;
      } while (!quick.hitsAny(row + first) && i < n);
      take(row + first, first, y);
    }
  }
};

// What the rows of a block of rows hold, kept for groups of them, which are powers of two.
template <class D, std::size_t kCycle>
struct Marks {
  using T = hn::TFromD<D>;
  static constexpr std::size_t kBlockBytes = 16384, kGroups = 16;
  static constexpr std::size_t kLanes = kDistinctOf<kCycle> * hn::MaxLanes(D());

  std::size_t rows;                        // of a block
  unsigned groupBits = 0;                  // of the number of rows of a group
  std::size_t first = 0;                   // row of the block
  HWY_ALIGN T extremes[kGroups * kLanes];  // of the block's rows up to each group's end

  explicit Marks(const Band<1>& b) : rows(std::max<std::size_t>(1, kBlockBytes / sizeof(T) / b.n)) {
    while ((rows - 1) >> groupBits >= kGroups) ++groupBits;
  }

  HWY_INLINE T* of(std::size_t y) { return extremes + ((y - first) >> groupBits) * kLanes; }
};

// values: of a cycle; they are searched for in the rows from that of the marks to `last`.
template <class D, std::size_t kCycle, class T>
void searchRows(const Band<1>& b, Marks<D, kCycle>& marks, std::size_t last,
                const Channels& channels, const T* values, unsigned wanted, Place<T>* places) {
  Search<D, kCycle> search{channels, wanted, places, {}, {}};
  Pixel<T, kCycle> pixel;
  std::copy(values, values + kCycle, pixel.samples);
  unrolled<kDistinctOf<kCycle>>([&](auto u)
                                    KELI_LAMBDA { search.values[u] = pixel.vector(D(), u); });
  channelLanes<D, kCycle>(channels, wanted, search.lanes);
  const std::size_t groupRows = std::size_t{1} << marks.groupBits;
  for (std::size_t y = marks.first; y <= last && search.wanted != 0; y += groupRows) {
    if (!search.hitsAny(marks.of(y))) continue;
    const std::size_t end = std::min(last + 1, y + groupRows);
    for (std::size_t i = y; i < end; ++i) search.run(b.srcRow<T>(0, i), b.n, i);
  }
}

// The extremes of a block of rows.
template <class Order, class D, std::size_t kCycle>
struct PlaceSweep {
  using T = hn::TFromD<D>;
  using Mask = hn::Mask<D>;
  static constexpr std::size_t kN = hn::MaxLanes(D());
  static constexpr std::size_t kDistinct = kDistinctOf<kCycle>;
  static constexpr std::size_t kUnroll = kDistinct == 3 ? 6 : 4;
  static constexpr std::size_t kCount = kAccumulators<T, kUnroll>;

  hn::Vec<D> best[kCount];       // indices are constants everywhere: all stay in registers
  hn::Vec<D> before[kDistinct];  // the best when the block began
  Mask open[kDistinct];          // lanes of channels that have not met the bound

  template <std::size_t u>
  HWY_INLINE void add(D, hn::Vec<D> v) {
    best[u % kCount] = Order::of(v, best[u % kCount]);
  }
  template <std::size_t u>
  HWY_INLINE void addTwo(D d, hn::Vec<D> v, hn::Vec<D> w) {
    add<u>(d, v);
    add<u + kUnroll / 2>(d, w);
  }
  template <std::size_t u>
  HWY_INLINE void addRest(D d, hn::Vec<D> v, std::size_t) {
    add<u>(d, v);
  }
  template <std::size_t u>
  HWY_INLINE void addHead(D d, hn::Vec<D> v, std::size_t) {
    add<u>(d, v);
  }

  // No sample is better than the bound, which stands for channels that are not used.
  HWY_INLINE void begin(const Channels& channels, const Place<T>* places) {
    Pixel<T, kCycle> pixel;
    unsigned bits = 0;
    for (std::size_t k = 0; k < kCycle; ++k) {
      const std::size_t channel = channels.at(k);
      pixel.samples[k] = channel < channels.used ? places[channel].value : Order::kBound;
      bits |= unsigned{pixel.samples[k] != Order::kBound} << channel;
    }
    channelLanes<D, kCycle>(channels, bits, open);
    unrolled<kDistinct>([&](auto u) KELI_LAMBDA { before[u] = pixel.vector(D(), u); });
    unrolled<kCount>([&](auto u) KELI_LAMBDA { best[u] = before[u % kDistinct]; });
  }

  template <std::size_t u>
  HWY_INLINE hn::Vec<D> folded() const {
    hn::Vec<D> v = best[u];
    if constexpr (kCount >= 2 * kDistinct) v = Order::of(best[u + kDistinct], v);
    if constexpr (kCount == 4 * kDistinct)
      v = Order::of(Order::of(best[u + 2 * kDistinct], best[u + 3 * kDistinct]), v);
    return v;
  }

  // Whether lane(u) has a lane for any u.
  template <class Lanes>
  static HWY_INLINE bool any(const Lanes& lanes) {
    Mask all = lanes(std::integral_constant<std::size_t, 0>());
    if constexpr (kDistinct == 3) {
      all = hn::Or(all, hn::Or(lanes(std::integral_constant<std::size_t, 1>()),
                               lanes(std::integral_constant<std::size_t, 2>())));
    }
    return !hn::AllFalse(D(), all);
  }

  HWY_INLINE bool meetsBound() const {
    const auto bound = hn::Set(D(), Order::kBound);
    return any([&](auto u) KELI_LAMBDA { return hn::And(folded<u>() == bound, open[u]); });
  }

  HWY_INLINE bool improved() const {
    return any([&](auto u) KELI_LAMBDA { return Order::firstLanes(folded<u>(), before[u]); });
  }

  HWY_INLINE void store(T* lanes) const {
    unrolled<kDistinct>([&](auto u) KELI_LAMBDA { hn::Store(folded<u>(), D(), lanes + u * kN); });
  }
};

// Writes the extremes of the lanes of a block at the places of a cycle.
template <class Order, class D, std::size_t kCycle, class T>
HWY_INLINE void foldChannels(const Channels& channels, const T* block, T* values) {
  constexpr std::size_t kLanes = kDistinctOf<kCycle> * hn::MaxLanes(D());
  HWY_ALIGN T lanes[kLanes];
  std::memcpy(lanes, block, sizeof(lanes));
  foldLanes<kCycle, kLanes>(lanes,
                            [](auto, auto v, auto w) KELI_LAMBDA { return Order::of(v, w); });
  T best = lanes[0];
  for (std::size_t k = 1; k < kCycle; ++k) best = Order::first(lanes[k], best) ? lanes[k] : best;
  for (std::size_t k = 0; k < kCycle; ++k) values[k] = channels.count == 1 ? best : lanes[k];
}

template <class Order, std::size_t kCycle, class D, class T>
HWY_INLINE void placesOfVectors(D d, const Band<1>& b, const Channels& channels, Place<T>* places) {
  Marks<D, kCycle> marks(b);
  PlaceSweep<Order, D, kCycle> sweep;
  sweep.begin(channels, places);
  for (std::size_t y = 0; y < b.rows; ++y) {
    sweepRow(d, sweep, b.srcRow<T>(0, y), b.n);
    sweep.store(marks.of(y));
    const bool ends = y + 1 == b.rows || y + 1 - marks.first == marks.rows;
    if (!ends && (hwy::IsFloat<T>() || !sweep.meetsBound())) continue;
    if (sweep.improved()) {
      T values[kCycle];
      foldChannels<Order, D, kCycle>(channels, marks.of(y), values);
      unsigned better = 0;
      for (std::size_t k = 0; k < channels.used; ++k)
        better |= unsigned{Order::first(values[k], places[k].value)} << k;
      searchRows(b, marks, y, channels, values, better, places);
      if (complete<Order>(channels, places)) return;
      sweep.begin(channels, places);
    }
    marks.first = y + 1;
  }
}

template <class T, std::size_t kCycle, class Operation>
void ownPlaces(const Band<1>& b, std::size_t count, std::size_t used, Place<T>* places) {
  using Best = Order<Operation, T>;
  const Channels channels = {count, used};
  for (std::size_t k = 0; k < used; ++k) places[k] = {load(b.srcRow<T>(0, 0) + k), 0, 0};
  if (complete<Best>(channels, places)) return;
  const bool done = withVectors<T, kDistinctOf<kCycle>, 64>(
      b.n, [&](auto d) KELI_LAMBDA { placesOfVectors<Best, kCycle>(d, b, channels, places); });
  if (!done) placesOfSamples<Best>(b, channels, places);
}

template <class T, class Operation>
constexpr extremes::PlaceRows<T> kPlaceRows = {ownPlaces<T, 4, Operation>,
                                               ownPlaces<T, 3, Operation>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
