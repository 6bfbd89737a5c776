#include "social/segues.h"

#include "core/money.h"
#include "social/screens/create_twitter_message_view_controller.h"

namespace backbeat {

namespace {

using enum Segue::Presentation;

constexpr Segue segues[] = {
    {"goToCreateTwitterMessage", "CreateTwitterMessageViewController", push,
     makeScreenWithId<CreateTwitterMessageViewController>},
};

constexpr int64_t firstToldFollowers = 100;

void addNews(const Game& game, std::vector<News>& news) {
  const MilestoneSnapshot& before = game.turn.before;
  // Followers have no history of their own, but they rise and fall with the listeners.
  if (game.state.totalFans < before.mostListeners) return;
  const int64_t step = passedPowerOfTen(before.followers, game.state.followerCount);
  if (step < firstToldFollowers) return;
  news.push_back({.rank = 170,
                  .key = "followers " + std::to_string(step),
                  .picture = icon("chirp"),
                  .kicker = "On Chirp",
                  .headline = withCommas(step) + " followers on Chirp",
                  .text = withCommas(game.state.followerCount) + " read what you post"});
}

}  // namespace

const Room socialRoom = {.name = "social", .segues = segues, .addNews = addNews};

}  // namespace backbeat
