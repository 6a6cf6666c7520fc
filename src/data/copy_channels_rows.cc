// Row kernels of Copy between interleaved layouts: channels change places, samples stay.
#include "data/copy_rows.h"

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "data/copy_channels_rows.cc"
#include <hwy/foreach_target.h>
//
#include "core/move-inl.h"

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

const data::CopyChannelsRows kCopyChannelsRows = {
    KELI_BY_SIZE(ownCopyChannels, 3, 1), KELI_BY_SIZE(ownCopyChannels, 4, 1),
    KELI_BY_SIZE(ownCopyChannels, 1, 3), KELI_BY_SIZE(ownCopyChannels, 1, 4),
    KELI_BY_SIZE(ownCopyChannels, 4, 3), KELI_BY_SIZE(ownCopyChannels, 3, 4),
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::data {
KELI_SELECT_ROWS(CopyChannelsRows, kCopyChannelsRows, copyChannelsRows)
}  // namespace keli::data
#endif
