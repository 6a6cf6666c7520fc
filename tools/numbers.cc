// From options to numbers in memory, and from memory to printed results.
#include "numbers.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "sample_type.h"

namespace keli::tool {

using registry::Argument;
using registry::Function;
using registry::Role;
using registry::Type;
using registry::Value;

namespace {

// More levels than this are refused: their arrays must not exhaust the memory.
constexpr std::int64_t kMostLevels = 1 << 20;

struct Word {
  const char* name;
  int value;
};
constexpr Word kComparisons[] = {{"less", kelCmpLess},
                                 {"lessEq", kelCmpLessEq},
                                 {"eq", kelCmpEq},
                                 {"greaterEq", kelCmpGreaterEq},
                                 {"greater", kelCmpGreater}};
constexpr Word kHints[] = {
    {"none", kelAlgHintNone}, {"fast", kelAlgHintFast}, {"accurate", kelAlgHintAccurate}};

// Parameters without a sample type are C ints.
Type numberType(const Argument& a) { return a.type == Type::kNone ? Type::k32s : a.type; }

std::string optionOf(const Argument& a) { return "--" + std::string(a.name); }

std::size_t channelsOf(const Argument& a) { return std::max(a.length, 1); }

void requireChannels(const std::string& option, const std::string& text, std::size_t got,
                     std::size_t channels) {
  if (got == channels) return;
  std::string each = channels > 1 ? " for all channels or " + std::to_string(channels) : "";
  throw UsageError(option + ": needs 1" + each + ", got '" + text + "'");
}

}  // namespace

Numbers::Numbers(const Function& function, const Options& options)
    : function_(function), options_(options), outputs_(function.arguments.size) {
  for (const Argument& a : function.arguments) {
    if (a.role == Role::kLevels) readLevels(a);
  }
  for (const Argument& a : function.arguments) {
    if (a.role == Role::kLevelCount && levels_.empty()) countLevels(a);
  }
}

void Numbers::countLevels(const Argument& a) {
  for (const Value& n : onePerChannel(a)) {
    if (n.i > kMostLevels) {
      throw UsageError(optionOf(a) + ": " + std::to_string(n.i) + " is more than " +
                       std::to_string(kMostLevels));
    }
    levelCounts_.push_back(static_cast<int>(n.i));
  }
}

void Numbers::readLevels(const Argument& a) {
  std::string option = optionOf(a);
  const std::string& text = *options_.find(option);
  std::size_t channels = channelsOf(a);
  std::vector<std::string> lists = split(text, ';');
  if (lists.size() == 1) lists.resize(channels, lists[0]);
  requireChannels(option, text, lists.size(), channels);
  for (const std::string& list : lists) {
    levels_.push_back(parseNumbers(option, list, a.type, 0));
    levelCounts_.push_back(static_cast<int>(levels_.back().size()));
  }
}

Value Numbers::valueOf(std::size_t i) {
  const Argument& a = function_.arguments[i];
  Value value{};
  if (registry::isResult(a.role) || a.role == Role::kLevels) {
    value.p = arraysFor(i);
  } else if (a.role == Role::kLevelCount || a.role == Role::kLevelBound) {
    value = perChannel(a);
  } else if (a.role == Role::kCompareOp || a.role == Role::kHint) {
    value.i = wordOf(a);
  } else {
    value = numbersOf(a);
  }
  return value;
}

// One number for every channel of an argument, given once or for each.
std::vector<Value> Numbers::onePerChannel(const Argument& a) const {
  std::string option = optionOf(a);
  const std::string& text = *options_.find(option);
  std::size_t channels = channelsOf(a);
  std::vector<Value> numbers = parseNumbers(option, text, Type::k32s, 0);
  if (numbers.size() == 1) numbers.resize(channels, numbers[0]);
  requireChannels(option, text, numbers.size(), channels);
  return numbers;
}

Value Numbers::perChannel(const Argument& a) {
  std::vector<Value> numbers;
  if (a.role == Role::kLevelCount) {
    for (int n : levelCounts_) {
      Value value{};
      value.i = n;
      numbers.push_back(value);
    }
  } else {
    numbers = onePerChannel(a);
  }
  return a.length ? inMemory(Type::k32s, numbers) : numbers[0];
}

std::int64_t Numbers::wordOf(const Argument& a) const {
  std::string option = optionOf(a);
  const std::string* text = options_.find(option);
  if (!text) return kelAlgHintFast;
  std::string known;
  const auto look = [&](const auto& words) {
    for (const Word& word : words) {
      if (*text == word.name) return &word;
      known += std::string(word.name) + ", ";
    }
    return static_cast<const Word*>(nullptr);
  };
  bool comparison = a.role == Role::kCompareOp;
  const Word* word = comparison ? look(kComparisons) : look(kHints);
  if (word) return word->value;
  if (text->find_first_not_of("-0123456789") != std::string::npos) {
    throw UsageError(option + ": '" + *text + "' is none of " + known + "and no integer");
  }
  std::int64_t number = parseNumbers(option, *text, Type::k32s, 1)[0].i;
  if (comparison && (number < kelCmpLess || number > kelCmpGreater)) {
    throw UsageError(option + ": " + *text + " is out of range");
  }
  return number;
}

// A number, or an array of them in memory that lives until the call.
Value Numbers::numbersOf(const Argument& a) {
  std::string option = optionOf(a);
  std::vector<Value> numbers =
      parseNumbers(option, *options_.find(option), numberType(a), a.length ? a.length : 1);
  return a.length ? inMemory(numberType(a), numbers) : numbers[0];
}

Value Numbers::inMemory(Type type, const std::vector<Value>& numbers) {
  Value value{};
  withSampleType(type, [&](auto sample) {
    std::vector<unsigned char>& bytes = arrays_.emplace_back();
    for (const Value& number : numbers) {
      if constexpr (std::is_floating_point_v<decltype(sample)>) {
        sample = static_cast<decltype(sample)>(number.f);
      } else {
        sample = static_cast<decltype(sample)>(number.i);
      }
      const auto* begin = reinterpret_cast<const unsigned char*>(&sample);
      bytes.insert(bytes.end(), begin, begin + sizeof sample);
    }
    value.p = bytes.data();
  });
  return value;
}

const void* Numbers::newArray(std::size_t bytes) { return arrays_.emplace_back(bytes).data(); }

// Memory for a result, or for the histograms or levels of all channels.
const void* Numbers::arraysFor(std::size_t i) {
  const Argument& a = function_.arguments[i];
  std::vector<const void*>& arrays = outputs_[i];
  if (a.role == Role::kResult) {
    arrays.push_back(newArray(registry::bytesOf(a.type) * channelsOf(a)));
    return arrays[0];
  }
  for (std::size_t k = 0; k < levelCounts_.size(); ++k) {
    // Nothing is written where there are too few levels.
    std::size_t count = static_cast<std::size_t>(std::max(levelCounts_[k], 1));
    arrays.push_back(a.role == Role::kLevels ? inMemory(a.type, levels_[k]).p
                                             : newArray(registry::bytesOf(a.type) * count));
  }
  return a.length ? static_cast<const void*>(arrays.data()) : arrays[0];
}

std::vector<Histogram> Numbers::histograms() const {
  std::vector<Histogram> all(levelCounts_.size());
  for (std::size_t i = 0; i < outputs_.size(); ++i) {
    const Argument& a = function_.arguments[i];
    bool levels = a.role == Role::kLevels || a.role == Role::kLevelsOut;
    if (!levels && a.role != Role::kCounts) continue;
    for (std::size_t k = 0; k < all.size(); ++k) {
      std::size_t count = static_cast<std::size_t>(levelCounts_[k]);
      if (levels) {
        for (std::size_t j = 0; j < count; ++j)
          all[k].levels.push_back(numberText(a.type, outputs_[i][k], j));
      } else {
        all[k].counts.resize(count - 1);
        std::memcpy(all[k].counts.data(), outputs_[i][k], (count - 1) * sizeof(int));
      }
    }
  }
  return all;
}

void Numbers::print(bool withHistograms) const {
  for (std::size_t i = 0; i < outputs_.size(); ++i) {
    const Argument& a = function_.arguments[i];
    if (a.role == Role::kCounts && withHistograms) printHistograms(a.name, histograms());
    if (a.role != Role::kResult) continue;
    std::string text;
    for (std::size_t k = 0; k < channelsOf(a); ++k)
      text += (k ? ", " : "") + numberText(a.type, outputs_[i][0], k);
    std::printf("%s: %s\n", a.name, text.c_str());
  }
}

}  // namespace keli::tool
