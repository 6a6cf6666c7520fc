// Bins of floats between increasing levels: a tree is descended without branches, by the vector.
// The nodes of the first depths stay in registers, where shuffles look them up; those below are
// gathered.
#include "core/simd_config.h"
#include "core/target.h"
#include "histogram/find_rows.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "histogram/find_rows.cc"
#include <hwy/foreach_target.h>
//
#include "core/vector_tables-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

using histogram::FindRows;
using histogram::Tree;

// The definition.
inline std::uint32_t binOf(Kel32f v, const Tree& tree) {
  if (!(v >= tree.least && v < tree.most)) return tree.outside;
  std::uint32_t j = 0;
  for (int t = 0; t < tree.depth; ++t) j = 2 * j + (v >= tree.nodes[(1u << t) + j] ? 1 : 0);
  return j;
}

// Entries of a table in registers, at indices below kEntries.
template <class D, std::size_t kEntries, bool kFits = kEntries <= hn::MaxLanes(D())>
struct Entries {
  hn::Vec<D> table;

  HWY_INLINE Entries(D d, const Kel32f* entries) : table(hn::LoadU(d, entries)) {}
  template <class V>
  HWY_INLINE hn::Vec<D> operator()(D d, V indices) const {
    return lookUpFloats(d, table, indices);
  }
};

template <class D>
struct Entries<D, 1, true> {
  hn::Vec<D> entry;

  HWY_INLINE Entries(D d, const Kel32f* entries) : entry(hn::Set(d, entries[0])) {}
  template <class V>
  HWY_INLINE hn::Vec<D> operator()(D, V) const {
    return entry;
  }
};

template <class D, std::size_t kEntries>
struct Entries<D, kEntries, false> {
  static constexpr std::size_t kHalf = kEntries / 2;
  Entries<D, kHalf> lower, upper;

  HWY_INLINE Entries(D d, const Kel32f* entries) : lower(d, entries), upper(d, entries + kHalf) {}
  template <class V>
  HWY_INLINE hn::Vec<D> operator()(D d, V indices) const {
    const hn::RebindToSigned<D> di;
    const V last = hn::Set(di, static_cast<std::int32_t>(kHalf) - 1);  // of the lower half
    const V within = hn::And(indices, last);
    const auto inUpper = hn::RebindMask(d, indices > last);
    return hn::IfThenElse(inUpper, upper(d, within), lower(d, within));
  }
};

// Node 2 j or 2 j + 1 of the next depth.
template <class D, class VI>
HWY_INLINE VI descend(D, VI j, hn::Vec<D> v, hn::Vec<D> nodes) {
  const hn::RebindToSigned<D> di;
  return hn::Sub(hn::Add(j, j), hn::VecFromMask(di, hn::RebindMask(di, v >= nodes)));
}

// The nodes of all depths below kDepth.
template <class D, std::size_t kDepth>
struct Crown {
  Crown<D, kDepth - 1> above;
  Entries<D, (std::size_t{1} << (kDepth - 1))> nodes;

  HWY_INLINE Crown(D d, const Kel32f* tree)
      : above(d, tree), nodes(d, tree + (std::size_t{1} << (kDepth - 1))) {}
  template <class VI>
  HWY_INLINE VI find(D d, VI j, hn::Vec<D> v) const {
    j = above.find(d, j, v);
    return descend(d, j, v, nodes(d, j));
  }
};

template <class D>
struct Crown<D, 0> {
  HWY_INLINE Crown(D, const Kel32f*) {}
  template <class VI>
  HWY_INLINE VI find(D, VI j, hn::Vec<D>) const {
    return j;
  }
};

// Every kStride-th sample, of an image at any address.
template <std::size_t kStride, class D>
HWY_INLINE hn::Vec<D> loadEach(D d, const Kel32f* values) {
  if constexpr (kStride == 1) {
    return hn::LoadU(d, values);
  } else if constexpr (hn::MaxLanes(D()) <= 4) {  // targets without gathers
    HWY_ALIGN Kel32f lanes[hn::MaxLanes(D())];
    for (std::size_t i = 0; i < hn::MaxLanes(D()); ++i) lanes[i] = load(values + i * kStride);
    return hn::Load(d, lanes);
  } else {
    const hn::RebindToSigned<D> di;
    const auto at = hn::Mul(hn::Iota(di, 0), hn::Set(di, static_cast<std::int32_t>(kStride)));
    return hn::GatherIndex(d, values, at);
  }
}

// kDeeper: below the nodes in registers there are others.
template <std::size_t kStride, std::size_t kDepth, bool kDeeper>
HWY_INLINE void findInVectors(const Kel32f* values, std::size_t n, const Tree& tree,
                              std::uint32_t* bins) {
  using D = hn::ScalableTag<Kel32f>;
  const D d;
  const hn::RebindToSigned<D> di;
  const Crown<D, kDepth> crown(d, tree.nodes);
  const auto least = hn::Set(d, tree.least), most = hn::Set(d, tree.most);
  const auto outside = hn::Set(di, static_cast<std::int32_t>(tree.outside));
  std::size_t i = 0;
  for (; i + hn::Lanes(d) <= n; i += hn::Lanes(d)) {
    const auto v = loadEach<kStride>(d, values + i * kStride);
    auto j = crown.find(d, hn::Zero(di), v);
    if constexpr (kDeeper) {
      for (int t = kDepth; t < tree.depth; ++t)
        j = descend(d, j, v, hn::GatherIndex(d, tree.nodes + (std::size_t{1} << t), j));
    }
    const auto inside = hn::RebindMask(di, hn::And(v >= least, v < most));
    hn::StoreU(hn::IfThenElse(inside, j, outside), di, reinterpret_cast<std::int32_t*>(bins + i));
  }
  for (; i < n; ++i) bins[i] = binOf(load(values + i * kStride), tree);
}

template <std::size_t kStride, std::size_t kDepth, bool kDeeper = false>
void ownFindBins(const Kel32f* values, std::size_t n, const Tree& tree, std::uint32_t* bins) {
  if constexpr (kScalarTarget) {
    for (std::size_t i = 0; i < n; ++i) bins[i] = binOf(load(values + i * kStride), tree);
  } else {
    findInVectors<kStride, kDepth, kDeeper>(values, n, tree, bins);
  }
}

constexpr FindRows kFind = {
    {ownFindBins<1, 0>, ownFindBins<1, 1>, ownFindBins<1, 2>, ownFindBins<1, 3>, ownFindBins<1, 4>,
     ownFindBins<1, 5>, ownFindBins<1, 5, true>},
    {ownFindBins<3, 0>, ownFindBins<3, 1>, ownFindBins<3, 2>, ownFindBins<3, 3>, ownFindBins<3, 4>,
     ownFindBins<3, 5>, ownFindBins<3, 5, true>},
    {ownFindBins<4, 0>, ownFindBins<4, 1>, ownFindBins<4, 2>, ownFindBins<4, 3>, ownFindBins<4, 4>,
     ownFindBins<4, 5>, ownFindBins<4, 5, true>},
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::histogram {
KELI_SELECT_ROWS(FindRows, kFind, findRows)
}  // namespace keli::histogram
#endif
