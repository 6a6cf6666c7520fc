// Row driver of operations that only move samples: every destination byte of a group of pixels is a
// fixed source byte of the same group (Map), whatever the channels and their type.
//
// A destination vector is put together from windows of 16 source bytes for each of its 128-bit
// blocks: one byte shuffle for each window, then or. Windows never leave the bytes of the pixels at
// hand, so nothing outside the row is read, and a step loads all before it stores, so it works in
// place.
//
// A Map has
//   kSrc, kDst       bytes of a pixel in source and destination
//   from(j)          the source byte of destination byte j of a pixel
//   kSpan            extra source bytes of the pixel that a choice made at run time may need:
//   [from(j)
//                    rounded down to kSpan, + kSpan) must be covered; 1 where from(j) is all
#if defined(KELI_CORE_SHUFFLE_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CORE_SHUFFLE_INL_H_
#undef KELI_CORE_SHUFFLE_INL_H_
#else
#define KELI_CORE_SHUFFLE_INL_H_
#endif

#include <algorithm>
#include <numeric>

#include "core/band.h"
#include "core/simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// What one step of a Map does with vectors of kN bytes.
template <class Map, std::size_t kN>
struct ShufflePlan {
  // The fewest pixels that fill whole destination vectors and at least one source window.
  static constexpr std::size_t pixels() {
    std::size_t p = kN / std::gcd(kN, Map::kDst);
    while (p * Map::kSrc < 16) p *= 2;
    return p;
  }

  static constexpr std::size_t kPixels = pixels();
  static constexpr std::size_t kVectors = kPixels * Map::kDst / kN;
  static constexpr std::size_t kBlocks = kN / 16;
  static constexpr std::size_t kSrcBytes = kPixels * Map::kSrc;

  static constexpr std::size_t from(std::size_t j) {
    return j / Map::kDst * Map::kSrc + Map::from(j % Map::kDst);
  }

  // Start of window w of the 16 destination bytes from first on. Windows follow one another from
  // the lowest byte needed, and are moved back where they would pass the end of the source.
  static constexpr std::size_t window(std::size_t first, std::size_t w) {
    std::size_t low = kSrcBytes;
    for (std::size_t j = first; j < first + 16; ++j)
      low = std::min(low, from(j) / Map::kSpan * Map::kSpan);
    return std::min(low + 16 * w, kSrcBytes - 16);
  }

  static constexpr std::size_t windowsOf(std::size_t first) {
    std::size_t high = 0;
    for (std::size_t j = first; j < first + 16; ++j) {
      high = std::max(high, from(j) / Map::kSpan * Map::kSpan + Map::kSpan);
    }
    std::size_t w = 1;
    while (window(first, w - 1) + 16 < high) ++w;
    return w;
  }

  static constexpr std::size_t windows() {
    std::size_t most = 1;
    for (std::size_t first = 0; first < kVectors * kN; first += 16)
      most = std::max(most, windowsOf(first));
    return most;
  }

  static constexpr std::size_t kWindows = windows();

  // Position of destination byte j's source in window w of its block; 0x80, for which the shuffle
  // gives 0, outside of it. A byte that two windows hold comes from both, which is the same.
  static constexpr std::uint8_t index(std::size_t j, std::size_t w) {
    const std::size_t start = window(j / 16 * 16, w);
    const std::size_t source = from(j);
    return source >= start && source < start + 16 ? static_cast<std::uint8_t>(source - start)
                                                  : 0x80;
  }

  using Indices = std::array<std::uint8_t, kN>;
  static constexpr std::array<std::array<Indices, kWindows>, kVectors> makeIndices() {
    std::array<std::array<Indices, kWindows>, kVectors> all{};
    for (std::size_t v = 0; v < kVectors; ++v) {
      for (std::size_t w = 0; w < kWindows; ++w) {
        for (std::size_t i = 0; i < kN; ++i) all[v][w][i] = index(v * kN + i, w);
      }
    }
    return all;
  }

  static constexpr std::array<std::array<Indices, kWindows>, kVectors> kIndices = makeIndices();
};

// Two (or one) 128-bit blocks from two places.
template <std::size_t kLow, std::size_t kHigh, class D>
HWY_INLINE hn::Vec<D> loadBlocks(D d, const std::uint8_t* src) {
#if HWY_TARGET != HWY_SCALAR  // which has no Combine, and does not come here
  if constexpr (hn::MaxLanes(D()) == 32) {
    const hn::Half<D> half;
    return hn::Combine(d, hn::LoadU(half, src + kHigh), hn::LoadU(half, src + kLow));
  }
#endif
  return hn::LoadU(d, src + kLow);
}

// A Map's shuffle indices for vectors of D.
template <class Map, class D>
struct ShuffleIndices {
  using Plan = ShufflePlan<Map, hn::MaxLanes(D())>;
  hn::Vec<D> of[Plan::kVectors][Plan::kWindows];

  // Those of a Map that is fixed when compiling.
  static HWY_INLINE ShuffleIndices fixed() {
    ShuffleIndices indices;
    unrolled<Plan::kVectors>([&](auto v) KELI_LAMBDA {
      unrolled<Plan::kWindows>([&](auto w) KELI_LAMBDA {
        indices.of[v][w] = hn::LoadU(D(), Plan::kIndices[v][w].data());
      });
    });
    return indices;
  }
};

// Vector v of the step whose source begins at src.
template <std::size_t v, class Map, class D>
HWY_INLINE hn::Vec<D> shuffled(D d, const std::uint8_t* src,
                               const ShuffleIndices<Map, D>& indices) {
  constexpr std::size_t kN = hn::MaxLanes(D());
  using Plan = ShufflePlan<Map, kN>;
  constexpr std::size_t kLow = v * kN;
  constexpr std::size_t kHigh = kLow + kN - 16;
  hn::Vec<D> out = hn::Zero(d);
  unrolled<Plan::kWindows>([&](auto w) KELI_LAMBDA {
    const hn::Vec<D> part = hn::TableLookupBytesOr0(
        loadBlocks<Plan::window(kLow, w), Plan::window(kHigh, w)>(d, src), indices.of[v][w]);
    out = w == 0 ? part : hn::Or(out, part);
  });
  return out;
}

// Whole pixels within one vector: one load, one shuffle, one store, whose spare bytes are written
// again with the next pixels.
template <class Map, std::size_t kN>
struct BlockPlan {
  static constexpr std::size_t kPixels = kN / std::max(Map::kSrc, Map::kDst);
  static constexpr std::size_t kBytes = kPixels * Map::kDst;

  static constexpr std::array<std::uint8_t, kN> makeIndices() {
    std::array<std::uint8_t, kN> a{};
    for (std::size_t j = 0; j < kBytes; ++j) {
      a[j] = static_cast<std::uint8_t>(j / Map::kDst * Map::kSrc + Map::from(j % Map::kDst));
    }
    return a;
  }
  static constexpr std::array<std::uint8_t, kN> kIndices = makeIndices();
};

// Shuffles the bytes of a whole vector: of 16, or of 64 where the target can.
template <class D>
HWY_INLINE hn::Vec<D> shuffleAll(D d, hn::Vec<D> bytes, hn::Vec<D> indices) {
  if constexpr (kPermutesBytes && hn::MaxLanes(D()) >= 32) {
    return permuteBytes(d, bytes, indices);
  } else {
    return hn::TableLookupBytes(bytes, indices);
  }
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
