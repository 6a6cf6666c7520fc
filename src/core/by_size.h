// Kernels that only move bytes differ by the bytes of a sample and not by its type.
#pragma once

#include <cstdint>

namespace keli {

// The kernels for samples of 1, 2 and 4 bytes.
template <class Kernel>
struct BySize {
  Kernel of[3];

  template <class T>
  Kernel get() const {
    static_assert(sizeof(T) == 1 || sizeof(T) == 2 || sizeof(T) == 4);
    return of[sizeof(T) / 2];
  }
};

}  // namespace keli

// Initialises a BySize from a template over the type of a sample, with further template arguments.
#define KELI_BY_SIZE(kernel, ...)                           \
  {                                                         \
    {                                                       \
      kernel<std::uint8_t __VA_OPT__(, ) __VA_ARGS__>,      \
          kernel<std::uint16_t __VA_OPT__(, ) __VA_ARGS__>, \
          kernel<std::uint32_t __VA_OPT__(, ) __VA_ARGS__>  \
    }                                                       \
  }

// Initialises an array of 17 kernels by the bytes of a pixel from a template over them.
#define KELI_BY_PIXEL(kernel)                                                                    \
  {                                                                                              \
    nullptr, kernel<1>, kernel<2>, kernel<3>, kernel<4>, nullptr, kernel<6>, nullptr, kernel<8>, \
        nullptr, nullptr, nullptr, kernel<12>, nullptr, nullptr, nullptr, kernel<16>             \
  }
