// The rounding mode of the thread's floating-point unit, for products and sums of floats that
// promise a result: vector instructions take their rounding from it.
#pragma once

#if defined(__SSE2__)
#include <xmmintrin.h>
#else
#include <cfenv>
#endif

namespace keli::core {

// Rounds to nearest while it lives; then the caller's mode holds again, and flags raised meanwhile
// stay. Arithmetic belongs into functions that the compiler cannot see, as it may move visible
// operations across a change of the mode.
class RoundToNearest {
 public:
  RoundToNearest(const RoundToNearest&) = delete;
  RoundToNearest& operator=(const RoundToNearest&) = delete;

#if defined(__SSE2__)
  RoundToNearest() : mode_(_mm_getcsr() & _MM_ROUND_MASK) {
    if (mode_ != _MM_ROUND_NEAREST) _mm_setcsr(_mm_getcsr() & ~unsigned{_MM_ROUND_MASK});
  }
  ~RoundToNearest() {
    if (mode_ != _MM_ROUND_NEAREST) _mm_setcsr(_mm_getcsr() | mode_);
  }

 private:
  unsigned mode_;
#else
  RoundToNearest() : mode_(std::fegetround()) {
    if (mode_ != FE_TONEAREST) std::fesetround(FE_TONEAREST);
  }
  ~RoundToNearest() {
    if (mode_ != FE_TONEAREST) std::fesetround(mode_);
  }

 private:
  int mode_;
#endif
};

}  // namespace keli::core
