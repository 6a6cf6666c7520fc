// Row kernels of Remap by the nearest pixel: bytes and words gathered, other pixels one by one at
// addresses that vectors compute.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "remap/nearest_rows.cc"
#include <hwy/foreach_target.h>
//
#include "remap/blocks-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class T, int kChannels, int kUsed>
struct TakeNearest {
  using Mode = remap::Nearest<T, kChannels, kUsed>;
  static constexpr int kStored = kChannels;

  static HWY_INLINE void block(const remap::Remapping& r, RealVec fx, RealVec fy, T* dst) {
    constexpr int kPixel = kStored * sizeof(T);
    const Wholes d;
    const WholeVec x = roundToInt(d, fx), y = roundToInt(d, fy);
    const WholeVec offsets = offsetsOf(r, x, y, kPixel);
    const auto* words = reinterpret_cast<const std::int32_t*>(r.src);
    if constexpr (kPixel == 1) {
      const hn::Rebind<Kel8u, Wholes> d8;
      const WholeVec bytes = hn::And(ByteWords(r, x, y).at(r.src), hn::Set(d, 255));
      hn::StoreU(hn::DemoteTo(d8, bytes), d8, dst);
    } else if constexpr (kPixel == 4 && kUsed == kStored) {
      hn::StoreU(hn::GatherOffset(d, words, offsets), d, reinterpret_cast<std::int32_t*>(dst));
    } else {
      HWY_ALIGN std::int32_t at[kBlock];
      hn::Store(offsets, d, at);
      // Of three samples, the next pixel overwrites a fourth.
      unrolled<kBlock>([&](auto k) KELI_LAMBDA {
        constexpr std::size_t kCount = kStored == 3 && k + 1 < kBlock ? 4 : kUsed;
        std::memcpy(dst + kStored * k, r.src + at[k], kCount * sizeof(T));
      });
    }
  }
};

template <class T>
constexpr remap::ByLayout<T> kTakeNearest = {
    ownRemap<TakeNearest<T, 1, 1>>, ownRemap<TakeNearest<T, 3, 3>>, ownRemap<TakeNearest<T, 4, 4>>,
    ownRemap<TakeNearest<T, 4, 3>>};

constexpr remap::RemapRows kNearestRows = {kTakeNearest<Kel8u>, kTakeNearest<Kel32f>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::remap {
KELI_SELECT_ROWS(RemapRows, kNearestRows, nearestRows)
}  // namespace keli::remap
#endif
