// OpenCV's equivalents of complex arithmetic: matrices of twice as many channels. Its sums of
// 32-bit integers wrap, so they are no equivalents.
#include "opencv.h"

namespace keli::bench {
namespace {

cv::Mat parts(const Image& image) {
  const int depth = image.type() == registry::Type::k16sc   ? CV_16S
                    : image.type() == registry::Type::k32sc ? CV_32S
                                                            : CV_32F;
  return cv::Mat(image.height(), image.width(), CV_MAKETYPE(depth, 2 * image.samplesPerPixel()),
                 image.data(), image.step());
}

Work add(const Frame& f) {
  return [a = parts(f.source(0)), b = parts(f.source(1)), d = parts(f.destination())]() mutable {
    cv::add(a, b, d);
  };
}

Work subtract(const Frame& f) {
  return [a = parts(f.source(0)), b = parts(f.source(1)), d = parts(f.destination())]() mutable {
    cv::subtract(b, a, d);
  };
}

// The constants' imaginary parts are 0.
Work addConstant(const Frame& f) {
  return [a = parts(f.source()), c = cv::Scalar(f.constant(0), 0),
          d = parts(f.destination())]() mutable { cv::add(a, c, d); };
}

Work subtractConstant(const Frame& f) {
  return [a = parts(f.source()), c = cv::Scalar(f.constant(0), 0),
          d = parts(f.destination())]() mutable { cv::subtract(a, c, d); };
}

Work multiply(const Frame& f) {
  return [a = parts(f.source(0)), b = parts(f.source(1)), d = parts(f.destination())]() mutable {
    cv::mulSpectrums(a, b, d, 0);
  };
}

const AddPeers kPeers({
    {"keliAdd_16sc_C1RSfs", "OpenCV add", add},
    {"keliAdd_32fc_C1R", "OpenCV add", add},
    {"keliSub_16sc_C1RSfs", "OpenCV subtract", subtract},
    {"keliSub_32fc_C1R", "OpenCV subtract", subtract},
    {"keliAddC_16sc_C1RSfs", "OpenCV add", addConstant},
    {"keliAddC_32fc_C1R", "OpenCV add", addConstant},
    {"keliSubC_16sc_C1RSfs", "OpenCV subtract", subtractConstant},
    {"keliSubC_32fc_C1R", "OpenCV subtract", subtractConstant},
    {"keliMul_32fc_C1R", "OpenCV mulSpectrums", multiply, 0.03},
});

}  // namespace
}  // namespace keli::bench
