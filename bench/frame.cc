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

namespace {

// The library allocates by sample size; which type of that size does not matter.
const char* allocatedType(std::size_t sampleBytes) {
  return sampleBytes == 1 ? "8u" : sampleBytes == 2 ? "16u" : sampleBytes == 4 ? "32s" : "32fc";
}

std::uint64_t nextRandom(std::uint64_t* state) {
  std::uint64_t x = *state;
  x ^= x << 13;
  x ^= x >> 7;
  x ^= x << 17;
  return *state = x;
}

// Values of a lattice at the corners of cells, uniform in 0..1.
double latticeValue(std::uint64_t seed, int x, int y) {
  std::uint64_t state = seed ^ (std::uint64_t{0x9E3779B97F4A7C15} * (x + 1)) ^
                        (std::uint64_t{0xC2B2AE3D27D4EB4F} * (y + 1));
  nextRandom(&state);
  return static_cast<double>(nextRandom(&state) >> 11) / 9007199254740992.0;
}

// Calls body(x, y, value) for all pixels, with values between those of the corners of cells of so
// many pixels.
template <int kCell, class Body>
void forLattice(std::uint64_t seed, Size size, const Body& body) {
  for (int y = 0; y < size.height; ++y) {
    const double fy = static_cast<double>(y % kCell) / kCell;
    double left = 0;
    double right = 0;
    for (int x = 0; x < size.width; ++x) {
      if (x % kCell == 0) {
        const auto column = [&](int i) {
          return (1 - fy) * latticeValue(seed, x / kCell + i, y / kCell) +
                 fy * latticeValue(seed, x / kCell + i, y / kCell + 1);
        };
        left = column(0);
        right = column(1);
      }
      const double fx = static_cast<double>(x % kCell) / kCell;
      body(x, y, (1 - fx) * left + fx * right);
    }
  }
}

// The ends of the values that samples take, the upper one excluded.
double leastSample(Type type) { return type == Type::k16s ? -32768 : 0; }
double mostSample(Type type, const Choices& choices) {
  return type == Type::k16s ? 32768 : isFloating(type) ? choices.most : 256;
}

}  // namespace

std::string nameOf(Size size) {
  std::string name = std::to_string(size.width) + "x" + std::to_string(size.height);
  return size.padding == 0 ? name : name + "+" + std::to_string(size.padding);
}

Image::Image(Type type, Layout layout, Size size) : type_(type), layout_(layout), size_(size) {
  const std::string allocator = std::string("keliMalloc_") + allocatedType(bytesOf(type)) + "_C" +
                                std::to_string(pixelSamples(layout));
  const registry::Function* function = registry::find(allocator);
  if (function == nullptr) throw std::runtime_error("no allocator " + allocator);
  Value arguments[3];
  arguments[0].i = size.width + size.padding;
  arguments[1].i = std::int64_t{size.height} * planes();
  arguments[2].p = &step_;
  memory_.reset(const_cast<void*>((*function)(arguments).pointer));
  if (memory_ == nullptr) throw std::runtime_error("no memory for an image of " + nameOf(size));
}

std::uint8_t* Image::plane(int index) const {
  return static_cast<std::uint8_t*>(memory_.get()) +
         static_cast<std::size_t>(step_) * size_.height * index;
}

Block Image::block() const {
  const std::size_t rowBytes = bytesOf(type_) * samplesPerPixel() * size_.width;
  const std::size_t step = step_;
  const std::size_t rows = static_cast<std::size_t>(size_.height) * planes();
  if (rowBytes == step) return {data(), rowBytes * rows, rowBytes * rows, 1};
  return {data(), rowBytes, step, rows};
}

// Integer samples take any value; floating ones lie in 0..most, so that no operation meets a NaN,
// an infinity or a denormal number by accident.
void Image::fillPattern(std::uint64_t seed, const Choices& choices) const {
  std::uint64_t state = seed * 0x9E3779B97F4A7C15 + 1;
  const std::size_t bytes = static_cast<std::size_t>(step_) * size_.height * planes();
  if (!isFloating(type_)) {
    for (std::size_t i = 0; i < bytes; i += 8) {
      const std::uint64_t word = nextRandom(&state) | (choices.odd ? 0x0101010101010101 : 0);
      std::memcpy(data() + i, &word, 8);
    }
    return;
  }
  withComponent(type_, [&](auto component) {
    for (std::size_t i = 0; i < bytes; i += sizeof(component)) {
      component = static_cast<decltype(component)>(static_cast<double>(nextRandom(&state) >> 40) *
                                                   choices.most / (1 << 24));
      std::memcpy(data() + i, &component, sizeof(component));
    }
  });
}

void Image::fillBytes(std::uint8_t value) const {
  std::memset(data(), value, static_cast<std::size_t>(step_) * size_.height * planes());
}

// Runs of both values as in real masks.
void Image::fillBlobs(std::uint64_t seed) const {
  forLattice<16>(seed, size_, [&](int x, int y, double value) {
    data()[static_cast<std::size_t>(step_) * y + x] = value >= 0.5 ? 255 : 0;
  });
}

// Every channel another landscape, with noise of up to 1 % of the range of values: a fifth of the
// bytes equal the next, as in the photographs of examples/images.
void Image::fillPhotograph(std::uint64_t seed, const Choices& choices) const {
  const double least = leastSample(type_), range = mostSample(type_, choices) - least;
  const int samples = samplesPerPixel();
  std::uint64_t noise = seed;
  for (int k = 0; k < samples; ++k) {
    forLattice<64>(
        seed + 10 * static_cast<std::uint64_t>(k), size_, [&](int x, int y, double value) {
          value = 0.99 * value + 0.01 * static_cast<double>(nextRandom(&noise) >> 40) / (1 << 24);
          storeSample(type_, data() + static_cast<std::size_t>(step_) * y,
                      static_cast<std::size_t>(samples) * x + k, std::floor(least + range * value));
        });
  }
}

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

void Frame::addImage(const Argument& argument) {
  auto image = std::make_unique<Image>(argument.type, argument.layout, size_);
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
  values_.push_back(value);
  if (argument.role == Role::kMask) {
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
