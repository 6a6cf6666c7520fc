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

// The samples of a cycle of constants.
template <class T, std::size_t kCycle, class D>
HWY_INLINE hn::Vec<D> constantAt(D d, const Cycle& cycle, std::size_t phase) {
  return repeatPixel<kCycle * sizeof(T)>(d, cycle.bytes, phase * sizeof(T));
}
template <class T>
HWY_INLINE T constantOf(const Cycle& cycle, std::size_t phase) {
  return load(reinterpret_cast<const T*>(cycle.bytes) + phase);
}

// A range that is empty has its lower end above its upper one, and then max(v, lower) is at least
// lower, and min(v, upper) at most upper.
template <class T, std::size_t kCycle>
struct Within {
  static constexpr std::size_t kPeriod = kCycle;
  const compare::Terms& terms;

  explicit Within(const compare::Terms& t) : terms(t) {}

  template <class D>
  struct Ends {
    hn::Vec<D> lower, upper;
  };
  template <class D>
  HWY_INLINE Ends<D> at(D d, std::size_t phase) const {
    return {constantAt<T, kCycle>(d, terms.lower, phase),
            constantAt<T, kCycle>(d, terms.upper, phase)};
  }
  template <class D, class V>
  HWY_INLINE LanesOfMask<D> vector(D d, const Ends<D>& ends, V v) const {
    return lanesOf(d, hn::Eq(hn::Max(v, ends.lower), hn::Min(v, ends.upper)));
  }
  HWY_INLINE bool scalar(std::size_t phase, T v) const {
    return constantOf<T>(terms.lower, phase) <= v && v <= constantOf<T>(terms.upper, phase);
  }
};

// A relation of floats with its second operand from a cycle of constants.
template <class Relation, std::size_t kCycle>
struct WithFloat {
  static constexpr std::size_t kPeriod = kCycle;
  const compare::Terms& terms;
  Relation relation;

  explicit WithFloat(const compare::Terms& t) : terms(t), relation(t) {}

  template <class D>
  struct Vectors {
    decltype(std::declval<Relation>().at(D(), 0)) relation;
    hn::Vec<D> constant, signs;
  };
  template <class D>
  HWY_INLINE Vectors<D> at(D d, std::size_t phase) const {
    const hn::RebindToUnsigned<D> bits;
    return {relation.at(d, 0), constantAt<Kel32f, kCycle>(d, terms.lower, phase),
            hn::BitCast(d, hn::Set(bits, terms.signs))};
  }
  template <class D, class V>
  HWY_INLINE LanesOfMask<D> vector(D d, const Vectors<D>& k, V v) const {
    return relation.vector(d, k.relation, hn::Xor(v, k.signs), k.constant);
  }
  HWY_INLINE bool scalar(std::size_t phase, Kel32f v) const {
    return relation.scalar(0, terms.signs != 0 ? -v : v, constantOf<Kel32f>(terms.lower, phase));
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

template <class T>
constexpr compare::TwoImageRows kTwoImageRows = {
    {kTwoImages<Less, T>, kTwoImages<LessEq, T>, kTwoImages<Equal, T>}};

template <class T>
constexpr compare::RangeRows kRangeRows = {{ownOneImage<Within<T, 4>, T, 1>,
                                            ownOneImage<Within<T, 3>, T, 3>,
                                            ownOneImage<Within<T, 4>, T, 4>}};

template <class Relation>
constexpr compare::Kernels<1> kWithFloat = {ownOneImage<WithFloat<Relation, 4>, Kel32f, 1>,
                                            ownOneImage<WithFloat<Relation, 3>, Kel32f, 3>,
                                            ownOneImage<WithFloat<Relation, 4>, Kel32f, 4>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
