// Row driver of predicates on pixels: dst[x] = 255 where the predicate holds for the samples of all
// channels of pixel x, else 0, one byte for a pixel.
//
// A predicate (Op) has
//   kPeriod                 length of the cycle of its constants: 1, 4, or 3 for three channels
//   at(d, phase)            what a vector that starts at that phase needs, loop-invariant
//   vector(d, at, a...)     all bits of the signed lanes whose samples satisfy it, d: their tag
//   scalar(phase, a...)     the definition; it alone runs on the scalar target
// kChannels: samples of a pixel, 1, 3 or 4; the fourth may be ignored.
//
// A step makes a vector of bytes. Packs narrow the lanes of the samples to bytes, those of four
// channels are compared with all bits as one lane of 32 bits, and packs narrow that to a byte for
// each pixel. Three channels are spread to four first. Packs of vectors of 32 bytes work on halves:
// what they have put out of order is set right by one permutation at the end, or before samples of
// three channels are spread.
#if defined(KELI_CORE_PREDICATE_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CORE_PREDICATE_INL_H_
#undef KELI_CORE_PREDICATE_INL_H_
#else
#define KELI_CORE_PREDICATE_INL_H_
#endif

#include <algorithm>

#include <hwy/cache_control.h>

#include "core/band.h"
#include "core/simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// The lanes of a mask as signed integers.
template <class D>
using LanesOfMask = hn::Vec<hn::RebindToSigned<D>>;

template <class D, class M>
HWY_INLINE LanesOfMask<D> lanesOf(D d, M mask) {
  return hn::BitCast(hn::RebindToSigned<D>(), hn::VecFromMask(d, mask));
}

#if HWY_TARGET != HWY_SCALAR
// holds(a, b) of doubles for lanes of floats, as lanesOf gives it.
template <class D, class V, class Holds>
HWY_INLINE LanesOfMask<D> lanesOfDoubles(D d, V a, V b, const Holds& holds) {
  const hn::RebindToSigned<D> di;
  const hn::Repartition<double, D> dd;
  const hn::Half<D> half;
  const auto low = holds(dd, hn::PromoteTo(dd, hn::LowerHalf(half, a)),
                         hn::PromoteTo(dd, hn::LowerHalf(half, b)));
  const auto high = holds(dd, hn::PromoteTo(dd, hn::UpperHalf(half, a)),
                          hn::PromoteTo(dd, hn::UpperHalf(half, b)));
  return hn::ConcatEven(di, hn::BitCast(di, hn::VecFromMask(dd, high)),
                        hn::BitCast(di, hn::VecFromMask(dd, low)));
}

namespace predicate {

// Units of kUnit bytes from the two halves of a vector in turns; a vector of one half stays as it
// is.
template <std::size_t kUnit, class D>
HWY_INLINE hn::Vec<D> interleaveHalves(D d, hn::Vec<D> v) {
  if constexpr (hn::MaxLanes(D()) == 16 || kUnit == 16) {
    return v;
  } else {
    static constexpr std::int32_t kEights[8] = {0, 1, 4, 5, 2, 3, 6, 7};
    static constexpr std::int32_t kFours[8] = {0, 4, 1, 5, 2, 6, 3, 7};
    const hn::Repartition<std::int32_t, D> d32;
    const auto indices = hn::SetTableIndices(d32, kUnit == 4 ? kFours : kEights);
    const auto w = hn::BitCast(d, hn::TableLookupLanes(hn::BitCast(d32, v), indices));
    if constexpr (kUnit >= 4) {
      return w;
    } else {
      alignas(16) static constexpr std::int8_t kTwos[16] = {0, 1, 8,  9,  2, 3, 10, 11,
                                                            4, 5, 12, 13, 6, 7, 14, 15};
      alignas(16) static constexpr std::int8_t kOnes[16] = {0, 8,  1, 9,  2, 10, 3, 11,
                                                            4, 12, 5, 13, 6, 14, 7, 15};
      return hn::TableLookupBytes(w, hn::LoadDup128(d, kUnit == 2 ? kTwos : kOnes));
    }
  }
}

// The pixels of kBytes bytes of the mask.
template <class Op, class T, std::size_t kChannels, std::size_t kBytes>
struct Step {
  using D = hn::CappedTag<T, kBytes / sizeof(T)>;
  using D8 = hn::CappedTag<std::int8_t, kBytes>;
  using D16 = hn::Repartition<std::int16_t, D8>;
  using D32 = hn::Repartition<std::int32_t, D8>;
  using Bytes = hn::Vec<D8>;
  static constexpr std::size_t kLanes = hn::MaxLanes(D());
  static constexpr std::size_t kPhases = Op::kPeriod == 3 ? 3 : 1;

  const Op& op;
  Bytes ignored;
  decltype(std::declval<Op>().at(D(), 0)) at[kPhases];

  HWY_INLINE Step(const Op& o, std::uint32_t ignoredBits)
      : op(o),
        ignored(hn::BitCast(D8(), hn::Set(hn::Repartition<std::uint32_t, D8>(), ignoredBits))) {
    unrolled<kPhases>([&](auto u) KELI_LAMBDA { at[u] = op.at(D(), u * kLanes % Op::kPeriod); });
  }

  // Of vector i of samples.
  template <std::size_t i, class... TS>
  HWY_INLINE LanesOfMask<D> holds(const TS*... src) const {
    return op.vector(D(), at[i % kPhases], hn::LoadU(D(), src + i * kLanes)...);
  }

  // Bytes of the samples of vectors of bytes number j, narrowed in halves.
  template <std::size_t j, class... TS>
  HWY_INLINE Bytes samples(const TS*... src) const {
    if constexpr (sizeof(T) == 1) {
      return holds<j>(src...);
    } else if constexpr (sizeof(T) == 2) {
      return packSaturated(D8(), holds<2 * j>(src...), holds<2 * j + 1>(src...));
    } else {
      return narrowed(holds<4 * j>(src...), holds<4 * j + 1>(src...), holds<4 * j + 2>(src...),
                      holds<4 * j + 3>(src...));
    }
  }

  template <class V>
  static HWY_INLINE Bytes narrowed(V a, V b, V c, V d) {
    return packSaturated(D8(), packSaturated(D16(), a, b), packSaturated(D16(), c, d));
  }

  // All bits of the lanes of four bytes that have them all.
  static HWY_INLINE hn::Vec<D32> all(Bytes v) {
    const D32 d;
    return hn::VecFromMask(d, hn::Eq(hn::BitCast(d, v), hn::Set(d, -1)));
  }

  // Samples in order, to pixels of three.
  static HWY_INLINE Bytes threes(Bytes a, Bytes b, Bytes c) {
    const D8 d;
    if constexpr (kBytes == 32) {  // each half its own pixels
      const Bytes low = a, middle = b;
      a = hn::ConcatUpperLower(d, middle, low);
      b = hn::ConcatLowerUpper(d, c, low);
      c = hn::ConcatUpperLower(d, c, middle);
    }
    alignas(16) static constexpr std::int8_t kFirst[16] = {0, 1, 2, 2, 3, 4,  5,  5,
                                                           6, 7, 8, 8, 9, 10, 11, 11};
    alignas(16) static constexpr std::int8_t kLast[16] = {4,  5,  6,  6,  7,  8,  9,  9,
                                                          10, 11, 12, 12, 13, 14, 15, 15};
    const Bytes first = hn::LoadDup128(d, kFirst), last = hn::LoadDup128(d, kLast);
    return narrowed(all(hn::TableLookupBytes(a, first)),
                    all(hn::TableLookupBytes(hn::CombineShiftRightBytes<12>(d, b, a), first)),
                    all(hn::TableLookupBytes(hn::CombineShiftRightBytes<8>(d, c, b), first)),
                    all(hn::TableLookupBytes(c, last)));
  }

  template <class... TS>
  HWY_INLINE hn::Vec<hn::RebindToUnsigned<D8>> operator()(const TS*... src) const {
    const D8 d;
    Bytes result;
    if constexpr (kChannels == 1) {
      result = interleaveHalves<16 / sizeof(T)>(d, samples<0>(src...));
    } else if constexpr (kChannels == 3) {
      constexpr std::size_t kUnit = 16 / sizeof(T);
      result = threes(interleaveHalves<kUnit>(d, samples<0>(src...)),
                      interleaveHalves<kUnit>(d, samples<1>(src...)),
                      interleaveHalves<kUnit>(d, samples<2>(src...)));
    } else {
      result =
          interleaveHalves<4 / sizeof(T)>(d, narrowed(all(hn::Or(samples<0>(src...), ignored)),
                                                      all(hn::Or(samples<1>(src...), ignored)),
                                                      all(hn::Or(samples<2>(src...), ignored)),
                                                      all(hn::Or(samples<3>(src...), ignored))));
    }
    return hn::BitCast(hn::RebindToUnsigned<D8>(), result);
  }
};

}  // namespace predicate
#else
template <class D, class V, class Holds>
LanesOfMask<D> lanesOfDoubles(D d, V a, V b, const Holds& holds);
#endif  // HWY_TARGET != HWY_SCALAR

namespace predicate {

template <class Op, class T, std::size_t kChannels>
struct Row {
  // Steps whose loads are made before their stores, which later loads might wait for.
  static constexpr std::size_t kUnroll = std::max<std::size_t>(4 / (kChannels * sizeof(T)), 1);

  const Op& op;
  std::uint32_t ignored;

  template <class... TS>
  HWY_INLINE void pixels(std::size_t n, std::uint8_t* dst, const TS*... src) const {
    const std::size_t used = kChannels == 4 && ignored != 0 ? 3 : kChannels;
    for (std::size_t x = 0; x < n; ++x) {
      bool holds = true;
      for (std::size_t k = 0; k < used; ++k)
        holds = holds && op.scalar(k, load(src + x * kChannels + k)...);
      dst[x] = holds ? 255 : 0;
    }
  }

#if HWY_TARGET != HWY_SCALAR
  // At least a step, of which the last is computed first and stored last.
  template <std::size_t kBytes, class... TS>
  HWY_INLINE void steps(bool streams, std::size_t n, std::uint8_t* dst, const TS*... src) const {
    const hn::CappedTag<std::uint8_t, kBytes> d;
    const Step<Op, T, kChannels, kBytes> step(op, ignored);
    const std::size_t end = n - kBytes;
    const auto last = step((src + end * kChannels)...);
    const auto put = [&](auto v, std::size_t x) KELI_LAMBDA {
      if (streams) {
        hn::Stream(v, d, dst + x);
      } else {
        hn::StoreU(v, d, dst + x);
      }
    };
    std::size_t x = 0;
    for (; kUnroll > 1 && x + kUnroll * kBytes <= end; x += kUnroll * kBytes) {
      hn::Vec<decltype(d)> v[kUnroll];
      unrolled<kUnroll>([&](auto u)
                            KELI_LAMBDA { v[u] = step((src + (x + u * kBytes) * kChannels)...); });
      unrolled<kUnroll>([&](auto u) KELI_LAMBDA {
        put(v[u], x + u * kBytes);
        keepOrder();
      });
    }
    for (; x < end; x += kBytes) put(step((src + x * kChannels)...), x);
    hn::StoreU(last, d, dst + end);
  }
#endif

  template <class... TS>
  HWY_INLINE void few(std::size_t n, std::uint8_t* dst, const TS*... src) const {
#if HWY_TARGET != HWY_SCALAR
    if (n >= 16) return steps<16>(false, n, dst, src...);
#endif
    pixels(n, dst, src...);
  }

  // Stores of long rows are set on cache lines, and then made around the caches if asked for.
  template <class... TS>
  HWY_INLINE void run([[maybe_unused]] bool streams, std::size_t n, std::uint8_t* dst,
                      const TS*... src) const {
#if HWY_TARGET == HWY_SCALAR
    pixels(n, dst, src...);
#else
    constexpr std::size_t kBytes = std::min<std::size_t>(HWY_MAX_BYTES, 32);
    constexpr std::size_t kLong = 1024;
    if (n < kBytes) return few(n, dst, src...);
    const std::size_t head = n < kLong ? 0 : (0 - reinterpret_cast<std::uintptr_t>(dst)) % kBytes;
    if (head != 0) few(head, dst, src...);
    steps<kBytes>(streams && n >= kLong, n - head, dst + head, (src + head * kChannels)...);
#endif
  }
};

}  // namespace predicate

// Bands of n pixels a row. ignored: the bits of four bytes, one for each channel, that do not
// count.
template <class T, std::size_t kChannels, class Op>
HWY_INLINE void mapPredicate(const Band<1>& b, const Op& op, std::uint32_t ignored) {
  const predicate::Row<Op, T, kChannels> row = {op, ignored};
  for (std::size_t y = 0; y < b.rows; ++y)
    row.run(b.streams, b.n, b.template dstRow<std::uint8_t>(y), b.template srcRow<T>(0, y));
  if (b.streams) hwy::FlushStream();
}

template <class T, std::size_t kChannels, class Op>
HWY_INLINE void mapPredicate(const Band<2>& b, const Op& op, std::uint32_t ignored) {
  const predicate::Row<Op, T, kChannels> row = {op, ignored};
  for (std::size_t y = 0; y < b.rows; ++y) {
    row.run(b.streams, b.n, b.template dstRow<std::uint8_t>(y), b.template srcRow<T>(0, y),
            b.template srcRow<T>(1, y));
  }
  if (b.streams) hwy::FlushStream();
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
