// Extremes of rectangular windows: first those of the columns, into rows of scratch memory, then
// along these rows.
//
// Of a low window, the rows but the first and last of a pair of results serve both. Rows of results
// are written after the columns of the next batch have been read, so that they may replace the
// source's rows.
//
// A high window of h rows lies in one block of h rows or in two that follow each other: its extreme
// is that of the end of the one (ends) and the beginning of the other, each one step from that of
// the row before, three steps for a result whatever the height (M. van Herk: A fast algorithm for
// local minimum and maximum filters on rectangular and octagonal kernels, Pattern Recognition
// Letters 13, 1992; J. Gil, M. Werman: Computing 2-D min, median, and max filters, IEEE
// Transactions on Pattern Analysis and Machine Intelligence 15, 1993).
//
// Every part of the work is done for a batch of rows before the next part is: short rows are read
// again only after what is stored in them has left the store buffer, and have fewer loops begun for
// them. At 64x64 windows of 15 x 15 took 1.25 to 1.5 times as long without.
#if defined(KELI_MORPHOLOGY_RECTANGLE_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_MORPHOLOGY_RECTANGLE_INL_H_
#undef KELI_MORPHOLOGY_RECTANGLE_INL_H_
#else
#define KELI_MORPHOLOGY_RECTANGLE_INL_H_
#endif

#include "morphology/windows-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

using morphology::Rectangle;

// Extremes of a strip's columns, in rows of scratch memory. The strip's results begin at sample
// first of each row.
template <class Operation, class T>
class Columns {
 public:
  using Lane = LaneOf<T>;
  using Op = Extreme<Operation>;

  Columns(const Band<1>& b, const Rectangle& r, std::size_t first)
      : b_(b),
        r_(r),
        first_(first),
        n_(std::min(r.strips.n, b.n - first)),
        read_(n_ + r.strips.margin) {}

  Lane* scratchRow(std::size_t i) const {
    return reinterpret_cast<Lane*>(r_.strips.scratch + i * r_.strips.rowBytes);
  }

  // Those of the results of rows y and y + 1, if there is such a one, to two rows.
  void ofTwoRows(std::size_t y, std::size_t to) const {
    Lane* const dst = scratchRow(to);
    if (y + 1 == b_.rows) {
      ofRow(y, dst);
    } else if (r_.height == 3) {
      ofTwoRows<3>(y, dst, scratchRow(to + 1));
    } else if (r_.height > 1) {
      ofTwoRows<0>(y, dst, scratchRow(to + 1));
    } else {
      ofRow(y, dst);
      ofRow(y + 1, scratchRow(to + 1));
    }
  }

  // The extremes of rows k .. height - 1 of the block that begins at row y, for each k below kept;
  // those for greater k stay in no row.
  void endsOfBlock(std::size_t y, std::size_t kept) const {
    Lane* const last = scratchRow(kept - 1);
    overSourceApart(y + r_.height - 1, [&](auto d, std::size_t i, auto v)
                                           KELI_LAMBDA { storeAnywhere(d, v, last + i); });
    for (std::size_t k = r_.height - 1; k-- > 0;)
      joinRow(y + k, scratchRow(std::min(k + 1, kept - 1)), scratchRow(std::min(k, kept - 1)));
  }

  // Brings the last vector of an end's row to its place.
  void settle(Lane* row) const { settle<64>(row); }

  // beginnings: row y where it is the first of its block, else joined with row y. ends: joined with
  // beginnings.
  template <bool kFirst>
  void goOn(std::size_t y, Lane* beginnings, Lane* ends) const {
    overSourceApart(y, [&](auto d, std::size_t i, auto v) KELI_LAMBDA {
      if (!kFirst) v = Op::of(v, loadAnywhere(d, beginnings + i));
      storeAnywhere(d, v, beginnings + i);
      storeAnywhere(d, Op::of(v, loadAnywhere(d, ends + i)), ends + i);
    });
  }

 protected:
  const Band<1>& b_;
  const Rectangle& r_;
  std::size_t first_;
  std::size_t n_;
  std::size_t read_;

 private:
  template <std::size_t kBytes>
  HWY_INLINE void settle(Lane* row) const {
    const LanesTag<Lane, kBytes> d;
    constexpr std::size_t kN = hn::MaxLanes(LanesTag<Lane, kBytes>());
    if (read_ >= kLeast<Lane, kBytes>) {
      const Lane* const apart = row + (r_.strips.rowBytes - 64) / sizeof(T);
      if (read_ % kN != 0) storeAnywhere(d, loadAnywhere(d, apart), row + read_ - kN);
    } else if constexpr (kN * sizeof(Lane) > 16) {
      settle<kN * sizeof(Lane) / 2>(row);
    }
  }

  // Calls f(d, i, v) with the vectors of row y of the image, up to the last window's end.
  template <class F>
  HWY_INLINE void overSource(std::size_t y, const F& f) const {
    const T* const src = b_.srcRow<T>(0, y) + first_;
    overRow<Lane>(read_,
                  [&](auto d, std::size_t i) KELI_LAMBDA { f(d, i, loadOrdered(d, src + i)); });
  }

  // The same for rows of scratch memory that are read and written by turns: one at a time a last
  // vector that overlaps the one before would wait for what has just been stored. It has a place of
  // its own at the row's end, where settle() finds it. Without, windows of 15 x 15 took 1.3 to 1.5
  // times as long at 64x64.
  template <class F>
  HWY_INLINE void overSourceApart(std::size_t y, const F& f) const {
    const T* const src = b_.srcRow<T>(0, y) + first_;
    const std::size_t apart = r_.strips.rowBytes / sizeof(T) - 64 / sizeof(T);
    overRow<Lane>(
        read_, [&](auto d, std::size_t i) KELI_LAMBDA { f(d, i, loadOrdered(d, src + i)); },
        [&](auto d, std::size_t i) KELI_LAMBDA { f(d, apart, loadOrdered(d, src + i)); });
  }

  template <std::size_t kHeight>
  void ofTwoRows(std::size_t y, Lane* upper, Lane* lower) const {
    const std::size_t height = kHeight != 0 ? kHeight : r_.height;
    const std::uint8_t* const src = bytes(b_.srcRow<T>(0, y) + first_);
    const std::ptrdiff_t step = b_.srcStep[0];
    overSource(y, [&](auto d, std::size_t i, auto v) KELI_LAMBDA {
      const auto at = [&](std::size_t row) KELI_LAMBDA {
        const std::uint8_t* const p = src + static_cast<std::ptrdiff_t>(row) * step;
        return loadOrdered(d, reinterpret_cast<const T*>(p) + i);
      };
      auto both = at(1);
      for (std::size_t row = 2; row < height; ++row) both = Op::of(both, at(row));
      storeAnywhere(d, Op::of(v, both), upper + i);
      storeAnywhere(d, Op::of(both, at(height)), lower + i);
    });
  }

  void ofRow(std::size_t y, Lane* dst) const {
    const std::uint8_t* const src = bytes(b_.srcRow<T>(0, y) + first_);
    const std::ptrdiff_t step = b_.srcStep[0];
    overSource(y, [&](auto d, std::size_t i, auto v) KELI_LAMBDA {
      for (std::size_t row = 1; row < r_.height; ++row) {
        const std::uint8_t* const p = src + static_cast<std::ptrdiff_t>(row) * step;
        v = Op::of(v, loadOrdered(d, reinterpret_cast<const T*>(p) + i));
      }
      storeAnywhere(d, v, dst + i);
    });
  }

  void joinRow(std::size_t y, const Lane* with, Lane* dst) const {
    overSourceApart(y, [&](auto d, std::size_t i, auto v) KELI_LAMBDA {
      storeAnywhere(d, Op::of(v, loadAnywhere(d, with + i)), dst + i);
    });
  }
};

template <class Operation, class T, class Write>
class RectangleStrip : Columns<Operation, T> {
  using Base = Columns<Operation, T>;
  using Base::b_;
  using Base::r_;
  using Base::scratchRow;
  using typename Base::Lane;

 public:
  using Base::Base;

  void low() const {
    const std::size_t batch = r_.batch;
    columnsOfBatch(0, 0);
    for (std::size_t y = 0, own = 0; y < b_.rows; y += batch, own = batch - own) {
      if (y + batch < b_.rows) columnsOfBatch(y + batch, batch - own);
      alongRows(own, y, std::min(batch, b_.rows - y));
    }
  }

  void high() const {
    const std::size_t kept = std::min(r_.height, b_.rows);
    Lane* const beginnings = scratchRow(kept);
    for (std::size_t y = 0; y < b_.rows; y += r_.height) {
      this->endsOfBlock(y, kept);
      const std::size_t rows = std::min(r_.height, b_.rows - y);
      for (std::size_t k = 0; k < rows; k += r_.batch) {
        const std::size_t count = std::min(r_.batch, rows - k);
        for (std::size_t i = k; i < k + count; ++i) {
          const std::size_t next = y + r_.height + i - 1;
          if (i == 1) this->template goOn<true>(next, beginnings, scratchRow(i));
          if (i > 1) this->template goOn<false>(next, beginnings, scratchRow(i));
          this->settle(scratchRow(i));
        }
        alongRows(k, y + k, count);
      }
    }
  }

 private:
  void columnsOfBatch(std::size_t y, std::size_t to) const {
    for (std::size_t k = 0; k < r_.batch && y + k < b_.rows; k += 2) this->ofTwoRows(y + k, to + k);
  }

  // The windows of rows of columns' extremes, from scratch row `from` on, to rows y, y + 1 and so
  // on of the destination.
  void alongRows(std::size_t from, std::size_t y, std::size_t count) const {
    const std::size_t last = r_.steps - 1;
    for (std::size_t i = 0; i < last; ++i) {
      const Step& step = r_.step[i];
      withStarts(step, [&](auto starts) KELI_LAMBDA {
        for (std::size_t k = 0; k < count; ++k) {
          Lane* const row = scratchRow(from + k);
          toScratch(Starts<Operation, Lane, starts>(row, step), this->n_ + step.rest, row);
        }
      });
    }
    const Step& step = r_.step[last];
    withStarts(step, [&](auto starts) KELI_LAMBDA {
      for (std::size_t k = 0; k < count; ++k) {
        toImage<T, Write>(Starts<Operation, Lane, starts>(scratchRow(from + k), step), b_.streams,
                          this->n_ - Write::kTrim, b_.template dstRow<T>(y + k) + this->first_);
      }
    });
  }
};

template <class Operation, class T, class Write>
void ownExtentOfRectangle(const Band<1>& b, const Rectangle& r) {
  for (std::size_t first = 0; first < b.n; first += r.strips.n) {
    const RectangleStrip<Operation, T, Write> strip(b, r, first);
    if (r.height <= morphology::kLowHeight) {
      strip.low();
    } else {
      strip.high();
    }
  }
  if (b.streams) hwy::FlushStream();
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
