// Row kernels of Copy of whole pixels and of single channels: dst = src.
#include "data/copy_rows.h"

#include <cstring>

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "data/copy_rows.cc"
#include <hwy/foreach_target.h>
//
#include "core/identity-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// One channel of three: the vectors in flight are whole cycles.
struct IdentityC3 : Identity {
  static constexpr std::size_t kUnroll = 6;
};

// Rows of 8 to 32 KiB: where source and destination about fill the first-level cache, the C
// library's copy beats any loop of vectors, as it need not read a line before overwriting it.
bool suitsLibrary(const Band<1>& b) { return b.n >= 8192 && b.n <= 32768 && !b.streams; }

void ownCopy(const Band<1>& b) {
  if (!suitsLibrary(b)) return mapRows<std::uint8_t, std::uint8_t>(b, Identity());
  for (std::size_t y = 0; y < b.rows; ++y) {
    std::memmove(b.dstRow<std::uint8_t>(y), b.srcRow<std::uint8_t>(0, y), b.n);
  }
}

template <class T>
void ownCopyAC4(const Band<1>& b) {
  mapRows<T, T, KeepOthers<4, 3>>(b, Identity());
}

template <class T>
void ownCopyC3C(const Band<1>& b) {
  mapRows<T, T, KeepOthers<3, 1>>(b, IdentityC3());
}

template <class T>
void ownCopyC4C(const Band<1>& b) {
  mapRows<T, T, KeepOthers<4, 1>>(b, Identity());
}

const data::CopyRows kCopyRows = {
    ownCopy,
    KELI_BY_SIZE(ownCopyAC4),
    KELI_BY_SIZE(ownCopyC3C),
    KELI_BY_SIZE(ownCopyC4C),
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::data {
KELI_SELECT_ROWS(CopyRows, kCopyRows, copyRows)
}  // namespace keli::data
#endif
