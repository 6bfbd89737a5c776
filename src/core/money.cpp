#include "core/money.h"

#include <cmath>
#include <cstdio>

namespace backbeat {

namespace {

constexpr double exactWhole = 0x1p53;  // below it a double holds every whole number

std::string printed(const char* format, int places, double value) {
  char text[400];
  const int size = std::snprintf(text, sizeof text, format, places, value);
  return std::string(text, static_cast<size_t>(size));
}

/// Thousands separators in a text of digits.
std::string grouped(const std::string& digits) {
  std::string result;
  for (size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) result += ',';
    result += digits[i];
  }
  return result;
}

}  // namespace

std::string withCommas(int64_t number) {
  std::string digits = std::to_string(number);
  const bool negative = digits[0] == '-';
  if (negative) digits.erase(0, 1);
  return (negative ? "-" : "") + grouped(digits);
}

std::string currency(double dollars) {
  const double amount = std::fabs(dollars);
  // Rounded as printing rounds, and much quicker.
  const std::string digits =
      amount < exactWhole ? std::to_string(static_cast<int64_t>(std::nearbyint(amount))) : printed("%.*f", 0, amount);
  const bool negative = dollars < 0 && digits != "0";
  return std::string(negative ? "-$" : "$") + (std::isfinite(dollars) ? grouped(digits) : digits);
}

std::string price(double dollars) {
  const std::string digits = printed("%.*f", 2, std::fabs(dollars));
  const std::string whole = digits.substr(0, digits.size() - 3);
  const bool negative = dollars < 0 && digits != "0.00";
  return std::string(negative ? "-$" : "$") + grouped(whole) + digits.substr(digits.size() - 3);
}

std::string abbreviated(double amount) {
  if (amount < 1000) return printed("%.*f", 0, amount);
  if (amount < 10'000) return printed("%.*fK", 1, std::floor(amount / 100) / 10);
  if (amount < 1e6) return printed("%.*fK", 0, std::floor(amount / 1000));
  if (amount < 1e9) return printed("%.*fM", 1, std::floor(amount / 1e5) / 10);
  if (amount < 1e12) return printed("%.*fB", 1, std::floor(amount / 1e8) / 10);
  return printed("%.*fT", 1, std::floor(amount / 1e11) / 10);
}

std::string withDecimals(double number, int places) {
  std::string text = printed("%.*f", places, number);
  const bool isZero = text.find_first_not_of("-0.") == std::string::npos;
  return isZero && text.starts_with('-') ? text.substr(1) : text;
}

std::string percentage(double percent) { return printed("%.*f%%", 2, percent); }

std::string rank(int64_t position) { return "#" + withCommas(position); }

std::string counted(int64_t count, const std::string& noun) {
  return withCommas(count) + " " + noun + (count == 1 ? "" : "s");
}

}  // namespace backbeat
