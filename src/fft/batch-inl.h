// One-dimensional transforms of as many sequences at a time as a vector has lanes. Element e of all
// sequences is two vectors, their real and their imaginary parts, one after the other; so twiddle
// factors are the same for all lanes, and no lane knows of another.
//
// Steps run in place, depth first: what later steps work on stays in the first-level cache. Every
// operation is rounded to single precision. Exchanging real and imaginary parts gives the inverse.
#if defined(KELI_FFT_BATCH_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_FFT_BATCH_INL_H_
#undef KELI_FFT_BATCH_INL_H_
#else
#define KELI_FFT_BATCH_INL_H_
#endif

#include "core/simd-inl.h"
#include "fft/plan.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// cos and sin of 2 pi k / kRadix, for k up to half of it.
template <int kRadix>
constexpr float kCos[] = {0};
template <int kRadix>
constexpr float kSin[] = {0};
template <>
inline constexpr float kCos<3>[] = {1, -0.5f};
template <>
inline constexpr float kSin<3>[] = {0, 0.8660254037844386f};
template <>
inline constexpr float kCos<5>[] = {1, 0.3090169943749474f, -0.8090169943749474f};
template <>
inline constexpr float kSin<5>[] = {0, 0.9510565162951535f, 0.5877852522924731f};
template <>
inline constexpr float kCos<7>[] = {1, 0.6234898018587336f, -0.2225209339563144f,
                                    -0.9009688679024191f};
template <>
inline constexpr float kSin<7>[] = {0, 0.7818314824680298f, 0.9749279121818236f,
                                    0.4338837391175582f};
template <>
inline constexpr float kCos<11>[] = {1,
                                     0.8412535328311812f,
                                     0.4154150130018864f,
                                     -0.1423148382732851f,
                                     -0.6548607339452850f,
                                     -0.9594929736144974f};
template <>
inline constexpr float kSin<11>[] = {0,
                                     0.5406408174555976f,
                                     0.9096319953545184f,
                                     0.9898214418809327f,
                                     0.7557495743542584f,
                                     0.2817325568414298f};
template <>
inline constexpr float kCos<13>[] = {1,
                                     0.8854560256532099f,
                                     0.5680647467311558f,
                                     0.1205366802553231f,
                                     -0.3546048870425357f,
                                     -0.7485107481711011f,
                                     -0.9709418174260520f};
template <>
inline constexpr float kSin<13>[] = {0,
                                     0.4647231720437685f,
                                     0.8229838658936564f,
                                     0.9927088740980540f,
                                     0.9350162426854148f,
                                     0.6631226582407952f,
                                     0.2393156642875578f};

// Real and imaginary parts of kRadix elements.
template <class V, int kRadix>
struct Elements {
  V re[kRadix], im[kRadix];
};

// The transform of a few elements, in place. Of odd radices: sums and differences of elements that
// are mirror images, whose factors are real and imaginary.
template <class D, int kRadix>
struct Butterfly {
  using V = hn::Vec<D>;
  static constexpr int kHalf = kRadix / 2;

  static HWY_INLINE void run(D d, Elements<V, kRadix>& x) {
    V sumRe[kHalf + 1], sumIm[kHalf + 1], difRe[kHalf + 1], difIm[kHalf + 1];
    V allRe = x.re[0], allIm = x.im[0];
    unrolled<kHalf>([&](auto i) KELI_LAMBDA {
      constexpr int j = static_cast<int>(i) + 1;
      sumRe[j] = x.re[j] + x.re[kRadix - j];
      sumIm[j] = x.im[j] + x.im[kRadix - j];
      difRe[j] = x.re[j] - x.re[kRadix - j];
      difIm[j] = x.im[j] - x.im[kRadix - j];
      allRe = allRe + sumRe[j];
      allIm = allIm + sumIm[j];
    });
    unrolled<kHalf>([&](auto i) KELI_LAMBDA {
      constexpr int p = static_cast<int>(i) + 1;
      V evenRe = x.re[0], evenIm = x.im[0], oddRe = hn::Zero(d), oddIm = hn::Zero(d);
      unrolled<kHalf>([&](auto l) KELI_LAMBDA {
        constexpr int j = static_cast<int>(l) + 1;
        constexpr int turn = p * j % kRadix;
        constexpr bool mirrored = turn > kHalf;
        constexpr int at = mirrored ? kRadix - turn : turn;
        const V c = hn::Set(d, kCos<kRadix>[at]);
        const V s = hn::Set(d, mirrored ? -kSin<kRadix>[at] : kSin<kRadix>[at]);
        evenRe = evenRe + c * sumRe[j];
        evenIm = evenIm + c * sumIm[j];
        oddRe = j == 1 ? s * difRe[j] : oddRe + s * difRe[j];
        oddIm = j == 1 ? s * difIm[j] : oddIm + s * difIm[j];
      });
      x.re[p] = evenRe + oddIm;
      x.im[p] = evenIm - oddRe;
      x.re[kRadix - p] = evenRe - oddIm;
      x.im[kRadix - p] = evenIm + oddRe;
    });
    x.re[0] = allRe;
    x.im[0] = allIm;
  }
};

// a + b and a - b.
template <class V>
HWY_INLINE void sumAndDifference(V& a, V& b) {
  const V sum = a + b;
  b = a - b;
  a = sum;
}

template <class D>
struct Butterfly<D, 2> {
  using V = hn::Vec<D>;
  static HWY_INLINE void run(D, Elements<V, 2>& x) {
    sumAndDifference(x.re[0], x.re[1]);
    sumAndDifference(x.im[0], x.im[1]);
  }
};

// Of elements a, b, c, e, whose results stand in a, b, c, e in the order 0, 1, 2, 3.
template <class V>
HWY_INLINE void transformFour(V& aRe, V& aIm, V& bRe, V& bIm, V& cRe, V& cIm, V& eRe, V& eIm) {
  sumAndDifference(aRe, cRe);
  sumAndDifference(aIm, cIm);
  sumAndDifference(bRe, eRe);
  sumAndDifference(bIm, eIm);
  const V oneRe = cRe + eIm, oneIm = cIm - eRe, threeRe = cRe - eIm, threeIm = cIm + eRe;
  const V twoRe = aRe - bRe, twoIm = aIm - bIm;
  aRe = aRe + bRe;
  aIm = aIm + bIm;
  bRe = oneRe;
  bIm = oneIm;
  cRe = twoRe;
  cIm = twoIm;
  eRe = threeRe;
  eIm = threeIm;
}

template <class D>
struct Butterfly<D, 4> {
  using V = hn::Vec<D>;
  static HWY_INLINE void run(D, Elements<V, 4>& x) {
    transformFour(x.re[0], x.im[0], x.re[1], x.im[1], x.re[2], x.im[2], x.re[3], x.im[3]);
  }
};

template <class D>
struct Butterfly<D, 8> {
  using V = hn::Vec<D>;
  static HWY_INLINE void run(D d, Elements<V, 8>& x) {
    transformFour(x.re[0], x.im[0], x.re[2], x.im[2], x.re[4], x.im[4], x.re[6], x.im[6]);
    transformFour(x.re[1], x.im[1], x.re[3], x.im[3], x.re[5], x.im[5], x.re[7], x.im[7]);
    // The odd ones are turned by 0, 1, 2 and 3 eighths.
    const V root = hn::Set(d, 0.7071067811865476f);
    const V oneRe = (x.re[3] + x.im[3]) * root, oneIm = (x.im[3] - x.re[3]) * root;
    const V threeRe = (x.im[7] - x.re[7]) * root, threeIm = (x.re[7] + x.im[7]) * root;
    const V twoRe = x.im[5], twoIm = x.re[5];  // less than its negative
    const V e0Re = x.re[0], e0Im = x.im[0], e1Re = x.re[2], e1Im = x.im[2];
    const V e2Re = x.re[4], e2Im = x.im[4], e3Re = x.re[6], e3Im = x.im[6];
    const V o0Re = x.re[1], o0Im = x.im[1];
    x.re[0] = e0Re + o0Re;
    x.im[0] = e0Im + o0Im;
    x.re[4] = e0Re - o0Re;
    x.im[4] = e0Im - o0Im;
    x.re[1] = e1Re + oneRe;
    x.im[1] = e1Im + oneIm;
    x.re[5] = e1Re - oneRe;
    x.im[5] = e1Im - oneIm;
    x.re[2] = e2Re + twoRe;
    x.im[2] = e2Im - twoIm;
    x.re[6] = e2Re - twoRe;
    x.im[6] = e2Im + twoIm;
    x.re[3] = e3Re + threeRe;
    x.im[3] = e3Im - threeIm;
    x.re[7] = e3Re - threeRe;
    x.im[7] = e3Im + threeIm;
  }
};

// A batch's memory. re, im: where the parts of element 0 begin; exchanged for the inverse.
template <class D>
struct Batch {
  static constexpr std::size_t kLanes = hn::MaxLanes(D());
  static constexpr std::size_t kElement = 2 * kLanes;  // floats
  using V = hn::Vec<D>;

  float* re;
  float* im;

  Batch from(std::size_t element) const {
    return {re + element * kElement, im + element * kElement};
  }
};

// How a step's factors meet its butterflies: after them, or, in the reverse of a plan, before.
enum class Turn { kAfter, kBefore };

template <class D, int kRadix, Turn kTurn>
struct Pass {
  using V = hn::Vec<D>;
  static constexpr std::size_t kElement = Batch<D>::kElement;

  static HWY_INLINE void load(D d, const Batch<D>& b, std::size_t m, Elements<V, kRadix>& x) {
    unrolled<kRadix>([&](auto q) KELI_LAMBDA {
      x.re[q] = hn::Load(d, b.re + q * m * kElement);
      x.im[q] = hn::Load(d, b.im + q * m * kElement);
    });
  }
  static HWY_INLINE void store(D d, const Elements<V, kRadix>& x, const Batch<D>& b,
                               std::size_t m) {
    unrolled<kRadix>([&](auto q) KELI_LAMBDA {
      hn::Store(x.re[q], d, b.re + q * m * kElement);
      hn::Store(x.im[q], d, b.im + q * m * kElement);
    });
  }
  static HWY_INLINE void turn(D d, const float* twiddles, Elements<V, kRadix>& x) {
    unrolled<kRadix - 1>([&](auto i) KELI_LAMBDA {
      const V c = hn::Set(d, twiddles[2 * i]), s = hn::Set(d, twiddles[2 * i + 1]);
      const V re = x.re[i + 1], im = x.im[i + 1];
      x.re[i + 1] = re * c - im * s;
      x.im[i + 1] = re * s + im * c;
    });
  }

  static HWY_NOINLINE void run(Batch<D> b, const fft::Step& step) {
    const D d;
    const std::size_t m = static_cast<std::size_t>(step.m);
    const float* twiddles = step.twiddles;
    for (std::size_t j = 0; j < m; ++j) {
      Elements<V, kRadix> x;
      load(d, b, m, x);
      if (kTurn == Turn::kBefore) turn(d, twiddles, x);
      Butterfly<D, kRadix>::run(d, x);
      if (kTurn == Turn::kAfter) turn(d, twiddles, x);
      store(d, x, b, m);
      b = b.from(1);
      twiddles += 2 * (kRadix - 1);
    }
  }

  // Transforms of length kRadix that follow one another.
  static HWY_NOINLINE void runShort(Batch<D> b, std::size_t count) {
    const D d;
    for (; count != 0; --count) {
      Elements<V, kRadix> x;
      load(d, b, 1, x);
      Butterfly<D, kRadix>::run(d, x);
      store(d, x, b, 1);
      b = b.from(kRadix);
    }
  }
};

template <class D, Turn kTurn>
HWY_INLINE void runStep(const Batch<D>& b, const fft::Step& step, std::size_t count) {
  const auto with = [&](auto radix) KELI_LAMBDA {
    using P = Pass<D, static_cast<int>(radix), kTurn>;
    if (step.m == 1) {
      P::runShort(b, count);
    } else {
      P::run(b, step);
    }
  };
  switch (step.radix) {
    case 2:
      return with(std::integral_constant<int, 2>());
    case 3:
      return with(std::integral_constant<int, 3>());
    case 4:
      return with(std::integral_constant<int, 4>());
    case 5:
      return with(std::integral_constant<int, 5>());
    case 7:
      return with(std::integral_constant<int, 7>());
    case 8:
      return with(std::integral_constant<int, 8>());
    case 11:
      return with(std::integral_constant<int, 11>());
    default:
      return with(std::integral_constant<int, 13>());
  }
}

// `count` transforms by the steps from `first` on, one after the other in memory: x[j] at j to X[k]
// at place[k], or, in reverse, x[j] at place[j] to X[k] at k.
template <class D, Turn kTurn>
HWY_NOINLINE void runSteps(Batch<D> b, const fft::Step* first, std::size_t count) {
  if (first->m == 1) return runStep<D, kTurn>(b, *first, count);
  const std::size_t m = static_cast<std::size_t>(first->m);
  const std::size_t radix = static_cast<std::size_t>(first->radix);
  for (; count != 0; --count) {
    if (kTurn == Turn::kAfter) runStep<D, kTurn>(b, *first, 1);
    runSteps<D, kTurn>(b, first + 1, radix);
    if (kTurn == Turn::kBefore) runStep<D, kTurn>(b, *first, 1);
    b = b.from(m * radix);
  }
}

// Turns elements 0 .. n - 1 by factors; `at` tells where an element stands.
template <class D, class Place>
HWY_INLINE void turnElements(const Batch<D>& b, const float* factors, std::size_t n,
                             const Place& at) {
  const D d;
  for (std::size_t k = 0; k < n; ++k) {
    const Batch<D> e = b.from(at(k));
    const auto re = hn::Load(d, e.re), im = hn::Load(d, e.im);
    const auto c = hn::Set(d, factors[2 * k]), s = hn::Set(d, factors[2 * k + 1]);
    hn::Store(re * c - im * s, d, e.re);
    hn::Store(re * s + im * c, d, e.im);
  }
}

template <class D>
HWY_NOINLINE void convolve(const Batch<D>& b, const fft::Plan& plan) {
  const D d;
  const fft::Plan& inner = *plan.convolution;
  const std::size_t n = static_cast<std::size_t>(plan.n), m = static_cast<std::size_t>(inner.n);
  const auto same = [](std::size_t k) { return k; };
  turnElements(b, plan.chirp, n, same);
  for (std::size_t k = n; k < m; ++k) {
    const Batch<D> e = b.from(k);
    hn::Store(hn::Zero(d), d, e.re);
    hn::Store(hn::Zero(d), d, e.im);
  }
  runSteps<D, Turn::kAfter>(b, inner.step, 1);
  turnElements(b, plan.response, m, same);
  runSteps<D, Turn::kBefore>(Batch<D>{b.im, b.re}, inner.step, 1);
  turnElements(b, plan.chirp, n, same);
}

// x[j] at j to X[k] at plan.place[k]. Memory for plan.work elements.
template <class D>
HWY_INLINE void transform(const Batch<D>& b, const fft::Plan& plan) {
  if (plan.convolution != nullptr) {
    convolve(b, plan);
  } else if (plan.steps != 0) {
    runSteps<D, Turn::kAfter>(b, plan.step, 1);
  }
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
