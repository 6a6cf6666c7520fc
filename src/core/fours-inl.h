// Pixels of three bytes as pixels of four, each in a lane of 32 bits, and back to pixels or to one
// channel: four vectors of 64 bytes at a time, where shuffles reach across such vectors. It takes
// half the instructions of a vector for each channel, whose bytes then have to be widened.
#if defined(KELI_CORE_FOURS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CORE_FOURS_INL_H_
#undef KELI_CORE_FOURS_INL_H_
#else
#define KELI_CORE_FOURS_INL_H_
#endif

#include "core/simd-inl.h"
#include "core/types.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// A shuffle of 64 bytes: byte i of the result is byte source(i).
using FoursTable = std::array<std::uint8_t, 64>;
template <class F>
constexpr FoursTable foursTable(const F& source) {
  FoursTable t{};
  for (std::size_t i = 0; i < 64; ++i) t[i] = static_cast<std::uint8_t>(source(i));
  return t;
}

// Pixels of three bytes, the first of which stands at byte kFirst; a fourth byte of any value.
template <std::size_t kFirst>
inline constexpr FoursTable kSpreadFours = foursTable([](std::size_t i) {
  return kFirst + i / 4 * 3 + (i % 4 < 3 ? i % 4 : 2);
});

// Where a result has channel k of pixel x: blocks of 16 bytes hold four pixels, channel by channel.
constexpr std::size_t placeInFours(std::size_t x, std::size_t k) {
  return x / 4 * 16 + k * 4 + x % 4;
}

// The 16 pixels of vector kVector as three bytes each, turned so that they stand where they are
// stored among those of the vectors before.
template <std::size_t kVector>
inline constexpr FoursTable kPackedFours = foursTable([](std::size_t i) {
  const std::size_t byte = (i + 64 - kVector * 48 % 64) % 64;
  return byte < 48 ? placeInFours(byte / 3, byte % 3) : 0;
});
inline constexpr FoursTable kPixelsOfFours =
    foursTable([](std::size_t i) { return placeInFours(i / 4, i % 4); });

// Single bytes of 16 pixels of each of four vectors, whose blocks were narrowed together.
inline constexpr FoursTable kBytesOfFours =
    foursTable([](std::size_t x) { return x % 16 / 4 * 16 + x / 16 * 4 + x % 4; });

template <class D>
HWY_INLINE hn::Vec<D> permuteBy(D d, hn::Vec<D> v, const FoursTable& table) {
  return permuteBytes(d, v, hn::LoadU(d, table.data()));
}

// 64 pixels from src on.
template <Layout kFrom, class D>
HWY_INLINE void loadFours(D d, const std::uint8_t* src, hn::Vec<D> (&v)[4]) {
  unrolled<4>([&](auto j) KELI_LAMBDA {
    if constexpr (kFrom != Layout::C3) {
      v[j] = hn::LoadU(d, src + 64 * j);
    } else if constexpr (j < 3) {
      v[j] = permuteBy(d, hn::LoadU(d, src + 48 * j), kSpreadFours<0>);
    } else {  // no byte beyond the pixels
      v[j] = permuteBy(d, hn::LoadU(d, src + 128), kSpreadFours<16>);
    }
  });
}

// Vectors of 64 bytes in the order of memory. in: four vectors of results of three channels, or one
// of one channel.
template <Layout kTo, class D>
HWY_INLINE auto orderFours(D d, const std::array<hn::Vec<D>, kTo == Layout::C1 ? 1 : 4>& in) {
  if constexpr (kTo == Layout::C1) {
    return std::array<hn::Vec<D>, 1>{permuteBy(d, in[0], kBytesOfFours)};
  } else if constexpr (kTo == Layout::C3) {
    hn::Vec<D> v[4];
    unrolled<4>([&](auto j) KELI_LAMBDA { v[j] = permuteBy(d, in[j], kPackedFours<j>); });
    std::array<hn::Vec<D>, 3> out;
    unrolled<3>([&](auto j) KELI_LAMBDA {
      out[j] = hn::IfThenElse(hn::FirstN(d, 48 - 16 * j), v[j], v[j + 1]);
    });
    return out;
  } else {
    std::array<hn::Vec<D>, 4> out;
    unrolled<4>([&](auto j) KELI_LAMBDA { out[j] = permuteBy(d, in[j], kPixelsOfFours); });
    return out;
  }
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
