// Means of bytes and of words. Sums of columns slide down by the row that enters the mask and the
// one that leaves it; the sum of a mask is a difference of two sums along the row, or for narrow
// masks the sum of its columns. All sums are exact modulo 2^32.
#if defined(KELI_BOX_INTEGER_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_BOX_INTEGER_INL_H_
#undef KELI_BOX_INTEGER_INL_H_
#else
#define KELI_BOX_INTEGER_INL_H_
#endif

#include "box/box-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

using SumTag = hn::CappedTag<std::int32_t, 16>;
constexpr std::size_t kSumLanes = hn::MaxLanes(SumTag());
// Columns whose sum takes less time than a difference along the row.
constexpr std::size_t kDirectColumns = 6;

// (sum * multiplier) >> shift. Shifts of up to 24 leave products of 32 bits: a sum is at most 255
// times the number of pixels, the multiplier at most (1 + 2^-11) * 2^shift divided by it, and
// 255 * 2^24 * (1 + 2^-11) < 2^32.
class ByteMean {
 public:
  explicit ByteMean(const box::BoxRows& r) : q_(r.quotient) {}

  HWY_INLINE hn::Vec<SumTag> operator()(hn::Vec<SumTag> sums) const {
    const SumTag d;
    const hn::RebindToUnsigned<SumTag> du;
    const auto factor = hn::Set(du, q_.multiplier);
    const auto s = hn::BitCast(du, sums);
    if (q_.shift <= 24) return hn::BitCast(d, shiftRightBy(du, s * factor, q_.shift));
    if constexpr (kScalarTarget) {
      const std::uint64_t product = std::uint64_t{hn::GetLane(s)} * q_.multiplier;
      return hn::Set(d, static_cast<std::int32_t>(product >> q_.shift));
    } else {
      const hn::RepartitionToWide<decltype(du)> dw;
      const auto even = hn::MulEven(s, factor);
      const auto odd = hn::MulEven(hn::BitCast(du, hn::ShiftRight<32>(hn::BitCast(dw, s))), factor);
      return hn::BitCast(
          d, shiftRightBy(dw, even, q_.shift) | hn::ShiftLeft<32>(shiftRightBy(dw, odd, q_.shift)));
    }
  }

 private:
  box::ByteQuotient q_;
};

// Of a float's product with the reciprocal, rounded half to even.
class WordMean {
 public:
  explicit WordMean(const box::BoxRows& r) : reciprocal_(r.reciprocal) {}

  HWY_INLINE hn::Vec<SumTag> operator()(hn::Vec<SumTag> sums) const {
    const hn::Rebind<float, SumTag> df;
    return roundToInt(SumTag(), hn::ConvertTo(df, sums) * hn::Set(df, reciprocal_));
  }

 private:
  float reciprocal_;
};

template <class T>
using MeanOf = std::conditional_t<sizeof(T) == 1, ByteMean, WordMean>;

template <class T, bool kKeepsFourth>
struct IntegerMeans {
  using SampleTag = hn::Rebind<T, SumTag>;
  MeanOf<T> mean;
  T* dst;

  HWY_INLINE hn::Vec<SampleTag> samples(hn::Vec<SumTag> sums) const {
    return hn::DemoteTo(SampleTag(), mean(sums));
  }
  HWY_INLINE void put(std::size_t i, hn::Vec<SumTag> sums) const {
    keli::HWY_NAMESPACE::put<kKeepsFourth>(SampleTag(), samples(sums), dst, i);
  }
  HWY_INLINE void putFirst(std::size_t i, hn::Vec<SumTag> sums, std::size_t count) const {
    keli::HWY_NAMESPACE::putFirst<kKeepsFourth>(SampleTag(), samples(sums), dst, i, count);
  }
};

// Calls f(i, load) for each vector of a row of n sums, where load(row) gives the vector's samples.
template <class T, class F>
HWY_INLINE void forSamples(std::size_t n, const F& f) {
  const SumTag d;
  const hn::Rebind<T, SumTag> dt;
  std::size_t i = 0;
  for (; i + kSumLanes <= n; i += kSumLanes)
    f(i, [&](const T* row) KELI_LAMBDA { return hn::PromoteTo(d, hn::LoadU(dt, row + i)); });
  if (i < n) {
    f(i, [&](const T* row) KELI_LAMBDA { return hn::PromoteTo(d, loadFirst(dt, row + i, n - i)); });
  }
}

// Sums of columns for a block's first row.
template <class T>
HWY_INLINE void sumColumns(const box::BoxRows& r, std::size_t n, std::int32_t* columns) {
  const SumTag d;
  for (std::size_t k = 0; k < r.maskHeight; ++k) {
    const T* const row = maskRow<T>(r, 0, k);
    forSamples<T>(n, [&](std::size_t i, auto load) KELI_LAMBDA {
      const auto sum = k == 0 ? hn::Zero(d) : hn::Load(d, columns + i);
      hn::Store(sum + load(row), d, columns + i);
    });
  }
}

// From the row before row y to it.
template <class T, class F>
HWY_INLINE void slideColumns(const box::BoxRows& r, std::size_t n, std::size_t y,
                             std::int32_t* columns, const F& use) {
  const SumTag d;
  const T* const enters = maskRow<T>(r, y, r.maskHeight - 1);
  const T* const leaves = reinterpret_cast<const T*>(bytes(maskRow<T>(r, y, 0)) - r.b.srcStep[0]);
  forSamples<T>(n, [&](std::size_t i, auto load) KELI_LAMBDA {
    const auto sum = hn::Load(d, columns + i) + load(enters) - load(leaves);
    hn::Store(sum, d, columns + i);
    use(i, sum);
  });
}

// Lanes of a vector that others take: those of their channel before them, and of the last pixel.
struct Lanes {
  alignas(64) std::int32_t lane[kSumLanes];
};
constexpr Lanes lanesBefore(std::size_t distance) {
  Lanes lanes = {};
  for (std::size_t j = distance; j < kSumLanes; ++j)
    lanes.lane[j] = static_cast<std::int32_t>(j - distance);
  return lanes;
}
constexpr Lanes lastOfChannels(std::size_t pixel) {
  Lanes lanes = {};
  for (std::size_t j = 0; j < kSumLanes; ++j)
    lanes.lane[j] = static_cast<std::int32_t>(kSumLanes - pixel + j % pixel);
  return lanes;
}

// Sums along a row of all samples of a channel before each one.
template <std::size_t kPixel>
class RowSums {
 public:
  // sums: of the row's first pixel on.
  explicit HWY_INLINE RowSums(std::int32_t* sums)
      : after_(sums + kPixel), last_(hn::Zero(SumTag())) {
    for (std::size_t k = 0; k < kPixel; ++k) sums[k] = 0;
  }

  HWY_INLINE void add(std::size_t i, hn::Vec<SumTag> v) {
    const SumTag d;
    if constexpr (kSumLanes < kPixel) {
      hn::StoreU(v + hn::LoadU(d, after_ + i - kPixel), d, after_ + i);
    } else {
      static constexpr Lanes kLast = lastOfChannels(kPixel);
      v = addBefore<kPixel>(v) + hn::TableLookupLanes(last_, hn::SetTableIndices(d, kLast.lane));
      hn::StoreU(v, d, after_ + i);
      last_ = v;
    }
  }

 private:
  // Adds to each lane those of its channel before it.
  template <std::size_t kDistance>
  static HWY_INLINE hn::Vec<SumTag> addBefore(hn::Vec<SumTag> v) {
    if constexpr (kDistance >= kSumLanes) {
      return v;
    } else {
      const SumTag d;
      static constexpr Lanes kBefore = lanesBefore(kDistance);
      const auto moved = hn::TableLookupLanes(v, hn::SetTableIndices(d, kBefore.lane));
      const auto here = hn::Iota(d, 0) > hn::Set(d, static_cast<std::int32_t>(kDistance) - 1);
      return addBefore<2 * kDistance>(v + hn::IfThenElseZero(here, moved));
    }
  }

  std::int32_t* after_;
  hn::Vec<SumTag> last_;
};

// The means of a row from its sums.
template <class D, class Sink>
HWY_INLINE void subtractRows(D d, const hn::TFromD<D>* from, const hn::TFromD<D>* what,
                             std::size_t n, const Sink& sink) {
  constexpr std::size_t kN = hn::MaxLanes(D());
  for (std::size_t i = 0; i < n; i += kN) {
    const auto v = hn::LoadU(d, from + i) - hn::LoadU(d, what + i);
    if (n - i >= kN) {
      sink.put(i, v);
    } else {
      sink.putFirst(i, v, n - i);
    }
  }
}

template <class T, std::size_t kPixel, bool kKeepsFourth>
void boxOf(const box::BoxRows& r) {
  const SumTag d;
  const std::size_t n = static_cast<std::size_t>(box::meetSamples(r));
  std::int32_t* const columns = cellsAt<std::int32_t>(r, 0);
  std::int32_t* const sums = cellsAt<std::int32_t>(r, 1);
  const bool direct = r.maskWidth <= kDirectColumns;
  Terms<std::int32_t> terms;
  for (std::size_t k = 0; direct && k < r.maskWidth; ++k) terms.add(columns + k * kPixel);
  for (std::size_t y = 0; y < r.b.rows; ++y) {
    const bool anew = y == 0 && !r.resumes;
    const IntegerMeans<T, kKeepsFourth> means = {MeanOf<T>(r), r.b.dstRow<T>(y)};
    if (anew) sumColumns<T>(r, n, columns);
    if (direct) {
      if (!anew) slideColumns<T>(r, n, y, columns, [](std::size_t, auto) KELI_LAMBDA {});
      sumFewTerms(d, terms, r.b.n, means);
    } else {
      RowSums<kPixel> along(sums);
      const auto add = [&](std::size_t i, auto v) KELI_LAMBDA { along.add(i, v); };
      if (anew) {
        for (std::size_t i = 0; i < n; i += kSumLanes) add(i, hn::Load(d, columns + i));
      } else {
        slideColumns<T>(r, n, y, columns, add);
      }
      subtractRows(d, sums + r.maskWidth * kPixel, sums, r.b.n, means);
    }
  }
}

// Calls f with the distance of pixels as a constant.
template <class F>
HWY_INLINE void withPixel(std::size_t pixel, const F& f) {
  if (pixel == 1) return f(std::integral_constant<std::size_t, 1>());
  if (pixel == 3) return f(std::integral_constant<std::size_t, 3>());
  f(std::integral_constant<std::size_t, 4>());
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
