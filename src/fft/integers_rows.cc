// Row kernels between one channel of integers and floats: blocks of samples through vectors, from
// and to pixels of any number of channels.
#include "fft/integers_rows.h"

#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "fft/integers_rows.cc"
#include <hwy/foreach_target.h>
//
#include <algorithm>
#include <cmath>

#include "core/simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

constexpr std::size_t kSamples = 64;  // of a block

// Every `from`th sample of each row to every `to`th one, by f(in, out) on whole blocks.
template <class TS, class TD, class F>
HWY_INLINE void mapBlocks(const Band<1>& b, std::size_t from, std::size_t to, const F& f) {
  for (std::size_t y = 0; y < b.rows; ++y) {
    const TS* const src = b.srcRow<TS>(0, y);
    TD* const dst = b.dstRow<TD>(y);
    for (std::size_t x = 0; x < b.n; x += kSamples) {
      const std::size_t count = std::min(kSamples, b.n - x);
      HWY_ALIGN TS in[kSamples] = {};
      HWY_ALIGN TD out[kSamples];
      if (from == 1) {
        std::memcpy(in, src + x, count * sizeof(TS));
      } else {
        for (std::size_t i = 0; i < count; ++i) in[i] = load(src + from * (x + i));
      }
      f(in, out);
      if (to == 1) {
        std::memcpy(dst + x, out, count * sizeof(TD));
      } else {
        for (std::size_t i = 0; i < count; ++i) store(out[i], dst + to * (x + i));
      }
    }
  }
}

using Floats = hn::ScalableTag<float>;
using Integers = hn::RebindToSigned<Floats>;
using Bytes = hn::Rebind<std::uint8_t, Floats>;

template <class TS>
void ownFrom(const Band<1>& b, int channels) {
  mapBlocks<TS, Kel32f>(b, static_cast<std::size_t>(channels), 1,
                        [](const TS* in, Kel32f* out) HWY_ATTR {
                          for (std::size_t i = 0; i < kSamples; i += hn::MaxLanes(Floats())) {
                            hn::Vec<Integers> v;
                            if constexpr (sizeof(TS) == 1) {
                              v = hn::PromoteTo(Integers(), hn::Load(Bytes(), in + i));
                            } else {
                              v = hn::Load(Integers(), in + i);
                            }
                            hn::Store(hn::ConvertTo(Floats(), v), Floats(), out + i);
                          }
                        });
}

HWY_INLINE void storeInteger(hn::Vec<Floats> v, Kel32s* out) {
  const Integers di;
  const auto beyond = hn::Ge(v, hn::Set(Floats(), 2147483648.f));
  const auto most = hn::Set(di, std::numeric_limits<Kel32s>::max());
  hn::Store(hn::IfThenElse(hn::RebindMask(di, beyond), most, roundToInt(di, v)), di, out);
}
HWY_INLINE void storeInteger(hn::Vec<Floats> v, Kel8u* out) {
  const auto within = hn::Min(hn::Max(v, hn::Zero(Floats())), hn::Set(Floats(), 255.f));
  hn::Store(hn::DemoteTo(Bytes(), roundToInt(Integers(), within)), Bytes(), out);
}

// A power of two changes no digit of a float that is not far too small to matter; what the first
// factor cannot hold, all but the second makes saturate.
template <class TD>
void ownTo(const Band<1>& b, int channels, int scaleFactor) {
  const int down = std::clamp(scaleFactor, -127, 126);
  const int rest = scaleFactor < down ? std::max(scaleFactor - down, -127) : 0;
  const float factor = std::ldexp(1.f, -down), more = std::ldexp(1.f, -rest);
  mapBlocks<Kel32f, TD>(b, 1, static_cast<std::size_t>(channels),
                        [&](const Kel32f* in, TD* out) HWY_ATTR {
                          const auto f = hn::Set(Floats(), factor), m = hn::Set(Floats(), more);
                          for (std::size_t i = 0; i < kSamples; i += hn::MaxLanes(Floats()))
                            storeInteger(hn::Load(Floats(), in + i) * f * m, out + i);
                        });
}

const fft::IntegersRows kIntegersRows = {ownFrom<Kel8u>, ownFrom<Kel32s>, ownTo<Kel32s>,
                                         ownTo<Kel8u>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::fft {
KELI_SELECT_ROWS(IntegersRows, kIntegersRows, integersRows)
}  // namespace keli::fft
#endif
