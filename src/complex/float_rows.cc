// Row kernels of Add, Sub, Mul and their forms with a constant, of 32fc: every product, sum and
// difference rounded once, as IEEE 754 defines it. Parts of a product that are not a number have
// one and the same bit pattern: which operand's they would have differs with the instructions.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "complex/float_rows.cc"
#include <hwy/foreach_target.h>
//
#include "arith/floating-inl.h"
#include "complex/floating-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

using arith::Add;
using arith::Mul;
using arith::Sub;

struct FloatingProduct {
  static constexpr std::size_t kPeriod = 1;
  static constexpr std::size_t kUnroll = 2;

  template <class D>
  HWY_INLINE Nothing at(D, std::size_t) const {
    return {};
  }
  template <class D, class V>
  HWY_INLINE V vector(D d, Nothing, V a, V b) const {
    const PartTag<Kel32fc, D> dp;
    const auto x = hn::BitCast(dp, b), y = hn::BitCast(dp, a);
    const auto byRe = x * hn::DupEven(y);
    const auto byIm = hn::BitCast(dp, exchanged(d, b)) * dupOdd(y);
    return hn::BitCast(d, oneNan(dp, byRe + evenNegated(dp, byIm)));
  }
  HWY_INLINE BitsOf<Kel32fc> scalar(std::size_t, BitsOf<Kel32fc> a, BitsOf<Kel32fc> b) const {
    const Kel32fc x = fromBits<Kel32fc>(a), y = fromBits<Kel32fc>(b);
    return toBits(Kel32fc{oneNan(x.re * y.re - x.im * y.im), oneNan(x.re * y.im + x.im * y.re)});
  }
};

template <class Op>
struct Only {
  template <bool, class Run>
  static HWY_INLINE void run(int, const Run& f) {
    f(Op());
  }
};

template <class Operation>
using FloatingSums = Only<PartByPart<Kel32fc, Floating<Operation>>>;

constexpr arith::TwoImages kAdd = kTwoImages<Kel32fc, FloatingSums<Add>>;
constexpr arith::TwoImages kSub = kTwoImages<Kel32fc, FloatingSums<Sub>>;
constexpr arith::TwoImages kMul = kTwoImages<Kel32fc, Only<FloatingProduct>>;
constexpr arith::ImageAndConstant kAddC = kImageAndConstant<Kel32fc, FloatingSums<Add>>;
constexpr arith::ImageAndConstant kSubC = kImageAndConstant<Kel32fc, FloatingSums<Sub>>;
constexpr arith::ImageAndConstant kMulC = kImageAndConstant<Kel32fc, Only<FloatingProduct>>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::arith {
template <>
KELI_SELECT_ROWS(TwoImages, kAdd, twoImages<Add, Kel32fc>)
template <>
KELI_SELECT_ROWS(TwoImages, kSub, twoImages<Sub, Kel32fc>)
template <>
KELI_SELECT_ROWS(TwoImages, kMul, twoImages<Mul, Kel32fc>)
template <>
KELI_SELECT_ROWS(ImageAndConstant, kAddC, imageAndConstant<Add, Kel32fc>)
template <>
KELI_SELECT_ROWS(ImageAndConstant, kSubC, imageAndConstant<Sub, Kel32fc>)
template <>
KELI_SELECT_ROWS(ImageAndConstant, kMulC, imageAndConstant<Mul, Kel32fc>)
}  // namespace keli::arith
#endif
