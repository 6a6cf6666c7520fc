// OpenCV's equivalents of copy, set and channel exchange.
#include <array>

#include "opencv.h"

namespace keli::bench {
namespace {

Work copyTo(const Frame& f) {
  return [s = mat(f.source()), d = mat(f.destination())]() mutable { s.copyTo(d); };
}

Work copyToMasked(const Frame& f) {
  return [s = mat(f.source()), d = mat(f.destination()), m = mat(f.mask())]() mutable {
    s.copyTo(d, m);
  };
}

Work setTo(const Frame& f) {
  return [d = mat(f.destination()), c = constants(f)]() mutable { d.setTo(c); };
}

Work setToMasked(const Frame& f) {
  return
      [d = mat(f.destination()), c = constants(f), m = mat(f.mask())]() mutable { d.setTo(c, m); };
}

Work extractChannel(const Frame& f) {
  return [s = mat(f.source()), d = mat(f.destination())]() mutable {
    cv::extractChannel(s, d, kChannel);
  };
}

Work insertChannel(const Frame& f) {
  return [s = mat(f.source()), d = mat(f.destination())]() mutable {
    cv::insertChannel(s, d, kChannel);
  };
}

Work insertConstant(const Frame& f) {
  cv::Mat d = mat(f.destination());
  return [s = cv::Mat(d.size(), d.depth(), constants(f)), d]() mutable {
    cv::insertChannel(s, d, kChannel);
  };
}

// Each destination channel k of the first kPairs from channel order[k].
template <std::size_t kPairs>
Work mixChannels(const Frame& f, const std::array<int, kPairs>& from,
                 const std::array<int, kPairs>& to) {
  std::array<int, 2 * kPairs> pairs;
  for (std::size_t k = 0; k < kPairs; ++k) {
    pairs[2 * k] = from[k];
    pairs[2 * k + 1] = to[k];
  }
  return [s = mat(f.source()), d = mat(f.destination()), pairs]() mutable {
    cv::mixChannels(&s, 1, &d, 1, pairs.data(), kPairs);
  };
}

Work mixOne(const Frame& f) { return mixChannels<1>(f, {kChannel}, {kChannel}); }
Work mixThree(const Frame& f) { return mixChannels<3>(f, {0, 1, 2}, {0, 1, 2}); }
Work mixSwapped(const Frame& f) {
  return mixChannels<3>(f, {kOrder[0], kOrder[1], kOrder[2]}, {0, 1, 2});
}

Work split(const Frame& f) {
  return [s = mat(f.source()), d = planes(f.destination())]() mutable { cv::split(s, d.data()); };
}

Work merge(const Frame& f) {
  return [s = planes(f.source()), d = mat(f.destination())]() mutable {
    cv::merge(s.data(), s.size(), d);
  };
}

template <int kCode>
Work convert(const Frame& f) {
  return [s = matOfBits(f.source()), d = matOfBits(f.destination())]() mutable {
    cv::cvtColor(s, d, kCode);
  };
}

Work swapInPlace(const Frame& f) {
  return [d = mat(f.destination())]() mutable { cv::cvtColor(d, d, cv::COLOR_BGR2RGB); };
}

// cvtColor writes the fourth sample too, where the functions on AC4 leave it alone.
const AddPeers kPeers({
    {"keliCopy_{8u,16s,32f}_{C1R,C3R,C4R}", "OpenCV copyTo", copyTo},
    {"keliCopy_{8u,16s,32f}_AC4R", "OpenCV mixChannels", mixThree},
    {"keliCopy_{8u,16s,32f}_{C1MR,C3MR,C4MR}", "OpenCV copyTo", copyToMasked},
    {"keliCopy_{8u,16s,32f}_{C3C1R,C4C1R}", "OpenCV extractChannel", extractChannel},
    {"keliCopy_{8u,16s,32f}_{C1C3R,C1C4R}", "OpenCV insertChannel", insertChannel},
    {"keliCopy_{8u,16s,32f}_{C3CR,C4CR}", "OpenCV mixChannels", mixOne},
    {"keliCopy_{8u,16s,32f}_{AC4C3R,C3AC4R}", "OpenCV mixChannels", mixThree},
    {"keliCopy_{8u,16s,32f}_AC4C3R", "OpenCV cvtColor", convert<cv::COLOR_BGRA2BGR>},
    {"keliCopy_{8u,16s,32f}_C3AC4R", "OpenCV cvtColor, alpha set", convert<cv::COLOR_BGR2BGRA>},
    {"keliCopy_{8u,16s,32f}_{C3P3R,C4P4R}", "OpenCV split", split},
    {"keliCopy_{8u,16s,32f}_{P3C3R,P4C4R}", "OpenCV merge", merge},
    {"keliSet_{8u,16s,32f}_{C1R,C3R,C4R}", "OpenCV setTo", setTo},
    {"keliSet_{8u,16s,32f}_{C1MR,C3MR,C4MR}", "OpenCV setTo", setToMasked},
    {"keliSet_{8u,16s,32f}_{C3CR,C4CR}", "OpenCV insertChannel of a plane", insertConstant},
    {"keliSwapChannels_{8u,16u,32s,32f}_{C3R,AC4R}", "OpenCV mixChannels", mixSwapped},
    {"keliSwapChannels_{8u,16u,32f}_C3R", "OpenCV cvtColor", convert<cv::COLOR_BGR2RGB>},
    {"keliSwapChannels_{8u,16u,32f}_AC4R", "OpenCV cvtColor, alpha copied",
     convert<cv::COLOR_BGRA2RGBA>},
    {"keliSwapChannels_8u_C3IR", "OpenCV cvtColor", swapInPlace},
});

}  // namespace
}  // namespace keli::bench
