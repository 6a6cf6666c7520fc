// keli: calls the library's functions by name on image files. Mistakes end with one line on stderr
// and exit code 2.
#include <cstdio>
#include <exception>

#include "commands.h"

int main(int argc, char** argv) {
  try {
    int code = keli::tool::runCommand({argv + 1, argv + argc});
    if (std::fflush(stdout) == 0) return code;
    std::perror("keli: standard output");
  } catch (const std::bad_alloc&) {
    std::fputs("keli: not enough memory\n", stderr);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "keli: %s\n", error.what());
  }
  return 2;
}
