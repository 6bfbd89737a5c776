#include "core/score_table.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "core/text.h"

namespace backbeat {

namespace {

constexpr std::string_view lifeLine = "life";
constexpr std::string_view scoreLine = "score";

/// Takes the part up to `end` off the front.
std::string_view takeUpTo(std::string_view& text, char end) {
  const size_t at = text.find(end);
  const std::string_view part = text.substr(0, at);
  text = at == std::string_view::npos ? std::string_view() : text.substr(at + 1);
  return part;
}

std::optional<int64_t> takeNumber(std::string_view& line) {
  const std::string_view part = takeUpTo(line, ' ');
  int64_t number = 0;
  const auto [end, error] = std::from_chars(part.data(), part.data() + part.size(), number);
  if (error != std::errc() || end != part.data() + part.size()) return std::nullopt;
  return number;
}

/// A name as one line can hold it.
std::string oneLine(std::string_view name) {
  constexpr size_t longest = 200;
  std::string line = firstCharacters(name, longest);
  std::replace_if(
      line.begin(), line.end(), [](unsigned char c) { return c < ' '; }, ' ');
  return line;
}

bool isSame(const Life& a, const Life& b) { return a.careerId == b.careerId && a.generation == b.generation; }

}  // namespace

ScoreTable::ScoreTable(std::string_view text) {
  const std::string stored = validUtf8(text);
  std::string_view left = stored;
  LifeScores* row = nullptr;
  while (!left.empty()) {
    std::string_view line = takeUpTo(left, '\n');
    const std::string_view kind = takeUpTo(line, ' ');
    if (kind == lifeLine) {
      const std::optional<int64_t> careerId = takeNumber(line);
      const std::optional<int64_t> generation = takeNumber(line);
      row = careerId && generation ? &rowOf({*careerId, *generation, oneLine(line)}) : nullptr;
    } else if (kind == scoreLine && row) {
      const std::string leaderboard(takeUpTo(line, ' '));
      if (const std::optional<int64_t> value = takeNumber(line)) row->scores[leaderboard] = *value;
    }
  }
}

bool ScoreTable::take(const Life& life, const Score& score) {
  LifeScores& row = rowOf({life.careerId, life.generation, oneLine(life.artistName)});
  const auto [kept, isNew] = row.scores.try_emplace(std::string(score.leaderboard), score.value);
  const bool isHigher = isNew || score.value > kept->second;
  kept->second = std::max(kept->second, score.value);
  return isHigher;
}

LifeScores& ScoreTable::rowOf(const Life& life) {
  const auto found =
      std::find_if(lives_.begin(), lives_.end(), [&](const auto& row) { return isSame(row.life, life); });
  if (found == lives_.end()) {
    if (lives_.size() == mostLives) lives_.erase(lives_.begin());
    lives_.push_back({life, {}});
  } else {
    found->life.artistName = life.artistName;
    std::rotate(found, found + 1, lives_.end());
  }
  return lives_.back();
}

std::string ScoreTable::text() const {
  std::string text;
  for (const auto& [life, scores] : lives_) {
    text += std::string(lifeLine) + " " + std::to_string(life.careerId) + " " + std::to_string(life.generation) + " " +
            life.artistName + "\n";
    for (const auto& [leaderboard, value] : scores) {
      text += std::string(scoreLine) + " " + leaderboard + " " + std::to_string(value) + "\n";
    }
  }
  return text;
}

}  // namespace backbeat
