// Row driver of functions of an 8u sample: dst[i] = table[src[i]], a table of 256 results.
#if defined(KELI_CORE_LOOKUP_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CORE_LOOKUP_INL_H_
#undef KELI_CORE_LOOKUP_INL_H_
#else
#define KELI_CORE_LOOKUP_INL_H_
#endif

#include "core/band.h"
#include "core/simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// Keep as in map-inl.h. Eight samples are read at once, and their results written after that, so
// the driver works in place.
template <class TD, class Keep, class Table>
HWY_INLINE void lookupRow(const Table& table, const std::uint8_t* src, TD* dst, std::size_t n) {
  std::size_t i = 0;
  for (; i + 8 <= n; i += 8) {
    std::uint64_t eight;
    std::memcpy(&eight, src + i, 8);
    unrolled<8>([&](auto k) KELI_LAMBDA {
      // The cycles of Keep are 1, 4 or, where the phase is not fixed, 3 samples long.
      const std::size_t phase = Keep::kPeriod == 3 ? (i + k) % 3 : k % Keep::kPeriod;
      if (Keep::written(phase))
        store<TD>(table[static_cast<std::uint8_t>(eight >> (8 * k))], dst + i + k);
    });
  }
  for (; i < n; ++i) {
    if (Keep::written(i % Keep::kPeriod)) store<TD>(table[src[i]], dst + i);
  }
}

template <class TD, class Keep, class Table>
HWY_INLINE void lookupRows(const Band<1>& b, const Table& table) {
  for (std::size_t y = 0; y < b.rows; ++y) {
    lookupRow<TD, Keep>(table, b.srcRow<std::uint8_t>(0, y), b.dstRow<TD>(y), b.n - Keep::kTrim);
  }
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
