// OpenCV's cosine transforms of an 8 x 8 matrix of floats.
#include "opencv.h"

namespace keli::bench {
namespace {

template <int kFlags>
Work transform(const Frame& f) {
  const cv::Mat src(8, 8, CV_32F, f.source().data());
  const cv::Mat dst(8, 8, CV_32F, f.destination().data());
  return [src, dst]() mutable { cv::dct(src, dst, kFlags); };
}

// Sources hold samples of up to 256: coefficients are of up to 2048.
const AddPeers kPeers({
    {"keliDCT8x8Fwd_32f_C1", "OpenCV dct", transform<0>, 2e-3},
    {"keliDCT8x8Inv_32f_C1", "OpenCV dct", transform<cv::DCT_INVERSE>, 2e-3},
});

}  // namespace
}  // namespace keli::bench
