// OpenCV's remap with maps of floats. It rounds fractions to 1/32 of a pixel.
#include "opencv.h"

namespace keli::bench {
namespace {

Work remap(const Frame& f) {
  static constexpr int kFlags[] = {0, cv::INTER_NEAREST, cv::INTER_LINEAR, 0, cv::INTER_CUBIC};
  return [src = mat(f.source()), dst = mat(f.destination()), xs = mat(f.map(0)), ys = mat(f.map(1)),
          flag = kFlags[f.choices().interpolation]]() mutable {
    cv::remap(src, dst, xs, ys, flag, cv::BORDER_REPLICATE);
  };
}

// What a smooth image changes from one pixel to the next; the nearest may be the one or the other
// where a coordinate lies halfway.
constexpr double kOnePixel = 8;

const AddPeers kPeers({
    {"keliRemap_8u_{C1R,C3R,C4R}", "OpenCV remap", remap, kOnePixel},
    {"keliRemap_32f_{C1R,C3R,C4R}", "OpenCV remap", remap, kOnePixel},
});

}  // namespace
}  // namespace keli::bench
