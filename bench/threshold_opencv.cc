// OpenCV's equivalents of the thresholds: the minimum or maximum of an image and a constant, and,
// for one threshold of all channels, thresholds that truncate or set to zero.
#include "opencv.h"

namespace keli::bench {
namespace {

struct Images {
  cv::Mat src, dst;
};

Images images(const Frame& f) {
  const cv::Mat dst = mat(f.destination());
  return {f.hasSource() ? mat(f.source()) : dst, dst};
}

// The constants of AC4 that are beyond its channels change alpha alone.
template <int kOp>
Work bound(const Frame& f) {
  const Images i = images(f);
  return [src = i.src, dst = i.dst, c = constants(f)]() mutable {
    if (kOp == kelCmpLess) {
      cv::max(src, c, dst);
    } else {
      cv::min(src, c, dst);
    }
  };
}

Work boundByChoice(const Frame& f) {
  return f.choices().compareOp == kelCmpLess ? bound<kelCmpLess>(f) : bound<kelCmpGreater>(f);
}

Work truncate(const Frame& f) {
  const Images i = images(f);
  if (f.choices().compareOp == kelCmpLess) return boundByChoice(f);
  return [src = i.src, dst = i.dst, t = f.constant(0)]() mutable {
    cv::threshold(src, dst, t, 0, cv::THRESH_TRUNC);
  };
}

// Copies the image and writes the value where a comparison says.
template <int kOp>
Work set(const Frame& f) {
  const Images i = images(f);
  return [src = i.src, dst = i.dst, c = constants(f), mask = cv::Mat()]() mutable {
    cv::compare(src, c, mask, kOp == kelCmpLess ? cv::CMP_LT : cv::CMP_GT);
    src.copyTo(dst);
    dst.setTo(c, mask);
  };
}

Work setByChoice(const Frame& f) {
  return f.choices().compareOp == kelCmpLess ? set<kelCmpLess>(f) : set<kelCmpGreater>(f);
}

Work setOutside(const Frame& f) {
  const Images i = images(f);
  return [src = i.src, dst = i.dst, low = constants(f), above = f.choices().upper,
          mask = cv::Mat()]() mutable {
    const cv::Scalar high = low + cv::Scalar::all(above);
    src.copyTo(dst);
    cv::compare(src, low, mask, cv::CMP_LT);
    dst.setTo(low, mask);
    cv::compare(src, high, mask, cv::CMP_GT);
    dst.setTo(low, mask);
  };
}

const AddPeers kPeers({
    {"keliThreshold_{8u,16s,32f}_C1R", "OpenCV threshold, max", truncate},
    {"keliThreshold_{8u,16s,32f}_{C1R,C3R}", "OpenCV max, min", boundByChoice},
    {"keliThreshold_{8u,16s,32f}_AC4R", "OpenCV max, min, alpha too", boundByChoice},
    {"keliThreshold_8u_C1IR", "OpenCV max, min", boundByChoice},
    {"keliThreshold_LT_8u_C1R", "OpenCV max", bound<kelCmpLess>},
    {"keliThreshold_GT_8u_C1R", "OpenCV min", bound<kelCmpGreater>},
    {"keliThreshold_Val_{8u,16s,32f}_C1R", "OpenCV compare, copyTo, setTo", setByChoice},
    {"keliThreshold_LTVal_{8u,16s,32f}_C1R", "OpenCV compare, copyTo, setTo", set<kelCmpLess>},
    {"keliThreshold_GTVal_{8u,16s,32f}_C1R", "OpenCV compare, copyTo, setTo", set<kelCmpGreater>},
    {"keliThreshold_LTValGTVal_{8u,16s,32f}_C1R", "OpenCV compare, copyTo, setTo", setOutside},
});

}  // namespace
}  // namespace keli::bench
