// Row driver over pixels of several channels: op takes and gives one vector for each channel,
// whatever the layouts of source and destination.
//
// An operation (Op) has
//   vector(d, in)    std::array of vectors, one for each source channel, to one for each
//   destination's scalar(in)       the same on samples: the definition
// and, if it is many instructions, kOnce = true: then it stands in the loop once, short rows go
// through a copy of a vector's pixels, and nothing is stored around the caches.
// AC4 and AP4 give and take three channels; a destination's fourth is read and written back (AC4)
// or not touched (AP4).
#if defined(KELI_CORE_PIXELS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CORE_PIXELS_INL_H_
#undef KELI_CORE_PIXELS_INL_H_
#else
#define KELI_CORE_PIXELS_INL_H_
#endif

#include <algorithm>

#include <hwy/cache_control.h>

#include "core/band.h"
#include "core/interleave-inl.h"
#include "core/planes.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class Op, class = void>
constexpr bool kStandsOnce = false;
template <class Op>
constexpr bool kStandsOnce<Op, std::void_t<decltype(Op::kOnce)>> = Op::kOnce;

// kMostBytes: of a vector; 64 pays where channels are put in order in the first-level cache. Stores
// around the caches are of 32.
template <Layout kFrom, Layout kTo, class TS, class TD, std::size_t kMostBytes>
struct Pixels {
  static constexpr std::size_t kIn = usedChannels(kFrom);
  static constexpr std::size_t kOut = usedChannels(kTo);
  static constexpr std::size_t kWidest = sizeof(TS) > sizeof(TD) ? sizeof(TS) : sizeof(TD);
  using Source = const TS* const (&)[4];
  using Destination = TD* const (&)[4];

  static constexpr std::size_t kPlanesIn = isPlanar(kFrom) ? kIn : 1;
  static constexpr std::size_t kPlanesOut = isPlanar(kTo) ? kOut : 1;
  static constexpr bool kKeepsFourth = kTo == Layout::AC4;

  // Vectors of the pixels from x on.
  template <class D>
  static HWY_INLINE std::array<hn::Vec<D>, kIn> loadPixels(D d, Source src, std::size_t x) {
    std::array<hn::Vec<D>, kIn> v;
    if constexpr (isPlanar(kFrom) || kFrom == Layout::C1) {
      unrolled<kIn>([&](auto k) KELI_LAMBDA { v[k] = hn::LoadU(d, src[k] + x); });
    } else if constexpr (pixelSamples(kFrom) == 3) {
      hn::Vec<D> three[3];
      deinterleave3(d, src[0] + 3 * x, three);
      unrolled<3>([&](auto k) KELI_LAMBDA { v[k] = three[k]; });
    } else {
      hn::Vec<D> four[4];
      deinterleave4(d, src[0] + 4 * x, four);
      unrolled<kIn>([&](auto k) KELI_LAMBDA { v[k] = four[k]; });
    }
    return v;
  }

  // kPhase: the channel of the first lane, if pixels are interleaved.
  template <bool kStreams, std::size_t kPhase = 0, class D>
  static HWY_INLINE void put(D d, hn::Vec<D> v, TD* dst) {
    if constexpr (kKeepsFourth) {
      storeWhere(d, cycleMask<4, 3>(d, kPhase), v, dst);
    } else if constexpr (kStreams) {
      hn::Stream(v, d, dst);
    } else {
      hn::StoreU(v, d, dst);
    }
    keepOrder();
  }

  template <class D>
  using Channels = std::array<hn::Vec<D>, kOut>;

  // The pixels of kCount vectors that follow one another. Those of a plane are stored together:
  // half cache lines in turns would cost a third of the speed.
  template <bool kStreams, std::size_t kCount, class D>
  static HWY_INLINE void storePixels(D d, const Channels<D> (&v)[kCount], Destination dst,
                                     std::size_t x) {
    constexpr std::size_t kN = hn::MaxLanes(D());
    if constexpr (isPlanar(kTo) || kTo == Layout::C1) {
      unrolled<kOut>([&](auto k) KELI_LAMBDA {
        unrolled<kCount>([&](auto c)
                             KELI_LAMBDA { put<kStreams>(d, v[c][k], dst[k] + x + c * kN); });
      });
    } else {
      constexpr std::size_t kSamples = pixelSamples(kTo);
      unrolled<kCount>([&](auto c) KELI_LAMBDA {
        hn::Vec<D> in[kSamples], out[kSamples];
        unrolled<kSamples>([&](auto k) KELI_LAMBDA { in[k] = v[c][k < kOut ? k : 0]; });
        if constexpr (kSamples == 3) {
          interleave3(d, in, out);
        } else {
          interleave4(d, in, out);
        }
        unrolled<kSamples>([&](auto j) KELI_LAMBDA {
          put<kStreams, j * kN % kSamples>(d, out[j], dst[0] + kSamples * (x + c * kN) + j * kN);
        });
      });
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
  template <bool kStreams, std::size_t kBytes, class Op>
  static HWY_NOINLINE void vectors(const Op& op, Source src, Destination dst, std::size_t n) {
    using D = hn::CappedTag<TD, kBytes / kWidest>;
    const D d;
    const hn::Rebind<TS, D> ds;
    constexpr std::size_t kN = hn::MaxLanes(D());
    if (n >= kN) {
      const std::size_t end = n - kN;
      const Channels<D> last[1] = {op.vector(d, loadPixels(ds, src, end))};
      std::size_t x = 0;
      for (; x + 2 * kN <= end; x += 2 * kN) {
        const Channels<D> two[2] = {op.vector(d, loadPixels(ds, src, x)),
                                    op.vector(d, loadPixels(ds, src, x + kN))};
        storePixels<kStreams>(d, two, dst, x);
      }
      for (; x < end; x += kN) {
        const Channels<D> one[1] = {op.vector(d, loadPixels(ds, src, x))};
        storePixels<false>(d, one, dst, x);
      }
      storePixels<false>(d, last, dst, end);
    } else if constexpr (kBytes > 8 && kBytes / 2 > kWidest) {
      vectors<false, kBytes / 2>(op, src, dst, n);
    } else {
      samples(op, src, dst, 0, n);
    }
  }

  // Rows of at least a vector of pixels. Those of the last are loaded before any are stored.
  template <class Op>
  static HWY_NOINLINE void vectorsOnce(const Op& op, Source src, Destination dst, std::size_t n) {
    using D = hn::CappedTag<TD, std::min<std::size_t>(HWY_MAX_BYTES, kMostBytes) / kWidest>;
    const D d;
    const hn::Rebind<TS, D> ds;
    constexpr std::size_t kN = hn::MaxLanes(D());
    const std::size_t end = n - kN;
    const auto last = loadPixels(ds, src, end);
    for (std::size_t x = 0;; x += kN) {
      const std::size_t at = std::min(x, end);
      const Channels<D> one[1] = {op.vector(d, at < end ? loadPixels(ds, src, at) : last)};
      storePixels<false>(d, one, dst, at);
      if (at == end) return;
    }
  }

  template <class Op>
  static HWY_INLINE void rowOnce(const Op& op, Source src, Destination dst, std::size_t n) {
    constexpr std::size_t kN = std::min<std::size_t>(HWY_MAX_BYTES, kMostBytes) / kWidest;
    if (n >= kN) return vectorsOnce(op, src, dst, n);
    constexpr std::size_t kFromSamples = pixelSamples(kFrom), kToSamples = pixelSamples(kTo);
    TS in[kPlanesIn][kN * kFromSamples] = {};
    TD out[kPlanesOut][kN * kToSamples];
    const TS* copies[4] = {};
    TD* results[4] = {};
    for (std::size_t k = 0; k < kPlanesIn; ++k) {
      std::memcpy(in[k], src[k], n * sizeof(TS) * kFromSamples);
      copies[k] = in[k];
    }
    if (kKeepsFourth) std::memcpy(out[0], dst[0], n * sizeof(TD) * kToSamples);
    for (std::size_t k = 0; k < kPlanesOut; ++k) results[k] = out[k];
    vectorsOnce(op, copies, results, kN);
    for (std::size_t k = 0; k < kPlanesOut; ++k)
      std::memcpy(dst[k], out[k], n * sizeof(TD) * kToSamples);
  }

  // Pixels before the first at which every plane of the destination starts a cache line, or n.
  static HWY_INLINE std::size_t pixelsToLine(Destination dst, std::size_t n) {
    const std::size_t x = unitsToLine(dst[0], pixelSamples(kTo) * sizeof(TD), n);
    for (std::size_t k = 1; k < kPlanesOut; ++k) {
      if (unitsToLine(dst[k], sizeof(TD), n) != x) return n;
    }
    return x;
  }

  // As in map-inl.h, long rows are set on cache lines, and then stored around the caches if asked
  // for.
  template <class Op>
  static HWY_INLINE void row(const Op& op, bool streams, Source src, Destination dst,
                             std::size_t n) {
    constexpr std::size_t kVectorBytes = std::min<std::size_t>(HWY_MAX_BYTES, kMostBytes);
    constexpr std::size_t kLong = 4096 / sizeof(TD);
    if constexpr (kScalarTarget) {
      samples(op, src, dst, 0, n);
    } else if constexpr (kStandsOnce<Op>) {
      rowOnce(op, src, dst, n);
    } else {
      const std::size_t head = n < kLong ? n : pixelsToLine(dst, n);
      if (head != 0) vectors<false, kVectorBytes>(op, src, dst, head);
      if (head == n) return;
      const TS* restSrc[4] = {};
      TD* restDst[4] = {};
      for (std::size_t k = 0; k < kPlanesIn; ++k) restSrc[k] = src[k] + pixelSamples(kFrom) * head;
      for (std::size_t k = 0; k < kPlanesOut; ++k) restDst[k] = dst[k] + pixelSamples(kTo) * head;
      if (streams && !kKeepsFourth) {
        vectors<true, std::min<std::size_t>(kVectorBytes, 32)>(op, restSrc, restDst, n - head);
      } else {
        vectors<false, kVectorBytes>(op, restSrc, restDst, n - head);
      }
    }
  }
};

template <Layout kFrom, Layout kTo, class TS, class TD, std::size_t kMostBytes = 32, class Op>
HWY_INLINE void mapPixels(const PlanesBand& b, const Op& op) {
  using P = Pixels<kFrom, kTo, TS, TD, kMostBytes>;
  for (std::size_t y = 0; y < b.rows; ++y) {
    const TS* src[4] = {};
    TD* dst[4] = {};
    for (std::size_t k = 0; k < P::kPlanesIn; ++k) src[k] = b.srcRow<TS>(static_cast<int>(k), y);
    for (std::size_t k = 0; k < P::kPlanesOut; ++k) dst[k] = b.dstRow<TD>(static_cast<int>(k), y);
    P::row(op, b.streams, src, dst, b.n);
  }
  if (b.streams) hwy::FlushStream();
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
