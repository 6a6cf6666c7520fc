// Images and arguments of the calls that are timed.
#include "frame.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <stdexcept>

#include "samples.h"

namespace keli::bench {

using registry::Argument;
using registry::Role;
using registry::Type;
using registry::Value;

Frame::Frame(const registry::Function& function, Size size, const Choices& choices)
    : function_(function), size_(size), choices_(choices) {
  for (const Argument& argument : function.arguments) addArgument(argument);
  resetDestination();
  answer_.assign(results().size(), std::nan(""));
}

void Frame::resetDestination() const {
  if (destination_ == nullptr) return;
  if (function_.inPlace) {
    destination_->fillPattern(9, choices_);
  } else {
    destination_->fillBytes(0x5A);
  }
}

bool Frame::takes(Role role) const {
  for (const Argument& a : function_.arguments) {
    if (a.role == role) return true;
  }
  return false;
}

// Of sources whose borders are made, what is left of the row's size; of blocks, one row.
Size Frame::sizeOf(const Argument& argument) const {
  const std::ptrdiff_t index = &argument - function_.arguments.data;
  if (registry::isBlock(function_, static_cast<std::size_t>(index))) return {64, 1, 0};
  if (argument.role != Role::kSource || !takes(Role::kTopBorder)) return size_;
  return {size_.width - 2 * choices_.border, size_.height - 2 * choices_.border, size_.padding};
}

// What filters read beside the region.
Margin Frame::marginOf(const Argument& argument) const {
  if (argument.role != Role::kSource && argument.role != Role::kInOut) return {};
  const KeliSize mask = choices_.mask;
  switch (function_.reach) {
    case registry::Reach::k3x3:
      return {1, 1, 1, 1};
    case registry::Reach::kMask:
      return {mask.width / 2, mask.height / 2, mask.width - 1 - mask.width / 2,
              mask.height - 1 - mask.height / 2};
    default:
      return {};
  }
}

void Frame::addElement() {
  const int width = choices_.mask.width, height = choices_.mask.height;
  auto* const mask = static_cast<std::uint8_t*>(addArray((std::size_t(width) * height + 7) / 8));
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const double u = (2.0 * x + 1) / width - 1, v = (2.0 * y + 1) / height - 1;
      mask[y * width + x] = choices_.element == Element::kAll || u * u + v * v <= 1;
    }
  }
  element_ = mask;
  Value value;
  value.p = mask;
  values_.push_back(value);
}

void Frame::addImage(const Argument& argument) {
  auto image =
      std::make_unique<Image>(argument.type, argument.layout, sizeOf(argument), marginOf(argument));
  lastStep_ = image->step();
  const bool oneChannel =
      argument.role == Role::kSourceChannel || argument.role == Role::kDestinationChannel;
  Value value;
  value.p = image->data() + (oneChannel ? kChannel * bytesOf(argument.type) : 0);
  if (isPlanar(argument.layout)) {
    auto planes = std::make_unique<std::uint64_t[]>(image->planes());
    for (int k = 0; k < image->planes(); ++k) {
      const std::uint8_t* plane = image->plane(k);
      std::memcpy(reinterpret_cast<std::uint8_t*>(planes.get()) + k * sizeof(plane), &plane,
                  sizeof(plane));
    }
    value.p = planes.get();
    arrays_.push_back(std::move(planes));
  }
  if (argument.role == Role::kInOutWithin) {
    value.p = image->data() + image->step() * choices_.border +
              bytesOf(argument.type) * image->samplesPerPixel() * choices_.border;
  }
  values_.push_back(value);
  if (argument.role == Role::kMap) {
    image->fillMap(maps_.empty(), choices_.map);
    maps_.push_back(std::move(image));
  } else if (argument.role == Role::kMask) {
    image->fillBlobs(5);
    mask_ = std::move(image);
  } else if (isWritten(argument.role)) {
    if (destination_ != nullptr) throw std::runtime_error("more than one written image");
    destination_ = std::move(image);
  } else {
    const std::uint64_t seed = 1 + sources_.size();
    image->fillPattern(seed, choices_);
    if (choices_.content == Content::kPhotograph) image->fillPhotograph(seed, choices_);
    if (choices_.content == Content::kFlat) image->fillBytes(0x42);
    sources_.push_back(std::move(image));
  }
}

void* Frame::addArray(std::size_t count) {
  arrays_.push_back(std::make_unique<std::uint64_t[]>(count));
  return arrays_.back().get();
}

void Frame::addResult(const Argument& argument) {
  const std::size_t count = static_cast<std::size_t>(std::max(argument.length, 1));
  Value value;
  value.p = addArray(count);
  results_.push_back({argument.type, count, value.p});
  values_.push_back(value);
}

// A histogram or its levels, of each channel.
void Frame::addPerChannel(const Argument& argument) {
  const std::size_t channels = static_cast<std::size_t>(std::max(argument.length, 1));
  const std::size_t count = choices_.levels - (argument.role == Role::kCounts ? 1 : 0);
  const void* arrays[4];
  for (std::size_t k = 0; k < channels; ++k) {
    void* const array = addArray(count);
    arrays[k] = array;
    if (argument.role == Role::kCounts) results_.push_back({argument.type, count, array});
    for (std::size_t i = 0; argument.role == Role::kLevels && i < count; ++i) {
      storeSample(argument.type, array, i, level(static_cast<int>(i)));
    }
  }
  Value value;
  value.p = arrays[0];
  if (argument.length != 0) {
    void* const pointers = addArray(channels);
    std::memcpy(pointers, arrays, channels * sizeof(void*));
    value.p = pointers;
  }
  values_.push_back(value);
}

// An int, or an array of it for each channel.
void Frame::addNumber(const Argument& argument, double number) {
  Value value{};
  value.i = static_cast<std::int64_t>(number);
  if (argument.length != 0) {
    void* const array = addArray(static_cast<std::size_t>(argument.length));
    for (int k = 0; k < argument.length; ++k) storeSample(Type::k32s, array, k, number);
    value.p = array;
  }
  values_.push_back(value);
}

// The ends of the range that histograms cover: of all samples of the source.
double Frame::least() const { return leastSample(sources_.front()->type()); }
double Frame::most() const { return mostSample(sources_.front()->type(), choices_); }

std::vector<double> Frame::results() const {
  std::vector<double> all;
  for (const Result& r : results_) {
    for (std::size_t i = 0; i < r.count; ++i) all.push_back(loadComponent(r.type, r.data, i));
  }
  return all;
}

void Frame::addConstant(const Argument& argument) {
  Value value{};
  const double above = argument.role == Role::kUpper ? choices_.upper : 0;
  if (argument.length > 0) {
    auto array = std::make_unique<std::uint64_t[]>(argument.length);
    for (int k = 0; k < argument.length; ++k) {
      storeSample(argument.type, array.get(), k, constant(k) + above);
    }
    value.p = array.get();
    arrays_.push_back(std::move(array));
  } else if (isComplex(argument.type)) {
    storeSample(argument.type, &value, 0, constant(0));
  } else if (isFloating(argument.type)) {
    value.f = constant(0) + above;
  } else {
    value.i = static_cast<std::int64_t>(constant(0) + above);
  }
  values_.push_back(value);
}

// A transform's specification and, as its last argument, scratch memory.
void Frame::addSpec() {
  spec_ =
      std::make_unique<registry::TransformSpec>(function_, KeliSize{size_.width, size_.height}, 2);
  if (spec_->get() == nullptr) throw std::runtime_error("no specification for this size");
  Value value{};
  value.p = spec_->get();
  values_.push_back(value);
}

void Frame::addArgument(const Argument& argument) {
  Value value{};
  switch (argument.role) {
    case Role::kConstant:
    case Role::kShift:
    case Role::kLower:
    case Role::kUpper:
    case Role::kScalar:
      return addConstant(argument);
    case Role::kResult:
      return addResult(argument);
    case Role::kCounts:
    case Role::kLevels:
    case Role::kLevelsOut:
      return addPerChannel(argument);
    case Role::kLevelCount:
      return addNumber(argument, choices_.levels);
    case Role::kLevelBound:
      // The first is the lower one.
      return addNumber(argument, std::strcmp(argument.name, "lowerLevel") == 0 ? least() : most());
    case Role::kTolerance:
      value.f = choices_.constant;
      break;
    case Role::kCompareOp:
      value.i = choices_.compareOp;
      break;
    case Role::kHint:
      value.i = choices_.hint;
      break;
    case Role::kElement:
      return addElement();
    case Role::kSourceRegion: {
      const int border = takes(Role::kTopBorder) ? choices_.border : 0;
      value.size = {size_.width - 2 * border, size_.height - 2 * border};
      break;
    }
    case Role::kSourceRect:
      value.rect = {0, 0, size_.width, size_.height};
      break;
    case Role::kTopBorder:
    case Role::kLeftBorder:
      value.i = choices_.border;
      break;
    case Role::kMaskSize:
      value.size = choices_.mask;
      break;
    case Role::kAnchor:
      value.point = {choices_.mask.width / 2, choices_.mask.height / 2};
      break;
    case Role::kAxis:
      value.i = choices_.axis;
      break;
    case Role::kInterpolation:
      value.i = choices_.interpolation;
      break;
    case Role::kRoundMode:
      value.i = choices_.roundMode;
      break;
    case Role::kBitOffset:
      value.i = choices_.bitOffset;
      break;
    case Role::kSpec:
      return addSpec();
    case Role::kBuffer:
      value.p =
          addArray(static_cast<std::size_t>(spec_->scratchBytes()) / sizeof(std::uint64_t) + 1);
      break;
    case Role::kNoise:
      value.i = choices_.noise;
      break;
    case Role::kDither:
      value.i = choices_.dither;
      break;
    case Role::kGrayLevels:
      value.i = choices_.grayLevels;
      break;
    case Role::kRangeMin:
      break;
    case Role::kRangeMax:
      value.f = choices_.most;
      break;
    case Role::kStep:
      value.i = lastStep_;
      break;
    case Role::kRegion:
      value.size = {size_.width, size_.height};
      break;
    case Role::kScaleFactor:
      value.i = choices_.scaleFactor;
      break;
    case Role::kOrder:
      value.p = kOrder;
      break;
    default:
      if (isImage(argument.role)) return addImage(argument);
      throw std::runtime_error(std::string("nothing provides the argument ") + argument.name);
  }
  values_.push_back(value);
}

}  // namespace keli::bench
