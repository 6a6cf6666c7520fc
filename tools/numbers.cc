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
constexpr int kMostSide = 4096;  // of masks, likewise

struct Word {
  const char* name;
  int value;
};

// The words for an argument of a role, in their order, and what is meant without any.
struct Words {
  Role role;
  std::vector<Word> words;
  int otherwise;
};

const Words* wordsFor(Role role) {
  static const std::vector<Words> kAll = {
      {Role::kCompareOp,
       {{"less", kelCmpLess},
        {"lessEq", kelCmpLessEq},
        {"eq", kelCmpEq},
        {"greaterEq", kelCmpGreaterEq},
        {"greater", kelCmpGreater}},
       kelCmpLess},
      {Role::kHint,
       {{"none", kelAlgHintNone}, {"fast", kelAlgHintFast}, {"accurate", kelAlgHintAccurate}},
       kelAlgHintFast},
      {Role::kAxis,
       {{"horizontal", kelAxisHorizontal}, {"vertical", kelAxisVertical}, {"both", kelAxisBoth}},
       kelAxisVertical},
      {Role::kInterpolation,
       {{"nearest", kelInterpolationNearest},
        {"linear", kelInterpolationLinear},
        {"cubic", kelInterpolationCubic}},
       kelInterpolationLinear},
      {Role::kRoundMode, {{"zero", kelRoundZero}, {"nearest", kelRoundNearest}}, kelRoundNearest},
      {Role::kDither,
       {{"none", kelDitherNone},
        {"floydSteinberg", kelDitherFloydSteinberg},
        {"jarvis", kelDitherJarvisJudiceNinke},
        {"stucki", kelDitherStucki},
        {"bayer", kelDitherBayer}},
       kelDitherFloydSteinberg}};
  for (const Words& words : kAll) {
    if (words.role == role) return &words;
  }
  return nullptr;
}

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
  } else if (wordsFor(a.role)) {
    value.i = wordOf(a);
  } else if (a.role == Role::kMaskSize) {
    value.size = maskSize();
  } else if (a.role == Role::kAnchor) {
    value.point = anchor();
  } else if (a.role == Role::kElement) {
    value.p = element(a);
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
  const Words& known = *wordsFor(a.role);
  if (!text) return known.otherwise;
  std::string names;
  for (const Word& word : known.words) {
    if (*text == word.name) return word.value;
    names += std::string(word.name) + ", ";
  }
  if (text->find_first_not_of("-0123456789") != std::string::npos) {
    throw UsageError(option + ": '" + *text + "' is none of " + names + "and no integer");
  }
  std::int64_t number = parseNumbers(option, *text, Type::k32s, 1)[0].i;
  bool comparison = a.role == Role::kCompareOp;
  if (comparison && (number < kelCmpLess || number > kelCmpGreater)) {
    throw UsageError(option + ": " + *text + " is out of range");
  }
  return number;
}

KeliSize Numbers::maskSize() const {
  const std::string* text = options_.find("--maskSize");
  if (!text) return {3, 3};
  std::vector<Value> n = parseNumbers("--maskSize", *text, Type::k32s, 2, 'x');
  if (n[0].i > kMostSide || n[1].i > kMostSide) {
    throw UsageError("--maskSize: " + *text + " is more than " + std::to_string(kMostSide));
  }
  return {static_cast<int>(n[0].i), static_cast<int>(n[1].i)};
}

KeliPoint Numbers::anchor() const {
  const std::string* text = options_.find("--anchor");
  KeliSize mask = maskSize();
  if (!text) return {mask.width / 2, mask.height / 2};
  std::vector<Value> n = parseNumbers("--anchor", *text, Type::k32s, 2);
  return {static_cast<int>(n[0].i), static_cast<int>(n[1].i)};
}

// The bytes of a mask in the shape that a word tells.
const void* Numbers::element(const Argument& a) {
  const std::string* text = options_.find(optionOf(a));
  std::string shape = text ? *text : "ellipse";
  if (shape != "ellipse" && shape != "cross" && shape != "rectangle") {
    throw UsageError(optionOf(a) + ": '" + shape + "' is none of ellipse, cross, rectangle");
  }
  KeliSize mask = maskSize();
  std::vector<unsigned char>& bytes = arrays_.emplace_back();
  for (int y = 0; y < mask.height; ++y) {
    for (int x = 0; x < mask.width; ++x) {
      double u = (2.0 * x + 1) / mask.width - 1, v = (2.0 * y + 1) / mask.height - 1;
      bool onCross = x == mask.width / 2 || y == mask.height / 2;
      bytes.push_back(shape == "ellipse" ? u * u + v * v <= 1 : shape == "cross" ? onCross : true);
    }
  }
  if (bytes.empty()) bytes.push_back(0);
  return bytes.data();
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
