// Kernels of operations on two operands, as the drivers of map-inl.h run them: on two images, and
// on an image with the constants of a cycle in the place of the first.
#if defined(KELI_CORE_POINTWISE_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CORE_POINTWISE_INL_H_
#undef KELI_CORE_POINTWISE_INL_H_
#else
#define KELI_CORE_POINTWISE_INL_H_
#endif

#include "core/map-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// An operation (Op) of two operands of type T with its first operand from a cycle of constants.
template <class Op, class T, std::size_t kCycle>
struct WithConstant {
  static constexpr std::size_t kPeriod = kCycle;
  static constexpr std::size_t kUnroll = kCycle % 3 == 0 ? 6 : 4;
  static constexpr std::size_t kVectorBytes = map::kMostBytes<Op>;
  static constexpr std::size_t kLanes =
      kScalarTarget ? 1 : std::min<std::size_t>(HWY_MAX_BYTES, kVectorBytes) / sizeof(T);

  Op op;
  T constants[kLanes + kCycle];  // repeated, so that a vector can begin at any of them

  HWY_INLINE WithConstant(const Op& o, const void* cycle) : op(o) {
    for (std::size_t i = 0; i < kLanes + kCycle; ++i)
      constants[i] = load(static_cast<const T*>(cycle) + i % kCycle);
  }

  template <class D>
  struct Vectors {
    decltype(std::declval<Op>().at(D(), 0)) op;
    hn::Vec<D> constant;
  };

  template <class D>
  HWY_INLINE Vectors<D> at(D d, std::size_t phase) const {
    return {op.at(d, 0), hn::LoadU(d, constants + phase)};
  }
  template <class D, class V>
  HWY_INLINE V vector(D d, const Vectors<D>& k, V v) const {
    return op.vector(d, k.op, k.constant, v);
  }
  HWY_INLINE T scalar(std::size_t phase, T v) const { return op.scalar(0, constants[phase], v); }
};

template <class T, class Keep, class Op>
HWY_INLINE void mapTwoImages(const Band<2>& b, const Op& op) {
  mapRows<T, T, T, Keep>(b, op);
}

template <class T, std::size_t kCycle, class Keep, class Op>
HWY_INLINE void mapImageAndConstant(const Band<1>& b, const void* cycle, const Op& op) {
  mapRows<T, T, Keep>(b, WithConstant<Op, T, kCycle>(op, cycle));
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
