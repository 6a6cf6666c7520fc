// Row kernels of ordered dithering of integers, exactly. With v the sample in 0..full (255 or
// 65535; that of 16 bits for 16u8u too, whose result is a level of 255), n = levels - 1 and i the
// matrix's number of the place, v * n = k * full + rest, and the level is k + 1 where
// i / 15 * full < rest, which is (v * n + full - 1 - full / 15 * i) / full; of i = 15, k.
#include <type_traits>

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"
#include "dither/bayer_rows.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "dither/bayer_rows.cc"
#include <hwy/foreach_target.h>
//
#include "core/map-inl.h"
#include "core/narrow-inl.h"
#include "core/wide-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// AC4, as KeepOthers<4, 3>, with the period of the operations here.
constexpr std::size_t kCycle = 48;  // samples: a multiple of four pixels of 1, 3 and 4
struct KeepAlpha : KeepOthers<4, 3> {
  static constexpr std::size_t kPeriod = kCycle;
  static constexpr bool written(std::size_t phase) { return phase % 4 < 3; }
  template <class D>
  HWY_INLINE auto at(D d, std::size_t phase) const {
    return KeepOthers<4, 3>::at(d, phase % 4);
  }
};

// What is added before the division by full, and 1 more, for the samples of a row, by the place in
// the cycle; and the levels.
template <class T>
struct Row {
  using Word = std::make_unsigned_t<T>;
  static constexpr std::uint32_t kFull = std::numeric_limits<Word>::max();
  static constexpr std::size_t kSize = kCycle + HWY_MAX_BYTES;  // a vector of results is bytes

  Word addends[kSize];
  std::uint32_t last;  // levels - 1
  dither::Levels levels;

  Row() : last(0), levels(1, 2) {}
  Row(std::size_t y, std::size_t channels, const dither::Levels& all)
      : last(static_cast<std::uint32_t>(all.last)), levels(all) {
    for (std::size_t x = 0; x < 4; ++x) {
      const std::uint32_t number = dither::kBayer[y % 4][x];
      for (std::size_t k = 0; k < channels; ++k)
        addends[channels * x + k] =
            static_cast<Word>(number == 15 ? 1 : kFull - kFull / 15 * number);
    }
    for (std::size_t i = 4 * channels; i < kSize; ++i) addends[i] = addends[i - 4 * channels];
  }

  std::uint32_t level(std::size_t phase, T sample) const {
    const std::uint32_t sign = std::is_signed_v<T> ? 0x8000 : 0;
    const std::uint32_t v = static_cast<std::make_unsigned_t<T>>(sample) ^ sign;
    const std::uint32_t k = (v * last + addends[phase] - 1) / kFull;
    return k * levels.whole + static_cast<std::uint32_t>((std::uint64_t{k} * levels.parts) >> 32);
  }
};

struct BayerOp {
  static constexpr std::size_t kPeriod = kCycle;
  static constexpr std::size_t kUnroll = 6;
};

struct BayerBytes : BayerOp {
  static constexpr std::size_t kVectorBytes = 64;
  const Row<Kel8u>& row;

  explicit BayerBytes(const Row<Kel8u>& r) : row(r) {}

  template <class D>
  HWY_INLINE Wide<D> at(D d, std::size_t phase) const {
    return widen(d, hn::LoadU(d, row.addends + phase));
  }
  // In 16 bits: x = v * n + addend is at most 65280, and x / 255 of x - 1 is (x + x / 256) / 256.
  template <class D>
  HWY_INLINE hn::Vec<D> vector(D d, const Wide<D>& addends, hn::Vec<D> v) const {
    const WideTag<D> dw;
    const auto last = hn::Set(dw, static_cast<std::uint16_t>(row.last));
    const auto whole = hn::Set(dw, static_cast<std::uint16_t>(row.levels.whole));
    const auto parts = hn::Set(dw, row.levels.shortParts());
    const auto level = [&](auto samples, auto addend) KELI_LAMBDA {
      const auto x = samples * last + addend;
      const auto k = hn::ShiftRight<8>(x + hn::ShiftRight<8>(x));
      return k * whole + hn::MulHigh(k, parts);
    };
    Wide<D> w = widen(d, v);
    w.lo = level(w.lo, addends.lo);
    if constexpr (kTwoHalves<D>) w.hi = level(w.hi, addends.hi);
    return narrow(d, w);
  }
  HWY_INLINE Kel8u scalar(std::size_t phase, Kel8u v) const {
    return static_cast<Kel8u>(row.level(phase, v));
  }
};

// Samples of 16 bits. Numbers of levels are formed in 32 bits, levels in 16.
template <class TS, class TD>
struct BayerWords : BayerOp {
  static constexpr std::size_t kVectorBytes = 64;
  static constexpr bool kLoads = sizeof(TD) == 1;
  const Row<TS>& row;

  explicit BayerWords(const Row<TS>& r) : row(r) {}

  template <class D>
  static constexpr std::size_t kSources = kLoads&& hn::MaxLanes(D()) * sizeof(TD) >= 16
                                              ? 2
                                              : 1;  // vectors of them
  template <class D>
  using Words = hn::CappedTag<std::uint16_t, hn::MaxLanes(D()) / kSources<D>>;
  template <class D>
  using Addends = std::array<Wide<Words<D>>, kSources<D>>;

  template <class D>
  HWY_INLINE Addends<D> at(D, std::size_t phase) const {
    const Words<D> d;
    Addends<D> addends;
    unrolled<kSources<D>>([&](auto i) KELI_LAMBDA {
      addends[i] = widen(d, hn::LoadU(d, row.addends + phase + i * hn::MaxLanes(d)));
    });
    return addends;
  }

  // x = v * n + addend is below 2^32, and x / 65535 of x - 1 is (x + x / 65536) / 65536.
  template <class D>
  HWY_INLINE hn::Vec<D> numbers(D d, const Wide<D>& addends, hn::Vec<D> v) const {
    if constexpr (std::is_signed_v<TS>) v = v ^ hn::Set(d, 0x8000);
    const WideTag<D> dw;
    const auto last = hn::Set(dw, row.last);
    const auto number = [&](auto samples, auto addend) KELI_LAMBDA {
      const auto x = samples * last + addend;
      return hn::ShiftRight<16>(x + hn::ShiftRight<16>(x));
    };
    Wide<D> w = widen(d, v);
    w.lo = number(w.lo, addends.lo);
    if constexpr (kTwoHalves<D>) w.hi = number(w.hi, addends.hi);
    return narrow(d, w);
  }

  template <class D>
  HWY_INLINE hn::Vec<D> level(D d, hn::Vec<D> k) const {
    const auto whole = k * hn::Set(d, static_cast<std::uint16_t>(row.levels.whole));
    if constexpr (sizeof(TD) == 1) {
      return whole + hn::MulHigh(k, hn::Set(d, row.levels.shortParts()));
    } else {
      const auto high = hn::Set(d, static_cast<std::uint16_t>(row.levels.parts >> 16));
      const auto low = hn::Set(d, static_cast<std::uint16_t>(row.levels.parts));
      const auto part = k * high;
      const auto carry = hn::VecFromMask(d, hn::Lt(part + hn::MulHigh(k, low), part));
      const auto level = whole + hn::MulHigh(k, high) - carry;
      return std::is_signed_v<TD> ? level ^ hn::Set(d, 0x8000) : level;
    }
  }

  template <class D, class... Source>
  HWY_INLINE hn::Vec<D> vector(D d, const Addends<D>& addends, Source... source) const {
    if constexpr (kLoads) {
      return narrowed(d, addends, source...);
    } else {
      const Words<D> du;
      return hn::BitCast(d, level(du, numbers(du, addends[0], hn::BitCast(du, source)...)));
    }
  }

  template <class D>
  HWY_INLINE hn::Vec<D> narrowed(D d, const Addends<D>& addends, const TS* src) const {
    const Words<D> du;
    const hn::RebindToSigned<Words<D>> di;
    const hn::Rebind<TS, Words<D>> ds;
    const auto bytes = [&](std::size_t i) KELI_LAMBDA {
      const auto v = hn::BitCast(du, hn::LoadU(ds, src + i * hn::MaxLanes(du)));
      return hn::BitCast(di, level(du, numbers(du, addends[i], v)));
    };
    if constexpr (kSources<D> == 2) {
      return inOrder<2>(d, packSaturated(d, bytes(0), bytes(1)));
    } else {
      return hn::DemoteTo(d, bytes(0));
    }
  }

  HWY_INLINE TD scalar(std::size_t phase, TS v) const {
    const std::uint32_t sign = std::is_signed_v<TD> ? 0x8000 : 0;
    return static_cast<TD>(row.level(phase, v) ^ sign);
  }
};

template <class TS, class TD, class Keep>
void ownBayer(const Band<1>& b, std::size_t firstRow, std::size_t channels, int levels) {
  using Op = std::conditional_t<sizeof(TS) == 1, BayerBytes, BayerWords<TS, TD>>;
  const dither::Levels all(dither::kFullScale<TD>, levels);
  Row<TS> rows[4];
  for (std::size_t y = 0; y < 4 && y < b.rows; ++y) rows[y] = Row<TS>(firstRow + y, channels, all);
  for (std::size_t y = 0; y < b.rows; ++y) mapRow<TS, TD, Keep>(b, y, Op(rows[y % 4]));
  if (b.streams) hwy::FlushStream();
}

template <class TS, class TD>
constexpr dither::BayerRows kBayerRows = {ownBayer<TS, TD, KeepNone>, ownBayer<TS, TD, KeepAlpha>};

constexpr auto kBayer8u = kBayerRows<Kel8u, Kel8u>;
constexpr auto kBayer16u = kBayerRows<Kel16u, Kel16u>;
constexpr auto kBayer16s = kBayerRows<Kel16s, Kel16s>;
constexpr auto kBayer16u8u = kBayerRows<Kel16u, Kel8u>;
constexpr auto kBayer16s8u = kBayerRows<Kel16s, Kel8u>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::dither {
template <>
KELI_SELECT_ROWS(BayerRows, kBayer8u, bayerRows<Kel8u, Kel8u>)
template <>
KELI_SELECT_ROWS(BayerRows, kBayer16u, bayerRows<Kel16u, Kel16u>)
template <>
KELI_SELECT_ROWS(BayerRows, kBayer16s, bayerRows<Kel16s, Kel16s>)
template <>
KELI_SELECT_ROWS(BayerRows, kBayer16u8u, bayerRows<Kel16u, Kel8u>)
template <>
KELI_SELECT_ROWS(BayerRows, kBayer16s8u, bayerRows<Kel16s, Kel8u>)
}  // namespace keli::dither
#endif
