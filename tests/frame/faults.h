// Arguments made bad: all ways in which the arguments of a legal call can be wrong, one at a time.
#pragma once

#include <string>
#include <vector>

#include "support/test_call.h"

namespace keli::test {

struct Fault {
  std::string what;
  std::size_t argument;
  registry::Value value;
};

std::vector<Fault> faultsOf(const TestCall& call);

// The number of channel k in an argument, as a double.
double numberAt(const registry::Argument& a, const registry::Value& value, int k);

// How many pointers an argument's array holds, if it is one of pointers.
int pointersIn(const registry::Argument& a);

}  // namespace keli::test
