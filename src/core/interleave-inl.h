// Vectors of channels to and from interleaved pixels, in registers, so that the caller chooses the
// stores.
//
// Three channels: position p of interleaved vector j holds a sample of channel (j * lanes + p) mod
// 3, and as lanes is no multiple of 3, the samples of one channel stand at different positions in
// each of the three vectors. So two selections gather a channel's samples into one vector, and one
// shuffle puts them in order; the way back is the same in reverse. Where shuffles across a vector
// are missing, blocks of 16 bytes are shuffled and put in place.
#if defined(KELI_CORE_INTERLEAVE_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CORE_INTERLEAVE_INL_H_
#undef KELI_CORE_INTERLEAVE_INL_H_
#else
#define KELI_CORE_INTERLEAVE_INL_H_
#endif

#include <algorithm>
#include <limits>

#include "core/simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// Where vectors of kBytes bytes have the samples (of kSample bytes) of three channels.
template <std::size_t kBytes, std::size_t kSample>
struct Interleave3 {
  static constexpr std::size_t kLanes = kBytes / kSample;
  using Table = std::array<std::array<std::uint8_t, kBytes>, 3>;

  // The vector of three that holds channel k at position p.
  static constexpr std::size_t vectorOf(std::size_t k, std::size_t p) {
    std::size_t j = 0;
    while ((j * kLanes + p) % 3 != k) ++j;
    return j;
  }

  // ordered[k]: the position, byte by byte, that pixel x's sample of channel k has when gathered.
  // spread[k]: its inverse.
  static constexpr Table makeOrdered(bool inverse) {
    Table t{};
    for (std::size_t k = 0; k < 3; ++k) {
      for (std::size_t x = 0; x < kLanes; ++x) {
        const std::size_t p = (3 * x + k) % kLanes;
        for (std::size_t byte = 0; byte < kSample; ++byte) {
          const std::size_t here = x * kSample + byte, there = p * kSample + byte;
          t[k][inverse ? there : here] = static_cast<std::uint8_t>(inverse ? here : there);
        }
      }
    }
    return t;
  }
  static constexpr Table kOrdered = makeOrdered(false);
  static constexpr Table kSpread = makeOrdered(true);

  // All bits where vector j holds channel k.
  static constexpr std::array<Table, 3> makeHolds() {
    std::array<Table, 3> t{};
    for (std::size_t j = 0; j < 3; ++j) {
      for (std::size_t i = 0; i < kBytes; ++i) {
        for (std::size_t k = 0; k < 3; ++k) t[j][k][i] = vectorOf(k, i / kSample) == j ? 0xFF : 0;
      }
    }
    return t;
  }
  static constexpr std::array<Table, 3> kHolds = makeHolds();

  // What shuffles channel k into block j, 0x80 for the other channels' places; for two blocks.
  using BlockTable = std::array<std::array<std::uint8_t, 2 * kBytes>, 3>;
  static constexpr std::array<BlockTable, 3> makeSpreadInto() {
    std::array<BlockTable, 3> t{};
    for (std::size_t j = 0; j < 3; ++j) {
      for (std::size_t k = 0; k < 3; ++k) {
        for (std::size_t i = 0; i < 2 * kBytes; ++i) {
          t[j][k][i] = kHolds[j][k][i % kBytes] != 0 ? kSpread[k][i % kBytes] : 0x80;
        }
      }
    }
    return t;
  }
  static constexpr std::array<BlockTable, 3> kSpreadInto = makeSpreadInto();
};

// The same for four channels, with the pixels of interleaved vector j turned by j samples: position
// p then holds channel (j + p) mod 4, and those of one channel stand at different positions in each
// of the four vectors.
template <std::size_t kBytes, std::size_t kSample>
struct Interleave4 {
  static constexpr std::size_t kLanes = kBytes / kSample;
  using Table = std::array<std::array<std::uint8_t, kBytes>, 4>;

  static constexpr Table makeOrdered(bool inverse) {
    Table t{};
    for (std::size_t k = 0; k < 4; ++k) {
      for (std::size_t x = 0; x < kLanes; ++x) {
        const std::size_t j = x / (kLanes / 4);
        const std::size_t p = x % (kLanes / 4) * 4 + (k + 4 - j) % 4;
        for (std::size_t byte = 0; byte < kSample; ++byte) {
          const std::size_t here = x * kSample + byte, there = p * kSample + byte;
          t[k][inverse ? there : here] = static_cast<std::uint8_t>(inverse ? here : there);
        }
      }
    }
    return t;
  }
  static constexpr Table kOrdered = makeOrdered(false);
  static constexpr Table kSpread = makeOrdered(true);
};

#if HWY_TARGET != HWY_SCALAR
template <class D>
HWY_INLINE void deinterleave3(D d, const hn::TFromD<D>* src, hn::Vec<D> (&v)[3]) {
  constexpr std::size_t kBytes = hn::MaxLanes(D()) * sizeof(hn::TFromD<D>);
  if constexpr (kPermutesBytes && kBytes >= 32) {
    using Plan = Interleave3<kBytes, sizeof(hn::TFromD<D>)>;
    const hn::Repartition<std::uint8_t, D> d8;
    const std::uint8_t* const from = reinterpret_cast<const std::uint8_t*>(src);
    const auto a = hn::LoadU(d8, from), b = hn::LoadU(d8, from + kBytes),
               c = hn::LoadU(d8, from + 2 * kBytes);
    unrolled<3>([&](auto k) KELI_LAMBDA {
      const auto inA = hn::MaskFromVec(hn::LoadU(d8, Plan::kHolds[0][k].data())),
                 inB = hn::MaskFromVec(hn::LoadU(d8, Plan::kHolds[1][k].data()));
      const auto gathered = hn::IfThenElse(inA, a, hn::IfThenElse(inB, b, c));
      v[k] = hn::BitCast(d, permuteBytes(d8, gathered, hn::LoadU(d8, Plan::kOrdered[k].data())));
    });
  } else {
    hn::LoadInterleaved3(d, src, v[0], v[1], v[2]);
  }
}

// out: three vectors in the order of memory.
template <class D>
HWY_INLINE void interleave3(D d, const hn::Vec<D> (&v)[3], hn::Vec<D> (&out)[3]) {
  constexpr std::size_t kBytes = hn::MaxLanes(D()) * sizeof(hn::TFromD<D>);
  const hn::Repartition<std::uint8_t, D> d8;
  if constexpr (kPermutesBytes && kBytes >= 32) {
    using Plan = Interleave3<kBytes, sizeof(hn::TFromD<D>)>;
    hn::Vec<decltype(d8)> spread[3];
    unrolled<3>([&](auto k) KELI_LAMBDA {
      spread[k] = permuteBytes(d8, hn::BitCast(d8, v[k]), hn::LoadU(d8, Plan::kSpread[k].data()));
    });
    unrolled<3>([&](auto j) KELI_LAMBDA {
      const auto is0 = hn::MaskFromVec(hn::LoadU(d8, Plan::kHolds[j][0].data())),
                 is1 = hn::MaskFromVec(hn::LoadU(d8, Plan::kHolds[j][1].data()));
      out[j] =
          hn::BitCast(d, hn::IfThenElse(is0, spread[0], hn::IfThenElse(is1, spread[1], spread[2])));
    });
  } else {
    // Blocks of 16 bytes, or one that is all of a shorter vector.
    using Plan = Interleave3<std::min<std::size_t>(kBytes, 16), sizeof(hn::TFromD<D>)>;
    hn::Vec<D> blocks[3];
    unrolled<3>([&](auto j) KELI_LAMBDA {
      auto all = hn::Zero(d8);
      unrolled<3>([&](auto k) KELI_LAMBDA {
        const auto indices = hn::LoadU(d8, Plan::kSpreadInto[j][k].data());
        all = hn::Or(all, hn::TableLookupBytesOr0(hn::BitCast(d8, v[k]), indices));
      });
      blocks[j] = hn::BitCast(d, all);
    });
    if constexpr (kBytes == 32) {
      out[0] = hn::ConcatLowerLower(d, blocks[1], blocks[0]);
      out[1] = hn::ConcatUpperLower(d, blocks[0], blocks[2]);
      out[2] = hn::ConcatUpperUpper(d, blocks[2], blocks[1]);
    } else {
      unrolled<3>([&](auto j) KELI_LAMBDA { out[j] = blocks[j]; });
    }
  }
}

// Vectors whose position p holds vector k's sample where that of p has bit kBit 0, and else vector
// (k + kDistance) mod 4's.
template <std::size_t kBit, std::size_t kDistance, class D>
HWY_INLINE void exchange4(D d, const hn::Vec<D> (&v)[4], hn::Vec<D> (&out)[4]) {
  using T = hn::TFromD<D>;
  using Pixel = hwy::MakeWide<hwy::MakeWide<T>>;
  constexpr int kBits = 8 * sizeof(T);
  constexpr Pixel kSample = std::numeric_limits<T>::max();
  constexpr Pixel kOdd = kBit == 1 ? kSample << kBits | kSample << 3 * kBits
                                   : kSample << 2 * kBits | kSample << 3 * kBits;
  const auto odd = hn::MaskFromVec(hn::BitCast(d, hn::Set(hn::Repartition<Pixel, D>(), kOdd)));
  unrolled<4>([&](auto k)
                  KELI_LAMBDA { out[k] = hn::IfThenElse(odd, v[(k + kDistance) % 4], v[k]); });
}

// Each pixel of four samples turned by kSamples: position p takes the sample of p + kSamples.
template <std::size_t kSamples, class D>
HWY_INLINE hn::Vec<D> turned(D d, hn::Vec<D> v) {
  using T = hn::TFromD<D>;
  const hn::Repartition<hwy::MakeWide<hwy::MakeWide<T>>, D> pixels;
  constexpr int kBits = static_cast<int>(8 * sizeof(T) * (kSamples % 4));
  if constexpr (kBits == 0) {  // which the library does not leave out
    return v;
  } else {
    return hn::BitCast(d, hn::RotateRight<kBits>(hn::BitCast(pixels, v)));
  }
}

template <class D>
constexpr bool gathersFour() {
  constexpr std::size_t kSample = sizeof(hn::TFromD<D>);
  return kPermutesBytes && kSample <= 2 && hn::MaxLanes(D()) * kSample >= 32;
}

template <class D>
HWY_INLINE void deinterleave4(D d, const hn::TFromD<D>* src, hn::Vec<D> (&v)[4]) {
  if constexpr (gathersFour<D>()) {
    using T = hwy::MakeUnsigned<hn::TFromD<D>>;
    const hn::RebindToUnsigned<D> du;
    constexpr std::size_t kN = hn::MaxLanes(D());
    using Plan = Interleave4<kN * sizeof(T), sizeof(T)>;
    const hn::Repartition<std::uint8_t, D> d8;
    hn::Vec<decltype(du)> in[4], half[4], gathered[4];
    unrolled<4>([&](auto j) KELI_LAMBDA {
      in[j] = turned<j>(du, hn::BitCast(du, hn::LoadU(d, src + j * kN)));
    });
    exchange4<2, 2>(du, in, half);
    exchange4<1, 3>(du, half, gathered);
    unrolled<4>([&](auto k) KELI_LAMBDA {
      v[k] = hn::BitCast(d, permuteBytes(d8, hn::BitCast(d8, gathered[k]),
                                         hn::LoadU(d8, Plan::kOrdered[k].data())));
    });
  } else {
    hn::LoadInterleaved4(d, src, v[0], v[1], v[2], v[3]);
  }
}

// out: four vectors in the order of memory.
template <class D>
HWY_INLINE void interleave4(D d, const hn::Vec<D> (&v)[4], hn::Vec<D> (&out)[4]) {
  using T = hn::TFromD<D>;
  constexpr std::size_t kBytes = hn::MaxLanes(D()) * sizeof(T);
  if constexpr (kBytes < 16) {
    T pixels[4 * hn::MaxLanes(D())];
    hn::StoreInterleaved4(v[0], v[1], v[2], v[3], d, pixels);
    unrolled<4>([&](auto j) KELI_LAMBDA { out[j] = hn::LoadU(d, pixels + j * hn::MaxLanes(D())); });
  } else if constexpr (gathersFour<D>()) {
    const hn::RebindToUnsigned<D> du;
    using Plan = Interleave4<kBytes, sizeof(T)>;
    const hn::Repartition<std::uint8_t, D> d8;
    hn::Vec<decltype(du)> spread[4], half[4], mixed[4];
    unrolled<4>([&](auto k) KELI_LAMBDA {
      spread[k] = hn::BitCast(
          du, permuteBytes(d8, hn::BitCast(d8, v[k]), hn::LoadU(d8, Plan::kSpread[k].data())));
    });
    exchange4<1, 1>(du, spread, half);
    exchange4<2, 2>(du, half, mixed);
    unrolled<4>([&](auto j) KELI_LAMBDA { out[j] = hn::BitCast(d, turned<4 - j>(du, mixed[j])); });
  } else {
    static_assert(kBytes <= 32, "longer vectors have more than two blocks");
    using Pair = hwy::MakeWide<hwy::MakeUnsigned<T>>;
    const hn::Repartition<Pair, D> dp;
    // Pairs of channels 0 1 and 2 3, of the lower and the upper half of every block.
    const auto low01 = hn::BitCast(dp, hn::InterleaveLower(d, v[0], v[1]));
    const auto low23 = hn::BitCast(dp, hn::InterleaveLower(d, v[2], v[3]));
    const auto high01 = hn::BitCast(dp, hn::InterleaveUpper(d, v[0], v[1]));
    const auto high23 = hn::BitCast(dp, hn::InterleaveUpper(d, v[2], v[3]));
    const auto block0 = hn::BitCast(d, hn::InterleaveLower(dp, low01, low23));
    const auto block1 = hn::BitCast(d, hn::InterleaveUpper(dp, low01, low23));
    const auto block2 = hn::BitCast(d, hn::InterleaveLower(dp, high01, high23));
    const auto block3 = hn::BitCast(d, hn::InterleaveUpper(dp, high01, high23));
    if constexpr (kBytes == 32) {
      out[0] = hn::ConcatLowerLower(d, block1, block0);
      out[1] = hn::ConcatLowerLower(d, block3, block2);
      out[2] = hn::ConcatUpperUpper(d, block1, block0);
      out[3] = hn::ConcatUpperUpper(d, block3, block2);
    } else {
      out[0] = block0;
      out[1] = block1;
      out[2] = block2;
      out[3] = block3;
    }
  }
}
#endif  // HWY_TARGET != HWY_SCALAR

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
