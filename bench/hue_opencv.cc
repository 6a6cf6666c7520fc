// OpenCV's equivalents of the hue conversions. Its 8-bit hue has 256 steps, where here it has 255,
// and wraps at another place, and its way back rounds in steps of its own.
#include "opencv.h"

namespace keli::bench {
namespace {

template <int kCode>
Work convert(const Frame& f) {
  return [s = mat(f.source()), d = mat(f.destination())]() mutable { cv::cvtColor(s, d, kCode); };
}

const AddPeers kPeers({
    {"keliRGBToHSV_8u_C3R", "OpenCV cvtColor", convert<cv::COLOR_RGB2HSV_FULL>, 255},
    {"keliHSVToRGB_8u_C3R", "OpenCV cvtColor", convert<cv::COLOR_HSV2RGB_FULL>, 255},
    {"keliRGBToHLS_8u_C3R", "OpenCV cvtColor", convert<cv::COLOR_RGB2HLS_FULL>, 255},
    {"keliHLSToRGB_8u_C3R", "OpenCV cvtColor", convert<cv::COLOR_HLS2RGB_FULL>, 255},
});

}  // namespace
}  // namespace keli::bench
