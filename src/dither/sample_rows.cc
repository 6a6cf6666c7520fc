// Row kernels between samples and planes of values, and of values that are changed on their own.
// Every operation is in single precision; the conversions are exact but for the product with a
// scale.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"
#include "dither/sample_rows.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "dither/sample_rows.cc"
#include <hwy/foreach_target.h>
//
#include "color/lanes-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// Integers of 8 and 16 bits, and floats, as floats. One that is no number becomes the greatest.
template <class DF, class TS>
HWY_INLINE hn::Vec<DF> realLanes(DF df, hn::Vec<hn::Rebind<TS, DF>> v) {
  if constexpr (std::is_same_v<TS, Kel32f>) {
    return lessElse(v, hn::Set(df, std::numeric_limits<Kel32f>::max()));
  } else {
    return hn::ConvertTo(df, hn::PromoteTo(hn::Rebind<std::int32_t, DF>(), v));
  }
}

template <class TS>
struct ToValues {
  static constexpr bool kOnce = true;
  const dither::Scale& scale;

  template <class D, class V, std::size_t kIn>
  HWY_INLINE Channels<D, kIn> vector(D d, const std::array<V, kIn>& in) const {
    const auto offset = hn::Set(d, scale.offset), factor = hn::Set(d, scale.scale);
    Channels<D, kIn> out;
    unrolled<kIn>([&](auto k)
                      KELI_LAMBDA { out[k] = (realLanes<D, TS>(d, in[k]) + offset) * factor; });
    return out;
  }
  template <std::size_t kIn>
  HWY_INLINE std::array<Kel32f, kIn> scalar(const std::array<TS, kIn>& in) const {
    const hn::CappedTag<Kel32f, 1> d;
    const hn::CappedTag<TS, 1> ds;
    std::array<Kel32f, kIn> out;
    for (std::size_t k = 0; k < kIn; ++k)
      out[k] = hn::GetLane(vector(d, Channels<decltype(ds), 1>{hn::Set(ds, in[k])})[0]);
    return out;
  }
};

// The level of a number, which may lie beyond the first or the last.
template <class TD>
struct ToLevels {
  static constexpr bool kOnce = true;
  const dither::Levels& levels;

  template <class DW, class V>
  HWY_INLINE hn::Vec<DW> level(DW dw, V number) const {
    const hn::RebindToFloat<DW> df;
    const auto k = greaterElse(lessElse(number, hn::Set(df, levels.last)), hn::Zero(df));
    if constexpr (sizeof(TD) == 1) {
      // Less than the 1 / 255 by which a level that is no integer lies below the next, and more
      // than the rounding of the product.
      return truncateToInt(dw, k * hn::Set(df, levels.step) + hn::Set(df, 0x1p-9f));
    } else {
      const hn::RebindToUnsigned<DW> du;
      const auto n = hn::BitCast(du, truncateToInt(dw, k));
      const auto high = hn::Set(du, levels.parts >> 16), low = hn::Set(du, levels.parts & 0xFFFF);
      const auto rest = hn::ShiftRight<16>(n * high + hn::ShiftRight<16>(n * low));
      const auto level = hn::BitCast(dw, n * hn::Set(du, levels.whole) + rest);
      if constexpr (std::is_signed_v<TD>) return level - hn::Set(dw, 32768);
      return level;
    }
  }

  template <class D, class V, std::size_t kIn>
  HWY_INLINE Channels<D, kIn> vector(D d, const std::array<V, kIn>& in) const {
    const hn::Rebind<std::int32_t, D> dw;
    Channels<D, kIn> out;
    unrolled<kIn>([&](auto k) KELI_LAMBDA { out[k] = hn::DemoteTo(d, level(dw, in[k])); });
    return out;
  }
  template <std::size_t kIn>
  HWY_INLINE std::array<TD, kIn> scalar(const std::array<Kel32f, kIn>& in) const {
    const hn::CappedTag<TD, 1> d;
    const hn::CappedTag<Kel32f, 1> df;
    std::array<TD, kIn> out;
    for (std::size_t k = 0; k < kIn; ++k)
      out[k] = hn::GetLane(vector(d, Channels<decltype(df), 1>{hn::Set(df, in[k])})[0]);
    return out;
  }
};

constexpr Layout planesOf(Layout layout) {
  return layout == Layout::C1   ? Layout::C1
         : layout == Layout::C3 ? Layout::P3
         : layout == Layout::C4 ? Layout::P4
                                : Layout::AP4;
}

template <class TS, Layout kLayout>
void ownRead(const void* src, std::size_t n, const dither::Scale& scale, dither::Planes values) {
  const TS* const sources[4] = {static_cast<const TS*>(src)};
  Pixels<kLayout, planesOf(kLayout), TS, Kel32f, 64>::row(ToValues<TS>{scale}, false, sources,
                                                          values, n);
}

template <class TD, Layout kLayout>
void ownWrite(dither::Planes numbers, std::size_t n, const dither::Levels& levels, void* dst) {
  const Kel32f* const sources[4] = {numbers[0], numbers[1], numbers[2], numbers[3]};
  TD* const results[4] = {static_cast<TD*>(dst)};
  Pixels<planesOf(kLayout), kLayout, Kel32f, TD, 64>::row(ToLevels<TD>{levels}, false, sources,
                                                          results, n);
}

// f(d, i) for vectors of the values from place i on, the last of one value each.
template <class F>
HWY_INLINE void inLanes(std::size_t n, const F& f) {
  const hn::ScalableTag<Kel32f> d;
  constexpr std::size_t kLanes = hn::MaxLanes(decltype(d)());
  std::size_t i = 0;
  for (; i + kLanes <= n; i += kLanes) f(d, i);
  for (; i < n; ++i) f(hn::CappedTag<Kel32f, 1>(), i);
}

void ownAddNoise(Kel32f* values, std::size_t n, std::size_t x, const dither::Noise& noise) {
  inLanes(n, [&](auto d, std::size_t i) KELI_LAMBDA {
    const hn::RebindToUnsigned<decltype(d)> du;
    const hn::RebindToSigned<decltype(d)> di;
    const auto golden = hn::Set(du, 0x9E3779B1);
    const auto column = hn::Iota(du, 0) + hn::Set(du, static_cast<std::uint32_t>(x + i));
    auto hash = column * golden + hn::Set(du, noise.seed);
    hash = (hash ^ hn::ShiftRight<15>(hash)) * golden;
    hash = (hash ^ hn::ShiftRight<13>(hash)) * golden;
    hash = hash ^ hn::ShiftRight<16>(hash);
    const auto centred = hn::BitCast(di, hn::ShiftRight<8>(hash)) - hn::Set(di, 1 << 23);
    const auto added = hn::ConvertTo(d, centred) * hn::Set(d, noise.amplitude * 0x1p-24f);
    const auto v = hn::LoadU(d, values + i) + added;
    hn::StoreU(greaterElse(lessElse(v, hn::Set(d, noise.full)), hn::Zero(d)), d, values + i);
  });
}

void ownCompare(Kel32f* values, std::size_t n, const dither::Levels& levels,
                const Kel32f (&thresholds)[4]) {
  Kel32f cycle[HWY_MAX_BYTES / 4 + 4];
  for (std::size_t i = 0; i < HWY_MAX_BYTES / 4 + 4; ++i) cycle[i] = thresholds[i % 4];
  inLanes(n, [&](auto d, std::size_t i) KELI_LAMBDA {
    const auto full = hn::Set(d, levels.full);
    const auto v = greaterElse(lessElse(hn::LoadU(d, values + i), full), hn::Zero(d));
    const auto k = hn::Trunc(v * hn::Set(d, levels.factor));
    const auto rest = v - k * hn::Set(d, levels.step);
    const auto above = hn::Lt(hn::LoadU(d, cycle + i % 4), rest);
    hn::StoreU(hn::IfThenElse(above, k + hn::Set(d, 1.f), k), d, values + i);
  });
}

template <class TS>
constexpr dither::ByLayout<dither::Read> kReads = {ownRead<TS, Layout::C1>, ownRead<TS, Layout::C3>,
                                                   ownRead<TS, Layout::C4>,
                                                   ownRead<TS, Layout::AC4>};
template <class TD>
constexpr dither::ByLayout<dither::Write> kWrites = {
    ownWrite<TD, Layout::C1>, ownWrite<TD, Layout::C3>, ownWrite<TD, Layout::C4>,
    ownWrite<TD, Layout::AC4>};

constexpr auto kRead8u = kReads<Kel8u>;
constexpr auto kRead16u = kReads<Kel16u>;
constexpr auto kRead16s = kReads<Kel16s>;
constexpr auto kRead32f = kReads<Kel32f>;
constexpr auto kWrite8u = kWrites<Kel8u>;
constexpr auto kWrite16u = kWrites<Kel16u>;
constexpr auto kWrite16s = kWrites<Kel16s>;
constexpr dither::ValueRows kValueRows = {ownAddNoise, ownCompare};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::dither {
template <>
KELI_SELECT_ROWS(ByLayout<Read>, kRead8u, readRows<Kel8u>)
template <>
KELI_SELECT_ROWS(ByLayout<Read>, kRead16u, readRows<Kel16u>)
template <>
KELI_SELECT_ROWS(ByLayout<Read>, kRead16s, readRows<Kel16s>)
template <>
KELI_SELECT_ROWS(ByLayout<Read>, kRead32f, readRows<Kel32f>)
template <>
KELI_SELECT_ROWS(ByLayout<Write>, kWrite8u, writeRows<Kel8u>)
template <>
KELI_SELECT_ROWS(ByLayout<Write>, kWrite16u, writeRows<Kel16u>)
template <>
KELI_SELECT_ROWS(ByLayout<Write>, kWrite16s, writeRows<Kel16s>)
KELI_SELECT_ROWS(ValueRows, kValueRows, valueRows)
}  // namespace keli::dither
#endif
