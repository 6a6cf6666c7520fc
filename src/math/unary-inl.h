// Kernels of one operand over the drivers of map-inl.h.
#if defined(KELI_MATH_UNARY_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_MATH_UNARY_INL_H_
#undef KELI_MATH_UNARY_INL_H_
#else
#define KELI_MATH_UNARY_INL_H_
#endif

#include "core/map-inl.h"
#include "math/operations.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// What operations without constants have in common.
struct UnaryOp {
  static constexpr std::size_t kPeriod = 1;
  static constexpr std::size_t kUnroll = 4;
  template <class D>
  HWY_INLINE Nothing at(D, std::size_t) const {
    return {};
  }
};

// Kernels of operations that meet no special argument.
template <class T, class Keep, class Op>
HWY_INLINE KelStatus quietly(const Band<1>& b, const Op& op) {
  mapRows<T, T, Keep>(b, op);
  return kelStatusOk;
}

// Logarithms met an argument of zero, or one below.
struct LnFlags {
  bool zero = false;
  bool negative = false;

  // A negative argument is the graver fault: its result is no number at all.
  KelStatus status() const {
    return negative ? kelStatusNegativeLogWarning : zero ? kelStatusZeroLogWarning : kelStatusOk;
  }
};

// Runs row(y, flags) for every row; the status of the first that raised a flag.
template <class Row>
HWY_INLINE KelStatus firstOfRows(const Band<1>& b, const Row& row) {
  KelStatus first = kelStatusOk;
  for (std::size_t y = 0; y < b.rows; ++y) {
    LnFlags flags;
    row(y, flags);
    if (first == kelStatusOk) first = flags.status();
  }
  if (b.streams) hwy::FlushStream();
  return first;
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
