// Operations that look results up in a table of 256 bytes, for the drivers of map-inl.h.
#if defined(KELI_CORE_BYTE_TABLE_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CORE_BYTE_TABLE_INL_H_
#undef KELI_CORE_BYTE_TABLE_INL_H_
#else
#define KELI_CORE_BYTE_TABLE_INL_H_
#endif

#include "core/map-inl.h"
#include "core/vector_tables-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

struct LookUpBytes {
  static constexpr std::size_t kPeriod = 1;
  static constexpr std::size_t kUnroll = 4;
  static constexpr std::size_t kVectorBytes = 64;  // a permutation takes as long for 32
  const std::uint8_t* table;

  template <class D>
  HWY_INLINE Table256<D> at(D, std::size_t) const {
    return Table256<D>::make(table);
  }
  template <class D, class V>
  HWY_INLINE V vector(D, const Table256<D>& entries, V v) const {
    return entries(v);
  }
  HWY_INLINE std::uint8_t scalar(std::size_t, std::uint8_t v) const { return table[v]; }
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
