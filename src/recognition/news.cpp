#include "recognition/news.h"

#include <algorithm>

#include "core/money.h"
#include "recognition/award_fields.h"
#include "recognition/music_awards.h"

namespace backbeat {

namespace {

Picture statuette(int64_t year) { return drawn(Picture::Kind::object, "fork", std::to_string(year)); }

bool isWinner(const Award& award) { return award.isWinner >= 1; }
bool isNomination(const Award& /*award*/) { return true; }

/// What a night brought to one side: the artist, or the label.
struct Told {
  std::vector<const Award*> awards;
  bool isFirst = true;  ///< no year before brought one
};

Told toldOf(const GameState& state, int64_t year, bool own, bool (*counts)(const Award&)) {
  Told told;
  for (const Award& award : state.saveAllMusicAwards) {
    if (award.yearAwarded >= year) break;
    if (isOwn(state, award) == own && counts(award)) told.isFirst = false;
  }
  for (const Award& award : awardsOfYear(state, year)) {
    if (isOwn(state, award) == own && counts(award)) told.awards.push_back(&award);
  }
  return told;
}

/// "2 more nominations; "
std::string besides(const Told& told, const char* what) {
  const auto others = static_cast<int64_t>(told.awards.size()) - 1;
  return others == 0 ? "" : counted(others, what) + "; ";
}

void addNominations(const GameState& state, int64_t year, std::vector<News>& news) {
  for (const bool own : {true, false}) {
    const Told told = toldOf(state, year, own, isNomination);
    if (told.awards.empty()) continue;
    const Award& first = *told.awards[0];
    const char* kicker =
        own ? (told.isFirst ? "Your first GRAM nomination" : "GRAM nominations") : "Your label at the GRAM Awards";
    news.push_back(
        {.kind = told.isFirst ? News::Kind::first : News::Kind::reached,
         .rank = own ? (told.isFirst ? 640 : 420) : 280,
         .key = own ? "nomination" : "label nomination",
         .picture = statuette(year),
         .kicker = kicker,
         .headline = "“" + first.songOrAlbumName + "” is up for " + first.nameOfAward,
         .text = besides(told, "more nomination") + "the winners are told in week " + std::to_string(winnersWeek)});
  }
}

void addWins(const GameState& state, int64_t year, std::vector<News>& news) {
  for (const bool own : {true, false}) {
    const Told told = toldOf(state, year, own, isWinner);
    if (told.awards.empty()) continue;
    const Award& first = *told.awards[0];
    news.push_back(
        {.kind = told.isFirst ? News::Kind::first : News::Kind::reached,
         .rank = own ? (told.isFirst ? 920 : 860) : (told.isFirst ? 540 : 330),
         .key = own ? "gram" : "label gram",
         .picture = statuette(year),
         .kicker = own ? (told.isFirst ? "Your first GRAM" : "A GRAM")
                       : (told.isFirst ? "Your label's first GRAM" : "A GRAM for your label"),
         .headline = "“" + first.songOrAlbumName + "” is " + first.nameOfAward,
         .text = besides(told, "more win") + first.artistName + " at the " + std::to_string(year) + " GRAM Awards"});
  }
}

}  // namespace

void addAwardNeeds(const Game& game, std::vector<Need>& needs) {
  const GameState& state = game.state;
  const AwardShow show = showAwardButton(state);
  if (show == AwardShow::none) return;
  // A year without nominations has no night to go to.
  if (show == AwardShow::winners && awardStage(state) != award_stage::nominated) return;
  const bool isNominations = show == AwardShow::nominations;
  const std::string year = std::to_string(state.yearNumber);
  needs.push_back({.priority = 305,
                   .picture = statuette(state.yearNumber),
                   .title = year + (isNominations ? " GRAM nominations" : " GRAM awards night"),
                   .subtitle = isNominations ? "Unopened, the year has none" : "The envelopes are waiting",
                   .badge = isNominations ? "Last days" : "Tonight",
                   .segue = isNominations ? "goToMusicAward" : "goToGrammyAwardAnnouncement"});
}

void addAwardNews(const Game& game, std::vector<News>& news) {
  const GameState& state = game.state;
  const CalendarWeek week = game.turn.before.week;
  if (state.awardYear.empty() || state.awardYear[0].year != week.year) return;
  if (week.week == nominationsWeek) addNominations(state, week.year, news);
  if (week.week == winnersWeek && state.awardYear[0].stage == award_stage::decided) addWins(state, week.year, news);
}

}  // namespace backbeat
