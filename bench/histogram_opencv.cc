// OpenCV's histograms, one call for each channel.
#include <algorithm>

#include "opencv.h"

namespace keli::bench {
namespace {

// ranges: the levels, or the first and the last of them if the bins are even.
Work calcHist(const Frame& f, const cv::Mat& image, const std::vector<float>& ranges, bool even) {
  const int channels = usedChannels(f.source().layout()), bins = f.choices().levels - 1;
  return [&f, image, ranges, even, channels, bins, histogram = cv::Mat()]() mutable {
    for (int k = 0; k < channels; ++k) {
      const float* all = ranges.data();
      cv::calcHist(&image, 1, &k, cv::noArray(), histogram, 1, &bins, &all, even);
      for (int i = 0; i < bins; ++i) f.answer()[k * bins + i] = histogram.at<float>(i);
    }
  };
}

Work ofEvenBins(const Frame& f) { return calcHist(f, mat(f.source()), {0, 256}, true); }

// Of the bits as unsigned numbers: the upper half of the bins comes first.
Work ofBits(const Frame& f) {
  const int bins = f.choices().levels - 1;
  return [&f, bins, work = calcHist(f, matOfBits(f.source()), {0, 65536}, true)] {
    work();
    std::rotate(f.answer().begin(), f.answer().begin() + bins / 2, f.answer().begin() + bins);
  };
}

Work ofLevels(const Frame& f) {
  std::vector<float> levels;
  for (int i = 0; i < f.choices().levels; ++i) levels.push_back(static_cast<float>(f.level(i)));
  return calcHist(f, mat(f.source()), levels, false);
}

const AddPeers kPeers({
    {"keliHistogramEven_8u_C1R", "OpenCV calcHist", ofEvenBins},
    {"keliHistogramRange_8u_{C3R,C4R,AC4R}", "OpenCV calcHist", ofEvenBins},
    {"keliHistogramEven_16s_C1R", "OpenCV calcHist", ofBits},
    {"keliHistogramRange_32f_{C1R,C3R,C4R,AC4R}", "OpenCV calcHist", ofLevels},
});

}  // namespace
}  // namespace keli::bench
