// Who may be nominated: what the artist and the label put out this year.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "core/game_state.h"
#include "recognition/award_fields.h"

namespace backbeat {

/// A song or an album of this year.
struct Entrant {
  int64_t id = 0;  ///< among the artist's own works, or among the label's
  std::string title;
  std::string artistName;
  double rating = 0;              ///< a song's without its decimals where it is judged
  int64_t genreNumber = noGenre;  ///< of most of its songs, for an album; noGenre where nobody knows it
};

/// Each list has its best first; equals stay in the order in which they were made. Own albums have 5 songs or more.
struct Entrants {
  std::vector<Entrant> songs;
  std::vector<Entrant> albums;
  std::vector<Entrant> labelSongs;
  std::vector<Entrant> labelAlbums;
};

Entrants entrantsOf(const GameState& state);

/// The genres that any of them reaches.
std::set<int64_t> genresOf(const Entrants& entrants);

/// Those of one genre, in their order.
std::vector<Entrant> ofGenre(const std::vector<Entrant>& entrants, int64_t genreNumber);

}  // namespace backbeat
