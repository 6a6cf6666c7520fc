// Look-ups in tables that vectors hold. Like simd-inl.h it looks at the target and inside vectors.
#if defined(KELI_CORE_VECTOR_TABLES_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CORE_VECTOR_TABLES_INL_H_
#undef KELI_CORE_VECTOR_TABLES_INL_H_
#else
#define KELI_CORE_VECTOR_TABLES_INL_H_
#endif

#include "core/simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// The entries of a table at indices, for bytes: of one of 16 at indices below 16, and of one of
// 256. Tables are laid out for vectors of D, and loaded once for many look-ups.
#if HWY_TARGET == HWY_SCALAR
template <class D>
struct Table16 {  // never run: the drivers call scalar definitions
  static HWY_INLINE Table16 make(const std::uint8_t*) { return {}; }
  HWY_INLINE hn::Vec<D> operator()(hn::Vec<D> indices) const { return indices; }
};
template <class D>
using Table256 = Table16<D>;
#else
template <class D>
struct Table16 {
  // A shorter vector's own look-up would not see the whole table.
  using Whole = hn::CappedTag<std::uint8_t, (hn::MaxLanes(D()) < 16 ? 16 : hn::MaxLanes(D()))>;
  hn::Vec<Whole> entries;

  static HWY_INLINE Table16 make(const std::uint8_t* table) {
    return {hn::LoadDup128(Whole(), table)};
  }
  HWY_INLINE hn::Vec<D> operator()(hn::Vec<D> indices) const {
    return hn::TableLookupBytes(entries, indices);
  }
};

#if HWY_TARGET == HWY_AVX3_DL
// Two permutations of 128 entries each, all in 64-byte registers whatever the lanes' number.
template <class D>
struct Table256 {
  using Whole = hn::CappedTag<std::uint8_t, 64>;
  hn::Vec<Whole> quarters[4];

  static HWY_INLINE Table256 make(const std::uint8_t* table) {
    Table256 t;
    for (std::size_t k = 0; k < 4; ++k) t.quarters[k] = hn::LoadU(Whole(), table + 64 * k);
    return t;
  }
  HWY_INLINE hn::Vec<D> operator()(hn::Vec<D> indices) const {
    if constexpr (hn::MaxLanes(D()) == 64) {
      return hn::Vec<D>{permuted(indices.raw)};
    } else if constexpr (hn::MaxLanes(D()) == 32) {
      return hn::Vec<D>{_mm512_castsi512_si256(permuted(_mm512_castsi256_si512(indices.raw)))};
    } else {
      return hn::Vec<D>{_mm512_castsi512_si128(permuted(_mm512_castsi128_si512(indices.raw)))};
    }
  }

 private:
  HWY_INLINE __m512i permuted(__m512i i) const {
    const __m512i low = _mm512_permutex2var_epi8(quarters[0].raw, i, quarters[1].raw);
    const __m512i high = _mm512_permutex2var_epi8(quarters[2].raw, i, quarters[3].raw);
    return _mm512_mask_mov_epi8(low, _mm512_movepi8_mask(i), high);
  }
};
#else
// Sixteen tables of 16. The look-up of table k gives 0 for indices below 16 k of its half, so that
// tables that hold the differences to the ones before them add up to the right one.
template <class D>
struct Table256 {
  using Whole = typename Table16<D>::Whole;
  using Signed = hn::RebindToSigned<D>;
  hn::Vec<Whole> differences[16];

  static HWY_INLINE Table256 make(const std::uint8_t* table) {
    Table256 t;
    for (std::size_t k = 0; k < 16; ++k) {
      t.differences[k] = hn::LoadDup128(Whole(), table + 16 * k);
      if (k % 8 == 0) continue;
      const auto before = hn::LoadDup128(Whole(), table + 16 * (k - 1));
      t.differences[k] = hn::Xor(t.differences[k], before);
    }
    return t;
  }
  HWY_INLINE hn::Vec<D> operator()(hn::Vec<D> indices) const {
    const D d;
    const Signed ds;
    const auto sixteen = hn::Set(ds, 16);
    // Indices below 0 look up 0, and stay below 0: those of the other half of the table.
    auto low = hn::BitCast(ds, indices), high = hn::Xor(low, hn::Set(ds, -128));
    auto sum = hn::Zero(d);
    for (std::size_t k = 0; k < 8; ++k) {
      const auto a = hn::TableLookupBytesOr0(differences[k], hn::BitCast(d, low));
      const auto b = hn::TableLookupBytesOr0(differences[k + 8], hn::BitCast(d, high));
      sum = hn::Xor(sum, hn::Xor(a, b));
      low = hn::SaturatedSub(low, sixteen);
      high = hn::SaturatedSub(high, sixteen);
    }
    return sum;
  }
};
#endif
#endif  // HWY_TARGET == HWY_SCALAR

// The floats of a table in a vector at indices below their number. The library's own look-up checks
// the indices in some builds, for which a program would have to be linked with it.
template <class D, class VI>
HWY_INLINE hn::Vec<D> lookUpFloats([[maybe_unused]] D d, hn::Vec<D> table,
                                   [[maybe_unused]] VI indices) {
#if HWY_TARGET == HWY_SCALAR
  return table;  // never run: the drivers call scalar definitions
#else
#if HWY_TARGET == HWY_AVX2 || HWY_TARGET == HWY_AVX3_DL
  if constexpr (hn::MaxLanes(D()) == 8) {
    return hn::Vec<D>{_mm256_permutevar8x32_ps(table.raw, indices.raw)};
#if HWY_TARGET == HWY_AVX3_DL
  } else if constexpr (hn::MaxLanes(D()) == 16) {
    return hn::Vec<D>{_mm512_permutexvar_ps(indices.raw, table.raw)};
#endif
  } else
#endif
  {
    // Within 16 bytes: the index of a lane four times, made those of its bytes.
    alignas(16) static constexpr std::uint8_t kFirst[16] = {0, 0, 0, 0, 4,  4,  4,  4,
                                                            8, 8, 8, 8, 12, 12, 12, 12};
    alignas(16) static constexpr std::uint8_t kByte[16] = {0, 1, 2, 3, 0, 1, 2, 3,
                                                           0, 1, 2, 3, 0, 1, 2, 3};
    const hn::Repartition<std::uint8_t, D> d8;
    const auto firstBytes = hn::BitCast(d8, hn::ShiftLeft<2>(indices));
    const auto bytes = hn::TableLookupBytes(firstBytes, hn::LoadDup128(d8, kFirst));
    return hn::BitCast(
        d, hn::TableLookupBytes(hn::BitCast(d8, table), hn::Add(bytes, hn::LoadDup128(d8, kByte))));
  }
#endif
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
