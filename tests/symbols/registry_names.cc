// Prints the names of the registry's functions, one a line.
#include <cstdio>

#include "registry/registry.h"

int main() {
  for (const keli::registry::Function& f : keli::registry::functions()) std::puts(f.name);
}
