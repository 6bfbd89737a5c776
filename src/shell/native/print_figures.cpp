#include <algorithm>
#include <cmath>
#include <utility>

#include "core/money.h"
#include "shell/native/print_blocks.h"
#include "shell/native/terminal_text.h"

namespace backbeat {

namespace {

constexpr size_t labelColumns = 34;
constexpr size_t amountColumns = 20;
constexpr size_t labelOfBar = 24;

/// A bar, or as many lamps as there are steps.
std::string levelOf(const PrintedPage& page, double share, int64_t steps) {
  if (steps <= 0) return bar(share, page.barColumns());
  const auto count = static_cast<size_t>(std::min<int64_t>(steps, 40));
  const double lit = std::isnan(share) ? 0 : std::clamp(share, 0.0, 1.0) * static_cast<double>(count);
  std::string lamps;
  for (size_t i = 0; i < count; ++i) lamps += static_cast<double>(i) + 0.5 <= lit ? "●" : "○";
  return lamps;
}

/// Where the amounts of a page begin, and where its bars do.
size_t amountsBegin(const PrintedPage& page) { return std::min(2 + labelColumns, page.width() - amountColumns); }
size_t barsBegin(const PrintedPage& page) { return std::min<size_t>(30, page.width() - page.barColumns()); }

void print(PrintedPage& page, const Figure& figure) {
  const size_t begin = amountsBegin(page);
  const std::string value = oneLine(figure.value, amountColumns);
  Inked line = page.inked().add(oneLine(figure.label, labelColumns - 2)).to(begin);
  // A name that is too long for a narrow page has the line to itself.
  if (line.columns() > begin) page.put(std::exchange(line, page.inked(begin)));
  line.add(paddedBefore(value, amountColumns), colourOf(figure.tone));
  page.put(line, page.inked(0).add(oneLine(figure.note, 40)), 0);
}

void print(PrintedPage& page, const Gauge& gauge) {
  const size_t begin = barsBegin(page);
  const std::string number = page.numberOf(gauge.id, gauge.label);
  Inked left = page.inked().add(number).add(oneLine(gauge.label, std::min(begin - number.size() - 3, labelOfBar)));
  left.to(begin).add(levelOf(page, gauge.share, gauge.steps), colourOf(gauge.tone));
  Inked right = page.inked(0).add(oneLine(gauge.value, 20), colourOf(gauge.tone));
  if (!gauge.note.empty()) right.add(right.columns() > 0 ? "  " : "").add(oneLine(gauge.note, 30), faint);
  page.put(left, right, 0);
}

}  // namespace

void print(PrintedPage& page, const Meter& meter) {
  Inked left = page.inked().add(oneLine(meter.label, labelOfBar)).to(28);
  left.add(levelOf(page, meter.share, meter.steps), colourOf(meter.tone));
  page.put(left, page.inked(0).add(oneLine(meter.value, 28)), 0);
}

void print(PrintedPage& page, const Chart& chart) {
  const size_t plotColumns = page.width() - 2 * PrintedPage::blockMargin;
  page.line("");
  Inked title = page.inked().add(page.numberOf(chart.id, chart.title)).add(oneLine(chart.title, 30));
  title.add("  " + oneLine(chart.value, 24));
  page.put(title, page.inked(0).add(oneLine(chart.note, 30), colourOf(chart.tone)), 0);
  if (chart.points.empty()) return;
  const auto [least, greatest] = std::minmax_element(chart.points.begin(), chart.points.end());
  page.put(page.inked().add(spark(chart.points, plotColumns)));
  std::string range = abbreviated(*least) + " to " + abbreviated(*greatest);
  if (chart.labels.size() > 1) {
    range += ", " + oneLine(chart.labels.front(), 20) + " to " + oneLine(chart.labels.back(), 20);
  }
  page.put(page.inked().add(range, faint));
}

void print(PrintedPage& page, const Figures& figures) {
  page.line("");
  if (!figures.title.empty()) page.put(page.inked().add(oneLine(figures.title, page.width() - 2), bold));
  for (const Figure& figure : figures.items) print(page, figure);
  if (!figures.total) return;
  if (!figures.items.empty())
    page.put(page.inked().add(std::string(amountsBegin(page) - 2 + amountColumns, '-'), faint));
  print(page, *figures.total);
}

void print(PrintedPage& page, const Gauges& gauges) {
  page.line("");
  const Inked note = page.inked(0).add(oneLine(gauges.note, 40), faint);
  if (!gauges.title.empty()) {
    page.put(page.inked().add(oneLine(gauges.title, 60), bold), note, 0);
  } else if (!gauges.note.empty()) {
    page.put(page.inked().add(note));
  }
  for (const Gauge& gauge : gauges.items) print(page, gauge);
}

}  // namespace backbeat
