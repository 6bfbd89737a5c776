#include "shell/session.h"

#include "career/contract_end.h"
#include "core/text.h"
#include "recognition/leaderboards.h"
#include "shell/registry.h"

namespace backbeat {

Session::Session(Store& store, Platform& platform, uint64_t seed, Date now)
    : random_(seed), game_(store, random_, clock_, platform), navigator_(game_) {
  clock_.set(now);
  game_.leaderboardPass = submitLeaderboards;
  game_.rooms = rooms();
  loadReport_ = game_.saveFile.load(game_.state);
  loadReport_.contractLost = freeFromLostContract(game_);
  navigator_.start(loadReport_);
}

namespace {

/// What a player typed, as the game can keep it: no program that reads a career expects a NUL in a text.
std::string storable(std::string_view typed) {
  std::string text = validUtf8(typed);
  std::erase(text, '\0');
  return text;
}

}  // namespace

void Session::press(Date now, std::string_view screenKey, Action action) {
  clock_.set(now);
  action.id = storable(action.id);
  action.value = storable(action.value);
  navigator_.press(screenKey, action);
}

void Session::takePurchase(Date now, PurchaseAnswer answer) {
  clock_.set(now);
  answer.product = storable(answer.product);
  answer.transaction = storable(answer.transaction);
  navigator_.takePurchase(answer);
}

}  // namespace backbeat
