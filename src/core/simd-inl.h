// Vector helpers that the SIMD library lacks, for every target.
#if defined(KELI_CORE_SIMD_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CORE_SIMD_INL_H_
#undef KELI_CORE_SIMD_INL_H_
#else
#define KELI_CORE_SIMD_INL_H_
#endif

#include <array>
#include <cstring>
#include <limits>
#include <type_traits>
#include <utility>

#include <hwy/highway.h>

// Lambdas of kernels: compiled for the target, and never left as calls.
#ifndef KELI_LAMBDA
#define KELI_LAMBDA HWY_ATTR __attribute__((always_inline))
#endif

// The library leaves out the dot products of bytes and words that all processors of this target
// have, and that target.cc asks for.
#if HWY_TARGET == HWY_AVX3_DL
#undef HWY_TARGET_STR
#define HWY_TARGET_STR                                            \
  HWY_TARGET_STR_AVX3                                             \
  ",vpclmulqdq,avx512vbmi,avx512vbmi2,vaes,avxvnni,avx512bitalg," \
  "avx512vpopcntdq,avx512vnni"
#endif

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET == HWY_SCALAR
constexpr bool kScalarTarget = true;
#else
constexpr bool kScalarTarget = false;
#endif

// Shuffles of bytes across a vector of 32 or 64 bytes.
#if HWY_TARGET == HWY_AVX3_DL
constexpr bool kPermutesBytes = true;
template <class D>
HWY_INLINE hn::Vec<D> permuteBytes(D, hn::Vec<D> bytes, hn::Vec<D> indices) {
  if constexpr (hn::MaxLanes(D()) == 64) {
    return hn::Vec<D>{_mm512_permutexvar_epi8(indices.raw, bytes.raw)};
  } else {
    return hn::Vec<D>{_mm256_permutexvar_epi8(indices.raw, bytes.raw)};
  }
}
#else
constexpr bool kPermutesBytes = false;
template <class D>
hn::Vec<D> permuteBytes(D, hn::Vec<D> bytes, hn::Vec<D> indices);
#endif

// Whether unsigned lanes are compared in one instruction.
#if HWY_TARGET == HWY_AVX3_DL
constexpr bool kComparesUnsigned = true;
#else
constexpr bool kComparesUnsigned = false;
#endif

// Lanes of 8 and 16 bits by counts of their own. pickBits takes each byte from any bit on of the 64
// that it belongs to, beyond the last of which stands the first.
#if HWY_TARGET == HWY_AVX3_DL
constexpr bool kShiftsNarrowLanes = true;
template <class D>
HWY_INLINE hn::Vec<D> pickBits(D, hn::Vec<D> bytes, hn::Vec<D> firstBits) {
  if constexpr (hn::MaxLanes(D()) == 32) {
    return hn::Vec<D>{_mm256_multishift_epi64_epi8(firstBits.raw, bytes.raw)};
  } else {
    static_assert(hn::MaxLanes(D()) <= 16);
    return hn::Vec<D>{_mm_multishift_epi64_epi8(firstBits.raw, bytes.raw)};
  }
}
#else
constexpr bool kShiftsNarrowLanes = false;
template <class D>
hn::Vec<D> pickBits(D, hn::Vec<D> bytes, hn::Vec<D> firstBits);
#endif
// Samples stand at any address.
template <class T>
HWY_INLINE T load(const T* p) {
  T v;
  std::memcpy(&v, p, sizeof(T));
  return v;
}

template <class T>
HWY_INLINE void store(T v, T* p) {
  std::memcpy(p, &v, sizeof(T));
}

// The first count samples from p on, fewer than a vector, and zeros.
template <class D>
HWY_INLINE hn::Vec<D> loadFirst(D d, const hn::TFromD<D>* p, std::size_t count) {
#if HWY_TARGET == HWY_AVX3_DL
  return hn::MaskedLoad(hn::FirstN(d, count), d, p);
#else
  HWY_ALIGN hn::TFromD<D> samples[hn::MaxLanes(D())] = {};
  std::memcpy(samples, p, count * sizeof(hn::TFromD<D>));
  return hn::Load(d, samples);
#endif
}

// Stores the first count lanes of v, fewer than all.
template <class D>
HWY_INLINE void storeFirst(D d, hn::Vec<D> v, hn::TFromD<D>* p, std::size_t count) {
#if HWY_TARGET == HWY_AVX3_DL
  hn::BlendedStore(v, hn::FirstN(d, count), d, p);
#else
  HWY_ALIGN hn::TFromD<D> samples[hn::MaxLanes(D())];
  hn::Store(v, d, samples);
  std::memcpy(p, samples, count * sizeof(hn::TFromD<D>));
#endif
}

// a > b ? a : b and a < b ? a : b, of floats with b where one is not a number or both are zeros.
template <class V>
HWY_INLINE V greaterElse(V a, V b) {
#if HWY_ARCH_X86 && HWY_TARGET != HWY_SCALAR
  // The processor's own maximum and minimum of floats are just these.
  return hn::Max(a, b);
#else
  return hn::IfThenElse(hn::Gt(a, b), a, b);
#endif
}
template <class V>
HWY_INLINE V lessElse(V a, V b) {
#if HWY_ARCH_X86 && HWY_TARGET != HWY_SCALAR
  return hn::Min(a, b);
#else
  return hn::IfThenElse(hn::Lt(a, b), a, b);
#endif
}

// Floats, those that are no numbers in one form: which of two such operands an operation passes on
// depends on the order that the compiler gives them.
template <class D>
HWY_INLINE hn::Vec<D> settledLanes(D d, hn::Vec<D> v) {
  const auto none = hn::Set(d, std::numeric_limits<float>::quiet_NaN());
  return hn::IfThenElse(hn::Eq(v, v), v, none);
}

// Keeps a vector that is used several times from being loaded for every use, which compilers take
// to cost nothing: where lines come from the second-level cache it cost a third of the speed.
template <class V>
HWY_INLINE void keepLoaded([[maybe_unused]] V& v) {
#if HWY_ARCH_X86 && HWY_TARGET != HWY_SCALAR
  asm("" : "+v"(v.raw));
#endif
}

// Exchanges the lanes of integers a and b that are not in order. Extremes of 64 bytes have a single
// unit, bitwise operations two.
template <class V>
HWY_INLINE void sortTwo(V& a, V& b) {
  keepLoaded(a);
  keepLoaded(b);
  const V least = hn::Min(a, b);
  b = hn::Xor3(a, b, least);
  a = least;
}

// counts + 1 in the lanes of mask.
template <class D, class M>
HWY_INLINE hn::Vec<D> countLanes([[maybe_unused]] D d, hn::Vec<D> counts, M mask) {
#if HWY_TARGET == HWY_AVX3_DL
  return hn::IfThenElse(mask, hn::Add(counts, hn::Set(d, 1)), counts);  // one masked instruction
#else
  return hn::Sub(counts, hn::VecFromMask(d, mask));
#endif
}

// Calls f with the constants 0 .. kCount - 1: a loop whose index is a template argument.
template <class F, std::size_t... I>
HWY_INLINE void unrolledImpl(F&& f, std::index_sequence<I...>) {
  (f(std::integral_constant<std::size_t, I>{}), ...);
}

template <std::size_t kCount, class F>
HWY_INLINE void unrolled(F&& f) {
  unrolledImpl(static_cast<F&&>(f), std::make_index_sequence<kCount>{});
}

// a.even * b.even + a.odd * b.odd of each pair of 16-bit lanes; 2^31, of four factors -32768,
// wraps.
template <class DW, class V>
HWY_INLINE hn::Vec<DW> multiplyAddPairs([[maybe_unused]] DW dw, V a, V b) {
#if HWY_ARCH_X86 && HWY_TARGET != HWY_SCALAR
  if constexpr (hn::MaxLanes(DW()) == 8) {
    return hn::Vec<DW>{_mm256_madd_epi16(a.raw, b.raw)};
#if HWY_TARGET == HWY_AVX3_DL
  } else if constexpr (hn::MaxLanes(DW()) == 16) {
    return hn::Vec<DW>{_mm512_madd_epi16(a.raw, b.raw)};
#endif
  } else {
    return hn::Vec<DW>{_mm_madd_epi16(a.raw, b.raw)};
  }
#else
  const auto wideA = hn::BitCast(dw, a), wideB = hn::BitCast(dw, b);
  const auto evenA = hn::ShiftRight<16>(hn::ShiftLeft<16>(wideA));
  const auto evenB = hn::ShiftRight<16>(hn::ShiftLeft<16>(wideB));
  return evenA * evenB + hn::ShiftRight<16>(wideA) * hn::ShiftRight<16>(wideB);
#endif
}

// sum + a.even * b.even + a.odd * b.odd of each pair of 16-bit lanes.
template <class DW, class V>
HWY_INLINE hn::Vec<DW> addProductsOfPairs(DW dw, hn::Vec<DW> sum, V a, V b) {
#if HWY_TARGET == HWY_AVX3_DL
  if constexpr (hn::MaxLanes(DW()) == 16) {
    return hn::Vec<DW>{_mm512_dpwssd_epi32(sum.raw, a.raw, b.raw)};
  }
#endif
  return sum + multiplyAddPairs(dw, a, b);
}

// sum + a * b of each four bytes, those of a unsigned and those of b signed.
#if HWY_TARGET == HWY_AVX3_DL
constexpr bool kMultipliesBytes = true;
template <class DW, class VU, class VI>
HWY_INLINE hn::Vec<DW> addProductsOfFours(DW, hn::Vec<DW> sum, VU a, VI b) {
  static_assert(hn::MaxLanes(DW()) == 16);
  return hn::Vec<DW>{_mm512_dpbusd_epi32(sum.raw, a.raw, b.raw)};
}
#else
constexpr bool kMultipliesBytes = false;
template <class DW, class VU, class VI>
hn::Vec<DW> addProductsOfFours(DW, hn::Vec<DW> sum, VU a, VI b);
#endif

// The odd lane of each pair, twice.
template <class V>
HWY_INLINE V dupOdd(V v) {
#if HWY_TARGET == HWY_SCALAR
  return v;  // never run: the drivers call scalar definitions
#else
  return hn::DupOdd(v);
#endif
}

// Signed lanes saturated to half their width: each 16 bytes hold those of lo, then those of hi,
// which begin at byte 8 in shorter vectors too.
template <class D, class VW>
HWY_INLINE hn::Vec<D> packSaturated([[maybe_unused]] D d, [[maybe_unused]] VW lo,
                                    [[maybe_unused]] VW hi) {
#if HWY_ARCH_X86 && HWY_TARGET != HWY_SCALAR
  using T = hn::TFromD<D>;
  if constexpr (hn::MaxLanes(D()) * sizeof(T) <= 16) {
    if constexpr (std::is_same_v<T, std::uint8_t>) {
      return hn::Vec<D>{_mm_packus_epi16(lo.raw, hi.raw)};
    } else if constexpr (std::is_same_v<T, std::int8_t>) {
      return hn::Vec<D>{_mm_packs_epi16(lo.raw, hi.raw)};
    } else if constexpr (std::is_same_v<T, std::uint16_t>) {
      return hn::Vec<D>{_mm_packus_epi32(lo.raw, hi.raw)};
    } else {
      static_assert(std::is_same_v<T, std::int16_t>);
      return hn::Vec<D>{_mm_packs_epi32(lo.raw, hi.raw)};
    }
  } else if constexpr (hn::MaxLanes(D()) * sizeof(T) == 32) {
    if constexpr (std::is_same_v<T, std::uint8_t>) {
      return hn::Vec<D>{_mm256_packus_epi16(lo.raw, hi.raw)};
    } else if constexpr (std::is_same_v<T, std::int8_t>) {
      return hn::Vec<D>{_mm256_packs_epi16(lo.raw, hi.raw)};
    } else if constexpr (std::is_same_v<T, std::uint16_t>) {
      return hn::Vec<D>{_mm256_packus_epi32(lo.raw, hi.raw)};
    } else {
      static_assert(std::is_same_v<T, std::int16_t>);
      return hn::Vec<D>{_mm256_packs_epi32(lo.raw, hi.raw)};
    }
#if HWY_TARGET == HWY_AVX3_DL
  } else {
    if constexpr (std::is_same_v<T, std::uint8_t>) {
      return hn::Vec<D>{_mm512_packus_epi16(lo.raw, hi.raw)};
    } else if constexpr (std::is_same_v<T, std::int8_t>) {
      return hn::Vec<D>{_mm512_packs_epi16(lo.raw, hi.raw)};
    } else if constexpr (std::is_same_v<T, std::uint16_t>) {
      return hn::Vec<D>{_mm512_packus_epi32(lo.raw, hi.raw)};
    } else {
      static_assert(std::is_same_v<T, std::int16_t>);
      return hn::Vec<D>{_mm512_packs_epi32(lo.raw, hi.raw)};
    }
#endif
  }
#elif HWY_TARGET != HWY_SCALAR
  const hn::Half<D> dh;
  return hn::Combine(d, hn::DemoteTo(dh, hi), hn::DemoteTo(dh, lo));
#else
  return hn::Zero(d);  // never run: the drivers call scalar definitions
#endif
}

// The lanes of even and odd by turns, signed 32-bit lanes saturated to 16 bits.
template <class D, class V>
HWY_INLINE hn::Vec<D> packAlternately([[maybe_unused]] D d, V even, V odd) {
#if HWY_ARCH_X86 && HWY_TARGET != HWY_SCALAR
  alignas(16) static constexpr std::uint8_t kTurns[16] = {0, 1, 8,  9,  2, 3, 10, 11,
                                                          4, 5, 12, 13, 6, 7, 14, 15};
  const hn::Repartition<std::uint8_t, D> d8;
  const auto turns = hn::BitCast(d, hn::LoadDup128(d8, kTurns));
  return hn::TableLookupBytes(packSaturated(d, even, odd), turns);
#else
  const hn::RepartitionToWide<D> dw;
  const auto least = hn::Set(dw, -32768), most = hn::Set(dw, 32767);
  const auto fit = [&](V v) KELI_LAMBDA { return hn::Min(hn::Max(v, least), most); };
  return hn::OddEven(hn::BitCast(d, hn::ShiftLeft<16>(fit(odd))), hn::BitCast(d, fit(even)));
#endif
}

// v >> count, for lanes of 32 bits, and of 64 that are unsigned.
template <class D>
HWY_INLINE hn::Vec<D> shiftRightBy([[maybe_unused]] D d, hn::Vec<D> v, int count) {
#if HWY_TARGET == HWY_SSE4
  return hn::ShiftRightSame(v, count);
#else
  // One count for each lane is one instruction, a common count is two. Of a single lane of 32 bits
  // the library would take the count from 64, of which Set has filled both halves.
  if constexpr (hn::MaxLanes(D()) == 1) return hn::ShiftRightSame(v, count);
  return v >> hn::Set(d, static_cast<hn::TFromD<D>>(count));
#endif
}

// Each lane of floats without its fraction. A lane of 2^31 or more in size, and one that is no
// number, gives -2^31 on x86 and is the caller's care elsewhere.
template <class DI, class V>
HWY_INLINE hn::Vec<DI> truncateToInt([[maybe_unused]] DI di, V v) {
#if HWY_ARCH_X86 && HWY_TARGET != HWY_SCALAR
  if constexpr (hn::MaxLanes(DI()) == 8) {
    return hn::Vec<DI>{_mm256_cvttps_epi32(v.raw)};
#if HWY_TARGET == HWY_AVX3_DL
  } else if constexpr (hn::MaxLanes(DI()) == 16) {
    return hn::Vec<DI>{_mm512_cvttps_epi32(v.raw)};
#endif
  } else {
    return hn::Vec<DI>{_mm_cvttps_epi32(v.raw)};
  }
#else
  return hn::ConvertTo(di, v);
#endif
}

// Each lane of floats rounded to the nearest integer, ties to even, whatever the rounding mode of
// the caller; as with truncateToInt, no lane is given the library's care for overflow.
template <class DI, class V>
HWY_INLINE hn::Vec<DI> roundToInt(DI di, V v) {
#if HWY_TARGET == HWY_AVX3_DL
  if constexpr (hn::MaxLanes(DI()) == 16) {
    return hn::Vec<DI>{
        _mm512_cvt_roundps_epi32(v.raw, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC)};
  }
#endif
  return truncateToInt(di, hn::Round(v));
}

// All bits of the samples whose position in a cycle of kPeriod is below kUsed, long enough to load
// a vector from any phase.
template <class T, std::size_t kPeriod, std::size_t kUsed>
struct CyclePattern {
  using Bits = hwy::MakeUnsigned<T>;
  static constexpr std::size_t kSize = HWY_MAX_BYTES / sizeof(T) + kPeriod;

  static constexpr std::array<Bits, kSize> make() {
    std::array<Bits, kSize> a{};
    for (std::size_t i = 0; i < kSize; ++i)
      a[i] = i % kPeriod < kUsed ? static_cast<Bits>(~Bits{0}) : Bits{0};
    return a;
  }

  static constexpr std::array<Bits, kSize> kBits = make();
};

template <std::size_t kPeriod, std::size_t kUsed, class D>
HWY_INLINE auto cycleMask(D d, std::size_t phase) {
  using T = hn::TFromD<D>;
  const hn::RebindToUnsigned<D> du;
  return hn::MaskFromVec(
      hn::BitCast(d, hn::LoadU(du, CyclePattern<T, kPeriod, kUsed>::kBits.data() + phase)));
}

// Stays between stores that are to be made in the order of the source: compilers else take the
// halves of a cache line apart, which costs a tenth of a streaming loop's speed.
HWY_INLINE void keepOrder() { asm volatile("" ::: "memory"); }

// Stores the lanes of v that mask has; the others keep their values, read and written back where
// the target has no stores under a mask.
template <class D, class M>
HWY_INLINE void storeWhere(D d, M mask, hn::Vec<D> v, hn::TFromD<D>* dst) {
#if HWY_TARGET == HWY_AVX3_DL
  hn::BlendedStore(v, mask, d, dst);
#else
  hn::StoreU(hn::IfThenElse(mask, v, hn::LoadU(d, dst)), d, dst);
#endif
}

// Asks for a line of the destination that stores under a mask will soon meet. Beyond the caches
// they do not make every processor fetch what follows, as loads do.
HWY_INLINE void fetchAhead(const void* dst) {
  __builtin_prefetch(static_cast<const std::uint8_t*>(dst) + 512, 1);
}

// Indices that repeat the first kPixel of 16 bytes, long enough to load a vector from any byte of
// them.
template <std::size_t kPixel>
struct RepeatIndices {
  static constexpr std::size_t kSize = HWY_MAX_BYTES + 16;

  static constexpr std::array<std::uint8_t, kSize> make() {
    std::array<std::uint8_t, kSize> a{};
    for (std::size_t i = 0; i < kSize; ++i) a[i] = static_cast<std::uint8_t>(i % kPixel);
    return a;
  }

  static constexpr std::array<std::uint8_t, kSize> kBytes = make();
};

// The bytes of a pixel of kPixel bytes, over and over, from byte `phase` of it on. pixel: 16 bytes.
template <std::size_t kPixel, class D>
HWY_INLINE hn::Vec<D> repeatPixel(D d, const std::uint8_t* pixel, std::size_t phase) {
  const std::uint8_t* const indices = RepeatIndices<kPixel>::kBytes.data() + phase;
  if constexpr (hn::MaxLanes(D()) * sizeof(hn::TFromD<D>) >= 16) {
    const hn::Repartition<std::uint8_t, D> d8;
    return hn::BitCast(d, hn::TableLookupBytes(hn::LoadDup128(d8, pixel), hn::LoadU(d8, indices)));
  } else {  // a shorter vector's look-up would not see all of the pixel
    std::uint8_t repeated[16];
    for (std::size_t i = 0; i < 16; ++i) repeated[i] = pixel[indices[i]];
    return hn::LoadU(d, reinterpret_cast<const hn::TFromD<D>*>(repeated));
  }
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
