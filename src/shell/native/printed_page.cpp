#include "shell/native/printed_page.h"

#include <algorithm>
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

const char* lockOf(Tone tone) { return tone == Tone::locked ? " (locked)" : ""; }

Inked& Inked::add(std::string_view text, const char* code) {
  if (text.empty()) return *this;
  pieces_.push_back({std::string(text), code});
  columns_ += columnsOf(text);
  return *this;
}

Inked& Inked::add(const Inked& other) {
  pieces_.insert(pieces_.end(), other.pieces_.begin(), other.pieces_.end());
  columns_ += other.columns_;
  return *this;
}

Inked& Inked::to(size_t column) {
  if (columns_ < column) add(std::string(column - columns_, ' '));
  return *this;
}

Inked& Inked::cut(size_t columns) {
  if (columns_ <= columns) return *this;
  constexpr size_t leastCut = 3;  // a wide letter and "…"
  const auto begin = [&] { return columns_ - columnsOf(pieces_.back().text); };
  while (begin() + leastCut > columns) {
    columns_ = begin();
    pieces_.pop_back();
  }
  columns_ = begin();
  pieces_.back().text = oneLine(pieces_.back().text + " …", columns - columns_);
  columns_ += columnsOf(pieces_.back().text);
  return *this;
}

std::string Inked::text(bool colour) const {
  std::string text;
  for (const Piece& piece : pieces_) {
    const bool painted = colour && *piece.code != '\0';
    text += painted ? piece.code + piece.text + "\x1b[0m" : piece.text;
  }
  return text;
}

PrintedPage::PrintedPage(const Navigator& navigator, int64_t screenKey, bool colour, size_t width)
    : navigator_(navigator),
      screenKey_(std::to_string(screenKey)),
      colour_(colour),
      width_(std::clamp(width, narrowestPage, widestPage)) {}

Inked PrintedPage::inked(size_t margin) { return Inked().to(margin); }

void PrintedPage::put(Inked line) {
  printed_.text += line.cut(width_).text(colour_);
  printed_.text += '\n';
}

void PrintedPage::put(Inked left, const Inked& right, size_t at) {
  constexpr size_t gap = 2;
  constexpr size_t ownLine = 6;
  if (right.columns() == 0) return put(std::move(left));
  const size_t begin = std::min(at, width_ - std::min(right.columns(), width_));
  if (left.columns() + gap + right.columns() <= width_) {
    return put(left.to(left.columns() + gap).to(begin).add(right));
  }
  put(std::move(left));
  put(inked(std::max(begin, std::min(ownLine, width_ - std::min(right.columns(), width_)))).add(right));
}

void PrintedPage::line(std::string_view text, const char* code) { put(inked(0).add(text, code)); }

void PrintedPage::paragraph(std::string_view text, const char* code, size_t margin) {
  if (text.empty()) return;
  for (const std::string& part : wrapped(text, width_ - margin)) put(inked(margin).add(part, code));
}

void PrintedPage::facts(const std::vector<Fact>& facts, size_t margin) {
  Inked line = inked(margin);
  for (const Fact& fact : facts) {
    const std::string label = oneLine(fact.label, 34);
    const std::string value = oneLine(fact.value, 34);
    Inked told = inked(0).add(label, faint).add(label.empty() || value.empty() ? "" : " ");
    told.add(value, colourOf(fact.tone));
    if (line.columns() > margin && line.columns() + 3 + told.columns() > width_) {
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
