#include "recognition/achievement_progress.h"

#include <algorithm>
#include <map>
#include <set>

#include "core/most.h"
#include "music/chart.h"
#include "music/genres.h"
#include "recognition/award_fields.h"
#include "wealth/net_assets.h"
#include "wealth/ventures.h"

namespace backbeat::progress {

namespace {

constexpr int64_t stealthBomberId = 7'020;
constexpr int64_t weeksOfYear = 52;
constexpr int64_t billion = 1'000'000'000;
constexpr int64_t mainFields = 3;
constexpr size_t partnersOfTheEleven = 6;

/// `Festival::festivalId`.
constexpr int64_t burningMan = 6;
constexpr int64_t coachella = 25;
constexpr int64_t halftime = 31;

Progress towards(double now, int64_t amount) { return {now, static_cast<double>(amount)}; }
Progress towards(int64_t now, int64_t amount) { return towards(static_cast<double>(now), amount); }
Progress once(bool happened) { return {happened ? 1.0 : 0.0, 1}; }

/// The most that a record has of something, of those that count; nothing is 0, and so is less.
template <class T, class Number, class... Counts>
Number greatest(const RecordList<T>& list, Number T::*number, Counts... counts) {
  const T* record = recordWithMost(list, number, counts...);
  return record ? std::max(Number{0}, record->*number) : 0;
}

template <class T, class Matches>
bool has(const RecordList<T>& list, Matches matches) {
  return list.find(matches) != list.size();
}

bool hasExit(const GameState& state, int64_t kind) {
  return has(state.saveAllVentureInvestments, [&](const Venture& venture) { return venture.hasExited == kind; });
}

double gainOf(const Venture& venture) {
  if (venture.totalOutstandingShares == 0) return -venture.investmentAmount;
  const double stake =
      static_cast<double>(venture.totalSharesOwned) / static_cast<double>(venture.totalOutstandingShares);
  return stake * static_cast<double>(venture.lastValuation) - venture.investmentAmount;
}

bool wins(const GameState& state, int64_t typeOfAward) {
  return has(state.saveAllMusicAwards,
             [&](const Award& award) { return award.typeOfAward == typeOfAward && award.isWinner > 0; });
}

/// How many of the main fields the best year has among the awards that `counts`.
template <class Counts>
Progress fieldsOfOneYear(const GameState& state, Counts counts) {
  std::map<int64_t, std::set<int64_t>> years;
  size_t most = 0;
  for (const Award& award : state.saveAllMusicAwards) {
    if (award.typeOfAward >= mainFields || !counts(award)) continue;
    std::set<int64_t>& fields = years[award.yearAwarded];
    fields.insert(award.typeOfAward);
    most = std::max(most, fields.size());
  }
  return towards(static_cast<int64_t>(most), mainFields);
}

bool isDebutAtOne(const BillboardSong& row) {
  return isOwnSong(row) && row.weeksAtOne >= 1 && row.weeksOnChart == row.weeksAtOne;
}

bool wasPlayed(const GameState& state, const Festival& festival) {
  return festival.weekNumberForTracking < state.weekNumberForTracking;
}

Progress headlined(const GameState& state, int64_t festivalId) {
  return once(has(state.saveAllFestivalList, [&](const Festival& festival) {
    return wasPlayed(state, festival) && festival.isHeadliner >= 1 && festival.festivalId == festivalId;
  }));
}

}  // namespace

Progress netWorth(const GameState& state, int64_t amount) { return towards(netAssets(state), amount); }

Progress stealthBomber(const GameState& state, int64_t) {
  return once(has(state.saveAllTransportationOwnedList,
                  [](const Transportation& vehicle) { return vehicle.id == stealthBomberId; }));
}

Progress ventureWorth(const GameState& state, int64_t amount) {
  return towards(greatest(state.saveAllVentureInvestments, &Venture::lastValuation), amount);
}

Progress listeners(const GameState& state, int64_t amount) { return towards(state.totalFans, amount); }

Progress publicOffering(const GameState& state, int64_t) { return once(hasExit(state, venture_exit::listed)); }
Progress bankruptcy(const GameState& state, int64_t) { return once(hasExit(state, venture_exit::bankrupt)); }
Progress acquisition(const GameState& state, int64_t) { return once(hasExit(state, venture_exit::acquired)); }

Progress exitGain(const GameState& state, int64_t amount) {
  double most = 0;
  for (const Venture& venture : state.saveAllVentureInvestments) {
    if (venture.hasExited == venture_exit::acquired || venture.hasExited == venture_exit::listed)
      most = std::max(most, gainOf(venture));
  }
  return towards(most, amount);
}

Progress singlePlays(const GameState& state, int64_t amount) {
  return towards(greatest(state.saveAllSongList, &Song::totalListen), amount);
}

Progress billionSingles(const GameState& state, int64_t amount) {
  const auto count = std::count_if(state.saveAllSongList.begin(), state.saveAllSongList.end(),
                                   [](const Song& song) { return song.totalListen >= billion; });
  return towards(static_cast<int64_t>(count), amount);
}

Progress debutAtOne(const GameState& state, int64_t) { return once(has(state.saveAllBillboardSongList, isDebutAtOne)); }

// What is on the chart is awake.

Progress debutAtOneNow(const GameState& state, int64_t) {
  const RecordList<BillboardSong>& rows = state.saveAllBillboardSongList;
  const std::vector<uint32_t> awake = rows.awake();
  return once(std::any_of(awake.begin(), awake.end(), [&](uint32_t row) { return isDebutAtOne(rows[row]); }));
}

Progress topTenAtOnce(const GameState& state, int64_t) {
  constexpr int64_t places = 10;
  std::set<int64_t> held;
  for (const uint32_t i : state.saveAllBillboardSongList.awake()) {
    const BillboardSong& row = state.saveAllBillboardSongList[i];
    const bool isPlace = row.isOnCharts && row.rankThisWeek >= 1 && row.rankThisWeek <= places;
    if (isPlace && isOwnSong(row) && row.weeksOnChart == 1) held.insert(row.rankThisWeek);
  }
  return towards(static_cast<int64_t>(held.size()), places);
}

Progress weeksAtOne(const GameState& state, int64_t amount) {
  return towards(greatest(state.saveAllBillboardSongList, &BillboardSong::weeksAtOne, isOwnSong), amount);
}

Progress weeksOnChart(const GameState& state, int64_t amount) {
  return towards(greatest(state.saveAllBillboardSongList, &BillboardSong::weeksOnChart, isOwnSong), amount);
}

Progress explicitAtOne(const GameState& state, int64_t) {
  return once(has(state.saveAllSongList, [&](const Song& song) {
    if (song.isExplicit < 1) return false;
    const auto rows = state.saveAllBillboardSongList.historyOf(song.songId);
    return std::any_of(rows.begin(), rows.end(),
                       [&](uint32_t row) { return state.saveAllBillboardSongList[row].peakPosition == 1; });
  }));
}

Progress subscribers(const GameState& state, int64_t amount) { return towards(state.youVideoSubscriberCount, amount); }

Progress albumUnits(const GameState& state, int64_t amount) {
  return towards(
      greatest(state.saveAllAlbumList, &Album::albumsSold, [](const Album& album) { return album.albumId > 0; }),
      amount);
}

Progress videoViews(const GameState& state, int64_t amount) {
  return towards(greatest(state.saveAllMusicVideoList, &MusicVideo::totalViews), amount);
}

Progress explicitSongs(const GameState& state, int64_t amount) {
  const auto count = std::count_if(state.saveAllSongList.begin(), state.saveAllSongList.end(),
                                   [](const Song& song) { return song.isReleased && song.isExplicit >= 1; });
  return towards(static_cast<int64_t>(count), amount);
}

Progress explicitAlbum(const GameState& state, int64_t) {
  return once(has(state.saveAllAlbumList, [&](const Album& album) {
    if (album.albumId <= 0 || !album.isReleased) return false;
    const auto songs = state.saveAllSongList.groupOf(album.albumId);
    return !songs.empty() && std::all_of(songs.begin(), songs.end(),
                                         [&](uint32_t song) { return state.saveAllSongList[song].isExplicit >= 1; });
  }));
}

Progress everyGenre(const GameState& state, int64_t) {
  constexpr auto all = static_cast<int64_t>(genres.size());
  std::set<int64_t> reached;
  for (const SongGenre& made : state.songGenres) {
    if (made.genreNumber < 0 || made.genreNumber >= all || reached.contains(made.genreNumber)) continue;
    const auto songs = state.saveAllSongList.historyOf(made.songId);
    if (std::any_of(songs.begin(), songs.end(),
                    [&](uint32_t song) { return state.saveAllSongList[song].isReleased; })) {
      reached.insert(made.genreNumber);
    }
  }
  return towards(static_cast<int64_t>(reached.size()), all);
}

Progress songOfTheYear(const GameState& state, int64_t) { return once(wins(state, award_type::song)); }
Progress albumOfTheYear(const GameState& state, int64_t) { return once(wins(state, award_type::album)); }
Progress recordOfTheYear(const GameState& state, int64_t) { return once(wins(state, award_type::record)); }

Progress threeNominations(const GameState& state, int64_t) {
  return fieldsOfOneYear(state, [](const Award&) { return true; });
}
Progress threeWins(const GameState& state, int64_t) {
  return fieldsOfOneYear(state, [](const Award& award) { return award.isWinner > 0; });
}

Progress versePlays(const GameState& state, int64_t amount) {
  return towards(greatest(state.saveAllFeaturedOnList, &FeaturedOn::totalListen), amount);
}

Progress soldOutShows(const GameState& state, int64_t amount) {
  const auto& weeks = state.saveAllWeeklyTourSales;
  const auto count =
      std::count_if(weeks.begin(), weeks.end(), [](const WeeklyTourSales& show) { return show.soldOut == 1; });
  return towards(static_cast<int64_t>(count), amount);
}

Progress rejections(const GameState& state, int64_t amount) { return towards(state.rejectionCount, amount); }
Progress matches(const GameState& state, int64_t amount) { return towards(state.matchId, amount); }
Progress messages(const GameState& state, int64_t amount) { return towards(state.slideIntoDmsCount, amount); }

Progress yearsTogether(const GameState& state, int64_t amount) {
  int64_t most = 0;
  for (const Matches& match : state.saveAllMatchesList) {
    if (match.weekStartedDating <= 0) continue;
    const int64_t until = match.relationshipState > 0 ? state.weekNumberForTracking : match.weekEndedDating;
    most = std::max(most, until - match.weekStartedDating);
  }
  return towards(most / weeksOfYear, amount);
}

Progress childrenOfSixPartners(const GameState& state, int64_t amount) {
  std::set<std::string> partners;
  for (const Child& child : state.saveAllChildList) {
    if (!child.partnerName.empty()) partners.insert(child.partnerName);
  }
  const auto children = static_cast<int64_t>(state.saveAllChildList.size());
  return towards(partners.size() >= partnersOfTheEleven ? children : std::min(children, amount - 1), amount);
}

Progress adoptions(const GameState& state, int64_t amount) {
  const auto& children = state.saveAllChildList;
  const auto count = std::count_if(children.begin(), children.end(),
                                   [](const Child& child) { return child.relationship.starts_with("Adopted"); });
  return towards(static_cast<int64_t>(count), amount);
}

Progress halftimeShow(const GameState& state, int64_t) { return headlined(state, halftime); }
Progress desertHeadline(const GameState& state, int64_t) { return headlined(state, coachella); }
Progress burningHeadline(const GameState& state, int64_t) { return headlined(state, burningMan); }

Progress anyHeadline(const GameState& state, int64_t) {
  return once(has(state.saveAllFestivalList,
                  [&](const Festival& festival) { return wasPlayed(state, festival) && festival.isHeadliner >= 1; }));
}

Progress generalLineup(const GameState& state, int64_t) {
  return once(has(state.saveAllFestivalList,
                  [&](const Festival& festival) { return wasPlayed(state, festival) && festival.isHeadliner == 0; }));
}

Progress festivalCrowd(const GameState& state, int64_t amount) {
  return towards(greatest(state.saveAllFestivalList, &Festival::audience,
                          [&](const Festival& festival) { return wasPlayed(state, festival); }),
                 amount);
}

}  // namespace backbeat::progress
