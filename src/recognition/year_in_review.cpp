#include "recognition/year_in_review.h"

#include <algorithm>
#include <map>

#include "core/calendar.h"
#include "core/money.h"
#include "core/short_money.h"
#include "core/week_rows.h"
#include "merch/catalogue.h"
#include "music/covers.h"
#include "recognition/award_fields.h"

namespace backbeat {

namespace {

constexpr size_t fewestCards = 5;
constexpr size_t songsListed = 3;

std::string many(int64_t amount, const char* noun) { return abbreviated(static_cast<double>(amount)) + " " + noun; }

/// A card, and whether the year had what it tells of.
struct Chapter {
  Card card;
  bool isTold = true;
};

Card cardOf(Picture picture, std::string title, std::string text, std::string value = {}) {
  return {.picture = std::move(picture), .title = std::move(title), .text = std::move(text), .value = std::move(value)};
}

Chapter songChapter(const GameState& state, const YearOfKind& songs) {
  if (songs.amount == 0) return {cardOf(icon("note"), "The song", "Nobody has heard you yet. That can change."), false};
  const YearWork& song = songs.works.front();
  return {cardOf(pictureOfWork(state, YearKind::songs, song), "The song",
                 "“" + song.title + "” was the one they played the most: " + many(song.amount, "plays") + ".")};
}

Chapter albumChapter(const GameState& state, const YearOfKind& albums) {
  if (albums.amount == 0) return {cardOf(icon("album"), "The album", "No album was sold this year."), false};
  const YearWork& album = albums.works.front();
  return {
      cardOf(pictureOfWork(state, YearKind::albums, album), "The album",
             "“" + album.title + "” stood in the shops and did not stay there: " + many(album.amount, "sold") + ".")};
}

Chapter weekChapter(const YearOfKind& songs) {
  const auto best = std::max_element(songs.weeks.begin(), songs.weeks.end());
  if (*best == 0) return {cardOf(icon("calendar"), "The biggest week", "Every week was a quiet one."), false};
  return {cardOf(icon("calendar"), "The biggest week",
                 "In week " + std::to_string(std::distance(songs.weeks.begin(), best) + 1) +
                     " more of you was heard than in any other: " + many(*best, "streams") + ".")};
}

int64_t festivalsPlayed(const GameState& state, int64_t year) {
  const RecordList<Festival>& festivals = state.saveAllFestivalList;
  return std::count_if(festivals.begin(), festivals.end(), [&](const Festival& festival) {
    return festival.yearNumber == year && festival.weekNumberForTracking < state.weekNumberForTracking;
  });
}

Chapter roadChapter(const GameState& state, const YearOfKind& tours, int64_t year) {
  const int64_t festivals = festivalsPlayed(state, year);
  if (tours.shows == 0 && festivals == 0) {
    return {cardOf(icon("map"), "The road", "You stayed at home, and so did the suitcases."), false};
  }
  std::string played;
  if (tours.shows > 0) played = counted(tours.shows, "show");
  if (tours.soldOut > 0) played += ", " + withCommas(tours.soldOut) + " sold out";
  if (tours.amount > 0) played += ", for " + many(tours.amount, "people");
  if (festivals > 0) played += (played.empty() ? "" : ", and ") + counted(festivals, "festival");
  return {cardOf(drawn(Picture::Kind::scene, "stage", std::to_string(year)), "The road", played + ".")};
}

/// Whose heart it was about: a birth before a beginning, a beginning before an end.
Chapter heartChapter(const GameState& state, int64_t year) {
  for (const Child& child : state.saveAllChildList) {
    const bool isOfTheBody = child.relationship == "Son" || child.relationship == "Daughter";
    if (isOfTheBody && child.birthYear == year) {
      return {cardOf(drawn(Picture::Kind::scene, "nursery", child.name), "The heart",
                     child.name + " came into the world, and into the family.")};
    }
  }
  const int64_t first = state.weekNumberForTracking - state.weekNumber + 1 -
                        static_cast<int64_t>(weeksOfYear) * (state.yearNumber - year);
  const auto isWithin = [&](int64_t week) { return week >= first && week < first + static_cast<int64_t>(weeksOfYear); };
  const Matches* begun = nullptr;
  const Matches* ended = nullptr;
  const Matches* lasting = nullptr;
  for (const Matches& match : state.saveAllMatchesList) {
    if (match.weekStartedDating <= 0) continue;
    if (isWithin(match.weekStartedDating)) begun = &match;
    if (match.relationshipState < 0 && isWithin(match.weekEndedDating)) ended = &match;
    if (match.relationshipState > 0 && match.weekStartedDating < first) lasting = &match;
  }
  const auto told = [](const char* scene, const Matches& match, const std::string& text) {
    return Chapter{cardOf(drawn(Picture::Kind::scene, scene, match.name), "The heart", text)};
  };
  if (begun) return told("sunset", *begun, "You and " + begun->name + " began something.");
  if (ended) return told("rain", *ended, ended->name + " and you went separate ways.");
  if (lasting) return told("sunset", *lasting, "One more year with " + lasting->name + ".");
  return {cardOf(icon("heart"), "The heart", "It beat for music alone."), false};
}

/// What the best song of each week was paid, since only that one is.
double paidForStreams(const GameState& state, int64_t year) {
  std::map<int64_t, const WeeklySongListens*> best;
  for (const WeeklySongListens& row : rowsOfYear(state.saveAllWeeklySongListens, year)) {
    const WeeklySongListens*& kept = best[row.weekNumber];
    if (!kept || row.songListens > kept->songListens) kept = &row;
  }
  double dollars = 0;
  for (const auto& [week, row] : best) dollars += row->totalStreamRevenue;
  return dollars;
}

struct MusicYear {
  YearOfKind songs;
  YearOfKind albums;
  YearOfKind tours;
  /// What the records know of: jobs and standing entries leave none.
  double earned = 0;
};

/// Streams, merchandise, videos, verses, festivals and the label's artists.
double earnedBesides(const GameState& state, int64_t year) {
  double dollars = paidForStreams(state, year);
  for (const YearKind kind : {YearKind::merch, YearKind::videos}) dollars += yearOfKind(state, kind, year).dollars;
  for (const auto& row : rowsOfYear(state.saveAllMerchWeeklySales, year)) dollars -= row.merchTransactionFees;
  for (const auto& row : rowsOfYear(state.saveAllSignedArtistWeeklySongListens, year))
    dollars += row.totalStreamRevenue;
  for (const auto& row : rowsOfYear(state.saveAllSignedArtistWeeklyAlbumSales, year)) dollars += row.albumRevenue;
  for (const auto& row : rowsOfYear(state.saveAllFeaturedOnWeeklySongListens, year)) dollars += row.totalStreamRevenue;
  for (const Festival& festival : state.saveAllFestivalList) {
    const bool isPlayed = festival.weekNumberForTracking < state.weekNumberForTracking;
    if (festival.yearNumber == year && isPlayed) dollars += festival.payment;
  }
  return dollars;
}

MusicYear musicYear(const GameState& state, int64_t year) {
  MusicYear music{.songs = yearOfKind(state, YearKind::songs, year),
                  .albums = yearOfKind(state, YearKind::albums, year),
                  .tours = yearOfKind(state, YearKind::tours, year)};
  music.earned = earnedBesides(state, year) + music.albums.dollars + music.tours.dollars;
  return music;
}

Chapter moneyChapter(double dollars) {
  if (dollars <= 0) return {cardOf(icon("cash"), "The money", "Music has not paid a bill so far."), false};
  return {cardOf(icon("cash"), "The money", "Music and its stages brought in " + abbreviatedDollars(dollars) + ".")};
}

Chapter honoursChapter(const GameState& state, int64_t year) {
  int64_t nominated = 0;
  const Award* won = nullptr;
  int64_t wins = 0;
  for (const Award& award : awardsOfYear(state, year)) {
    if (!isOwn(state, award)) continue;
    nominated += 1;
    if (award.isWinner < 1) continue;
    if (!won) won = &award;
    wins += 1;
  }
  if (nominated == 0) return {cardOf(icon("trophy"), "The honours", "The trophies went to other people."), false};
  const Picture fork = drawn(Picture::Kind::object, "fork", std::to_string(year));
  if (!won) {
    return {cardOf(fork, "The honours", counted(nominated, "nomination") + ", and applause from a good seat.")};
  }
  return {cardOf(fork, "The honours",
                 "“" + won->songOrAlbumName + "” is " + won->nameOfAward +
                     (wins > 1 ? ", one of " + counted(wins, "GRAM") : "") + ".")};
}

std::vector<Card> cardsOfYear(const GameState& state, int64_t year, const MusicYear& music) {
  std::vector<Chapter> chapters = {songChapter(state, music.songs), albumChapter(state, music.albums),
                                   weekChapter(music.songs),        roadChapter(state, music.tours, year),
                                   heartChapter(state, year),       moneyChapter(music.earned),
                                   honoursChapter(state, year)};
  auto told = static_cast<size_t>(
      std::count_if(chapters.begin(), chapters.end(), [](const Chapter& chapter) { return chapter.isTold; }));
  std::vector<Card> cards;
  for (Chapter& chapter : chapters) {
    if (!chapter.isTold && told >= fewestCards) continue;
    if (!chapter.isTold) ++told;
    cards.push_back(std::move(chapter.card));
  }
  return cards;
}

Story storyOfYear(const GameState& state, int64_t year, const MusicYear& music) {
  const YearOfKind& songs = music.songs;
  const std::string figure = std::to_string(year);
  Story story{.sky = cover(state.myArtistsName),
              .kicker = state.myArtistsName + " · My year",
              .title = state.myArtistsName,
              .figure = figure,
              .share = "backbeat-" + figure + ".png"};
  if (songs.amount > 0) {
    const YearWork& song = songs.works.front();
    story.sky = pictureOfWork(state, YearKind::songs, song);
    story.title = song.title;
    story.text = many(song.amount, "plays");
  }
  story.facts = {
      {.label = "streams", .value = abbreviated(static_cast<double>(songs.amount))},
      {.label = "albums sold", .value = abbreviated(static_cast<double>(music.albums.amount))},
      {.label = "earned", .value = abbreviatedDollars(music.earned)},
      {.label = "shows sold out", .value = withCommas(music.tours.soldOut) + " of " + withCommas(music.tours.shows)}};
  for (size_t i = 0; i < std::min(songsListed, songs.works.size()); ++i) {
    story.facts.push_back(
        {.label = songs.works[i].title, .value = abbreviated(static_cast<double>(songs.works[i].amount))});
  }
  return story;
}

}  // namespace

bool hasReview(const GameState& state, int64_t year) {
  return year >= generationBegan(state) && year < state.yearNumber && !recordsAreGone(state, year);
}

bool isReviewDue(const GameState& state) { return state.weekNumber == 1 && hasReview(state, state.yearNumber - 1); }

YearInReview reviewOfYear(const GameState& state, int64_t year) {
  const MusicYear music = musicYear(state, year);
  return {.story = storyOfYear(state, year, music), .cards = cardsOfYear(state, year, music)};
}

Picture pictureOfWork(const GameState& state, YearKind kind, const YearWork& work) {
  switch (kind) {
    case YearKind::songs:
    case YearKind::videos: return coverOfSong(state, work.songId, work.title);
    case YearKind::albums: {
      const auto albums = state.saveAllAlbumList.historyOf(work.id);
      return albums.empty() ? cover(work.title) : coverOf(state, state.saveAllAlbumList[albums.front()]);
    }
    case YearKind::tours: return icon("ticket");
    case YearKind::merch: {
      const RecordList<Merch>& products = state.saveAllMerchReleasedList;
      const size_t found = products.find([&](const Merch& product) { return product.merchId == work.id; });
      return found == products.size() ? icon("shirt") : productPicture(products[found]);
    }
  }
  return {};
}

}  // namespace backbeat
