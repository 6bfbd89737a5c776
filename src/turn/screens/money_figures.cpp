#include "turn/screens/money_figures.h"

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

Tone toneOfAmount(double amount) { return amount < 0 ? Tone::bad : Tone::good; }

}  // namespace backbeat
