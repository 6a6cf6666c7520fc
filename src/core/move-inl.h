// Row driver over the shuffles of shuffle-inl.h: moves whole pixels from source to destination.
//
// Beside what shuffle-inl.h asks of a Map, it has
//   kept(j)    whether destination byte j of a pixel keeps its value
//   kWhole     whether a row's last pixel has all its kSrc and kDst bytes; where an image is given
//   by a
//              pointer to one of its channels, the last pixel ends with that channel's sample
#if defined(KELI_CORE_MOVE_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CORE_MOVE_INL_H_
#undef KELI_CORE_MOVE_INL_H_
#else
#define KELI_CORE_MOVE_INL_H_
#endif

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

  // Bytes of kept samples, for the destination of one step.
  template <std::size_t kBytes>
  static constexpr std::array<std::uint8_t, kBytes> keepPattern() {
    std::array<std::uint8_t, kBytes> a{};
    for (std::size_t i = 0; i < kBytes; ++i) a[i] = Map::kept(i % Map::kDst) ? 0xFF : 0;
    return a;
  }

  template <class Choice>
  static HWY_INLINE void pixels(const std::uint8_t* src, std::uint8_t* dst, std::size_t n,
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
    static constexpr auto kKept = keepPattern<Plan::kVectors * kN>();

    hn::Vec<D> v[Plan::kVectors];

    HWY_INLINE void load(const std::uint8_t* src, const std::uint8_t* dst,
                         const ShuffleIndices<Map, D>& indices) {
      const D d;
      unrolled<Plan::kVectors>([&](auto i) HWY_ATTR {
        v[i] = shuffled<i>(d, src, indices);
        if constexpr (keepsSome()) {
          const auto kept = hn::MaskFromVec(hn::LoadU(d, kKept.data() + i * kN));
          v[i] = hn::IfThenElse(kept, hn::LoadU(d, dst + i * kN), v[i]);
        }
      });
    }

    HWY_INLINE void store(std::uint8_t* dst) const {
      unrolled<Plan::kVectors>([&](auto i) HWY_ATTR { hn::StoreU(v[i], D(), dst + i * kN); });
    }
  };

  // A row of n whole pixels, at least a step: the last step is loaded first and stored last.
  template <class D>
  static HWY_INLINE void steps(D, const std::uint8_t* src, std::uint8_t* dst, std::size_t n,
                               const ShuffleIndices<Map, D>& indices) {
    constexpr std::size_t kPixels = Step<D>::Plan::kPixels;
    const std::size_t end = n - kPixels;
    Step<D> last;
    last.load(src + end * Map::kSrc, dst + end * Map::kDst, indices);
    for (std::size_t x = 0; x < end; x += kPixels) {
      Step<D> step;
      step.load(src + x * Map::kSrc, dst + x * Map::kDst, indices);
      step.store(dst + x * Map::kDst);
    }
    last.store(dst + end * Map::kDst);
  }

  // The band with vectors of D; false, and nothing done, if its rows are too short for them.
  template <class D, class Choice>
  static HWY_INLINE bool rows(D d, const Band<1>& b, const Choice& choice) {
    const std::size_t whole = Map::kWhole ? b.n : b.n - 1;
    if (whole < Step<D>::Plan::kPixels) return false;
    const ShuffleIndices<Map, D> indices = choice.indices(d);
    for (std::size_t y = 0; y < b.rows; ++y) {
      const std::uint8_t* src = b.srcRow<std::uint8_t>(0, y);
      std::uint8_t* dst = b.dstRow<std::uint8_t>(y);
      steps(d, src, dst, whole, indices);
      pixels(src + whole * Map::kSrc, dst + whole * Map::kDst, b.n - whole, choice);
    }
    return true;
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
};

// b.n counts pixels. choice.from(j) is the source byte of destination byte j of a pixel, and
// choice.indices(d) what shuffles it there.
template <class Map, class Choice = FixedChoice<Map>>
HWY_INLINE void moveRows(const Band<1>& b, const Choice& choice = Choice()) {
  if constexpr (!kScalarTarget) {
    if (Move<Map>::rows(hn::CappedTag<std::uint8_t, 32>(), b, choice)) return;
    if (Move<Map>::rows(hn::CappedTag<std::uint8_t, 16>(), b, choice)) return;
  }
  for (std::size_t y = 0; y < b.rows; ++y) {
    Move<Map>::pixels(b.srcRow<std::uint8_t>(0, y), b.dstRow<std::uint8_t>(y), b.n, choice);
  }
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
