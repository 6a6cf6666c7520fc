// OpenCV's remap with maps of floats. It rounds fractions to 1/32, so its results differ by what a
// pixel changes in that distance; the images are noise.
#include "opencv.h"

namespace keli::bench {
namespace {

Work remap(const Frame& f) {
  static constexpr int kFlags[] = {0, cv::INTER_NEAREST, cv::INTER_LINEAR, 0, cv::INTER_CUBIC};
  return [src = mat(f.source()), dst = mat(f.destination()), xs = mat(f.map(0)), ys = mat(f.map(1)),
          flag = kFlags[f.choices().interpolation]]() mutable {
    cv::remap(src, dst, xs, ys, flag, cv::BORDER_TRANSPARENT);
  };
}

// The nearest pixel may be another where a coordinate lies halfway.
constexpr double kAnyValue = 400;

const AddPeers kPeers({
    {"keliRemap_8u_{C1R,C3R,C4R}", "OpenCV remap", remap, kAnyValue},
    {"keliRemap_32f_{C1R,C3R,C4R}", "OpenCV remap", remap, kAnyValue},
});

}  // namespace
}  // namespace keli::bench
