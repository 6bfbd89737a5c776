#include "play/figures.h"
#include "recognition/award_fields.h"
#include "recognition/music_awards.h"

namespace backbeat {

namespace {

void furnish(GameState& state, OwnValues& own) {
  for (const int64_t won : {0, 1}) {
    Award award = own.record<Award>();
    award.typeOfAward = award_type::song;
    award.nameOfAward = "Song of the Year";
    award.yearAwarded = 2041 + won;
    award.artistName = "Mara Voss";
    award.songOrAlbumName = won == 1 ? "Paper Boats" : "Glass Harbour";
    award.isSongOrAlbum = 0;
    award.isWinner = won;
    award.genreNumber = noGenre;
    state.saveAllMusicAwards.append(award);
  }
}

void goToNominations(Game& game) { game.state.weekNumber = nominationsWeek; }

void goToAwardsNight(Game& game) {
  goToNominations(game);
  runNominations(game);
  game.state.weekNumber = winnersWeek;
}

/// Whatever of this year's songs the draws let in is marked.
Standings nominationFigures(Game& twin) {
  runNominations(twin);
  Standings standings = {{"poster", "2049 Nominations"}};
  for (const Award& award : awardsOfYear(twin.state, twin.state.yearNumber)) {
    standings.push_back({award.songOrAlbumName + ": badge", "You"});
  }
  return standings;
}

Standings winnerFigures(Game& /*twin*/) { return {{"poster", "2049 GRAM WINNERS"}}; }

Standings historyFigures(Game& /*twin*/) {
  return {{"Won", "1"}, {"Nominated", "2"}, {"Paper Boats", "2042"}, {"Glass Harbour", "2041"}};
}

std::vector<ScreenFigures> screens() {
  return {
      {.segue = "goToMusicAward",
       .figures = nominationFigures,
       .before = goToNominations,
       .presses = {{"allEnvelopes", ""}},
       .noFigures = {"card*"}},
      {.segue = "goToGrammyAwardAnnouncement",
       .figures = winnerFigures,
       .before = goToAwardsNight,
       .presses = {{"allEnvelopes", ""}},
       .noFigures = {"card*"}},
      {.segue = "goToGramAwardDetail", .figures = historyFigures},
  };
}

const FiguresOf awards{.furnish = furnish, .screens = screens};

}  // namespace

}  // namespace backbeat
