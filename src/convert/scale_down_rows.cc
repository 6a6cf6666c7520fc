// Row kernels of Scale to 8u. Of integers the nearest to t / 257 (16 bits) and t / 16843009 (32
// bits), t = src - least: these divisors are 65535 / 255 and (2^32 - 1) / 255, and odd, so there
// are no ties. Of floats x * k + b, two roundings, to the nearest integer.
#include <cmath>

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "convert/scale_down_rows.cc"
#include <hwy/foreach_target.h>
//
#include "convert/kernels-inl.h"
#include "core/scale.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// The nearest to t / 257 is (t + 128) / 257, fraction cut off. With u = t + 128 < 2^16 that is
// (u * 65281) >> 24: 257 * 65281 = 2^24 + 1, so the quotient comes out too large by
// u / (257 * 2^24) < 1 / 2^16, less than what u / 257 lacks to the next integer. t + 128 saturates
// from 65408 on, where the nearest is 255 and 65535 / 257 still gives it.
struct ScaleDown16 : NarrowingOp {
  template <class D, class TS>
  HWY_INLINE hn::Vec<D> vector(D d, Nothing, const TS* src) const {
    return narrowed(d, src, [](auto ds, auto v) KELI_LAMBDA {
      const hn::RebindToUnsigned<decltype(ds)> du;
      auto t = hn::BitCast(du, v);
      if constexpr (std::is_signed_v<TS>) t = hn::Xor(t, hn::Set(du, 0x8000));
      const auto u = hn::SaturatedAdd(t, hn::Set(du, 128));
      const auto quotient = hn::ShiftRight<8>(hn::MulHigh(u, hn::Set(du, 65281)));
      return hn::BitCast(hn::RebindToSigned<decltype(ds)>(), quotient);
    });
  }
  template <class TS>
  HWY_INLINE Kel8u scalar(std::size_t, TS v) const {
    return static_cast<Kel8u>((v - std::numeric_limits<TS>::min() + 128) / 257);
  }
};

// (t - (t >> 8) + 2^23 - 1 + (t >> 31)) >> 24. It never falls as t rises, so it is right if it is
// at both sides of each step, from q to q + 1 at T = 0x01010101 * q + 0x808081 (16843009 * (q + 1 /
// 2) rounded up). There t - (t >> 8) is 2^24 * q + 2^23 + 1, less 1 from q = 127 on, where the
// shift carries; for T - 1 it is 2^24 * q + 2^23, less 1 from q = 128 on. So what is added must be
// 2^23 - 1 up to T - 1 for q = 127 and 2^23 from T for q = 127 on, which is 2^31. In terms of src =
// t - 2^31:
// ((src - (src >> 8) + (src >> 31)) >> 24) + 128, where nothing overflows.
struct ScaleDown32 : NarrowingOp {
  template <class D>
  HWY_INLINE hn::Vec<D> vector(D d, Nothing, const Kel32s* src) const {
    const hn::RebindToSigned<D> di;
    const auto signedResult = narrowed(di, src, [](auto, auto v) KELI_LAMBDA {
      return hn::ShiftRight<24>(v - hn::ShiftRight<8>(v) + hn::ShiftRight<31>(v));
    });
    return hn::Xor(hn::BitCast(d, signedResult), hn::Set(d, 0x80));
  }
  HWY_INLINE Kel8u scalar(std::size_t, Kel32s v) const {
    const std::int64_t t = std::int64_t{v} + (std::int64_t{1} << 31);
    return static_cast<Kel8u>((t + 16843009 / 2) / 16843009);
  }
};

// x * k + b of x within the range, two roundings. kFull: the ends give 0 and 255 or results beyond;
// samples below the range then need no bound, as the packs saturate their results. Results that are
// infinite or no number give 0: the conversion of the processor makes -2^31 of them.
template <bool kFull>
struct FromRange : NarrowingOp {
  Kel32f least, most, factor, shift;

  HWY_INLINE FromRange(Kel32f vMin, Kel32f vMax)
      : least(vMin), most(vMax), factor(255 / (vMax - vMin)), shift(-vMin * factor) {}

  template <class D>
  HWY_INLINE hn::Vec<D> vector(D d, Nothing, const Kel32f* src) const {
    return narrowed(d, src, [&](auto df, auto v) KELI_LAMBDA {
      auto x = lessElse(v, hn::Set(df, most));
      if constexpr (!kFull) x = greaterElse(x, hn::Set(df, least));
      const hn::RebindToSigned<decltype(df)> di;
      return roundToInt(di, x * hn::Set(df, factor) + hn::Set(df, shift));
    });
  }
  HWY_INLINE Kel8u scalar(std::size_t, Kel32f v) const {
    v = v < most ? v : most;
    v = v > least ? v : least;
    const Kel32f result = v * factor + shift;
    if (!std::isfinite(result) || result < 0) return 0;
    return result > 255 ? Kel8u{255} : static_cast<Kel8u>(nearestInteger(result));
  }
};

// Products with a factor that is above 0 and sums do not fall as a sample rises.
template <class Keep>
void ownFromRange(const Band<1>& b, Kel32f vMin, Kel32f vMax) {
  const FromRange<false> op(vMin, vMax);
  const Kel32f first = vMin * op.factor + op.shift, last = vMax * op.factor + op.shift;
  if (first <= 0 && last >= 255 && std::isfinite(first) && std::isfinite(last)) {
    mapRows<Kel32f, Kel8u, Keep>(b, FromRange<true>(vMin, vMax));
  } else {
    mapRows<Kel32f, Kel8u, Keep>(b, op);
  }
}

constexpr auto kScale16u8u = kKernels<ScaleDown16, Kel16u, Kel8u>;
constexpr auto kScale16s8u = kKernels<ScaleDown16, Kel16s, Kel8u>;
constexpr auto kScale32s8u = kKernels<ScaleDown32, Kel32s, Kel8u>;
constexpr convert::RangeRows kFromRange = {ownFromRange<KeepNone>, ownFromRange<KeepOthers<4, 3>>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::convert {
template <>
KELI_SELECT_ROWS(Kernels<>, kScale16u8u, scaleRows<Kel16u, Kel8u>)
template <>
KELI_SELECT_ROWS(Kernels<>, kScale16s8u, scaleRows<Kel16s, Kel8u>)
template <>
KELI_SELECT_ROWS(Kernels<>, kScale32s8u, scaleRows<Kel32s, Kel8u>)
KELI_SELECT_ROWS(RangeRows, kFromRange, fromRangeRows)
}  // namespace keli::convert
#endif
