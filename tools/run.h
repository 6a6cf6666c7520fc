// Calls a function of the library on image files.
#pragma once

#include <string>
#include <vector>

#include "registry/registry.h"

namespace keli::tool {

// words: the command line after the function's name. Returns the exit code: 0 for a status that is
// no error, 1 for an error; throws UsageError.
int runFunction(const registry::Function& function, const std::vector<std::string>& words);

}  // namespace keli::tool
