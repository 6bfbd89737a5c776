#include "turn/screens/money_figures.h"

#include <cmath>
#include <utility>

#include "core/money.h"

namespace backbeat {

Figure dollars(std::string label, double amount, Tone tone, std::string note) {
  return {.label = std::move(label),
          .value = currency(amount),
          .amount = amount,
          .dollars = true,
          .tone = tone,
          .note = std::move(note)};
}

Figure totalOf(std::string label, const std::vector<Figure>& lines) {
  double sum = 0;
  for (const Figure& line : lines) sum += std::nearbyint(line.amount);
  return dollars(std::move(label), sum, Tone::plain);
}

Tone toneOfAmount(double amount) { return amount < 0 ? Tone::bad : Tone::good; }

}  // namespace backbeat
