#include "live/screens/festival_bill.h"

#include "core/bands.h"

namespace backbeat {

namespace {

constexpr Band<size_t, int64_t> ranksByPlace[] = {{1, 1}, {3, 2}, {7, 3}};
constexpr int64_t smallestRank = 4;

std::string ordinal(size_t number) {
  const size_t last = number % 100 / 10 == 1 ? 0 : number % 10;
  const char* ending = last == 1 ? "st" : last == 2 ? "nd" : last == 3 ? "rd" : "th";
  return std::to_string(number) + ending;
}

}  // namespace

std::vector<Bill::Act> billActs(const std::vector<std::string>& acts, size_t place) {
  std::vector<Bill::Act> bill;
  for (size_t i = 0; i < acts.size(); ++i) {
    bill.push_back({.name = acts[i], .rank = bandFor(ranksByPlace, i + 1, smallestRank), .own = i + 1 == place});
  }
  return bill;
}

std::string placeText(size_t place, size_t acts) { return ordinal(place) + " of " + std::to_string(acts); }

}  // namespace backbeat
