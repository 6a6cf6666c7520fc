// The driver of the remap kernels: rows in blocks of as many pixels as a vector holds floats. A
// vector kernel does those pixels of a block whose neighbourhoods lie inside the source; the others
// are done one by one.
#if defined(KELI_REMAP_BLOCKS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_REMAP_BLOCKS_INL_H_
#undef KELI_REMAP_BLOCKS_INL_H_
#else
#define KELI_REMAP_BLOCKS_INL_H_
#endif

#include "core/simd-inl.h"
#include "remap/remap_rows.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

using Reals = hn::ScalableTag<float>;
using Wholes = hn::RebindToSigned<Reals>;
constexpr std::size_t kBlock = hn::MaxLanes(Reals());
using RealVec = hn::Vec<Reals>;
using WholeVec = hn::Vec<Wholes>;

// A span's ends in every lane.
struct SpanVectors {
  RealVec low, high;

  HWY_INLINE explicit SpanVectors(remap::Span span)
      : low(hn::Set(Reals(), span.low)), high(hn::Set(Reals(), span.high)) {}
  HWY_INLINE auto holds(RealVec v) const { return hn::And(hn::Ge(v, low), hn::Le(v, high)); }
};

// Pixels and fractions at coordinates >= 0.
struct Place {
  WholeVec whole;
  RealVec fraction;

  HWY_INLINE explicit Place(RealVec at) : whole(truncateToInt(Wholes(), at)) {
    fraction = at - hn::ConvertTo(Reals(), whole);
  }
};

// Bytes from the source's first pixel on, which 32 bits hold for what vectors do.
HWY_INLINE WholeVec offsetsOf(const remap::Remapping& r, WholeVec x, WholeVec y, int pixelBytes) {
  const Wholes d;
  return y * hn::Set(d, static_cast<std::int32_t>(r.srcStep)) + x * hn::Set(d, pixelBytes);
}

// The bytes of a row from columns on, in the lowest bytes of words: of the last columns, words that
// begin before them.
class ByteWords {
 public:
  HWY_INLINE ByteWords(const remap::Remapping& r, WholeVec x, WholeVec y) {
    const Wholes d;
    const WholeVec first = hn::Min(x, hn::Set(d, r.lastWord));
    offsets_ = offsetsOf(r, first, y, 1);
    beyond_ = hn::BitCast(hn::RebindToUnsigned<Wholes>(), hn::ShiftLeft<3>(x - first));
  }
  // row: the first byte of the source's row at distance 0, or of another row.
  HWY_INLINE WholeVec at(const std::uint8_t* row) const {
    const Wholes d;
    const auto words = hn::GatherOffset(d, reinterpret_cast<const std::int32_t*>(row), offsets_);
    return hn::BitCast(d, hn::BitCast(hn::RebindToUnsigned<Wholes>(), words) >> beyond_);
  }

 private:
  WholeVec offsets_;
  hn::Vec<hn::RebindToUnsigned<Wholes>> beyond_;
};

// Pixels of a block that vectors have done elsewhere, where bits tell so, and the others.
template <class Op, class T>
void finishBlock(const remap::Remapping& r, const std::uint8_t* bits, const float* xMap,
                 const float* yMap, const T* done, T* dst) {
  using Mode = typename Op::Mode;
  for (std::size_t k = 0; k < kBlock; ++k, done += Op::kStored, dst += Op::kStored) {
    const float fx = load(xMap + k), fy = load(yMap + k);
    if ((bits[k / 8] >> k % 8 & 1) != 0) {
      std::memcpy(dst, done, Mode::kSamples * sizeof(T));
    } else if (r.holds(fx, fy)) {
      Mode::pixel(r, fx, fy, dst);
    }
  }
}

// Of at least a block. The last block may do some pixels of the one before it once more.
template <class Op, class T>
HWY_INLINE void remapRow(const remap::Remapping& r, const SpanVectors& xFree,
                         const SpanVectors& yFree, const float* xMap, const float* yMap, T* dst) {
  const Reals d;
  T apart[kBlock * Op::kStored];
  for (std::size_t i = 0; i < r.width; i += kBlock) {
    i = std::min(i, r.width - kBlock);
    RealVec fx = hn::LoadU(d, xMap + i), fy = hn::LoadU(d, yMap + i);
    const auto free = hn::And(xFree.holds(fx), yFree.holds(fy));
    T* const to = dst + Op::kStored * i;
    const bool all = hn::AllTrue(d, free);
    if (HWY_UNLIKELY(!all)) {
      fx = hn::IfThenElse(free, fx, xFree.low);
      fy = hn::IfThenElse(free, fy, yFree.low);
    }
    Op::block(r, fx, fy, all ? to : apart);
    if (HWY_UNLIKELY(!all)) {
      std::uint8_t bits[(kBlock + 7) / 8];
      hn::StoreMaskBits(d, free, bits);
      finishBlock<Op>(r, bits, xMap + i, yMap + i, apart, to);
    }
  }
}

// Op: Mode, one of sampling.h; kStored, samples of a pixel; block(r, x, y, dst) for a block.
template <class Op>
void ownRemap(const remap::Remapping& r) {
  using Mode = typename Op::Mode;
  using T = typename Mode::Sample;
  const bool vectors = !kScalarTarget && r.width >= kBlock && r.xFree.low <= r.xFree.high &&
                       r.yFree.low <= r.yFree.high;
  for (std::size_t row = 0; row < r.rows; ++row) {
    const std::ptrdiff_t y = static_cast<std::ptrdiff_t>(row);
    const auto* xMap = reinterpret_cast<const float*>(r.xMap + y * r.xMapStep);
    const auto* yMap = reinterpret_cast<const float*>(r.yMap + y * r.yMapStep);
    T* const dst = reinterpret_cast<T*>(r.dst + y * r.dstStep);
    if constexpr (!kScalarTarget) {
      if (vectors) {
        remapRow<Op>(r, SpanVectors(r.xFree), SpanVectors(r.yFree), xMap, yMap, dst);
        continue;
      }
    }
    for (std::size_t i = 0; i < r.width; ++i) {
      const float fx = load(xMap + i), fy = load(yMap + i);
      if (r.holds(fx, fy)) Mode::pixel(r, fx, fy, dst + Op::kStored * i);
    }
  }
}

// Pixels of three or four channels stand in blocks of 16 bytes, one or more side by side.

// Vectors hold as many pixels side by side as they have blocks of 16 bytes.
template <class DW>
constexpr std::size_t kPixelsOf = hn::MaxLanes(DW()) < 8 ? 1 : hn::MaxLanes(DW()) / 4;

// Row p repeats word p + b of 16 bytes throughout block b of 16 bytes.
struct WordIndices {
  std::uint8_t bytes[4][HWY_MAX_BYTES];
};
constexpr WordIndices kRepeatWords = [] {
  WordIndices w{};
  for (std::size_t p = 0; p < 4; ++p) {
    for (std::size_t i = 0; i < HWY_MAX_BYTES; ++i)
      w.bytes[p][i] = static_cast<std::uint8_t>((p + i / 16) % 4 * 4 + i % 4);
  }
  return w;
}();

// Number k of an array and those that follow it, each in the block of its pixel.
template <std::size_t k, class DW>
HWY_INLINE hn::Vec<DW> ofPixels(DW dw, const hn::TFromD<DW>* values) {
  const hn::Repartition<std::uint8_t, DW> d8;
  const auto four = hn::LoadDup128(dw, values + k / 4 * 4);
  const auto indices = hn::LoadU(d8, kRepeatWords.bytes[k % 4]);
  return hn::BitCast(dw, hn::TableLookupBytes(hn::BitCast(d8, four), indices));
}

using FourReals = hn::CappedTag<float, 4>;

// The samples of a pixel as floats, with one beyond the pixel where it has three; or of more
// pixels.
template <class D>
HWY_INLINE hn::Vec<D> realsFrom(D d, const Kel8u* p) {
  const hn::Rebind<Kel8u, D> d8;
  return hn::ConvertTo(d, hn::PromoteTo(hn::RebindToSigned<D>(), hn::LoadU(d8, p)));
}
template <class D>
HWY_INLINE hn::Vec<D> realsFrom(D d, const Kel32f* p) {
  return hn::LoadU(d, p);
}

// Writes the first kUsed samples of a pixel. last: nothing follows that may be written over.
template <int kStored, int kUsed>
HWY_INLINE void storePixel(hn::Vec<FourReals> pixel, Kel32f* dst, bool last) {
  const FourReals d;
  if (kUsed == 4 || (kStored == 3 && !last)) {
    hn::StoreU(pixel, d, dst);
  } else {
    hn::BlendedStore(pixel, hn::FirstN(d, kUsed), d, dst);
  }
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
