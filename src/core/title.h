// The titles of alerts. A title registers itself where it is written, so that the game knows all of its own and a test
// can ask for each.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace backbeat {

/// A text that can be a template argument.
template <size_t size>
struct FixedText {
  char text[size] = {};
  consteval FixedText(const char (&from)[size]) { std::copy_n(from, size, text); }
};

/// One title in the chain of all that the program has; linked in before it begins.
class TitleEntry {
 public:
  TitleEntry(const char* text, const char* about) : text_(text), about_(about), next_(std::exchange(chain, this)) {}
  TitleEntry(const TitleEntry&) = delete;
  TitleEntry& operator=(const TitleEntry&) = delete;

  static const TitleEntry* first() { return chain; }
  const TitleEntry* next() const { return next_; }
  std::string_view text() const { return text_; }
  /// The text, and what it is about where that was said.
  std::string name() const;

 private:
  inline static const TitleEntry* chain = nullptr;
  const char* text_;
  const char* about_;
  const TitleEntry* next_;
};

template <FixedText words, FixedText about>
struct TitleEntryOf {
  inline static const TitleEntry entry{words.text, about.text};
};

class AlertTitle;

/// A registered title: `alertTitle<"🔥 Add Songs 🔥">`. Tables hold it by value. There is no other way to one.
class Title {
 public:
  std::string_view text() const { return entry_->text(); }
  std::string name() const { return entry_->name(); }
  /// The title with `inserted` for its star: `alertTitle<"Remove * Expense?">.with("FOOD")`.
  AlertTitle with(std::string_view inserted) const;

  template <FixedText words, FixedText about>
  static constexpr Title registered() {
    return Title(&TitleEntryOf<words, about>::entry);
  }

 private:
  constexpr explicit Title(const TitleEntry* entry) : entry_(entry) {}
  const TitleEntry* entry_;
};

/// Where nearly all the words come at run time, `about` tells one such title from another: `alertTitle<"*",
/// "lifestyle">`.
template <FixedText words, FixedText about = "">
inline constexpr Title alertTitle = Title::registered<words, about>();

/// A title as one alert shows it.
class AlertTitle {
 public:
  AlertTitle(Title title) : from(title), text(title.text()) {}
  AlertTitle(Title title, std::string words) : from(title), text(std::move(words)) {}

  Title from;
  std::string text;
};

}  // namespace backbeat
