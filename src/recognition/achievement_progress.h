// How far a career is towards the goals that can be measured.
#pragma once

#include "core/game_state.h"

namespace backbeat {

/// So much of so much; a goal is reached from `needed` on. What either is or is not counts to 1.
struct Progress {
  double now = 0;
  double needed = 1;

  bool reached() const { return now >= needed; }
};

/// Tells the progress towards an amount.
using Measure = Progress (*)(const GameState& state, int64_t amount);

namespace progress {

// Wealth and holdings. Exits are those of `Venture::hasExited`; private sales count for none.
Progress netWorth(const GameState& state, int64_t amount);
Progress stealthBomber(const GameState& state, int64_t);
Progress ventureWorth(const GameState& state, int64_t amount);
Progress listeners(const GameState& state, int64_t amount);
Progress publicOffering(const GameState& state, int64_t);
Progress bankruptcy(const GameState& state, int64_t);
Progress acquisition(const GameState& state, int64_t);
/// What the best exit by an offering or a sale brought beyond the stake's price, in dollars.
Progress exitGain(const GameState& state, int64_t amount);

// Songs and the chart, where only the player's own rows count.
Progress singlePlays(const GameState& state, int64_t amount);
Progress billionSingles(const GameState& state, int64_t amount);
Progress debutAtOne(const GameState& state, int64_t);
/// The same of what is on the chart, where it may be over with the next week.
Progress debutAtOneNow(const GameState& state, int64_t);
Progress topTenAtOnce(const GameState& state, int64_t);
Progress weeksAtOne(const GameState& state, int64_t amount);
Progress weeksOnChart(const GameState& state, int64_t amount);
Progress explicitAtOne(const GameState& state, int64_t);

// Albums, videos, and how many songs of which kind.
Progress subscribers(const GameState& state, int64_t amount);
Progress albumUnits(const GameState& state, int64_t amount);
Progress videoViews(const GameState& state, int64_t amount);
Progress explicitSongs(const GameState& state, int64_t amount);
Progress explicitAlbum(const GameState& state, int64_t);
Progress everyGenre(const GameState& state, int64_t);

// Awards, the label's too.
Progress songOfTheYear(const GameState& state, int64_t);
Progress albumOfTheYear(const GameState& state, int64_t);
Progress recordOfTheYear(const GameState& state, int64_t);
/// The three main fields in one year.
Progress threeNominations(const GameState& state, int64_t);
Progress threeWins(const GameState& state, int64_t);

Progress versePlays(const GameState& state, int64_t amount);
Progress soldOutShows(const GameState& state, int64_t amount);

// Love and family.
Progress rejections(const GameState& state, int64_t amount);
Progress matches(const GameState& state, int64_t amount);
Progress messages(const GameState& state, int64_t amount);
/// Whole years with the same partner.
Progress yearsTogether(const GameState& state, int64_t amount);
/// Children with six partners or more; with fewer partners the last child does not count.
Progress childrenOfSixPartners(const GameState& state, int64_t amount);
Progress adoptions(const GameState& state, int64_t amount);

// Festivals that were played.
Progress halftimeShow(const GameState& state, int64_t);
Progress desertHeadline(const GameState& state, int64_t);
Progress burningHeadline(const GameState& state, int64_t);
Progress anyHeadline(const GameState& state, int64_t);
Progress generalLineup(const GameState& state, int64_t);
Progress festivalCrowd(const GameState& state, int64_t amount);

}  // namespace progress

}  // namespace backbeat
