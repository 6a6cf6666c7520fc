// Row kernels of the quality index: sums in double precision, and sums of products of deviations
// from the means in single precision. Sample i of a row goes to lane i % kQualityLanes.
#define KELI_ENABLE_AVX512
#include "sums/quality_rows.h"

#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "sums/quality_rows.cc"
#include <hwy/foreach_target.h>
//
#include "core/simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

constexpr std::size_t kQualityLanes = sums::kQualityLanes;

#if HWY_TARGET == HWY_SCALAR
void ownDoubleSums(const Band<1>& b, sums::DoubleLanes& lanes) {
  for (std::size_t y = 0; y < b.rows; ++y) {
    const float* const row = b.srcRow<float>(0, y);
    for (std::size_t i = 0; i < b.n; ++i)
      lanes.sums[i % kQualityLanes] += static_cast<double>(load(row + i));
  }
}

template <class T>
void addDeviations(std::size_t n, sums::Deviations& t, const T* src1, const T* src2) {
  for (std::size_t i = 0; i < n; ++i) {
    const std::size_t lane = i % kQualityLanes;
    const float dev1 = static_cast<float>(load(src1 + i)) - t.mean1[lane];
    const float dev2 = static_cast<float>(load(src2 + i)) - t.mean2[lane];
    t.ofBoth.lanes[lane] += dev1 * dev2;
    t.ofFirst.lanes[lane] += dev1 * dev1;
    t.ofSecond.lanes[lane] += dev2 * dev2;
  }
}
#else
using DoubleTag = hn::CappedTag<double, 8>;
using FloatTag = hn::CappedTag<float, 16>;

// A sum of 0 is +0, so zeros that fill up a vector change nothing.
void ownDoubleSums(const Band<1>& b, sums::DoubleLanes& lanes) {
  const DoubleTag d;
  const hn::Rebind<float, DoubleTag> df;
  constexpr std::size_t kN = hn::MaxLanes(DoubleTag());
  constexpr std::size_t kVectors = kQualityLanes / kN;
  hn::Vec<DoubleTag> sum[kVectors];
  unrolled<kVectors>([&](auto u) KELI_LAMBDA { sum[u] = hn::Load(d, lanes.sums + u * kN); });
  for (std::size_t y = 0; y < b.rows; ++y) {
    const float* const row = b.srcRow<float>(0, y);
    std::size_t i = 0;
    for (; i + kQualityLanes <= b.n; i += kQualityLanes) {
      unrolled<kVectors>([&](auto u) KELI_LAMBDA {
        sum[u] = sum[u] + hn::PromoteTo(d, hn::LoadU(df, row + i + u * kN));
      });
    }
    unrolled<kVectors>([&](auto u) KELI_LAMBDA {
      if (i >= b.n) return;
      const auto v = i + kN <= b.n ? hn::LoadU(df, row + i) : loadFirst(df, row + i, b.n - i);
      sum[u] = sum[u] + hn::PromoteTo(d, v);
      i += kN;
    });
  }
  unrolled<kVectors>([&](auto u) KELI_LAMBDA { hn::Store(sum[u], d, lanes.sums + u * kN); });
}

// Up to a vector of samples, as floats.
template <class T>
HWY_INLINE hn::Vec<FloatTag> loadFloats(const T* p, std::size_t count) {
  const FloatTag d;
  const hn::Rebind<T, FloatTag> dt;
  const auto v = count >= hn::MaxLanes(FloatTag()) ? hn::LoadU(dt, p) : loadFirst(dt, p, count);
  if constexpr (sizeof(T) == 4) {
    return v;
  } else {
    return hn::ConvertTo(d, hn::PromoteTo(hn::Rebind<std::int32_t, FloatTag>(), v));
  }
}

template <class T>
HWY_INLINE void addDeviations(std::size_t n, sums::Deviations& t, const T* src1, const T* src2) {
  const FloatTag d;
  constexpr std::size_t kN = hn::MaxLanes(FloatTag());
  constexpr std::size_t kVectors = kQualityLanes / kN;
  hn::Vec<FloatTag> both[kVectors], first[kVectors], second[kVectors];
  unrolled<kVectors>([&](auto u) KELI_LAMBDA {
    both[u] = hn::Load(d, t.ofBoth.lanes + u * kN);
    first[u] = hn::Load(d, t.ofFirst.lanes + u * kN);
    second[u] = hn::Load(d, t.ofSecond.lanes + u * kN);
  });
  const auto add = [&](auto u, auto dev1, auto dev2) KELI_LAMBDA {
    both[u] = both[u] + dev1 * dev2;
    first[u] = first[u] + dev1 * dev1;
    second[u] = second[u] + dev2 * dev2;
  };
  const auto mean1 = [&](auto u) KELI_LAMBDA { return hn::Load(d, t.mean1 + u * kN); };
  const auto mean2 = [&](auto u) KELI_LAMBDA { return hn::Load(d, t.mean2 + u * kN); };
  std::size_t i = 0;
  for (; i + kQualityLanes <= n; i += kQualityLanes) {
    unrolled<kVectors>([&](auto u) KELI_LAMBDA {
      add(u, loadFloats(src1 + i + u * kN, kN) - mean1(u),
          loadFloats(src2 + i + u * kN, kN) - mean2(u));
    });
  }
  unrolled<kVectors>([&](auto u) KELI_LAMBDA {
    if (i >= n) return;
    const auto here = hn::FirstN(d, n - i);
    add(u, hn::IfThenElseZero(here, loadFloats(src1 + i, n - i) - mean1(u)),
        hn::IfThenElseZero(here, loadFloats(src2 + i, n - i) - mean2(u)));
    i += kN;
  });
  unrolled<kVectors>([&](auto u) KELI_LAMBDA {
    hn::Store(both[u], d, t.ofBoth.lanes + u * kN);
    hn::Store(first[u], d, t.ofFirst.lanes + u * kN);
    hn::Store(second[u], d, t.ofSecond.lanes + u * kN);
  });
}
#endif

template <class T>
void ownDeviations(const Band<2>& b, sums::Deviations& totals) {
  for (std::size_t y = 0; y < b.rows; ++y) {
    for (std::size_t i = 0; i < b.n;) {
      const std::size_t most = (sums::kQualityRounds - totals.rounds) * kQualityLanes;
      const std::size_t n = std::min(b.n - i, most);
      addDeviations(n, totals, b.srcRow<T>(0, y) + i, b.srcRow<T>(1, y) + i);
      totals.rounds += static_cast<unsigned>((n + kQualityLanes - 1) / kQualityLanes);
      if (totals.rounds == sums::kQualityRounds) totals.empty();
      i += n;
    }
  }
}

constexpr sums::Quality<Kel8u> kQuality8u = {nullptr, ownDeviations<Kel8u>};
constexpr sums::Quality<Kel32f> kQuality32f = {ownDoubleSums, ownDeviations<Kel32f>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::sums {
template <>
KELI_SELECT_ROWS(Quality<Kel8u>, kQuality8u, qualityKernels<Kel8u>)
template <>
KELI_SELECT_ROWS(Quality<Kel32f>, kQuality32f, qualityKernels<Kel32f>)
}  // namespace keli::sums
#endif
