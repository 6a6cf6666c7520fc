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

// What the kernels that go pixel by pixel take from a block's coordinates: where the pixels are,
// the weights of rows, one array for each, and those of columns, four for each pixel.
struct CubicPlaces {
  HWY_ALIGN std::int32_t offsets[kBlock];
  HWY_ALIGN float rows[4][kBlock];
  HWY_ALIGN float columns[4 * kBlock];

  HWY_INLINE CubicPlaces(const remap::Remapping& r, RealVec fx, RealVec fy, int pixelBytes) {
    const Reals d;
    const Place x(fx), y(fy);
    hn::Store(offsetsOf(r, x.whole, y.whole, pixelBytes), Wholes(), offsets);
    const CubicWeights u(x.fraction), v(y.fraction);
    unrolled<4>([&](auto j) KELI_LAMBDA { hn::Store(v.w[j], d, rows[j]); });
    hn::StoreInterleaved4(u.w[0], u.w[1], u.w[2], u.w[3], d, columns);
  }

  // What columns of samples of pixel k give, from sample `first` of its row on.
  template <class T, class D>
  HWY_INLINE hn::Vec<D> ofColumns(D d, const remap::Remapping& r, std::size_t k,
                                  std::ptrdiff_t first) const {
    const std::uint8_t* const p =
        r.src + offsets[k] + first * static_cast<std::ptrdiff_t>(sizeof(T));
    const auto row = [&](std::ptrdiff_t j) KELI_LAMBDA {
      return realsFrom(d, reinterpret_cast<const T*>(p + (j - 1) * r.srcStep)) *
             hn::Set(d, rows[j][k]);
    };
    return ((row(0) + row(1)) + row(2)) + row(3);
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
    for (std::size_t k = 0; k < kBlock; ++k)
      hn::Store(places.ofColumns<Kel32f>(FourReals(), r, k, -1), FourReals(), columns + 4 * k);
    RealVec c0, c1, c2, c3;
    hn::LoadInterleaved4(d, columns, c0, c1, c2, c3);
    const CubicWeights wx(Place(fx).fraction);
    hn::StoreU(settledLanes(d, wx.of(c0, c1, c2, c3)), d, dst);
  }
};

// Pixels of three samples that stand side by side, in blocks of four.
template <class D>
HWY_INLINE hn::Vec<D> inBlocks(D d, hn::Vec<D> samples) {
  constexpr std::size_t kN = hn::MaxLanes(D());
  HWY_ALIGN static constexpr std::array<std::int32_t, kN> kSpread = [] {
    std::array<std::int32_t, kN> indices{};
    for (std::size_t i = 0; i < kN; ++i)
      indices[i] = static_cast<std::int32_t>(i / 4 * 3 + (i % 4 < 3 ? i % 4 : 2));
    return indices;
  }();
  return hn::TableLookupLanes(samples, hn::SetTableIndices(d, kSpread.data()));
}

// Calls f with each block of 16 bytes of a vector, in their order.
template <class D, class F>
HWY_INLINE void forBlocks(D, hn::Vec<D> v, const F& f) {
#if HWY_TARGET == HWY_SCALAR
  f(v);
#else
  if constexpr (hn::MaxLanes(D()) <= 4) {
    f(v);
  } else {
    const hn::Half<D> dh;
    forBlocks(dh, hn::LowerHalf(dh, v), f);
    forBlocks(dh, hn::UpperHalf(dh, v), f);
  }
#endif
}

// All columns of a pixel side by side, as many as a vector has room for.
template <class T, int kChannels, int kUsed>
struct CurvePixels {
  using Mode = remap::Cubic<T, kChannels, kUsed>;
  static constexpr int kStored = kChannels;

  static HWY_INLINE hn::Vec<FourReals> pixel(const remap::Remapping& r, const CubicPlaces& places,
                                             std::size_t k) {
    const hn::CappedTag<float, 16> d;
    constexpr std::size_t kColumns = kPixelsOf<decltype(d)>;
    const float* const weights = places.columns + 4 * k;
    hn::Vec<FourReals> sum = hn::Zero(FourReals());
    unrolled<4 / kColumns>([&](auto part) KELI_LAMBDA {
      constexpr std::size_t kFirst = part * kColumns;
      auto columns = places.ofColumns<T>(d, r, k, (std::ptrdiff_t{kFirst} - 1) * kStored);
      if constexpr (kStored == 3 && kColumns > 1) columns = inBlocks(d, columns);
      std::size_t i = kFirst;
      forBlocks(d, columns * ofPixels<kFirst>(d, weights),
                [&](auto column) KELI_LAMBDA { sum = i++ == 0 ? column : sum + column; });
    });
    return sum;
  }

  static HWY_INLINE void block(const remap::Remapping& r, RealVec fx, RealVec fy, T* dst) {
    const FourReals d4;
    const CubicPlaces places(r, fx, fy, kChannels * sizeof(T));
    if constexpr (sizeof(T) == 4) {
      for (std::size_t k = 0; k < kBlock; ++k) {
        storePixel<kStored, kUsed>(settledLanes(d4, pixel(r, places, k)), dst + kStored * k,
                                   k + 1 == kBlock);
      }
    } else {
      const Reals d;
      const hn::Rebind<Kel8u, Reals> d8;
      HWY_ALIGN float results[4 * kBlock];
      HWY_ALIGN Kel8u bytes[4 * kBlock];
      for (std::size_t k = 0; k < kBlock; ++k) hn::Store(pixel(r, places, k), d4, results + 4 * k);
      unrolled<4>([&](auto j) KELI_LAMBDA {
        const auto whole = nearestBytes(d, hn::Load(d, results + kBlock * j));
        hn::StoreU(hn::DemoteTo(d8, whole), d8, bytes + kBlock * j);
      });
      if constexpr (kUsed == 4) {
        std::memcpy(dst, bytes, sizeof(bytes));
      } else {
        for (std::size_t k = 0; k < kBlock; ++k)
          std::memcpy(dst + kStored * k, bytes + 4 * k, kUsed);
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
