// Row kernels of Add, AddC, Sub and SubC of 16sc: those of 16s, part by part.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "complex/sum_16sc_rows.cc"
#include <hwy/foreach_target.h>
//
#include "arith/scaled-inl.h"
#include "complex/samples-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class Operation>
struct Sums16 {
  template <bool kFlat, class Run>
  static HWY_INLINE void run(int sf, const Run& f) {
    forScaleFactor<Operation, Kel16s, kFlat>(sf, [&](const auto& op) KELI_LAMBDA {
      f(PartByPart<Kel16sc, std::decay_t<decltype(op)>>{op});
    });
  }
};

constexpr arith::TwoImages kAdd = kTwoImages<Kel16sc, Sums16<Add>>;
constexpr arith::TwoImages kSub = kTwoImages<Kel16sc, Sums16<Sub>>;
constexpr arith::ImageAndConstant kAddC = kImageAndConstant<Kel16sc, Sums16<Add>>;
constexpr arith::ImageAndConstant kSubC = kImageAndConstant<Kel16sc, Sums16<Sub>>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::arith {
template <>
KELI_SELECT_ROWS(TwoImages, kAdd, twoImages<Add, Kel16sc>)
template <>
KELI_SELECT_ROWS(TwoImages, kSub, twoImages<Sub, Kel16sc>)
template <>
KELI_SELECT_ROWS(ImageAndConstant, kAddC, imageAndConstant<Add, Kel16sc>)
template <>
KELI_SELECT_ROWS(ImageAndConstant, kSubC, imageAndConstant<Sub, Kel16sc>)
}  // namespace keli::arith
#endif
