// An artist without a label, as scouts tell of them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace backbeat {

struct ScoutedArtist {
  std::string name;  ///< empty: nobody
  int64_t songwriting = 0;
  int64_t vocals = 0;
  int64_t rhythm = 0;
  int64_t charisma = 0;
  int64_t virality = 0;
  int64_t talent = 0;
  int64_t monthlyListeners = 0;
  double demoRating = 0;         ///< two decimals
  int64_t createdPosition = -1;  ///< among the artists that the player made up; -1 for one that was found

  friend bool operator==(const ScoutedArtist&, const ScoutedArtist&) = default;
};

/// The artist's rating, as of a signed one.
int64_t ratingOf(const ScoutedArtist& artist);

/// The artist in one text, which the way to the table carries.
std::string inOneText(const ScoutedArtist& artist);

/// The artist of such a text; nobody of any other.
ScoutedArtist fromOneText(std::string_view text);

}  // namespace backbeat
