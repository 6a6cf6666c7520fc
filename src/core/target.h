// Run-time choice of the SIMD target: made once for the process, looked up once for each call.
//
// A family's row kernels stand in a struct of function pointers (its "rows"), compiled once for
// every target. KELI_SELECT_ROWS makes the table of those structs, best target first; a target that
// a file does not compile takes the next lower one's, so files may differ in the targets they
// offer.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>

namespace keli {

// Position in every table of rows, best target first; -1 until chosen.
extern std::atomic<int> gTarget;

// Finds the best target of this processor, stores and returns its position.
int chooseTarget();

// For tests: uses the best of the targets in mask (bits of hwy's HWY_* constants) that this
// processor has and returns its bit. Not to be called while another thread is inside the library.
std::int64_t limitTargets(std::int64_t mask);

// Bits of the targets that this processor has, the scalar one included.
std::int64_t supportedTargets();

inline int targetPosition() {
  const int position = gTarget.load(std::memory_order_relaxed);
  return __builtin_expect(position >= 0, 1) ? position : chooseTarget();
}

template <class Rows, std::size_t kTargets>
struct RowsTable {
  const Rows* byTarget[kTargets];

  constexpr RowsTable(const Rows* const (&compiled)[kTargets]) : byTarget{} {
    const Rows* lower = nullptr;
    for (std::size_t i = kTargets; i-- > 0;) {
      if (compiled[i] != nullptr) lower = compiled[i];
      byTarget[i] = lower;
    }
  }
};

}  // namespace keli

// In the part of a rows file that is compiled once: defines the function named last from the object
// rows that every target's namespace holds.
#define KELI_SELECT_ROWS(Rows, rows, ...)                                            \
  const Rows& __VA_ARGS__() {                                                        \
    static constexpr const Rows* kCompiled[HWY_MAX_DYNAMIC_TARGETS + 1] = {          \
        HWY_CHOOSE_TARGET_LIST(rows), HWY_CHOOSE_FALLBACK(rows)};                    \
    static constexpr RowsTable<Rows, HWY_MAX_DYNAMIC_TARGETS + 1> kTable(kCompiled); \
    return *kTable.byTarget[targetPosition()];                                       \
  }
