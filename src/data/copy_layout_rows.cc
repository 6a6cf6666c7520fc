// Row kernels of Copy between layouts: channels move, their samples do not change.
#include "data/copy_rows.h"

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "data/copy_layout_rows.cc"
#include <hwy/foreach_target.h>
//
#include "core/move-inl.h"
#include "core/pixels-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// Channels kFrom.. of a source pixel of kStored samples become those of a destination pixel.
template <class T, std::size_t kFromChannels, std::size_t kToChannels>
struct ChannelMap {
  static constexpr std::size_t kSrc = kFromChannels * sizeof(T);
  static constexpr std::size_t kDst = kToChannels * sizeof(T);
  static constexpr std::size_t kSpan = 1;
  static constexpr bool kWhole = kFromChannels != 1 && kToChannels != 1;
  // The channels that both have are moved; those that only the destination has are kept.
  static constexpr bool kept(std::size_t j) { return j >= kSrc; }
  static constexpr std::size_t from(std::size_t j) { return j < kSrc ? j : j % sizeof(T); }
};

template <class T, std::size_t kFromChannels, std::size_t kToChannels>
void ownCopyChannels(const Band<1>& b) {
  moveRows<ChannelMap<T, kFromChannels, kToChannels>>(b);
}

struct IdentityPixels {
  template <class D, class In>
  HWY_INLINE In vector(D, const In& in) const {
    return in;
  }
  template <class In>
  HWY_INLINE In scalar(const In& in) const {
    return in;
  }
};

template <class T, Layout kFrom, Layout kTo>
void ownCopyPlanes(const PlanesBand& b) {
  mapPixels<kFrom, kTo, T, T>(b, IdentityPixels());
}

const data::CopyLayoutRows kCopyLayoutRows = {
    KELI_BY_SIZE(ownCopyChannels, 3, 1),
    KELI_BY_SIZE(ownCopyChannels, 4, 1),
    KELI_BY_SIZE(ownCopyChannels, 1, 3),
    KELI_BY_SIZE(ownCopyChannels, 1, 4),
    KELI_BY_SIZE(ownCopyChannels, 4, 3),
    KELI_BY_SIZE(ownCopyChannels, 3, 4),
    KELI_BY_SIZE(ownCopyPlanes, Layout::C3, Layout::P3),
    KELI_BY_SIZE(ownCopyPlanes, Layout::C4, Layout::P4),
    KELI_BY_SIZE(ownCopyPlanes, Layout::P3, Layout::C3),
    KELI_BY_SIZE(ownCopyPlanes, Layout::P4, Layout::C4),
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::data {
KELI_SELECT_ROWS(CopyLayoutRows, kCopyLayoutRows, copyLayoutRows)
}  // namespace keli::data
#endif
