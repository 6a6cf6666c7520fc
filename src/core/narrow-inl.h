// Vectors of narrower samples from several vectors of wider ones, saturated. Packs of vectors of
// more than 16 bytes work on 16 bytes of each source at a time: one permutation of 32-bit words
// sets right what they have put out of order.
#if defined(KELI_CORE_NARROW_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CORE_NARROW_INL_H_
#undef KELI_CORE_NARROW_INL_H_
#else
#define KELI_CORE_NARROW_INL_H_
#endif

#include "core/simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

#if HWY_TARGET == HWY_SCALAR
template <class D, class TS, class F>
HWY_INLINE hn::Vec<D> narrowed(D d, const TS*, const F&) {
  return hn::Zero(d);  // never run: the drivers call scalar definitions
}
template <std::size_t kRatio, class D>
hn::Vec<D> inOrder(D d, hn::Vec<D> v);
#else
// Where the words of a vector of kBytes stand after packs of kRatio vectors, in the order of the
// samples.
template <std::size_t kBytes, std::size_t kRatio>
struct PackOrder {
  static constexpr std::array<std::int32_t, kBytes / 4> make() {
    constexpr std::size_t kBlocks = kBytes / 16, kWords = 4 / kRatio;
    std::array<std::int32_t, kBytes / 4> a{};
    for (std::size_t j = 0; j < a.size(); ++j) {
      const std::size_t source = j / kWords / kBlocks, block = j / kWords % kBlocks;
      a[j] = static_cast<std::int32_t>(4 * block + kWords * source + j % kWords);
    }
    return a;
  }
  static constexpr std::array<std::int32_t, kBytes / 4> kWordOf = make();
};

template <std::size_t kRatio, class D>
HWY_INLINE hn::Vec<D> inOrder(D d, hn::Vec<D> v) {
  constexpr std::size_t kBytes = hn::MaxLanes(D()) * sizeof(hn::TFromD<D>);
  if constexpr (kBytes == 16) {
    return v;
  } else {
    const hn::Repartition<std::int32_t, D> words;
    const auto order = hn::SetTableIndices(words, PackOrder<kBytes, kRatio>::kWordOf.data());
    return hn::BitCast(d, hn::TableLookupLanes(hn::BitCast(words, v), order));
  }
}

// As many samples as D has lanes, each twice or four times as wide. f(ds, v) makes signed integers
// of their width of a vector of them, ds being its tag; these saturate.
template <class D, class TS, class F>
HWY_INLINE hn::Vec<D> narrowed(D d, const TS* src, const F& f) {
  using TD = hn::TFromD<D>;
  constexpr std::size_t kLanes = hn::MaxLanes(D()), kRatio = sizeof(TS) / sizeof(TD);
  static_assert(kRatio == 2 || kRatio == 4);
  if constexpr (kLanes * sizeof(TD) >= 16) {
    const hn::Repartition<TS, D> ds;
    const auto part = [&](std::size_t i)
                          KELI_LAMBDA { return f(ds, hn::LoadU(ds, src + i * hn::MaxLanes(ds))); };
    if constexpr (kRatio == 2) {
      return inOrder<kRatio>(d, packSaturated(d, part(0), part(1)));
    } else {
      const hn::Repartition<std::int16_t, D> half;
      const auto low = packSaturated(half, part(0), part(1));
      const auto high = packSaturated(half, part(2), part(3));
      return inOrder<kRatio>(d, packSaturated(d, low, high));
    }
  } else if constexpr (kLanes * sizeof(TS) <= HWY_MAX_BYTES && kLanes * sizeof(TS) <= 32) {
    const hn::Rebind<TS, D> ds;
    return hn::DemoteTo(d, f(ds, hn::LoadU(ds, src)));
  } else {
    const hn::Half<D> half;
    return hn::Combine(d, narrowed(half, src + kLanes / 2, f), narrowed(half, src, f));
  }
}
#endif

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
