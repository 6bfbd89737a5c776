#include <algorithm>
#include <utility>

#include "shell/native/print_blocks.h"
#include "shell/native/terminal_text.h"

namespace backbeat {

namespace {

/// One of several, as a list or as plans with what they hold.
void print(PrintedPage& page, const Option& option, size_t number, bool chosen, size_t labelColumns) {
  Inked left = page.inked(0).add(paddedBefore(std::to_string(number), 8)).add(chosen ? " ✓ " : "   ");
  left.add(oneLine(option.label, 40) + lockOf(option.tone), colourOf(option.tone));
  Inked right = page.inked(0);
  const auto add = [&](const Inked& part) {
    if (part.columns() > 0) right.add(right.columns() > 0 ? "  " : "").add(part);
  };
  add(page.inked(0).add(oneLine(option.value, 24), bold));
  add(page.inked(0).add(oneLine(option.note, 30)));
  add(page.price(option.price));
  page.put(std::move(left), right, 8 + 3 + labelColumns + 2);
  page.facts(option.facts, 8 + 3);
  if (!option.action.empty()) page.put(page.inked(8 + 3).add(oneLine(option.action, 60)));
}

}  // namespace

void print(PrintedPage& page, const Button& button) {
  Inked label = page.inked().add(page.numberOf(button.id, button.label));
  label.add(oneLine(button.label, 50) + lockOf(button.tone), colourOf(button.tone));
  page.put(std::move(label), page.price(button.price), 0);
}

void print(PrintedPage& page, const TextField& field) {
  Pressable typed;
  typed.action = {field.id, field.value};
  typed.takes = Pressable::Takes::text;
  typed.label = field.label;
  typed.maxLength = field.maxLength;
  Inked line = page.inked().add(page.number(std::move(typed))).add(oneLine(field.label, 30) + ": ");
  const size_t room = page.width() - line.columns() - 2;
  page.put(field.value.empty() ? line.add("(" + oneLine(field.placeholder, room) + ")", faint)
                               : line.add("\"" + oneLine(field.value, room) + "\""));
  if (!field.suggest.empty()) page.line("  " + page.numberOf(field.suggest, "a suggestion") + "Suggest one");
}

void print(PrintedPage& page, const PhotoField& field) {
  Pressable given;
  given.action = {field.id, ""};
  given.takes = Pressable::Takes::photo;
  given.label = field.label;
  Inked line = page.inked().add(page.number(std::move(given))).add(oneLine(field.label, 30) + ": ");
  page.put(line.add(field.taken ? "(set; paste another as a data: address)" : "(paste a picture as a data: address)",
                    faint));
  page.paragraph(field.note, faint, 6);
}

void print(PrintedPage& page, const Choice& choice) {
  Pressable chosen;
  chosen.action = {choice.id, std::to_string(choice.selected)};
  chosen.takes = Pressable::Takes::option;
  chosen.label = choice.label;
  chosen.options = static_cast<int64_t>(choice.options.size());
  page.line("  " + page.number(std::move(chosen)) + oneLine(choice.label, 60));
  size_t columns = 0;
  for (const Option& option : choice.options) {
    columns = std::max(columns, columnsOf(oneLine(option.label, 40) + lockOf(option.tone)));
  }
  for (size_t i = 0; i < choice.options.size(); ++i) {
    print(page, choice.options[i], i + 1, static_cast<int64_t>(i) == choice.selected, columns);
  }
}

void print(PrintedPage& page, const Toggle& toggle) {
  Pressable turned;
  turned.action = {toggle.id, toggle.on ? "0" : "1"};
  turned.takes = Pressable::Takes::flag;
  turned.label = toggle.label;
  Inked line = page.inked().add(page.number(std::move(turned)));
  line.add((toggle.on ? "(on)  " : "(off) ") + oneLine(toggle.label, 30));
  page.put(line, page.inked(0).add(oneLine(toggle.note, 40)), 0);
}

void print(PrintedPage& page, const Slider& slider) {
  const size_t railColumns = page.barColumns() + 4;
  Pressable moved;
  moved.action = {slider.id, std::to_string(slider.at)};
  moved.takes = Pressable::Takes::option;
  moved.label = slider.label;
  moved.options = slider.count;
  Inked line = page.inked().add(page.number(std::move(moved))).add(oneLine(slider.label, 30) + ": ");
  page.put(line.add(oneLine(slider.value, 30), bold), page.inked(0).add(oneLine(slider.note, 40)), 0);
  const int64_t last = std::max<int64_t>(slider.count - 1, 1);
  const auto knob =
      static_cast<size_t>(std::clamp<int64_t>(slider.at, 0, last)) * (railColumns - 1) / static_cast<size_t>(last);
  std::string rail;
  for (size_t i = 0; i < railColumns; ++i) rail += i == knob ? "●" : "─";
  const std::string place = std::to_string(slider.at + 1) + " of " + std::to_string(slider.count);
  page.put(page.inked(6).add(oneLine(slider.low, 14) + " " + rail + " " + oneLine(slider.high, 14)),
           page.inked(0).add(place, faint), 0);
}

void print(PrintedPage& page, const Stepper& stepper) {
  Inked ways = page.inked(0);
  if (stepper.canLess) ways.add(page.numberOf(stepper.id, stepper.label + ": less", "-1")).add("less");
  if (stepper.canLess && stepper.canMore) ways.add("  ");
  if (stepper.canMore) ways.add(page.numberOf(stepper.id, stepper.label + ": more", "1")).add("more");
  Inked line = page.inked().add(oneLine(stepper.label, 30) + ": ").add(oneLine(stepper.value, 20), bold);
  page.put(line, ways, 0);
  if (!stepper.note.empty()) page.put(page.inked(6).add(oneLine(stepper.note, page.width() - 6), faint));
}

}  // namespace backbeat
