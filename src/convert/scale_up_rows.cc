// Row kernels of Scale from 8u to wider types: src * (most - least) / 255 + least. 2^16 - 1 is
// 255 * 257 and 2^32 - 1 is 255 * 16843009, so integers are exact; adding least = -2^(bits - 1)
// flips the highest bit. To floats: src * k + vMin, two roundings.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "convert/scale_up_rows.cc"
#include <hwy/foreach_target.h>
//
#include "convert/kernels-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// For every byte of a vector, the byte of the source that it repeats.
template <std::size_t kRepeats>
struct RepeatedPlaces {
  static constexpr std::array<Kel8u, 32> make() {
    std::array<Kel8u, 32> a{};
    for (std::size_t i = 0; i < a.size(); ++i) a[i] = static_cast<Kel8u>(i / kRepeats);
    return a;
  }
  static constexpr std::array<Kel8u, 32> kPlaces = make();
};

// As many bytes as D has lanes, each repeated in all bytes of its lane: a product with 1 + 2^8 +
// ... by one shuffle. The bytes are loaded into every 16 of the vector.
template <class D>
HWY_INLINE hn::Vec<D> repeated(D d, const Kel8u* src) {
  constexpr std::size_t kLanes = hn::MaxLanes(D()), kRepeats = sizeof(hn::TFromD<D>);
  const hn::Repartition<Kel8u, D> d8;
  const auto places = hn::LoadU(d8, RepeatedPlaces<kRepeats>::kPlaces.data());
  if constexpr (kLanes == 16) {
    return hn::BitCast(d, hn::TableLookupBytes(hn::LoadDup128(d8, src), places));
  } else {
    using Bytes = hwy::UnsignedFromSize<kLanes>;
    const Bytes bytes = load(reinterpret_cast<const Bytes*>(src));
    const auto all = hn::BitCast(d8, hn::Set(hn::Repartition<Bytes, D>(), bytes));
    return hn::BitCast(d, hn::TableLookupBytes(all, places));
  }
}

// T: the unsigned type of the destination's width.
template <class T, bool kSigned>
struct ScaleUp : WideningOp {
  static constexpr bool kLoads = true;
  static constexpr T kFactor = static_cast<T>(~T{0}) / 255;
  static constexpr T kLeast = kSigned ? static_cast<T>(T{1} << (8 * sizeof(T) - 1)) : T{0};

  template <class D>
  HWY_INLINE hn::Vec<D> vector(D d, Nothing, const Kel8u* src) const {
    return hn::Xor(repeated(d, src), hn::Set(d, kLeast));
  }
  HWY_INLINE T scalar(std::size_t, Kel8u v) const {
    return static_cast<T>(static_cast<T>(v * kFactor) ^ kLeast);
  }
};

struct ToRange : WideningOp {
  static constexpr std::size_t kVectorBytes = 64;
  Kel32f factor, least;

  HWY_INLINE ToRange(Kel32f vMin, Kel32f vMax) : factor((vMax - vMin) / 255), least(vMin) {}

  template <class D, class V>
  HWY_INLINE hn::Vec<D> vector(D d, Nothing, V v) const {
    const auto x = hn::ConvertTo(d, hn::PromoteTo(hn::Rebind<std::int32_t, D>(), v));
    return x * hn::Set(d, factor) + hn::Set(d, least);
  }
  HWY_INLINE Kel32f scalar(std::size_t, Kel8u v) const {
    return static_cast<Kel32f>(v) * factor + least;
  }
};

constexpr auto kScale8u16u = kKernels<ScaleUp<std::uint16_t, false>, Kel8u, std::uint16_t>;
constexpr auto kScale8u16s = kKernels<ScaleUp<std::uint16_t, true>, Kel8u, std::uint16_t>;
constexpr auto kScale8u32s = kKernels<ScaleUp<std::uint32_t, true>, Kel8u, std::uint32_t>;
constexpr auto kToRange = kKernels<ToRange, Kel8u, Kel32f, Kel32f, Kel32f>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::convert {
template <>
KELI_SELECT_ROWS(Kernels<>, kScale8u16u, scaleRows<Kel8u, Kel16u>)
template <>
KELI_SELECT_ROWS(Kernels<>, kScale8u16s, scaleRows<Kel8u, Kel16s>)
template <>
KELI_SELECT_ROWS(Kernels<>, kScale8u32s, scaleRows<Kel8u, Kel32s>)
KELI_SELECT_ROWS(RangeRows, kToRange, toRangeRows)
}  // namespace keli::convert
#endif
