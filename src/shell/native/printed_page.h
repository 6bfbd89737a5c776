// What a block is printed with: lines that know how wide they are, numbers before what can be pressed, prices and
// facts.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/native/view_printer.h"

namespace backbeat {

/// The terminal's codes.
inline constexpr const char* bold = "\x1b[1m";
inline constexpr const char* faint = "\x1b[2m";
const char* colourOf(Tone tone);

/// What stands behind the name of something locked, which colour alone would not tell everybody; else nothing.
const char* lockOf(Tone tone);

/// A stretch of a line and the columns it takes; codes of colour take none. What is added is on one line already.
class Inked {
 public:
  Inked& add(std::string_view text, const char* code = "");
  Inked& add(const Inked& other);
  /// Blanks up to the column.
  Inked& to(size_t column);

  /// Ends it with "…" where it is wider.
  Inked& cut(size_t columns);

  size_t columns() const { return columns_; }
  /// With the terminal's codes or without.
  std::string text(bool colour) const;

 private:
  struct Piece {
    std::string text;
    const char* code;
  };
  std::vector<Piece> pieces_;
  size_t columns_ = 0;
};

class PrintedPage {
 public:
  /// `width` is that of the terminal, in columns: what lies outside of the narrowest and the widest page counts as the
  /// nearest.
  PrintedPage(const Navigator& navigator, int64_t screenKey, bool colour, size_t width);

  /// What a line is put together from; begins behind the margin of a block.
  static Inked inked(size_t margin = blockMargin);
  void put(Inked line);
  /// `left`, and `right` from the column `at` on, or as near to it as the page lets it; where both do not fit, `right`
  /// stands on a line of its own.
  void put(Inked left, const Inked& right, size_t at);
  void line(std::string_view text, const char* code = "");
  void paragraph(std::string_view text, const char* code = "", size_t margin = blockMargin);
  /// "Beds 3 · Baths 2", on as many lines as it takes.
  void facts(const std::vector<Fact>& facts, size_t margin = 2 * blockMargin);

  /// Takes the pressable in and answers with its number, "[3] ". Without a screen of its own it belongs to this one.
  std::string number(Pressable pressable);
  /// The same for what a plain press reaches; nothing for what has no id.
  std::string numberOf(const std::string& id, const std::string& label, const std::string& value = {});

  /// What a press costs, with a mark when it cannot be paid; nothing when it is free.
  Inked price(const std::optional<Price>& price) const;

  size_t width() const { return width_; }
  /// How long a bar is: as long as all others of the page.
  size_t barColumns() const { return width_ < 60 ? 10 : 20; }

  void forgetPressables() { printed_.pressables.clear(); }
  PrintedScreen take() { return std::move(printed_); }

  static constexpr size_t blockMargin = 2;

 private:
  const Navigator& navigator_;
  std::string screenKey_;
  bool colour_;
  size_t width_;
  PrintedScreen printed_;
};

}  // namespace backbeat
