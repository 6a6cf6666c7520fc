// list, info, run, version and help.
#include "commands.h"

#include <fnmatch.h>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <sstream>

#include "options.h"
#include "registry/registry.h"
#include "run.h"

namespace keli::tool {
namespace {

using registry::Argument;
using registry::Function;
using Words = std::vector<std::string>;

constexpr char kHelp[] =
    R"(keli list [PATTERN]        the functions whose name contains or globs PATTERN
keli info NAME             what a function does, its arguments and checks
keli run NAME [IN.png ...] [-o OUT.png] [OPTIONS]
                           calls a function on images; one input file for each source, in order;
                           prints its results, or writes its image, or draws its histograms
keli version               the library's version record
keli help                  this text

Options of run, as far as the function has such an argument:
  --dst FILE               initial content of the destination (else zero)
  --size WxH               size of the destination when there is neither an input nor --dst, or
                           when it has a size of its own
  --roi X,Y,W,H            processes this part of all images (else all of the first)
  --mask FILE              selects the pixels whose gray value is 128 or more
  --srcChannel N, --dstChannel N
                           the channel that takes part, from 0 (default)
  --cmpOp less|lessEq|eq|greaterEq|greater, --hint fast|accurate
  --pLevels 0,64,256       levels of a histogram; with ';' between those of the channels
  --nLevels 5, --lowerLevel 0, --upperLevel 256
                           even levels, for all channels or 5,3,9 for each
  --maskSize 7x7, --anchor 3,3, --pMask ellipse|cross|rectangle
                           a neighbourhood; what it needs around the picture is repeated from there
  --flip horizontal|vertical|both, --interpolation nearest|linear|cubic,
  --roundMode nearest|zero
  --map rotate:DEGREES|wave:AMPLITUDE:LENGTH
                           where a remapped image takes its pixels from
  --value 1,2,3, --dstOrder 2,1,0, --scaleFactor 1, ...
                           any other argument by its name

Exit codes: 0 done, 1 the function returned an error, 2 a mistake in the command line or a file.
)";

std::string lower(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

std::size_t editDistance(const std::string& a, const std::string& b) {
  std::vector<std::size_t> row(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); ++j) row[j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      std::size_t changed = diagonal + (a[i - 1] != b[j - 1]);
      diagonal = row[j];
      row[j] = std::min({row[j] + 1, row[j - 1] + 1, changed});
    }
  }
  return row.back();
}

// Up to five names, nearest first; none when even the nearest shares little with the name.
std::string nearMatches(const std::string& name) {
  std::vector<std::pair<std::size_t, const char*>> near;
  for (const Function& f : registry::functions()) {
    std::size_t distance = editDistance(lower(name), lower(f.name));
    if (distance <= std::max<std::size_t>(4, name.size() / 3)) near.emplace_back(distance, f.name);
  }
  std::stable_sort(near.begin(), near.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  std::string text;
  for (std::size_t i = 0; i < std::min<std::size_t>(near.size(), 5); ++i) {
    text += (i ? ", " : "; near matches: ") + std::string(near[i].second);
  }
  return text;
}

const Function& require(const std::string& name) {
  const Function* function = registry::find(name);
  if (!function) throw UsageError("unknown function '" + name + "'" + nearMatches(name));
  return *function;
}

int list(const Words& words) {
  std::string pattern = words.empty() ? "" : lower(words[0]);
  bool glob = pattern.find_first_of("*?[") != std::string::npos;
  int found = 0;
  for (const Function& f : registry::functions()) {
    std::string name = lower(f.name);
    bool matches = glob ? fnmatch(pattern.c_str(), name.c_str(), 0) == 0
                        : name.find(pattern) != std::string::npos;
    if (!matches) continue;
    std::puts(f.name);
    ++found;
  }
  if (!found) throw UsageError("no function matches '" + words[0] + "'");
  std::printf("%d of %zu functions\n", found, registry::functions().size);
  return 0;
}

void printWrapped(const std::string& text) {
  std::istringstream in(text);
  std::string word, line;
  while (in >> word) {
    if (!line.empty() && line.size() + 1 + word.size() > 96) {
      std::puts(line.c_str());
      line.clear();
    }
    line += (line.empty() ? "" : " ") + word;
  }
  if (!line.empty()) std::puts(line.c_str());
}

void printArgument(const Argument& a) {
  std::printf("  %-14s %s", a.name, registry::nameOf(a.role));
  if (a.type != registry::Type::kNone) std::printf(" %s", registry::nameOf(a.type));
  if (registry::isImage(a.role)) {
    std::printf(" %s", registry::nameOf(a.layout));
  } else if (a.length) {
    std::printf(" [%d]", a.length);
  }
  std::printf("\n");
}

void printChecks(const Function& f) {
  int number = 0;
  for (registry::Check check : f.entry->checks) {
    if (!registry::makes(f, check)) continue;
    registry::CheckInfo info = registry::about(check);
    if (!number) std::printf("\nchecks, in order:\n");
    std::printf("  %d. ", ++number);
    if (info.status != kelStatusOk) {
      std::printf("%s (%d) if ", registry::statusName(info.status), static_cast<int>(info.status));
    }
    std::printf("%s\n", info.text);
  }
}

int info(const Words& words) {
  const Function& f = require(words[0]);
  std::printf("%s;\n\n%s\n", f.prototype, f.entry->brief);
  if (*f.entry->formula) std::printf("\n    %s\n", f.entry->formula);
  if (*f.entry->text) std::printf("\n");
  printWrapped(f.entry->text);
  if (f.arguments.size) std::printf("\narguments:\n");
  for (const Argument& a : f.arguments) printArgument(a);
  printChecks(f);
  return 0;
}

int run(const Words& words) {
  return runFunction(require(words[0]), Words(words.begin() + 1, words.end()));
}

int version(const Words&) {
  const KelLibraryVersion& v = *keliGetLibVersion();
  std::printf("%d.%d.%d.%d\n", v.major, v.minor, v.majorBuild, v.build);
  std::printf("target %.4s\nname %s\nversion %s\nbuild date %s\n", v.targetCpu, v.Name, v.Version,
              v.BuildDate);
  return 0;
}

int help(const Words&) {
  std::fputs(kHelp, stdout);
  return 0;
}

struct Command {
  const char* name;
  std::size_t minWords, maxWords;
  int (*call)(const Words&);
};

constexpr Command kCommands[] = {
    {"list", 0, 1, list},       {"info", 1, 1, info}, {"run", 1, 1000, run},
    {"version", 0, 0, version}, {"help", 0, 0, help}, {"--help", 0, 0, help},
};

}  // namespace

int runCommand(const Words& words) {
  if (words.empty()) throw UsageError("no command; 'keli help' lists them");
  for (const Command& command : kCommands) {
    if (words[0] != command.name) continue;
    Words rest(words.begin() + 1, words.end());
    if (rest.size() < command.minWords) throw UsageError(words[0] + " needs a function's name");
    if (rest.size() > command.maxWords) {
      throw UsageError(words[0] + ": unexpected '" + rest[command.maxWords] + "'");
    }
    return command.call(rest);
  }
  throw UsageError("unknown command '" + words[0] + "'; 'keli help' lists them");
}

}  // namespace keli::tool
