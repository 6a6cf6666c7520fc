// Extremes of 3 x 3 pixels of integers, four rows of results at a time without scratch memory: of
// each of six rows the extremes along it, then those of columns, of which neighbours share a pair.
#if defined(KELI_MORPHOLOGY_SQUARE_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_MORPHOLOGY_SQUARE_INL_H_
#undef KELI_MORPHOLOGY_SQUARE_INL_H_
#else
#define KELI_MORPHOLOGY_SQUARE_INL_H_
#endif

#include "morphology/windows-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// kRows: 1, or a multiple of 2.
template <class Operation, class T, class Write, std::size_t kRows>
class SquareRows {
 public:
  using Op = Extreme<Operation>;

  // The results of rows y .. y + kRows - 1.
  HWY_INLINE SquareRows(const Band<1>& b, std::size_t channels, std::size_t y)
      : channels_(channels) {
    for (std::size_t k = 0; k < kRows + 2; ++k) src_[k] = b.srcRow<T>(0, y + k);
    for (std::size_t k = 0; k < kRows; ++k) dst_[k] = b.dstRow<T>(y + k);
  }

  template <class D>
  HWY_INLINE void results(D d, std::size_t i, hn::Vec<D> (&v)[kRows]) const {
    hn::Vec<D> along[kRows + 2];
    unrolled<kRows + 2>([&](auto k) KELI_LAMBDA {
      const T* const p = src_[k] + i;
      along[k] = Op::of(Op::of(loadAnywhere(d, p), loadAnywhere(d, p + channels_)),
                        loadAnywhere(d, p + 2 * channels_));
    });
    if constexpr (kRows == 1) {
      v[0] = Op::of(Op::of(along[0], along[1]), along[2]);
    } else {
      unrolled<kRows / 2>([&](auto k) KELI_LAMBDA {
        const auto both = Op::of(along[2 * k + 1], along[2 * k + 2]);
        v[2 * k] = Op::of(along[2 * k], both);
        v[2 * k + 1] = Op::of(both, along[2 * k + 3]);
      });
    }
  }

  template <class D>
  HWY_INLINE void one(D d, std::size_t i) const {
    hn::Vec<D> v[kRows];
    results(d, i, v);
    unrolled<kRows>([&](auto k) KELI_LAMBDA { Write::put(d, v[k], dst_[k], i); });
  }

  // Two vectors, a line of 64 bytes or half of one, whole for each row.
  template <bool kStreams, class D>
  HWY_INLINE void two(D d, std::size_t i) const {
    constexpr std::size_t kN = hn::MaxLanes(D());
    hn::Vec<D> v[kRows], w[kRows];
    results(d, i, v);
    results(d, i + kN, w);
    unrolled<kRows>([&](auto k) KELI_LAMBDA {
      if constexpr (kStreams) {
        hn::Stream(v[k], d, dst_[k] + i);
        hn::Stream(w[k], d, dst_[k] + i + kN);
      } else {
        Write::put(d, v[k], dst_[k], i);
        Write::put(d, w[k], dst_[k], i + kN);
      }
      keepOrder();
    });
  }

  HWY_INLINE void run(std::size_t n, bool streams, std::ptrdiff_t dstStep) const {
    const LanesTag<T> d;
    constexpr std::size_t kN = hn::MaxLanes(LanesTag<T>());
    if (kScalarTarget || n < 512 / sizeof(T)) {
      overRow<T>(n, [&](auto here, std::size_t i) KELI_LAMBDA { one(here, i); });
      return;
    }
    const std::uintptr_t address = reinterpret_cast<std::uintptr_t>(dst_[0]);
    const std::size_t head = (0 - address) % 64 / sizeof(T);
    for (std::size_t i = 0; i < head; i += kN) one(d, i);
    std::size_t i = head;
    if (Write::kMayStream && streams && address % sizeof(T) == 0 && dstStep % 64 == 0) {
      for (; i + 2 * kN <= n; i += 2 * kN) two<Write::kMayStream>(d, i);
    }
    for (; i + 2 * kN <= n; i += 2 * kN) two<false>(d, i);
    for (; i + kN <= n; i += kN) one(d, i);
    if (i < n) one(d, n - kN);
  }

 private:
  std::size_t channels_;
  const T* src_[kRows + 2];
  T* dst_[kRows];
};

template <class Operation, class T, class Write>
void ownExtentOfSquare(const Band<1>& b, std::size_t channels) {
  constexpr std::size_t kRows = 4;
  const std::size_t n = b.n - Write::kTrim;
  std::size_t y = 0;
  for (; y + kRows <= b.rows; y += kRows)
    SquareRows<Operation, T, Write, kRows>(b, channels, y).run(n, b.streams, b.dstStep);
  for (; y < b.rows; ++y)
    SquareRows<Operation, T, Write, 1>(b, channels, y).run(n, b.streams, b.dstStep);
  if (b.streams) hwy::FlushStream();
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
