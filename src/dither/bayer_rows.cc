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

// Of a place with this number, what is added before the division by full, and 1 more.
constexpr std::uint32_t addendOf(std::uint32_t full, std::uint32_t number) {
  return number == 15 ? 1 : full - full / 15 * number;
}

// A sample's number of the column, 0..3, by the place in the cycle; long enough to load a vector
// from any.
template <std::size_t kChannels>
struct Columns {
  static constexpr std::size_t kSize = kCycle + HWY_MAX_BYTES;
  static constexpr std::array<Kel8u, kSize> make() {
    std::array<Kel8u, kSize> a{};
    for (std::size_t i = 0; i < kSize; ++i) a[i] = static_cast<Kel8u>(i / kChannels % 4);
    return a;
  }
  static constexpr std::array<Kel8u, kSize> kOf = make();
};

const Kel8u* columnsOf(std::size_t channels) {
  return channels == 1   ? Columns<1>::kOf.data()
         : channels == 3 ? Columns<3>::kOf.data()
                         : Columns<4>::kOf.data();
}

std::uint32_t levelOf(std::uint32_t v, std::uint32_t last, std::uint32_t addend, std::uint32_t full,
                      const dither::Levels& levels) {
  const std::uint32_t k = (v * last + addend - 1) / full;
  return k * levels.whole + static_cast<std::uint32_t>((std::uint64_t{k} * levels.parts) >> 32);
}

// Looks up lanes of 0..15.
template <class D>
HWY_INLINE hn::Vec<D> lookUp(D d, const Kel8u (&table)[16], hn::Vec<D> indices) {
  if constexpr (hn::MaxLanes(D()) >= 16) {
    return hn::TableLookupBytes(hn::LoadDup128(d, table), indices);
  } else {
    return hn::TableLookupBytes(hn::Load(hn::CappedTag<Kel8u, 16>(), table), indices);
  }
}

// Tables of bytes by the place in the matrix, 4 * row + column, and the levels.
struct ByteTables {
  alignas(16) Kel8u addends[16];
  std::uint32_t last;  // levels - 1
  dither::Levels levels;
  const Kel8u* columns;

  ByteTables(std::size_t firstRow, std::size_t channels, int count)
      : last(static_cast<std::uint32_t>(count - 1)),
        levels(255, count),
        columns(columnsOf(channels)) {
    for (std::size_t i = 0; i < 16; ++i)
      addends[i] = static_cast<Kel8u>(addendOf(255, dither::kBayer[(firstRow + i / 4) % 4][i % 4]));
  }
};

struct BayerOp {
  static constexpr std::size_t kPeriod = kCycle;
  static constexpr std::size_t kUnroll = 6;
  static constexpr std::size_t kVectorBytes = 64;
};

// A row of bytes.
template <class Tables>
struct ByteRow : BayerOp {
  const Tables& tables;
  Kel8u first;  // place of the row's first sample

  ByteRow(const Tables& t, std::size_t y) : tables(t), first(static_cast<Kel8u>(4 * (y % 4))) {}

  template <class D>
  HWY_INLINE hn::Vec<D> places(D d, std::size_t phase) const {
    return hn::LoadU(d, tables.columns + phase) + hn::Set(d, first);
  }
  HWY_INLINE Kel8u scalar(std::size_t phase, Kel8u v) const {
    const Kel8u addend = tables.addends[tables.columns[phase] + first];
    return static_cast<Kel8u>(levelOf(v, tables.last, addend, 255, tables.levels));
  }
};

struct AnyLevels : ByteRow<ByteTables> {
  using Tables = ByteTables;
  using ByteRow::ByteRow;

  template <class D>
  HWY_INLINE Wide<D> at(D d, std::size_t phase) const {
    return widen(d, lookUp(d, tables.addends, places(d, phase)));
  }
  // In 16 bits: x = v * n + addend is at most 65280, and x / 255 of x - 1 is (x + x / 256) / 256.
  template <class D>
  HWY_INLINE hn::Vec<D> vector(D d, const Wide<D>& addends, hn::Vec<D> v) const {
    const WideTag<D> dw;
    const auto last = hn::Set(dw, static_cast<std::uint16_t>(tables.last));
    const auto whole = hn::Set(dw, static_cast<std::uint16_t>(tables.levels.whole));
    const auto parts = hn::Set(dw, tables.levels.shortParts());
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
};

// Up to 16 levels, whose values a shuffle looks up. With addend - 1 = n * whole + rest, the number
// (v * n + addend - 1) / 255 is (w * n + rest) / 255 of w = v + whole, which saturates where the
// number is n anyway. That is (256 * w + r) * 257 * n / 2^24, fractions cut off, with r = 256 *
// rest / n + 2, cut off too: the product lacks w * n / 65536 / 255 < n / 65536, and r * 257 * n /
// 2^24 exceeds rest / 255 by more than that and, as n is small, by less than what is left of 1 /
// 255.
struct FewTables : ByteTables {
  alignas(16) Kel8u wholes[16];
  alignas(16) Kel8u rests[16];
  alignas(16) Kel8u values[16];

  FewTables(std::size_t firstRow, std::size_t channels, int count)
      : ByteTables(firstRow, channels, count) {
    for (std::uint32_t i = 0; i < 16; ++i) {
      const std::uint32_t addend = addends[i] - 1u;
      wholes[i] = static_cast<Kel8u>(addend / last);
      rests[i] = static_cast<Kel8u>(256 * (addend % last) / last + 2);
      values[i] = static_cast<Kel8u>(std::min(255u, i * 255 / last));
    }
  }
};

struct FewLevels : ByteRow<FewTables> {
  using Tables = FewTables;
  static constexpr int kMost = 16;
  using ByteRow::ByteRow;

  template <class D>
  struct At {
    hn::Vec<D> wholes;
    hn::Vec<hn::RepartitionToWide<D>> even, odd;
  };
  // Of two samples side by side, a word has the upper one's where it stands; the lower one's is
  // shifted up.
  template <class D>
  HWY_INLINE At<D> at(D d, std::size_t phase) const {
    const hn::RepartitionToWide<D> dw;
    const auto here = places(d, phase);
    const auto rests = hn::BitCast(dw, lookUp(d, tables.rests, here));
    return {lookUp(d, tables.wholes, here), rests & hn::Set(dw, 0xFF), hn::ShiftRight<8>(rests)};
  }
  template <class D>
  HWY_INLINE hn::Vec<D> vector(D d, const At<D>& at, hn::Vec<D> v) const {
    const hn::RepartitionToWide<D> dw;
    const auto factor = hn::Set(dw, static_cast<std::uint16_t>(257 * tables.last));
    const auto upper = hn::Set(dw, 0xFF00);
    const auto w = hn::BitCast(dw, hn::SaturatedAdd(v, at.wholes));
    const auto even = hn::MulHigh(hn::ShiftLeft<8>(w) | at.even, factor);
    const auto odd = hn::MulHigh((w & upper) | at.odd, factor);
    const auto numbers = hn::ShiftRight<8>(even) | (odd & upper);
    return lookUp(d, tables.values, hn::BitCast(d, numbers));
  }
};

template <class Op, class Keep>
void ownBayerOfBytes(const Band<1>& b, std::size_t firstRow, std::size_t channels, int levels) {
  const typename Op::Tables tables(firstRow, channels, levels);
  for (std::size_t y = 0; y < b.rows; ++y) mapRow<Kel8u, Kel8u, Keep>(b, y, Op(tables, y));
  if (b.streams) hwy::FlushStream();
}

template <class Keep>
void ownBayerBytes(const Band<1>& b, std::size_t firstRow, std::size_t channels, int levels) {
  (levels <= FewLevels::kMost ? ownBayerOfBytes<FewLevels, Keep>
                              : ownBayerOfBytes<AnyLevels, Keep>)(b, firstRow, channels, levels);
}

// The same for a row of words, of which one table would not hold all.
template <class T>
struct WordRow {
  static constexpr std::size_t kSize = kCycle + HWY_MAX_BYTES;  // a vector of results is bytes
  Kel16u addends[kSize];
  std::uint32_t last;
  dither::Levels levels;

  WordRow() : last(0), levels(1, 2) {}
  WordRow(std::size_t y, std::size_t channels, const dither::Levels& all)
      : last(static_cast<std::uint32_t>(all.last)), levels(all) {
    const Kel8u* const columns = columnsOf(channels);
    Kel16u four[4];
    for (std::size_t x = 0; x < 4; ++x)
      four[x] = static_cast<Kel16u>(addendOf(65535, dither::kBayer[y % 4][x]));
    for (std::size_t i = 0; i < kSize; ++i) addends[i] = four[columns[i]];
  }
};

// Samples of 16 bits. Numbers of levels are formed in 32 bits, levels in 16.
template <class TS, class TD>
struct BayerWords : BayerOp {
  static constexpr bool kLoads = sizeof(TD) == 1;
  const WordRow<TS>& row;

  explicit BayerWords(const WordRow<TS>& r) : row(r) {}

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
    constexpr int kOffset = std::is_signed_v<TS> ? 32768 : 0;
    const std::uint32_t level = levelOf(static_cast<std::uint32_t>(v + kOffset), row.last,
                                        row.addends[phase], 65535, row.levels);
    return static_cast<TD>(static_cast<int>(level) - (sizeof(TD) == 1 ? 0 : kOffset));
  }
};

template <class TS, class TD, class Keep>
void ownBayerWords(const Band<1>& b, std::size_t firstRow, std::size_t channels, int levels) {
  const dither::Levels all(dither::kFullScale<TD>, levels);
  WordRow<TS> rows[4];
  for (std::size_t y = 0; y < 4 && y < b.rows; ++y)
    rows[y] = WordRow<TS>(firstRow + y, channels, all);
  for (std::size_t y = 0; y < b.rows; ++y)
    mapRow<TS, TD, Keep>(b, y, BayerWords<TS, TD>(rows[y % 4]));
  if (b.streams) hwy::FlushStream();
}

template <class TS, class TD>
constexpr dither::BayerRows kBayerWords = {ownBayerWords<TS, TD, KeepNone>,
                                           ownBayerWords<TS, TD, KeepAlpha>};
constexpr dither::BayerRows kBayer8u = {ownBayerBytes<KeepNone>, ownBayerBytes<KeepAlpha>};
constexpr auto kBayer16u = kBayerWords<Kel16u, Kel16u>;
constexpr auto kBayer16s = kBayerWords<Kel16s, Kel16s>;
constexpr auto kBayer16u8u = kBayerWords<Kel16u, Kel8u>;
constexpr auto kBayer16s8u = kBayerWords<Kel16s, Kel8u>;

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
