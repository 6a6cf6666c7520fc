// Row kernels of zigzag order: 64 words change places. Where bytes can be permuted across 64 of
// them, 32 words come from each half of the source and are blended; else a row of eight words is
// put together from those rows that it has words of.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"
#include "dct/dct_rows.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "dct/zigzag_rows.cc"
#include <hwy/foreach_target.h>
//
#include "core/simd-inl.h"

#ifndef KELI_DCT_ZIGZAG_TABLES
#define KELI_DCT_ZIGZAG_TABLES
namespace keli::dct {

using Order = std::array<int, 64>;

// Where each word of the result stands in the source.
constexpr Order zigzagOrder() {
  Order order{};
  int x = 0, y = 0;
  for (int i = 0; i < 64; ++i) {
    order[static_cast<std::size_t>(i)] = 8 * y + x;
    const bool up = (x + y) % 2 == 0;
    int& ahead = up ? x : y;
    int& back = up ? y : x;
    if (ahead == 7) {  // the next diagonal begins along the block's far edge
      ++back;
    } else {
      ++ahead;
      if (back > 0) --back;
    }
  }
  return order;
}

constexpr Order inverted(const Order& order) {
  Order inverse{};
  for (int i = 0; i < 64; ++i)
    inverse[static_cast<std::size_t>(order[static_cast<std::size_t>(i)])] = i;
  return inverse;
}

struct ToZigzag {
  static constexpr Order kOrder = zigzagOrder();
};
struct FromZigzag {
  static constexpr Order kOrder = inverted(zigzagOrder());
};

// Byte indices of kWords words of the result from word `first` on, in the `part`th kWords of the
// source; kNone where a word stands in another part.
constexpr std::uint8_t kNone = 0x80;

template <class O, std::size_t kWords, std::size_t kFirst, std::size_t kPart>
struct Indices {
  static constexpr bool holds(std::size_t i) {
    return static_cast<std::size_t>(O::kOrder[kFirst + i]) / kWords == kPart;
  }
  static constexpr std::array<std::uint8_t, 2 * kWords> make() {
    std::array<std::uint8_t, 2 * kWords> a{};
    for (std::size_t i = 0; i < 2 * kWords; ++i) {
      const std::size_t at = static_cast<std::size_t>(O::kOrder[kFirst + i / 2]) % kWords;
      a[i] = holds(i / 2) ? static_cast<std::uint8_t>(2 * at + i % 2) : kNone;
    }
    return a;
  }
  static constexpr bool any() {
    for (std::size_t i = 0; i < kWords; ++i) {
      if (holds(i)) return true;
    }
    return false;
  }
  alignas(64) static constexpr std::array<std::uint8_t, 2 * kWords> kBytes = make();
};

}  // namespace keli::dct
#endif

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

using dct::Indices;

#if HWY_TARGET == HWY_SCALAR

template <class O>
void ownReorder(const Kel16s* src, Kel16s* dst) {
  for (std::size_t i = 0; i < 64; ++i) store(load(src + O::kOrder[i]), dst + i);
}

#else

template <class O>
HWY_INLINE void reorderHalves(const std::uint8_t* src, std::uint8_t* dst) {
  const hn::CappedTag<std::uint8_t, 64> d;
  const auto low = hn::LoadU(d, src), high = hn::LoadU(d, src + 64);
  unrolled<2>([&](auto half) KELI_LAMBDA {
    const auto fromLow = hn::Load(d, Indices<O, 32, 32 * half, 0>::kBytes.data());
    const auto fromHigh = hn::Load(d, Indices<O, 32, 32 * half, 1>::kBytes.data());
    const auto isHigh = hn::Eq(fromLow, hn::Set(d, dct::kNone));
    hn::StoreU(
        hn::IfThenElse(isHigh, permuteBytes(d, high, fromHigh), permuteBytes(d, low, fromLow)), d,
        dst + 64 * half);
  });
}

template <class O>
HWY_INLINE void reorderRows(const std::uint8_t* src, std::uint8_t* dst) {
  const hn::CappedTag<std::uint8_t, 16> d;
  hn::Vec<decltype(d)> rows[8];
  unrolled<8>([&](auto k) KELI_LAMBDA { rows[k] = hn::LoadU(d, src + 16 * k); });
  unrolled<8>([&](auto i) KELI_LAMBDA {
    auto row = hn::Zero(d);
    unrolled<8>([&](auto k) KELI_LAMBDA {
      using From = Indices<O, 8, 8 * i, k>;
      if constexpr (From::any()) {
        row = hn::Or(row, hn::TableLookupBytesOr0(rows[k], hn::Load(d, From::kBytes.data())));
      }
    });
    hn::StoreU(row, d, dst + 16 * i);
  });
}

template <class O>
void ownReorder(const Kel16s* src, Kel16s* dst) {
  const auto* const from = reinterpret_cast<const std::uint8_t*>(src);
  auto* const to = reinterpret_cast<std::uint8_t*>(dst);
  if constexpr (kPermutesBytes) {
    reorderHalves<O>(from, to);
  } else {
    reorderRows<O>(from, to);
  }
}

#endif

const dct::ZigzagRows kZigzagRows = {ownReorder<dct::ToZigzag>, ownReorder<dct::FromZigzag>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::dct {
KELI_SELECT_ROWS(ZigzagRows, kZigzagRows, zigzagRows)
}  // namespace keli::dct
#endif
