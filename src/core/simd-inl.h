// Vector helpers that the SIMD library lacks, for every target.
#if defined(KELI_CORE_SIMD_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CORE_SIMD_INL_H_
#undef KELI_CORE_SIMD_INL_H_
#else
#define KELI_CORE_SIMD_INL_H_
#endif

#include <array>
#include <cstring>
#include <type_traits>
#include <utility>

#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET == HWY_SCALAR
constexpr bool kScalarTarget = true;
#else
constexpr bool kScalarTarget = false;
#endif

// Samples stand at any address.
template <class T>
HWY_INLINE T load(const T* p) {
  T v;
  std::memcpy(&v, p, sizeof(T));
  return v;
}

template <class T>
HWY_INLINE void store(T v, T* p) {
  std::memcpy(p, &v, sizeof(T));
}

// Calls f with the constants 0 .. kCount - 1: a loop whose index is a template argument.
template <class F, std::size_t... I>
HWY_INLINE void unrolledImpl(F&& f, std::index_sequence<I...>) {
  (f(std::integral_constant<std::size_t, I>{}), ...);
}

template <std::size_t kCount, class F>
HWY_INLINE void unrolled(F&& f) {
  unrolledImpl(static_cast<F&&>(f), std::make_index_sequence<kCount>{});
}

// All bits of the samples whose position in a cycle of kPeriod is below kUsed, long enough to load
// a vector from any phase.
template <class T, std::size_t kPeriod, std::size_t kUsed>
struct CyclePattern {
  using Bits = hwy::MakeUnsigned<T>;
  static constexpr std::size_t kSize = HWY_MAX_BYTES / sizeof(T) + kPeriod;

  static constexpr std::array<Bits, kSize> make() {
    std::array<Bits, kSize> a{};
    for (std::size_t i = 0; i < kSize; ++i)
      a[i] = i % kPeriod < kUsed ? static_cast<Bits>(~Bits{0}) : Bits{0};
    return a;
  }

  static constexpr std::array<Bits, kSize> kBits = make();
};

template <std::size_t kPeriod, std::size_t kUsed, class D>
HWY_INLINE auto cycleMask(D d, std::size_t phase) {
  using T = hn::TFromD<D>;
  const hn::RebindToUnsigned<D> du;
  return hn::MaskFromVec(
      hn::BitCast(d, hn::LoadU(du, CyclePattern<T, kPeriod, kUsed>::kBits.data() + phase)));
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
