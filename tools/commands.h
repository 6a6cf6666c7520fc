// The tool's commands.
#pragma once

#include <string>
#include <vector>

namespace keli::tool {

// words: the command line without the program's name. Returns the exit code; throws UsageError.
int runCommand(const std::vector<std::string>& words);

}  // namespace keli::tool
