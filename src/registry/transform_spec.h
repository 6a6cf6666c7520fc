// The specification that a transform of the registry takes, for images of one size: made and
// released by the functions that belong to it.
#pragma once

#include "registry/registry.h"

namespace keli::registry {

class TransformSpec {
 public:
  // Whether a function takes a specification, and whether its sides are powers of two.
  static bool isTakenBy(const Function& function);
  static bool needsPowersOfTwo(const Function& function);

  // flag: how results are divided. Of no structure if it cannot be made.
  TransformSpec(const Function& transform, KeliSize size, int flag);
  ~TransformSpec();
  TransformSpec(const TransformSpec&) = delete;
  TransformSpec& operator=(const TransformSpec&) = delete;

  const void* get() const { return spec_; }
  int scratchBytes() const { return scratchBytes_; }

 private:
  const Function* free_;
  const void* spec_ = nullptr;
  int scratchBytes_ = 0;
};

}  // namespace keli::registry
