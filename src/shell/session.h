// One launch of the game: the state, its chance and clock, and the navigator, driven by presses and by what the shop
// answers. The page's door, the console, the simulator, replays and tests all play through this.
#pragma once

#include <cstdint>
#include <string_view>
#include <utility>

#include "core/clock.h"
#include "core/game.h"
#include "core/platform.h"
#include "shell/navigator.h"

namespace backbeat {

class Session {
 public:
  /// Loads what `store` holds and opens the first screen. The generator's state is not in the save, so a launch begins
  /// with a seed of its own.
  Session(Store& store, Platform& platform, uint64_t seed, Date now);

  /// One press at a time `now`. Text of a press that is no UTF-8, or holds a NUL, is mended before anything
  /// sees it.
  void press(Date now, std::string_view screenKey, Action action);

  /// What the shop answers at a time `now`, asked for or not: it may have been asked by another launch.
  void takePurchase(Date now, PurchaseAnswer answer);

  Shown shown() const { return navigator_.shown(); }
  const Navigator& navigator() const { return navigator_; }
  Game& game() { return game_; }
  const Game& game() const { return game_; }
  const LoadReport& loadReport() const { return loadReport_; }

  /// Has every turn from now on tell `observer` of its steps.
  void observeTurns(StepObserver observer) { navigator_.observeTurns(std::move(observer)); }

 private:
  SeededRandom random_;
  SetClock clock_;
  Game game_;
  LoadReport loadReport_;
  Navigator navigator_;
};

}  // namespace backbeat
