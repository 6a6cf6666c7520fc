// OpenCV's equivalents of minima, maxima, their places and counts. It has them for one channel,
// which is taken out first where there are several.
#include "opencv.h"

namespace keli::bench {
namespace {

// What minMaxLoc finds; pointers of what is not asked for stay null.
struct Extreme {
  double values[2];
  cv::Point places[2];
};

// In every channel: the extremes that are asked for, with their places or not.
template <bool kMin, bool kMax, bool kPlaces>
Extreme find(const cv::Mat& plane) {
  Extreme e;
  cv::minMaxLoc(plane, kMin ? &e.values[0] : nullptr, kMax ? &e.values[1] : nullptr,
                kMin && kPlaces ? &e.places[0] : nullptr, kMax && kPlaces ? &e.places[1] : nullptr);
  return e;
}

template <bool kMin, bool kMax, bool kPlaces>
Work minMaxLoc(const Frame& f) {
  const cv::Mat s = mat(f.source());
  const int channels = f.source().layout() == Layout::AC4 ? 3 : s.channels();
  return [&f, s, channels, plane = cv::Mat()]() mutable {
    std::vector<double>& answer = f.answer();
    for (int k = 0; k < channels; ++k) {
      if (s.channels() > 1) cv::extractChannel(s, plane, k);
      const Extreme e = find<kMin, kMax, kPlaces>(s.channels() > 1 ? plane : s);
      const std::size_t at = static_cast<std::size_t>(k);
      const std::size_t next = static_cast<std::size_t>(channels);
      if (kMin) answer[at] = e.values[0];
      if (kMax) answer[at + (kMin ? next : 0)] = e.values[1];
      if (kPlaces) {
        answer[at + next] = e.places[kMin ? 0 : 1].x;
        answer[at + 2 * next] = e.places[kMin ? 0 : 1].y;
      }
    }
  };
}

Work countInRange(const Frame& f) {
  const cv::Mat s = mat(f.source());
  const int channels = f.source().layout() == Layout::AC4 ? 3 : s.channels();
  return [&f, s, channels, plane = cv::Mat(), mask = cv::Mat()]() mutable {
    for (int k = 0; k < channels; ++k) {
      if (s.channels() > 1) cv::extractChannel(s, plane, k);
      cv::inRange(s.channels() > 1 ? plane : s, cv::Scalar(f.constant(k)),
                  cv::Scalar(f.constant(k) + f.choices().upper), mask);
      f.answer()[static_cast<std::size_t>(k)] = cv::countNonZero(mask);
    }
  };
}

const AddPeers kPeers({
    {"keliMin_{8u,16s,32f}_{C1R,C3R,AC4R}", "OpenCV minMaxLoc", minMaxLoc<true, false, false>},
    {"keliMax_{8u,16s,32f}_{C1R,C3R,AC4R}", "OpenCV minMaxLoc", minMaxLoc<false, true, false>},
    {"keliMinMax_{8u,16s,32f}_{C1R,C3R,AC4R}", "OpenCV minMaxLoc", minMaxLoc<true, true, false>},
    {"keliMinIndx_{8u,16s,32f}_{C1R,C3R,AC4R,C4R}", "OpenCV minMaxLoc",
     minMaxLoc<true, false, true>},
    {"keliMaxIndx_{8u,16s,32f}_{C1R,C3R,AC4R,C4R}", "OpenCV minMaxLoc",
     minMaxLoc<false, true, true>},
    {"keliCountInRange_{8u,32f}_{C1R,C3R,AC4R}", "OpenCV inRange, countNonZero", countInRange},
});

}  // namespace
}  // namespace keli::bench
