#include "support/samples.h"

#include <cstring>
#include <limits>

namespace keli::test {
namespace {

using registry::Type;

template <class T>
void fillIntegers(std::uint8_t* p, std::size_t count, Random& random) {
  constexpr T kExtremes[] = {std::numeric_limits<T>::min(), std::numeric_limits<T>::max(), T{0},
                             T{1}};
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint64_t r = random();
    const T v = (r & 7) == 0 ? kExtremes[(r >> 3) & 3] : static_cast<T>(r >> 5);
    std::memcpy(p + i * sizeof(T), &v, sizeof(T));
  }
}

template <class T>
void fillFloats(std::uint8_t* p, std::size_t count, Random& random) {
  using L = std::numeric_limits<T>;
  const T kSpecials[] = {T{0},           -T{0},           L::infinity(), -L::infinity(),
                         L::quiet_NaN(), L::denorm_min(), L::max(),      -L::max()};
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint64_t r = random();
    const T v = (r & 15) == 0 ? kSpecials[(r >> 4) & 7]
                              : static_cast<T>(static_cast<std::int32_t>(r >> 20)) / 4096;
    std::memcpy(p + i * sizeof(T), &v, sizeof(T));
  }
}

}  // namespace

void fillSamples(Type type, std::uint8_t* p, std::size_t count, Random& random) {
  switch (type) {
    case Type::k8u:
      return fillIntegers<Kel8u>(p, count, random);
    case Type::k8s:
      return fillIntegers<Kel8s>(p, count, random);
    case Type::k16u:
      return fillIntegers<Kel16u>(p, count, random);
    case Type::k16s:
      return fillIntegers<Kel16s>(p, count, random);
    case Type::k32u:
      return fillIntegers<std::uint32_t>(p, count, random);
    case Type::k32s:
      return fillIntegers<Kel32s>(p, count, random);
    case Type::k64s:
      return fillIntegers<Kel64s>(p, count, random);
    case Type::k32f:
      return fillFloats<Kel32f>(p, count, random);
    case Type::k64f:
      return fillFloats<Kel64f>(p, count, random);
    case Type::k16sc:
      return fillIntegers<Kel16s>(p, 2 * count, random);
    case Type::k32sc:
      return fillIntegers<Kel32s>(p, 2 * count, random);
    case Type::k32fc:
      return fillFloats<Kel32f>(p, 2 * count, random);
    case Type::k1u:
      return fillIntegers<Kel8u>(p, count, random);
    case Type::kNone:
      return;
  }
}

}  // namespace keli::test
