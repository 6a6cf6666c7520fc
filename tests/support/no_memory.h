// What happens when the heap is exhausted, for programs that link keli_no_memory.
#pragma once

namespace keli::test {

// While it lives, malloc returns null, but for the first calls if asked for.
class NoMemory {
 public:
  explicit NoMemory(int calls = 0);
  ~NoMemory();
  NoMemory(const NoMemory&) = delete;
  NoMemory& operator=(const NoMemory&) = delete;
};

template <class Call>
auto withoutMemory(const Call& call) {
  const NoMemory none;
  return call();
}

}  // namespace keli::test
