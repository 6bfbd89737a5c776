#include "label/scouted_artist.h"

#include <array>

#include "career/skill.h"
#include "core/numbers.h"
#include "core/screen.h"

namespace backbeat {

namespace {

constexpr std::array wholeFields = {&ScoutedArtist::songwriting,      &ScoutedArtist::vocals,
                                    &ScoutedArtist::rhythm,           &ScoutedArtist::charisma,
                                    &ScoutedArtist::virality,         &ScoutedArtist::talent,
                                    &ScoutedArtist::monthlyListeners, &ScoutedArtist::createdPosition};
constexpr double hundredth = 100;

/// The number up to the next blank, which goes with it.
bool takeNumber(std::string_view& text, int64_t& number) {
  const size_t blank = text.find(' ');
  if (blank == std::string_view::npos) return false;
  const auto found = wholeNumber(text.substr(0, blank));
  if (!found) return false;
  number = *found;
  text.remove_prefix(blank + 1);
  return true;
}

}  // namespace

int64_t ratingOf(const ScoutedArtist& artist) {
  return weakestCountedTwice({artist.songwriting, artist.vocals, artist.rhythm, artist.charisma, artist.virality});
}

std::string inOneText(const ScoutedArtist& artist) {
  std::string text;
  for (const auto field : wholeFields) text += std::to_string(artist.*field) + " ";
  return text + std::to_string(roundHalfAway(artist.demoRating * hundredth)) + " " + artist.name;
}

ScoutedArtist fromOneText(std::string_view text) {
  ScoutedArtist artist;
  for (const auto field : wholeFields) {
    if (!takeNumber(text, artist.*field)) return {};
  }
  int64_t demo = 0;
  if (!takeNumber(text, demo)) return {};
  artist.demoRating = static_cast<double>(demo) / hundredth;
  artist.name = text;
  return artist;
}

}  // namespace backbeat
