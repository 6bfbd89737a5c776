#include "shell/native/printed_page.h"

#include <utility>

#include "core/money.h"
#include "shell/native/terminal_text.h"

namespace backbeat {

const char* colourOf(Tone tone) {
  switch (tone) {
    case Tone::plain: return "";
    case Tone::good: return "\x1b[32m";
    case Tone::bad: return "\x1b[31m";
    case Tone::warning: return "\x1b[33m";
    case Tone::fair: return "\x1b[93m";
    case Tone::locked: return faint;
  }
  return "";
}

Inked& Inked::add(std::string_view text, const char* code) {
  const bool painted = colour_ && *code != '\0' && !text.empty();
  if (painted) text_ += code;
  text_ += text;
  if (painted) text_ += "\x1b[0m";
  columns_ += columnsOf(text);
  return *this;
}

Inked& Inked::add(const Inked& other) {
  text_ += other.text_;
  columns_ += other.columns_;
  return *this;
}

Inked& Inked::to(size_t column) {
  if (columns_ < column) add(std::string(column - columns_, ' '));
  return *this;
}

Inked PrintedPage::inked(size_t margin) const { return Inked(colour_).to(margin); }

void PrintedPage::put(const Inked& line) {
  printed_.text += line.text();
  printed_.text += '\n';
}

void PrintedPage::put(Inked left, const Inked& right, size_t at) {
  constexpr size_t gap = 2;
  if (right.columns() == 0) return put(left);
  if (std::max(left.columns() + gap, at) + right.columns() <= pageWidth) {
    return put(left.to(left.columns() + gap).to(at).add(right));
  }
  put(left);
  put(inked(std::min(at, pageWidth - std::min(right.columns(), pageWidth))).add(right));
}

void PrintedPage::line(std::string_view text, const char* code) { put(inked(0).add(text, code)); }

void PrintedPage::paragraph(std::string_view text, const char* code, size_t margin) {
  if (text.empty()) return;
  for (const std::string& part : wrapped(text, pageWidth - margin)) put(inked(margin).add(part, code));
}

void PrintedPage::facts(const std::vector<Fact>& facts, size_t margin) {
  Inked line = inked(margin);
  for (const Fact& fact : facts) {
    const std::string label = oneLine(fact.label, 34);
    const std::string value = oneLine(fact.value, 34);
    Inked told = inked(0).add(label, faint).add(label.empty() || value.empty() ? "" : " ");
    told.add(value, colourOf(fact.tone));
    if (line.columns() > margin && line.columns() + 3 + told.columns() > pageWidth) {
      put(std::exchange(line, inked(margin)));
    }
    line.add(line.columns() > margin ? " · " : "").add(told);
  }
  if (line.columns() > margin) put(line);
}

std::string PrintedPage::number(Pressable pressable) {
  if (pressable.screenKey.empty()) pressable.screenKey = screenKey_;
  printed_.pressables.push_back(std::move(pressable));
  return "[" + std::to_string(printed_.pressables.size()) + "] ";
}

std::string PrintedPage::numberOf(const std::string& id, const std::string& label, const std::string& value) {
  if (id.empty()) return {};
  Pressable pressable;
  pressable.action = {id, value};
  pressable.label = label;
  return number(std::move(pressable));
}

Inked PrintedPage::price(const std::optional<Price>& price) const {
  Inked told = inked(0);
  if (!price || (price->energy == 0 && price->dollars == 0)) return told;
  const char* code = navigator_.affordable(*price) ? "" : colourOf(Tone::bad);
  if (price->energy != 0) told.add(std::to_string(price->energy) + "⚡", code);
  if (price->energy != 0 && price->dollars != 0) told.add(" ");
  if (price->dollars != 0) told.add(currency(price->dollars), code);
  if (*code != '\0') told.add(" ✗", code);
  return told;
}

}  // namespace backbeat
