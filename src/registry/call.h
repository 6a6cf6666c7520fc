// Calls a function of any signature with an array of values: one instantiation for each signature.
#pragma once

#include <type_traits>
#include <utility>

#include "registry/registry.h"

namespace keli::registry {

template <class T>
T valueAs(const Value& v) {
  if constexpr (std::is_pointer_v<T>) {
    return reinterpret_cast<T>(const_cast<void*>(v.p));
  } else if constexpr (std::is_integral_v<T>) {
    return static_cast<T>(v.i);
  } else if constexpr (std::is_floating_point_v<T>) {
    return static_cast<T>(v.f);
  } else if constexpr (std::is_same_v<T, KeliSize>) {
    return v.size;
  } else if constexpr (std::is_same_v<T, KeliRect>) {
    return v.rect;
  } else if constexpr (std::is_same_v<T, KeliPoint>) {
    return v.point;
  } else if constexpr (std::is_same_v<T, Kel16sc>) {
    return v.c16;
  } else if constexpr (std::is_same_v<T, Kel32sc>) {
    return v.c32;
  } else {
    static_assert(std::is_same_v<T, Kel32fc>, "an argument type that Value does not hold");
    return v.cf;
  }
}

template <class R, class... A, std::size_t... I>
Result invokeWith(R (*function)(A...), [[maybe_unused]] const Value* values,
                  std::index_sequence<I...>) {
  if constexpr (std::is_void_v<R>) {
    function(valueAs<A>(values[I])...);
    return {kelStatusOk, nullptr};
  } else if constexpr (std::is_pointer_v<R>) {
    return {kelStatusOk, function(valueAs<A>(values[I])...)};
  } else {
    return {function(valueAs<A>(values[I])...), nullptr};
  }
}

template <class R, class... A>
Call makeCall(R (*function)(A...)) {
  return {[](void (*f)(), const Value* values) {
            return invokeWith(reinterpret_cast<R (*)(A...)>(f), values,
                              std::index_sequence_for<A...>{});
          },
          reinterpret_cast<void (*)()>(function)};
}

}  // namespace keli::registry
