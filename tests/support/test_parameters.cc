// The arguments of a test's call that are no images.
#include <cstring>
#include <limits>

#include "support/test_call.h"

namespace keli::test {

using registry::Argument;
using registry::Role;
using registry::Type;

namespace {

// Makes most counts of bits such as move something.
void keepSmall(std::uint8_t* counts, int length, Random& random) {
  for (int k = 0; k < std::max(length, 1); ++k) {
    const std::uint32_t count = static_cast<std::uint32_t>(pick(random, 36));
    if (pick(random, 4) != 0) std::memcpy(counts + 4 * k, &count, sizeof(count));
  }
}

bool isFloating(Type type) {
  return type == Type::k32f || type == Type::k64f || type == Type::k32fc;
}

// Zero of its type, a negative one included.
bool isZero(Type type, const std::uint8_t* sample) {
  const std::size_t bytes = registry::bytesOf(type);
  const std::size_t sign = type == Type::k64f ? 7 : 3;  // the byte that holds it
  for (std::size_t i = 0; i < bytes; ++i) {
    const bool signs = isFloating(type) && i % 8 % (sign + 1) == sign;
    if ((sample[i] & (signs ? 0x7F : 0xFF)) != 0) return false;
  }
  return true;
}

template <class T>
bool isInner(const std::uint8_t* low, const std::uint8_t* high) {
  T a, b;
  std::memcpy(&a, low, sizeof(T));
  std::memcpy(&b, high, sizeof(T));
  return a > std::numeric_limits<T>::lowest() && a <= b && b < std::numeric_limits<T>::max();
}

bool isInnerRange(Type type, const std::uint8_t* low, const std::uint8_t* high) {
  return type == Type::k8u    ? isInner<Kel8u>(low, high)
         : type == Type::k16s ? isInner<Kel16s>(low, high)
                              : isInner<Kel32f>(low, high);
}

}  // namespace

// Values of channels; those of a range's ends are in order, and short of the type's extremes.
void TestCall::addConstants(std::size_t i, const Geometry& g, Random& random) {
  const Argument& a = function.arguments[i];
  const std::size_t bytes = registry::bytesOf(a.type);
  const std::size_t count = static_cast<std::size_t>(std::max(a.length, 1));
  std::uint8_t constant[4 * 8] = {};
  fillSamples(a.type, constant, count, random);
  if (a.role == Role::kShift) keepSmall(constant, a.length, random);
  for (std::size_t k = 0; checks(function, registry::Check::kDivisor) && k < 4; ++k) {
    while (isZero(a.type, constant + k * bytes))
      fillSamples(a.type, constant + k * bytes, 1, random);
  }
  for (std::size_t k = 0; a.role == Role::kLower && k < count; ++k) {
    do {
      fillSamples(a.type, constant + k * bytes, 1, random);
      fillSamples(a.type, upper_ + k * bytes, 1, random);
    } while (!isInnerRange(a.type, constant + k * bytes, upper_ + k * bytes));
  }
  if (a.role == Role::kUpper) std::memcpy(constant, upper_, sizeof(constant));
  if (a.length != 0) {
    addArray(i, count * bytes, g, constant);
  } else if (a.type == Type::k32f) {
    Kel32f sample;
    std::memcpy(&sample, constant, sizeof(sample));
    values[i].f = sample;
  } else {
    std::memcpy(&values[i], constant, bytes);
  }
}

void TestCall::addNumbers(std::size_t i, const Geometry& g, const int (&numbers)[4]) {
  const int length = function.arguments[i].length;
  if (length != 0) {
    addArray(i, static_cast<std::size_t>(length) * sizeof(int), g, numbers);
  } else {
    values[i].i = numbers[0];
  }
}

void TestCall::addResult(std::size_t i, std::size_t count, const Geometry& g) {
  const std::vector<std::uint8_t> before(count, 0x5A);
  results_.push_back({addArray(i, count, g, before.data()), count});
}

// Histograms and levels of each channel; levels rise from some point within the type's range.
void TestCall::addPerChannel(std::size_t i, const Geometry& g, Random& random) {
  const Argument& a = function.arguments[i];
  auto arrays = std::make_unique<const void*[]>(4);
  for (int k = 0; k < std::max(a.length, 1); ++k) {
    const std::size_t levels = static_cast<std::size_t>(levelCounts_[k]);
    if (a.role == Role::kLevels) {
      std::vector<Kel32s> whole;
      std::vector<Kel32f> real;
      Kel32s level = static_cast<Kel32s>(pick(random, 60)) - 20;
      for (std::size_t j = 0; j < levels; ++j, level += 1 + static_cast<Kel32s>(pick(random, 9))) {
        whole.push_back(level);
        real.push_back(static_cast<Kel32f>(level) * 100);
      }
      const void* const data =
          a.type == Type::k32f ? static_cast<const void*>(real.data()) : whole.data();
      addArray(i, levels * 4, g, data);
    } else {
      addResult(i, 4 * (levels - (a.role == Role::kCounts ? 1 : 0)), g);
    }
    arrays[static_cast<std::size_t>(k)] = values[i].p;
  }
  if (a.length == 0) return;
  values[i].p = arrays.get();
  planeArrays_.push_back(std::move(arrays));
}

// About half of the bytes of a structuring element are set, and at least one.
void TestCall::addElement(std::size_t i, const Geometry& g, Random& random) {
  std::vector<std::uint8_t> mask(static_cast<std::size_t>(window_.mask.width) *
                                 static_cast<std::size_t>(window_.mask.height));
  for (std::uint8_t& byte : mask) byte = pick(random, 2) == 0 ? 0 : 1 + pick(random, 255) % 255;
  mask[pick(random, mask.size())] = 128;
  addArray(i, mask.size(), g, mask.data());
}

// Scratch memory of exactly the size that is told, in an image's place.
void TestCall::addBuffer(std::size_t i, const Geometry& g, Random& random) {
  buffer_.size = static_cast<std::size_t>(spec_->scratchBytes());
  std::uint8_t* const memory = place(buffer_.size, g);
  fillSamples(Type::k64s, memory, buffer_.size / 8, random);
  buffer_.data = memory;
  values[i].p = memory;
}

}  // namespace keli::test
