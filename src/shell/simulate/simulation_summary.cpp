#include "shell/simulate/simulation_summary.h"

#include <algorithm>
#include <cmath>

#include "core/json.h"
#include "core/money.h"
#include "shell/native/terminal_text.h"

namespace backbeat {

namespace {

constexpr size_t labelColumns = 16;
constexpr size_t figureColumns = 14;
constexpr size_t plotColumns = 44;
constexpr size_t yearColumns = 5;
constexpr size_t mostPlottedYears = 25;

struct Label {
  std::string_view column;
  const char* text;
  const char* unit;
};
constexpr Label tableRows[] = {{"cash", "cash", "$"},
                               {"listeners", "listeners", ""},
                               {"songs", "songs", ""},
                               {"chart_hits", "chart hits", ""},
                               {"weeks_at_one", "weeks at one", ""}};
constexpr Label plots[] = {{"cash", "Cash", "$"}, {"listeners", "Listeners", ""}};

const Column& columnNamed(std::string_view name) {
  return *std::find_if(columns.begin(), columns.end(), [&](const Column& column) { return column.name == name; });
}

Spread spreadIn(const Simulation& simulation, const Column& column, size_t year) {
  std::vector<double> values;
  for (const Career& career : simulation.careers) values.push_back(column.of(career.years[year]));
  return spreadOf(std::move(values));
}

std::string amount(const Label& label, double value) {
  return (value < 0 ? "-" : "") + std::string(label.unit) + abbreviated(std::abs(value));
}

/// Careers spread over powers of ten, to either side of nothing.
double onScale(double value) { return std::copysign(std::log10(1 + std::abs(value)), value); }

std::string plotLine(const Label& label, size_t year, const Spread& spread, double least, double greatest) {
  const double width = std::max(onScale(greatest) - onScale(least), 1e-9);
  const auto place = [&](double value) {
    return static_cast<size_t>((onScale(value) - onScale(least)) / width * (plotColumns - 1));
  };
  std::string line = paddedBefore(std::to_string(year), yearColumns) + "  ";
  for (size_t at = 0; at < plotColumns; ++at) {
    const bool inBand = at >= place(spread.low) && at <= place(spread.high);
    line += at == place(spread.median) ? "●" : inBand ? "─" : " ";
  }
  return line + paddedBefore(amount(label, spread.median), 8) + "  (" + amount(label, spread.low) + " to " +
         amount(label, spread.high) + ")\n";
}

std::string plot(const Simulation& simulation, const Label& label, size_t years) {
  std::vector<Spread> spreads;
  for (size_t year = 0; year < years; ++year) {
    spreads.push_back(spreadIn(simulation, columnNamed(label.column), year));
  }
  double least = 0;
  double greatest = 0;
  for (const Spread& spread : spreads) {
    least = std::min(least, spread.low);
    greatest = std::max(greatest, spread.high);
  }
  std::string text = "\n" + std::string(label.text) + " by year, in powers of ten: median, and four fifths of all\n";
  const size_t step = (years + mostPlottedYears - 1) / mostPlottedYears;
  for (size_t year = step; year <= years; year += step) {
    text += plotLine(label, year, spreads[year - 1], least, greatest);
  }
  return text;
}

void writeSpread(JsonWriter& json, const Spread& spread) {
  json.beginObject();
  json.key("p10").number(spread.low);
  json.key("median").number(spread.median);
  json.key("p90").number(spread.high);
  json.endObject();
}

}  // namespace

Spread spreadOf(std::vector<double> values) {
  if (values.empty()) return {};
  std::sort(values.begin(), values.end());
  const auto at = [&](double share) {
    const double place = share * static_cast<double>(values.size() - 1);
    const auto below = static_cast<size_t>(place);
    const size_t above = std::min(below + 1, values.size() - 1);
    return values[below] + (values[above] - values[below]) * (place - static_cast<double>(below));
  };
  return {at(0.1), at(0.5), at(0.9)};
}

std::string summaryText(const SimulationPlan& plan, const Simulation& simulation) {
  const auto years = static_cast<size_t>(plan.years);
  std::string text = std::string(plan.strategy->name) + ": " + counted(plan.careers, "career") + " of " +
                     counted(plan.years, "year") + ", from seed " + std::to_string(plan.firstSeed) + "\n\n";
  text += padded("at the end", labelColumns) + paddedBefore("10 %", figureColumns) +
          paddedBefore("median", figureColumns) + paddedBefore("90 %", figureColumns) + "\n";
  for (const Label& label : tableRows) {
    const Spread spread = spreadIn(simulation, columnNamed(label.column), years - 1);
    text += padded(label.text, labelColumns);
    for (const double value : {spread.low, spread.median, spread.high}) {
      text += paddedBefore(amount(label, value), figureColumns);
    }
    text += "\n";
  }
  for (const Label& label : plots) text += plot(simulation, label, years);
  return text;
}

std::string summaryJson(const SimulationPlan& plan, const Simulation& simulation) {
  JsonWriter json;
  json.beginObject();
  json.key("strategy").text(plan.strategy->name);
  json.key("firstSeed").text(std::to_string(plan.firstSeed));
  json.key("careers").number(plan.careers);
  json.key("firstHash").text(simulation.careers.front().hash);
  json.key("years").beginArray();
  for (size_t year = 0; year < static_cast<size_t>(plan.years); ++year) {
    json.beginObject();
    for (const Column& column : columns) {
      json.key(column.name);
      if (column.name == "year") {
        json.number(static_cast<int64_t>(year + 1));
      } else {
        writeSpread(json, spreadIn(simulation, column, year));
      }
    }
    json.endObject();
  }
  json.endArray();
  json.endObject();
  return json.str() + "\n";
}

std::string csvHead() {
  std::string line = "strategy,seed";
  for (const Column& column : columns) line += "," + std::string(column.name);
  return line + "\n";
}

std::string csvRows(const SimulationPlan& plan, const Career& career) {
  std::string lines;
  for (const CareerYear& year : career.years) {
    lines += std::string(plan.strategy->name) + "," + std::to_string(career.seed);
    for (const Column& column : columns) lines += "," + column.text(year);
    lines += "\n";
  }
  return lines;
}

}  // namespace backbeat
