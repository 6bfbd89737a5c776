#include "label/coaching.h"

#include <array>

#include "core/calendar.h"
#include "core/purse.h"
#include "label/roster.h"

namespace backbeat {

namespace {

struct Lesson {
  int64_t SignedArtist::*trait;  ///< nullptr: the happiness
  std::string_view name;
  std::string_view loud;
};
constexpr std::array<Lesson, 7> lessons = {{
    {&SignedArtist::charisma, "Charisma", "CHARISMA"},
    {&SignedArtist::songwriting, "Songwriting", "SONGWRITING"},
    {&SignedArtist::virality, "Virality", "VIRALITY"},
    {&SignedArtist::vocals, "Vocals", "VOCALS"},
    {&SignedArtist::talent, "Talent", "TALENT"},
    {&SignedArtist::rhythm, "Rhythm", "RHYTHM"},
    {nullptr, "Happiness", "HAPPINESS"},
}};
constexpr int64_t greatestTrait = 110;
constexpr int64_t traitStep = 1;
constexpr int64_t happinessStep = 2;

/// Whether there was anything left to learn.
bool teach(SignedArtist& artist, const Lesson& lesson) {
  if (!lesson.trait) {
    artist.happiness += static_cast<double>(happinessStep);
    return true;
  }
  if (artist.*lesson.trait >= greatestTrait) return false;
  artist.*lesson.trait += traitStep;
  return true;
}

Outcome improved(const std::string& artist, const Lesson& lesson) {
  const std::string amount = std::to_string(lesson.trait ? traitStep : happinessStep);
  return news(alertTitle<"🎉 +* 🎉">.with(amount + " " + std::string(lesson.loud)),
              "\nYou made time to coach and mentor " + artist + "... \n\nAs a result, you saw improvement in their " +
                  std::string(lesson.name) + " by " + amount + " point(s).");
}

}  // namespace

Price coachingCost(const GameState& state) { return {.energy = 30 - state.businessTrait1 / 5}; }

Outcome coachArtist(Game& game, int64_t artistId) {
  RecordList<SignedArtist>& artists = game.state.saveAllSignedArtistList;
  const size_t position = artistPosition(game.state, artistId);
  if (position == artists.size() || !artists[position].underContract) return {};
  const Price cost = coachingCost(game.state);
  if (!hasEnergy(game.state, cost)) return noEnergy("\nYou don't have the energy to coach right now.");
  pay(game, cost);
  const Lesson* learned = nullptr;
  if (game.random.coin() == 1) {
    const Lesson& lesson = game.random.element(lessons);
    artists.update(position, [&](SignedArtist& artist) { learned = teach(artist, lesson) ? &lesson : nullptr; });
    game.save(&GameState::saveAllSignedArtistList);
  }
  stateChanged(game);
  const std::string& name = artists[position].name;
  if (learned) return improved(name, *learned);
  return news<"👏 Good Effort 👏">(
      "\nYou made time to coach and mentor " + name + " but it looks like more coaching is needed.", Feedback::warning);
}

}  // namespace backbeat
