#include "recognition/music_awards.h"

#include "label/builders.h"
#include "music/artist_name.h"
#include "music/guests.h"
#include "music/title_pools.h"
#include "recognition/award_fields.h"
#include "recognition/builders.h"
#include "recognition/entrants.h"
#include "recognition/news.h"
#include "recognition/screens/gram_award_detail_view_controller.h"
#include "recognition/screens/grammy_award_announcement_view_controller.h"
#include "support/dates.h"
#include "support/world.h"

namespace backbeat {
namespace {

constexpr int64_t classical = 2;
constexpr int64_t pop = 11;
constexpr int64_t october = 52 + 42;  // the week of the nominations in 2024

struct AwardWorld : World {
  AwardWorld() {
    setDate(state, october);
    state.myArtistsName = "Mara Voss";
  }

  /// The next place of a field goes to a rival, whose title is the pair of words at this place of both tables.
  void rivalIs(int64_t word, int64_t labelCoin = 0, bool isGuest = true) {
    random.integerIs(0, 1, labelCoin).integerIs(0, 59, word).integerIs(0, 59, word).integerIs(0, 1, isGuest ? 0 : 1);
    const size_t names = isGuest ? guestTable(state).size() : cameoTable(state).size();
    random.integerIs(0, static_cast<int64_t>(names) - 1, word);
  }
  void rivalsAre(int64_t count) {
    for (int64_t word = 0; word < count; ++word) rivalIs(word);
  }
  void labelIs() { random.integerIs(0, 1, 1); }
  void barIs(int64_t spread, int64_t above) { random.integerIs(0, spread, above); }

  /// "0 Paper Lanterns" for each nomination.
  std::vector<std::string> nominations() const {
    std::vector<std::string> told;
    for (const Award& award : state.saveAllMusicAwards) {
      told.push_back(std::to_string(award.typeOfAward) + " " + award.songOrAlbumName);
    }
    return told;
  }
};

using Titles = std::vector<std::string>;

TEST(MusicAwards, ShowTheirButtonInTwoWeeksUntilItWasOfUse) {
  AwardWorld world;
  const auto shownIn = [&](int64_t week, int64_t stage) {
    setDate(world.state, 52 + week);
    world.state.awardYear.assign({AwardYear{.year = 2024, .stage = stage}});
    return showAwardButton(world.state);
  };
  EXPECT_EQ(shownIn(42, award_stage::open), AwardShow::nominations);
  EXPECT_EQ(shownIn(42, award_stage::nominated), AwardShow::none);
  EXPECT_EQ(shownIn(49, award_stage::open), AwardShow::winners) << "to say that there are none";
  EXPECT_EQ(shownIn(49, award_stage::nominated), AwardShow::winners);
  EXPECT_EQ(shownIn(49, award_stage::decided), AwardShow::none);
  EXPECT_EQ(shownIn(43, award_stage::nominated), AwardShow::none);
  setDate(world.state, 2 * 52 + 42);
  EXPECT_EQ(showAwardButton(world.state), AwardShow::nominations) << "last year's are over";
}

TEST(MusicAwards, AreDrawnBetweenTheArtistAndRivals) {
  AwardWorld world;
  addSongOfYear(world.state, "Paper Lanterns", 85.9, pop);
  addSongOfYear(world.state, "Second Best", 78.9, pop);
  addAlbumOfYear(world.state, "Night Maps", 90.5, pop);
  world.state.recordDictionary = {{"Of last year", "Somebody"}};
  world.settle();

  world.barIs(15, 14);  // 85 is above 84
  world.rivalIs(7, 1);  // the coin is the label's, but there is none
  world.random.integerIs(0, 1, 0).integerIs(0, 59, 7).integerIs(0, 59, 7);  // stands there already: both words again
  world.random.integerIs(0, 59, 7).integerIs(0, 59, 8).integerIs(0, 1, 1);
  world.random.integerIs(0, static_cast<int64_t>(cameoTable(world.state).size()) - 1, 0);
  world.rivalIs(9);
  world.rivalIs(10);
  world.barIs(25, 15);  // 90.5 is above 90
  world.rivalsAre(4);
  world.barIs(15, 8);  // 78 is not above 78
  world.rivalsAre(5);
  world.barIs(15, 15);  // 90.5 is above 90
  world.rivalsAre(4);
  world.barIs(15, 15);  // 85 is not above 85
  world.rivalsAre(5);
  EXPECT_TRUE(runNominations(world.game));

  EXPECT_EQ(world.nominations(), (Titles{"0 Paper Lanterns", "1 Night Maps", "4 Night Maps"}));
  const Award& best = world.state.saveAllMusicAwards[2];
  EXPECT_EQ(best.nameOfAward, "Best Pop Album");
  EXPECT_EQ(best.genreNumber, pop);
  EXPECT_EQ(best.isSongOrAlbum, 1);
  EXPECT_EQ(best.id, 3);
  EXPECT_EQ(best.yearAwarded, 2024);
  EXPECT_EQ(world.state.saveAllMusicAwards[0].genreNumber, noGenre);
  EXPECT_EQ(world.state.recordDictionary.size(), 5u) << "last year's field is gone";
  EXPECT_EQ(world.state.recordDictionary.at("Paper Lanterns"), "Mara Voss");
  EXPECT_EQ(world.state.recordDictionary.at(std::string(firstTitleWords[7]) + " " + std::string(secondTitleWords[8])),
            cameoTable(world.state)[0].name);
  const auto& genreFields = world.state.awardYear[0].genreFields;
  ASSERT_EQ(genreFields.size(), 2u);
  EXPECT_EQ(genreFields[1].nominees.size(), 5u);
  world.expectSaved();
  EXPECT_FALSE(runNominations(world.game)) << "once a year";
}

TEST(MusicAwards, TakeTheLabelsNextBestWhereTheCoinSaysSo) {
  AwardWorld world;
  addSignedArtist(world.state, "Juno Hale", 40);
  addSignedArtist(world.state, "Lil Ember", 40);
  addSignedArtist(world.state, "Wren Moreau", 40);  // classical, by the id
  addLabelSongOfYear(world.state, 3, "Low", 12);
  addLabelSongOfYear(world.state, 3, "High", 70);
  addLabelSongOfYear(world.state, 3, "High", 69);
  addLabelAlbumOfYear(world.state, 3, "Long Player", 50);
  addSongOfYear(world.state, "High", 95);  // of no known genre
  world.settle();

  world.barIs(15, 15);
  world.labelIs();  // both of that title stand back behind the artist's
  world.rivalIs(1);
  world.rivalIs(2, 1);  // nothing is left
  world.rivalIs(3);
  for (int field = 0; field < 2; ++field) {  // the album, then the song: the artist has no second song
    world.rivalIs(0);
    world.labelIs();
    if (field == 1) world.labelIs();
    for (int64_t word = field; word < 3; ++word) world.rivalIs(word + 1);
  }
  world.rivalsAre(5);
  world.labelIs();
  world.rivalIs(0);
  world.labelIs();
  world.rivalIs(1);
  world.rivalIs(2, 1);
  EXPECT_TRUE(runNominations(world.game));
  EXPECT_EQ(world.nominations(), (Titles{"0 High", "0 Low", "1 Long Player", "2 High", "2 Low", "5 High", "5 Low"}))
      << "the list begins anew with its best in every field";
  EXPECT_EQ(world.state.saveAllMusicAwards[1].artistName, "Wren Moreau");
  EXPECT_EQ(world.state.awardYear[0].genreFields[0].genreNumber, classical);
}

TEST(MusicAwards, AreOpenToWhatCameOutThisYear) {
  AwardWorld world;
  GameState& state = world.state;
  const int64_t old = addSongOfYear(state, "Old", 90, pop);
  addSongOfYear(state, "New", 80, pop);
  addSongOfYear(state, "Unheard", 99, pop);
  addAlbumOfYear(state, "Short", 99, pop);
  addAlbumOfYear(state, "Mixed", 70);
  state.saveAllSongList.update(0, [](Song& song) { song.releaseYear -= 1; });
  state.saveAllSongList.update(2, [](Song& song) { song.isReleased = false; });
  state.saveAllAlbumList.update(0, [](Album& album) { album.songCount = 4; });
  for (const auto& [track, genre] : {std::pair{8, pop}, {9, classical}, {10, classical}, {11, pop}}) {
    state.songGenres.append({state.saveAllSongList[static_cast<size_t>(track)].songId, genre});
  }
  const Entrants entrants = entrantsOf(state);
  ASSERT_EQ(entrants.songs.size(), 1u) << old;
  EXPECT_EQ(entrants.songs[0].title, "New");
  ASSERT_EQ(entrants.albums.size(), 1u);
  EXPECT_EQ(entrants.albums[0].title, "Mixed");
  EXPECT_EQ(entrants.albums[0].genreNumber, classical) << "two and two: the lower number";
}

struct NightWorld : AwardWorld {
  NightWorld() {
    setDate(state, 52 + 49);
    openNominations(state);
  }
  void nominate(int64_t type, const char* title, int64_t genre = noGenre) {
    addNomination(state, nominationFor(state, type, title, genre));
  }
  /// A draw for each nomination of the year.
  void drawsAre(const std::vector<uint64_t>& topBits) {
    for (const uint64_t bits : topBits) random.bitsAre(bits << 62 | 12'345);
  }
  Titles winners() const {
    Titles won;
    for (const Award& award : state.saveAllMusicAwards) {
      if (award.isWinner >= 1) won.push_back(award.songOrAlbumName);
    }
    return won;
  }
};

TEST(MusicAwards, GoToOneInAFieldAndOneInAGenreByADrawForEachRow) {
  NightWorld world;
  Award lastYears = nominationFor(world.state, award_type::record, "Last year's");
  lastYears.yearAwarded -= 1;
  addNomination(world.state, lastYears);
  world.nominate(award_type::record, "Unlucky");
  world.nominate(award_type::record, "Record");
  world.nominate(award_type::record, "Too late");
  world.nominate(award_type::song, "Song");
  world.nominate(award_type::album, "Out of order");
  world.nominate(award_type::nobodys, "Nobody's");
  world.nominate(award_type::genreAlbum, "Jazz", 8);
  world.nominate(award_type::genreSong, "Jazz again", 8);
  world.nominate(award_type::genreSong, "Pop, unlucky", pop);
  world.nominate(award_type::genreSong, "Pop", pop);
  world.settle();
  world.drawsAre({3, 2, 2, 2, 2, 2, 2, 2, 1, 2});
  EXPECT_TRUE(decideWinners(world.game));
  EXPECT_EQ(world.winners(), (Titles{"Record", "Song", "Jazz", "Pop"}));
  EXPECT_FALSE(decideWinners(world.game)) << "once a year";
}

TEST(MusicAwards, AreNotDecidedForAYearThatWasNeverNominated) {
  AwardWorld world;
  setDate(world.state, 52 + 49);
  addNomination(world.state, nominationFor(world.state, award_type::record, "Stray"));
  world.settle();
  EXPECT_FALSE(decideWinners(world.game));
  GrammyAwardAnnouncementViewController night(world.game);
  night.open();
  const View view = night.view();
  EXPECT_EQ(std::get<EmptyHint>(view.blocks.back()).text,
            "Nobody opened the nominations of 2024, so there are no winners. They are opened in week 42.");
  EXPECT_TRUE(night.act({"doneButton", ""}).go.has_value());
}

TEST(AwardNight, ShowsOurOwnWinnersLargeAndElseARivalWithTheTrophy) {
  NightWorld world;
  world.nominate(award_type::record, "Paper Lanterns");
  world.nominate(award_type::song, "Half Past Nowhere");
  world.settle();
  world.drawsAre({2, 0});
  GrammyAwardAnnouncementViewController night(world.game);
  night.open();
  EXPECT_EQ(night.view().blocks.size(), 1u) << "all envelopes are shut";
  night.act({"nextEnvelope", ""});
  const View first = night.view();
  EXPECT_EQ(std::get<Card>(first.blocks[1]).title, "Paper Lanterns");
  for (const Row& row : std::get<Rows>(first.blocks[2]).items) EXPECT_FALSE(row.selected) << row.title;
  night.act({"allEnvelopes", ""});
  const View all = night.view();
  EXPECT_EQ(std::get<Card>(all.blocks[1]).badge, "SONG OF THE YEAR") << "the latest stands on top";
  EXPECT_EQ(std::get<Card>(all.blocks[1]).title, "");
  const Rows& song = std::get<Rows>(all.blocks[2]);
  ASSERT_EQ(song.items.size(), 3u);
  EXPECT_TRUE(song.items[0].selected);
  EXPECT_NE(song.items[0].title, "Half Past Nowhere");
  GrammyAwardAnnouncementViewController again(world.game);
  again.open();
  again.act({"allEnvelopes", ""});
  EXPECT_EQ(std::get<Rows>(again.view().blocks[2]).items[0].title, song.items[0].title) << "told the same again";
}

TEST(AwardHistory, TellsOfTheFirstNominationAndTheFirstWinInTheArtistsName) {
  AwardWorld world;
  addSignedArtist(world.state, "Juno Hale", 40);
  Award labels = nominationFor(world.state, award_type::record, "Of the label");
  labels.artistName = "Juno Hale";
  labels.isWinner = 1;
  addNomination(world.state, labels);
  addNomination(world.state, nominationFor(world.state, award_type::song, "Lost"));
  Award won = nominationFor(world.state, award_type::genreSong, "Won", pop);
  won.isWinner = 1;
  addNomination(world.state, won);
  world.settle();
  nameArtist(world.game, "Nova Reyes");
  EXPECT_EQ(world.state.saveAllMusicAwards[2].artistName, "Nova Reyes");
  const View view = GramAwardDetailViewController(world.game).view();
  const auto& firsts = std::get<Rows>(view.blocks[2]).items;
  ASSERT_EQ(firsts.size(), 2u);
  EXPECT_EQ(firsts[0].title,
            "Nova Reyes's meteoric rise gave way to their first career GRAM nomination -Song of the Year for the hit "
            "song Lost at the 2024 GRAM Awards");
  EXPECT_EQ(firsts[1].title,
            "Nova Reyes's meteoric rise gave way to their first career GRAM win -Best Pop Song for the hit song Won "
            "at the 2024 GRAM Awards");
  nameArtist(world.game, "Juno Hale");
  nameArtist(world.game, "Somebody Else");
  EXPECT_EQ(world.state.saveAllMusicAwards[0].artistName, "Juno Hale") << "a signed artist keeps what is theirs";
}

TEST(AwardNews, TellOfNominationsAndWinsInTheWeekAfter) {
  NightWorld world;
  world.nominate(award_type::record, "Paper Lanterns");
  world.nominate(award_type::song, "Half Past Nowhere");
  const auto newsOfWeek = [&](int64_t week) {
    std::vector<News> news;
    world.game.turn.before.week = {week, 2024};
    addAwardNews(world.game, news);
    return news;
  };
  ASSERT_EQ(newsOfWeek(42).size(), 1u);
  EXPECT_EQ(newsOfWeek(42)[0].headline, "“Paper Lanterns” is up for Record of the Year");
  EXPECT_EQ(newsOfWeek(42)[0].text, "1 more nomination; the winners are told in week 49");
  EXPECT_EQ(newsOfWeek(43).size(), 0u);
  EXPECT_EQ(newsOfWeek(49).size(), 0u) << "not decided";
  std::vector<Need> needs;
  addAwardNeeds(world.game, needs);
  ASSERT_EQ(needs.size(), 1u);
  EXPECT_EQ(needs[0].segue, "goToGrammyAwardAnnouncement");
  world.drawsAre({0, 2});
  decideWinners(world.game);
  ASSERT_EQ(newsOfWeek(49).size(), 1u);
  EXPECT_EQ(newsOfWeek(49)[0].kicker, "Your first GRAM");
  EXPECT_EQ(newsOfWeek(49)[0].headline, "“Half Past Nowhere” is Song of the Year");
  needs.clear();
  addAwardNeeds(world.game, needs);
  EXPECT_TRUE(needs.empty());
}

}  // namespace
}  // namespace backbeat
