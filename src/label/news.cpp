#include "label/news.h"

#include <algorithm>
#include <map>

#include "core/money.h"
#include "core/week_rows.h"
#include "label/roster.h"
#include "label/signed_artist_output.h"
#include "label/staff.h"
#include "music/chart.h"

namespace backbeat {

namespace {

std::string quoted(const std::string& title) { return "“" + title + "”"; }

/// What is told of one artist, behind the name, and of several, behind their number.
struct DueWords {
  std::string title;
  std::string subtitle;
};

/// One need for all artists whom it is about; of one it leads to them.
void addDue(std::vector<Need>& needs, const DueArtists& due, int64_t priority, const DueWords& one,
            const DueWords& several) {
  if (due.count == 0) return;
  const DueWords& words = due.count == 1 ? one : several;
  Need need{.priority = priority, .picture = person(due.first->name), .badge = "!"};
  need.title = (due.count == 1 ? due.first->name : std::to_string(due.count)) + words.title;
  need.subtitle = words.subtitle;
  need.segue = due.count == 1 ? "goToSignedArtistDetail" : "goToSignedArtists";
  if (due.count == 1) need.argument = std::to_string(due.first->artistId);
  needs.push_back(std::move(need));
}

void addStaffNeeds(const GameState& state, std::vector<Need>& needs) {
  const RecordList<Employee>& staff = state.saveAllEmployeeList;
  if (staff.empty()) {
    needs.push_back({.priority = 170,
                     .picture = icon("label"),
                     .title = state.myLabelName + " has no staff",
                     .subtitle = "Nobody scouts, nobody sells",
                     .segue = "goToLabelDetail"});
    return;
  }
  if (std::none_of(state.saveAllSignedArtistList.begin(), state.saveAllSignedArtistList.end(),
                   [](const SignedArtist& artist) { return artist.underContract; })) {
    needs.push_back({.priority = 165,
                     .picture = icon("label"),
                     .title = "Nobody has signed with " + state.myLabelName,
                     .subtitle = "Your staff are paid all the same",
                     .segue = "goToLabelDetail"});
  }
  const auto unhappy = std::count_if(staff.begin(), staff.end(),
                                     [](const Employee& employee) { return employee.employeeMorale < unhappyBelow; });
  if (unhappy == 0) return;
  needs.push_back(
      {.priority = 145,
       .picture = icon("people"),
       .title = unhappy == 1 ? "One of your staff is unhappy" : std::to_string(unhappy) + " of your staff are unhappy",
       .subtitle = "Their ratings will fall",
       .segue = "goToLabelDetail"});
}

void addFirstSigning(const Game& game, std::vector<News>& news) {
  // Only a label that closes forgets whom it signed.
  constexpr int64_t firstId = 1;
  const RecordList<SignedArtist>& artists = game.state.saveAllSignedArtistList;
  if (artists.empty() || artists[0].artistId != firstId || artists[0].weekSigned != game.turn.before.absoluteWeek) {
    return;
  }
  news.push_back({.kind = News::Kind::first,
                  .rank = 520,
                  .key = "first signing",
                  .picture = person(artists[0].name),
                  .kicker = "The first artist of " + game.state.myLabelName,
                  .headline = artists[0].name + " signed with you",
                  .text = abbreviated(static_cast<double>(artists[0].monthlyListeners)) + " people listen already"});
}

/// Songs of the label that came onto the chart this week, or to its top for the first time.
void addChartNews(const Game& game, std::vector<News>& news) {
  const GameState& state = game.state;
  const RecordList<BillboardSong>& chart = state.saveAllBillboardSongList;
  for (const auto& week : rowsOfWeek(state.saveAllSignedArtistWeeklySongListens, game.turn.before.week)) {
    if (week.songListens < game.turn.lastPlaceChartPosition) continue;
    const auto known = chart.historyOf(week.songId + signedArtistSongOffset);
    const size_t position = artistPosition(state, week.artistId);
    if (known.empty() || position == state.saveAllSignedArtistList.size()) continue;
    const BillboardSong& row = chart[known.front()];
    const bool isNumberOne = row.isOnCharts && row.rankThisWeek == 1 && row.weeksAtOne == 1;
    const bool isDebut = row.isOnCharts && row.weekNumber == game.turn.before.absoluteWeek;
    if (!isNumberOne && !isDebut) continue;
    const std::string& artist = state.saveAllSignedArtistList[position].name;
    news.push_back(
        {.rank = isNumberOne ? 560 : 240,
         .key = isNumberOne ? "label number one" : "label chart entry",
         .picture = person(artist),
         .kicker = isNumberOne ? "Number one for " + state.myLabelName : "New on the chart",
         .headline = quoted(week.songTitle) + (isNumberOne ? " by " + artist + " is number one"
                                                           : " by " + artist + " enters at " + rank(row.rankThisWeek)),
         .text = counted(week.songListens, "stream"),
         .figure = std::to_string(row.rankThisWeek)});
  }
}

/// Artists whose last song that streamed fell silent this week.
void addSilences(const Game& game, std::vector<News>& news) {
  const GameState& state = game.state;
  const RecordList<SignedArtistSong>& songs = state.saveAllSignedArtistSongList;
  std::map<int64_t, double> lives;          // the longest of each artist
  for (const uint32_t i : songs.awake()) {  // the others were silent before this week
    const double life = remainingLife(state, songs[i]);
    const auto [known, isNew] = lives.try_emplace(songs[i].artistId, life);
    if (!isNew) known->second = std::max(known->second, life);
  }
  for (const auto& [artistId, life] : lives) {
    const size_t position = artistPosition(state, artistId);
    if (life > 0 || !(life > -1) || position == state.saveAllSignedArtistList.size()) continue;
    const std::string& artist = state.saveAllSignedArtistList[position].name;
    news.push_back({.kind = News::Kind::ended,
                    .rank = 130,
                    .key = "label silence",
                    .picture = person(artist),
                    .headline = artist + " has gone silent",
                    .text = "None of their songs streams any more",
                    .tone = Tone::plain});
  }
}

void addEndedContracts(const GameState& state, std::vector<News>& news) {
  for (const SignedArtist& artist : state.saveAllSignedArtistList) {
    // The one that ended with this week; no contract is shorter than a year.
    if (!artist.underContract || weeksLeft(state, artist) != 0) continue;
    news.push_back({.kind = News::Kind::ended,
                    .rank = 235,
                    .key = "contract up",
                    .picture = person(artist.name),
                    .headline = artist.name + "'s contract is up",
                    .text = "The album rests until you renew it",
                    .tone = Tone::warning});
  }
}

}  // namespace

void addLabelNeeds(const Game& game, std::vector<Need>& needs) {
  const GameState& state = game.state;
  if (state.isLabelLaunched < 1) return;
  addStaffNeeds(state, needs);
  addDue(needs, dueArtists(state, contractIsUp), 210, {"'s contract is up", "Their album rests until you renew it"},
         {" contracts are up", "Their albums rest until you renew them"});
  addDue(needs, dueArtists(state, albumWaits), 190, {"'s album is complete", "Review the songs and it comes out"},
         {" albums are complete", "Review the songs and they come out"});
}

void addLabelNews(const Game& game, std::vector<News>& news) {
  if (game.state.isLabelLaunched < 1) return;
  addFirstSigning(game, news);
  addChartNews(game, news);
  addSilences(game, news);
  addEndedContracts(game.state, news);
}

}  // namespace backbeat
