// Kernels of the thresholds: a sample v beyond a threshold t gives t or a value, other samples are
// kept. Comparisons are exact, of floats those of IEEE 754. What a sample that is not a number
// gives follows from how each form asks: whether v is beyond, or whether it is not.
#if defined(KELI_THRESHOLD_THRESHOLD_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_THRESHOLD_THRESHOLD_INL_H_
#undef KELI_THRESHOLD_THRESHOLD_INL_H_
#else
#define KELI_THRESHOLD_THRESHOLD_INL_H_
#endif

#include "core/map-inl.h"
#include "threshold/rows.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// yes where t <= v, else no.
template <class V>
HWY_INLINE V whereFrom(V t, V v, V yes, V no) {
  using T = hn::TFromV<V>;
  if constexpr (std::is_floating_point_v<T>) {
    return hn::IfThenElse(hn::Le(t, v), yes, no);
  } else if constexpr (std::is_unsigned_v<T> && !kComparesUnsigned) {
    return hn::IfThenElse(hn::Eq(hn::Max(t, v), v), yes, no);
  } else {
    return hn::IfThenElse(hn::Lt(v, t), no, yes);
  }
}

// yes where t < v, else no.
template <class V>
HWY_INLINE V whereAbove(V t, V v, V yes, V no) {
  if constexpr (std::is_unsigned_v<hn::TFromV<V>> && !kComparesUnsigned) {
    return hn::IfThenElse(hn::Eq(hn::Max(t, v), t), no, yes);
  } else {
    return hn::IfThenElse(hn::Lt(t, v), yes, no);
  }
}

// kVectorBytes: longer vectors for the forms that blend, which instructions bound in the
// first-level cache.
struct Raise {
  static constexpr std::size_t kValues = 1;
  static constexpr std::size_t kVectorBytes = 32;
  template <class D, class V>
  static HWY_INLINE V vector(D, const V (&k)[1], V v) {
    return greaterElse(v, k[0]);
  }
  template <class T>
  static HWY_INLINE T scalar(const T (&k)[1], T v) {
    return v > k[0] ? v : k[0];
  }
};

struct Lower {
  static constexpr std::size_t kValues = 1;
  static constexpr std::size_t kVectorBytes = 32;
  template <class D, class V>
  static HWY_INLINE V vector(D, const V (&k)[1], V v) {
    return lessElse(v, k[0]);
  }
  template <class T>
  static HWY_INLINE T scalar(const T (&k)[1], T v) {
    return v < k[0] ? v : k[0];
  }
};

struct ReplaceBelow {
  static constexpr std::size_t kValues = 2;
  static constexpr std::size_t kVectorBytes = 64;
  template <class D, class V>
  static HWY_INLINE V vector(D, const V (&k)[2], V v) {
    return whereFrom(k[0], v, v, k[1]);
  }
  template <class T>
  static HWY_INLINE T scalar(const T (&k)[2], T v) {
    return k[0] <= v ? v : k[1];
  }
};

struct ReplaceAbove {
  static constexpr std::size_t kValues = 2;
  static constexpr std::size_t kVectorBytes = 64;
  template <class D, class V>
  static HWY_INLINE V vector(D, const V (&k)[2], V v) {
    return whereAbove(k[0], v, k[1], v);
  }
  template <class T>
  static HWY_INLINE T scalar(const T (&k)[2], T v) {
    return k[0] < v ? k[1] : v;
  }
};

struct ReplaceOutside {
  static constexpr std::size_t kValues = 4;
  static constexpr std::size_t kVectorBytes = 64;
  template <class D, class V>
  static HWY_INLINE V vector(D, const V (&k)[4], V v) {
    return whereFrom(k[0], v, whereAbove(k[2], v, k[3], v), k[1]);
  }
  template <class T>
  static HWY_INLINE T scalar(const T (&k)[4], T v) {
    return k[0] <= v ? (k[2] < v ? k[3] : v) : k[1];
  }
};

// A form as an operation of the row drivers, with its values from cycles of constants.
template <class Form, class T, std::size_t kCycle>
struct Threshold {
  static constexpr std::size_t kPeriod = kCycle;
  static constexpr std::size_t kUnroll = kCycle % 3 != 0 ? 4 : Form::kValues > 2 ? 3 : 6;
  static constexpr std::size_t kVectorBytes = Form::kVectorBytes;
  static constexpr std::size_t kValues = Form::kValues;

  const Cycle* cycles;

  template <class D>
  struct Vectors {
    hn::Vec<D> of[kValues];
  };

  template <class D>
  HWY_INLINE Vectors<D> at(D d, std::size_t phase) const {
    Vectors<D> k;
    unrolled<kValues>([&](auto i) KELI_LAMBDA {
      k.of[i] = repeatPixel<kCycle * sizeof(T)>(d, cycles[i].bytes, phase * sizeof(T));
    });
    return k;
  }
  template <class D, class V>
  HWY_INLINE V vector(D d, const Vectors<D>& k, V v) const {
    return Form::vector(d, k.of, v);
  }
  HWY_INLINE T scalar(std::size_t phase, T v) const {
    T k[kValues];
    for (std::size_t i = 0; i < kValues; ++i)
      k[i] = load(reinterpret_cast<const T*>(cycles[i].bytes) + phase);
    return Form::scalar(k, v);
  }
};

template <class Form, class T, std::size_t kCycle, class Keep>
void ownThreshold(const Band<1>& b, const Cycle* values) {
  mapRows<T, T, Keep>(b, Threshold<Form, T, kCycle>{values});
}

template <class Form, class T>
constexpr threshold::Kernels kThresholdKernels = {ownThreshold<Form, T, 4, KeepNone>,
                                                  ownThreshold<Form, T, 3, KeepNone>,
                                                  ownThreshold<Form, T, 4, KeepOthers<4, 3>>};

template <class T>
constexpr threshold::ThresholdRows kThresholdRows = {
    kThresholdKernels<Raise, T>, kThresholdKernels<Lower, T>, kThresholdKernels<ReplaceBelow, T>,
    kThresholdKernels<ReplaceAbove, T>, kThresholdKernels<ReplaceOutside, T>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
