#include "core/view_words.h"

#include <algorithm>
#include <utility>

namespace backbeat {

Row wayTo(std::string id, std::string glyph, std::string title, std::string subtitle, std::string value) {
  return {.picture = icon(std::move(glyph)),
          .title = std::move(title),
          .subtitle = std::move(subtitle),
          .value = std::move(value),
          .opens = true,
          .id = std::move(id)};
}

Text caption(std::string text, Tone tone) {
  return {.text = std::move(text), .tone = tone, .style = Text::Style::caption};
}

Card hint(std::string text) { return {.picture = icon("info"), .title = "Good to know", .text = std::move(text)}; }

double shareOf(double part, double whole) { return whole > 0 ? std::clamp(part / whole, 0.0, 1.0) : 0; }
double shareOf(int64_t part, int64_t whole) { return shareOf(static_cast<double>(part), static_cast<double>(whole)); }

Tone toneOfBand(double points) {
  if (points < 25) return Tone::bad;
  if (points < 50) return Tone::warning;
  return points < 80 ? Tone::fair : Tone::good;
}

Tone toneOfChange(double change) { return change < 0 ? Tone::bad : change > 0 ? Tone::good : Tone::plain; }
Tone toneOfChange(int64_t change) { return toneOfChange(static_cast<double>(change)); }

}  // namespace backbeat
