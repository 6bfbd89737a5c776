#include "turn/week_cycle.h"

#include "career/contract_offers.h"
#include "career/energy.h"
#include "career/job_board.h"
#include "core/calendar.h"
#include "features/featured_streams.h"
#include "label/signed_artist_output.h"
#include "live/tours.h"
#include "merch/merch_sales.h"
#include "merch/products.h"
#include "music/album_sales.h"
#include "music/chart.h"
#include "music/listeners.h"
#include "music/milestones.h"
#include "music/silence.h"
#include "music/streaming.h"
#include "turn/open_report.h"
#include "video/weekly_views.h"
#include "wealth/real_estate_index.h"

namespace backbeat {

void runWeekCycle(Game& game, const std::function<void()>& openReport, const StepObserver& observer) {
  GameState& state = game.state;
  const auto begin = [&](std::string_view name) {
    if (observer) observer(name);
  };
  const auto step = [&](std::string_view name, auto&& rule) {
    begin(name);
    rule(game);
    game.saveFile.commit();
  };
  begin("before");
  game.turn = Turn();
  letSilentMusicSleep(state);
  letForgottenVideosSleep(state);
  letForgottenVersesSleep(state);
  letRetiredProductsSleep(state);
  letSilentArtistsSleep(state);
  game.turn.before = milestoneSnapshot(game);
  noteFirsts(game);
  step("album sales", simulateWeeklyAlbumSales);    // 1, first: it opens the marketing pool
  step("song streams", simulateWeeklySongStreams);  // 2, fills the chart
  step("video views", simulateWeeklyVideoViews);    // 3
  step("tour show", runWeeklyTourShow);             // 4
  step("listeners", simulateWeeklyListeners);       // 5, reads the marketing pool
  if (state.isLabelLaunched >= 1) {
    step("signed artists", [](Game& g) {  // 6
      simulateSignedArtistStreams(g);
      simulateSignedArtistAlbumSales(g);
    });
  }
  step("guest verses", simulateFeaturedOnStreams);  // 7
  step("chart", settleBillboardRanks);              // 8, after all three writers of chart rows
  step("merchandise", sellWeeklyMerch);             // 9
  state.weekNumber += 1;                            // 10, in memory only: the records above carry the week that ends
  state.weekNumberForTracking += 1;
  step("job", advanceJobContract);    // 11
  step("energy", applyWeeklyEnergy);  // 12
  begin("calendar");
  rollCalendar(game);                                       // 13
  checkLabelOfferBadge(game);                               // 14
  driftRealEstateIndex(game);                               // 15
  if (state.timeUntilNextTour >= 1 && state.onTour == 0) {  // 16, the first week of a break goes at once
    state.timeUntilNextTour -= 1;
  }
  game.save(&GameState::timeUntilNextTour, &GameState::weekNumber, &GameState::weekNumberForTracking);  // 17
  begin("report");
  openReport();  // 18
  game.saveFile.commit();
  begin("after");
  stateChanged(game);  // 19
  begin("");
}

}  // namespace backbeat
