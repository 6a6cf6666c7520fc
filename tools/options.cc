// Command-line words to options and numbers.
#include "options.h"

#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "sample_type.h"

namespace keli::tool {
namespace {

// strtoll and strtod skip blanks and stop at the first stranger; a whole word must be a number.
template <class Parse>
auto parseWhole(const std::string& option, const std::string& word, const char* kind, Parse parse) {
  char* end = nullptr;
  errno = 0;
  auto number = parse(word.c_str(), &end);
  bool blank = word.empty() || std::isspace(static_cast<unsigned char>(word[0]));
  if (blank || *end != '\0' || end != word.c_str() + word.size()) {
    throw UsageError(option + ": '" + word + "' is not " + kind);
  }
  return number;
}

template <class T>
registry::Value parseNumber(const std::string& option, const std::string& word) {
  registry::Value value{};
  bool inRange;
  if constexpr (std::is_floating_point_v<T>) {
    value.f = parseWhole(option, word, "a number", std::strtod);
    bool overflowed = errno == ERANGE && std::isinf(value.f);
    inRange = !overflowed &&
              !(std::isfinite(value.f) && std::fabs(value.f) > std::numeric_limits<T>::max());
  } else {
    value.i = parseWhole(option, word, "an integer",
                         [](const char* s, char** end) { return std::strtoll(s, end, 10); });
    inRange = errno != ERANGE && value.i >= std::int64_t{std::numeric_limits<T>::min()} &&
              value.i <= std::int64_t{std::numeric_limits<T>::max()};
  }
  if (!inRange) throw UsageError(option + ": " + word + " is out of range");
  return value;
}

}  // namespace

std::vector<std::string> split(const std::string& text, char separator) {
  std::vector<std::string> parts(1);
  for (char c : text) {
    if (c == separator) {
      parts.emplace_back();
    } else {
      parts.back() += c;
    }
  }
  return parts;
}

const std::string* Options::find(const std::string& name) const {
  auto found = values.find(name);
  return found == values.end() ? nullptr : &found->second;
}

Options parseOptions(const std::vector<std::string>& words) {
  Options options;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string& word = words[i];
    if (word.size() < 2 || word[0] != '-') {
      options.files.push_back(word);
      continue;
    }
    if (i + 1 == words.size()) throw UsageError("option " + word + " needs a value");
    if (!options.values.emplace(word, words[++i]).second) {
      throw UsageError("option " + word + " is given twice");
    }
  }
  return options;
}

std::vector<registry::Value> parseNumbers(const std::string& option, const std::string& text,
                                          registry::Type type, std::size_t count, char separator) {
  std::vector<std::string> words = split(text, separator);
  if (count != 0 && words.size() != count) {
    throw UsageError(option + ": needs " + std::to_string(count) + " number(s), got '" + text +
                     "'");
  }
  std::vector<registry::Value> numbers;
  for (const std::string& word : words) {
    numbers.push_back(withSampleType(
        type, [&](auto sample) { return parseNumber<decltype(sample)>(option, word); }));
  }
  return numbers;
}

}  // namespace keli::tool
