// OpenCV's headers over the images of a call.
#pragma once

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>
#include <vector>

#include "tables.h"

namespace keli::bench {

// All channels of an interleaved image, or one plane of a planar one: the region, as a part of the
// image with its margin.
cv::Mat mat(const Image& image, int plane = 0);
// Signed 16-bit samples as unsigned ones, for functions that only move samples and know no others.
cv::Mat matOfBits(const Image& image);
std::vector<cv::Mat> planes(const Image& image);
cv::Scalar constants(const Frame& frame);

}  // namespace keli::bench
