#include "music/news.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "career/label_contract.h"
#include "core/money.h"
#include "core/numbers.h"
#include "core/own_photo.h"
#include "music/certifications.h"
#include "music/covers.h"
#include "music/milestones.h"
#include "music/streaming.h"

namespace backbeat {

namespace {

using Kind = News::Kind;
using Before = MilestoneSnapshot;

constexpr int64_t topTen = 10;
constexpr int64_t weeksToBeat = 4;
constexpr size_t mostSilences = 3;
constexpr int64_t greatestStep = 1'000'000'000;
/// The tiers as they stand inside a sentence.
constexpr std::array<const char*, certificationTiers> metals = {"black", "bronze",   "silver",
                                                                "gold",  "platinum", "diamond"};

const char* format(const Album& album) { return album.songCount < fewestSongsOnLp ? "EP" : "LP"; }

std::string quoted(const std::string& title) { return "“" + title + "”"; }

Picture pictureFor(const GameState& state, const Milestone& milestone) {
  if (milestone.songId >= 0) return coverOfSong(state, milestone.songId, "");
  for (const Album& album : state.saveAllAlbumList) {
    if (album.albumId == milestone.albumId) return coverOf(state, album);
  }
  return icon("trophy");
}

/// A chart place reached this week: the first of all, the first in the top ten and the first number one are told once.
void tellChart(News& news, const Milestone& milestone, int64_t& bestRank) {
  const int64_t place = milestone.number;
  const bool isNumberOne = milestone.kind == Milestone::Kind::numberOne;
  const bool isDebut = milestone.kind == Milestone::Kind::chartDebut;
  news.figure = std::to_string(place);
  news.rank = isNumberOne ? 850 : isDebut ? 380 : 250;
  news.kicker = isNumberOne ? "Number one" : isDebut ? "New on the chart" : "Climbing";
  news.key = isNumberOne ? "number one" : isDebut ? "chart entry" : "peak";
  if (place == 1 && bestRank != 1) {
    news = {.kind = Kind::first, .rank = 900, .key = "number one", .kicker = "Your first number one"};
  } else if (place <= topTen && (bestRank == 0 || bestRank > topTen)) {
    news = {.kind = Kind::first, .rank = 650, .key = "top ten", .kicker = "Your first Top 10 song"};
  } else if (bestRank == 0) {
    news = {.kind = Kind::first, .rank = 600, .key = "chart entry", .kicker = "Your first song on the chart"};
  }
  news.figure = std::to_string(place);
  if (bestRank == 0 || place < bestRank) bestRank = place;
}

void tellMetal(News& news, const Milestone& milestone, int64_t& bestTier) {
  const bool isFirst = milestone.number > bestTier;
  const std::string metal = metals[static_cast<size_t>(milestone.number)];
  const std::string what = metal + (milestone.songId >= 0 ? " song" : " album");
  news.kind = isFirst ? Kind::first : Kind::reached;
  news.rank = (isFirst ? 700 : 310) + milestone.number * 10;
  news.key = what;
  news.kicker = isFirst ? "Your first " + what : "Certified";
  bestTier = std::max(bestTier, milestone.number);
}

void addMilestones(const Game& game, std::vector<News>& all) {
  const Before& before = game.turn.before;
  // Where the lists no longer hold everything, nothing counts as the first.
  const bool isWhole = historyIsWhole(game.state);
  int64_t bestRank = isWhole ? before.bestRank : 1;
  int64_t bestSongTier = isWhole ? before.bestSongTier : certificationTiers;
  int64_t bestAlbumTier = isWhole ? before.bestAlbumTier : certificationTiers;
  for (const Milestone& milestone : milestonesSince(before, game.state, before.week)) {
    News news;
    if (milestone.kind == Milestone::Kind::certification) {
      tellMetal(news, milestone, milestone.songId >= 0 ? bestSongTier : bestAlbumTier);
    } else if (milestone.kind == Milestone::Kind::recordWeek) {
      news.kind = Kind::best;
      news.rank = 150;
      news.key = "record week";
      news.text = milestone.amount;
    } else {
      tellChart(news, milestone, bestRank);
    }
    news.headline = milestone.text;
    news.picture = pictureFor(game.state, milestone);
    all.push_back(std::move(news));
  }
}

void addRelease(const GameState& state, const Song& song, std::vector<News>& all) {
  const bool isFirst = historyIsWhole(state) && isFirstRelease(state, song);
  const int64_t weeks = truncate(std::ceil(song.productionRating));
  all.push_back({.kind = isFirst ? Kind::first : Kind::reached,
                 .rank = isFirst ? 450 : 120,
                 .key = "release",
                 .picture = coverOf(state, song),
                 .kicker = isFirst ? "Your first release" : "New this week",
                 .headline = quoted(song.title) + " is out",
                 .text = "It plays for " + counted(weeks, "week") + ", one for each point of its rating"});
}

void addFirstSong(const Game& game, std::vector<News>& all) {
  const GameState& state = game.state;
  if (!game.turn.madeFirstSong || state.saveAllSongList.empty()) return;
  const Song& song = *std::min_element(state.saveAllSongList.begin(), state.saveAllSongList.end(),
                                       [](const Song& a, const Song& b) { return a.songId < b.songId; });
  all.push_back({.kind = Kind::first,
                 .rank = song.isReleased ? 275 : 425,  // its release is the greater news
                 .key = "song",
                 .picture = coverOf(state, song),
                 .kicker = "Your first song",
                 .headline = quoted(song.title) + " is finished",
                 .text = song.isReleased ? "Written, recorded and out in one week" : "It waits for its release"});
}

void addReleases(const Game& game, std::vector<News>& all) {
  const GameState& state = game.state;
  const int64_t week = game.turn.before.absoluteWeek;
  for (const uint32_t i : state.saveAllAlbumList.awake()) {
    const Album& album = state.saveAllAlbumList[i];
    if (!album.isReleased || album.releaseWeek != week || album.albumId == 0) continue;
    const bool isFirst = historyIsWhole(state) && isFirstRelease(state, album);
    all.push_back(
        {.kind = isFirst ? Kind::first : Kind::reached,
         .rank = isFirst ? 500 : 340,
         .key = format(album),
         .picture = coverOf(state, album),
         .kicker = isFirst ? std::string("Your first ") + format(album) : std::string("A new ") + format(album),
         .headline = quoted(album.title) + " is out",
         .text = counted(album.songCount, "song") + " at " + price(album.price)});
  }
  // One song stands for the week's firsts; those that came with an album are told by it.
  bool toldFirst = false;
  for (const uint32_t i : state.saveAllSongList.awake()) {
    const Song& song = state.saveAllSongList[i];
    if (!song.isReleased || song.releaseWeek != week) continue;
    const bool isFirst = isFirstRelease(state, song);
    if (song.albumId != 0 && !(isFirst && !toldFirst)) continue;
    if (isFirst && toldFirst) continue;
    toldFirst = toldFirst || isFirst;
    addRelease(state, song, all);
  }
}

/// 1, 1,000, 10,000 and so on: the greatest that the week's dollars reach.
int64_t dollarStep(double dollars) {
  if (dollars < 1) return 0;
  int64_t step = 1;
  for (int64_t next = 1'000; next <= greatestStep && static_cast<double>(next) <= dollars; next *= 10) step = next;
  return step;
}

void addStreams(const Game& game, std::vector<News>& all) {
  const Before& before = game.turn.before;
  int64_t streams = 0;
  double dollars = 0;
  for (const WeeklySongListens& row : rowsOfWeek(game.state.saveAllWeeklySongListens, before.week)) {
    streams = add(streams, row.songListens);
    dollars = std::max(dollars, row.totalStreamRevenue);  // only the top song of a week is paid
  }
  const int64_t bestStreams = std::max(before.streamWeeks.bestStreams, before.streamWeeks.streams);
  const double bestDollars = std::max(before.streamWeeks.bestDollars, before.streamWeeks.dollars);
  if (streams > 0 && !before.wasStreamed && historyIsWhole(game.state)) {
    all.push_back({.kind = Kind::first,
                   .rank = 290,
                   .key = "stream",
                   .picture = icon("headphones"),
                   .kicker = "Your first streams",
                   .headline = "Somebody pressed play",
                   .text = streams == 1 ? "Your first stream" : "Your first " + counted(streams, "stream")});
  }
  if (isBestWeek(game, streams)) {
    all.push_back({.kind = Kind::best,
                   .rank = 200,
                   .key = "best week",
                   .picture = icon("trend"),
                   .kicker = "Your best week",
                   .headline = "Your best week: " + counted(streams, "stream"),
                   .text = withCommas(bestStreams) + " was the most so far"});
  }
  const int64_t step = dollarStep(dollars);
  if (step <= dollarStep(bestDollars) || !historyIsWhole(game.state)) return;
  const std::string amount = currency(static_cast<double>(step));
  all.push_back({.kind = Kind::first,
                 .rank = step == 1 ? 280 : 460,
                 .key = step == 1 ? "dollar" : "week above " + amount,
                 .picture = icon("cash"),
                 .kicker = step == 1 ? "Your first dollar from music" : "Your first week above " + amount,
                 .headline = step == 1 ? "Music has paid you" : "A song earned " + currency(dollars) + " in a week",
                 .text = step == 1 ? currency(dollars) + " from streams" : ""});
}

void addListeners(const Game& game, std::vector<News>& all) {
  const Before& before = game.turn.before;
  const int64_t step = passedPowerOfTen(before.mostListeners, game.state.totalFans);
  if (step == 0) return;
  // Beyond the remembered weeks the player's record vouches for it: it can only know more than this career.
  const bool isFirst = before.allListenersKnown || game.state.totalFanHighScore < step;
  const int64_t digits = static_cast<int64_t>(std::to_string(step).size());
  all.push_back({.kind = isFirst ? Kind::first : Kind::reached,
                 .rank = (isFirst ? 330 : 180) + digits * 10,
                 .key = "listeners " + std::to_string(step),
                 .picture = artistPicture(game.state),
                 .kicker = isFirst ? "More than ever before" : "And growing",
                 .headline = withCommas(step) + " listeners a month",
                 .text = withCommas(game.state.totalFans) + " people listen to you"});
}

void addSilences(const Game& game, std::vector<News>& all) {
  const GameState& state = game.state;
  size_t told = 0;
  for (const uint32_t i : state.saveAllSongList.awake()) {
    const Song& song = state.saveAllSongList[i];
    const double life = remainingLife(state, song);
    if (!song.isReleased || life > 0 || !(life > -1) || ++told > mostSilences) continue;  // a week ago it had some
    all.push_back({.kind = Kind::ended,
                   .rank = 110,
                   .key = "silence",
                   .picture = coverOf(state, song),
                   .headline = quoted(song.title) + " has gone silent",
                   .text = counted(song.totalListen, "stream") + " in all",
                   .tone = Tone::plain});
  }
}

}  // namespace

bool isBestWeek(const Game& game, int64_t streams) {
  const StreamWeeks& before = game.turn.before.streamWeeks;
  const int64_t best = std::max(before.bestStreams, before.streams);
  return before.count >= weeksToBeat && best > 0 && streams > best && historyIsWhole(game.state);
}

bool isFirstRelease(const GameState& state, const Song& song) {
  return std::none_of(state.saveAllSongList.begin(), state.saveAllSongList.end(),
                      [&](const Song& other) { return other.isReleased && other.releaseWeek < song.releaseWeek; });
}

bool isFirstRelease(const GameState& state, const Album& album) {
  return std::none_of(state.saveAllAlbumList.begin(), state.saveAllAlbumList.end(), [&](const Album& other) {
    const bool sameFormat = (other.songCount < fewestSongsOnLp) == (album.songCount < fewestSongsOnLp);
    const bool isEarlier = std::pair(other.releaseWeek, other.albumId) < std::pair(album.releaseWeek, album.albumId);
    return other.isReleased && sameFormat && isEarlier;
  });
}

void addMusicNews(const Game& game, std::vector<News>& news) {
  addMilestones(game, news);
  addFirstSong(game, news);
  addReleases(game, news);
  addStreams(game, news);
  addListeners(game, news);
  addSilences(game, news);
}

}  // namespace backbeat
