#include "recognition/screens/achievements_view_controller.h"

#include <algorithm>

#include "core/money.h"
#include "core/sorting.h"
#include "core/view_words.h"

namespace backbeat {

namespace {

constexpr size_t mostNearest = 5;
constexpr size_t mostCelebrated = 3;

Picture medalOf(const Achievement& goal) { return drawn(Picture::Kind::object, "medal", goal.icon); }

Card cardOf(const Achievement& goal, bool isNew) {
  return {.picture = medalOf(goal),
          .title = std::string(goal.title),
          .text = goal.task() + (isNew ? " · New" : ""),
          .tone = isNew ? Tone::good : Tone::plain};
}

double shareOf(const Progress& progress) { return backbeat::shareOf(progress.now, progress.needed); }

/// What happens or does not happen has no way to tell.
bool hasWay(const Progress& progress) { return progress.needed > 1; }

}  // namespace

Outcome AchievementsViewController::appear() {
  reached_ = completeReached(game_);
  standings_.clear();
  for (const Achievement& goal : achievements()) {
    Standing standing{&goal, isCompleted(state(), goal.id), {}};
    if (!standing.isCompleted && goal.measure) standing.progress = goal.measure(state(), goal.amount);
    standings_.push_back(standing);
  }
  return reached_.empty() ? Outcome{} : success();
}

Outcome AchievementsViewController::act(const Action& /*action*/) { return {}; }

View AchievementsViewController::view() const {
  const std::string count = std::to_string(completedCount(state())) + " of " + std::to_string(achievements().size());
  View view{.title = "Achievements", .subtitle = "Achieved " + count, .theme = Theme::gala};
  describeStacks(view);
  describeReached(view);
  describeNearest(view);
  for (size_t kind = 0; kind < goalKinds.size(); ++kind) describeKind(view, static_cast<GoalKind>(kind));
  view.help = Help{.title = "Achievements",
                   .text =
                       "\nGoals are looked for when you open this screen, and once reached they stay reached, in the "
                       "lives of your heirs and after a restart too."};
  return view;
}

void AchievementsViewController::describeStacks(View& view) const {
  std::array<int64_t, goalKinds.size()> all{};
  std::array<int64_t, goalKinds.size()> completed{};
  for (const Standing& standing : standings_) {
    const auto kind = static_cast<size_t>(standing.goal->kind);
    all[kind] += 1;
    completed[kind] += standing.isCompleted ? 1 : 0;
  }
  Gauges stacks{.title = std::to_string(completedCount(state())) + " of " + std::to_string(achievements().size()),
                .note = std::to_string(goalKinds.size()) + " categories",
                .style = Gauges::Style::stacks};
  for (size_t kind = 0; kind < goalKinds.size(); ++kind) {
    stacks.items.push_back({.label = std::string(goalKinds[kind].title),
                            .value = std::to_string(completed[kind]) + " of " + std::to_string(all[kind]),
                            .share = backbeat::shareOf(completed[kind], all[kind]),
                            .steps = all[kind],
                            .icon = std::string(goalKinds[kind].icon)});
  }
  view.add(std::move(stacks));
}

/// What was reached just now, else the latest of all.
void AchievementsViewController::describeReached(View& view) const {
  const size_t celebrated = std::min(mostCelebrated, reached_.size());
  for (size_t i = 0; i < celebrated; ++i) view.add(cardOf(*reached_[i], true));
  if (reached_.size() > celebrated) {
    view.add(caption("and " + std::to_string(reached_.size() - celebrated) + " more"));
  }
  if (!reached_.empty() || state().AllCompletedAchievements.empty()) return;
  if (const Achievement* latest = achievementWithId(state().AllCompletedAchievements.back())) {
    view.add(cardOf(*latest, false));
  }
}

void AchievementsViewController::describeNearest(View& view) const {
  std::vector<const Standing*> open;
  for (const Standing& standing : standings_) {
    if (!standing.isCompleted && hasWay(standing.progress) && standing.progress.now > 0) open.push_back(&standing);
  }
  sortStably(open, [](const Standing* a, const Standing* b) { return shareOf(a->progress) > shareOf(b->progress); });
  if (open.empty()) return;
  view.add(Heading{"Nearly there"});
  Rows rows;
  for (size_t i = 0; i < std::min(mostNearest, open.size()); ++i) rows.items.push_back(rowOf(*open[i]));
  view.add(std::move(rows));
}

void AchievementsViewController::describeKind(View& view, GoalKind kind) const {
  view.add(Heading{std::string(goalKinds[static_cast<size_t>(kind)].title)});
  Rows rows;
  for (const Standing& standing : standings_) {
    if (standing.goal->kind == kind) rows.items.push_back(rowOf(standing));
  }
  view.add(std::move(rows));
}

Row AchievementsViewController::rowOf(const Standing& standing) {
  const Achievement& goal = *standing.goal;
  Row row{.picture = icon(std::string(goal.icon)),
          .title = std::string(goal.title),
          .subtitle = goal.task(),
          .selected = standing.isCompleted};
  if (standing.isCompleted || !hasWay(standing.progress)) return row;
  row.value = goal.amountText(std::max(standing.progress.now, 0.0));
  row.note = "of " + goal.amountText(standing.progress.needed);
  row.share = shareOf(standing.progress);
  return row;
}

}  // namespace backbeat
