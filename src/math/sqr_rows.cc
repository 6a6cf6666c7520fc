// Row kernels of Sqr: src * src, of 8u, 16s and 32f; integers scaled down use the kernels of
// products.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "math/sqr_rows.cc"
#include <hwy/foreach_target.h>
//
#include "arith/scaled-inl.h"
#include "core/byte_table-inl.h"
#include "math/square-inl.h"
#include "math/tables.h"
#include "math/unary-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// An operation of two operands with its one operand twice.
template <class Op>
struct Twice {
  static constexpr std::size_t kPeriod = 1;
  static constexpr std::size_t kUnroll = 4;
  static constexpr std::size_t kVectorBytes = map::kMostBytes<Op>;
  Op op;

  template <class D>
  HWY_INLINE auto at(D d, std::size_t phase) const {
    return op.at(d, phase);
  }
  template <class D, class K, class V>
  HWY_INLINE V vector(D d, const K& k, V v) const {
    return op.vector(d, k, v, v);
  }
  template <class T>
  HWY_INLINE T scalar(std::size_t phase, T v) const {
    return op.scalar(phase, v, v);
  }
};

// Scaled down by 1 and more: the kernels of products.
template <class T, class How, class Keep>
KelStatus squareDown(const Band<1>& b, int sf) {
  return quietly<T, Keep>(b, Twice<Scaled<Mul, T, How>>{{sf}});
}

template <class Keep>
KelStatus ownSqr8u(const Band<1>& b, int sf) {
  if (sf <= 0) return quietly<Kel8u, Keep>(b, SquareUpOf8u(sf));
  if constexpr (kPermutesBytes) {
    // 1.6 times as fast as products.
    LookUpBytes op;
    op.table = math::kSqrTables(sf);
    return quietly<Kel8u, Keep>(b, op);
  } else {
    if (sf == 1) return squareDown<Kel8u, ByOne, Keep>(b, sf);
    return squareDown<Kel8u, Down, Keep>(b, sf);
  }
}

template <class Keep>
KelStatus ownSqr16s(const Band<1>& b, int sf) {
  if (sf <= 0) return quietly<Kel16s, Keep>(b, SquareUp<Kel16s>(sf));
  if (sf == 1) return quietly<Kel16s, Keep>(b, SquareHalf<Kel16s>());
  return squareDown<Kel16s, Down, Keep>(b, sf);
}

struct SqrReal : UnaryOp {
  template <class D, class V>
  HWY_INLINE V vector(D, Nothing, V v) const {
    return v * v;
  }
  HWY_INLINE Kel32f scalar(std::size_t, Kel32f v) const { return v * v; }
};

template <class Keep>
KelStatus ownSqr32f(const Band<1>& b, int) {
  return quietly<Kel32f, Keep>(b, SqrReal());
}

constexpr math::Unary kSqr8u = {ownSqr8u<KeepNone>, ownSqr8u<KeepOthers<4, 3>>};
constexpr math::Unary kSqr16s = {ownSqr16s<KeepNone>, ownSqr16s<KeepOthers<4, 3>>};
constexpr math::Unary kSqr32f = {ownSqr32f<KeepNone>, ownSqr32f<KeepOthers<4, 3>>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::math {
template <>
KELI_SELECT_ROWS(Unary, kSqr8u, unaryRows<Sqr, Kel8u>)
template <>
KELI_SELECT_ROWS(Unary, kSqr16s, unaryRows<Sqr, Kel16s>)
template <>
KELI_SELECT_ROWS(Unary, kSqr32f, unaryRows<Sqr, Kel32f>)
}  // namespace keli::math
#endif
