// Members of pixel-wise operations against a definition of one sample: on every target, in rows of
// every length up to a few vectors, with and without padding, in place and not.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "reference/image.h"
#include "support/targets.h"

namespace keli::test {

// The constant of channel k in an argument, as a sample.
template <class T>
T constantOf(const TestCall& call, std::size_t argument, int k) {
  const registry::Value& value = call.values[argument];
  T sample;
  if (call.function.arguments[argument].length != 0) {
    std::memcpy(&sample, static_cast<const std::uint8_t*>(value.p) + k * sizeof(T), sizeof(T));
  } else if constexpr (std::is_floating_point_v<T>) {
    sample = static_cast<T>(value.f);
  } else if constexpr (std::is_integral_v<T>) {
    sample = static_cast<T>(value.i);
  } else {
    std::memcpy(&sample, &value, sizeof(T));
  }
  return sample;
}

// The index of an argument that has this name.
inline std::size_t argumentNamed(const TestCall& call, const std::string& name) {
  std::size_t i = 0;
  while (i < call.values.size() && call.function.arguments[i].name != name) ++i;
  EXPECT_LT(i, call.values.size()) << call.function.name << " has no " << name;
  return i;
}

// Fills the written image of a call from the images and constants of the same call before it is
// run. definition(first, second, scaleFactor) gives a sample: of two sources in their order, or of
// a source and the constant of its channel (a shift count of type Constant). definition(sample,
// ...) with one operand where there is no second.
template <class T, class Constant = T, class Definition>
void define(const TestCall& call, KeliSize size, const Definition& definition) {
  using registry::Role;
  std::vector<std::size_t> sources;
  for (std::size_t i = 0; i < call.function.arguments.size; ++i) {
    const Role role = call.function.arguments[i].role;
    if (role == Role::kSource || role == Role::kInOut) sources.push_back(i);
  }
  const std::size_t shift = call.find(Role::kShift), value = call.find(Role::kConstant);
  const std::size_t constant = shift != TestCall::npos ? shift : value;
  const std::size_t factor = call.find(Role::kScaleFactor);
  const int sf = factor == TestCall::npos ? 0 : static_cast<int>(call.values[factor].i);
  const ImageView dst(call, call.written());
  const ImageView first(call, sources.front()), second(call, sources.back());
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      for (int k = 0; k < dst.channels(); ++k) {
        const T a = first.template get<T>(x, y, k);
        if constexpr (std::is_invocable_v<Definition, T, int>) {
          dst.template set<T>(x, y, k, definition(a, sf));
        } else if (constant != TestCall::npos) {
          dst.template set<T>(x, y, k, definition(a, constantOf<Constant>(call, constant, k), sf));
        } else {
          if constexpr (std::is_same_v<T, Constant>)
            dst.template set<T>(x, y, k, definition(a, second.template get<T>(x, y, k), sf));
        }
      }
    }
  }
}

// Scale factors for a type whose results vanish above `vanish`: all up to there, and far ones.
inline std::vector<int> scaleFactors(int vanish) {
  std::vector<int> all = {
      std::numeric_limits<int>::min(), -64, -33, -32, -31, -17, -16, -15, -9, -8, -7, -3, -2, -1};
  for (int sf = 0; sf <= vanish + 2; ++sf) all.push_back(sf);
  for (const int sf : {31, 32, 33, 63, 64, 65, std::numeric_limits<int>::max()}) all.push_back(sf);
  return all;
}

// Runs calls of f of every width on every target and compares every sample. prepare(call, i) may
// change the samples and parameters of call number i before it is run, fill(call, size) writes what
// is expected into the written image of a call that is not run, and expectedStatus(call, size)
// tells what one returns. At least `calls` calls for a target.
template <class Prepare, class Fill, class Status>
void checkCalls(const registry::Function& f, std::size_t calls, const Prepare& prepare,
                const Fill& fill, const Status& expectedStatus) {
  static const std::vector<int> widths = {1,  2,  3,  5,  7,  8,  11, 15,  16,
                                          17, 31, 33, 45, 64, 65, 97, 200, 1100};
  for (const std::int64_t target : testedTargets()) {
    const UseTarget use(target);
    for (std::size_t i = 0; i < std::max(widths.size(), calls); ++i) {
      const int width = widths[i % widths.size()];
      const Geometry g = {width, 2, i % 3 == 0 ? 0 : 3, Place::kMiddle, static_cast<int>(i % 4)};
      const std::uint64_t seed = runSeed() + i;
      TestCall call(f, g, seed), expected(f, g, seed);
      for (TestCall* c : {&call, &expected}) prepare(*c, i);
      const KelStatus status = call.run().status;
      ASSERT_EQ(status, expectedStatus(expected, KeliSize{width, 2})) << f.name;
      fill(expected, KeliSize{width, 2});
      ASSERT_EQ(call.region(call.written()), expected.region(expected.written()))
          << f.name << " " << targetName(target) << " width " << width << " call " << i;
    }
  }
}

template <class Prepare, class Fill>
void checkCalls(const registry::Function& f, const Prepare& prepare, const Fill& fill) {
  checkCalls(f, 0, prepare, fill, [](const TestCall&, KeliSize) { return kelStatusOk; });
}

// Runs f with the scale factors given (one run if there are none) and compares every sample.
// prepare(call) may change the call's samples and constants before it is run, and expectedStatus
// (call, size) tells what it then returns.
template <class T, class Constant = T, class Definition, class Prepare, class Status>
void checkMember(const registry::Function& f, const std::vector<int>& factors,
                 const Definition& definition, const Prepare& prepare,
                 const Status& expectedStatus) {
  const auto prepareCall = [&](TestCall& call, std::size_t i) {
    if (!factors.empty())
      call.values[call.find(registry::Role::kScaleFactor)].i = factors[i % factors.size()];
    prepare(call);
  };
  checkCalls(
      f, factors.size(), prepareCall,
      [&](const TestCall& call, KeliSize size) { define<T, Constant>(call, size, definition); },
      expectedStatus);
}

template <class T, class Constant = T, class Definition, class Prepare>
void checkMember(const registry::Function& f, const std::vector<int>& factors,
                 const Definition& definition, const Prepare& prepare) {
  checkMember<T, Constant>(f, factors, definition, prepare,
                           [](const TestCall&, KeliSize) { return kelStatusOk; });
}

template <class T, class Constant = T, class Definition>
void checkMember(const registry::Function& f, const std::vector<int>& factors,
                 const Definition& definition) {
  checkMember<T, Constant>(f, factors, definition, [](TestCall&) {});
}

// Members of an operation whose type is T, all found by their names.
template <class F>
int forMembers(const std::string& operation, registry::Type type, const F& f) {
  int count = 0;
  for (const registry::Function& function : registry::functions()) {
    if (function.operation != operation || function.arguments[0].name == nullptr) continue;
    registry::Type written = registry::Type::kNone;
    for (const auto& a : function.arguments) {
      if (registry::isWritten(a.role)) written = a.type;
    }
    if (written != type) continue;
    ++count;
    f(function);
    if (testing::Test::HasFatalFailure()) break;
  }
  return count;
}

}  // namespace keli::test
