#include "play/figures.h"

#include "core/money.h"
#include "social/chirps.h"

namespace backbeat {

namespace {

void furnish(GameState& state, OwnValues& own) {
  const std::pair<const char*, int64_t> authors[] = {{"Ada Lind", 17}, {"Mara Voss", 11}, {"Ben Okoro", 5}};
  for (const auto& [name, hours] : authors) {
    Chirp chirp = own.record<Chirp>();
    chirp.artistName = name;
    chirp.typeOfAccount = account::person;
    chirp.isPinned = 0;
    chirp.timestamp = Date{1'940'000'000.0 - static_cast<double>(hours) * 3600};
    chirp.commentCount = 1'000'000 * hours;
    chirp.reChirpCount = 1'000 * hours;
    chirp.likeCount = 120 + hours;
    state.saveAllChirpList.insertFront(chirp);
  }
}

Standings profileFigures(Game& twin) {
  const GameState& state = twin.state;
  Standings standings = {{"cover: text", "@maravoss\n" + withCommas(state.followerCount) + " followers"},
                         {"YouVideo", abbreviated(static_cast<double>(state.youVideoSubscriberCount)), "goToYouVideo"},
                         {"YouVideo: subtitle", "3 music videos"},
                         {"Chirp: price", priceText(chirpCost)}};
  for (const Chirp& chirp : state.saveAllChirpList) {
    const auto count = [](int64_t number) { return abbreviated(static_cast<double>(number)); };
    standings.push_back({chirp.artistName + ": age", chirpAge(chirp, Date{1'940'000'000})});
    standings.push_back({chirp.artistName + ": message", chirp.message});
    standings.push_back({chirp.artistName + ": comments", count(chirp.commentCount)});
    standings.push_back({chirp.artistName + ": reChirps", count(chirp.reChirpCount)});
    standings.push_back({chirp.artistName + ": likes", count(chirp.likeCount)});
  }
  return standings;
}

std::vector<ScreenFigures> screens() {
  return {{.segue = "social", .figures = profileFigures},
          {.segue = "goToCreateTwitterMessage", .argument = "21", .figures = [](Game&) {
             return Standings{{"Your chirp", "My new song \"Night Bus\" is on its way. Stay close! 🎶"},
                              {"Chirp: price", priceText(chirpCost)}};
           }}};
}

const FiguresOf social{.furnish = furnish, .screens = screens};

}  // namespace

}  // namespace backbeat
