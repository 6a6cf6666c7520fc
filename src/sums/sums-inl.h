// Exact sums, sums of squares and maxima of integer samples, channel by channel.
//
// A sink that adds up lanes that stand together gets them of one channel: three channels are sorted
// into a vector each by blends of three vectors, in which every lane position meets every channel
// once, and of four channels those of one block of 16 bytes are brought together. Maxima stay in
// their lanes to the end.
#if defined(KELI_SUMS_SUMS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_SUMS_SUMS_INL_H_
#undef KELI_SUMS_SUMS_INL_H_
#else
#define KELI_SUMS_SUMS_INL_H_
#endif

#include "sums/sinks-inl.h"
#include "sums/totals.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

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
