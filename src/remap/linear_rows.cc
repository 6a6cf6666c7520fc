// Row kernels of Remap that blend 2 x 2 pixels: one channel by gathering the neighbours of a block,
// three and four with the channels of a pixel side by side.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "remap/linear_rows.cc"
#include <hwy/foreach_target.h>
//
#include "remap/blocks-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// Both weights of a fraction in the halves of a lane: the second is the fraction of kWeightOne,
// rounded, the first what it leaves.
HWY_INLINE WholeVec weightPairs(RealVec fraction) {
  const Wholes d;
  const Reals dr;
  const RealVec scaled = fraction * hn::Set(dr, static_cast<float>(remap::kWeightOne));
  const WholeVec w = roundToInt(d, scaled);
  return hn::ShiftLeft<16>(w) - w + hn::Set(d, remap::kWeightOne);
}

template <class DW>
HWY_INLINE hn::Vec<DW> pairProducts(DW dw, hn::Vec<DW> pairs, hn::Vec<DW> weights) {
  if constexpr (kScalarTarget) {
    return pairs;  // never run
  } else {
    const hn::Repartition<std::int16_t, DW> d;
    return multiplyAddPairs(dw, hn::BitCast(d, pairs), hn::BitCast(d, weights));
  }
}

// The result from pairs of neighbours of the row above and of that below, in halves of lanes.
template <class DW>
HWY_INLINE hn::Vec<DW> blended(DW dw, hn::Vec<DW> top, hn::Vec<DW> bottom, hn::Vec<DW> wx,
                               hn::Vec<DW> wy) {
  const auto above = hn::ShiftRight<8>(pairProducts(dw, top, wx));
  const auto below = hn::ShiftRight<8>(pairProducts(dw, bottom, wx));
  const auto columns = hn::Or(above, hn::ShiftLeft<16>(below));
  return hn::ShiftRight<20>(pairProducts(dw, columns, wy) + hn::Set(dw, 1 << 19));
}

// Bytes first and second of each four (or of each pixel) as pairs.
template <class D>
HWY_INLINE hn::Vec<D> bytePairs(D d, hn::Vec<D> v, const std::uint8_t* pattern) {
  if constexpr (kScalarTarget) {
    return v;  // never run
  } else {
    const hn::Repartition<std::uint8_t, D> d8;
    return hn::BitCast(d, hn::TableLookupBytesOr0(hn::BitCast(d8, v), hn::LoadDup128(d8, pattern)));
  }
}

struct BlendBytes {
  using Mode = remap::Linear<Kel8u, 1, 1>;
  static constexpr int kStored = 1;

  static HWY_INLINE void block(const remap::Remapping& r, RealVec fx, RealVec fy, Kel8u* dst) {
    const Wholes d;
    const hn::Rebind<Kel8u, Wholes> d8;
    alignas(16) static constexpr std::uint8_t kFirstTwo[16] = {0, 128, 1, 128, 4,  128, 5,  128,
                                                               8, 128, 9, 128, 12, 128, 13, 128};
    const Place x(fx), y(fy);
    const ByteWords words(r, x.whole, y.whole);
    const WholeVec top = bytePairs(d, words.at(r.src), kFirstTwo);
    const WholeVec bottom = bytePairs(d, words.at(r.src + r.srcStep), kFirstTwo);
    const WholeVec result =
        blended(d, top, bottom, weightPairs(x.fraction), weightPairs(y.fraction));
    hn::StoreU(hn::DemoteTo(d8, result), d8, dst);
  }
};

struct BlendReals {
  using Mode = remap::Linear<Kel32f, 1, 1>;
  static constexpr int kStored = 1;

  static HWY_INLINE void block(const remap::Remapping& r, RealVec fx, RealVec fy, Kel32f* dst) {
    const Reals d;
    const Place x(fx), y(fy);
    const WholeVec offsets = offsetsOf(r, x.whole, y.whole, sizeof(Kel32f));
    const RealVec one = hn::Set(d, 1.0f);
    const RealVec before = one - x.fraction;
    const auto row = [&](const std::uint8_t* p) KELI_LAMBDA {
      const auto* base = reinterpret_cast<const float*>(p);
      const auto* next = reinterpret_cast<const float*>(p + sizeof(Kel32f));
      return hn::GatherOffset(d, base, offsets) * before +
             hn::GatherOffset(d, next, offsets) * x.fraction;
    };
    const RealVec top = row(r.src), bottom = row(r.src + r.srcStep);
    const RealVec result = top * (one - y.fraction) + bottom * y.fraction;
    hn::StoreU(settledLanes(d, result), d, dst);
  }
};

// The two neighbours of each pixel in a row, eight bytes, twice in its block.
template <class DW>
HWY_INLINE hn::Vec<DW> neighbours(DW dw, const std::uint8_t* base, const std::int32_t* offsets) {
  constexpr std::size_t kPixels = kPixelsOf<DW>;
  const hn::Repartition<std::uint64_t, DW> d;
  const auto at = [&](std::size_t i) KELI_LAMBDA {
    return hn::Set(d, load(reinterpret_cast<const std::uint64_t*>(base + offsets[i])));
  };
  if constexpr (kPixels == 1) {
    return hn::BitCast(dw, at(0));
  } else {
    const auto first = hn::OddEvenBlocks(at(1), at(0));
    if constexpr (kPixels == 2) return hn::BitCast(dw, first);
    const auto second = hn::OddEvenBlocks(at(kPixels - 1), at(kPixels - 2));
    return hn::BitCast(dw, hn::IfThenElse(hn::FirstN(d, 4), first, second));
  }
}

// Pixels of four words each, as bytes. last: nothing follows that may be written over.
template <int kStored, int kUsed, class DW>
HWY_INLINE void storePixels(DW, hn::Vec<DW> samples, Kel8u* dst, bool last) {
  const hn::Rebind<Kel8u, DW> d8;
  const auto bytes = hn::DemoteTo(d8, samples);
  if constexpr (kUsed == 4) {
    hn::StoreU(bytes, d8, dst);
  } else if constexpr (kStored == 4) {
    storeWhere(d8, cycleMask<4, 3>(d8, 0), bytes, dst);
  } else {
    alignas(16) static constexpr std::uint8_t kFirstThree[16] = {
        0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, 128, 128, 128, 128};
    const auto packed = hn::TableLookupBytesOr0(bytes, hn::LoadU(d8, kFirstThree));
    if (last) {
      storeFirst(d8, packed, dst, 3 * kPixelsOf<DW>);
    } else {
      hn::StoreU(packed, d8, dst);
    }
  }
}

template <int kChannels, int kUsed>
struct BlendBytePixels {
  using Mode = remap::Linear<Kel8u, kChannels, kUsed>;
  static constexpr int kStored = kChannels;

  static HWY_INLINE void block(const remap::Remapping& r, RealVec fx, RealVec fy, Kel8u* dst) {
    const Wholes d;
    alignas(16) static constexpr std::uint8_t kPairs[16] = {
        0, 128, kChannels,     128, 1, 128, kChannels + 1, 128,
        2, 128, kChannels + 2, 128, 3, 128, kChannels + 3, 128};
    HWY_ALIGN std::int32_t offsets[kBlock], wx[kBlock], wy[kBlock];
    const Place x(fx), y(fy);
    hn::Store(offsetsOf(r, x.whole, y.whole, kChannels), d, offsets);
    hn::Store(weightPairs(x.fraction), d, wx);
    hn::Store(weightPairs(y.fraction), d, wy);
    constexpr std::size_t kPixels = kPixelsOf<Wholes>;
    unrolled<kBlock / kPixels>([&](auto i) KELI_LAMBDA {
      constexpr std::size_t k = i * kPixels;
      const auto top = bytePairs(d, neighbours(d, r.src, offsets + k), kPairs);
      const auto bottom = bytePairs(d, neighbours(d, r.src + r.srcStep, offsets + k), kPairs);
      const auto result = blended(d, top, bottom, ofPixels<k>(d, wx), ofPixels<k>(d, wy));
      storePixels<kStored, kUsed>(d, result, dst + kStored * k, k + kPixels == kBlock);
    });
  }
};

template <int kChannels, int kUsed>
struct BlendRealPixels {
  using Mode = remap::Linear<Kel32f, kChannels, kUsed>;
  static constexpr int kStored = kChannels;

  static HWY_INLINE void block(const remap::Remapping& r, RealVec fx, RealVec fy, Kel32f* dst) {
    const Wholes d;
    const Reals dr;
    HWY_ALIGN std::int32_t offsets[kBlock];
    HWY_ALIGN float u[2][kBlock], v[2][kBlock];
    const Place x(fx), y(fy);
    const RealVec one = hn::Set(dr, 1.0f);
    hn::Store(offsetsOf(r, x.whole, y.whole, kChannels * sizeof(Kel32f)), d, offsets);
    hn::Store(one - x.fraction, dr, u[0]);
    hn::Store(x.fraction, dr, u[1]);
    hn::Store(one - y.fraction, dr, v[0]);
    hn::Store(y.fraction, dr, v[1]);
    for (std::size_t k = 0; k < kBlock; ++k) {
      const FourReals d4;
      const auto row = [&](const std::uint8_t* p) KELI_LAMBDA {
        const auto* samples = reinterpret_cast<const float*>(p + offsets[k]);
        return realsFrom(d4, samples) * hn::Set(d4, u[0][k]) +
               realsFrom(d4, samples + kChannels) * hn::Set(d4, u[1][k]);
      };
      const auto result =
          row(r.src) * hn::Set(d4, v[0][k]) + row(r.src + r.srcStep) * hn::Set(d4, v[1][k]);
      storePixel<kStored, kUsed>(settledLanes(d4, result), dst + kStored * k, k + 1 == kBlock);
    }
  }
};

constexpr remap::RemapRows kLinearRows = {
    {ownRemap<BlendBytes>, ownRemap<BlendBytePixels<3, 3>>, ownRemap<BlendBytePixels<4, 4>>,
     ownRemap<BlendBytePixels<4, 3>>},
    {ownRemap<BlendReals>, ownRemap<BlendRealPixels<3, 3>>, ownRemap<BlendRealPixels<4, 4>>,
     ownRemap<BlendRealPixels<4, 3>>}};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::remap {
KELI_SELECT_ROWS(RemapRows, kLinearRows, linearRows)
}  // namespace keli::remap
#endif
