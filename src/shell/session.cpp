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
  if (freeFromLostContract(game_)) {
    loadReport_.mended.emplace_back("Your label contract is lost: you are a free artist again and keep its advance.");
  }
  navigator_.start(loadReport_);
}

void Session::press(Date now, std::string_view screenKey, Action action) {
  clock_.set(now);
  action.id = validUtf8(action.id);
  action.value = validUtf8(action.value);
  navigator_.press(screenKey, action);
}

}  // namespace backbeat
