// Rows with margins: the pixels of a source row between pixels that repeat a left and a right one.
//
// Margins are stored in whole vectors that may reach into the middle, which is stored after them;
// none leaves the row. A vector that starts at any pixel has the same bytes, so two are all that a
// row needs: one for stores that begin with a pixel, one for stores that end with one.
#if defined(KELI_BORDER_BORDER_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_BORDER_BORDER_INL_H_
#undef KELI_BORDER_BORDER_INL_H_
#else
#define KELI_BORDER_BORDER_INL_H_
#endif

#include <algorithm>

#include "border/border_rows.h"
#include "core/identity-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// kUsed: bytes of a pixel that are written, fewer than kPixel for AC4.
template <std::size_t kPixel, std::size_t kUsed>
struct BorderRow {
  using Band = border::BorderBand;
  static constexpr bool kAll = kUsed == kPixel;
  // Of one channel; whole pixels where they are no longer than a sample may be.
  static constexpr std::size_t kSample = kPixel % 3 == 0       ? kPixel / 3
                                         : kAll && kPixel <= 4 ? kPixel
                                                               : kPixel / 4;
  using Sample = std::conditional_t<kSample == 1, std::uint8_t,
                                    std::conditional_t<kSample == 2, std::uint16_t, std::uint32_t>>;
  using T = std::conditional_t<kAll, std::uint8_t, Sample>;  // what is copied
  using Keep = std::conditional_t<kAll, KeepNone, KeepOthers<4, 3>>;
  using Copy = map::Row<Identity, Keep, T, T>;

  template <class D>
  static HWY_INLINE void put(D d, hn::Vec<D> v, std::uint8_t* dst) {
    if constexpr (kAll) {
      hn::StoreU(v, d, dst);
    } else {
      storeWhere(d, cycleMask<kPixel, kUsed>(d, 0), v, dst);
    }
  }

  // The source's part of a row, where too few bytes or stores around the caches are to be copied.
  static HWY_NOINLINE void copySamples(const std::uint8_t* src, std::uint8_t* dst,
                                       std::size_t count, bool streams) {
    Copy::run(Identity(), streams, count / sizeof(T) - Keep::kTrim, reinterpret_cast<T*>(dst),
              reinterpret_cast<const T*>(src));
  }

  // count: bytes of whole pixels. From kLong on, rows are set on cache lines by vectors that
  // overlap.
  static HWY_INLINE void copy(const std::uint8_t* src, std::uint8_t* dst, std::size_t count) {
    const hn::CappedTag<std::uint8_t, 32> d;
    constexpr std::size_t kN = hn::MaxLanes(d), kLine = 64, kLong = 192;
    if (count < kN) return copySamples(src, dst, count, false);
    const std::size_t end = count - kN;
    const auto move = [&](std::size_t x) KELI_LAMBDA { put(d, hn::LoadU(d, src + x), dst + x); };
    std::size_t x = 0;
    if (count >= kLong) {
      const std::size_t head = kLine - reinterpret_cast<std::uintptr_t>(dst) % kLine;
      if (kAll || head % kPixel == 0) {
        unrolled<kLine / kN>([&](auto u) KELI_LAMBDA { move(u * kN); });
        x = head;
      }
      for (; x + kLine <= end; x += kLine)
        unrolled<kLine / kN>([&](auto u) KELI_LAMBDA { move(x + u * kN); });
    }
    for (; x < end; x += kN) move(x);
    move(end);
  }

  // What margins have spilled into the middle is stored as they are; stores around the caches would
  // have to drive those lines out of them.
  static HWY_INLINE void middle(const std::uint8_t* src, std::uint8_t* dst, std::size_t count,
                                bool streams) {
    if (!kAll || !streams || count < 1024) return copy(src, dst, count);
    constexpr std::size_t kSpilled = 32;
    copy(src, dst, kSpilled);
    copySamples(src + kSpilled, dst + kSpilled, count - 2 * kSpilled, true);
    const std::size_t end = count - kSpilled;
    copy(src + end, dst + end, kSpilled);
  }

  // A pixel over and over, from the start of a pixel or up to the end of one. bytes: 16, of which
  // those of the pixel begin at kAt.
  template <bool kEnds, std::size_t kAt, class D>
  static HWY_INLINE hn::Vec<D> repeated(D d, const std::uint8_t* bytes) {
    constexpr std::size_t kN = hn::MaxLanes(D());
    static constexpr auto kIndices = [] {
      std::array<std::uint8_t, kN> a{};
      for (std::size_t i = 0; i < kN; ++i) {
        const std::size_t phase = kEnds ? kPixel - kN % kPixel : 0;
        a[i] = static_cast<std::uint8_t>(kAt + (i + phase) % kPixel);
      }
      return a;
    }();
    return hn::TableLookupBytes(hn::LoadDup128(d, bytes), hn::LoadU(d, kIndices.data()));
  }

  // Makes a row of at least a vector from its source row and the vectors of its margins. The middle
  // is as long as a vector, or the margins are alike. A local copy of the band is to be given,
  // which no store can change.
  template <class D>
  static HWY_INLINE void make(D d, const Band& b, const std::uint8_t* src, hn::Vec<D> left,
                              hn::Vec<D> right, std::uint8_t* row) {
    constexpr std::size_t kN = hn::MaxLanes(D());
    constexpr std::size_t kBlock = kN / kPixel * kPixel;
    const std::size_t end = b.rowBytes() - kN, farthest = end / kPixel * kPixel;
    for (std::size_t x = 0; x < b.left; x += kBlock) put(d, left, row + std::min(x, farthest));
    for (std::size_t x = 0; x < b.right; x += kBlock)
      put(d, right, row + end - std::min(x, farthest));
    middle(src, row + b.left, b.middle, b.streams);
  }

  static HWY_INLINE void pixels(const std::uint8_t* pixel, std::uint8_t* dst, std::size_t count) {
    for (std::size_t x = 0; x < count; x += kPixel) std::memcpy(dst + x, pixel, kUsed);
  }

  // The definition.
  static HWY_NOINLINE void shortRow(const Band& b, const std::uint8_t* src,
                                    const std::uint8_t* left, const std::uint8_t* right,
                                    std::uint8_t* row) {
    pixels(left, row, b.left);
    for (std::size_t x = 0; x < b.middle; x += kPixel)
      std::memcpy(row + b.left + x, src + x, kUsed);
    pixels(right, row + b.left + b.middle, b.right);
  }
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
