// How amounts read.
#pragma once

#include <cstdint>
#include <string>

namespace backbeat {

/// "1,234,567"; negatives "-1,234".
std::string withCommas(int64_t number);

/// "$1,234", negatives "-$1,234"; no decimals, halves to even, never "-$0".
std::string currency(double dollars);

/// "$6.99": with two decimals, for prices of single units and rates.
std::string price(double dollars);

/// Large amounts, short: whole below 1,000, "1.2K" below 10,000, "12K" below a million, then "M", "B", "T".
std::string abbreviated(double amount);

/// A number with a fixed count of decimals, halves to even as printf does: "12.35".
std::string withDecimals(double number, int places);

/// "12.35%": two decimals.
std::string percentage(double percent);

/// "#1".
std::string rank(int64_t position);

/// "1 week", "2 weeks": a count and its noun.
std::string counted(int64_t count, const std::string& noun);

}  // namespace backbeat
