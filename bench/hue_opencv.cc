// OpenCV's equivalents of the hue conversions. It rounds where HLS here is cut off, and its 8-bit
// hue has 256 steps round the circle instead of 255; that of floats is in degrees.
#include "opencv.h"

namespace keli::bench {
namespace {

template <int kCode>
Work convert(const Frame& f) {
  return [s = mat(f.source()), d = mat(f.destination())]() mutable { cv::cvtColor(s, d, kCode); };
}

Work convertAndScale(const Frame& f) {
  return [s = mat(f.source()), d = mat(f.destination())]() mutable {
    cv::cvtColor(s, d, cv::COLOR_RGB2HLS_FULL);
    cv::multiply(d, cv::Scalar(1 / 360., 1, 1), d);
  };
}

const AddPeers kPeers({
    {"keliRGBToHSV_8u_C3R", "OpenCV cvtColor", convert<cv::COLOR_RGB2HSV_FULL>, 1, 256},
    {"keliHSVToRGB_8u_C3R", "OpenCV cvtColor", convert<cv::COLOR_HSV2RGB_FULL>, 1},
    {"keliRGBToHLS_8u_C3R", "OpenCV cvtColor", convert<cv::COLOR_RGB2HLS_FULL>, 2, 256},
    {"keliHLSToRGB_8u_C3R", "OpenCV cvtColor", convert<cv::COLOR_HLS2RGB_FULL>, 1},
    {"keliRGBToHLS_32f_C3R", "OpenCV cvtColor and multiply", convertAndScale, 1e-5},
});

}  // namespace
}  // namespace keli::bench
