// The operation of map-inl.h that repeats a pixel.
#if defined(KELI_DATA_FILL_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_DATA_FILL_INL_H_
#undef KELI_DATA_FILL_INL_H_
#else
#define KELI_DATA_FILL_INL_H_
#endif

#include "core/map-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// The samples of a pixel in turn.
template <class T, std::size_t kChannels>
struct Fill {
  static constexpr std::size_t kPeriod = kChannels;
  static constexpr std::size_t kUnroll = kChannels == 3 ? 6 : 4;
  const std::uint8_t* pixel;
  template <class D>
  HWY_INLINE hn::Vec<D> at(D d, std::size_t phase) const {
    // A load of all 16 bytes would wait for the caller's stores of some of them.
    if constexpr (kChannels == 1) return hn::Set(d, scalar(0));
    return repeatPixel<kChannels * sizeof(T)>(d, pixel, phase * sizeof(T));
  }
  template <class D, class V>
  HWY_INLINE V vector(D, V at) const {
    return at;
  }
  HWY_INLINE T scalar(std::size_t phase) const {
    return load(reinterpret_cast<const T*>(pixel + phase * sizeof(T)));
  }
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
