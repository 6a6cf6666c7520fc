// Row kernels of MulScale and MulCScale: t = src1 * src2, dst = (t + 1 + (t >> bits)) >> bits,
// which is floor(t / max).
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/mul_scale_rows.cc"
#include <hwy/foreach_target.h>
//
#include "arith/operations.h"
#include "core/pointwise-inl.h"
#include "core/wide-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class T>
struct MulMax {
  static constexpr std::size_t kPeriod = 1;
  static constexpr std::size_t kUnroll = 4;
  static constexpr std::size_t kVectorBytes = sizeof(T) == 1 ? 64 : 32;
  static constexpr int kBits = 8 * sizeof(T);
  template <class D>
  HWY_INLINE Nothing at(D, std::size_t) const {
    return {};
  }
  template <class D, class V>
  HWY_INLINE V vector(D d, Nothing, V a, V b) const {
    if constexpr (sizeof(T) == 1) {
      // The rounding average is (t + 1 + (t >> 8)) >> 1.
      return narrow(d, mapWide(d, products(d, a, b), [&](auto t) KELI_LAMBDA {
                      return hn::ShiftRight<7>(hn::AverageRound(t, hn::ShiftRight<8>(t)));
                    }));
    } else {
      // The low half of t plus its high half plus 1 carries if the former two reach 65535.
      const V low = a * b, high = hn::MulHigh(a, b);
      const V full = hn::Set(d, 65535);
      return high - hn::VecFromMask(d, hn::Eq(hn::SaturatedAdd(low, high), full));
    }
  }
  HWY_INLINE T scalar(std::size_t, T a, T b) const {
    const std::uint32_t t = std::uint32_t{a} * b;
    return static_cast<T>((t + 1 + (t >> kBits)) >> kBits);
  }
};

template <class T, class Keep>
void ownMulScale(const Band<2>& b, int) {
  mapTwoImages<T, Keep>(b, MulMax<T>());
}

template <class T, std::size_t kCycle, class Keep>
void ownMulCScale(const Band<1>& b, const void* constants, int) {
  mapImageAndConstant<T, kCycle, Keep>(b, constants, MulMax<T>());
}

template <class T>
constexpr arith::TwoImages kTwoImages = {ownMulScale<T, KeepNone>,
                                         ownMulScale<T, KeepOthers<4, 3>>};
template <class T>
constexpr arith::ImageAndConstant kConstant = {ownMulCScale<T, 4, KeepNone>,
                                               ownMulCScale<T, 3, KeepNone>,
                                               ownMulCScale<T, 4, KeepOthers<4, 3>>};

constexpr arith::TwoImages kMulScale8u = kTwoImages<Kel8u>;
constexpr arith::TwoImages kMulScale16u = kTwoImages<Kel16u>;
constexpr arith::ImageAndConstant kMulCScale8u = kConstant<Kel8u>;
constexpr arith::ImageAndConstant kMulCScale16u = kConstant<Kel16u>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::arith {
template <>
KELI_SELECT_ROWS(TwoImages, kMulScale8u, twoImages<MulScale, Kel8u>)
template <>
KELI_SELECT_ROWS(TwoImages, kMulScale16u, twoImages<MulScale, Kel16u>)
template <>
KELI_SELECT_ROWS(ImageAndConstant, kMulCScale8u, imageAndConstant<MulScale, Kel8u>)
template <>
KELI_SELECT_ROWS(ImageAndConstant, kMulCScale16u, imageAndConstant<MulScale, Kel16u>)
}  // namespace keli::arith
#endif
