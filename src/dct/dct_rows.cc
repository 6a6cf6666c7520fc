// Row kernels of whole 8 x 8 blocks: rows, then columns, in vectors that hold one number of eight
// rows or columns, or of fewer, with the numbers between them on the stack. Words are exchanged,
// rows for columns, before they become floats.
#include "dct/dct_rows.h"

#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "dct/dct_rows.cc"
#include <hwy/foreach_target.h>
//
#include "core/simd-inl.h"
#include "dct/block-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

#if HWY_TARGET != HWY_SCALAR
// Exchanges rows and columns of a block in vectors of eight lanes.
template <class V>
HWY_INLINE void exchangeBlock(V (&v)[8]) {
  const Lanes d;
  unrolled<4>([&](auto k) KELI_LAMBDA {
    const V low = hn::ConcatLowerLower(d, v[k + 4], v[k]);
    v[k + 4] = hn::ConcatUpperUpper(d, v[k + 4], v[k]);
    v[k] = low;
  });
  exchangeBlocks(d, v[0], v[1], v[2], v[3]);
  exchangeBlocks(d, v[4], v[5], v[6], v[7]);
}
#endif

// read(y, v) gives columns of the rows from y on, write(x, v) takes rows from column x on, and
// flow(v) transforms eight vectors.
template <class Read, class Flow, class Write>
HWY_INLINE void transformBlock(const Read& read, const Flow& flow, const Write& write) {
  const Lanes d;
#if HWY_TARGET != HWY_SCALAR
  if constexpr (kLanes == 8) {
    hn::Vec<Lanes> v[8];
    read(0, v);
    flow(v);
    exchangeBlock(v);
    flow(v);
    return write(0, v);
  }
#endif
  HWY_ALIGN float between[64];
  for (std::size_t y = 0; y < 8; y += kLanes) {
    hn::Vec<Lanes> v[8];
    read(y, v);
    flow(v);
    storeRows(d, v, between + y);
  }
  for (std::size_t x = 0; x < 8; x += kLanes) {
    hn::Vec<Lanes> v[8];
    readColumns<8>(d, between + 8 * x, v);
    flow(v);
    write(x, v);
  }
}

#if HWY_TARGET != HWY_SCALAR
using EightWords = hn::CappedTag<Kel16s, 8>;

HWY_INLINE hn::Vec<EightWords> readRow(const Kel16s* row) { return hn::LoadU(EightWords(), row); }
HWY_INLINE hn::Vec<EightWords> readRow(const Kel8u* row) {
  const hn::Rebind<std::uint8_t, EightWords> d8;
  return hn::PromoteTo(EightWords(), hn::LoadU(d8, row));
}

// Row y in the first block of 16 bytes, row y + 4 in the second.
template <class T>
HWY_INLINE auto readRows(const T* src, std::ptrdiff_t step, std::size_t y) {
  if constexpr (kLanes == 8) {
    const hn::Repartition<Kel16s, Lanes> dw;
    return hn::Combine(dw, readRow(rowAt(src, step, y + 4)), readRow(rowAt(src, step, y)));
  } else {
    return readRow(rowAt(src, step, y));
  }
}
#endif

// The columns of rows y to y + lanes, in the unit of words.
template <class T, class V>
HWY_INLINE void readSamples(const T* src, std::ptrdiff_t step, std::size_t y, V (&v)[8]) {
  const Lanes d;
#if HWY_TARGET != HWY_SCALAR
  const hn::RebindToSigned<Lanes> di;
  hn::Vec<Lanes> pairs[4];  // of columns
  unrolled<4>([&](auto k) KELI_LAMBDA { pairs[k] = hn::BitCast(d, readRows(src, step, y + k)); });
  exchangeBlocks(d, pairs[0], pairs[1], pairs[2], pairs[3]);
  unrolled<4>([&](auto k) KELI_LAMBDA {
    const auto words = hn::BitCast(di, pairs[k]);
    v[2 * k] = hn::ConvertTo(d, hn::ShiftLeft<16>(words));
    v[2 * k + 1] = hn::ConvertTo(d, hn::And(words, hn::Set(di, -65536)));
  });
#else
  const T* const row = rowAt(src, step, y);
  unrolled<8>([&](auto k) KELI_LAMBDA {
    v[k] = hn::Set(d, static_cast<float>(load(row + k)) * dct::kWordUnit);
  });
#endif
}

// Rounds the rows v, which begin at column x, adds `shift` and stores bytes from low to high.
template <class V>
HWY_INLINE void writeBytes(std::size_t x, const V (&v)[8], Kel8u* dst, std::ptrdiff_t step,
                           int shift, int low, int high) {
  const Lanes d;
#if HWY_TARGET != HWY_SCALAR
  const hn::Repartition<Kel16s, Lanes> dw;
  const hn::Repartition<std::uint8_t, Lanes> d8;
  const auto add = hn::Set(dw, static_cast<Kel16s>(shift));
  const auto least = hn::Set(dw, static_cast<Kel16s>(low));
  const auto most = hn::Set(dw, static_cast<Kel16s>(high));
  // Sums that saturate lie beyond both bounds.
  const auto words = [&](const auto& a, const auto& b) KELI_LAMBDA {
    const auto rounded = packSaturated(dw, nearestIntegers(d, a), nearestIntegers(d, b));
    return hn::Min(hn::Max(hn::SaturatedAdd(rounded, add), least), most);
  };
  unrolled<2>([&](auto half) KELI_LAMBDA {
    constexpr std::size_t kFirst = 4 * half;
    const auto bytes =
        packSaturated(d8, words(v[kFirst], v[kFirst + 1]), words(v[kFirst + 2], v[kFirst + 3]));
    HWY_ALIGN Kel8u four[4 * kLanes];
    hn::Store(reordered<0, 4, 1, 5, 2, 6, 3, 7>(bytes), d8, four);
    unrolled<4>([&](auto k) KELI_LAMBDA {
      std::memcpy(rowAt(dst, step, kFirst + k) + x, four + kLanes * k, kLanes);
    });
  });
#else
  unrolled<8>([&](auto k) KELI_LAMBDA {
    const int value = std::clamp(hn::GetLane(nearestIntegers(d, v[k])), -32768, 32767) + shift;
    rowAt(dst, step, k)[x] = static_cast<Kel8u>(std::min(std::max(value, low), high));
  });
#endif
}

constexpr auto kForward = [](auto& v) KELI_LAMBDA { forwardLanes(Lanes(), v); };
constexpr auto kInverse = [](auto& v) KELI_LAMBDA { inverseLanes<8>(Lanes(), v); };

// Transforms samples plus a shift. It changes nothing but the first coefficient, by 64 times as
// much: sums of 64 shifted words have at most 23 digits and are exact, and so are all differences.
template <class T>
HWY_INLINE void forwardSamples(const T* src, std::ptrdiff_t step, Kel16s* dst, int shift) {
  const Lanes d;
  const auto whole = hn::Set(d, static_cast<float>(64 * shift) * dct::kWordUnit);
  transformBlock([&](std::size_t y, auto& v) KELI_LAMBDA { readSamples(src, step, y, v); },
                 kForward,
                 [&](std::size_t x, auto& v) KELI_LAMBDA {
                   if (x == 0) v[0] = v[0] + hn::IfThenElseZero(hn::FirstN(d, 1), whole);
                   scaleLanes<dct::OfWords, 8>(d, x, v);
                   writeWords(d, x, v, dst, 8 * sizeof(Kel16s));
                 });
}

void ownForward(const Kel16s* src, std::ptrdiff_t step, Kel16s* dst) {
  forwardSamples(src, step, dst, 0);
}

void ownForwardBytes(const Kel8u* src, std::ptrdiff_t step, Kel16s* dst, int levelShift) {
  forwardSamples(src, step, dst, levelShift);
}

template <class Write>
HWY_INLINE void inverseSamples(const Kel16s* src, const Write& write) {
  transformBlock(
      [&](std::size_t y, auto& v) KELI_LAMBDA {
        readSamples(src, 8 * sizeof(Kel16s), y, v);
        scaleLanes<dct::OfWords, 8>(Lanes(), y, v);
      },
      kInverse, write);
}

void ownInverse(const Kel16s* src, Kel16s* dst, std::ptrdiff_t step) {
  inverseSamples(src,
                 [&](std::size_t x, auto& v) KELI_LAMBDA { writeWords(Lanes(), x, v, dst, step); });
}

void ownInverseBytes(const Kel16s* src, Kel8u* dst, std::ptrdiff_t step, int levelShift,
                     int clipDown, int clipUp) {
  inverseSamples(src, [&](std::size_t x, auto& v) KELI_LAMBDA {
    writeBytes(x, v, dst, step, levelShift, clipDown, clipUp);
  });
}

// The sum of lanes one of which is no number is none either.
template <class V>
HWY_INLINE void writeFloats(std::size_t x, V (&v)[8], Kel32f* dst) {
  const V sum = ((v[0] + v[1]) + (v[2] + v[3])) + ((v[4] + v[5]) + (v[6] + v[7]));
  if (!hn::AllTrue(Lanes(), hn::Eq(sum, sum)))
    unrolled<8>([&](auto k) KELI_LAMBDA { v[k] = settledLanes(Lanes(), v[k]); });
  storeRows(Lanes(), v, dst + x);
}

void ownForwardFloats(const Kel32f* src, Kel32f* dst) {
  transformBlock([&](std::size_t y, auto& v)
                     KELI_LAMBDA { readColumns<8>(Lanes(), src + 8 * y, v); },
                 kForward,
                 [&](std::size_t x, auto& v) KELI_LAMBDA {
                   scaleLanes<dct::OfFloats, 8>(Lanes(), x, v);
                   writeFloats(x, v, dst);
                 });
}

void ownInverseFloats(const Kel32f* src, Kel32f* dst) {
  transformBlock(
      [&](std::size_t y, auto& v) KELI_LAMBDA {
        readColumns<8>(Lanes(), src + 8 * y, v);
        scaleLanes<dct::OfFloats, 8>(Lanes(), y, v);
      },
      kInverse, [&](std::size_t x, auto& v) KELI_LAMBDA { writeFloats(x, v, dst); });
}

const dct::DctRows kDctRows = {ownForward, ownForwardBytes, ownForwardFloats,
                               ownInverse, ownInverseBytes, ownInverseFloats};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::dct {
KELI_SELECT_ROWS(DctRows, kDctRows, dctRows)
}  // namespace keli::dct
#endif
