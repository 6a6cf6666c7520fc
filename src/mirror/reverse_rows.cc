// Row kernels of Mirror with a destination: dst[i] = src[n - 1 - i], pixel by pixel.
#include <hwy/cache_control.h>

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "mirror/reverse_rows.cc"
#include <hwy/foreach_target.h>
//
#include "mirror/mirror-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <std::size_t kPixel, std::size_t kUsed>
struct Reverse {
  static constexpr bool kAll = kUsed == kPixel;
  static constexpr std::size_t kLong = 1024;  // bytes from which on rows are set on cache lines

  // Pixels that fill whole cache lines, for stores around the caches: a line that is stored partly
  // so and partly through the caches takes many times as long.
  struct Group {
    static constexpr std::size_t kSrc = 192;
    static constexpr std::size_t kDst = kSrc;
    static constexpr std::size_t kSpan = 1;
    static constexpr std::size_t from(std::size_t j) {
      return kSrc - (j / kPixel + 1) * kPixel + j % kPixel;
    }

    // Where bytes are shuffled across 64 of them: of each 32 bytes of a group, the first of those
    // 64 of the source that hold all they need, and their places there.
    static constexpr std::size_t window(std::size_t v) {
      const std::size_t low = kSrc - ((32 * v + 31) / kPixel + 1) * kPixel;
      return std::min<std::size_t>(low, kSrc - 64);
    }
    static constexpr std::array<std::array<std::uint8_t, 64>, kSrc / 32> makePlaces() {
      std::array<std::array<std::uint8_t, 64>, kSrc / 32> a{};
      for (std::size_t j = 0; j < kSrc; ++j)
        a[j / 32][j % 32] = static_cast<std::uint8_t>(from(j) - window(j / 32));
      return a;
    }
    static constexpr auto kPlaces = makePlaces();
  };

  static HWY_INLINE void pixels(const std::uint8_t* src, std::uint8_t* dst, std::size_t n) {
    for (std::size_t x = 0; x < n; ++x)
      std::memcpy(dst + x * kPixel, src + (n - 1 - x) * kPixel, kUsed);
  }

  // A run of at least a vector.
  template <bool kStreams, class D>
  static HWY_INLINE void blocks(D d, const std::uint8_t* src, std::uint8_t* dst, std::size_t n) {
    using B = Block<kPixel, kUsed, D>;
    constexpr std::size_t kPixels = B::kPixels, kStep = kPixels * kPixel;
    const std::size_t end = n - kPixels;
    const std::uint8_t* from = src + n * kPixel - B::kN;
    std::uint8_t* to = dst;
    std::size_t x = 0;
    for (; x + 4 * kPixels <= end; x += 4 * kPixels, from -= 4 * kStep, to += 4 * kStep) {
      hn::Vec<D> v[4];
      unrolled<4>([&](auto u) KELI_LAMBDA { v[u] = B::toStart(from - u * kStep); });
      unrolled<4>([&](auto u) KELI_LAMBDA {
        if constexpr (kStreams) {
          hn::Stream(v[u], d, to + u * kStep);
        } else {
          B::put(v[u], to + u * kStep);
        }
        keepOrder();
      });
    }
    for (; x < end; x += kPixels, from -= kStep, to += kStep) B::put(B::toStart(from), to);
    B::template putAlone<true>(B::toEnd(src), dst + n * kPixel - B::kN);
  }

  // A run of any length.
  static HWY_NOINLINE void run(const std::uint8_t* src, std::uint8_t* dst, std::size_t n) {
    if (n * kPixel >= hn::MaxLanes(BlockTag<kPixel>())) {
      blocks<false>(BlockTag<kPixel>(), src, dst, n);
    } else if (n * kPixel >= 16) {
      blocks<false>(hn::CappedTag<std::uint8_t, 16>(), src, dst, n);
    } else {
      pixels(src, dst, n);
    }
  }

  // The destination starts a cache line.
  static HWY_INLINE void stream(const std::uint8_t* src, std::uint8_t* dst, std::size_t n) {
    if constexpr (isPowerOf2(kPixel)) {
      blocks<true>(BlockTag<kPixel>(), src, dst, n);
    } else {
      using D = hn::CappedTag<std::uint8_t, 32>;
      const D d;
      constexpr std::size_t kN = hn::MaxLanes(D());
      constexpr std::size_t kPixels = Group::kSrc / kPixel;
      [[maybe_unused]] const auto indices = ShuffleIndices<Group, D>::fixed();
      const std::uint8_t* from = src + (n - kPixels) * kPixel;
      std::size_t x = 0;
      for (; x + kPixels <= n; x += kPixels, from -= Group::kSrc, dst += Group::kDst) {
        unrolled<Group::kSrc / kN>([&](auto v) KELI_LAMBDA {
          if constexpr (kPermutesBytes) {
            const hn::CappedTag<std::uint8_t, 64> wide;
            const auto places = hn::LoadU(wide, Group::kPlaces[v].data());
            const auto bytes = hn::LoadU(wide, from + Group::window(v));
            hn::Stream(hn::LowerHalf(d, permuteBytes(wide, bytes, places)), d, dst + v * kN);
          } else {
            hn::Stream(shuffled<v>(d, from, indices), d, dst + v * kN);
          }
          keepOrder();
        });
      }
      run(src, dst, n - x);
    }
  }

  // As in map-inl.h, a long row's first pixels are set apart up to a cache line, but where blocks
  // straddle lines anyway.
  static HWY_INLINE void longRow(const std::uint8_t* src, std::uint8_t* dst, std::size_t n,
                                 bool streams) {
    if (!isPowerOf2(kPixel) && !streams) return run(src, dst, n);
    const std::size_t head = unitsToLine(dst, kPixel, n);
    if (head == n) return run(src, dst, n);
    const std::size_t rest = n - head;
    if (head != 0) run(src + rest * kPixel, dst, head);
    if (streams) return stream(src, dst + head * kPixel, rest);
    blocks<false>(BlockTag<kPixel>(), src, dst + head * kPixel, rest);
  }

  // By value: no store can change the band.
  static HWY_INLINE void band(const Band<1> b) {
    const bool streams = b.streams && kAll;
    const std::size_t size = b.n * kPixel;
    for (std::size_t y = 0; y < b.rows; ++y) {
      const auto* src = b.srcRow<std::uint8_t>(0, y);
      auto* dst = b.dstRow<std::uint8_t>(y);
      if (size >= kLong) {
        longRow(src, dst, b.n, streams);
      } else if (size >= hn::MaxLanes(BlockTag<kPixel>())) {
        blocks<false>(BlockTag<kPixel>(), src, dst, b.n);
      } else {
        run(src, dst, b.n);
      }
    }
    if (streams) hwy::FlushStream();
  }
};

template <std::size_t kPixel, std::size_t kUsed = kPixel>
void ownReverse(const Band<1>& b) {
  using Rows = Reverse<kPixel, kUsed>;
  if constexpr (kScalarTarget) {
    for (std::size_t y = 0; y < b.rows; ++y)
      Rows::pixels(b.srcRow<std::uint8_t>(0, y), b.dstRow<std::uint8_t>(y), b.n);
  } else {
    Rows::band(b);
  }
}

const mirror::ReverseRows kReverseRows = {
    KELI_BY_PIXEL(ownReverse),
    {{ownReverse<4, 3>, ownReverse<8, 6>, ownReverse<16, 12>}},
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::mirror {
KELI_SELECT_ROWS(ReverseRows, kReverseRows, reverseRows)
}  // namespace keli::mirror
#endif
