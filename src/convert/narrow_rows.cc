// Row kernels of Convert from integers to narrower ones: saturated.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "convert/narrow_rows.cc"
#include <hwy/foreach_target.h>
//
#include "convert/kernels-inl.h"
#include "core/scale.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class TD>
struct Saturate : NarrowingOp {
  template <class D, class TS>
  HWY_INLINE hn::Vec<D> vector(D d, Nothing, const TS* src) const {
    return narrowed(d, src, [](auto ds, auto v) KELI_LAMBDA {
      const hn::RebindToSigned<decltype(ds)> di;
      if constexpr (std::is_unsigned_v<TS>) {  // packs take their lanes as signed
        constexpr TS kMost = std::numeric_limits<TD>::max();
        return hn::BitCast(di, hn::Min(v, hn::Set(ds, kMost)));
      } else {
        return v;
      }
    });
  }
  template <class TS>
  HWY_INLINE TD scalar(std::size_t, TS v) const {
    return saturate<TD>(v);
  }
};

template <class TS, class TD>
constexpr convert::Kernels<> kNarrow = kKernels<Saturate<TD>, TS, TD>;

constexpr auto kNarrow16u8u = kNarrow<Kel16u, Kel8u>;
constexpr auto kNarrow16s8u = kNarrow<Kel16s, Kel8u>;
constexpr auto kNarrow32s8u = kNarrow<Kel32s, Kel8u>;
constexpr auto kNarrow32s8s = kNarrow<Kel32s, Kel8s>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::convert {
template <>
KELI_SELECT_ROWS(Kernels<>, kNarrow16u8u, convertRows<Kel16u, Kel8u>)
template <>
KELI_SELECT_ROWS(Kernels<>, kNarrow16s8u, convertRows<Kel16s, Kel8u>)
template <>
KELI_SELECT_ROWS(Kernels<>, kNarrow32s8u, convertRows<Kel32s, Kel8u>)
template <>
KELI_SELECT_ROWS(Kernels<>, kNarrow32s8s, convertRows<Kel32s, Kel8s>)
}  // namespace keli::convert
#endif
