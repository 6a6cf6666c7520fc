// OpenCV's equivalents of luma, chroma and gray. Its YUV and gray round to nearest with factors of
// other fractional bits; its YCrCb has full range, so nothing is like YCbCr.
#include "opencv.h"

namespace keli::bench {
namespace {

template <int kCode>
Work convert(const Frame& f) {
  return [s = mat(f.source()), d = mat(f.destination())]() mutable { cv::cvtColor(s, d, kCode); };
}

Work gray(const Frame& f) {
  return f.source().samplesPerPixel() == 3 ? convert<cv::COLOR_RGB2GRAY>(f)
                                           : convert<cv::COLOR_RGBA2GRAY>(f);
}

// The weights of the first three channels.
Work weigh(const Frame& f) {
  cv::Mat weights = cv::Mat::zeros(1, f.source().samplesPerPixel(), CV_32F);
  for (int k = 0; k < 3; ++k) weights.at<float>(0, k) = static_cast<float>(f.constant(k));
  return [s = mat(f.source()), d = mat(f.destination()), weights]() mutable {
    cv::transform(s, d, weights);
  };
}

const AddPeers kPeers({
    {"keliRGBToYUV_8u_C3R", "OpenCV cvtColor", convert<cv::COLOR_RGB2YUV>, 1},
    {"keliYUVToRGB_8u_C3R", "OpenCV cvtColor", convert<cv::COLOR_YUV2RGB>, 1},
    {"keliRGBToGray_8u_{C3C1R,AC4C1R}", "OpenCV cvtColor", gray, 1},
    {"keliRGBToGray_16u_{C3C1R,AC4C1R}", "OpenCV cvtColor", gray, 3},
    {"keliRGBToGray_32f_{C3C1R,AC4C1R}", "OpenCV cvtColor", gray, 1e-4},
    {"keliColorToGray_{8u,16u,16s}_{C3C1R,AC4C1R}", "OpenCV transform", weigh, 1},
    {"keliColorToGray_32f_{C3C1R,AC4C1R}", "OpenCV transform", weigh, 1e-4},
});

}  // namespace
}  // namespace keli::bench
