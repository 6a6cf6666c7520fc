// OpenCV's equivalents of the conversions of XYZ and LUV: those of linear RGB. Its XYZ of bytes is
// rounded and its LUV of bytes has other scales, its LUV of floats the CIE's threshold.
#include "opencv.h"

namespace keli::bench {
namespace {

template <int kCode>
Work convert(const Frame& f) {
  return [s = mat(f.source()), d = mat(f.destination())]() mutable { cv::cvtColor(s, d, kCode); };
}

const AddPeers kPeers({
    {"keliRGBToXYZ_{8u,16u,32f}_C3R", "OpenCV cvtColor", convert<cv::COLOR_RGB2XYZ>, 1},
    {"keliXYZToRGB_{8u,16u,32f}_C3R", "OpenCV cvtColor", convert<cv::COLOR_XYZ2RGB>, 1},
    {"keliRGBToLUV_{8u,32f}_C3R", "OpenCV cvtColor", convert<cv::COLOR_LRGB2Luv>, 1},
    {"keliLUVToRGB_{8u,32f}_C3R", "OpenCV cvtColor", convert<cv::COLOR_Luv2LRGB>, 2},
});

}  // namespace
}  // namespace keli::bench
