#include "recognition/segues.h"

#include <algorithm>

#include "core/money.h"
#include "recognition/news.h"
#include "recognition/screens/gram_award_detail_view_controller.h"
#include "recognition/screens/grammy_award_announcement_view_controller.h"
#include "recognition/screens/music_award_view_controller.h"

namespace backbeat {

namespace {

using enum Segue::Presentation;

constexpr Segue segues[] = {
    {"goToMusicAward", "MusicAwardViewController", modal, makeScreen<MusicAwardViewController>},
    {"goToGrammyAwardAnnouncement", "GrammyAwardAnnouncementViewController", modal,
     makeScreen<GrammyAwardAnnouncementViewController>},
    {"goToGramAwardDetail", "GramAwardDetailViewController", push, makeScreen<GramAwardDetailViewController>},
};

void describeAwards(const Game& game, Row& row) {
  const RecordList<Award>& awards = game.state.saveAllMusicAwards;
  if (awards.empty()) return;
  const auto won = std::count_if(awards.begin(), awards.end(), [](const Award& award) { return award.isWinner >= 1; });
  row.subtitle = counted(static_cast<int64_t>(awards.size()), "nomination");
  if (won > 0) row.value = counted(won, "win");
}

constexpr MenuLine menu[] = {
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

const Room recognitionRoom = {.segues = segues, .menu = menu, .addNeeds = addAwardNeeds, .addNews = addAwardNews};

}  // namespace backbeat
