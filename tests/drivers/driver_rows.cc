#include "drivers/driver_rows.h"

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "drivers/driver_rows.cc"
#include <hwy/foreach_target.h>
//
#include "core/map-inl.h"
#include "core/pixels-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <std::size_t kVectors>
struct PlainOp {
  static constexpr std::size_t kPeriod = 1;
  static constexpr std::size_t kUnroll = kVectors;
  template <class D>
  HWY_INLINE Nothing at(D, std::size_t) const {
    return {};
  }
};

template <std::size_t kVectors>
struct Invert : PlainOp<kVectors> {
  template <class D, class V>
  HWY_INLINE V vector(D, Nothing, V a) const {
    return hn::Not(a);
  }
  std::uint8_t scalar(std::size_t, std::uint8_t a) const {
    return static_cast<std::uint8_t>(255 - a);
  }
};

template <class TD>
struct Widen : PlainOp<4> {
  template <class D, class V>
  HWY_INLINE hn::Vec<D> vector(D d, Nothing, V a) const {
    if constexpr (hwy::IsFloat<TD>()) {
      return hn::ConvertTo(d, hn::PromoteTo(hn::Rebind<std::int32_t, D>(), a));
    } else {
      return hn::PromoteTo(d, a);
    }
  }
  template <class T>
  TD scalar(std::size_t, T a) const {
    return static_cast<TD>(a);
  }
};

struct Narrow : PlainOp<2> {
  template <class D, class V>
  HWY_INLINE hn::Vec<D> vector(D d, Nothing, V a) const {
    return hn::DemoteTo(d, a);
  }
  std::uint8_t scalar(std::size_t, std::int16_t a) const {
    return static_cast<std::uint8_t>(a < 0 ? 0 : a > 255 ? 255 : a);
  }
};

struct Negate : PlainOp<2> {
  template <class D, class V>
  HWY_INLINE V vector(D, Nothing, V a) const {
    return hn::Neg(a);
  }
  double scalar(std::size_t, double a) const { return -a; }
};

template <class T>
T saturatedSum(T a, T b) {
  if constexpr (hwy::IsFloat<T>()) {
    return a + b;
  } else {
    const int sum = a + b, low = hwy::LimitsMin<T>(), high = hwy::LimitsMax<T>();
    return static_cast<T>(sum < low ? low : sum > high ? high : sum);
  }
}

struct Sum : PlainOp<4> {
  template <class D, class V>
  HWY_INLINE V vector(D, Nothing, V a, V b) const {
    if constexpr (hwy::IsFloat<hn::TFromD<D>>()) {
      return hn::Add(a, b);
    } else {
      return hn::SaturatedAdd(a, b);
    }
  }
  template <class T>
  T scalar(std::size_t, T a, T b) const {
    return saturatedSum(a, b);
  }
};

// constants: a cycle of kChannels, repeated for the length of a vector and a cycle.
template <class T, std::size_t kChannels>
struct AddC {
  static constexpr std::size_t kPeriod = kChannels;
  static constexpr std::size_t kUnroll = kChannels == 3 ? 3 : 4;
  const T* constants;
  template <class D>
  HWY_INLINE hn::Vec<D> at(D d, std::size_t phase) const {
    return hn::LoadU(d, constants + phase);
  }
  template <class D, class V>
  HWY_INLINE V vector(D d, V c, V a) const {
    return Sum().vector(d, Nothing(), a, c);
  }
  T scalar(std::size_t phase, T a) const { return saturatedSum(a, constants[phase]); }
};

struct Rotate {
  template <class D, class In>
  HWY_INLINE In vector(D, const In& in) const {
    return {in[1], in[2], in[0]};
  }
  template <class T>
  std::array<T, 3> scalar(const std::array<T, 3>& in) const {
    return {in[1], in[2], in[0]};
  }
};

struct Gray {
  template <class D, class In>
  HWY_INLINE std::array<hn::Vec<D>, 1> vector(D, const In& in) const {
    return {hn::Add(hn::Add(in[0], in[1]), in[2])};
  }
  std::array<float, 1> scalar(const std::array<float, 3>& in) const {
    return {in[0] + in[1] + in[2]};
  }
};

template <class TS, class TD, class Op, class Keep = KeepNone>
void ownMap(const Band<1>& b) {
  mapRows<TS, TD, Keep>(b, Op());
}

template <class T>
void ownSum(const Band<2>& b) {
  mapRows<T, T, T>(b, Sum());
}

template <class T, std::size_t kChannels>
void ownAddC(const Band<1>& b, const void* constants) {
  mapRows<T, T>(b, AddC<T, kChannels>{static_cast<const T*>(constants)});
}

template <Layout kFrom, Layout kTo, class T, class Op>
void ownPixels(const PlanesBand& b) {
  mapPixels<kFrom, kTo, T, T>(b, Op());
}

const test::DriverRows kDriverRows = {
    ownMap<std::uint8_t, std::uint8_t, Invert<4>>,
    ownMap<std::uint8_t, std::uint8_t, Invert<4>, KeepOthers<4, 3>>,
    ownMap<std::uint8_t, std::uint8_t, Invert<3>, KeepOthers<3, 1>>,
    ownMap<std::uint8_t, std::int16_t, Widen<std::int16_t>>,
    ownMap<std::int16_t, float, Widen<float>>,
    ownMap<std::int16_t, std::uint8_t, Narrow>,
    ownMap<double, double, Negate>,
    ownSum<std::uint8_t>,
    ownSum<float>,
    ownAddC<std::uint8_t, 1>,
    ownAddC<std::uint8_t, 3>,
    ownAddC<std::int16_t, 4>,
    ownAddC<float, 3>,
    ownPixels<Layout::C3, Layout::C3, std::uint8_t, Rotate>,
    ownPixels<Layout::C3, Layout::P3, std::uint8_t, Rotate>,
    ownPixels<Layout::P3, Layout::AC4, std::uint8_t, Rotate>,
    ownPixels<Layout::AC4, Layout::C3, std::uint16_t, Rotate>,
    ownPixels<Layout::C3, Layout::C1, float, Gray>,
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::test {
KELI_SELECT_ROWS(DriverRows, kDriverRows, driverRows)
}  // namespace keli::test
#endif
