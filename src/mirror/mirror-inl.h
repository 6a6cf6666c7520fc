// Runs of pixels in reverse order, in blocks of whole pixels that one shuffle of a vector reverses.
//
// Where pixels do not fill a vector, a block stands at its start or at its end, and reversing moves
// it from the one to the other. A block's spare bytes are stored with it, and overwritten by the
// block that follows; the last block of a run is stored without them.
#if defined(KELI_MIRROR_MIRROR_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_MIRROR_MIRROR_INL_H_
#undef KELI_MIRROR_MIRROR_INL_H_
#else
#define KELI_MIRROR_MIRROR_INL_H_
#endif

#include "core/shuffle-inl.h"
#include "mirror/mirror_rows.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

constexpr bool isPowerOf2(std::size_t v) { return (v & (v - 1)) == 0; }

// The vectors that pixels are reversed in: blocks of 60 or 63 of 64 bytes if they can be shuffled
// at once, else of 12 or 15 of 16.
template <std::size_t kPixel>
using BlockTag = hn::CappedTag<std::uint8_t, isPowerOf2(kPixel) ? 32
                                             : kPermutesBytes   ? 64
                                                                : 16>;

// kUsed: bytes of a pixel that are written, fewer than kPixel for AC4.
template <std::size_t kPixel, std::size_t kUsed, class D>
struct Block {
  static constexpr std::size_t kN = hn::MaxLanes(D());
  static constexpr std::size_t kPixels = kN / kPixel;
  static constexpr std::size_t kSpare = kN % kPixel;
  static_assert(kUsed == kPixel || kSpare == 0);
  // Halves are exchanged by loading them so.
  static constexpr bool kInHalves = kN == 32 && !kPermutesBytes;

  // Reversing moves blocks from the end of a vector to the start of one, or the other way.
  template <bool kToEnd>
  static constexpr std::array<std::uint8_t, kN> makeIndices() {
    std::array<std::uint8_t, kN> a{};
    for (std::size_t i = 0; i < kPixels * kPixel; ++i) {
      const std::size_t mirrored = kN - (i / kPixel + 1) * kPixel + i % kPixel;
      const std::size_t to = kToEnd ? mirrored : i, from = kToEnd ? i : mirrored;
      a[to] = static_cast<std::uint8_t>(kInHalves ? from % 16 : from);
    }
    return a;
  }
  template <bool kToEnd>
  static constexpr std::array<std::uint8_t, kN> kIndices = makeIndices<kToEnd>();

  static HWY_INLINE hn::Vec<D> shuffle(const std::uint8_t* src, const std::uint8_t* indices) {
    const D d;
    const auto places = hn::LoadU(d, indices);
    if constexpr (kPermutesBytes && kN >= 32) {
      return permuteBytes(d, hn::LoadU(d, src), places);
    } else if constexpr (kInHalves) {
      return hn::TableLookupBytes(loadBlocks<16, 0>(d, src), places);
    } else {
      return hn::TableLookupBytes(hn::LoadU(d, src), places);
    }
  }
  // Of the block that a vector ends with, the reversed one at the start, and the other way.
  static HWY_INLINE hn::Vec<D> toStart(const std::uint8_t* src) {
    return shuffle(src, kIndices<false>.data());
  }
  static HWY_INLINE hn::Vec<D> toEnd(const std::uint8_t* src) {
    return shuffle(src, kIndices<true>.data());
  }

  static HWY_INLINE void put(hn::Vec<D> v, std::uint8_t* dst) {
    const D d;
    if constexpr (kUsed == kPixel) {
      hn::StoreU(v, d, dst);
    } else {
      storeWhere(d, cycleMask<kPixel, kUsed>(d, 0), v, dst);
    }
  }

  // Without spare bytes. kAtEnd: where in the vector the block stands.
  template <bool kAtEnd>
  static HWY_INLINE void putAlone(hn::Vec<D> v, std::uint8_t* dst) {
    if constexpr (kSpare == 0) {
      put(v, dst);
    } else {
      const D d;
      static constexpr auto kBlock = [] {
        std::array<std::uint8_t, kN> a{};
        for (std::size_t i = 0; i < kPixels * kPixel; ++i) a[kAtEnd ? kN - 1 - i : i] = 0xFF;
        return a;
      }();
      storeWhere(d, hn::MaskFromVec(hn::LoadU(d, kBlock.data())), v, dst);
    }
  }
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
