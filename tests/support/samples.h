// Random samples of any type.
#pragma once

#include "registry/registry.h"
#include "support/arena.h"

namespace keli::test {

// Every now and then an extreme or special one.
void fillSamples(registry::Type type, std::uint8_t* p, std::size_t count, Random& random);

}  // namespace keli::test
