// Makes plans: factors of lengths, twiddle factors, the order that the steps leave.
#include "fft/plan.h"

#include <cmath>
#include <cstring>
#include <initializer_list>
#include <limits>

#include "core/memory.h"

namespace keli::fft {
namespace {

constexpr int kRadices[] = {8, 4, 2, 13, 11, 7, 5, 3};
constexpr double kPi = 3.14159265358979323846;

struct Complex {
  double re, im;
};

Complex operator*(Complex a, Complex b) {
  return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}

// exp(-2 pi i k / n), from an angle of at most an eighth of a turn.
Complex root(std::int64_t k, std::int64_t n) {
  k %= n;
  const std::int64_t eighth = 8 * k / n;
  // The distance from the nearest of the four axes, in parts of a turn.
  const std::int64_t axis = (eighth + 1) / 2;
  const double angle =
      2 * kPi * (static_cast<double>(4 * k - axis * n) / (4 * static_cast<double>(n)));
  const double c = std::cos(angle), s = std::sin(angle);
  switch (axis % 4) {
    case 0:
      return {c, -s};
    case 1:
      return {-s, -c};
    case 2:
      return {-c, s};
    default:
      return {s, c};
  }
}

// The radices of n, in the order of kRadices; what is left of n.
int factor(std::int32_t n, Plan& plan) {
  plan.steps = 0;
  for (const int radix : kRadices) {
    // 16 as 4 * 4 and not as 8 * 2.
    while (n % radix == 0 && !(radix == 8 && n % 32 == 16)) {
      n /= radix;
      plan.step[plan.steps++] = {radix, 0, nullptr};
    }
  }
  return n;
}

bool hasSteps(std::int32_t n) {
  for (const int radix : {2, 3, 5, 7, 11, 13}) {
    while (n % radix == 0) n /= radix;
  }
  return n == 1;
}

// The least length of at least n whose prime factors are 2, 3 and 5, among them 2 three times.
std::int64_t convolutionLength(std::int64_t n) {
  std::int64_t best = 8;
  while (best < n) best *= 2;
  for (std::int64_t fives = 8; fives < best; fives *= 5) {
    for (std::int64_t threes = fives; threes < best; threes *= 3) {
      std::int64_t m = threes;
      while (m < n) m *= 2;
      if (m < best) best = m;
    }
  }
  return best;
}

void fillTwiddles(const Step& step, float* out) {
  const std::int64_t n = std::int64_t{step.radix} * step.m;
  for (std::int64_t j = 0; j < step.m; ++j) {
    for (std::int64_t p = 1; p < step.radix; ++p) {
      const Complex w = root(j * p, n);
      *out++ = static_cast<float>(w.re);
      *out++ = static_cast<float>(w.im);
    }
  }
}

void fillPlaces(const Plan& plan, std::uint32_t* place) {
  for (std::int64_t k = 0; k < plan.n; ++k) {
    std::int64_t rest = k, at = 0;
    for (int s = 0; s < plan.steps; ++s) {
      at += rest % plan.step[s].radix * plan.step[s].m;
      rest /= plan.step[s].radix;
    }
    place[k] = static_cast<std::uint32_t>(at);
  }
}

// Sets all that the steps of a length need; block may be null, to learn how large it has to be.
std::size_t layOutSteps(Plan& plan, std::uint8_t* block) {
  core::Parts layout(block);
  layout.take<Plan>(1);
  std::int32_t m = plan.n;
  for (int s = 0; s < plan.steps; ++s) {
    Step& step = plan.step[s];
    m /= step.radix;
    step.m = m;
    float* const twiddles = layout.take<float>(std::size_t{2} * static_cast<std::size_t>(m) *
                                               static_cast<std::size_t>(step.radix - 1));
    step.twiddles = twiddles;
    if (block != nullptr) fillTwiddles(step, twiddles);
  }
  auto* const place = layout.take<std::uint32_t>(static_cast<std::size_t>(plan.n));
  plan.place = place;
  if (block != nullptr) fillPlaces(plan, place);
  return layout.taken();
}

Plan* makeSteps(std::int32_t n) {
  Plan plan = {};
  plan.n = plan.work = n;
  factor(n, plan);
  auto* const block = static_cast<std::uint8_t*>(core::allocateAligned(layOutSteps(plan, nullptr)));
  if (block == nullptr) return nullptr;
  layOutSteps(plan, block);
  std::memcpy(block, &plan, sizeof plan);
  return reinterpret_cast<Plan*>(block);
}

// The steps of a plan in double precision.
void runSteps(const Plan& plan, int s, Complex* data) {
  if (s == plan.steps) return;
  const int radix = plan.step[s].radix;
  const std::int64_t m = plan.step[s].m;
  Complex roots[13], in[13];
  for (int p = 0; p < radix; ++p) roots[p] = root(p, radix);
  for (std::int64_t j = 0; j < m; ++j) {
    for (int q = 0; q < radix; ++q) in[q] = data[j + q * m];
    for (int p = 0; p < radix; ++p) {
      Complex sum = {0, 0};
      for (int q = 0; q < radix; ++q) {
        const Complex term = in[q] * roots[p * q % radix];
        sum = {sum.re + term.re, sum.im + term.im};
      }
      data[j + p * m] = sum * root(j * p, radix * m);
    }
  }
  for (int b = 0; b < radix; ++b) runSteps(plan, s + 1, data + b * m);
}

void store(Complex c, float* pair) {
  pair[0] = static_cast<float>(c.re);
  pair[1] = static_cast<float>(c.im);
}

// response: of the plan's length, divided by it.
bool fillChirp(std::int64_t n, const Plan& plan, float* chirp, float* response) {
  const std::int64_t m = plan.n;
  const core::Scratch scratch(static_cast<std::size_t>(m) * sizeof(Complex));
  Complex* const data = scratch.as<Complex>();
  if (data == nullptr) return false;
  for (std::int64_t k = 0; k < m; ++k) data[k] = {0, 0};
  for (std::int64_t k = 0; k < n; ++k) {
    const Complex w = root(k * k % (2 * n), 2 * n);
    store(w, chirp + 2 * k);
    const double part = 1 / static_cast<double>(m);
    data[k] = {w.re * part, -w.im * part};
    if (k != 0) data[m - k] = data[k];
  }
  runSteps(plan, 0, data);
  for (std::int64_t k = 0; k < m; ++k) store(data[k], response + 2 * k);
  return true;
}

Plan* makeConvolution(std::int32_t n) {
  const std::int64_t m = convolutionLength(2 * std::int64_t{n} - 1);
  if (m > std::numeric_limits<std::int32_t>::max() / 2) return nullptr;
  const Plan* const steps = makeSteps(static_cast<std::int32_t>(m));
  if (steps == nullptr) return nullptr;
  core::Parts sizes;
  const auto layOut = [&](core::Parts& layout, Plan& plan) {
    layout.take<Plan>(1);
    plan.place = layout.take<std::uint32_t>(static_cast<std::size_t>(n));
    plan.chirp = layout.take<float>(2 * static_cast<std::size_t>(n));
    plan.response = layout.take<float>(2 * static_cast<std::size_t>(m));
  };
  Plan plan = {};
  layOut(sizes, plan);
  auto* const block = static_cast<std::uint8_t*>(core::allocateAligned(sizes.taken()));
  if (block != nullptr) {
    core::Parts layout(block);
    layOut(layout, plan);
    plan.n = n;
    plan.work = static_cast<std::int32_t>(m);
    plan.convolution = steps;
    for (std::int32_t k = 0; k < n; ++k)
      const_cast<std::uint32_t*>(plan.place)[k] = static_cast<std::uint32_t>(k);
    std::memcpy(block, &plan, sizeof plan);
    if (fillChirp(n, *steps, const_cast<float*>(plan.chirp), const_cast<float*>(plan.response)))
      return reinterpret_cast<Plan*>(block);
    core::freeImage(block);
  }
  freePlan(steps);
  return nullptr;
}

}  // namespace

Plan* makePlan(int n) { return hasSteps(n) ? makeSteps(n) : makeConvolution(n); }

void freePlan(const Plan* plan) {
  if (plan == nullptr) return;
  freePlan(plan->convolution);
  core::freeImage(const_cast<Plan*>(plan));
}

}  // namespace keli::fft
