// What sums and maxima of integer samples are made of: terms, kinds and sinks.
//
// A term makes unsigned or signed values of the samples of one or two images: themselves, their
// magnitudes, the magnitudes of their differences. A kind says what becomes of values: their sum,
// the sum of their squares, the largest. A sink does it to vectors of them.
#if defined(KELI_SUMS_SINKS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_SUMS_SINKS_INL_H_
#undef KELI_SUMS_SINKS_INL_H_
#else
#define KELI_SUMS_SINKS_INL_H_
#endif

#include <algorithm>

#include "core/simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// Of samples to values, lane by lane; scalar() is the definition.

struct Itself {
  template <class D>
  static HWY_INLINE hn::Vec<D> vector(D, hn::Vec<D> v) {
    return v;
  }
  template <class T>
  static HWY_INLINE T scalar(T v) {
    return v;
  }
};

struct Magnitude {
  template <class D>
  static HWY_INLINE auto vector(D, hn::Vec<D> v) {
    if constexpr (std::is_unsigned_v<hn::TFromD<D>>) {
      return v;
    } else {
      // That of the least value wraps to itself, which as an unsigned number is right.
      return hn::BitCast(hn::RebindToUnsigned<D>(), hn::Abs(v));
    }
  }
  template <class T>
  static HWY_INLINE auto scalar(T v) {
    using U = std::make_unsigned_t<T>;
    return v < 0 ? static_cast<U>(U{0} - static_cast<U>(v)) : static_cast<U>(v);
  }
};

struct Difference {
  template <class D>
  static HWY_INLINE auto vector(D d, hn::Vec<D> a, hn::Vec<D> b) {
    if constexpr (std::is_same_v<hn::TFromD<D>, std::uint8_t>) {
      return hn::Or(hn::SaturatedSub(a, b), hn::SaturatedSub(b, a));
    } else {
      const hn::RebindToUnsigned<D> du;
      static_cast<void>(d);
      return hn::BitCast(du, hn::Max(a, b)) - hn::BitCast(du, hn::Min(a, b));
    }
  }
  template <class T>
  static HWY_INLINE auto scalar(T a, T b) {
    return static_cast<std::make_unsigned_t<T>>(a > b ? a - b : b - a);
  }
};

// A term of one image, taken of the second of two.
template <class Term>
struct OfSecond {
  template <class D>
  static HWY_INLINE auto vector(D d, hn::Vec<D>, hn::Vec<D> b) {
    return Term::vector(d, b);
  }
  template <class T>
  static HWY_INLINE auto scalar(T, T b) {
    return Term::scalar(b);
  }
};

// Sinks of vectors of D. each(f) calls f(lane, value) for every 32-bit lane (of maxima for every
// lane) with its part of the total, which is signed; kMost vectors fit into it.

template <class D, class V, class F>
HWY_INLINE void eachLane(D d, V v, const F& f) {
  HWY_ALIGN hn::TFromD<D> lanes[hn::MaxLanes(D())];
  hn::Store(v, d, lanes);
  for (std::size_t j = 0; j < hn::MaxLanes(D()); ++j) f(j, lanes[j]);
}

// The bytes at even and at odd places as 16-bit lanes.
template <class D>
struct SplitBytes {
  using D16 = hn::Repartition<std::int16_t, D>;
  hn::Vec<D16> even, odd;

  HWY_INLINE explicit SplitBytes(hn::Vec<D> v)
      : even(hn::And(hn::BitCast(D16(), v), hn::Set(D16(), 0xFF))),
        odd(hn::BitCast(D16(), hn::ShiftRight<8>(hn::BitCast(hn::RebindToUnsigned<D16>(), v)))) {}
  static HWY_INLINE D16 tag() { return D16(); }
};

template <class D>
struct AddBytes {
  static constexpr bool kSorts = true;
  static constexpr std::size_t kMost = std::size_t{1} << 20;  // of 4 * 255 each
  using DW = hn::Repartition<std::int32_t, D>;
  hn::Vec<DW> sum;

  HWY_INLINE AddBytes() : sum(hn::Zero(DW())) {}
  HWY_INLINE void add(D d, hn::Vec<D> v) {
    const DW dw;
    if constexpr (kMultipliesBytes) {
      sum = addProductsOfFours(dw, sum, v, hn::Set(d, 1));
    } else {
      const SplitBytes<D> split(v);
      sum = addProductsOfPairs(dw, sum, split.even + split.odd, hn::Set(split.tag(), 1));
    }
  }
  HWY_INLINE void merge(const AddBytes& other) { sum = sum + other.sum; }
  template <class F>
  HWY_INLINE void each(std::size_t, const F& f) const {
    eachLane(DW(), sum, f);
  }
};

// Of signed 16-bit values; unsigned ones are moved down by 2^15, and the count of lanes puts it
// right.
template <class D>
struct AddWords {
  static constexpr bool kSorts = true;
  static constexpr bool kUnsigned = std::is_unsigned_v<hn::TFromD<D>>;
  static constexpr std::size_t kMost = std::size_t{1} << 15;  // of -2 * 2^15 at least each
  using DI = hn::RebindToSigned<D>;
  using DW = hn::Repartition<std::int32_t, D>;
  hn::Vec<DW> sum;

  HWY_INLINE AddWords() : sum(hn::Zero(DW())) {}
  HWY_INLINE void add(D d, hn::Vec<D> v) {
    const DI di;
    if constexpr (kUnsigned) v = hn::Xor(v, hn::Set(d, 0x8000));
    sum = addProductsOfPairs(DW(), sum, hn::BitCast(di, v), hn::Set(di, 1));
  }
  HWY_INLINE void merge(const AddWords& other) { sum = sum + other.sum; }
  template <class F>
  HWY_INLINE void each(std::size_t vectors, const F& f) const {
    const std::int64_t moved = kUnsigned ? static_cast<std::int64_t>(vectors) * 65536 : 0;
    eachLane(DW(), sum, [&](std::size_t j, std::int64_t v) KELI_LAMBDA { f(j, v + moved); });
  }
};

// Where bytes multiply, v^2 = v (v - 128) + 128 v, as one factor has to be signed.
template <class D>
struct AddSquaredBytes {
  static constexpr bool kSorts = true;
  static constexpr std::size_t kMost = 8192;  // of 4 * 255^2 each, below 2^31 / 8192
  using DW = hn::Repartition<std::int32_t, D>;
  hn::Vec<DW> sum, linear;

  HWY_INLINE AddSquaredBytes() : sum(hn::Zero(DW())), linear(hn::Zero(DW())) {}
  HWY_INLINE void add(D d, hn::Vec<D> v) {
    const DW dw;
    if constexpr (kMultipliesBytes) {
      sum = addProductsOfFours(dw, sum, v, hn::Xor(v, hn::Set(d, 0x80)));
      linear = addProductsOfFours(dw, linear, v, hn::Set(d, 1));
    } else {
      const SplitBytes<D> split(v);
      sum = addProductsOfPairs(dw, sum, split.even, split.even);
      sum = addProductsOfPairs(dw, sum, split.odd, split.odd);
    }
  }
  HWY_INLINE void merge(const AddSquaredBytes& other) {
    sum = sum + other.sum;
    linear = linear + other.linear;
  }
  template <class F>
  HWY_INLINE void each(std::size_t, const F& f) const {
    eachLane(DW(), sum + hn::ShiftLeft<7>(linear), f);
  }
};

// Sums of pairs of squares, of up to 2^31, in 64 bits: those of odd pairs alone, and those of even
// pairs with the others above them, which are taken away in the end.
template <class D>
struct AddSquaredWords {
  static constexpr bool kSorts = true;
  static constexpr bool kUnsigned = std::is_unsigned_v<hn::TFromD<D>>;
  static constexpr std::size_t kMost = AddWords<D>::kMost;
  using DI = hn::RebindToSigned<D>;
  using DW = hn::Repartition<std::int32_t, D>;
  using DX = hn::Repartition<std::uint64_t, D>;
  hn::Vec<DX> both, odd;
  hn::Vec<DW> linear;

  HWY_INLINE AddSquaredWords()
      : both(hn::Zero(DX())), odd(hn::Zero(DX())), linear(hn::Zero(DW())) {}
  // An unsigned value u is s + 2^15, u^2 = s^2 + 2^16 s + 2^30.
  HWY_INLINE void add(D d, hn::Vec<D> v) {
    if constexpr (kUnsigned) v = hn::Xor(v, hn::Set(d, 0x8000));
    const auto s = hn::BitCast(DI(), v);
    const auto pairs = hn::BitCast(DX(), multiplyAddPairs(DW(), s, s));
    both = both + pairs;
    odd = odd + hn::ShiftRight<32>(pairs);
    if constexpr (kUnsigned) linear = addProductsOfPairs(DW(), linear, s, hn::Set(DI(), 1));
  }
  HWY_INLINE void merge(const AddSquaredWords& other) {
    both = both + other.both;
    odd = odd + other.odd;
    linear = linear + other.linear;
  }
  template <class F>
  HWY_INLINE void each(std::size_t vectors, const F& f) const {
    const std::uint64_t moved = kUnsigned ? vectors * (std::uint64_t{2} << 30) : 0;
    HWY_ALIGN std::int32_t lines[hn::MaxLanes(DW())];
    hn::Store(linear, DW(), lines);
    const auto give = [&](std::size_t j, std::uint64_t squares) KELI_LAMBDA {
      const std::int64_t line = std::int64_t{lines[j]} * 65536;
      f(j, static_cast<std::int64_t>(squares + moved + static_cast<std::uint64_t>(line)));
    };
    eachLane(DX(), both - hn::ShiftLeft<32>(odd),
             [&](std::size_t j, std::uint64_t v) KELI_LAMBDA { give(2 * j, v); });
    eachLane(DX(), odd, [&](std::size_t j, std::uint64_t v) KELI_LAMBDA { give(2 * j + 1, v); });
  }
};

template <class D>
struct TakeLargest {
  static constexpr bool kSorts = false;
  static constexpr std::size_t kMost = std::size_t{1} << 20;  // any number
  hn::Vec<D> largest;

  HWY_INLINE TakeLargest() : largest(hn::Zero(D())) {}
  HWY_INLINE void add(D, hn::Vec<D> v) { largest = hn::Max(largest, v); }
  HWY_INLINE void merge(const TakeLargest& other) { largest = hn::Max(largest, other.largest); }
  template <class F>
  HWY_INLINE void each(std::size_t, const F& f) const {
    // Lanes 16 bytes apart are of the same channel.
    const hn::CappedTag<hn::TFromD<D>, 16 / sizeof(hn::TFromD<D>)> d;
    HWY_ALIGN hn::TFromD<D> lanes[hn::MaxLanes(D())];
    hn::Store(largest, D(), lanes);
    auto v = hn::Load(d, lanes);
    for (std::size_t j = hn::MaxLanes(d); j < hn::MaxLanes(D()); j += hn::MaxLanes(d))
      v = hn::Max(v, hn::Load(d, lanes + j));
    eachLane(d, v, f);
  }
};

// What becomes of a value, and how totals join: the definition of each kind of sink.
struct Added {
  template <class V>
  static HWY_INLINE std::uint64_t of(V v) {
    return static_cast<std::uint64_t>(static_cast<std::int64_t>(v));
  }
  static HWY_INLINE void into(std::uint64_t& total, std::uint64_t value) { total += value; }
};
struct Squared : Added {
  template <class V>
  static HWY_INLINE std::uint64_t of(V v) {
    return Added::of(v) * Added::of(v);
  }
};
struct Largest : Added {
  static HWY_INLINE void into(std::uint64_t& total, std::uint64_t value) {
    total = std::max(total, value);
  }
};

template <class Kind, class D>
using SinkOf = std::conditional_t<
    std::is_same_v<Kind, Largest>, TakeLargest<D>,
    std::conditional_t<
        sizeof(hn::TFromD<D>) == 1,
        std::conditional_t<std::is_same_v<Kind, Added>, AddBytes<D>, AddSquaredBytes<D>>,
        std::conditional_t<std::is_same_v<Kind, Added>, AddWords<D>, AddSquaredWords<D>>>>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
