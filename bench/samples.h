// Samples of any type by their registry code: storing and reading one as a double.
#pragma once

#include <cstdint>
#include <cstring>

#include "choices.h"
#include "registry/registry.h"

namespace keli::bench {

// body(T{}) with the component type of a sample type.
template <class Body>
auto withComponent(registry::Type type, const Body& body) {
  using registry::Type;
  switch (type) {
    case Type::k8s:
      return body(std::int8_t{});
    case Type::k16u:
      return body(std::uint16_t{});
    case Type::k16s:
    case Type::k16sc:
      return body(std::int16_t{});
    case Type::k32u:
      return body(std::uint32_t{});
    case Type::k32s:
    case Type::k32sc:
      return body(std::int32_t{});
    case Type::k64s:
      return body(std::int64_t{});
    case Type::k32f:
    case Type::k32fc:
      return body(float{});
    case Type::k64f:
      return body(double{});
    default:
      return body(std::uint8_t{});
  }
}

inline bool isComplex(registry::Type type) {
  using registry::Type;
  return type == Type::k16sc || type == Type::k32sc || type == Type::k32fc;
}

inline bool isFloating(registry::Type type) {
  using registry::Type;
  return type == Type::k32f || type == Type::k64f || type == Type::k32fc;
}

// Sample number index of an array; of a complex sample the imaginary part is 0 when stored.
inline void storeSample(registry::Type type, void* array, std::size_t index, double value) {
  withComponent(type, [&](auto zero) {
    decltype(zero) parts[2] = {static_cast<decltype(zero)>(value), zero};
    const std::size_t bytes = registry::bytesOf(type);
    std::memcpy(static_cast<std::uint8_t*>(array) + index * bytes, parts, bytes);
  });
}

inline double loadComponent(registry::Type type, const void* array, std::size_t index) {
  return withComponent(type, [&](auto component) {
    std::memcpy(&component, static_cast<const std::uint8_t*>(array) + index * sizeof(component),
                sizeof(component));
    return static_cast<double>(component);
  });
}

// The ends of the values that samples take, the upper one excluded.
inline double leastSample(registry::Type type) { return type == registry::Type::k16s ? -32768 : 0; }
inline double mostSample(registry::Type type, const Choices& choices) {
  return type == registry::Type::k16s ? 32768 : isFloating(type) ? choices.most : 256;
}

}  // namespace keli::bench
