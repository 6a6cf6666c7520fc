// Extremes of the pixels that an element selects: of each row of the image the extremes of windows
// as long as the runs of the element's rows, kept for as many rows as the element has; a result is
// the extreme of one of them for each run.
#if defined(KELI_MORPHOLOGY_ELEMENT_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_MORPHOLOGY_ELEMENT_INL_H_
#undef KELI_MORPHOLOGY_ELEMENT_INL_H_
#else
#define KELI_MORPHOLOGY_ELEMENT_INL_H_
#endif

#include "morphology/windows-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

using morphology::Chord;
using morphology::Element;

template <class Operation, class T, class Write>
class ElementStrip {
 public:
  using Lane = LaneOf<T>;

  ElementStrip(const Band<1>& b, const Element& e, std::size_t first)
      : b_(b), e_(e), first_(first), n_(std::min(e.strips.n, b.n - first)) {}

  void run() const {
    for (std::size_t y = 0; y + 1 < e_.height; ++y) windowsOfRow(y);
    for (std::size_t y = 0; y < b_.rows; ++y) {
      windowsOfRow(y + e_.height - 1);
      resultsOfRow(y);
    }
  }

 private:
  // Where the windows of a step over row y of the image are kept.
  Lane* windows(std::size_t y, std::size_t step) const {
    const std::size_t row = y % e_.height * e_.steps + step;
    return reinterpret_cast<Lane*>(e_.strips.scratch + row * e_.strips.rowBytes);
  }

  void windowsOfRow(std::size_t y) const {
    withStarts(e_.step[e_.firstStep], [&](auto starts) KELI_LAMBDA { windowsOfSource<starts>(y); });
    for (std::size_t i = e_.firstStep + 1; i < e_.steps; ++i) {
      const Step& step = e_.step[i];
      withStarts(step, [&](auto starts) KELI_LAMBDA {
        const Starts<Operation, Lane, starts> shorter(windows(y, i - 1), step);
        toScratch(shorter, n_ + step.rest, windows(y, i));
      });
    }
  }

  // Those of the first step, of single pixels.
  template <std::size_t kStarts>
  HWY_INLINE void windowsOfSource(std::size_t y) const {
    const Step& step = e_.step[e_.firstStep];
    const T* src[kStarts];
    for (std::size_t k = 0; k < kStarts; ++k) src[k] = b_.srcRow<T>(0, y) + first_ + step.start[k];
    Lane* const dst = windows(y, e_.firstStep);
    overRow<Lane>(n_ + step.rest, [&](auto d, std::size_t i) KELI_LAMBDA {
      auto v = loadOrdered(d, src[0] + i);
      unrolled<kStarts - 1>([&](auto k) KELI_LAMBDA {
        v = Extreme<Operation>::of(v, loadOrdered(d, src[k + 1] + i));
      });
      storeAnywhere(d, v, dst + i);
    });
  }

  void resultsOfRow(std::size_t y) const {
    for (std::size_t k = 0; k < e_.chordCount; ++k) {
      const Chord& chord = e_.chords[k];
      e_.rows[k] = windows(y + chord.row, chord.step) + chord.start;
    }
    toImage<T, Write>(AnyStarts<Operation, Lane>{e_.rows, e_.chordCount}, b_.streams,
                      n_ - Write::kTrim, b_.dstRow<T>(y) + first_);
  }

  const Band<1>& b_;
  const Element& e_;
  std::size_t first_;
  std::size_t n_;
};

template <class Operation, class T, class Write>
void ownExtentOfElement(const Band<1>& b, const Element& e) {
  for (std::size_t first = 0; first < b.n; first += e.strips.n)
    ElementStrip<Operation, T, Write>(b, e, first).run();
  if (b.streams) hwy::FlushStream();
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
