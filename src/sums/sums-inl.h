// Exact sums, sums of squares and maxima of integer samples, channel by channel.
//
// A term makes unsigned or signed values of the samples of one or two images: themselves, their
// magnitudes, the magnitudes of their differences. Sinks take vectors of values. A sink that adds
// up lanes that stand together gets them of one channel: three channels are sorted into a vector
// each by blends of three vectors, in which every lane position meets every channel once, and of
// four channels those of one block of 16 bytes are brought together. Maxima stay in their lanes.
#if defined(KELI_SUMS_SUMS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_SUMS_SUMS_INL_H_
#undef KELI_SUMS_SUMS_INL_H_
#else
#define KELI_SUMS_SUMS_INL_H_
#endif

#include "core/simd-inl.h"
#include "sums/totals.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// Of samples to values, lane by lane; scalar() is the definition.

struct Itself {
  template <class D>
  static HWY_INLINE hn::Vec<D> vector(D, hn::Vec<D> v) {
    return v;
  }
  template <class T>
  static HWY_INLINE T scalar(T v) {
    return v;
  }
};

struct Magnitude {
  template <class D>
  static HWY_INLINE auto vector(D, hn::Vec<D> v) {
    if constexpr (std::is_unsigned_v<hn::TFromD<D>>) {
      return v;
    } else {
      // That of the least value wraps to itself, which as an unsigned number is right.
      return hn::BitCast(hn::RebindToUnsigned<D>(), hn::Abs(v));
    }
  }
  template <class T>
  static HWY_INLINE auto scalar(T v) {
    using U = std::make_unsigned_t<T>;
    return v < 0 ? static_cast<U>(U{0} - static_cast<U>(v)) : static_cast<U>(v);
  }
};

struct Difference {
  template <class D>
  static HWY_INLINE auto vector(D d, hn::Vec<D> a, hn::Vec<D> b) {
    if constexpr (std::is_same_v<hn::TFromD<D>, std::uint8_t>) {
      return hn::Or(hn::SaturatedSub(a, b), hn::SaturatedSub(b, a));
    } else {
      const hn::RebindToUnsigned<D> du;
      static_cast<void>(d);
      return hn::BitCast(du, hn::Max(a, b)) - hn::BitCast(du, hn::Min(a, b));
    }
  }
  template <class T>
  static HWY_INLINE auto scalar(T a, T b) {
    return static_cast<std::make_unsigned_t<T>>(a > b ? a - b : b - a);
  }
};

// A term of one image, taken of the second of two.
template <class Term>
struct OfSecond {
  template <class D>
  static HWY_INLINE auto vector(D d, hn::Vec<D>, hn::Vec<D> b) {
    return Term::vector(d, b);
  }
  template <class T>
  static HWY_INLINE auto scalar(T, T b) {
    return Term::scalar(b);
  }
};

// Sinks of vectors of D. each(f) calls f(lane, value) for every 32-bit lane (of maxima for every
// lane) with its part of the total, which is signed; kMost vectors fit into it.

template <class D, class V, class F>
HWY_INLINE void eachLane(D d, V v, const F& f) {
  HWY_ALIGN hn::TFromD<D> lanes[hn::MaxLanes(D())];
  hn::Store(v, d, lanes);
  for (std::size_t j = 0; j < hn::MaxLanes(D()); ++j) f(j, lanes[j]);
}

template <class D>
struct AddBytes {
  static constexpr bool kSorts = true;
  static constexpr std::size_t kMost = std::size_t{1} << 20;  // of 4 * 255 each
  using DW = hn::Repartition<std::int32_t, D>;
  hn::Vec<DW> sum;

  HWY_INLINE AddBytes() : sum(hn::Zero(DW())) {}
  HWY_INLINE void add(D d, hn::Vec<D> v) {
    const DW dw;
    if constexpr (kMultipliesBytes) {
      sum = addProductsOfFours(dw, sum, v, hn::Set(d, 1));
    } else {
      const hn::Repartition<std::int16_t, D> d16;
      const auto pairs =
          hn::And(hn::BitCast(d16, v), hn::Set(d16, 0xFF)) +
          hn::BitCast(d16,
                      hn::ShiftRight<8>(hn::BitCast(hn::RebindToUnsigned<decltype(d16)>(), v)));
      sum = addProductsOfPairs(dw, sum, pairs, hn::Set(d16, 1));
    }
  }
  HWY_INLINE void merge(const AddBytes& other) { sum = sum + other.sum; }
  template <class F>
  HWY_INLINE void each(std::size_t, const F& f) const {
    eachLane(DW(), sum, f);
  }
};

// Of signed 16-bit values; unsigned ones are moved down by 2^15, and the count of lanes puts it
// right.
template <class D>
struct AddWords {
  static constexpr bool kSorts = true;
  static constexpr bool kUnsigned = std::is_unsigned_v<hn::TFromD<D>>;
  static constexpr std::size_t kMost = std::size_t{1} << 15;  // of -2 * 2^15 at least each
  using DI = hn::RebindToSigned<D>;
  using DW = hn::Repartition<std::int32_t, D>;
  hn::Vec<DW> sum;

  HWY_INLINE AddWords() : sum(hn::Zero(DW())) {}
  HWY_INLINE void add(D d, hn::Vec<D> v) {
    const DI di;
    if constexpr (kUnsigned) v = hn::Xor(v, hn::Set(d, 0x8000));
    sum = addProductsOfPairs(DW(), sum, hn::BitCast(di, v), hn::Set(di, 1));
  }
  HWY_INLINE void merge(const AddWords& other) { sum = sum + other.sum; }
  template <class F>
  HWY_INLINE void each(std::size_t vectors, const F& f) const {
    const std::int64_t moved = kUnsigned ? static_cast<std::int64_t>(vectors) * 65536 : 0;
    eachLane(DW(), sum, [&](std::size_t j, std::int64_t v) KELI_LAMBDA { f(j, v + moved); });
  }
};

// Where bytes multiply, v^2 = v (v - 128) + 128 v, as one factor has to be signed.
template <class D>
struct AddSquaredBytes {
  static constexpr bool kSorts = true;
  static constexpr std::size_t kMost = 8192;  // of 4 * 255^2 each, below 2^31 / 8192
  using DW = hn::Repartition<std::int32_t, D>;
  hn::Vec<DW> sum, linear;

  HWY_INLINE AddSquaredBytes() : sum(hn::Zero(DW())), linear(hn::Zero(DW())) {}
  HWY_INLINE void add(D d, hn::Vec<D> v) {
    const DW dw;
    if constexpr (kMultipliesBytes) {
      sum = addProductsOfFours(dw, sum, v, hn::Xor(v, hn::Set(d, 0x80)));
      linear = addProductsOfFours(dw, linear, v, hn::Set(d, 1));
    } else {
      const hn::Repartition<std::int16_t, D> d16;
      const hn::RebindToUnsigned<decltype(d16)> du16;
      const auto even = hn::And(hn::BitCast(d16, v), hn::Set(d16, 0xFF));
      const auto odd = hn::BitCast(d16, hn::ShiftRight<8>(hn::BitCast(du16, v)));
      sum = addProductsOfPairs(dw, addProductsOfPairs(dw, sum, even, even), odd, odd);
    }
  }
  HWY_INLINE void merge(const AddSquaredBytes& other) {
    sum = sum + other.sum;
    linear = linear + other.linear;
  }
  template <class F>
  HWY_INLINE void each(std::size_t, const F& f) const {
    eachLane(DW(), sum + hn::ShiftLeft<7>(linear), f);
  }
};

// Sums of pairs of squares, of up to 2^31, in 64 bits: those of odd pairs alone, and those of even
// pairs with the others above them, which are taken away in the end.
template <class D>
struct AddSquaredWords {
  static constexpr bool kSorts = true;
  static constexpr bool kUnsigned = std::is_unsigned_v<hn::TFromD<D>>;
  static constexpr std::size_t kMost = AddWords<D>::kMost;
  using DI = hn::RebindToSigned<D>;
  using DW = hn::Repartition<std::int32_t, D>;
  using DX = hn::Repartition<std::uint64_t, D>;
  hn::Vec<DX> both, odd;
  hn::Vec<DW> linear;

  HWY_INLINE AddSquaredWords()
      : both(hn::Zero(DX())), odd(hn::Zero(DX())), linear(hn::Zero(DW())) {}
  // An unsigned value u is s + 2^15, u^2 = s^2 + 2^16 s + 2^30.
  HWY_INLINE void add(D d, hn::Vec<D> v) {
    if constexpr (kUnsigned) v = hn::Xor(v, hn::Set(d, 0x8000));
    const auto s = hn::BitCast(DI(), v);
    const auto pairs = hn::BitCast(DX(), multiplyAddPairs(DW(), s, s));
    both = both + pairs;
    odd = odd + hn::ShiftRight<32>(pairs);
    if constexpr (kUnsigned) linear = addProductsOfPairs(DW(), linear, s, hn::Set(DI(), 1));
  }
  HWY_INLINE void merge(const AddSquaredWords& other) {
    both = both + other.both;
    odd = odd + other.odd;
    linear = linear + other.linear;
  }
  template <class F>
  HWY_INLINE void each(std::size_t vectors, const F& f) const {
    const std::uint64_t moved = kUnsigned ? vectors * (std::uint64_t{2} << 30) : 0;
    HWY_ALIGN std::int32_t lines[hn::MaxLanes(DW())];
    hn::Store(linear, DW(), lines);
    const auto give = [&](std::size_t j, std::uint64_t squares) KELI_LAMBDA {
      const std::int64_t line = std::int64_t{lines[j]} * 65536;
      f(j, static_cast<std::int64_t>(squares + moved + static_cast<std::uint64_t>(line)));
    };
    eachLane(DX(), both - hn::ShiftLeft<32>(odd),
             [&](std::size_t j, std::uint64_t v) KELI_LAMBDA { give(2 * j, v); });
    eachLane(DX(), odd, [&](std::size_t j, std::uint64_t v) KELI_LAMBDA { give(2 * j + 1, v); });
  }
};

template <class D>
struct TakeLargest {
  static constexpr bool kSorts = false;
  static constexpr std::size_t kMost = std::size_t{1} << 40;
  hn::Vec<D> largest;

  HWY_INLINE TakeLargest() : largest(hn::Zero(D())) {}
  HWY_INLINE void add(D, hn::Vec<D> v) { largest = hn::Max(largest, v); }
  HWY_INLINE void merge(const TakeLargest& other) { largest = hn::Max(largest, other.largest); }
  template <class F>
  HWY_INLINE void each(std::size_t, const F& f) const {
    // Lanes 16 bytes apart are of the same channel.
    const hn::CappedTag<hn::TFromD<D>, 16 / sizeof(hn::TFromD<D>)> d;
    HWY_ALIGN hn::TFromD<D> lanes[hn::MaxLanes(D())];
    hn::Store(largest, D(), lanes);
    auto v = hn::Load(d, lanes);
    for (std::size_t j = hn::MaxLanes(d); j < hn::MaxLanes(D()); j += hn::MaxLanes(d))
      v = hn::Max(v, hn::Load(d, lanes + j));
    eachLane(d, v, f);
  }
};

// What becomes of a value, and how totals join: the definition of each kind of sink.
struct Added {
  template <class V>
  static HWY_INLINE std::uint64_t of(V v) {
    return static_cast<std::uint64_t>(static_cast<std::int64_t>(v));
  }
  static HWY_INLINE void into(std::uint64_t& total, std::uint64_t value) { total += value; }
};
struct Squared : Added {
  template <class V>
  static HWY_INLINE std::uint64_t of(V v) {
    return Added::of(v) * Added::of(v);
  }
};
struct Largest : Added {
  static HWY_INLINE void into(std::uint64_t& total, std::uint64_t value) {
    total = std::max(total, value);
  }
};

template <class Kind, class D>
using SinkOf = std::conditional_t<
    std::is_same_v<Kind, Largest>, TakeLargest<D>,
    std::conditional_t<
        sizeof(hn::TFromD<D>) == 1,
        std::conditional_t<std::is_same_v<Kind, Added>, AddBytes<D>, AddSquaredBytes<D>>,
        std::conditional_t<std::is_same_v<Kind, Added>, AddWords<D>, AddSquaredWords<D>>>>;

// The samples of one channel in each vector, of three vectors that hold pixels of three: a lane
// meets each channel in one of them.
template <class D>
HWY_INLINE void sortThree(D d, hn::Vec<D> (&v)[3]) {
  constexpr std::size_t kN = hn::MaxLanes(D());
  for (hn::Vec<D>& u : v) keepLoaded(u);
  const hn::Vec<D> a = v[0], b = v[1], c = v[2];
  unrolled<3>([&](auto k) KELI_LAMBDA {
    // Lanes j with (j + at) % 3 == k.
    const auto lanes = [&](std::size_t at)
                           KELI_LAMBDA { return cycleMask<3, 1>(d, (3 - k + at) % 3); };
    v[k] = hn::IfThenElse(lanes(0), a, hn::IfThenElse(lanes(kN), b, c));
  });
}

// The samples of each channel of four together, in 32-bit lanes: one, two or four.
template <class D>
HWY_INLINE hn::Vec<D> sortFour(D d, hn::Vec<D> v) {
  constexpr std::size_t kBytes = sizeof(hn::TFromD<D>);
  alignas(16) static constexpr std::uint8_t kPlaces[2][16] = {
      {0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15},
      {0, 1, 8, 9, 2, 3, 10, 11, 4, 5, 12, 13, 6, 7, 14, 15}};
  const hn::Repartition<std::uint8_t, D> d8;
  if constexpr (kBytes > 2) return v;
  const auto places = hn::LoadDup128(d8, kPlaces[kBytes - 1]);
  return hn::BitCast(d, hn::TableLookupBytes(hn::BitCast(d8, v), places));
}

// Sinks of one term's values, and what they come to.
template <class Kind, class Term, std::size_t kChannels, class D, class... TS>
struct TermSinks {
  using DV = hn::Rebind<decltype(Term::scalar(TS()...)), D>;
  using Sink = SinkOf<Kind, DV>;
  static constexpr std::size_t kN = hn::MaxLanes(D());
  static constexpr std::size_t kVectors = kChannels == 3 ? 3 : 1;
  static constexpr std::size_t kUnroll = kChannels == 3 ? 2 : 4;
  static constexpr std::size_t kMost = Sink::kMost;

  Sink sinks[kUnroll][kVectors];

  HWY_INLINE TermSinks() {}

  // src: kVectors vectors of each source.
  template <std::size_t kU, class... Sources>
  HWY_INLINE void add(const Sources&... src) {
    hn::Vec<DV> v[kVectors];
    unrolled<kVectors>([&](auto k) KELI_LAMBDA { v[k] = Term::vector(D(), src[k]...); });
    if constexpr (Sink::kSorts && kChannels == 3) sortThree(DV(), v);
    if constexpr (Sink::kSorts && kChannels == 4) v[0] = sortFour(DV(), v[0]);
    unrolled<kVectors>([&](auto k) KELI_LAMBDA { sinks[kU][k].add(DV(), v[k]); });
  }

  // taken: vectors of each of the kVectors.
  HWY_INLINE void drain(std::size_t taken, sums::Totals& totals) {
    // Loops over sinks are unrolled so that the compiler keeps them in registers.
    unrolled<kUnroll - 1>([&](auto u) KELI_LAMBDA {
      unrolled<kVectors>([&](auto k) KELI_LAMBDA { sinks[0][k].merge(sinks[u + 1][k]); });
    });
    if constexpr (!Sink::kSorts && kChannels == 3) {
      hn::Vec<DV> largest[3] = {sinks[0][0].largest, sinks[0][1].largest, sinks[0][2].largest};
      sortThree(DV(), largest);
      unrolled<3>([&](auto k) KELI_LAMBDA { sinks[0][k].largest = largest[k]; });
    }
    unrolled<kVectors>([&](auto k) KELI_LAMBDA {
      sinks[0][k].each(taken, [&](std::size_t lane, auto value) KELI_LAMBDA {
        const std::size_t channel = kChannels == 1 ? 0 : kChannels == 4 ? lane % 4 : k;
        Kind::into(totals.value[channel], Added::of(value));
      });
    });
    unrolled<kUnroll>([&](auto u) KELI_LAMBDA {
      unrolled<kVectors>([&](auto k) KELI_LAMBDA { sinks[u][k] = Sink(); });
    });
  }

  static HWY_INLINE void samples(std::size_t n, sums::Totals& totals, const TS*... src) {
    for (std::size_t i = 0; i < n; ++i)
      Kind::into(totals.value[i % kChannels], Kind::of(Term::scalar(load(src + i)...)));
  }
};

// In place of a second term.
struct NoTerm {};
template <class Kind, std::size_t kChannels, class D, class... TS>
struct TermSinks<Kind, NoTerm, kChannels, D, TS...> {
  static constexpr std::size_t kMost = ~std::size_t{0};
  template <std::size_t, class... Sources>
  HWY_INLINE void add(const Sources&...) {}
  HWY_INLINE void drain(std::size_t, sums::Totals&) {}
  static HWY_INLINE void samples(std::size_t, sums::Totals&, const TS*...) {}
};

// Of images of kChannels stored channels (1, 3 or 4), one source for each of TS, and of one term or
// two; the totals of the second stand behind those of the first.
template <class Kind, std::size_t kChannels, class Term1, class Term2, class... TS>
struct Reduction {
  using Sample = std::common_type_t<TS...>;
  using D = hn::CappedTag<Sample, 64 / sizeof(Sample)>;
  using First = TermSinks<Kind, Term1, kChannels, D, TS...>;
  using Second = TermSinks<Kind, Term2, kChannels, D, TS...>;
  static constexpr std::size_t kN = First::kN;
  static constexpr std::size_t kVectors = First::kVectors;
  static constexpr std::size_t kUnroll = First::kUnroll;
  static constexpr std::size_t kStep = kVectors * kN;
  static constexpr std::size_t kMost = std::min(First::kMost, Second::kMost);

  First first;
  Second second;
  std::size_t taken;  // steps

  HWY_INLINE Reduction() : taken(0) {}

  struct Vectors {
    hn::Vec<D> v[kVectors];
    HWY_INLINE const hn::Vec<D>& operator[](std::size_t k) const { return v[k]; }
  };

  // The samples from p on of which `rest` are left in the row, and zeros.
  template <bool kWhole>
  static HWY_INLINE Vectors loadStep(const Sample* p, std::size_t rest) {
    Vectors loaded;
    unrolled<kVectors>([&](auto k) KELI_LAMBDA {
      const std::size_t before = k * kN;
      if (kWhole || rest >= before + kN) {
        loaded.v[k] = hn::LoadU(D(), p + before);
      } else if (rest <= before) {
        loaded.v[k] = hn::Zero(D());
      } else {
        loaded.v[k] = loadFirst(D(), p + before, rest - before);
      }
    });
    return loaded;
  }

  // Of values that are used more than once.
  static HWY_INLINE void keep(Vectors& loaded) {
    if constexpr (sizeof...(TS) == 2 || std::is_same_v<Kind, Squared>)
      unrolled<kVectors>([&](auto k) KELI_LAMBDA { keepLoaded(loaded.v[k]); });
  }

  template <bool kWhole, std::size_t kU, std::size_t... S>
  static HWY_INLINE void step(std::index_sequence<S...>, First& first, Second& second,
                              std::size_t rest, const TS*... src) {
    Vectors loaded[] = {loadStep<kWhole>(src, rest)...};
    (keep(loaded[S]), ...);
    first.template add<kU>(loaded[S]...);
    second.template add<kU>(loaded[S]...);
  }

  // At most as many samples as the sinks have room for. Copies of the sinks stay in registers.
  HWY_INLINE void piece(std::size_t n, const TS*... src) {
    constexpr std::index_sequence_for<TS...> kSources;
    First f = first;
    Second s = second;
    std::size_t i = 0;
    for (; i + kUnroll * kStep <= n; i += kUnroll * kStep) {
      unrolled<kUnroll>(
          [&](auto u) KELI_LAMBDA { step<true, u>(kSources, f, s, 0, (src + i + u * kStep)...); });
    }
    unrolled<kUnroll>([&](auto u) KELI_LAMBDA {
      if (i + kStep <= n) {
        step<true, u>(kSources, f, s, 0, (src + i)...);
        i += kStep;
      } else if (i < n) {
        step<false, u>(kSources, f, s, n - i, (src + i)...);
        i = n;
      }
    });
    first = f;
    second = s;
    taken += (n + kStep - 1) / kStep;
  }

  // Loads across cache lines cost a third of the speed: a long row's first samples are set apart up
  // to the first source's next line.
  template <class... Others>
  static HWY_INLINE std::size_t headOf(std::size_t n, const Sample* src, const Others*...) {
    constexpr std::size_t kLong = 1024 / sizeof(Sample);
    const std::size_t pixels = n / kChannels;
    if (n < kLong) return 0;
    const std::size_t head = unitsToLine(src, kChannels * sizeof(Sample), pixels);
    return head < pixels ? head * kChannels : 0;
  }

  HWY_INLINE void row(std::size_t n, sums::Totals* totals, const TS*... src) {
    const std::size_t head = headOf(n, src...);
    for (std::size_t i = 0; i < n;) {
      const std::size_t most = i == 0 && head != 0 ? head : n - i;
      const std::size_t here = std::min(most, (kMost - taken) * kStep);
      piece(here, (src + i)...);
      i += here;
      if (taken == kMost) drain(totals);
    }
  }

  HWY_INLINE void drain(sums::Totals* totals) {
    first.drain(taken, totals[0]);
    second.drain(taken, totals[1]);
    taken = 0;
  }
};

template <class Kind, std::size_t kChannels, class Term1, class Term2, class... TS,
          std::size_t... S>
HWY_INLINE void reduceBand(std::index_sequence<S...>, const Band<sizeof...(TS)>& b,
                           sums::Totals* totals) {
  if constexpr (kScalarTarget) {
    using D = hn::CappedTag<std::uint8_t, 1>;
    for (std::size_t y = 0; y < b.rows; ++y) {
      TermSinks<Kind, Term1, kChannels, D, TS...>::samples(b.n, totals[0],
                                                           b.template srcRow<TS>(S, y)...);
      TermSinks<Kind, Term2, kChannels, D, TS...>::samples(b.n, totals[1],
                                                           b.template srcRow<TS>(S, y)...);
    }
  } else {
    Reduction<Kind, kChannels, Term1, Term2, TS...> reduction;
    for (std::size_t y = 0; y < b.rows; ++y)
      reduction.row(b.n, totals, b.template srcRow<TS>(S, y)...);
    reduction.drain(totals);
  }
}

template <class Kind, std::size_t kChannels, class Term, class... TS>
void ownReduction(const Band<sizeof...(TS)>& b, sums::Totals* totals) {
  reduceBand<Kind, kChannels, Term, NoTerm, TS...>(std::index_sequence_for<TS...>(), b, totals);
}

// Of differences, and of the second image alone.
template <class Kind, std::size_t kChannels, class Term, class T>
void ownRelative(const Band<2>& b, sums::Totals* totals) {
  reduceBand<Kind, kChannels, Difference, OfSecond<Term>, T, T>(std::index_sequence<0, 1>(), b,
                                                                totals);
}

template <class Kind, class Term, class... TS>
constexpr sums::ByChannels<sizeof...(TS)> kReduction = {ownReduction<Kind, 1, Term, TS...>,
                                                        ownReduction<Kind, 3, Term, TS...>,
                                                        ownReduction<Kind, 4, Term, TS...>};

template <class Kind, class Term, class T>
constexpr sums::ByChannels<2> kRelative = {
    ownRelative<Kind, 1, Term, T>, ownRelative<Kind, 3, Term, T>, ownRelative<Kind, 4, Term, T>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
