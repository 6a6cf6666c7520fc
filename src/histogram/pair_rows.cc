// Adds up the counts of pairs of bytes: the sums of the table's columns and of its rows.
#include "core/simd_config.h"
#include "core/target.h"
#include "histogram/pair_rows.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "histogram/pair_rows.cc"
#include <hwy/foreach_target.h>
//
#include "core/simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

using histogram::kByteValues;

// The columns in parts that stay in registers.
void ownAddPairs(const std::uint32_t* pairs, std::uint32_t* counts) {
  using D = hn::ScalableTag<std::uint32_t>;
  const D d;
  constexpr std::size_t kVectors = 8;
  constexpr std::size_t kPart = kVectors * hn::MaxLanes(D());
  static_assert(kByteValues % kPart == 0);
  for (std::size_t a = 0; a < kByteValues; a += kPart) {
    hn::Vec<D> columns[kVectors];
    for (auto& column : columns) column = hn::Zero(d);
    for (std::size_t b = 0; b < kByteValues; ++b) {
      const std::uint32_t* const row = pairs + kByteValues * b + a;
      auto sum = hn::Zero(d);
      unrolled<kVectors>([&](auto i) KELI_LAMBDA {
        const auto v = hn::LoadU(d, row + i * hn::MaxLanes(D()));
        columns[i] = columns[i] + v;
        sum = sum + v;
      });
      counts[b] += hn::GetLane(hn::SumOfLanes(d, sum));
    }
    unrolled<kVectors>([&](auto i) KELI_LAMBDA {
      std::uint32_t* const to = counts + a + i * hn::MaxLanes(D());
      hn::StoreU(hn::LoadU(d, to) + columns[i], d, to);
    });
  }
}

constexpr histogram::PairRows kPairs = {ownAddPairs};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::histogram {
KELI_SELECT_ROWS(PairRows, kPairs, pairRows)
}  // namespace keli::histogram
#endif
