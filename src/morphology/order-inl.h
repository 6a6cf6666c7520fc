// Samples in their order: integers as they are, floats as integers in the total order of IEEE 754,
// -NaN < -infinity < ... < -0 < +0 < ... < +infinity < +NaN. An extreme then is the same whatever
// the order its samples are met in, has the bits of one of them, and may meet one twice.
#if defined(KELI_MORPHOLOGY_ORDER_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_MORPHOLOGY_ORDER_INL_H_
#undef KELI_MORPHOLOGY_ORDER_INL_H_
#else
#define KELI_MORPHOLOGY_ORDER_INL_H_
#endif

#include "core/simd-inl.h"
#include "morphology/rows.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// The scalar target's vectors load and store at aligned addresses alone.
template <class D>
HWY_INLINE hn::Vec<D> loadAnywhere(D d, const hn::TFromD<D>* p) {
  if constexpr (kScalarTarget) return hn::Set(d, load(p));
  return hn::LoadU(d, p);
}
template <class D>
HWY_INLINE void storeAnywhere(D d, hn::Vec<D> v, hn::TFromD<D>* p) {
  if constexpr (kScalarTarget) {
    store(hn::GetLane(v), p);
  } else {
    hn::StoreU(v, d, p);
  }
}

// Lane: what holds a sample in its order. turn: to the order and back.
template <class T>
struct Ordered {
  using Lane = T;
  template <class V>
  static HWY_INLINE V turn(V v) {
    return v;
  }
};

template <>
struct Ordered<Kel32f> {
  using Lane = std::int32_t;
  // Negative floats rise with their magnitude: all bits but the sign are inverted.
  template <class V>
  static HWY_INLINE V turn(V v) {
    const hn::DFromV<V> d;
    return hn::Xor(v, hn::And(hn::ShiftRight<31>(v), hn::Set(d, 0x7FFFFFFF)));
  }
};

template <class T>
using LaneOf = typename Ordered<T>::Lane;

template <class T, class D>
HWY_INLINE hn::Vec<D> loadOrdered(D d, const T* p) {
  return Ordered<T>::turn(loadAnywhere(d, reinterpret_cast<const LaneOf<T>*>(p)));
}

template <class Operation>
struct Extreme;
template <>
struct Extreme<morphology::Min> {
  template <class V>
  static HWY_INLINE V of(V a, V b) {
    return hn::Min(a, b);
  }
};
template <>
struct Extreme<morphology::Max> {
  template <class V>
  static HWY_INLINE V of(V a, V b) {
    return hn::Max(a, b);
  }
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
