#include "social/screens/twitter_profile_view_controller.h"

#include <algorithm>

#include "core/menu.h"
#include "core/money.h"
#include "core/own_photo.h"
#include "core/view_words.h"
#include "social/chirps.h"
#include "social/screens/chirp_post.h"

namespace backbeat {

namespace {

/// The glyph of the pin stands on the blanks.
constexpr const char* pinnedMark = "    Pinned Chirp";

Post describe(const GameState& state, const Chirp& chirp, Date now) {
  const std::string id = std::to_string(chirp.id);
  Post post = postOf(state, chirp, now);
  if (chirp.isPinned >= 1) {
    post.pinned = pinnedMark;
    post.actions.push_back({.id = "unpin:" + id, .label = "Unpin from profile"});
  } else {
    post.actions.push_back({.id = "pin:" + id, .label = "Pin to your profile"});
  }
  if (chirpDeletable(state, chirp)) {
    post.actions.push_back({.id = "delete:" + id, .label = "Delete Chirp", .tone = Tone::bad});
  }
  return post;
}

}  // namespace

Outcome TwitterProfileViewController::appear() {
  seedFollowers(game_);
  pulses_ = state().savePulse == 0;
  if (pulses_) {
    game_.state.savePulse += 1;
    game_.save(&GameState::savePulse);
  }
  return {};
}

Outcome TwitterProfileViewController::act(const Action& action) {
  if (action.id == "goToCreateTwitterMessage") return goTo(action.id);
  if (action.id == "followButton") return followButton();
  if (action.verb() == "feed") feed_.moveTo(action.argument());
  if (const auto chirp = wholeNumber(action.argument())) {
    if (action.verb() == "pin") return pinChirp(game_, *chirp);
    if (action.verb() == "unpin") return unpinChirp(game_, *chirp);
    if (action.verb() == "delete") return deleteChirp(game_, *chirp);
  }
  return followMenu(game_, socialTab, action);
}

Outcome TwitterProfileViewController::followButton() {
  pulses_ = false;
  return refuse<"🐥 That's You 🐥">("\nYou can't follow yourself. Make the others want to.");
}

View TwitterProfileViewController::view() const {
  View view{.title = "Chirp", .theme = Theme::chirp};
  describeProfile(view);
  addMenu(view, game_, socialTab);
  describeFeed(view);
  view.mainAction =
      Button{.id = "goToCreateTwitterMessage", .label = "Chirp", .price = chirpCost, .style = Button::Style::primary};
  view.help = Help{.title = "Chirp",
                   .text =
                       "Followers come and go with your monthly listeners, and they are the ones who like, comment and "
                       "re-chirp.\n\nA song in production can be announced from its own page, once: that gives it a "
                       "little virality."};
  return view;
}

void TwitterProfileViewController::describeProfile(View& view) const {
  view.add(Cover{.picture = artistPicture(state()),
                 .title = state().myArtistsName,
                 .text = handleOf(state().myArtistsName) + "\n" + withCommas(state().followerCount) + " followers",
                 .back = hasOwnHeader(state()) ? headerPicture(state()) : Picture{}});
  view.add(Button{.id = "followButton", .label = "Follow", .pulse = pulses_});
  view.add(
      caption("🎶 New music whenever it is ready, not a day sooner.\n📍 Somewhere between the studio and the "
              "stage.\n💌 Reads everything, answers at night."));
}

void TwitterProfileViewController::describeFeed(View& view) const {
  const std::vector<size_t> order = chirpsInOrder(state());
  if (order.empty()) {
    view.add(EmptyHint{.icon = "chirp",
                       .text = "Nothing has been said yet. Chirp something: the first post is the hardest."});
    return;
  }
  const auto total = static_cast<int64_t>(order.size());
  const int64_t first = feed_.first(total);
  const int64_t last = feed_.last(total);
  if (first > 0) {
    const int64_t newer = std::max(first - ListWindow::pageSize, int64_t{0});
    view.add(Button{.id = "feed:" + std::to_string(newer), .label = "Newer chirps"});
  }
  for (int64_t i = first; i < last; ++i) {
    const Chirp& chirp = state().saveAllChirpList[order[static_cast<size_t>(i)]];
    view.add(describe(state(), chirp, game_.clock.now()));
  }
  if (last < total) view.add(Button{.id = "feed:" + std::to_string(last), .label = "Older chirps"});
}

}  // namespace backbeat
