#include "core/numbers.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace backbeat {

namespace {

constexpr double firstBeyond = 9223372036854775808.0;  // 2^63, the least double above every 64-bit integer

/// ln(2) in two parts whose sum is exact to about 100 bits; the first has trailing zeros, so k * ln2High is exact.
constexpr double ln2High = 6.93147180369123816490e-01;
constexpr double ln2Low = 1.90821492927058770002e-10;

/// 2 to the power k, for |k| up to about 2,000, by repeated squaring: exact until it over- or underflows.
double twoTo(int64_t k) {
  double result = 1;
  double factor = k < 0 ? 0.5 : 2;
  for (int64_t left = k < 0 ? -k : k; left > 0; left /= 2) {
    if (left % 2 == 1) result *= factor;
    factor *= factor;
  }
  return result;
}

/// Natural logarithm of a finite x above 0: x = m * 2^k with m near 1, and the atanh series of (m-1)/(m+1).
double naturalLog(double x) {
  int exponent = 0;
  double m = std::frexp(x, &exponent);  // frexp only takes the bits apart: exact everywhere
  if (m < 0.70710678118654752) {
    m *= 2;
    exponent -= 1;
  }
  const double t = (m - 1) / (m + 1);
  const double square = t * t;
  double sum = 0;
  for (int n = 23; n >= 3; n -= 2) sum = square * (sum + 1.0 / n);
  return exponent * ln2High + (2 * t + (2 * t * sum + exponent * ln2Low));
}

/// e to the power x: x = k ln2 + r with r near 0, and the series of r.
double exponential(double x) {
  if (x > 710) return std::numeric_limits<double>::infinity();
  if (x < -745) return 0;
  const double k = std::floor(x / (ln2High + ln2Low) + 0.5);
  const double r = (x - k * ln2High) - k * ln2Low;
  double sum = 1;
  for (int n = 18; n >= 1; --n) sum = 1 + r / n * sum;
  return sum * twoTo(static_cast<int64_t>(k));
}

}  // namespace

void fatal(std::string_view message) {
  std::fprintf(stderr, "backbeat: %.*s\n", static_cast<int>(message.size()), message.data());
  std::abort();
}

int64_t truncate(double value) {
  if (!(value > -firstBeyond && value < firstBeyond)) fatal("an amount grew past what a whole number can hold");
  return static_cast<int64_t>(value);
}

int64_t roundHalfAway(double value) { return truncate(std::round(value)); }

double roundTo(double value, int places) {
  double scale = 1;
  for (int i = 0; i < places; ++i) scale *= 10;
  if (std::fabs(value) > 1e15) return value;
  return std::round(value * scale) / scale;
}

double power(double base, double exponent) {
  if (exponent == 0) return 1;
  return exponential(exponent * naturalLog(base));
}

int64_t add(int64_t a, int64_t b) {
  int64_t sum = 0;
  if (__builtin_add_overflow(a, b, &sum)) fatal("a count grew past what a whole number can hold");
  return sum;
}

int64_t multiply(int64_t a, int64_t b) {
  int64_t product = 0;
  if (__builtin_mul_overflow(a, b, &product)) fatal("a count grew past what a whole number can hold");
  return product;
}

}  // namespace backbeat
