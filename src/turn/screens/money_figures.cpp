#include "turn/screens/money_figures.h"

#include <utility>

#include "core/money.h"

namespace backbeat {

Figure dollars(std::string label, double amount, Tone tone, std::string note) {
  Figure figure;
  figure.label = std::move(label);
  figure.value = currency(amount);
  figure.amount = amount;
  figure.dollars = true;
  figure.tone = tone;
  figure.note = std::move(note);
  return figure;
}

Tone toneOfAmount(double amount) { return amount < 0 ? Tone::bad : Tone::good; }

}  // namespace backbeat
