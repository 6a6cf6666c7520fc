// Row kernels of Add, Sub, Mul and their forms with a constant, of 32f: one IEEE 754 operation
// each.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/float_rows.cc"
#include <hwy/foreach_target.h>
//
#include "arith/floating-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class Operation, class Keep>
void ownFloating(const Band<2>& b, int) {
  mapTwoImages<float, Keep>(b, Floating<Operation>());
}

template <class Operation, std::size_t kCycle, class Keep>
void ownFloatingConstant(const Band<1>& b, const void* constants, int) {
  mapImageAndConstant<float, kCycle, Keep>(b, constants, Floating<Operation>());
}

template <class Operation>
constexpr arith::TwoImages kTwoImages = {ownFloating<Operation, KeepNone>,
                                         ownFloating<Operation, KeepOthers<4, 3>>};
template <class Operation>
constexpr arith::ImageAndConstant kConstant = {ownFloatingConstant<Operation, 4, KeepNone>,
                                               ownFloatingConstant<Operation, 3, KeepNone>,
                                               ownFloatingConstant<Operation, 4, KeepOthers<4, 3>>};

constexpr arith::TwoImages kAdd = kTwoImages<arith::Add>;
constexpr arith::TwoImages kSub = kTwoImages<arith::Sub>;
constexpr arith::TwoImages kMul = kTwoImages<arith::Mul>;
constexpr arith::ImageAndConstant kAddC = kConstant<arith::Add>;
constexpr arith::ImageAndConstant kSubC = kConstant<arith::Sub>;
constexpr arith::ImageAndConstant kMulC = kConstant<arith::Mul>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::arith {
template <>
KELI_SELECT_ROWS(TwoImages, kAdd, twoImages<Add, Kel32f>)
template <>
KELI_SELECT_ROWS(TwoImages, kSub, twoImages<Sub, Kel32f>)
template <>
KELI_SELECT_ROWS(TwoImages, kMul, twoImages<Mul, Kel32f>)
template <>
KELI_SELECT_ROWS(ImageAndConstant, kAddC, imageAndConstant<Add, Kel32f>)
template <>
KELI_SELECT_ROWS(ImageAndConstant, kSubC, imageAndConstant<Sub, Kel32f>)
template <>
KELI_SELECT_ROWS(ImageAndConstant, kMulC, imageAndConstant<Mul, Kel32f>)
}  // namespace keli::arith
#endif
