// OpenCV's equivalents of addition, subtraction and multiplication. It scales sums as a weighted
// sum in floating point, which rounds differently in a few places.
#include <cmath>

#include "opencv.h"

namespace keli::bench {
namespace {

struct Operands {
  cv::Mat first, second, dst;
  double scale;
};

// In place the second source is the destination.
Operands operands(const Frame& f) {
  const cv::Mat dst = mat(f.destination());
  const bool inPlace = f.sourceCount() == 1;
  return {mat(f.source()), inPlace ? dst : mat(f.source(1)), dst, std::ldexp(1, -f.scaleFactor())};
}

Work add(const Frame& f) {
  Operands o = operands(f);
  if (o.scale == 1) return [o]() mutable { cv::add(o.first, o.second, o.dst); };
  return [o]() mutable { cv::addWeighted(o.first, o.scale, o.second, o.scale, 0, o.dst); };
}

Work subtract(const Frame& f) {
  Operands o = operands(f);
  if (o.scale == 1) return [o]() mutable { cv::subtract(o.second, o.first, o.dst); };
  return [o]() mutable { cv::addWeighted(o.first, -o.scale, o.second, o.scale, 0, o.dst); };
}

Work multiply(const Frame& f) {
  return [o = operands(f)]() mutable { cv::multiply(o.first, o.second, o.dst, o.scale); };
}

Work multiplyByMax(const Frame& f) {
  Operands o = operands(f);
  o.scale = f.source().type() == registry::Type::k8u ? 1 / 255.0 : 1 / 65535.0;
  return [o]() mutable { cv::multiply(o.first, o.second, o.dst, o.scale); };
}

struct ImageAndConstant {
  cv::Mat src, dst;
  cv::Scalar constant;
};

ImageAndConstant withConstant(const Frame& f) {
  const cv::Mat dst = mat(f.destination());
  return {f.hasSource() ? mat(f.source()) : dst, dst, constants(f)};
}

Work addConstant(const Frame& f) {
  return [o = withConstant(f)]() mutable { cv::add(o.src, o.constant, o.dst); };
}

Work subtractConstant(const Frame& f) {
  return [o = withConstant(f)]() mutable { cv::subtract(o.src, o.constant, o.dst); };
}

Work multiplyConstant(const Frame& f) {
  const double scale = std::ldexp(1, -f.scaleFactor());
  return [o = withConstant(f), scale]() mutable { cv::multiply(o.src, o.constant, o.dst, scale); };
}

Work scaleSum(const Frame& f, double sign) {
  const double scale = std::ldexp(1, -f.scaleFactor());
  return [o = withConstant(f), scale, shift = sign * scale * f.constant(0)]() mutable {
    o.src.convertTo(o.dst, o.src.type(), scale, shift);
  };
}

Work addScaledConstant(const Frame& f) {
  return f.scaleFactor() == 0 ? addConstant(f) : scaleSum(f, 1);
}
Work subtractScaledConstant(const Frame& f) {
  return f.scaleFactor() == 0 ? subtractConstant(f) : scaleSum(f, -1);
}

const AddPeers kPeers({
    {"keliAdd_{8u,16s}_{C1,C3,C1I}RSfs", "OpenCV add, addWeighted", add, 1},
    {"keliSub_{8u,16s}_{C1,C3,C1I}RSfs", "OpenCV subtract, addWeighted", subtract, 1},
    {"keliMul_{8u,16s}_{C1,C3,C1I}RSfs", "OpenCV multiply", multiply, 1},
    {"keliAdd_32f_{C1R,C3R,C1IR}", "OpenCV add", add},
    {"keliSub_32f_{C1R,C3R,C1IR}", "OpenCV subtract", subtract},
    {"keliMul_32f_{C1R,C3R,C1IR}", "OpenCV multiply", multiply},
    {"keliAddC_{8u,16s}_C1RSfs", "OpenCV add, convertTo", addScaledConstant, 1},
    {"keliSubC_{8u,16s}_C1RSfs", "OpenCV subtract, convertTo", subtractScaledConstant, 1},
    {"keliMulC_{8u,16s}_{C1,C3,C4}RSfs", "OpenCV multiply", multiplyConstant, 1},
    {"keliAddC_32f_{C1R,C3R,C1IR}", "OpenCV add", addConstant},
    {"keliSubC_32f_{C1R,C3R,C1IR}", "OpenCV subtract", subtractConstant},
    {"keliMulC_32f_{C1R,C3R,C1IR}", "OpenCV multiply", multiplyConstant},
    {"keliMulScale_{8u,16u}_{C1R,C3R,C4R}", "OpenCV multiply", multiplyByMax, 1},
});

}  // namespace
}  // namespace keli::bench
