// Means of floats. Each is a sum of its own samples alone, in an order that depends on the mask and
// on the number of the row: nothing is subtracted, so nothing drifts, and a NaN reaches only the
// masks that hold it.
//
// Columns: up to kDirectRows rows from top to bottom. Taller masks are cut where the rows, counted
// from the top of the first row's mask, begin a chunk of min(height, kChunkRows): the rows above
// the first cut from the cut upwards, whole chunks between cuts from top to bottom, the rows below
// the last cut from it downwards; then ((above + between) + below). Rows: up to kDirectColumns
// columns from left to right; wider masks from sums of 4, 16, 64 ... columns that follow each
// other, from left to right, first those of the fewest columns.
#define KELI_ENABLE_AVX512
#include "box/box_rows.h"

#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "box/box_32f_rows.cc"
#include <hwy/foreach_target.h>
//
#include "box/box-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

using FloatTag = hn::CappedTag<float, 16>;
constexpr std::size_t kDirectColumns = 8;

template <bool kKeepsFourth>
struct FloatMeans {
  float* dst;
  float reciprocal;

  // Which operand's bits a result that is not a number carries is up to the compiler; one pattern
  // stands for all.
  HWY_INLINE hn::Vec<FloatTag> mean(hn::Vec<FloatTag> sum) const {
    const FloatTag d;
    const hn::RebindToUnsigned<FloatTag> du;
    const auto v = sum * hn::Set(d, reciprocal);
    return hn::IfThenElse(hn::IsNaN(v), hn::BitCast(d, hn::Set(du, 0xFFC00000)), v);
  }
  HWY_INLINE void put(std::size_t i, hn::Vec<FloatTag> sum) const {
    keli::HWY_NAMESPACE::put<kKeepsFourth>(FloatTag(), mean(sum), dst, i);
  }
  HWY_INLINE void putFirst(std::size_t i, hn::Vec<FloatTag> sum, std::size_t count) const {
    keli::HWY_NAMESPACE::putFirst<kKeepsFourth>(FloatTag(), mean(sum), dst, i, count);
  }
};

// Keeps the sums below the last cut, and adds the others to them.
struct Joined {
  const float* above;
  const float* between;  // or null
  float* below;
  float* sums;

  HWY_INLINE void put(std::size_t i, hn::Vec<FloatTag> v) const {
    const FloatTag d;
    hn::Store(v, d, below + i);
    auto sum = hn::Load(d, above + i);
    if (between != nullptr) sum = sum + hn::Load(d, between + i);
    hn::Store(sum + v, d, sums + i);
  }
  HWY_INLINE void putFirst(std::size_t i, hn::Vec<FloatTag> v, std::size_t) const { put(i, v); }
};

// Sums of the mask's rows in every column.
class FloatColumns {
 public:
  explicit FloatColumns(const box::BoxRows& r)
      : r_(r),
        n_(static_cast<std::size_t>(box::meetSamples(r))),
        chunk_(r.maskHeight < box::kChunkRows ? r.maskHeight : box::kChunkRows),
        totalsRing_(r.maskHeight / box::kChunkRows + 2),
        levels_(box::digitsOf(r.maskWidth)) {}

  // Of the row number y of this call; those of all rows before have been formed.
  void form(std::size_t y, bool anew) {
    if (r_.maskHeight <= box::kDirectRows) return sumRows(y, 0, r_.maskHeight, sums());
    const std::size_t top = r_.row + y, last = top + r_.maskHeight - 1;
    const std::size_t firstChunk = top / chunk_, lastChunk = last / chunk_;
    const bool enters = top % chunk_ == 0, opens = last % chunk_ == 0;
    if (anew || enters) formAbove(y, top % chunk_);
    if (anew) {
      for (std::size_t k = firstChunk + 1; k < lastChunk; ++k)
        sumRows(y, k * chunk_ - top, chunk_, total(k));
      if (lastChunk > firstChunk) sumRows(y, lastChunk * chunk_ - top, last % chunk_ + 1, below());
    } else if (opens && hasBetween()) {
      copy(below(), total(lastChunk - 1));
    }
    if (hasBetween() && (anew || enters || opens)) formBetween(firstChunk + 1, lastChunk);
    const Joined join = {above(top % chunk_), lastChunk > firstChunk + 1 ? between() : nullptr,
                         below(), sums()};
    if (lastChunk == firstChunk) return copy(join.above, join.sums);
    Terms<float> rows;
    if (!anew) rows.add(maskRow<float>(r_, y, r_.maskHeight - 1));
    if (anew || !opens) rows.add(join.below);
    sumTerms<0>(FloatTag(), rows, n_, join);
  }

  float* level(std::size_t i) const { return cellsAt<float>(r_, i); }
  float* sums() const { return level(0); }

 private:
  bool hasBetween() const { return r_.maskHeight > box::kChunkRows; }
  float* below() const { return cellsAt<float>(r_, levels_); }
  float* between() const { return cellsAt<float>(r_, levels_ + 1); }
  float* above(std::size_t i) const { return cellsAt<float>(r_, levels_ + 2 + i); }
  float* total(std::size_t k) const {
    return cellsAt<float>(r_, levels_ + 2 + chunk_ + k % totalsRing_);
  }

  // Of count rows from the one `first` rows below the top of the mask of row y.
  void sumRows(std::size_t y, std::size_t first, std::size_t count, float* to) const {
    Terms<float> rows;
    for (std::size_t k = 0; k < count; ++k) rows.add(maskRow<float>(r_, y, first + k));
    sumFewTerms(FloatTag(), rows, n_, ToCells<FloatTag>{to});
  }

  // The mask's top row is row `inChunk` of its chunk; the rows above it are not needed any more.
  void formAbove(std::size_t y, std::size_t inChunk) const {
    sumRows(y, chunk_ - 1 - inChunk, 1, above(chunk_ - 1));
    for (std::size_t k = chunk_ - 1; k-- > inChunk;) {
      Terms<float> rows;
      rows.add(maskRow<float>(r_, y, k - inChunk));
      rows.add(above(k + 1));
      sumTerms<0>(FloatTag(), rows, n_, ToCells<FloatTag>{above(k)});
    }
  }

  void formBetween(std::size_t first, std::size_t end) const {
    if (first == end) return;
    copy(total(first), between());
    for (std::size_t k = first + 1; k < end; ++k) {
      Terms<float> rows;
      rows.add(between());
      rows.add(total(k));
      sumTerms<0>(FloatTag(), rows, n_, ToCells<FloatTag>{between()});
    }
  }

  void copy(const float* from, float* to) const {
    Terms<float> rows;
    rows.add(from);
    sumFewTerms(FloatTag(), rows, n_, ToCells<FloatTag>{to});
  }

  const box::BoxRows& r_;
  std::size_t n_;
  std::size_t chunk_;
  std::size_t totalsRing_;
  std::size_t levels_;
};

// The columns' sums that make up each mask, in terms of sums of 1, 4, 16 ... columns.
inline Terms<float> wideTerms(const box::BoxRows& r, const FloatColumns& columns) {
  Terms<float> terms;
  std::size_t left = 0, size = 1;
  for (std::size_t level = 0, rest = r.maskWidth; rest != 0; ++level, rest /= 4, size *= 4) {
    for (std::size_t k = 0; k < rest % 4; ++k, left += size)
      terms.add(columns.level(level) + left * r.pixel);
  }
  return terms;
}

inline void sumGroups(const box::BoxRows& r, const FloatColumns& columns) {
  std::size_t level = 1;
  for (std::size_t size = 4; size <= r.maskWidth; ++level, size *= 4) {
    Terms<float> four;
    for (std::size_t k = 0; k < 4; ++k)
      four.add(columns.level(level - 1) + k * (size / 4) * r.pixel);
    const std::size_t n = static_cast<std::size_t>(box::meetSamples(r)) - (size - 1) * r.pixel;
    sumTerms<4>(FloatTag(), four, n, ToCells<FloatTag>{columns.level(level)});
  }
}

template <bool kKeepsFourth>
void ownBox32f(const box::BoxRows& r) {
  FloatColumns columns(r);
  Terms<float> terms;
  const bool direct = r.maskWidth <= kDirectColumns;
  for (std::size_t k = 0; direct && k < r.maskWidth; ++k) terms.add(columns.sums() + k * r.pixel);
  if (!direct) terms = wideTerms(r, columns);
  for (std::size_t y = 0; y < r.b.rows; ++y) {
    columns.form(y, y == 0 && !r.resumes);
    if (!direct) sumGroups(r, columns);
    const FloatMeans<kKeepsFourth> means = {r.b.dstRow<float>(y), r.reciprocal};
    sumFewTerms(FloatTag(), terms, r.b.n, means);
  }
}

constexpr box::BoxKernels kBox32f = {ownBox32f<false>, ownBox32f<true>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::box {
template <>
KELI_SELECT_ROWS(BoxKernels, kBox32f, boxKernels<Kel32f>)
}  // namespace keli::box
#endif
