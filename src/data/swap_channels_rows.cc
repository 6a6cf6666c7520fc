// Row kernels of SwapChannels: destination channel k = source channel order[k], k = 0, 1, 2.
#include "data/swap_channels_rows.h"

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "data/swap_channels_rows.cc"
#include <hwy/foreach_target.h>
//
#include "core/move-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// Describes the exchange with channel 0 in the place of each: which one it is, is known at run
// time.
template <class T, std::size_t kChannels>
struct SwapMap {
  static constexpr std::size_t kSrc = kChannels * sizeof(T);
  static constexpr std::size_t kDst = kSrc;
  static constexpr std::size_t kSpan = kSrc;
  static constexpr bool kWhole = true;
  static constexpr bool kept(std::size_t j) { return j >= 3 * sizeof(T); }
  static constexpr std::size_t from(std::size_t j) { return j % sizeof(T); }
};

template <class T, std::size_t kChannels>
struct SwapChoice {
  using Map = SwapMap<T, kChannels>;

  // For every byte of a destination pixel, the distance of its channel from channel 0.
  std::uint8_t distance[16] = {};

  explicit SwapChoice(const int* order) {
    for (std::size_t j = 0; j < 3 * sizeof(T); ++j) {
      distance[j] =
          static_cast<std::uint8_t>(load(order + j / sizeof(T)) * static_cast<int>(sizeof(T)));
    }
  }

  std::size_t from(std::size_t j) const { return Map::from(j) + distance[j]; }

  // The distances added to the indices that the Map has for channel 0, and 0x80 for what is not in
  // the window; those indices lie within a byte's signed range, as windows are some pixels long.
  template <class D>
  HWY_INLINE ShuffleIndices<Map, D> indices(D d) const {
    constexpr std::size_t kN = hn::MaxLanes(D());
    using Plan = ShufflePlan<Map, kN>;
    const hn::RebindToSigned<D> di;
    const auto table = hn::LoadDup128(d, distance);
    ShuffleIndices<Map, D> out;
    unrolled<Plan::kVectors>([&](auto v) KELI_LAMBDA {
      const auto add = hn::TableLookupBytes(table, hn::LoadU(d, kPlaces<Plan, kN>[v].inPixel));
      unrolled<Plan::kWindows>([&](auto w) KELI_LAMBDA {
        const auto place = hn::Add(hn::LoadU(d, kPlaces<Plan, kN>[v].inWindow[w]), add);
        const auto beyond = hn::Gt(hn::BitCast(di, place), hn::Set(di, std::int8_t{15}));
        out.of[v][w] = hn::Or(place, hn::BitCast(d, hn::VecFromMask(di, beyond)));
      });
    });
    return out;
  }

  template <class D>
  HWY_INLINE hn::Vec<D> block(D d) const {
    constexpr std::size_t kN = hn::MaxLanes(D());
    const auto add =
        hn::TableLookupBytes(hn::LoadDup128(d, distance), hn::LoadU(d, kBlockPlaces<kN>.data()));
    return hn::Add(hn::LoadU(d, BlockPlan<Map, kN>::kIndices.data()), add);
  }

 private:
  // Of the bytes of a block: the place in their pixel.
  template <std::size_t kN>
  static constexpr std::array<std::uint8_t, kN> makeBlockPlaces() {
    std::array<std::uint8_t, kN> a{};
    for (std::size_t j = 0; j < kN; ++j) {
      a[j] = static_cast<std::uint8_t>(j % Map::kDst);
    }
    return a;
  }

  template <std::size_t kN>
  static constexpr std::array<std::uint8_t, kN> kBlockPlaces = makeBlockPlaces<kN>();

  // Of the bytes of one vector: the place in their pixel, and in each window with channel 0 chosen.
  template <class Plan, std::size_t kN>
  struct Places {
    std::uint8_t inPixel[kN];
    std::uint8_t inWindow[Plan::kWindows][kN];
  };

  template <class Plan, std::size_t kN>
  static constexpr std::array<Places<Plan, kN>, Plan::kVectors> makePlaces() {
    std::array<Places<Plan, kN>, Plan::kVectors> all{};
    for (std::size_t v = 0; v < Plan::kVectors; ++v) {
      for (std::size_t i = 0; i < kN; ++i) {
        const std::size_t j = v * kN + i;
        all[v].inPixel[i] = static_cast<std::uint8_t>(j % Map::kDst);
        for (std::size_t w = 0; w < Plan::kWindows; ++w) {
          all[v].inWindow[w][i] =
              static_cast<std::uint8_t>(Plan::from(j) - Plan::window(j / 16 * 16, w));
        }
      }
    }
    return all;
  }

  template <class Plan, std::size_t kN>
  static constexpr std::array<Places<Plan, kN>, Plan::kVectors> kPlaces = makePlaces<Plan, kN>();
};

template <class T, std::size_t kChannels>
void ownSwapChannels(const Band<1>& b, const int* order) {
  moveRows<SwapMap<T, kChannels>>(b, SwapChoice<T, kChannels>(order));
}

const data::SwapChannelsRows kSwapChannelsRows = {
    KELI_BY_SIZE(ownSwapChannels, 3),
    KELI_BY_SIZE(ownSwapChannels, 4),
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::data {
KELI_SELECT_ROWS(SwapChannelsRows, kSwapChannelsRows, swapChannelsRows)
}  // namespace keli::data
#endif
