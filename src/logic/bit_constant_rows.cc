// Row kernels of AndC, OrC, XorC and Not: dst = (src & kept) ^ flipped, which is a bitwise
// operation with a constant c: And for c, 0; Or for ~c, c; Xor for all bits, c.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "logic/bit_constant_rows.cc"
#include <hwy/foreach_target.h>
//
#include "core/map-inl.h"
#include "logic/bitwise_rows.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class T, std::size_t kCycle>
struct KeepAndFlip {
  static constexpr std::size_t kPeriod = kCycle;
  static constexpr std::size_t kUnroll = kCycle % 3 == 0 ? 6 : 4;
  const logic::BitConstant* constant;

  template <class D>
  struct Vectors {
    hn::Vec<D> kept;
    hn::Vec<D> flipped;
  };

  template <class D>
  HWY_INLINE Vectors<D> at(D d, std::size_t phase) const {
    constexpr std::size_t kPixel = kCycle * sizeof(T);
    return {repeatPixel<kPixel>(d, constant->kept, phase * sizeof(T)),
            repeatPixel<kPixel>(d, constant->flipped, phase * sizeof(T))};
  }
  template <class D, class V>
  HWY_INLINE V vector(D, const Vectors<D>& k, V v) const {
    return hn::Xor(hn::And(v, k.kept), k.flipped);
  }
  HWY_INLINE T scalar(std::size_t phase, T v) const {
    return (v & sample(constant->kept, phase)) ^ sample(constant->flipped, phase);
  }
  static HWY_INLINE T sample(const std::uint8_t* bytes, std::size_t phase) {
    return load(reinterpret_cast<const T*>(bytes) + phase);
  }
};

template <class T, std::size_t kCycle, class Keep>
void ownKeepAndFlip(const Band<1>& b, const logic::BitConstant* constant) {
  mapRows<T, T, Keep>(b, KeepAndFlip<T, kCycle>{constant});
}

constexpr logic::BitConstantRows kBitConstantRows = {
    ownKeepAndFlip<std::uint8_t, 16, KeepNone>,
    ownKeepAndFlip<std::uint8_t, 12, KeepNone>,
    KELI_BY_SIZE(ownKeepAndFlip, 4, KeepOthers<4, 3>),
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::logic {
KELI_SELECT_ROWS(BitConstantRows, kBitConstantRows, bitConstantRows)
}  // namespace keli::logic
#endif
