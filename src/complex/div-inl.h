// Division of complex samples by vectors: x / y = x * conj(y) / |y|^2. What the types share:
// looking for zero divisors, and the kernels.
#if defined(KELI_COMPLEX_DIV_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_COMPLEX_DIV_INL_H_
#undef KELI_COMPLEX_DIV_INL_H_
#else
#define KELI_COMPLEX_DIV_INL_H_
#endif

#include "complex/samples-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

using complex::Div;

// Divisors of an image: says so where one of those that Keep writes is zero.
template <class Keep>
struct Watch {
  static constexpr std::size_t kPeriod = Keep::kPeriod;
  bool* found;

  template <class D>
  HWY_INLINE auto at(D d, std::size_t phase) const {
    return Keep().at(d, phase);
  }
  template <class D, class M>
  HWY_INLINE void look(D d, Nothing, M zero) const {
    if (!hn::AllFalse(d, zero)) *found = true;
  }
  template <class D, class Used, class M>
  HWY_INLINE void look(D d, const Used& used, M zero) const {
    if (!hn::AllFalse(d, hn::And(zero, used))) *found = true;
  }
  HWY_INLINE void look(bool zero) const {
    if (zero) *found = true;
  }
};

// Constants are checked before.
struct NoWatch {
  static constexpr std::size_t kPeriod = 1;
  template <class D>
  HWY_INLINE Nothing at(D, std::size_t) const {
    return {};
  }
  template <class D, class M>
  HWY_INLINE void look(D, Nothing, M) const {}
  HWY_INLINE void look(bool) const {}
};

// Divide has isZero(d, y), quotient(d, y, x) and the definition quotient(y, x) of one sample.
template <class T, class Divide, class Watcher>
struct Quotient {
  static constexpr std::size_t kPeriod = Watcher::kPeriod;
  static constexpr std::size_t kUnroll = 2;
  static constexpr std::size_t kVectorBytes = 64;
  Divide divide;
  Watcher watcher;

  template <class D>
  HWY_INLINE auto at(D d, std::size_t phase) const {
    return watcher.at(d, phase);
  }
  template <class D, class K, class V>
  HWY_INLINE V vector(D d, const K& k, V y, V x) const {
    watcher.look(d, k, divide.isZero(d, y));
    return divide.quotient(d, y, x);
  }
  HWY_INLINE BitsOf<T> scalar(std::size_t, BitsOf<T> a, BitsOf<T> b) const {
    const T y = fromBits<T>(a);
    watcher.look(y.re == 0 && y.im == 0);
    return toBits(divide.quotient(y, fromBits<T>(b)));
  }
};

template <class T, class Divide, class Keep>
void ownDiv(const Band<2>& b, int sf, bool* zeroDivisor) {
  const Quotient<T, Divide, Watch<Keep>> op = {Divide{sf}, {zeroDivisor}};
  mapTwoImages<BitsOf<T>, Keep>(b, op);
}

template <class T, class Divide, std::size_t kCycle, class Keep>
void ownDivC(const Band<1>& b, const void* constants, int sf) {
  mapImageAndConstant<BitsOf<T>, kCycle, Keep>(b, constants,
                                               Quotient<T, Divide, NoWatch>{Divide{sf}, {}});
}

template <class T, class Divide>
constexpr complex::DivImages kDivImages = {ownDiv<T, Divide, KeepNone>,
                                           ownDiv<T, Divide, KeepOthers<4, 3>>};

template <class T, class Divide>
constexpr arith::ImageAndConstant kDivConstant = {ownDivC<T, Divide, 4, KeepNone>,
                                                  ownDivC<T, Divide, 3, KeepNone>,
                                                  ownDivC<T, Divide, 4, KeepOthers<4, 3>>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
