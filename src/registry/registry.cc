// Look-ups over the reflection data.
#include "registry/registry.h"

namespace keli::registry {
namespace {

struct TypeInfo {
  const char* name;
  std::size_t bytes;
};

constexpr TypeInfo kTypes[] = {{"", 0},    {"1u", 1},   {"8u", 1},   {"8s", 1},  {"16u", 2},
                               {"16s", 2}, {"32u", 4},  {"32s", 4},  {"64s", 8}, {"32f", 4},
                               {"64f", 8}, {"16sc", 4}, {"32sc", 8}, {"32fc", 8}};

constexpr const char* kLayouts[] = {"C1", "C2", "C3", "C4", "AC4", "P2", "P3", "P4", "AP4"};

}  // namespace

const Function* find(std::string_view name) {
  for (const Function& f : functions()) {
    if (name == f.name) return &f;
  }
  return nullptr;
}

const char* statusName(KelStatus status) {
  for (const Status& s : statuses()) {
    if (s.value == status) return s.name;
  }
  return "unknown status";
}

std::size_t bytesOf(Type type) { return kTypes[static_cast<int>(type)].bytes; }
const char* nameOf(Type type) { return kTypes[static_cast<int>(type)].name; }
const char* nameOf(Layout layout) { return kLayouts[static_cast<int>(layout)]; }

bool isImage(Role role) { return role <= Role::kMap; }

bool isWritten(Role role) {
  return role == Role::kDestination || role == Role::kDestinationChannel || role == Role::kInOut ||
         role == Role::kInOutWithin;
}

bool isBlock(const Function& f, std::size_t argument) {
  if (!isImage(f.arguments[argument].role)) return false;
  for (std::size_t i = argument + 1; i < f.arguments.size; ++i) {
    if (f.arguments[i].role == Role::kStep) return false;
    if (isImage(f.arguments[i].role)) break;
  }
  return true;
}

bool takesBlocks(const Function& f) {
  for (std::size_t i = 0; i < f.arguments.size; ++i) {
    if (isBlock(f, i)) return true;
  }
  return false;
}

bool makes(const Function& function, Check check) {
  bool array = false, overChannels = false, histograms = false;
  for (const Argument& a : function.arguments) {
    array |= isConstant(a.role) && a.length != 0;
    histograms |= a.role == Role::kCounts && a.length != 0;
    overChannels |= isImage(a.role) && (a.layout == Layout::C3 || a.layout == Layout::C4);
  }
  if (check == Check::kValues) return array;
  if (check == Check::kWidth || check == Check::kArea) return overChannels;
  if (check == Check::kChannels) return histograms;
  if (check == Check::kLevels) return !histograms;
  return true;
}

bool isConstant(Role role) {
  return role == Role::kConstant || role == Role::kShift || role == Role::kLower ||
         role == Role::kUpper;
}

bool isResult(Role role) {
  return role == Role::kResult || role == Role::kCounts || role == Role::kLevelsOut;
}

bool isPointer(const Argument& a) {
  return isImage(a.role) || a.length != 0 || isResult(a.role) || a.role == Role::kLevels ||
         a.role == Role::kElement || a.role == Role::kStepOut || a.role == Role::kSpec ||
         a.role == Role::kOwnedSpec || a.role == Role::kSpecOut || a.role == Role::kSizeOut;
}

}  // namespace keli::registry
