#include "recognition/segues.h"

#include <algorithm>

#include "core/money.h"
#include "recognition/achievements.h"
#include "recognition/news.h"
#include "recognition/screens/achievements_view_controller.h"
#include "recognition/screens/gram_award_detail_view_controller.h"
#include "recognition/screens/grammy_award_announcement_view_controller.h"
#include "recognition/screens/music_award_view_controller.h"
#include "recognition/screens/records_view_controller.h"
#include "recognition/screens/year_in_review_view_controller.h"
#include "recognition/screens/yearly_music_stats_view_controller.h"

namespace backbeat {

namespace {

using enum Segue::Presentation;

constexpr Segue segues[] = {
    {"goToMusicAward", "MusicAwardViewController", modal, makeScreen<MusicAwardViewController>},
    {"goToGrammyAwardAnnouncement", "GrammyAwardAnnouncementViewController", modal,
     makeScreen<GrammyAwardAnnouncementViewController>},
    {"goToGramAwardDetail", "GramAwardDetailViewController", push, makeScreen<GramAwardDetailViewController>},
    {"goToAchievements", "AchievementsViewController", push, makeScreen<AchievementsViewController>},
    {"goToRecords", "RecordsViewController", push, makeScreen<RecordsViewController>},
    {"goToYearlyMusicStats", "YearlyMusicStatsViewController", push, makeScreen<YearlyMusicStatsViewController>},
    {"goToYearInReview", "YearInReviewViewController", modal, makeScreenWithId<YearInReviewViewController>},
};

void describeAwards(const Game& game, Row& row) {
  const RecordList<Award>& awards = game.state.saveAllMusicAwards;
  if (awards.empty()) return;
  const auto won = std::count_if(awards.begin(), awards.end(), [](const Award& award) { return award.isWinner >= 1; });
  row.subtitle = counted(static_cast<int64_t>(awards.size()), "nomination");
  if (won > 0) row.value = counted(won, "win");
}

void describeAchievements(const Game& game, Row& row) {
  const std::string all = std::to_string(achievements().size());
  row.subtitle = "Achieved " + std::to_string(completedCount(game.state)) + " of " + all;
  if (const int64_t waiting = goalsToCollect(game); waiting > 0) row.badge = std::to_string(waiting) + " to collect";
}

constexpr MenuLine menu[] = {
    {.tab = homeTab,
     .section = "More",
     .order = 130,
     .icon = "trophy",
     .title = "Achievements",
     .segue = "goToAchievements",
     .describe = describeAchievements},
    {.tab = homeTab,
     .section = "More",
     .order = 140,
     .icon = "podium",
     .title = "Records",
     .subtitle = "The best of all your lives",
     .segue = "goToRecords"},
    {.tab = homeTab,
     .section = "More",
     .order = 150,
     .icon = "calendar",
     .title = "Yearly Statistics",
     .subtitle = "What each year brought",
     .segue = "goToYearlyMusicStats"},
    {.tab = musicTab,
     .section = "Reach",
     .order = 135,
     .icon = "statuette",
     .title = "GRAM Awards",
     .subtitle = "The music awards of the year",
     .segue = "goToGramAwardDetail",
     .describe = describeAwards},
};

}  // namespace

const Room recognitionRoom = {
    .name = "recognition", .segues = segues, .menu = menu, .addNeeds = addAwardNeeds, .addNews = addAwardNews};

}  // namespace backbeat
