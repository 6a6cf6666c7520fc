// Squares that are not scaled down, of the few inputs whose results do not saturate, and halves.
#if defined(KELI_MATH_SQUARE_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_MATH_SQUARE_INL_H_
#undef KELI_MATH_SQUARE_INL_H_
#else
#define KELI_MATH_SQUARE_INL_H_
#endif

#include <cmath>
#include <limits>

#include "core/scale-inl.h"
#include "core/vector_tables-inl.h"
#include "math/unary-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class T>
struct Square : UnaryOp {
  int scaleFactor;
  HWY_INLINE explicit Square(int sf) : scaleFactor(sf) {}
  HWY_INLINE T scalar(std::size_t, T v) const {
    return scaled<T>(std::int64_t{v} * v, scaleFactor);
  }
};

// A scale factor of 0 and less, of 16 bits: squares that do not saturate fit the lanes.
template <class T>
struct SquareUp : Square<T> {
  static constexpr std::size_t kVectorBytes = 64;
  static constexpr T kMax = std::numeric_limits<T>::max();
  int count;
  T most;  // the largest input whose result does not saturate

  // From 16 on, all but 0 saturate.
  HWY_INLINE explicit SquareUp(int sf)
      : Square<T>(sf),
        count(sf < -15 ? 15 : -sf),
        most(static_cast<T>(sf < -15 ? 0 : std::sqrt(kMax >> count))) {}

  template <class D, class V>
  HWY_INLINE V vector(D d, Nothing, V v) const {
    const V square = hn::ShiftLeftSame(v * v, count);
    return hn::IfThenElse(size(d, v) > hn::Set(d, most), hn::Set(d, kMax), square);
  }

 private:
  template <class D, class V>
  static HWY_INLINE V size([[maybe_unused]] D d, V v) {
    if constexpr (std::is_signed_v<T>) return hn::Max(v, hn::SaturatedSub(hn::Zero(d), v));
    return v;
  }
};

// The same of 8 bits: the squares of inputs below 16 from a table.
struct SquareUpOf8u : Square<Kel8u> {
  static constexpr std::size_t kVectorBytes = 64;
  alignas(16) Kel8u results[16];

  HWY_INLINE explicit SquareUpOf8u(int sf) : Square<Kel8u>(sf) {
    for (std::size_t v = 0; v < 16; ++v) results[v] = scalar(0, static_cast<Kel8u>(v));
  }

  template <class D>
  HWY_INLINE Table16<D> at(D, std::size_t) const {
    return Table16<D>::make(results);
  }
  template <class D, class V>
  HWY_INLINE V vector(D d, const Table16<D>& table, V v) const {
    const V last = hn::Set(d, 15);
    return hn::Or(table(hn::Min(v, last)), hn::VecFromMask(d, v > last));
  }
};

// A scale factor of 1, of 16 bits. No square has so many bits that adding 1 leaves its lane.
template <class T>
struct SquareHalf : Square<T> {
  HWY_INLINE SquareHalf() : Square<T>(1) {}

  template <class D, class V>
  HWY_INLINE V vector(D d, Nothing, V v) const {
    const WideTag<D> dw;
    return narrow(d, mapWide(d, products(d, v, v),
                             [&](auto square) KELI_LAMBDA { return roundHalfSigned(dw, square); }));
  }
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
