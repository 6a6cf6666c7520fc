// Row kernels of single-precision sums of 32f (see FloatTotals), and the largest magnitudes of 32f
// and 32s.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "sums/sums_32f_rows.cc"
#include <hwy/foreach_target.h>
//
#include "sums/lanes-inl.h"
#include "sums/sums-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

struct FloatItself {
  template <class D>
  static HWY_INLINE hn::Vec<D> vector(D, hn::Vec<D> v) {
    return v;
  }
  static HWY_INLINE float scalar(float v) { return v; }
};

struct FloatMagnitude {
  template <class D>
  static HWY_INLINE hn::Vec<D> vector(D, hn::Vec<D> v) {
    return hn::Abs(v);
  }
  template <class D>
  static HWY_INLINE hn::Vec<D> vector(D, hn::Vec<D> a, hn::Vec<D> b) {
    return hn::Abs(a - b);
  }
  static HWY_INLINE float scalar(float v) { return std::fabs(v); }
  static HWY_INLINE float scalar(float a, float b) { return std::fabs(a - b); }
};

struct FloatSquare {
  template <class D>
  static HWY_INLINE hn::Vec<D> vector(D, hn::Vec<D> v) {
    return v * v;
  }
  template <class D>
  static HWY_INLINE hn::Vec<D> vector(D, hn::Vec<D> a, hn::Vec<D> b) {
    return (a - b) * (a - b);
  }
  static HWY_INLINE float scalar(float v) { return v * v; }
  static HWY_INLINE float scalar(float a, float b) { return (a - b) * (a - b); }
};

// Bits of floats without a sign are in the order of the numbers, with NaNs above all.
struct FloatBits {
  template <class D, class... V>
  static HWY_INLINE auto vector(D d, V... v) {
    const hn::RebindToUnsigned<D> du;
    return hn::BitCast(du, FloatMagnitude::vector(d, v...));
  }
  template <class... T>
  static HWY_INLINE std::uint32_t scalar(T... v) {
    const float magnitude = FloatMagnitude::scalar(v...);
    std::uint32_t bits;
    std::memcpy(&bits, &magnitude, sizeof(bits));
    return bits;
  }
};

template <std::size_t kChannels, class Term, class... TS>
void ownLanes(const Band<sizeof...(TS)>& b, sums::FloatTotals* totals) {
  addToLanes<sums::floatLanes(kChannels), Term, TS...>(b, *totals);
}

template <class Term, class... TS>
constexpr sums::ByChannels<sizeof...(TS), sums::FloatTotals> kSums = {
    ownLanes<1, Term, TS...>, ownLanes<3, Term, TS...>, ownLanes<1, Term, TS...>};
static_assert(sums::floatLanes(1) == sums::floatLanes(4));

constexpr sums::Floats<1> kOfOne = {kSums<FloatItself, float>, kSums<FloatMagnitude, float>,
                                    kSums<FloatSquare, float>,
                                    kReduction<Largest, FloatBits, float>};
constexpr sums::Floats<2> kOfTwo = {{},
                                    kSums<FloatMagnitude, float, float>,
                                    kSums<FloatSquare, float, float>,
                                    kReduction<Largest, FloatBits, float, float>};
constexpr sums::ByChannels<1> kLargest32s = {ownReduction<Largest, 1, Magnitude, std::int32_t>,
                                             nullptr, nullptr};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::sums {
KELI_SELECT_ROWS(Floats<1>, kOfOne, floatsOfOne)
KELI_SELECT_ROWS(Floats<2>, kOfTwo, floatsOfTwo)
KELI_SELECT_ROWS(ByChannels<1>, kLargest32s, largest32s)
}  // namespace keli::sums
#endif
