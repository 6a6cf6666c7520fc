// Row kernels of Set: dst = value, whole pixels or some of their channels.
#include "data/set_rows.h"

#include <algorithm>
#include <cstring>
#include <type_traits>

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "data/set_rows.cc"
#include <hwy/foreach_target.h>
//
#include "data/fill-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// Rows of 36 to 128 KiB, about the size of the first-level cache and up: the C library's copy of
// what has just been stored beats storing it again, as it need not read a line before overwriting
// it.
constexpr std::size_t kRepeated = 12288;
template <class T>
bool suitsRepeating(const Band<0>& b) {
  const std::size_t size = b.n * sizeof(T);
  return size > 3 * kRepeated && size <= 131072 && !b.streams;
}

template <class T, std::size_t kChannels>
void ownRepeat(const Band<0>& b, const std::uint8_t* pixel) {
  static_assert(kRepeated % (kChannels * sizeof(T)) == 0, "whole pixels");
  for (std::size_t y = 0; y < b.rows; ++y) {
    std::uint8_t* const row = b.dstRow<std::uint8_t>(y);
    const Band<0> first = {{}, {}, row, 0, kRepeated / sizeof(T), 1, false};
    mapRows<T>(first, Fill<T, kChannels>{pixel});
    const std::size_t size = b.n * sizeof(T);
    for (std::size_t i = kRepeated; i < size; i += kRepeated) {
      std::memcpy(row + i, row, std::min(kRepeated, size - i));
    }
  }
}

template <class T, std::size_t kChannels, class Keep>
void ownSet(const Band<0>& b, const std::uint8_t* pixel) {
  if (std::is_same_v<Keep, KeepNone> && suitsRepeating<T>(b)) {
    ownRepeat<T, kChannels>(b, pixel);
  } else {
    mapRows<T, Keep>(b, Fill<T, kChannels>{pixel});
  }
}

const data::SetRows kSetRows = {
    KELI_BY_SIZE(ownSet, 1, KeepNone),         KELI_BY_SIZE(ownSet, 3, KeepNone),
    KELI_BY_SIZE(ownSet, 4, KeepNone),         KELI_BY_SIZE(ownSet, 4, KeepOthers<4, 3>),
    KELI_BY_SIZE(ownSet, 3, KeepOthers<3, 1>), KELI_BY_SIZE(ownSet, 4, KeepOthers<4, 1>),
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::data {
KELI_SELECT_ROWS(SetRows, kSetRows, setRows)
}  // namespace keli::data
#endif
