// An invitation to play at a festival: which one, which place on its bill, what it pays.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/game.h"
#include "core/outcome.h"

namespace backbeat {

inline constexpr size_t mostSongsOfSetList = 15;
inline constexpr size_t actsOfBill = 20;

struct FestivalInvitation {
  int64_t saveFestivalId = -1;  ///< row of the table; -1: one nearby, which gets its number when it is booked
  std::string saveName;
  std::string location;
  std::array<std::string_view, 3> genres{};
  int64_t saveAudience = 0;
  bool saveCanHeadline = false;   ///< the top slot is the artist's
  int64_t position = 0;           ///< on the bill, from 1, for who is not the headliner
  std::vector<std::string> acts;  ///< the bill, the artist among them
  std::string saveHeadliner;      ///< the first of them
  std::string saveLineup;         ///< all of them, joined
  double savePayment = 0;         ///< dollars
  int64_t festivalWeekForTracking = 0;
  int64_t festivalWeekNumber = 0;
  int64_t festivalYear = 0;

  /// Where the artist stands on the bill, from 1.
  int64_t place() const { return saveCanHeadline ? 1 : position; }
};

/// Draws an invitation by the artist's skill and listeners, and clears the set list. Who has fewer listeners than any
/// festival of the world has guests is invited nearby.
FestivalInvitation drawFestivalInvitation(Game& game);

/// Joins the acts of a bill, and takes them apart again.
std::string lineupOf(const std::vector<std::string>& acts);
std::vector<std::string> actsOf(const std::string& lineupString);

/// Books the performance with the picked set list. Refused without one. The fee is paid when it has been played.
Outcome acceptFestival(Game& game, const FestivalInvitation& invitation);

/// Puts a released song on the set list, or takes it off. Refused past fifteen.
Outcome toggleSetListSong(Game& game, int64_t songId);

/// The mean rating of the picked songs; 0 for none.
double songSelectionAverage(const GameState& state, const std::vector<int64_t>& setList);

}  // namespace backbeat
