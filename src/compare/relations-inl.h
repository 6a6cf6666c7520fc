// The relations of the comparisons as predicates of the row driver: of two images, and of an image
// and constants. Comparisons are exact, of floats those of IEEE 754, all false for what is no
// number.
#if defined(KELI_COMPARE_RELATIONS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_COMPARE_RELATIONS_INL_H_
#undef KELI_COMPARE_RELATIONS_INL_H_
#else
#define KELI_COMPARE_RELATIONS_INL_H_
#endif

#include "compare/rows.h"
#include "core/predicate-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

struct NothingMore {};

// Two samples, with nothing to prepare.
struct OfTwoImages {
  static constexpr std::size_t kPeriod = 1;
  template <class D>
  HWY_INLINE NothingMore at(D, std::size_t) const {
    return {};
  }
};

struct Less : OfTwoImages {
  explicit Less(const compare::Terms&) {}
  template <class D, class V>
  HWY_INLINE LanesOfMask<D> vector(D d, NothingMore, V a, V b) const {
    return lanesOf(d, hn::Lt(a, b));
  }
  template <class T>
  HWY_INLINE bool scalar(std::size_t, T a, T b) const {
    return a < b;
  }
};

struct LessEq : OfTwoImages {
  explicit LessEq(const compare::Terms&) {}
  template <class D, class V>
  HWY_INLINE LanesOfMask<D> vector(D d, NothingMore, V a, V b) const {
    if constexpr (std::is_floating_point_v<hn::TFromD<D>>) {
      return lanesOf(d, hn::Le(a, b));
    } else {
      return lanesOf(d, hn::Eq(hn::Min(a, b), a));
    }
  }
  template <class T>
  HWY_INLINE bool scalar(std::size_t, T a, T b) const {
    return a <= b;
  }
};

struct Equal : OfTwoImages {
  explicit Equal(const compare::Terms&) {}
  template <class D, class V>
  HWY_INLINE LanesOfMask<D> vector(D d, NothingMore, V a, V b) const {
    return lanesOf(d, hn::Eq(a, b));
  }
  template <class T>
  HWY_INLINE bool scalar(std::size_t, T a, T b) const {
    return a == b;
  }
};

// A relation with its second operand from a cycle of constants.
template <class Relation, class T, std::size_t kCycle>
struct WithConstant {
  using Bits = hwy::MakeUnsigned<T>;
  static constexpr std::size_t kPeriod = kCycle;
  const compare::Terms& terms;
  Relation relation;

  explicit WithConstant(const compare::Terms& t) : terms(t), relation(t) {}

  template <class D>
  struct Vectors {
    hn::Vec<D> constant, flips;
  };
  template <class D>
  HWY_INLINE Vectors<D> at(D d, std::size_t phase) const {
    const auto flips = hn::Set(hn::RebindToUnsigned<D>(), static_cast<Bits>(terms.flips));
    return {repeatPixel<kCycle * sizeof(T)>(d, terms.constants.bytes, phase * sizeof(T)),
            hn::BitCast(d, flips)};
  }
  template <class D, class V>
  HWY_INLINE LanesOfMask<D> vector(D d, const Vectors<D>& k, V v) const {
    return relation.vector(d, {}, hn::Xor(v, k.flips), k.constant);
  }
  HWY_INLINE bool scalar(std::size_t phase, T v) const {
    Bits bits;
    std::memcpy(&bits, &v, sizeof(v));
    bits ^= static_cast<Bits>(terms.flips);
    std::memcpy(&v, &bits, sizeof(v));
    return relation.scalar(0, v, load(reinterpret_cast<const T*>(terms.constants.bytes) + phase));
  }
};

template <class Op, class T, std::size_t kChannels>
void ownTwoImages(const Band<2>& b, const compare::Terms* terms) {
  mapPredicate<T, kChannels>(b, Op(*terms), terms->ignored);
}

template <class Op, class T, std::size_t kChannels>
void ownOneImage(const Band<1>& b, const compare::Terms* terms) {
  mapPredicate<T, kChannels>(b, Op(*terms), terms->ignored);
}

template <class Op, class T>
constexpr compare::Kernels<2> kTwoImages = {ownTwoImages<Op, T, 1>, ownTwoImages<Op, T, 3>,
                                            ownTwoImages<Op, T, 4>};

template <class Relation, class T>
constexpr compare::Kernels<1> kWithConstant = {ownOneImage<WithConstant<Relation, T, 4>, T, 1>,
                                               ownOneImage<WithConstant<Relation, T, 3>, T, 3>,
                                               ownOneImage<WithConstant<Relation, T, 4>, T, 4>};

template <class T>
constexpr compare::CompareRows kCompareRows = {
    {kTwoImages<Less, T>, kTwoImages<LessEq, T>, kTwoImages<Equal, T>},
    {kWithConstant<Less, T>, kWithConstant<LessEq, T>, kWithConstant<Equal, T>}};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
