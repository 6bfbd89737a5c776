#include "recognition/screens/gram_award_detail_view_controller.h"

#include <algorithm>

#include "core/money.h"
#include "music/chart.h"
#include "music/covers.h"
#include "recognition/award_fields.h"

namespace backbeat {

namespace {

constexpr int64_t lastOfTop100 = 100;

/// The song that came onto the chart first; nullptr when none did.
const BillboardSong* firstHit(const GameState& state) {
  const BillboardSong* first = nullptr;
  for (const BillboardSong& row : state.saveAllBillboardSongList) {
    if (!isOwnSong(row) || row.peakPosition > lastOfTop100) continue;
    if (!first || row.weekNumber < first->weekNumber) first = &row;
  }
  return first;
}

/// "... their first career GRAM win -Record of the Year for the hit song ...". An album is called a song too: intended.
std::string firstOf(const GameState& state, const char* what, const Award& award) {
  return state.myArtistsName + "'s meteoric rise gave way to their first career GRAM " + what + " -" +
         award.nameOfAward + " for the hit song " + award.songOrAlbumName + " at the " +
         std::to_string(award.yearAwarded) + " GRAM Awards";
}

Row describe(const GameState& state, const Award& award) {
  const bool own = isOwn(state, award);
  const bool isOwnSong = own && award.isSongOrAlbum == 0;
  return {.picture =
              isOwnSong ? coverOfSong(state, award.songOrAlbumId, award.songOrAlbumName) : cover(award.songOrAlbumName),
          .title = award.songOrAlbumName,
          .subtitle = award.nameOfAward + (own ? "" : " · " + award.artistName),
          .value = std::to_string(award.yearAwarded),
          .selected = award.isWinner >= 1};
}

}  // namespace

Outcome GramAwardDetailViewController::act(const Action& action) {
  if (action.id == "awards") window_.moveTo(action.value);
  return {};
}

void GramAwardDetailViewController::describeCareer(View& view) const {
  const RecordList<Award>& awards = state().saveAllMusicAwards;
  const auto own = [&](const Award& award) { return isOwn(state(), award); };
  const size_t nominated = awards.find(own);
  const size_t won = awards.find([&](const Award& award) { return own(award) && award.isWinner >= 1; });
  const BillboardSong* hit = firstHit(state());
  if (!hit && nominated == awards.size()) return;
  view.add(Heading{"Firsts"});
  Rows rows{.style = Rows::Style::wire};
  if (hit) {
    rows.items.push_back({.picture = icon("chart"),
                          .title = state().myArtistsName + " landed their first Top 100 song in " +
                                   std::to_string(hit->yearDebut) + " with " + hit->songTitle + " (No. " +
                                   std::to_string(hit->peakPosition) + ")"});
  }
  if (nominated != awards.size()) {
    rows.items.push_back({.picture = icon("envelope"), .title = firstOf(state(), "nomination", awards[nominated])});
  }
  if (won != awards.size()) {
    rows.items.push_back({.picture = icon("trophy"), .title = firstOf(state(), "win", awards[won])});
  }
  view.add(std::move(rows));
}

View GramAwardDetailViewController::view() const {
  View view{.title = "GRAM Awards", .theme = Theme::gala};
  view.help =
      Help{.title = "GRAM Awards",
           .text =
               "\nIn order to be nominated for a GRAM, you must view the nominations on the End Week Summary "
               "Screen.\n\nOn WEEK 42 summary screen, tap 'View Annual GRAM Nominations'\n\nWINNERS\nYou can view GRAM "
               "award winners on WEEK 49 by tapping the same button on the End Week Summary Screen\n\nCRITERIA\nAll "
               "songs and/or albums released in the same year before WEEK 42 and have a production rating 70+ are "
               "eligible to be nominated and win a GRAM."};
  const RecordList<Award>& awards = state().saveAllMusicAwards;
  if (awards.empty()) {
    view.add(EmptyHint{.icon = "statuette", .text = "You haven't received any nominations or awards"});
    describeCareer(view);
    return view;
  }
  const auto won = std::count_if(awards.begin(), awards.end(), [](const Award& award) { return award.isWinner >= 1; });
  view.add(
      Tiles{{{.icon = "trophy", .label = "Won", .value = withCommas(won)},
             {.icon = "envelope", .label = "Nominated", .value = withCommas(static_cast<int64_t>(awards.size()))}}});
  describeCareer(view);
  view.add(Heading{"Nominations"});
  const auto total = static_cast<int64_t>(awards.size());
  view.add(windowedRows("awards", window_, total,
                        [&](size_t i) { return describe(state(), awards[awards.size() - 1 - i]); }));
  return view;
}

}  // namespace backbeat
