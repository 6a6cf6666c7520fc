// Row kernels of Mirror in place: pairs of runs that are exchanged, in reverse or in their order.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "mirror/exchange_rows.cc"
#include <hwy/foreach_target.h>
//
#include "mirror/mirror-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <std::size_t kPixel, std::size_t kUsed>
struct Exchange {
  // Pixel i of one with pixel i of other, or with the one i before its last.
  template <bool kReversed>
  static HWY_INLINE void pixels(std::uint8_t* one, std::uint8_t* other, std::size_t n) {
    for (std::size_t x = 0; x < n; ++x) {
      std::uint8_t* const a = one + x * kPixel;
      std::uint8_t* const b = other + (kReversed ? n - 1 - x : x) * kPixel;
      std::uint8_t pixel[kUsed];
      std::memcpy(pixel, a, kUsed);
      std::memcpy(a, b, kUsed);
      std::memcpy(b, pixel, kUsed);
    }
  }

  // Runs of at least a vector. The last block of each is loaded first and stored last, and each
  // other one loaded before the one ahead of it is stored, which spills into it.
  template <class D>
  static HWY_INLINE void reversed(D, std::uint8_t* one, std::uint8_t* other, std::size_t n) {
    using B = Block<kPixel, kUsed, D>;
    constexpr std::size_t kStep = B::kPixels * kPixel;
    const std::size_t end = (n - B::kPixels) * kPixel;
    std::uint8_t* const lastOfOne = one + n * kPixel - B::kN;
    std::uint8_t* const lastOfOther = other + n * kPixel - B::kN;
    const hn::Vec<D> firstToOther = B::toStart(lastOfOne), lastToOne = B::toEnd(other);
    hn::Vec<D> toOther = B::toEnd(one), toOne = B::toStart(lastOfOther);
    std::size_t x = 0;
    const auto put = [&]() KELI_LAMBDA {
      B::put(toOne, one + x);
      B::put(toOther, lastOfOther - x);
    };
    for (; x + kStep < end; x += kStep) {
      const hn::Vec<D> nextToOther = B::toEnd(one + x + kStep);
      const hn::Vec<D> nextToOne = B::toStart(lastOfOther - x - kStep);
      put();
      toOther = nextToOther;
      toOne = nextToOne;
    }
    if (x < end) put();
    B::template putAlone<true>(lastToOne, lastOfOne);
    B::template putAlone<false>(firstToOther, other);
  }

  template <class D>
  static HWY_INLINE void straight(D d, std::uint8_t* one, std::uint8_t* other, std::size_t n) {
    using B = Block<kPixel, kUsed, D>;
    const std::size_t end = n * kPixel - B::kN;
    const auto lastOfOne = hn::LoadU(d, one + end), lastOfOther = hn::LoadU(d, other + end);
    std::size_t x = 0;
    for (; x + 2 * B::kN <= end; x += 2 * B::kN) {
      const auto a0 = hn::LoadU(d, one + x), a1 = hn::LoadU(d, one + x + B::kN);
      const auto b0 = hn::LoadU(d, other + x), b1 = hn::LoadU(d, other + x + B::kN);
      B::put(b0, one + x);
      B::put(b1, one + x + B::kN);
      B::put(a0, other + x);
      B::put(a1, other + x + B::kN);
    }
    for (; x < end; x += B::kN) {
      const auto a = hn::LoadU(d, one + x), b = hn::LoadU(d, other + x);
      B::put(b, one + x);
      B::put(a, other + x);
    }
    B::put(lastOfOther, one + end);
    B::put(lastOfOne, other + end);
  }

  // Runs of any length.
  template <bool kReversed>
  static HWY_INLINE void run(std::uint8_t* one, std::uint8_t* other, std::size_t n) {
    const std::size_t size = n * kPixel;
    if constexpr (!kScalarTarget) {
      const BlockTag<kPixel> wide;
      const hn::CappedTag<std::uint8_t, 16> narrow;
      if constexpr (kReversed) {
        if (size >= hn::MaxLanes(wide)) return reversed(wide, one, other, n);
        if (size >= hn::MaxLanes(narrow)) return reversed(narrow, one, other, n);
      } else {
        if (size >= hn::MaxLanes(wide)) return straight(wide, one, other, n);
        if (size >= hn::MaxLanes(narrow)) return straight(narrow, one, other, n);
      }
    }
    pixels<kReversed>(one, other, n);
  }
};

// By value: no store can change the band.
template <bool kReversed, std::size_t kPixel, std::size_t kUsed>
HWY_INLINE void exchangePairs(const mirror::ExchangeBand b) {
  std::uint8_t *one = b.one, *other = b.other;
  for (std::size_t y = 0; y < b.pairs; ++y, one += b.oneStep, other += b.otherStep)
    Exchange<kPixel, kUsed>::template run<kReversed>(one, other, b.n);
}

template <std::size_t kPixel, std::size_t kUsed = kPixel>
void ownExchangeReversed(const mirror::ExchangeBand& b) {
  exchangePairs<true, kPixel, kUsed>(b);
}

template <std::size_t kPixel, std::size_t kUsed = kPixel>
void ownExchange(const mirror::ExchangeBand& b) {
  exchangePairs<false, kPixel, kUsed>(b);
}

const mirror::ExchangeRows kExchangeRows = {
    KELI_BY_PIXEL(ownExchangeReversed),
    {{ownExchangeReversed<4, 3>, ownExchangeReversed<8, 6>, ownExchangeReversed<16, 12>}},
    ownExchange<1>,
    {{ownExchange<4, 3>, ownExchange<8, 6>, ownExchange<16, 12>}},
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::mirror {
KELI_SELECT_ROWS(ExchangeRows, kExchangeRows, exchangeRows)
}  // namespace keli::mirror
#endif
