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
  // Samples of AC4, so that the fourth may be kept; bytes else.
  using T = std::conditional_t<
      kAll || kPixel == 4, std::uint8_t,
      std::conditional_t<kPixel == 8, std::uint16_t, std::uint32_t>>;
  using Keep = std::conditional_t<kAll, KeepNone, KeepOthers<4, 3>>;
  using Copy = map::Row<Identity, Keep, T, T>;
  static constexpr std::size_t kLong = 1024;  // bytes from which on rows are set on cache lines

  template <class D>
  static HWY_INLINE void put(D d, hn::Vec<D> v, std::uint8_t* dst) {
    if constexpr (kAll) {
      hn::StoreU(v, d, dst);
    } else {
      storeWhere(d, cycleMask<kPixel, kUsed>(d, 0), v, dst);
    }
  }

  // Of bytes of any number of pixels.
  static HWY_NOINLINE void copyLong(const std::uint8_t* src, std::uint8_t* dst, std::size_t count,
                                    bool streams) {
    Copy::run(Identity(), streams, count / sizeof(T) - Keep::kTrim, reinterpret_cast<T*>(dst),
              reinterpret_cast<const T*>(src));
  }
  static HWY_NOINLINE void copyShort(const std::uint8_t* src, std::uint8_t* dst,
                                     std::size_t count) {
    Copy::template shorter<32>(Identity(), count / sizeof(T) - Keep::kTrim,
                               reinterpret_cast<T*>(dst), reinterpret_cast<const T*>(src));
  }
  static HWY_INLINE void copy(const std::uint8_t* src, std::uint8_t* dst, std::size_t count) {
    const hn::CappedTag<std::uint8_t, 32> d;
    constexpr std::size_t kN = hn::MaxLanes(d);
    if (count >= kLong) return copyLong(src, dst, count, false);
    if (count < kN) return copyShort(src, dst, count);
    const std::size_t end = count - kN;
    for (std::size_t x = 0; x < end; x += kN) put(d, hn::LoadU(d, src + x), dst + x);
    put(d, hn::LoadU(d, src + end), dst + end);
  }

  // The source's part of a row. What margins have spilled into it is stored as they are; stores
  // around the caches would have to drive those lines out of them.
  static HWY_INLINE void middle(const Band& b, const std::uint8_t* src, std::uint8_t* row) {
    std::uint8_t* const dst = row + b.left;
    if (!kAll || !b.streams || b.middle < kLong) return copy(src, dst, b.middle);
    constexpr std::size_t kSpilled = 32;
    copy(src, dst, kSpilled);
    copyLong(src + kSpilled, dst + kSpilled, b.middle - 2 * kSpilled, true);
    const std::size_t end = b.middle - kSpilled;
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

  // Of a row of at least a vector. The middle is as long as a vector, or left and right are alike.
  template <class D>
  static HWY_INLINE void margins(D d, const Band& b, hn::Vec<D> left, hn::Vec<D> right,
                                 std::uint8_t* row) {
    constexpr std::size_t kN = hn::MaxLanes(D());
    constexpr std::size_t kBlock = kN / kPixel * kPixel;
    const std::size_t end = b.rowBytes() - kN, farthest = end / kPixel * kPixel;
    for (std::size_t x = 0; x < b.left; x += kBlock) put(d, left, row + std::min(x, farthest));
    for (std::size_t x = 0; x < b.right; x += kBlock)
      put(d, right, row + end - std::min(x, farthest));
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
