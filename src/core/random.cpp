#include "core/random.h"

#include "core/numbers.h"

namespace backbeat {

namespace {

uint64_t splitMix(uint64_t& x) {
  uint64_t z = (x += 0x9e3779b97f4a7c15u);
  z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
  z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
  return z ^ (z >> 31);
}

constexpr uint64_t rotate(uint64_t x, int by) { return (x << by) | (x >> (64 - by)); }

}  // namespace

int64_t Random::integer(int64_t lo, int64_t hi) {
  if (lo > hi) fatal("a draw was asked of an empty range");
  const uint64_t span = static_cast<uint64_t>(hi) - static_cast<uint64_t>(lo);
  if (span == UINT64_MAX) return static_cast<int64_t>(bits64());
  const uint64_t count = span + 1;
  // Values below the remainder of 2^64 by count are drawn again, so that no result is likelier than another.
  const uint64_t reject = (0 - count) % count;
  uint64_t bits = bits64();
  while (bits < reject) bits = bits64();
  return static_cast<int64_t>(static_cast<uint64_t>(lo) + bits % count);
}

double Random::uniformDouble(double lo, double hi) {
  constexpr int64_t steps = int64_t{1} << 53;
  const int64_t u = integer(0, steps);
  if (u == steps) return hi;
  return lo + static_cast<double>(u) * (1.0 / static_cast<double>(steps)) * (hi - lo);
}

SeededRandom::SeededRandom(uint64_t seed) {
  for (uint64_t& word : state_) word = splitMix(seed);
}

uint64_t SeededRandom::bits64() {
  const uint64_t result = rotate(state_[1] * 5, 7) * 9;
  const uint64_t shifted = state_[1] << 17;
  state_[2] ^= state_[0];
  state_[3] ^= state_[1];
  state_[1] ^= state_[2];
  state_[0] ^= state_[3];
  state_[2] ^= shifted;
  state_[3] = rotate(state_[3], 45);
  return result;
}

uint64_t hashOf(std::string_view text, uint64_t salt) {
  uint64_t hash = 0xcbf29ce484222325u ^ salt;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3u;
  return splitMix(hash);
}

}  // namespace backbeat
