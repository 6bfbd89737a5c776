#include "recognition/screens/records_view_controller.h"

#include <algorithm>

#include "core/assisted.h"
#include "core/money.h"
#include "core/sorting.h"
#include "core/view_words.h"

namespace backbeat {

namespace {

std::string amountText(const HighScore& score, int64_t amount) {
  return score.dollars ? currency(static_cast<double>(amount)) : withCommas(amount);
}

bool isThisLife(const GameState& state, const Life& life) {
  return life.careerId == state.careerId && life.generation == state.ageAtTakeover;
}

std::string generationOf(const Life& life) {
  return life.generation == 0 ? "First of the family" : "Took over in " + std::to_string(life.generation);
}

}  // namespace

Outcome RecordsViewController::appear() {
  values_.clear();
  for (const HighScore& score : highScores()) values_.push_back(score.value(game_));
  return {};
}

Outcome RecordsViewController::act(const Action& action) {
  if (action.id == "compare") compared_ = optionNumber(action.value, highScores().size()).value_or(compared_);
  return {};
}

View RecordsViewController::view() const {
  View view{.title = "Records", .theme = Theme::gala};
  view.add(Text{.text = "The best of all your lives. Scores are told in weeks 24 and 48 of the year, and only rise.",
                .style = Text::Style::caption});
  addAssistedMark(view, state());
  view.add(Rows{});
  for (size_t i = 0; i < values_.size(); ++i) describeRecord(view, i);
  describeLives(view);
  return view;
}

void RecordsViewController::describeRecord(View& view, size_t number) const {
  const HighScore& score = highScores()[number];
  const int64_t best = state().*score.best;
  const std::optional<int64_t> value = values_[number];
  Row row{.picture = icon(std::string(score.icon)), .title = std::string(score.title)};
  if (best > 0) row.value = amountText(score, best);
  if (best > 0 && value == best) {
    row.subtitle = score.holder(state());
    row.selected = true;
    row.note = "to beat: " + amountText(score, best + 1);
  } else {
    row.subtitle = value ? "This life: " + amountText(score, *value) : "Nothing in this life yet";
    row.note = best > 0 ? "to beat: " + amountText(score, best + 1) : "no record yet";
    if (value && best > 0) row.share = shareOf(*value, best + 1);
  }
  std::get<Rows>(view.blocks.back()).items.push_back(std::move(row));
}

void RecordsViewController::describeLives(View& view) const {
  const HighScore& score = highScores()[compared_];
  Choice by{.id = "compare", .label = "Compare by", .selected = static_cast<int64_t>(compared_)};
  for (const HighScore& each : highScores()) by.options.push_back({.label = std::string(each.title)});
  std::vector<std::pair<int64_t, const Life*>> lives;
  for (const LifeScores& each : game_.platform.scoredLives()) {
    const auto found = each.scores.find(score.leaderboard);
    if (found != each.scores.end()) lives.emplace_back(found->second, &each.life);
  }
  sortStably(lives, [](const auto& a, const auto& b) { return a.first > b.first; });
  view.add(Heading{"Lives on this device"});
  view.add(std::move(by));
  if (lives.empty()) {
    view.add(EmptyHint{.icon = "podium", .text = "No life has scored here yet"});
    return;
  }
  Rows rows;
  for (const auto& [value, life] : lives) {
    rows.items.push_back({.picture = person(life->artistName),
                          .title = rank(static_cast<int64_t>(rows.items.size()) + 1) + " " + life->artistName,
                          .subtitle = generationOf(*life),
                          .value = amountText(score, value),
                          .badge = isThisLife(state(), *life) ? "You" : ""});
  }
  view.add(std::move(rows));
}

}  // namespace backbeat
