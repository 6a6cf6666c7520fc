// Row kernels of Convert to types that hold all values of the source's.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "convert/widen_rows.cc"
#include <hwy/foreach_target.h>
//
#include "convert/kernels-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class TD>
struct Widen : WideningOp {
  template <class D, class V>
  HWY_INLINE hn::Vec<D> vector(D d, Nothing, V v) const {
    if constexpr (std::is_floating_point_v<TD>) {
      return hn::ConvertTo(d, hn::PromoteTo(hn::Rebind<std::int32_t, D>(), v));
    } else {
      return hn::PromoteTo(d, v);
    }
  }
  template <class T>
  HWY_INLINE TD scalar(std::size_t, T v) const {
    return static_cast<TD>(v);
  }
};

template <class TS, class TD>
constexpr convert::Kernels<> kWiden = kKernels<Widen<TD>, TS, TD>;

constexpr auto kWiden8u16u = kWiden<Kel8u, Kel16u>;
constexpr auto kWiden8u32s = kWiden<Kel8u, Kel32s>;
constexpr auto kWiden8s32s = kWiden<Kel8s, Kel32s>;
constexpr auto kWiden8u32f = kWiden<Kel8u, Kel32f>;
constexpr auto kWiden8s32f = kWiden<Kel8s, Kel32f>;
constexpr auto kWiden16u32f = kWiden<Kel16u, Kel32f>;
constexpr auto kWiden16s32f = kWiden<Kel16s, Kel32f>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::convert {
template <>
KELI_SELECT_ROWS(Kernels<>, kWiden8u16u, convertRows<Kel8u, Kel16u>)
template <>
KELI_SELECT_ROWS(Kernels<>, kWiden8u16u, convertRows<Kel8u, Kel16s>)  // the same bits
template <>
KELI_SELECT_ROWS(Kernels<>, kWiden8u32s, convertRows<Kel8u, Kel32s>)
template <>
KELI_SELECT_ROWS(Kernels<>, kWiden8s32s, convertRows<Kel8s, Kel32s>)
template <>
KELI_SELECT_ROWS(Kernels<>, kWiden8u32f, convertRows<Kel8u, Kel32f>)
template <>
KELI_SELECT_ROWS(Kernels<>, kWiden8s32f, convertRows<Kel8s, Kel32f>)
template <>
KELI_SELECT_ROWS(Kernels<>, kWiden16u32f, convertRows<Kel16u, Kel32f>)
template <>
KELI_SELECT_ROWS(Kernels<>, kWiden16s32f, convertRows<Kel16s, Kel32f>)
}  // namespace keli::convert
#endif
