// Row driver of masked operations: where the mask byte is not 0, the pixel (of kPixel bytes) takes
// the source's value. Which bytes a pixel takes is all that matters, not its type and channels.
//
// A source has
//   vector(d, v, offset)   the destination vector at a byte offset of the row; v is its place in a
//   step byte(j, offset)        the value of byte j of the pixel that starts at offset kAreasFrom
//   bytes of a pixel from which on areas of the mask are looked for
// Rows end with a step that overlaps the one before: written twice, the result is the same.
#if defined(KELI_CORE_MASKED_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CORE_MASKED_INL_H_
#undef KELI_CORE_MASKED_INL_H_
#else
#define KELI_CORE_MASKED_INL_H_
#endif

#include "core/shuffle-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// kUsed: bytes of a pixel that are written at all, fewer than kPixel for AC4.
template <std::size_t kPixel, std::size_t kUsed>
struct Masked {
  // Repeats each mask byte for every byte of its pixel.
  struct Spread {
    static constexpr std::size_t kSrc = 1;
    static constexpr std::size_t kDst = kPixel;
    static constexpr std::size_t kSpan = 1;
    static constexpr std::size_t from(std::size_t) { return 0; }
  };

  // The same by permutations, where the mask bytes of a step fill a vector.
  template <std::size_t kN>
  static constexpr bool permutes() {
    return kPermutesBytes && kPixel == 3 && kN >= 32;
  }

  template <std::size_t kN>
  static constexpr std::array<std::array<std::uint8_t, kN>, kPixel> makePlaces() {
    std::array<std::array<std::uint8_t, kN>, kPixel> a{};
    for (std::size_t j = 0; j < kPixel * kN; ++j)
      a[j / kN][j % kN] = static_cast<std::uint8_t>(j / kPixel);
    return a;
  }
  template <std::size_t kN>
  static constexpr std::array<std::array<std::uint8_t, kN>, kPixel> kPlaces = makePlaces<kN>();

  template <class Source>
  static HWY_INLINE void pixels(const std::uint8_t* mask, const Source& source, std::uint8_t* dst,
                                std::size_t x, std::size_t n) {
    for (; x < n; ++x) {
      if (mask[x] == 0) continue;
      for (std::size_t j = 0; j < kUsed; ++j) dst[x * kPixel + j] = source.byte(j, x * kPixel);
    }
  }

  // Masks are mostly made of areas: a step that is not set at all may be passed over, and one that
  // is set throughout stored without reading the destination. For small pixels that measured
  // slower, as the branches at the areas' edges weigh more than the memory spared.
  template <class Source>
  static constexpr bool looksForAreas() {
    return kUsed == kPixel ? kPixel >= Source::kAreasFrom : kPixel == 16;
  }

  template <class D, class Source>
  static HWY_INLINE void step(D d, const std::uint8_t* mask, const Source& source,
                              std::uint8_t* dst, std::size_t x, bool fetches) {
    constexpr std::size_t kN = hn::MaxLanes(D());
    using Plan = ShufflePlan<Spread, kN>;
    std::uint8_t* const out = dst + x * kPixel;
    if (fetches) {
      unrolled<Plan::kVectors>([&](auto v) KELI_LAMBDA { fetchAhead(out + v * kN); });
    }
    if constexpr (looksForAreas<Source>()) {
      const hn::CappedTag<std::uint8_t, Plan::kPixels> dm;
      const auto unset = hn::Eq(hn::LoadU(dm, mask + x), hn::Zero(dm));
      if (hn::AllTrue(dm, unset)) return;
      if (kUsed == kPixel && hn::AllFalse(dm, unset)) {
        unrolled<Plan::kVectors>([&](auto v) KELI_LAMBDA {
          hn::StoreU(source.vector(d, v, x * kPixel + v * kN), d, out + v * kN);
        });
        return;
      }
    }
    unrolled<Plan::kVectors>([&](auto v) KELI_LAMBDA {
      hn::Vec<D> wanted;
      if constexpr (kPixel == 1) {
        wanted = hn::LoadU(d, mask + x);
      } else if constexpr (permutes<kN>()) {
        wanted = permuteBytes(d, hn::LoadU(d, mask + x), hn::LoadU(d, kPlaces<kN>[v].data()));
      } else {
        wanted = shuffled<v>(d, mask + x, ShuffleIndices<Spread, D>::fixed());
      }
      if constexpr (kUsed < kPixel) {
        wanted = hn::IfThenElseZero(cycleMask<kPixel, kUsed>(d, v * kN % kPixel), wanted);
      }
      storeWhere(d, hn::Ne(wanted, hn::Zero(d)), source.vector(d, v, x * kPixel + v * kN),
                 out + v * kN);
    });
  }

  template <class D, class Source>
  static HWY_INLINE bool steps(D d, const std::uint8_t* mask, const Source& source,
                               std::uint8_t* dst, std::size_t n, bool fetches) {
    using Plan = ShufflePlan<Spread, hn::MaxLanes(D())>;
    static_assert(!permutes<hn::MaxLanes(D())>() || Plan::kPixels == hn::MaxLanes(D()));
    constexpr std::size_t kPixels = Plan::kPixels;
    constexpr std::size_t kUnroll = Plan::kVectors == 1 ? 4 : Plan::kVectors == 3 ? 2 : 1;
    if (n < kPixels) return false;
    const std::size_t end = n - kPixels;
    std::size_t x = 0;
    if constexpr (hn::MaxLanes(D()) == 64) {  // goes on at a cache line
      step(d, mask, source, dst, 0, fetches);
      x = std::min(unitsToLine(dst, kPixel, 0), end);
    }
    for (; kUnroll > 1 && x + kUnroll * kPixels <= end; x += kUnroll * kPixels) {
      unrolled<kUnroll>([&](auto u)
                            KELI_LAMBDA { step(d, mask, source, dst, x + u * kPixels, fetches); });
    }
    for (;; x = std::min(x + kPixels, end)) {
      step(d, mask, source, dst, x, fetches);
      if (x == end) break;
    }
    return true;
  }

  // fetches: whether to ask for the destination, beyond the caches. Where the source is read too,
  // that cost a tenth.
  template <class Source>
  static HWY_INLINE void row(const std::uint8_t* mask, const Source& source, std::uint8_t* dst,
                             std::size_t n, [[maybe_unused]] bool fetches) {
    if constexpr (!kScalarTarget) {
      const auto done = [&](auto d) KELI_LAMBDA { return steps(d, mask, source, dst, n, fetches); };
      if (permutes<64>() && done(hn::CappedTag<std::uint8_t, 64>())) return;
      if (done(hn::CappedTag<std::uint8_t, 32>()) || done(hn::CappedTag<std::uint8_t, 16>()))
        return;
    }
    pixels(mask, source, dst, 0, n);
  }
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
