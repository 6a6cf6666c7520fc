// Means of bytes by sums of 16 bits, for masks of at most 257 pixels.
//
// Sums of columns stand in two rows, those of even samples and those of odd ones, and move from one
// pair of rows to another as they slide down: a row's means are formed from sums that have long
// been stored, while those of the next row are. Of two neighbouring masks of one channel all
// columns but two are the same, so both are formed from one sum.
#if defined(KELI_BOX_WORDS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_BOX_WORDS_INL_H_
#undef KELI_BOX_WORDS_INL_H_
#else
#define KELI_BOX_WORDS_INL_H_
#endif

#include "box/box-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

#if HWY_TARGET == HWY_SCALAR
HWY_INLINE bool fitsWords(const box::BoxRows&) { return false; }
template <std::size_t kPixel, bool kKeepsFourth>
void boxOfWords(const box::BoxRows& r);
#else
using ByteTag = hn::CappedTag<std::uint8_t, 64>;
using WordTag = hn::Repartition<std::uint16_t, ByteTag>;
using Bytes = hn::Vec<ByteTag>;
using Words = hn::Vec<WordTag>;

// Wider masks are summed up sooner as differences along the row.
constexpr std::size_t kMostWordColumns = 16;

HWY_INLINE bool fitsWords(const box::BoxRows& r) {
  return r.maskWidth <= kMostWordColumns && r.maskWidth * r.maskHeight <= 0xFFFF / 0xFF;
}

// Words at even and at odd samples.
struct Halves {
  Words even, odd;

  HWY_INLINE Halves(Words e, Words o) : even(e), odd(o) {}
  explicit HWY_INLINE Halves(Bytes v)
      : even(hn::And(hn::BitCast(WordTag(), v), hn::Set(WordTag(), 0xFF))),
        odd(hn::ShiftRight<8>(hn::BitCast(WordTag(), v))) {}
};

struct HalfRows {
  std::uint16_t* even;
  std::uint16_t* odd;

  // From sample i on, which is even.
  HWY_INLINE Halves load(std::size_t i) const {
    return {hn::Load(WordTag(), even + i / 2), hn::Load(WordTag(), odd + i / 2)};
  }
  HWY_INLINE void store(std::size_t i, const Halves& v) const {
    hn::Store(v.even, WordTag(), even + i / 2);
    hn::Store(v.odd, WordTag(), odd + i / 2);
  }
  // Every second sample from the one that lies `distance` behind sample i, which is even.
  HWY_INLINE Words from(std::size_t i, std::size_t distance) const {
    return hn::LoadU(WordTag(), (distance % 2 == 0 ? even : odd) + (i + distance) / 2);
  }
};

template <class D>
HWY_INLINE hn::Vec<D> shiftWordsRight(D d, hn::Vec<D> v, int count) {
  if constexpr (kShiftsNarrowLanes) return v >> hn::Set(d, static_cast<std::uint16_t>(count));
  return hn::ShiftRightSame(v, count);
}

// (sum * multiplier) >> shift as the upper half of a product and a shift.
class WordQuotient {
 public:
  explicit WordQuotient(const box::ByteQuotient& q)
      : shift_(q.shift < 16 ? 0 : q.shift - 16),
        factor_(static_cast<std::uint16_t>(q.multiplier << (q.shift < 16 ? 16 - q.shift : 0))) {}

  HWY_INLINE Bytes operator()(const Halves& sums) const {
    return hn::BitCast(ByteTag(),
                       hn::Or(quotient(sums.even), hn::ShiftLeft<8>(quotient(sums.odd))));
  }

 private:
  HWY_INLINE Words quotient(Words sums) const {
    const WordTag d;
    return shiftWordsRight(d, hn::MulHigh(sums, hn::Set(d, factor_)), shift_);
  }

  int shift_;
  std::uint16_t factor_;
};

// Sums of the columns of each mask from sample i on, of which `own` are those of the first columns.
// kWidth: of the mask, or 0 if it is known when running.
template <std::size_t kPixel, std::size_t kWidth>
HWY_INLINE Halves sumMasks(const HalfRows& columns, std::size_t width, std::size_t i,
                           const Halves& own) {
  if (kWidth != 0) width = kWidth;
  if constexpr (kPixel == 1) {
    Words common = own.odd;
    for (std::size_t t = 2; t < width; ++t) common = common + columns.from(i, t);
    return {own.even + common, common + columns.from(i, width)};
  } else {
    Halves sums = own;
    for (std::size_t t = 1; t < width; ++t) {
      const std::size_t distance = t * kPixel;
      sums.even = sums.even + columns.from(i, distance);
      sums.odd = sums.odd + columns.from(i, distance + 1);
    }
    return sums;
  }
}

// How the sums of columns change from a row to the next.
struct Slide {
  const std::uint8_t* enters;
  const std::uint8_t* leaves;
  HalfRows to;

  HWY_INLINE void operator()(std::size_t i, const Halves& sums, Bytes in, Bytes out) const {
    const Halves plus(in), minus(out);
    to.store(i, {sums.even + (plus.even - minus.even), sums.odd + (plus.odd - minus.odd)});
  }
  HWY_INLINE void operator()(std::size_t i, const Halves& sums) const {
    (*this)(i, sums, hn::LoadU(ByteTag(), enters + i), hn::LoadU(ByteTag(), leaves + i));
  }
};

// Samples from i to n.
inline void slideRest(const Slide& slide, const HalfRows& from, std::size_t i, std::size_t n) {
  const ByteTag d;
  for (; i < n; i += hn::MaxLanes(ByteTag())) {
    slide(i, from.load(i), loadUpTo(d, slide.enters + i, n - i),
          loadUpTo(d, slide.leaves + i, n - i));
  }
}

// Of a block's first row.
inline void sumColumns(const box::BoxRows& r, std::size_t n, const HalfRows& to) {
  const ByteTag d;
  for (std::size_t i = 0; i < n; i += hn::MaxLanes(ByteTag())) {
    Halves sums(loadUpTo(d, maskRow<Kel8u>(r, 0, 0) + i, n - i));
    for (std::size_t k = 1; k < r.maskHeight; ++k) {
      const Halves more(loadUpTo(d, maskRow<Kel8u>(r, 0, k) + i, n - i));
      sums = {sums.even + more.even, sums.odd + more.odd};
    }
    to.store(i, sums);
  }
}

template <std::size_t kPixel, std::size_t kWidth, bool kKeepsFourth>
class WordRows {
 public:
  explicit WordRows(const box::BoxRows& r)
      : r_(r), n_(static_cast<std::size_t>(box::meetSamples(r))), quotient_(r.quotient) {
    for (std::size_t k = 0; k < 2; ++k)
      rows_[k] = {cellsAt<std::uint16_t>(r, 2 * k), cellsAt<std::uint16_t>(r, 2 * k + 1)};
  }

  // The last row's sums are left where the first row's are expected when resumed.
  HWY_INLINE void form() {
    std::size_t at = (r_.b.rows - 1) % 2;
    if (r_.resumes) {
      slideRest(slideTo(0, rows_[at]), rows_[0], 0, n_);
    } else {
      sumColumns(r_, n_, rows_[at]);
    }
    for (std::size_t y = 0; y < r_.b.rows; ++y, at ^= 1) {
      if (y + 1 < r_.b.rows) {
        formRow<true>(y, rows_[at], slideTo(y + 1, rows_[at ^ 1]));
      } else {
        formRow<false>(y, rows_[at], {});
      }
    }
  }

 private:
  static constexpr std::size_t kN = hn::MaxLanes(ByteTag());

  Slide slideTo(std::size_t y, const HalfRows& to) const {
    const auto* const top = maskRow<Kel8u>(r_, y, 0);
    return {maskRow<Kel8u>(r_, y, r_.maskHeight - 1), top - r_.b.srcStep[0], to};
  }

  template <bool kSlides>
  HWY_INLINE void formRow(std::size_t y, const HalfRows& columns, const Slide& slide) const {
    const ByteTag d;
    Kel8u* const dst = r_.b.dstRow<Kel8u>(y);
    const std::size_t width = r_.maskWidth, n = r_.b.n;
    std::size_t i = 0;
    for (; i + kN <= n; i += kN) {
      const Halves own = columns.load(i);
      if constexpr (kSlides) slide(i, own);
      const Bytes means = quotient_(sumMasks<kPixel, kWidth>(columns, width, i, own));
      put<kKeepsFourth>(d, means, dst, i);
    }
    if (i < n) {
      const Bytes means = quotient_(sumMasks<kPixel, kWidth>(columns, width, i, columns.load(i)));
      putFirst<kKeepsFourth>(d, means, dst, i, n - i);
    }
    if constexpr (kSlides) slideRest(slide, columns, i, n_);
  }

  const box::BoxRows& r_;
  std::size_t n_;
  WordQuotient quotient_;
  HalfRows rows_[2];
};

template <std::size_t kPixel, bool kKeepsFourth>
HWY_INLINE void boxOfWords(const box::BoxRows& r) {
  if (r.maskWidth == 3) return WordRows<kPixel, 3, kKeepsFourth>(r).form();
  if (r.maskWidth == 5) return WordRows<kPixel, 5, kKeepsFourth>(r).form();
  WordRows<kPixel, 0, kKeepsFourth>(r).form();
}
#endif

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
