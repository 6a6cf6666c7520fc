// The order of argument checks, for every function of the registry: each argument made bad, alone
// and in pairs, gives the code that the order demands, and no byte is written.
#include <gtest/gtest.h>

#include <climits>
#include <cstring>

#include "support/test_call.h"

namespace keli::test {
namespace {

using registry::Argument;
using registry::Check;
using registry::Role;
using registry::Value;

bool isPointer(const Argument& a) {
  return registry::isImage(a.role) || a.length != 0 || a.role == Role::kStepOut;
}

struct Fault {
  std::string what;
  std::size_t argument;
  Value value;
};

// Arrays of planes of which one is null; kept for the run of the test.
const void* withNullPlane(const Value& planes, int count, int null) {
  static std::vector<std::unique_ptr<const void*[]>> kept;
  kept.push_back(std::make_unique<const void*[]>(4));
  for (int k = 0; k < count; ++k) {
    kept.back()[static_cast<std::size_t>(k)] =
        k == null ? nullptr : static_cast<const void* const*>(planes.p)[k];
  }
  return kept.back().get();
}

// Copies of constants of which one is zero; kept for the run of the test.
const void* withZero(const Value& constants, std::size_t sample, int count, int zero) {
  static std::vector<std::vector<std::uint8_t>> kept;
  const auto* from = static_cast<const std::uint8_t*>(constants.p);
  kept.emplace_back(from, from + sample * static_cast<std::size_t>(count));
  std::memset(kept.back().data() + sample * static_cast<std::size_t>(zero), 0, sample);
  return kept.back().data();
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
    if (registry::isImage(a.role) && isPlanar(a.layout)) {
      for (int k = 0; k < usedChannels(a.layout); ++k) {
        add(" with a null plane",
            [&](Value& v) { v.p = withNullPlane(v, usedChannels(a.layout), k); });
      }
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
    if (a.role == Role::kConstant && checksDivisor(call.function)) {
      if (a.length == 0) add(" zero", [](Value& v) { v = Value{}; });
      for (int k = 0; k < a.length; ++k) {
        add(" with a zero",
            [&](Value& v) { v.p = withZero(v, registry::bytesOf(a.type), a.length, k); });
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
    if (!registry::isImage(a.role) || !isPlanar(a.layout)) continue;
    for (int k = 0; k < usedChannels(a.layout); ++k) {
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
  }
  return 0;
}

KelStatus expectedStatus(const TestCall& call, const std::vector<Value>& values) {
  bool lateValues = false;
  for (const Check check : call.function.entry->checks) lateValues |= check == Check::kValues;
  for (const Check check : call.function.entry->checks) {
    if (fails(call, values, check, lateValues)) return codeOf(check);
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
