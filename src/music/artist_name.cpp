#include "music/artist_name.h"

#include <array>
#include <string_view>

#include "core/calendar.h"
#include "core/new_game.h"
#include "core/random.h"

namespace backbeat {

namespace {

constexpr std::array<std::string_view, 24> givenNames = {
    "Ada",  "Bruno", "Cleo",  "Dario", "Elsie", "Felix", "Greta", "Hugo", "Iris", "Jonas", "Kaya", "Leon",
    "Mara", "Nico",  "Olive", "Pablo", "Ruby",  "Silas", "Thea",  "Ugo",  "Vera", "Wes",   "Yara", "Zane",
};

constexpr std::array<std::string_view, 24> stageNames = {
    "Ashdown", "Bright",  "Calloway", "Driver", "Ember",   "Fontaine", "Gallant", "Hart",
    "Ivory",   "Jericho", "Keys",     "Larkin", "Mercury", "North",    "Onyx",    "Palmer",
    "Quill",   "Rivers",  "Sterling", "Tempo",  "Verse",   "Wilder",   "Young",   "Zephyr",
};

/// Awards are known by the artist's name, so they follow it; those of a signed artist of the same name stay.
void takeAwardsAlong(Game& game, const std::string& name) {
  GameState& state = game.state;
  const std::string before = state.myArtistsName;
  const RecordList<SignedArtist>& artists = state.saveAllSignedArtistList;
  if (artists.find([&](const SignedArtist& artist) { return artist.name == before; }) != artists.size()) return;
  RecordList<Award>& awards = state.saveAllMusicAwards;
  for (size_t i = 0; i < awards.size(); ++i) {
    if (awards[i].artistName == before) awards.update(i, [&](Award& award) { award.artistName = name; });
  }
  game.save(&GameState::saveAllMusicAwards);
}

}  // namespace

void nameArtist(Game& game, const std::string& name) {
  takeAwardsAlong(game, name);
  game.state.myArtistsName = name;
  game.state.promptToEnterName = 1;
  game.save(&GameState::myArtistsName, &GameState::promptToEnterName);
  numberCareer(game);
  stateChanged(game);
}

std::string suggestedStageName(uint64_t salt) {
  const uint64_t hash = hashOf("stage name", salt);
  return std::string(givenNames[hash % givenNames.size()]) + " " +
         std::string(stageNames[hash / givenNames.size() % stageNames.size()]);
}

}  // namespace backbeat
