// Row kernels of CompareEqualEps and CompareEqualEpsC: |a - b| <= eps, the difference rounded to
// single precision; of four channels also to double precision, from the same samples.
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "compare/equal_eps_rows.cc"
#include <hwy/foreach_target.h>
//
#include "compare/relations-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

struct EqualEps : OfTwoImages {
  Kel32f eps;
  explicit EqualEps(const compare::Terms& terms) : eps(terms.eps) {}

  template <class D, class V>
  HWY_INLINE LanesOfMask<D> vector(D d, NothingMore, V a, V b) const {
    return lanesOf(d, hn::Le(hn::Abs(a - b), hn::Set(d, eps)));
  }
  HWY_INLINE bool scalar(std::size_t, Kel32f a, Kel32f b) const {
    const Kel32f difference = a - b;
    return (difference < 0 ? -difference : difference) <= eps;
  }
};

struct EqualEpsDouble : OfTwoImages {
  Kel64f eps;
  explicit EqualEpsDouble(const compare::Terms& terms) : eps(terms.eps) {}

  template <class D, class V>
  HWY_INLINE LanesOfMask<D> vector(D d, NothingMore, V a, V b) const {
    return lanesOfDoubles(d, a, b, [&](auto dd, auto x, auto y) KELI_LAMBDA {
      return hn::Le(hn::Abs(x - y), hn::Set(dd, eps));
    });
  }
  HWY_INLINE bool scalar(std::size_t, Kel32f a, Kel32f b) const {
    const Kel64f difference = Kel64f{a} - Kel64f{b};
    return (difference < 0 ? -difference : difference) <= eps;
  }
};

constexpr compare::EqualEpsRows kEqualEpsRows = {
    kTwoImages<EqualEps, Kel32f>,
    ownTwoImages<EqualEpsDouble, Kel32f, 4>,
    kWithConstant<EqualEps, Kel32f>,
    ownOneImage<WithConstant<EqualEpsDouble, Kel32f, 4>, Kel32f, 4>,
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::compare {
KELI_SELECT_ROWS(EqualEpsRows, kEqualEpsRows, equalEpsRows)
}  // namespace keli::compare
#endif
