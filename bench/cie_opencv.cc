// OpenCV's equivalents of XYZ and LUV, those of linear RGB. Its XYZ of 16 bits has factors of 12,
// and floats of RGB are not clamped. Its LUV begins the cube root at the CIE's Y, carries dark
// colours back, keeps v' from vanishing, and holds u and v half a level lower in bytes.
#include "opencv.h"

namespace keli::bench {
namespace {

template <int kCode>
Work convert(const Frame& f) {
  return [s = mat(f.source()), d = mat(f.destination())]() mutable { cv::cvtColor(s, d, kCode); };
}

const AddPeers kPeers({
    {"keliRGBToXYZ_8u_C3R", "OpenCV cvtColor", convert<cv::COLOR_RGB2XYZ>, 1},
    {"keliRGBToXYZ_16u_C3R", "OpenCV cvtColor", convert<cv::COLOR_RGB2XYZ>, 16},
    {"keliRGBToXYZ_32f_C3R", "OpenCV cvtColor", convert<cv::COLOR_RGB2XYZ>, 1e-6},
    {"keliXYZToRGB_8u_C3R", "OpenCV cvtColor", convert<cv::COLOR_XYZ2RGB>, 1},
    {"keliXYZToRGB_16u_C3R", "OpenCV cvtColor", convert<cv::COLOR_XYZ2RGB>, 16},
    {"keliXYZToRGB_32f_C3R", "OpenCV cvtColor", convert<cv::COLOR_XYZ2RGB>, 0.65},
    {"keliRGBToLUV_8u_C3R", "OpenCV cvtColor", convert<cv::COLOR_LRGB2Luv>, 1},
    {"keliRGBToLUV_32f_C3R", "OpenCV cvtColor", convert<cv::COLOR_LRGB2Luv>, 0.5},
    {"keliLUVToRGB_8u_C3R", "OpenCV cvtColor", convert<cv::COLOR_Luv2LRGB>, 2},
    {"keliLUVToRGB_32f_C3R", "OpenCV cvtColor", convert<cv::COLOR_Luv2LRGB>, 0.1},
});

}  // namespace
}  // namespace keli::bench
