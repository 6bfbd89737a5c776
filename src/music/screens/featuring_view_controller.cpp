#include "music/screens/featuring_view_controller.h"

#include <algorithm>

#include "career/skill.h"
#include "core/money.h"
#include "music/guests.h"

namespace backbeat {

namespace {

bool holds(const std::vector<int64_t>& ids, int64_t id) { return std::find(ids.begin(), ids.end(), id) != ids.end(); }

/// The skill that a guest asks for; signed artists ask for none.
int64_t minimumRatingOf(const GameState& state, int64_t pickedId) {
  for (const FeaturedArtist& row : guestTable(state)) {
    if (row.id == pickedId) return row.minimumRating;
  }
  return 0;
}

}  // namespace

Outcome FeaturingViewController::open() {
  letGoOfFormerArtists(game_);
  addedBefore_ = game_.launch.selectedFeaturedArtists;
  return {};
}

Outcome FeaturingViewController::act(const Action& action) {
  const auto pickedId = wholeNumber(action.argument());
  if (!pickedId) return {};
  if (action.verb() == "add") return addButton(*pickedId);
  if (action.verb() == "changeName") return changeNameButton(*pickedId);
  return {};
}

Outcome FeaturingViewController::addButton(int64_t pickedId) {
  std::vector<int64_t>& selected = game_.launch.selectedFeaturedArtists;
  Guest guest;
  if (!guestFor(state(), pickedId, guest)) return {};
  if (isOnTheSong(pickedId)) {
    std::erase(selected, pickedId);
    return {};
  }
  if (selected.size() >= mostGuestsOnASong) {
    return refuse<"🎤 Featured Limit Reached 🎤">("\nYou can only feature up to 3 artists on a track.");
  }
  const int64_t asked = minimumRatingOf(state(), pickedId);
  if (asked > overallSkillRating(state())) {
    return refuse<"🎤 Not Yet 🎤">("\n" + guest.name + " only records with artists of a skill rating of " +
                                 std::to_string(asked) + ". Yours is " + std::to_string(overallSkillRating(state())) +
                                 ".");
  }
  selected.push_back(pickedId);
  return success();
}

Outcome FeaturingViewController::changeNameButton(int64_t pickedId) {
  Guest guest;
  if (!guestFor(state(), pickedId, guest)) return {};
  if (pickedId >= firstSignedArtistPick) {
    return refuse<"🎤 Signed Artist🎤">("\nYou can't change the name of signed or created artists at this time.");
  }
  return goTo("goToChangeFeaturedArtistName", std::to_string(pickedId));
}

bool FeaturingViewController::isOnTheSong(int64_t pickedId) const {
  return holds(game_.launch.selectedFeaturedArtists, pickedId);
}

Row FeaturingViewController::describe(int64_t pickedId, const std::string& name, double rating, double virality) const {
  const std::string id = std::to_string(pickedId);
  Row row{.picture = person(name),
          .title = name,
          .subtitle = "Rating " + withDecimals(rating, 0) + " · Virality " + withDecimals(virality, 0),
          .id = "add:" + id,
          .actions = {{.id = "changeName:" + id, .label = "Change the name"}}};
  if (isOnTheSong(pickedId)) {
    row.selected = true;
    row.note = holds(addedBefore_, pickedId) ? "Already Added" : "Added";
  }
  return row;
}

View FeaturingViewController::view() const {
  View view{.title = "FEATURED ARTISTS"};
  const size_t selected = game_.launch.selectedFeaturedArtists.size();
  const int64_t skill = overallSkillRating(state());
  view.subtitle = std::to_string(selected) + " of " + std::to_string(mostGuestsOnASong) + " added";
  view.add(Tiles{{{.icon = "star", .label = "Your skill rating", .value = std::to_string(skill)}}});
  Rows artists;
  for (const SignedArtist& artist : state().saveAllSignedArtistList) {
    const int64_t pickedId = firstSignedArtistPick + artist.artistId;
    Guest guest;
    if (!guestFor(state(), pickedId, guest)) continue;
    artists.items.push_back(describe(pickedId, guest.name, guest.rating, guest.virality));
  }
  if (!artists.items.empty()) {
    view.add(Heading{"Your label"});
    view.add(std::move(artists));
    view.add(Heading{"For hire"});
  }
  Rows guests;
  for (const FeaturedArtist& guest : guestTable(state())) {
    Row row = describe(guest.id, guest.name, guest.rating, guest.virality);
    row.price = guestCost(state(), guest);
    if (guest.minimumRating > skill) {
      row.tone = Tone::locked;
      row.subtitle += "\nAsks for a skill of " + std::to_string(guest.minimumRating);
    }
    guests.items.push_back(std::move(row));
  }
  view.add(std::move(guests));
  view.help =
      Help{.title = "Guests",
           .text =
               "A guest lends the song half of their rating and half of their virality; several guests lend the "
               "mean of theirs. They are paid when the song is made.\n\nYour skill rating opens doors: each star "
               "asks for a certain one. Artists of your own label sing for free."};
  return view;
}

}  // namespace backbeat
