// Row driver over the shuffles of shuffle-inl.h: moves whole pixels from source to destination.
//
// Beside what shuffle-inl.h asks of a Map, it has
//   kept(j)    whether destination byte j of a pixel keeps its value
//   kWhole     whether a row's last pixel has all its kSrc and kDst bytes: where an image is given
//   by
//              a pointer to one of its channels, it ends with that channel's sample
#if defined(KELI_CORE_MOVE_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CORE_MOVE_INL_H_
#undef KELI_CORE_MOVE_INL_H_
#else
#define KELI_CORE_MOVE_INL_H_
#endif

#include <hwy/cache_control.h>

#include "core/shuffle-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class Map>
struct Move {
  static constexpr bool keepsSome() {
    for (std::size_t j = 0; j < Map::kDst; ++j) {
      if (Map::kept(j)) return true;
    }
    return false;
  }

  // All bits of the bytes that are written, for the destination of one step.
  template <std::size_t kBytes>
  static constexpr std::array<std::uint8_t, kBytes> writtenPattern() {
    std::array<std::uint8_t, kBytes> a{};
    for (std::size_t i = 0; i < kBytes; ++i) a[i] = Map::kept(i % Map::kDst) ? 0 : 0xFF;
    return a;
  }

  template <class Choice>
  static HWY_NOINLINE void pixels(const std::uint8_t* src, std::uint8_t* dst, std::size_t n,
                                  const Choice& choice) {
    for (std::size_t x = 0; x < n; ++x, src += Map::kSrc, dst += Map::kDst) {
      std::uint8_t moved[Map::kDst];
      for (std::size_t j = 0; j < Map::kDst; ++j) {
        if (!Map::kept(j)) moved[j] = src[choice.from(j)];
      }
      for (std::size_t j = 0; j < Map::kDst; ++j) {
        if (!Map::kept(j)) dst[j] = moved[j];
      }
    }
  }

  template <class D>
  struct Step {
    static constexpr std::size_t kN = hn::MaxLanes(D());
    using Plan = ShufflePlan<Map, kN>;
    static constexpr auto kWritten = writtenPattern<Plan::kVectors * kN>();

    hn::Vec<D> v[Plan::kVectors];

    HWY_INLINE void load(const std::uint8_t* src, const ShuffleIndices<Map, D>& indices) {
      unrolled<Plan::kVectors>([&](auto i) KELI_LAMBDA { v[i] = shuffled<i>(D(), src, indices); });
    }

    template <bool kStreams>
    HWY_INLINE void store(std::uint8_t* dst) const {
      const D d;
      unrolled<Plan::kVectors>([&](auto i) KELI_LAMBDA {
        if constexpr (keepsSome()) {
          const auto written = hn::MaskFromVec(hn::LoadU(d, kWritten.data() + i * kN));
          if constexpr (kStreams) fetchAhead(dst + i * kN);
          storeWhere(d, written, v[i], dst + i * kN);
        } else if constexpr (kStreams) {
          hn::Stream(v[i], d, dst + i * kN);
        } else {
          hn::StoreU(v[i], d, dst + i * kN);
        }
        keepOrder();
      });
    }
  };

  // A row of n whole pixels, at least a step: the last step is loaded first and stored last.
  template <bool kStreams, class D>
  static HWY_INLINE void steps(D, const std::uint8_t* src, std::uint8_t* dst, std::size_t n,
                               const ShuffleIndices<Map, D>& indices) {
    constexpr std::size_t kPixels = Step<D>::Plan::kPixels;
    const std::size_t end = n - kPixels;
    Step<D> last;
    last.load(src + end * Map::kSrc, indices);
    std::size_t x = 0;
    // Of an odd number of vectors, two at a time: whole cache lines where the first starts one.
    constexpr bool kPairs = Step<D>::Plan::kVectors == 3;
    for (; kPairs && x + 2 * kPixels <= end; x += 2 * kPixels) {
      Step<D> one, two;
      one.load(src + x * Map::kSrc, indices);
      two.load(src + (x + kPixels) * Map::kSrc, indices);
      one.template store<kStreams>(dst + x * Map::kDst);
      two.template store<kStreams>(dst + (x + kPixels) * Map::kDst);
    }
    for (; x < end; x += kPixels) {
      Step<D> step;
      step.load(src + x * Map::kSrc, indices);
      step.template store<kStreams>(dst + x * Map::kDst);
    }
    last.template store<false>(dst + end * Map::kDst);
  }

  using D16 = hn::CappedTag<std::uint8_t, 16>;
  using D32 = hn::CappedTag<std::uint8_t, 32>;
  using BlockTag = std::conditional_t<kPermutesBytes, hn::CappedTag<std::uint8_t, 64>, D16>;
  using Block = BlockPlan<Map, hn::MaxLanes(BlockTag())>;

  // The pixels that end a row of blocks: a block that starts before them lies within the row.
  static constexpr std::size_t kEndSteps =
      (hn::MaxLanes(BlockTag()) - 1) / (Step<D32>::Plan::kPixels * std::min(Map::kSrc, Map::kDst)) +
      1;
  static constexpr std::size_t kEnd = kEndSteps * Step<D32>::Plan::kPixels;

  // Blocks beat steps that put vectors together from several windows, if they waste little of a
  // store; where some bytes are kept, if they are of 64 bytes and waste nothing.
  static constexpr bool prefersBlocks() {
    constexpr std::size_t kLanes = hn::MaxLanes(BlockTag());
    return keepsSome() ? Block::kBytes == 64 : 4 * Block::kBytes >= 3 * kLanes;
  }

  // A row of n whole pixels in blocks: at least kEnd. Of 64-byte vectors, as overlapping stores
  // straddle lines anyway, and fewer of them do. Each block is loaded before the one ahead of it is
  // stored, which spills into it in place.
  static HWY_INLINE void blocks(const std::uint8_t* src, std::uint8_t* dst, std::size_t n,
                                bool fetches, hn::Vec<BlockTag> block,
                                const ShuffleIndices<Map, D32>& indices) {
    constexpr std::size_t kStepPixels = Step<D32>::Plan::kPixels;
    constexpr std::size_t kPixels = Block::kPixels;
    static constexpr auto kWritten = writtenPattern<hn::MaxLanes(BlockTag())>();
    const BlockTag d;
    const auto written = hn::MaskFromVec(hn::LoadU(d, kWritten.data()));
    const std::size_t end = n - kEnd;
    Step<D32> last[kEndSteps];
    unrolled<kEndSteps>([&](auto u) KELI_LAMBDA {
      last[u].load(src + (end + u * kStepPixels) * Map::kSrc, indices);
    });
    auto next = hn::LoadU(d, src);
    const auto put = [&](std::size_t x) KELI_LAMBDA {
      const auto moved = shuffleAll(d, next, block);
      if constexpr (keepsSome()) {
        if (fetches) fetchAhead(dst + x * Map::kDst);
        storeWhere(d, written, moved, dst + x * Map::kDst);
      } else {
        hn::StoreU(moved, d, dst + x * Map::kDst);
      }
    };
    const auto move = [&](std::size_t x) KELI_LAMBDA {
      const auto ahead = hn::LoadU(d, src + (x + kPixels) * Map::kSrc);
      put(x);
      next = ahead;
    };
    std::size_t x = 0;
    for (; x + 4 * kPixels < end; x += 4 * kPixels) {
      unrolled<4>([&](auto u) KELI_LAMBDA { move(x + u * kPixels); });
    }
    for (; x + kPixels < end; x += kPixels) move(x);
    if (x < end) put(x);
    unrolled<kEndSteps>([&](auto u) KELI_LAMBDA {
      last[u].template store<false>(dst + (end + u * kStepPixels) * Map::kDst);
    });
  }

  // A row of any length.
  template <class Choice>
  static HWY_NOINLINE void row(const std::uint8_t* src, std::uint8_t* dst, std::size_t n,
                               const Choice& choice, const ShuffleIndices<Map, D16>& indices) {
    const std::size_t whole = Map::kWhole ? n : n - 1;
    if (whole < Step<D16>::Plan::kPixels) return pixels(src, dst, n, choice);
    steps<false>(D16(), src, dst, whole, indices);
    pixels(src + whole * Map::kSrc, dst + whole * Map::kDst, n - whole, choice);
  }

  template <class Choice>
  static HWY_INLINE void band(const Band<1>& b, const Choice& choice) {
    const std::size_t whole = Map::kWhole ? b.n : b.n - 1;
    const bool streams = b.streams && !keepsSome();
    if (whole < Step<D32>::Plan::kPixels) {
      narrow(b, choice);
    } else if (prefersBlocks() && !streams && whole >= kEnd) {
      wide<prefersBlocks()>(b, choice);
    } else {
      wide<false>(b, choice);
    }
    if (streams) hwy::FlushStream();
  }

  // Rows of less than a step of D32.
  template <class Choice>
  static HWY_INLINE void narrow(const Band<1>& b, const Choice& choice) {
    const ShuffleIndices<Map, D16> indices = choice.indices(D16());
    for (std::size_t y = 0; y < b.rows; ++y) {
      row(b.srcRow<std::uint8_t>(0, y), b.dstRow<std::uint8_t>(y), b.n, choice, indices);
    }
  }

  // Rows of at least a step of D32.
  template <bool kInBlocks, class Choice>
  static HWY_INLINE void wide(const Band<1>& b, const Choice& choice) {
    constexpr std::size_t kLong = 4096 / Map::kDst;
    static_assert(kLong >= 64 + 1 + kEnd, "a step is left after the head");
    const ShuffleIndices<Map, D32> indices = choice.indices(D32());
    for (std::size_t y = 0; y < b.rows; ++y) {
      const std::uint8_t* src = b.srcRow<std::uint8_t>(0, y);
      std::uint8_t* dst = b.dstRow<std::uint8_t>(y);
      std::size_t n = b.n;
      bool onLine = false;
      // As in map-inl.h, a long row's first pixels are set apart up to a cache line.
      if (n >= kLong && (!kInBlocks || Block::kBytes == 64)) {
        const std::size_t head = unitsToLine(dst, Map::kDst, n);
        onLine = head != n;
        if (onLine && head != 0) {
          row(src, dst, head, choice, choice.indices(D16()));
          src += head * Map::kSrc;
          dst += head * Map::kDst;
          n -= head;
        }
      }
      const std::size_t whole = Map::kWhole ? n : n - 1;
      if constexpr (kInBlocks) {
        blocks(src, dst, whole, b.streams, choice.block(BlockTag()), indices);
      } else if (b.streams && (keepsSome() || onLine)) {
        steps<true>(D32(), src, dst, whole, indices);
      } else {
        steps<false>(D32(), src, dst, whole, indices);
      }
      if constexpr (!Map::kWhole) {
        pixels(src + whole * Map::kSrc, dst + whole * Map::kDst, 1, choice);
      }
    }
  }
};

// A Map whose from() is all there is to choose.
template <class Map>
struct FixedChoice {
  constexpr std::size_t from(std::size_t j) const { return Map::from(j); }
  template <class D>
  HWY_INLINE ShuffleIndices<Map, D> indices(D) const {
    return ShuffleIndices<Map, D>::fixed();
  }
  template <class D>
  HWY_INLINE hn::Vec<D> block(D d) const {
    return hn::LoadU(d, BlockPlan<Map, hn::MaxLanes(D())>::kIndices.data());
  }
};

// b.n counts pixels. choice.from(j) is the source byte of destination byte j of a pixel, and
// choice.indices(d) and choice.block(d) what shuffles it there.
template <class Map, class Choice = FixedChoice<Map>>
HWY_INLINE void moveRows(const Band<1>& b, const Choice& choice = Choice()) {
  if constexpr (kScalarTarget) {
    for (std::size_t y = 0; y < b.rows; ++y) {
      Move<Map>::pixels(b.srcRow<std::uint8_t>(0, y), b.dstRow<std::uint8_t>(y), b.n, choice);
    }
  } else {
    Move<Map>::band(b, choice);
  }
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
