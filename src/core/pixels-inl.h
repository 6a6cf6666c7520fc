// Row driver over pixels of several channels: op takes and gives one vector for each channel,
// whatever the layouts of source and destination.
//
// An operation (Op) has
//   vector(d, in)    std::array of vectors, one for each source channel, to one for each
//   destination's scalar(in)       the same on samples: the definition
// AC4 and AP4 give and take three channels; a destination's fourth is read and written back (AC4)
// or not touched (AP4).
#if defined(KELI_CORE_PIXELS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CORE_PIXELS_INL_H_
#undef KELI_CORE_PIXELS_INL_H_
#else
#define KELI_CORE_PIXELS_INL_H_
#endif

#include "core/planes.h"
#include "core/simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <Layout kFrom, Layout kTo, class TS, class TD>
struct Pixels {
  static constexpr std::size_t kIn = usedChannels(kFrom);
  static constexpr std::size_t kOut = usedChannels(kTo);
  static constexpr std::size_t kWidest = sizeof(TS) > sizeof(TD) ? sizeof(TS) : sizeof(TD);
  using Source = const TS* const (&)[4];
  using Destination = TD* const (&)[4];

  // Vectors of the pixels from x on.
  template <class D>
  static HWY_INLINE std::array<hn::Vec<D>, kIn> loadPixels(D d, Source src, std::size_t x) {
    std::array<hn::Vec<D>, kIn> v;
    if constexpr (isPlanar(kFrom) || kFrom == Layout::C1) {
      unrolled<kIn>([&](auto k) HWY_ATTR { v[k] = hn::LoadU(d, src[k] + x); });
    } else if constexpr (pixelSamples(kFrom) == 3) {
      hn::LoadInterleaved3(d, src[0] + 3 * x, v[0], v[1], v[2]);
    } else if constexpr (kIn == 4) {
      hn::LoadInterleaved4(d, src[0] + 4 * x, v[0], v[1], v[2], v[3]);
    } else {
      hn::Vec<D> alpha;
      hn::LoadInterleaved4(d, src[0] + 4 * x, v[0], v[1], v[2], alpha);
    }
    return v;
  }

  template <class D>
  static HWY_INLINE void storePixels(D d, const std::array<hn::Vec<D>, kOut>& v, Destination dst,
                                     std::size_t x) {
    if constexpr (isPlanar(kTo) || kTo == Layout::C1) {
      unrolled<kOut>([&](auto k) HWY_ATTR { hn::StoreU(v[k], d, dst[k] + x); });
    } else if constexpr (pixelSamples(kTo) == 3) {
      hn::StoreInterleaved3(v[0], v[1], v[2], d, dst[0] + 3 * x);
    } else if constexpr (kOut == 4) {
      hn::StoreInterleaved4(v[0], v[1], v[2], v[3], d, dst[0] + 4 * x);
    } else {
      hn::Vec<D> other, alpha;
      hn::LoadInterleaved4(d, dst[0] + 4 * x, other, other, other, alpha);
      hn::StoreInterleaved4(v[0], v[1], v[2], alpha, d, dst[0] + 4 * x);
    }
  }

  template <class Op>
  static HWY_INLINE void samples(const Op& op, Source src, Destination dst, std::size_t x,
                                 std::size_t n) {
    for (; x < n; ++x) {
      std::array<TS, kIn> in;
      for (std::size_t k = 0; k < kIn; ++k) {
        in[k] = load(isPlanar(kFrom) ? src[k] + x : src[0] + pixelSamples(kFrom) * x + k);
      }
      const std::array<TD, kOut> out = op.scalar(in);
      for (std::size_t k = 0; k < kOut; ++k) {
        store(out[k], isPlanar(kTo) ? dst[k] + x : dst[0] + pixelSamples(kTo) * x + k);
      }
    }
  }

  // Rows of at least a vector of pixels: the last is computed first and stored last.
  template <std::size_t kBytes, class Op>
  static HWY_INLINE void vectors(const Op& op, Source src, Destination dst, std::size_t n) {
    using D = hn::CappedTag<TD, kBytes / kWidest>;
    const D d;
    const hn::Rebind<TS, D> ds;
    constexpr std::size_t kN = hn::MaxLanes(D());
    if (n >= kN) {
      const std::size_t end = n - kN;
      const auto last = op.vector(d, loadPixels(ds, src, end));
      for (std::size_t x = 0; x < end; x += kN)
        storePixels(d, op.vector(d, loadPixels(ds, src, x)), dst, x);
      storePixels(d, last, dst, end);
    } else if constexpr (kBytes > 8 && kBytes / 2 > kWidest) {
      vectors<kBytes / 2>(op, src, dst, n);
    } else {
      samples(op, src, dst, 0, n);
    }
  }

  template <class Op>
  static HWY_INLINE void row(const Op& op, Source src, Destination dst, std::size_t n) {
    if constexpr (kScalarTarget) {
      samples(op, src, dst, 0, n);
    } else {
      vectors<HWY_MAX_BYTES>(op, src, dst, n);
    }
  }
};

template <Layout kFrom, Layout kTo, class TS, class TD, class Op>
HWY_INLINE void mapPixels(const PlanesBand& b, const Op& op) {
  for (std::size_t y = 0; y < b.rows; ++y) {
    const TS* src[4] = {};
    TD* dst[4] = {};
    for (int k = 0; k < (isPlanar(kFrom) ? usedChannels(kFrom) : 1); ++k)
      src[k] = b.srcRow<TS>(k, y);
    for (int k = 0; k < (isPlanar(kTo) ? usedChannels(kTo) : 1); ++k) dst[k] = b.dstRow<TD>(k, y);
    Pixels<kFrom, kTo, TS, TD>::row(op, src, dst, b.n);
  }
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
