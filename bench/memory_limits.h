// The fastest ways of moving, filling and reading memory that the functions are measured against.
#pragma once

#include <functional>
#include <vector>

#include "frame.h"

namespace keli::bench {

// What a function is bound by at best.
enum class Limit {
  kMove,  // reading the sources and writing the destination; without a source, rewriting it in
          // place
  kFill,  // writing the destination
  kRead,  // reading the sources
  kFold,  // reading the sources and writing a destination that is smaller by a whole factor
};

using Work = std::function<void()>;

struct LimitVariant {
  const char* name;
  Work work;
};

// Every way of doing what bounds a call with these arguments, over the call's own images. When
// source and destination differ in size, a move is of the larger of the two sizes: between the
// image of that size and a scratch block on the other side.
std::vector<LimitVariant> limitVariants(Limit limit, const Frame& frame);

}  // namespace keli::bench
