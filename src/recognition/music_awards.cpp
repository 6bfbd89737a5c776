#include "recognition/music_awards.h"

#include <algorithm>
#include <map>
#include <set>

#include "core/calendar.h"
#include "core/numbers.h"
#include "music/guests.h"
#include "music/title_pools.h"
#include "recognition/award_fields.h"
#include "recognition/entrants.h"

namespace backbeat {

namespace {

/// What it takes to stand in a field: more than `base` and a draw from 0 to `spread`.
struct Bar {
  int64_t base = 70;
  int64_t spread = 15;
};

bool passes(Game& game, double rating, Bar bar) {
  return rating > static_cast<double>(bar.base + game.random.integer(0, bar.spread));
}

/// A song is judged without its decimals.
bool songPasses(Game& game, const Entrant& song) {
  return passes(game, static_cast<double>(truncate(song.rating)), Bar{});
}

bool albumPasses(Game& game, const Entrant& album, Bar bar) { return passes(game, album.rating, bar); }

/// One field being filled, and the nominations that come of it.
class FieldDraw {
 public:
  FieldDraw(Game& game, int64_t typeOfAward, int64_t genreNumber)
      : game_(game), field_{.typeOfAward = typeOfAward, .genreNumber = genreNumber} {}

  void nominate(const Entrant& entrant) {
    Award award;
    award.id = ++game_.state.awardId;
    award.typeOfAward = field_.typeOfAward;
    award.nameOfAward = nameOfField(field_.typeOfAward, field_.genreNumber);
    award.yearAwarded = game_.state.yearNumber;
    award.artistName = entrant.artistName;
    award.isSongOrAlbum = isForAlbums(field_.typeOfAward) ? 1 : 0;
    award.songOrAlbumId = entrant.id;
    award.songOrAlbumName = entrant.title;
    award.genreNumber = field_.genreNumber;
    game_.state.saveAllMusicAwards.append(std::move(award));
    field_.nominees.push_back({entrant.title, entrant.artistName});
  }

  /// A coin for each place that is left: the label's next best, whatever it rates, or a rival.
  AwardField fillUp(const std::vector<Entrant>& ofLabel) {
    size_t next = 0;
    while (field_.nominees.size() < nomineesInField) {
      const bool isForLabel = game_.random.coin() == 1;
      while (isForLabel && next < ofLabel.size() && holds(ofLabel[next].title)) ++next;
      if (isForLabel && next < ofLabel.size()) {
        nominate(ofLabel[next++]);
      } else {
        addRival();
      }
    }
    return std::move(field_);
  }

 private:
  bool holds(const std::string& title) const {
    return std::any_of(field_.nominees.begin(), field_.nominees.end(),
                       [&](const AwardNominee& nominee) { return nominee.title == title; });
  }

  void addRival() {
    std::string title;
    do {
      const std::string first(game_.random.element(firstTitleWords));
      title = first + " " + std::string(game_.random.element(secondTitleWords));
    } while (holds(title));
    const bool isCameo = game_.random.coin() == 1;
    field_.nominees.push_back({title, isCameo ? game_.random.element(cameoTable(game_.state)).name
                                              : game_.random.element(guestTable(game_.state)).name});
  }

  Game& game_;
  AwardField field_;
};

std::map<std::string, std::string> dictionaryOf(const AwardField& field) {
  std::map<std::string, std::string> dictionary;
  for (const auto& [title, artist] : field.nominees) dictionary[title] = artist;
  return dictionary;
}

void fillMainFields(Game& game, const Entrants& entrants) {
  FieldDraw record(game, award_type::record, noGenre);
  if (!entrants.songs.empty() && songPasses(game, entrants.songs[0])) record.nominate(entrants.songs[0]);
  game.state.recordDictionary = dictionaryOf(record.fillUp(entrants.labelSongs));

  FieldDraw album(game, award_type::album, noGenre);
  // Sure only above a rating of 100, which a mean of songs seldom reaches: intended.
  constexpr Bar albumBar = {.base = 75, .spread = 25};
  if (!entrants.albums.empty() && albumPasses(game, entrants.albums[0], albumBar)) album.nominate(entrants.albums[0]);
  game.state.albumDictionary = dictionaryOf(album.fillUp(entrants.labelAlbums));

  FieldDraw song(game, award_type::song, noGenre);
  if (entrants.songs.size() > 1 && songPasses(game, entrants.songs[1])) song.nominate(entrants.songs[1]);
  game.state.songDictionary = dictionaryOf(song.fillUp(entrants.labelSongs));
}

AwardField fillGenreAlbum(Game& game, const Entrants& entrants, int64_t genre) {
  FieldDraw field(game, award_type::genreAlbum, genre);
  const std::vector<Entrant> own = ofGenre(entrants.albums, genre);
  constexpr Bar bar = {.base = 75, .spread = 15};
  if (!own.empty() && albumPasses(game, own[0], bar)) field.nominate(own[0]);
  return field.fillUp(ofGenre(entrants.labelAlbums, genre));
}

AwardField fillGenreSong(Game& game, const Entrants& entrants, int64_t genre) {
  FieldDraw field(game, award_type::genreSong, genre);
  const std::vector<Entrant> own = ofGenre(entrants.songs, genre);
  if (!own.empty() && songPasses(game, own[0])) field.nominate(own[0]);
  return field.fillUp(ofGenre(entrants.labelSongs, genre));
}

/// Who has won so far this night.
struct Won {
  int64_t mainField = -1;  ///< the highest that has a winner
  std::set<int64_t> genres;
};

/// Whether the row takes its field, when the draw is with it: one of a main field, and one of a genre's two fields.
bool takesField(const Award& award, Won& won) {
  if (award.typeOfAward == award_type::nobodys) return false;
  if (award.typeOfAward > award_type::nobodys) return won.genres.insert(award.genreNumber).second;
  if (award.typeOfAward <= won.mainField) return false;
  won.mainField = award.typeOfAward;
  return true;
}

}  // namespace

AwardShow showAwardButton(const GameState& state) {
  const int64_t stage = awardStage(state);
  if (state.weekNumber == nominationsWeek && stage == award_stage::open) return AwardShow::nominations;
  if (state.weekNumber == winnersWeek && stage != award_stage::decided) return AwardShow::winners;
  return AwardShow::none;
}

bool runNominations(Game& game) {
  GameState& state = game.state;
  if (state.weekNumber != nominationsWeek || awardStage(state) != award_stage::open) return false;
  const Entrants entrants = entrantsOf(state);
  AwardYear year{.year = state.yearNumber, .stage = award_stage::nominated};
  fillMainFields(game, entrants);
  for (const int64_t genre : genresOf(entrants)) {
    year.genreFields.push_back(fillGenreAlbum(game, entrants, genre));
    year.genreFields.push_back(fillGenreSong(game, entrants, genre));
  }
  state.awardYear.assign({std::move(year)});
  game.save(&GameState::recordDictionary, &GameState::albumDictionary, &GameState::songDictionary,
            &GameState::awardYear, &GameState::saveAllMusicAwards, &GameState::awardId);
  stateChanged(game);
  return true;
}

bool decideWinners(Game& game) {
  GameState& state = game.state;
  if (state.weekNumber != winnersWeek || awardStage(state) != award_stage::nominated) return false;
  RecordList<Award>& awards = state.saveAllMusicAwards;
  const size_t first = awards.size() - awardsOfYear(state, state.yearNumber).size();
  Won won;
  for (size_t i = first; i < awards.size(); ++i) {
    // One in four, whatever the rating, and rivals do not compete: intended.
    const bool isLucky = game.random.bits64() >> 62 == 0b10;
    if (isLucky && takesField(awards[i], won)) awards.update(i, [](Award& award) { award.isWinner = 1; });
  }
  state.awardYear.update(0, [](AwardYear& year) { year.stage = award_stage::decided; });
  game.save(&GameState::saveAllMusicAwards, &GameState::awardYear);
  stateChanged(game);
  return true;
}

}  // namespace backbeat
