// The order of argument checks, for every function of the registry: each argument made bad, alone
// and in pairs, gives the code that the order demands, and no byte is written.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstring>

#include "support/test_call.h"

namespace keli::test {
namespace {

using registry::Argument;
using registry::Check;
using registry::Role;
using registry::Type;
using registry::Value;

using registry::isPointer;

struct Fault {
  std::string what;
  std::size_t argument;
  Value value;
};

// Arrays of pointers (planes, histograms) of which one is null; kept for the run of the test.
const void* withNull(const Value& planes, int count, int null) {
  static std::vector<std::unique_ptr<const void*[]>> kept;
  kept.push_back(std::make_unique<const void*[]>(4));
  for (int k = 0; k < count; ++k) {
    kept.back()[static_cast<std::size_t>(k)] =
        k == null ? nullptr : static_cast<const void* const*>(planes.p)[k];
  }
  return kept.back().get();
}

// Copies of an array of values of which one is another; kept for the run of the test.
const void* with(const Value& array, std::size_t sample, int count, int changed, const void* to) {
  static std::vector<std::vector<std::uint8_t>> kept;
  const auto* from = static_cast<const std::uint8_t*>(array.p);
  kept.emplace_back(from, from + sample * static_cast<std::size_t>(count));
  std::memcpy(kept.back().data() + sample * static_cast<std::size_t>(changed), to, sample);
  return kept.back().data();
}

// The number of channel k in an argument, as a double.
double numberAt(const Argument& a, const Value& value, int k) {
  if (a.length == 0) {
    if (a.type == Type::k32f) return value.f;
    return a.type == Type::k16s ? static_cast<Kel16s>(value.i) : static_cast<double>(value.i);
  }
  const auto read = [&](auto sample) {
    std::memcpy(&sample, static_cast<const std::uint8_t*>(value.p) + k * sizeof(sample),
                sizeof(sample));
    return static_cast<double>(sample);
  };
  return a.type == Type::k8u    ? read(Kel8u{})
         : a.type == Type::k16s ? read(Kel16s{})
         : a.type == Type::k32f ? read(Kel32f{})
                                : read(int{});
}

// Faults of a lower end: one above the upper end, which TestCall leaves room for.
void addRangeFaults(const TestCall& call, std::size_t i, std::vector<Fault>& faults) {
  const Argument& a = call.function.arguments[i];
  const std::size_t other = call.find(Role::kUpper);
  for (int k = 0; k < std::max(a.length, 1); ++k) {
    const double upper = numberAt(call.function.arguments[other], call.values[other], k);
    std::uint8_t sample[4];
    const auto store = [&](auto above) { std::memcpy(sample, &above, sizeof(above)); };
    if (a.type == Type::k8u) store(static_cast<Kel8u>(upper + 1));
    if (a.type == Type::k16s) store(static_cast<Kel16s>(upper + 1));
    if (a.type == Type::k32f) store(std::nextafter(static_cast<Kel32f>(upper), HUGE_VALF));
    Value bad{};
    if (a.length != 0) {
      bad.p = with(call.values[i], registry::bytesOf(a.type), a.length, k, sample);
    } else if (a.type == Type::k32f) {
      bad.f = std::nextafter(static_cast<Kel32f>(upper), HUGE_VALF);
    } else {
      bad.i = static_cast<std::int64_t>(upper + 1);
    }
    faults.push_back({std::string(a.name) + " above the upper end", i, bad});
  }
}

// How many pointers an argument's array holds, if it is one of pointers.
int pointersIn(const Argument& a) {
  if (registry::isImage(a.role)) return isPlanar(a.layout) ? usedChannels(a.layout) : 0;
  const bool arrays =
      a.role == Role::kCounts || a.role == Role::kLevels || a.role == Role::kLevelsOut;
  return arrays ? a.length : 0;
}

std::vector<Fault> faultsOf(const TestCall& call) {
  std::vector<Fault> faults;
  static constexpr int kBadOrders[][3] = {
      {3, 0, 0}, {0, -1, 0}, {0, 0, 3}, {INT_MIN, INT_MAX, 1}, {0, 1, -1}};
  for (std::size_t i = 0; i < call.function.arguments.size; ++i) {
    const Argument& a = call.function.arguments[i];
    const auto add = [&](const char* what, auto set) {
      Fault fault{std::string(a.name) + what, i, call.values[i]};
      set(fault.value);
      faults.push_back(fault);
    };
    if (isPointer(a)) add(" null", [](Value& v) { v.p = nullptr; });
    for (int k = 0; k < pointersIn(a); ++k) {
      add(" with a null", [&](Value& v) { v.p = withNull(v, pointersIn(a), k); });
    }
    if (a.role == Role::kStep) {
      for (const int bad : {0, -1, INT_MIN}) add(" bad", [&](Value& v) { v.i = bad; });
    }
    if (a.role == Role::kRegion) {
      for (const int bad : {0, -1, INT_MIN}) {
        add(" width bad", [&](Value& v) { v.size.width = bad; });
        add(" height bad", [&](Value& v) { v.size.height = bad; });
      }
    }
    static constexpr std::uint8_t kZero[8] = {};
    if (a.role == Role::kConstant && checks(call.function, Check::kDivisor)) {
      if (a.length == 0) add(" zero", [](Value& v) { v = Value{}; });
      for (int k = 0; k < a.length; ++k) {
        add(" with a zero",
            [&](Value& v) { v.p = with(v, registry::bytesOf(a.type), a.length, k, kZero); });
      }
    }
    if (a.role == Role::kLower) addRangeFaults(call, i, faults);
    if (a.role == Role::kTolerance) {
      for (const double bad : {-1e-30, -HUGE_VAL, std::nan("")}) {
        add(" bad", [&](Value& v) { v.f = bad; });
      }
    }
    if (a.role == Role::kCompareOp && checks(call.function, Check::kOperation)) {
      for (const int bad : {-1, 1, 2, 3, 5, INT_MIN}) add(" bad", [&](Value& v) { v.i = bad; });
    }
    if (a.role == Role::kLevelCount) {
      for (const int bad : {1, 0, INT_MIN}) {
        if (a.length == 0) add(" bad", [&](Value& v) { v.i = bad; });
        for (int k = 0; k < a.length; ++k)
          add(" with a bad one", [&](Value& v) { v.p = with(v, sizeof(bad), a.length, k, &bad); });
      }
    }
    if (a.role == Role::kOrder) {
      for (const auto& bad : kBadOrders) add(" bad", [&](Value& v) { v.p = bad; });
    }
  }
  return faults;
}

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

bool fails(const TestCall& call, const std::vector<Value>& values, Check check, bool lateValues) {
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
    case Check::kValues:
      return -8;
    case Check::kWidth:
    case Check::kArea:
    case Check::kSize:
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
      return -7;
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
    const std::vector<Value> good = call.values;
    const std::vector<Fault> faults = faultsOf(call);
    for (std::size_t i = 0; i < faults.size(); ++i) {
      for (std::size_t j = i; j < faults.size(); ++j) {
        if (j != i && faults[j].argument == faults[i].argument) continue;
        call.values = good;
        call.values[faults[i].argument] = faults[i].value;
        call.values[faults[j].argument] = faults[j].value;
        const KelStatus expected = expectedStatus(call, call.values);
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
