// The order of argument checks, for every function of the registry: each argument made bad, alone
// and in pairs, gives the code that the order demands, and no byte is written.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstring>

#include "frame/faults.h"

namespace keli::test {
namespace {

using registry::Argument;
using registry::Check;
using registry::Role;
using registry::Type;
using registry::Value;

using registry::isPointer;

bool nullAmong(const TestCall& call, const std::vector<Value>& values, bool constants) {
  for (std::size_t i = 0; i < values.size(); ++i) {
    const Argument& a = call.function.arguments[i];
    if (!isPointer(a) || registry::isConstant(a.role) != constants) continue;
    if (values[i].p == nullptr) return true;
    if (!registry::isImage(a.role)) continue;
    for (int k = 0; k < pointersIn(a); ++k) {
      if (static_cast<const void* const*>(values[i].p)[k] == nullptr) return true;
    }
  }
  return false;
}

template <class Bad>
bool anyOf(const TestCall& call, Role role, Bad bad) {
  for (std::size_t i = 0; i < call.values.size(); ++i) {
    if (call.function.arguments[i].role == role && bad(i)) return true;
  }
  return false;
}

// Whether the function is its one-channel member over more samples.
bool overChannels(const registry::Function& f) {
  for (const Argument& a : f.arguments) {
    if (registry::isImage(a.role)) return a.layout == Layout::C3 || a.layout == Layout::C4;
  }
  return false;
}

// A constant of which a channel has only zero bits, but for the sign of a float.
bool zeroAmong(const TestCall& call, const std::vector<Value>& values) {
  return anyOf(call, Role::kConstant, [&](std::size_t i) {
    const Argument& a = call.function.arguments[i];
    const std::size_t bytes = registry::bytesOf(a.type);
    const auto* p = a.length != 0 ? static_cast<const std::uint8_t*>(values[i].p)
                                  : reinterpret_cast<const std::uint8_t*>(&values[i]);
    for (std::size_t k = 0; k < std::max<std::size_t>(1, static_cast<std::size_t>(a.length)); ++k) {
      bool zero = true;
      for (std::size_t j = 0; j < bytes; ++j) zero &= p[k * bytes + j] == 0;
      if (zero) return true;
    }
    return false;
  });
}

bool rangeFails(const TestCall& call, const std::vector<Value>& values, bool nanFails) {
  const std::size_t lower = call.find(Role::kLower), upper = call.find(Role::kUpper);
  const Argument& a = call.function.arguments[lower];
  for (int k = 0; k < std::max(a.length, 1); ++k) {
    const double low = numberAt(a, values[lower], k), high = numberAt(a, values[upper], k);
    if (low > high || (nanFails && !(low <= high))) return true;
  }
  return false;
}

// The code of the first channel of a histogram that has a fault.
KelStatus channelStatus(const TestCall& call, const std::vector<Value>& values) {
  const std::size_t count = call.find(Role::kLevelCount);
  for (int k = 0; k < call.function.arguments[count].length; ++k) {
    for (std::size_t i = 0; i < values.size(); ++i) {
      const Argument& a = call.function.arguments[i];
      if (registry::isImage(a.role) || pointersIn(a) == 0) continue;
      if (static_cast<const void* const*>(values[i].p)[k] == nullptr) return -8;
    }
    if (numberAt(call.function.arguments[count], values[count], k) < 2) return -107;
  }
  return 0;
}

const Value& valueOf(const TestCall& call, const std::vector<Value>& values, Role role) {
  return values[call.find(role)];
}

bool isEmpty(KeliSize size) { return size.width < 1 || size.height < 1; }

bool bordersFail(const TestCall& call, const std::vector<Value>& values) {
  const KeliSize src = valueOf(call, values, Role::kSourceRegion).size;
  const KeliSize dst = valueOf(call, values, Role::kRegion).size;
  const std::int64_t top = valueOf(call, values, Role::kTopBorder).i;
  const std::int64_t left = valueOf(call, values, Role::kLeftBorder).i;
  return isEmpty(src) || isEmpty(dst) || top < 0 || left < 0 || dst.width < left + src.width ||
         dst.height < top + src.height;
}

bool remapSizesFail(const TestCall& call, const std::vector<Value>& values) {
  const KeliRect part = valueOf(call, values, Role::kSourceRect).rect;
  return isEmpty(valueOf(call, values, Role::kSourceRegion).size) || part.x < 0 || part.y < 0 ||
         isEmpty({part.width, part.height}) || isEmpty(valueOf(call, values, Role::kRegion).size);
}

bool anchorFails(const TestCall& call, const std::vector<Value>& values) {
  const KeliPoint anchor = valueOf(call, values, Role::kAnchor).point;
  const KeliSize mask = valueOf(call, values, Role::kMaskSize).size;
  return anchor.x < 0 || anchor.y < 0 || anchor.x >= mask.width || anchor.y >= mask.height;
}

// The bytes of an element, of whatever size it is said to be.
bool elementFails(const TestCall& call, const std::vector<Value>& values) {
  const KeliSize mask = valueOf(call, values, Role::kMaskSize).size;
  const auto* bytes = static_cast<const std::uint8_t*>(valueOf(call, values, Role::kElement).p);
  for (std::int64_t i = 0; i < std::int64_t{mask.width} * mask.height; ++i) {
    if (bytes[i] != 0) return false;
  }
  return true;
}

bool rowFails(const TestCall& call, const std::vector<Value>& values) {
  const int width = valueOf(call, values, Role::kRegion).size.width;
  std::size_t image = 0;
  for (std::size_t i = 0; i < values.size(); ++i) {
    const Argument& a = call.function.arguments[i];
    if (registry::isImage(a.role)) image = i;
    if (a.role != Role::kStep) continue;
    const Argument& of = call.function.arguments[image];
    std::int64_t pixels = width;
    if (of.role != Role::kDestination) {
      const std::size_t mask = call.find(Role::kMaskSize);
      pixels += (mask == TestCall::npos ? 3 : values[mask].size.width) - 1;
    }
    const std::size_t pixel =
        registry::bytesOf(of.type) * static_cast<std::size_t>(pixelSamples(of.layout));
    if (values[i].i < pixels * static_cast<std::int64_t>(pixel)) return true;
  }
  return false;
}

bool spanFails(const TestCall& call, const std::vector<Value>& values) {
  const Kel32f least = static_cast<Kel32f>(valueOf(call, values, Role::kRangeMin).f);
  const Kel32f most = static_cast<Kel32f>(valueOf(call, values, Role::kRangeMax).f);
  return !(most - least > 0);
}

// Whether levels are spread, which makes a function look at how.
bool spreads(const TestCall& call, const std::vector<Value>& values) {
  const std::int64_t dither = valueOf(call, values, Role::kDither).i;
  return dither >= 1 && dither <= 4;
}

bool grayLevelsFail(const TestCall& call, const std::vector<Value>& values) {
  const std::int64_t levels = valueOf(call, values, Role::kGrayLevels).i;
  const bool bytes = call.function.arguments[call.written()].type == registry::Type::k8u;
  return spreads(call, values) && (levels < 2 || levels > (bytes ? 256 : 65536));
}

bool fails(const TestCall& call, const std::vector<Value>& values, Check check, bool lateValues) {
  const auto number = [&](Role role) { return valueOf(call, values, role).i; };
  switch (check) {
    case Check::kNull:
      return nullAmong(call, values, false) || (!lateValues && nullAmong(call, values, true));
    case Check::kValues:
      return nullAmong(call, values, true);
    case Check::kWidth:
      return overChannels(call.function) &&
             anyOf(call, Role::kRegion, [&](std::size_t i) { return values[i].size.width < 1; });
    case Check::kArea:
      return overChannels(call.function) && fails(call, values, Check::kSize, lateValues);
    case Check::kDivisor:
      return zeroAmong(call, values);
    case Check::kSize:
      return anyOf(call, Role::kRegion, [&](std::size_t i) {
        return values[i].size.width < 1 || values[i].size.height < 1;
      });
    case Check::kStep:
      return anyOf(call, Role::kStep, [&](std::size_t i) { return values[i].i < 1; });
    case Check::kOrder:
      return anyOf(call, Role::kOrder, [&](std::size_t i) {
        const int* order = static_cast<const int*>(values[i].p);
        return order[0] < 0 || order[0] > 2 || order[1] < 0 || order[1] > 2 || order[2] < 0 ||
               order[2] > 2;
      });
    case Check::kOperation:
      return anyOf(call, Role::kCompareOp,
                   [&](std::size_t i) { return values[i].i != 0 && values[i].i != 4; });
    case Check::kThresholds:
      return rangeFails(call, values, true);
    case Check::kBounds:
      return rangeFails(call, values, false);
    case Check::kEpsilon:
      return anyOf(call, Role::kTolerance, [&](std::size_t i) { return !(values[i].f >= 0); });
    case Check::kSpan:
      return spanFails(call, values);
    case Check::kBits:
      return number(Role::kBitOffset) < 0 || number(Role::kBitOffset) > 7;
    case Check::kBorders:
      return bordersFail(call, values);
    case Check::kMaskSize:
      return isEmpty(valueOf(call, values, Role::kMaskSize).size);
    case Check::kBoxSize: {
      const KeliSize mask = valueOf(call, values, Role::kMaskSize).size;
      return mask.width < 2 || mask.height < 2;
    }
    case Check::kAnchor:
      return anchorFails(call, values);
    case Check::kElement:
      return elementFails(call, values);
    case Check::kRow:
      return rowFails(call, values);
    case Check::kAxis:
      return number(Role::kAxis) < 0 || number(Role::kAxis) > 2;
    case Check::kSizes:
      return remapSizesFail(call, values);
    case Check::kInterpolation: {
      const std::int64_t mode = number(Role::kInterpolation);
      return mode != 1 && mode != 2 && mode != 4;
    }
    case Check::kNullSpec:
      return valueOf(call, values, Role::kSpec).p == nullptr;
    case Check::kSpec: {
      const auto kindOf = [](const void* p) { return *static_cast<const std::int32_t*>(p); };
      return kindOf(valueOf(call, values, Role::kSpec).p) != kindOf(call.spec()->get());
    }
    case Check::kNoise:
      return spreads(call, values) && (number(Role::kNoise) < 0 || number(Role::kNoise) > 100);
    case Check::kGrayLevels:
      return grayLevelsFail(call, values);
    case Check::kChannels:
      return channelStatus(call, values) != 0;
    case Check::kLevels:
      return anyOf(call, Role::kLevelCount, [&](std::size_t i) {
        return call.function.arguments[i].length == 0 && values[i].i < 2;
      });
  }
  return false;
}

KelStatus codeOf(Check check) {
  switch (check) {
    case Check::kNull:
    case Check::kNullSpec:
    case Check::kValues:
      return -8;
    case Check::kWidth:
    case Check::kArea:
    case Check::kSize:
    case Check::kBorders:
    case Check::kSizes:
      return -6;
    case Check::kDivisor:
      return -10;
    case Check::kStep:
      return -14;
    case Check::kOrder:
      return -60;
    case Check::kOperation:
      return -9999;
    case Check::kThresholds:
      return -18;
    case Check::kBounds:
    case Check::kBits:
      return -7;
    case Check::kSpan:
      return -13;
    case Check::kAxis:
      return -21;
    case Check::kInterpolation:
      return -22;
    case Check::kMaskSize:
    case Check::kBoxSize:
      return -33;
    case Check::kAnchor:
      return -34;
    case Check::kRow:
      return -37;
    case Check::kSpec:
      return -17;
    case Check::kGrayLevels:
      return -54;
    case Check::kNoise:
      return -55;
    case Check::kElement:
      return -59;
    case Check::kEpsilon:
      return -36;
    case Check::kLevels:
      return -107;
    case Check::kChannels:
      break;  // of several codes
  }
  return 0;
}

KelStatus expectedStatus(const TestCall& call, const std::vector<Value>& values) {
  bool lateValues = false;
  for (const Check check : call.function.entry->checks) lateValues |= check == Check::kValues;
  for (const Check check : call.function.entry->checks) {
    if (!fails(call, values, check, lateValues)) continue;
    return check == Check::kChannels ? channelStatus(call, values) : codeOf(check);
  }
  return 0;
}

TEST(Checks, EveryFunctionReturnsTheFirstFailingCheck) {
  std::size_t functions = 0, calls = 0;
  for (const registry::Function& f : registry::functions()) {
    if (f.entry->checks.size == 0) continue;
    ++functions;
    TestCall call(f, Geometry{}, runSeed());
    // A method, for the sake of what methods alone look at.
    const std::size_t dither = call.find(Role::kDither);
    if (dither != TestCall::npos)
      call.values[dither].i = 1 + static_cast<std::int64_t>(functions % 4);
    const std::vector<Value> good = call.values;
    const std::vector<Fault> faults = faultsOf(call);
    for (std::size_t i = 0; i < faults.size(); ++i) {
      for (std::size_t j = i; j < faults.size(); ++j) {
        if (j != i && faults[j].argument == faults[i].argument) continue;
        call.values = good;
        call.values[faults[i].argument] = faults[i].value;
        call.values[faults[j].argument] = faults[j].value;
        const KelStatus expected = expectedStatus(call, call.values);
        // One that names no method hides what methods alone look at.
        if (expected == 0 && dither != TestCall::npos &&
            (faults[i].argument == dither || faults[j].argument == dither))
          continue;
        ASSERT_LT(expected, 0) << f.name << ": no check covers " << faults[i].what;
        ASSERT_EQ(call.run().status, expected)
            << f.name << ": " << faults[i].what << ", " << faults[j].what;
        ++calls;
      }
    }
    ASSERT_EQ(call.anyWrites(), "") << "by a call that failed";
  }
  std::printf("%zu functions, %zu bad calls\n", functions, calls);
  ASSERT_GT(functions, 90u);
}

// The orders above come from the tables; these are their fixed points.
TEST(Checks, OrdersOfTheFamilies) {
  Kel8u pixel[4] = {};
  const Kel8u value[4] = {1, 2, 3, 4};
  const int order[3] = {0, 1, 3};
  Kel8u* planes[3] = {pixel, nullptr, pixel};
  const KeliSize none = {0, 1}, one = {1, 1};
  EXPECT_EQ(keliCopy_8u_C3R(nullptr, 0, pixel, 4, none), kelStatusNullPointer);
  EXPECT_EQ(keliCopy_8u_C3R(pixel, 0, pixel, 4, none), kelStatusBadSize);
  EXPECT_EQ(keliCopy_8u_C3R(pixel, 0, pixel, 4, one), kelStatusBadStep);
  EXPECT_EQ(keliCopy_8u_C1MR(pixel, 4, pixel, 4, none, nullptr, 0), kelStatusNullPointer);
  EXPECT_EQ(keliCopy_8u_C1MR(pixel, 4, pixel, 4, one, pixel, 0), kelStatusBadStep);
  EXPECT_EQ(keliCopy_8u_C3P3R(pixel, 0, planes, 0, none), kelStatusNullPointer);
  EXPECT_EQ(keliSet_8u_C3R(nullptr, nullptr, 0, none), kelStatusNullPointer);
  EXPECT_EQ(keliSet_8u_C3R(nullptr, pixel, 0, none), kelStatusBadSize);
  EXPECT_EQ(keliSet_8u_C3R(nullptr, pixel, 0, one), kelStatusBadStep);
  EXPECT_EQ(keliSet_8u_C3R(nullptr, pixel, 3, one), kelStatusNullPointer);
  EXPECT_EQ(keliSet_8u_C4R(value, pixel, 4, one), kelStatusOk);
  EXPECT_EQ(keliSwapChannels_8u_C3R(pixel, 3, pixel, 0, one, order), kelStatusBadStep);
  EXPECT_EQ(keliSwapChannels_8u_C3R(pixel, 3, pixel, 3, one, order), kelStatusBadChannelOrder);
  EXPECT_EQ(keliSwapChannels_8u_C3R(pixel, 3, pixel, 3, one, nullptr), kelStatusNullPointer);
  // Members that are others over more samples look at the width first.
  EXPECT_EQ(keliAdd_8u_C1RSfs(nullptr, 0, pixel, 1, pixel, 1, none, 0), kelStatusNullPointer);
  EXPECT_EQ(keliAdd_8u_C3RSfs(nullptr, 0, pixel, 1, pixel, 1, none, 0), kelStatusBadSize);
  EXPECT_EQ(keliAdd_8u_C4IRSfs(nullptr, 0, pixel, 1, {1, 0}, 0), kelStatusNullPointer);
  EXPECT_EQ(keliAdd_8u_AC4RSfs(nullptr, 0, pixel, 1, pixel, 1, none, 0), kelStatusNullPointer);
  EXPECT_EQ(keliAddC_8u_C3RSfs(nullptr, 0, value, pixel, 1, none, 0), kelStatusNullPointer);
  EXPECT_EQ(keliMulScale_8u_C1R(pixel, 0, pixel, 1, pixel, 1, none), kelStatusBadStep);
  EXPECT_EQ(keliMulCScale_8u_C1R(pixel, 0, 3, pixel, 1, none), kelStatusBadStep);
  EXPECT_EQ(keliDrawText_8u_C3R(nullptr, 0, nullptr, 0, none, nullptr, {0, 0}, nullptr, 0),
            kelStatusWarning);
}

}  // namespace
}  // namespace keli::test
