// A screen: its own working values, its operations by name, and a description of itself as data.
#pragma once

#include <charconv>
#include <memory>
#include <optional>
#include <string_view>

#include "core/game.h"
#include "core/outcome.h"
#include "core/view.h"

namespace backbeat {

/// Only the navigator opens, shows and closes screens. A constructor does nothing; a screen addresses records by id, or
/// by index where ids can repeat, never by pointer, for lists are sorted while it is open.
class Screen {
 public:
  explicit Screen(Game& game) : game_(game) {}
  virtual ~Screen() = default;
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  /// Once: what opening does, draws included.
  virtual Outcome open() { return {}; }
  /// Each time the screen becomes visible.
  virtual Outcome appear() { return {}; }
  /// One press. An id that the screen does not know, or a value that makes no sense, changes nothing.
  virtual Outcome act(const Action& action) = 0;
  /// What the screen says of itself: reads the state, draws nothing from `Random`, saves nothing.
  virtual View view() const = 0;

 protected:
  const GameState& state() const { return game_.state; }

  Game& game_;
};

/// A whole number from text; nothing unless the whole text is one.
inline std::optional<int64_t> wholeNumber(std::string_view text) {
  int64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

/// The option number that a press on a choice of `count` options carries.
inline std::optional<size_t> optionNumber(std::string_view text, size_t count) {
  const std::optional<int64_t> number = wholeNumber(text);
  if (!number || *number < 0 || static_cast<uint64_t>(*number) >= count) return std::nullopt;
  return static_cast<size_t>(*number);
}

/// The part of a long list that a screen describes: rows `from` on, `pageSize` at most.
struct ListWindow {
  static constexpr int64_t pageSize = 60;
  int64_t from = 0;

  /// Takes the row number that a press carries; nonsense leaves the window where it is.
  void moveTo(std::string_view value) {
    if (const auto row = wholeNumber(value); row && *row >= 0) from = *row;
  }
  /// The first row to show of `total`, however the list has shrunk since.
  int64_t first(int64_t total) const {
    if (from < total) return from;
    return total <= pageSize ? 0 : (total - 1) / pageSize * pageSize;
  }
  int64_t last(int64_t total) const { return first(total) + pageSize < total ? first(total) + pageSize : total; }
};

/// Describes rows `first` to `last` of `total` under the id of their window.
template <class Describe>
Rows windowedRows(std::string id, const ListWindow& window, int64_t total, Describe&& describe) {
  Rows rows;
  rows.id = std::move(id);
  rows.total = total;
  rows.from = window.first(total);
  for (int64_t i = rows.from; i < window.last(total); ++i) rows.items.push_back(describe(static_cast<size_t>(i)));
  return rows;
}

}  // namespace backbeat
