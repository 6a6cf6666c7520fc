// OpenCV's equivalents of the comparisons. It compares channel by channel into as many masks; of
// several channels at once it knows ranges alone, which x <= c is one of.
#include "opencv.h"

namespace keli::bench {
namespace {

constexpr int kRelations[] = {cv::CMP_LT, cv::CMP_LE, cv::CMP_EQ, cv::CMP_GE, cv::CMP_GT};

Work twoImages(const Frame& f) {
  return [a = mat(f.source(0)), b = mat(f.source(1)), d = mat(f.destination()),
          op = kRelations[f.choices().compareOp]]() mutable { cv::compare(a, b, d, op); };
}

Work imageAndConstant(const Frame& f) {
  return [s = mat(f.source()), c = f.constant(0), d = mat(f.destination()),
          op = kRelations[f.choices().compareOp]]() mutable { cv::compare(s, c, d, op); };
}

Work upTo(const Frame& f) {
  const cv::Scalar least = cv::Scalar::all(-1e30);
  return [s = mat(f.source()), least, c = constants(f), d = mat(f.destination())]() mutable {
    cv::inRange(s, least, c, d);
  };
}

Work near(const Frame& f) {
  return [a = mat(f.source(0)), b = mat(f.source(1)), d = mat(f.destination()),
          eps = f.choices().constant, difference = cv::Mat()]() mutable {
    cv::absdiff(a, b, difference);
    cv::compare(difference, eps, d, cv::CMP_LE);
  };
}

Work nearConstant(const Frame& f) {
  return [s = mat(f.source()), c = cv::Scalar(f.constant(0)), d = mat(f.destination()),
          eps = f.choices().constant, difference = cv::Mat()]() mutable {
    cv::absdiff(s, c, difference);
    cv::compare(difference, eps, d, cv::CMP_LE);
  };
}

const AddPeers kPeers({
    {"keliCompare_{8u,16s,32f}_C1R", "OpenCV compare", twoImages},
    {"keliCompareC_{8u,16s,32f}_C1R", "OpenCV compare", imageAndConstant},
    {"keliCompareC_{8u,16s,32f}_{C3R,C4R}", "OpenCV inRange", upTo},
    {"keliCompareEqualEps_32f_C1R", "OpenCV absdiff, compare", near},
    {"keliCompareEqualEpsC_32f_C1R", "OpenCV absdiff, compare", nearConstant},
});

}  // namespace
}  // namespace keli::bench
