#include "turn/week_cycle.h"

#include "career/contract_offers.h"
#include "career/energy.h"
#include "career/job_board.h"
#include "core/calendar.h"
#include "features/featured_streams.h"
#include "label/signed_artist_output.h"
#include "live/tours.h"
#include "merch/merch_sales.h"
#include "music/album_sales.h"
#include "music/chart.h"
#include "music/listeners.h"
#include "music/milestones.h"
#include "music/streaming.h"
#include "music/videos.h"
#include "wealth/real_estate_index.h"

namespace backbeat {

void runWeekCycle(Game& game, const std::function<void()>& openReport) {
  GameState& state = game.state;
  game.turn = Turn();
  game.turn.before = milestoneSnapshot(state);
  const auto step = [&](auto&& rule) {
    rule(game);
    game.saveFile.commit();
  };
  step(simulateWeeklyAlbumSales);   // 1, first: it opens the marketing pool
  step(simulateWeeklySongStreams);  // 2, fills the chart
  step(simulateWeeklyVideoViews);   // 3
  step(runWeeklyTourShow);          // 4
  step(simulateWeeklyListeners);    // 5, reads the marketing pool
  if (state.isLabelLaunched >= 1) {
    step([](Game& g) {  // 6
      simulateSignedArtistStreams(g);
      simulateSignedArtistAlbumSales(g);
    });
  }
  step(simulateFeaturedOnStreams);  // 7
  step(settleBillboardRanks);       // 8, after all three writers of chart rows
  step(sellWeeklyMerch);            // 9
  state.weekNumber += 1;            // 10, in memory only: the records above carry the week that ends
  state.weekNumberForTracking += 1;
  step(advanceJobContract);                                 // 11
  step(applyWeeklyEnergy);                                  // 12
  refreshHomeHeader(game);                                  // 13, rolls the calendar
  checkLabelOfferBadge(game);                               // 14
  driftRealEstateIndex(game);                               // 15
  if (state.timeUntilNextTour >= 1 && state.onTour == 0) {  // 16, the first week of a break goes at once
    state.timeUntilNextTour -= 1;
  }
  game.save(&GameState::timeUntilNextTour, &GameState::weekNumber, &GameState::weekNumberForTracking);  // 17
  openReport();                                                                                         // 18
  game.saveFile.commit();
  stateChanged(game);  // 19
}

}  // namespace backbeat
