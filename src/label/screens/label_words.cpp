#include "label/screens/label_words.h"

#include <algorithm>

#include "core/money.h"
#include "core/numbers.h"
#include "core/view_words.h"
#include "label/launch.h"

namespace backbeat {

std::string shortNumber(double number) {
  std::string text = withDecimals(number, 2);
  while (text.ends_with('0')) text.pop_back();
  if (text.ends_with('.')) text.pop_back();
  return text;
}

Picture logoOf(const GameState& state) {
  const auto logo = std::find_if(labelLogos.begin(), labelLogos.end(),
                                 [&](const LabelLogo& each) { return each.file == state.myLabelLogo; });
  const LabelLogo& chosen = logo == labelLogos.end() ? labelLogos[firstLogo] : *logo;
  return drawn(Picture::Kind::mark, chosen.mark, state.myLabelName);
}

Picture staffPortrait(int64_t number) { return drawn(Picture::Kind::person, "staff", std::to_string(number)); }

Picture staffPortrait(const Employee& employee) {
  std::string number;
  for (const char c : employee.employeeImage) {
    if (c >= '0' && c <= '9') number += c;
  }
  return drawn(Picture::Kind::person, "staff", number);
}

Meter levelMeter(std::string label, double level) {
  return {.label = std::move(label),
          .value = withCommas(roundHalfAway(level)),
          .share = shareOf(level, 100),
          .tone = toneOfBand(level)};
}

Meter ratingMeter(std::string label, double rating) {
  Meter meter = levelMeter(std::move(label), rating);
  meter.value = withDecimals(rating, 1);
  return meter;
}

Gauge levelGauge(std::string label, double level) {
  return {.label = std::move(label),
          .value = withCommas(roundHalfAway(level)),
          .share = shareOf(level, 100),
          .tone = toneOfBand(level)};
}

}  // namespace backbeat
