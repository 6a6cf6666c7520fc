// Borders of short rows: each row is some vectors of 64 bytes, loaded and stored under masks, whose
// margins a permutation or a bitwise operation adds. For targets with shuffles across vectors.
#if defined(KELI_BORDER_SHORT_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_BORDER_SHORT_INL_H_
#undef KELI_BORDER_SHORT_INL_H_
#else
#define KELI_BORDER_SHORT_INL_H_
#endif

#include <algorithm>

#include "border/border_rows.h"
#include "core/simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

using ShortTag = hn::CappedTag<std::uint8_t, 64>;
using ShortVector = hn::Vec<ShortTag>;
using ShortMask = hn::Mask<ShortTag>;

// The lanes of [first, last), which may lie outside of the vector.
HWY_INLINE ShortMask lanesWithin(std::ptrdiff_t first, std::ptrdiff_t last) {
  const ShortTag d;
  constexpr std::ptrdiff_t kN = hn::MaxLanes(ShortTag());
  const auto firstLanes = [&](std::ptrdiff_t n) KELI_LAMBDA {
    return hn::FirstN(d, static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(n, 0, kN)));
  };
  return hn::AndNot(firstLanes(first), firstLanes(last));
}

// One of the vectors that make a row.
template <std::size_t kPixel, std::size_t kUsed>
struct ShortPart {
  ShortMask stored;  // of the last one, and of AC4
  ShortMask loaded;
  std::ptrdiff_t from;  // of the source row's bytes

  // at: the vector's place in the row.
  HWY_INLINE void prepare(const border::BorderBand& b, std::ptrdiff_t at) {
    stored = lanesWithin(0, static_cast<std::ptrdiff_t>(b.rowBytes()) - at);
    if constexpr (kUsed < kPixel) {
      stored = hn::And(stored, cycleMask<kPixel, kUsed>(ShortTag(), 0));
    }
  }
  HWY_INLINE ShortVector load(const std::uint8_t* src) const {
    return hn::MaskedLoad(loaded, ShortTag(), src + from);
  }
  template <bool kLast>
  HWY_INLINE void store(ShortVector v, std::uint8_t* dst) const {
    if constexpr (kLast || kUsed < kPixel) {
      hn::BlendedStore(v, stored, ShortTag(), dst);
    } else {
      hn::StoreU(v, ShortTag(), dst);
    }
  }
};

// The bytes of a vector's pixels: which one of its pixel each is.
template <std::size_t kPixel>
HWY_INLINE ShortVector placesInPixels(std::size_t phase) {
  return hn::LoadU(ShortTag(), RepeatIndices<kPixel>::kBytes.data() + phase);
}

// The vectors of rows with a constant around their source.
template <std::size_t kPixel, std::size_t kUsed, std::size_t kVectors>
HWY_INLINE void shortConst(const border::BorderBand& b, const std::uint8_t* pixel) {
  constexpr std::size_t kN = hn::MaxLanes(ShortTag());
  const ShortTag d;
  ShortPart<kPixel, kUsed> parts[kVectors];
  ShortVector fill[kVectors], around[kVectors];
  unrolled<kVectors>([&](auto j) KELI_LAMBDA {
    auto& part = parts[j];
    const auto at = static_cast<std::ptrdiff_t>(j * kN);
    part.prepare(b, at);
    part.from = at - static_cast<std::ptrdiff_t>(b.left);
    part.loaded = lanesWithin(-part.from, static_cast<std::ptrdiff_t>(b.middle) - part.from);
    fill[j] = permuteBytes(d, hn::LoadDup128(d, pixel), placesInPixels<kPixel>(j * kN % kPixel));
    around[j] = hn::IfThenZeroElse(part.loaded, fill[j]);
  });
  const std::uint8_t* src = b.src;
  std::uint8_t* row = b.dst;
  const std::ptrdiff_t srcStep = b.srcStep, dstStep = b.dstStep;
  const std::size_t rows = b.rows, bottom = b.bottom;
  const auto fillRows = [&](std::size_t count) KELI_LAMBDA {
    for (std::size_t y = 0; y < count; ++y, row += dstStep)
      unrolled<kVectors>([&](auto j) KELI_LAMBDA {
        parts[j].template store<j + 1 == kVectors>(fill[j], row + j * kN);
      });
  };
  fillRows(b.top);
  for (std::size_t y = 0; y < rows; ++y, row += dstStep, src += srcStep) {
    unrolled<kVectors>([&](auto j) KELI_LAMBDA {
      const auto v = hn::Or(around[j], parts[j].load(src));
      parts[j].template store<j + 1 == kVectors>(v, row + j * kN);
    });
  }
  fillRows(bottom);
}

// The vectors of rows whose outermost pixels are repeated. What one of them needs of the source
// lies within as many bytes as it has.
template <std::size_t kPixel, std::size_t kUsed, std::size_t kVectors>
HWY_INLINE void shortReplicate(const border::BorderBand& b) {
  constexpr std::size_t kN = hn::MaxLanes(ShortTag());
  const ShortTag d;
  ShortPart<kPixel, kUsed> parts[kVectors];
  ShortVector places[kVectors];
  const auto left = static_cast<std::ptrdiff_t>(b.left);
  const auto middle = static_cast<std::ptrdiff_t>(b.middle);
  const auto byte = [&](std::ptrdiff_t v)
                        KELI_LAMBDA { return hn::Set(d, static_cast<std::uint8_t>(v)); };
  unrolled<kVectors>([&](auto j) KELI_LAMBDA {
    auto& part = parts[j];
    const auto at = static_cast<std::ptrdiff_t>(j * kN);
    part.prepare(b, at);
    const std::ptrdiff_t length = std::min<std::ptrdiff_t>(middle, kN);
    part.from = std::clamp<std::ptrdiff_t>(at - left, 0, middle - length);
    part.loaded = lanesWithin(0, length);
    const auto inPixel = placesInPixels<kPixel>(j * kN % kPixel);
    const auto last = hn::Add(inPixel, byte(length - static_cast<std::ptrdiff_t>(kPixel)));
    const auto own = hn::Add(placesInPixels<kN>(0), byte(at - left - part.from));
    const auto fromLeft = hn::IfThenElse(lanesWithin(left - at, kN), own, inPixel);
    places[j] = hn::IfThenElse(lanesWithin(left + middle - at, kN), last, fromLeft);
  });
  const std::uint8_t* src = b.src;
  std::uint8_t* row = b.dst;
  const std::ptrdiff_t srcStep = b.srcStep, dstStep = b.dstStep;
  const std::size_t top = b.top, last = b.top + b.rows - 1, all = last + b.bottom;
  for (std::size_t y = 0; y <= all; ++y, row += dstStep) {
    unrolled<kVectors>([&](auto j) KELI_LAMBDA {
      const auto v = permuteBytes(d, parts[j].load(src), places[j]);
      parts[j].template store<j + 1 == kVectors>(v, row + j * kN);
    });
    if (y >= top && y < last) src += srcStep;
  }
}

// Makes the rows with as many vectors as they have; false if they are too long for that.
template <class Make>
HWY_INLINE bool makeShort(const border::BorderBand& b, const Make& make) {
  constexpr std::size_t kN = hn::MaxLanes(ShortTag()), kMost = 4;
  const std::size_t vectors = (b.rowBytes() + kN - 1) / kN;
  unrolled<kMost>([&](auto k) KELI_LAMBDA {
    if (vectors == k + 1) make(std::integral_constant<std::size_t, k + 1>());
  });
  return vectors <= kMost;
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
