// From a sample type's code in the reflection data to the C++ type.
#pragma once

#include <stdexcept>

#include "registry/registry.h"

namespace keli::tool {

inline bool isReal(registry::Type type) {
  return type != registry::Type::kNone && type < registry::Type::k16sc;
}

// Calls visit with a value of the sample type; only for real types.
template <class Visit>
auto withSampleType(registry::Type type, Visit visit) {
  using registry::Type;
  switch (type) {
    case Type::k8u:
      return visit(Kel8u{});
    case Type::k8s:
      return visit(Kel8s{});
    case Type::k16u:
      return visit(Kel16u{});
    case Type::k16s:
      return visit(Kel16s{});
    case Type::k32u:
      return visit(std::uint32_t{});
    case Type::k32s:
      return visit(Kel32s{});
    case Type::k64s:
      return visit(Kel64s{});
    case Type::k32f:
      return visit(Kel32f{});
    case Type::k64f:
      return visit(Kel64f{});
    default:
      throw std::logic_error("not a real sample type");
  }
}

}  // namespace keli::tool
