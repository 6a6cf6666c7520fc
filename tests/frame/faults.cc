#include "frame/faults.h"

#include <climits>
#include <cmath>
#include <cstring>

namespace keli::test {

using registry::Argument;
using registry::Check;
using registry::isPointer;
using registry::Role;
using registry::Type;
using registry::Value;

namespace {

// What begins like a specification structure of no kind there is.
constexpr std::int32_t kOtherSpec = 99;

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

// Faults of sizes other than the region's, and of what must fit them.
void addSizeFaults(const TestCall& call, std::size_t i, std::vector<Fault>& faults) {
  static const std::vector<std::uint8_t> zeros(1024);
  const Argument& a = call.function.arguments[i];
  const auto add = [&](const char* what, auto set) {
    Fault fault{std::string(a.name) + what, i, call.values[i]};
    set(fault.value);
    faults.push_back(fault);
  };
  const int lower = checks(call.function, Check::kBoxSize) ? 1 : 0;
  for (const int bad : {lower, 0, -1, INT_MIN}) {
    if (a.role == Role::kSourceRegion || a.role == Role::kMaskSize) {
      add(" width bad", [&](Value& v) { v.size.width = bad; });
      add(" height bad", [&](Value& v) { v.size.height = bad; });
    }
    if (bad > 0 || a.role != Role::kSourceRect) continue;
    add(" width bad", [&](Value& v) { v.rect.width = bad; });
    add(" height bad", [&](Value& v) { v.rect.height = bad; });
    if (bad == 0) continue;
    add(" x bad", [&](Value& v) { v.rect.x = bad; });
    add(" y bad", [&](Value& v) { v.rect.y = bad; });
  }
  const Window& w = call.window();
  if (a.role == Role::kAnchor) {
    for (const int bad : {-1, INT_MIN, INT_MAX}) {
      add(" x bad", [&](Value& v) { v.point.x = bad; });
      add(" y bad", [&](Value& v) { v.point.y = bad; });
    }
    add(" x beyond", [&](Value& v) { v.point.x = w.mask.width; });
    add(" y beyond", [&](Value& v) { v.point.y = w.mask.height; });
  }
  if (a.role == Role::kSpec) add(" of another kind", [&](Value& v) { v.p = &kOtherSpec; });
  if (a.role == Role::kElement) add(" all zero", [&](Value& v) { v.p = zeros.data(); });
  if (a.role == Role::kTopBorder || a.role == Role::kLeftBorder) {
    for (const int bad : {-1, INT_MIN, INT_MAX, 1000}) add(" bad", [&](Value& v) { v.i = bad; });
  }
  if (a.role == Role::kStep && checks(call.function, Check::kRow)) {
    add(" short", [](Value& v) { --v.i; });
  }
}

// Faults of numbers that choose how something is done.
void addModeFaults(const TestCall& call, std::size_t i, std::vector<Fault>& faults) {
  const Argument& a = call.function.arguments[i];
  const auto add = [&](auto set) {
    Fault fault{std::string(a.name) + " bad", i, call.values[i]};
    set(fault.value);
    faults.push_back(fault);
  };
  const auto addAll = [&](Role role, std::initializer_list<int> bad) {
    for (const int value : bad) {
      if (a.role == role) add([&](Value& v) { v.i = value; });
    }
  };
  addAll(Role::kAxis, {-1, 3, INT_MIN});
  addAll(Role::kInterpolation, {0, 3, 5, 8, INT_MIN});
  addAll(Role::kBitOffset, {-1, 8, INT_MIN});
  addAll(Role::kNoise, {-1, 101, INT_MIN, INT_MAX});
  addAll(Role::kGrayLevels, {1, 0, 65537, INT_MIN, INT_MAX});
  if (a.role == Role::kGrayLevels && call.function.arguments[call.written()].type == Type::k8u)
    addAll(Role::kGrayLevels, {257});
  addAll(Role::kDither, {-1, 0, 4, 5, INT_MIN, INT_MAX});
  if (a.role == Role::kRangeMin) {
    const double most = call.values[call.find(Role::kRangeMax)].f;
    for (const double bad : {most, most + 1, std::nan("")}) add([&](Value& v) { v.f = bad; });
  }
  if (a.role == Role::kRangeMax) {
    for (const double bad : {-HUGE_VAL, std::nan("")}) add([&](Value& v) { v.f = bad; });
  }
}

}  // namespace

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

// How many pointers an argument's array holds, if it is one of pointers.
int pointersIn(const Argument& a) {
  if (registry::isImage(a.role)) return isPlanar(a.layout) ? storedChannels(a.layout) : 0;
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
    addSizeFaults(call, i, faults);
    addModeFaults(call, i, faults);
    if (a.role == Role::kOrder) {
      for (const auto& bad : kBadOrders) add(" bad", [&](Value& v) { v.p = bad; });
    }
  }
  return faults;
}

}  // namespace keli::test
