// The words of a command line: files, options and numbers, and how mistakes in them are reported.
#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "registry/registry.h"

namespace keli::tool {

// A mistake of the caller: one line for stderr, exit code 2.
struct UsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

struct Options {
  std::vector<std::string> files;
  std::map<std::string, std::string> values;  // by option name with its dashes

  const std::string* find(const std::string& name) const;
};

// Every option takes one value; what starts with no dash is a file.
Options parseOptions(const std::vector<std::string>& words);

std::vector<std::string> split(const std::string& text, char separator);

// Numbers with a separator between them: exactly `count`, or any number of them if it is 0, each
// within the type's range.
// `option` is named in messages. Integers come back as i, floating samples as f.
std::vector<registry::Value> parseNumbers(const std::string& option, const std::string& text,
                                          registry::Type type, std::size_t count,
                                          char separator = ',');

}  // namespace keli::tool
