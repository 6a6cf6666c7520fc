// Row kernels of Remap that blend 4 x 4 pixels: columns first, then the row of their results, each
// operation rounded to single precision as in sampling.h.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "remap/cubic_rows.cc"
#include <hwy/foreach_target.h>
//
#include "remap/blocks-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

struct CubicWeights {
  RealVec w[4];

  HWY_INLINE explicit CubicWeights(RealVec f) {
    const Reals d;
    const auto c = [d](float v) KELI_LAMBDA { return hn::Set(d, v); };
    w[0] = ((c(-0.5f) * f + c(1)) * f - c(0.5f)) * f;
    w[1] = ((c(1.5f) * f - c(2.5f)) * f) * f + c(1);
    w[2] = ((c(-1.5f) * f + c(2)) * f + c(0.5f)) * f;
    w[3] = ((c(0.5f) * f - c(0.5f)) * f) * f;
  }
  HWY_INLINE RealVec of(RealVec p0, RealVec p1, RealVec p2, RealVec p3) const {
    return ((p0 * w[0] + p1 * w[1]) + p2 * w[2]) + p3 * w[3];
  }
};

// The integers nearest to floats, within the range of a byte.
template <class D>
HWY_INLINE auto nearestBytes(D d, hn::Vec<D> v) {
  const auto kept = hn::Min(hn::Max(v, hn::Zero(d)), hn::Set(d, 255.0f));
  return roundToInt(hn::RebindToSigned<D>(), kept);
}

// Four bytes of a row are one word.
struct CurveBytes {
  using Mode = remap::Cubic<Kel8u, 1, 1>;
  static constexpr int kStored = 1;

  template <int kByte>
  HWY_INLINE static RealVec byteOf(WholeVec words) {
    const hn::RebindToUnsigned<Wholes> du;
    const auto w = hn::BitCast(du, words);
    const auto byte = kByte == 3 ? hn::ShiftRight<24>(w)
                                 : hn::And(hn::ShiftRight<8 * kByte>(w), hn::Set(du, 255));
    return hn::ConvertTo(Reals(), hn::BitCast(Wholes(), byte));
  }

  static HWY_INLINE void block(const remap::Remapping& r, RealVec fx, RealVec fy, Kel8u* dst) {
    const Wholes d;
    const hn::Rebind<Kel8u, Wholes> d8;
    const Place x(fx), y(fy);
    const WholeVec offsets = offsetsOf(r, x.whole, y.whole, 1);
    const CubicWeights wx(x.fraction), wy(y.fraction);
    const auto row = [&](std::ptrdiff_t j) KELI_LAMBDA {
      return hn::GatherOffset(d, reinterpret_cast<const std::int32_t*>(r.src + j * r.srcStep - 1),
                              offsets);
    };
    const WholeVec rows[4] = {row(-1), row(0), row(1), row(2)};
    const auto column = [&](auto i) KELI_LAMBDA {
      constexpr int kByte = static_cast<int>(i);
      return wy.of(byteOf<kByte>(rows[0]), byteOf<kByte>(rows[1]), byteOf<kByte>(rows[2]),
                   byteOf<kByte>(rows[3]));
    };
    using std::integral_constant;
    const RealVec result =
        wx.of(column(integral_constant<int, 0>()), column(integral_constant<int, 1>()),
              column(integral_constant<int, 2>()), column(integral_constant<int, 3>()));
    hn::StoreU(hn::DemoteTo(d8, nearestBytes(Reals(), result)), d8, dst);
  }
};

// What the kernels that go pixel by pixel take from a block's coordinates.
struct CubicPlaces {
  HWY_ALIGN std::int32_t offsets[kBlock];
  HWY_ALIGN float wx[4][kBlock];
  HWY_ALIGN float wy[4][kBlock];

  HWY_INLINE CubicPlaces(const remap::Remapping& r, RealVec fx, RealVec fy, int pixelBytes) {
    const Place x(fx), y(fy);
    hn::Store(offsetsOf(r, x.whole, y.whole, pixelBytes), Wholes(), offsets);
    const CubicWeights u(x.fraction), v(y.fraction);
    unrolled<4>([&](auto j) KELI_LAMBDA {
      hn::Store(u.w[j], Reals(), wx[j]);
      hn::Store(v.w[j], Reals(), wy[j]);
    });
  }

  // Of pixel k: what four values down a column give, or along a row.
  template <class V>
  HWY_INLINE static V weighted(const float (&w)[4][kBlock], std::size_t k, V p0, V p1, V p2, V p3) {
    const FourReals d;
    return ((p0 * hn::Set(d, w[0][k]) + p1 * hn::Set(d, w[1][k])) + p2 * hn::Set(d, w[2][k])) +
           p3 * hn::Set(d, w[3][k]);
  }

  // Column i of pixel k, of four samples.
  template <class T>
  HWY_INLINE hn::Vec<FourReals> column(const remap::Remapping& r, std::size_t k,
                                       std::ptrdiff_t bytesBeside) const {
    const std::uint8_t* const p = r.src + offsets[k] + bytesBeside;
    const auto row = [&](std::ptrdiff_t j) KELI_LAMBDA {
      return fourReals(reinterpret_cast<const T*>(p + j * r.srcStep));
    };
    return weighted(wy, k, row(-1), row(0), row(1), row(2));
  }
};

// The four columns of a pixel side by side; the weights along the row follow for the whole block.
struct CurveReals {
  using Mode = remap::Cubic<Kel32f, 1, 1>;
  static constexpr int kStored = 1;

  static HWY_INLINE void block(const remap::Remapping& r, RealVec fx, RealVec fy, Kel32f* dst) {
    const Reals d;
    const CubicPlaces places(r, fx, fy, sizeof(Kel32f));
    HWY_ALIGN float columns[4 * kBlock];
    for (std::size_t k = 0; k < kBlock; ++k) {
      hn::Store(places.column<Kel32f>(r, k, -std::ptrdiff_t{sizeof(Kel32f)}), FourReals(),
                columns + 4 * k);
    }
    RealVec c0, c1, c2, c3;
    hn::LoadInterleaved4(d, columns, c0, c1, c2, c3);
    const CubicWeights wx(Place(fx).fraction);
    hn::StoreU(settledLanes(d, wx.of(c0, c1, c2, c3)), d, dst);
  }
};

template <class T, int kChannels, int kUsed>
struct CurvePixels {
  using Mode = remap::Cubic<T, kChannels, kUsed>;
  static constexpr int kStored = kChannels;

  static HWY_INLINE void block(const remap::Remapping& r, RealVec fx, RealVec fy, T* dst) {
    constexpr std::ptrdiff_t kPixel = kChannels * sizeof(T);
    const CubicPlaces places(r, fx, fy, kPixel);
    for (std::size_t k = 0; k < kBlock; ++k) {
      const FourReals d4;
      const auto column = [&](std::ptrdiff_t i)
                              KELI_LAMBDA { return places.column<T>(r, k, i * kPixel); };
      const auto result =
          CubicPlaces::weighted(places.wx, k, column(-1), column(0), column(1), column(2));
      if constexpr (sizeof(T) == 1) {
        const hn::Rebind<Kel8u, FourReals> d8;
        const auto pixel = hn::DemoteTo(d8, nearestBytes(d4, result));
        std::uint8_t bytes[4] = {};
        hn::StoreU(pixel, d8, bytes);
        storePixel<kUsed>(load(reinterpret_cast<const std::int32_t*>(bytes)), dst + kStored * k);
      } else {
        storePixel<kUsed>(settledLanes(d4, result), dst + kStored * k);
      }
    }
  }
};

template <class T>
using CurveOne = std::conditional_t<sizeof(T) == 1, CurveBytes, CurveReals>;

template <class T>
constexpr remap::ByLayout<T> kCurves = {ownRemap<CurveOne<T>>, ownRemap<CurvePixels<T, 3, 3>>,
                                        ownRemap<CurvePixels<T, 4, 4>>,
                                        ownRemap<CurvePixels<T, 4, 3>>};

constexpr remap::RemapRows kCubicRows = {kCurves<Kel8u>, kCurves<Kel32f>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::remap {
KELI_SELECT_ROWS(RemapRows, kCubicRows, cubicRows)
}  // namespace keli::remap
#endif
