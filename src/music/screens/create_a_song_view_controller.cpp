#include "music/screens/create_a_song_view_controller.h"

#include <algorithm>

#include "core/case_folding.h"
#include "core/money.h"
#include "core/purse.h"
#include "core/view_words.h"
#include "music/covers.h"
#include "music/genres.h"
#include "music/guests.h"
#include "music/title_pools.h"

namespace backbeat {

namespace {

constexpr int64_t songsThatFillAnAlbum = 20;
constexpr std::array<const char*, 3> choiceIds = {"writing", "musicality", "studio"};
constexpr std::array<const char*, 3> choiceLabels = {"Songwriting", "Musicality", "Studio"};

constexpr int64_t weak = 25;
constexpr int64_t solid = 50;

/// Weak is red, and middling a warning, only for whom something better is within reach.
Tone toneOfRating(int64_t rating, int64_t bestInReach) {
  if (rating < weak) return bestInReach >= weak ? Tone::bad : Tone::plain;
  if (rating < solid) return bestInReach >= solid ? Tone::warning : Tone::plain;
  if (rating < 80) return Tone::plain;
  return Tone::good;
}

Choice describe(const GameState& state, size_t list, const std::vector<ProductionOption>& options, size_t chosen) {
  int64_t bestInReach = 0;
  for (const ProductionOption& option : options) {
    if (hasCash(state, {.dollars = static_cast<double>(option.cost)})) {
      bestInReach = std::max(bestInReach, option.rating);
    }
  }
  Choice choice{.id = choiceIds[list], .label = choiceLabels[list], .selected = static_cast<int64_t>(chosen)};
  for (const ProductionOption& option : options) {
    Option shown{.label = option.name,
                 .note = "Rating | " + std::to_string(option.rating),
                 .tone = toneOfRating(option.rating, bestInReach)};
    if (option.cost > 0) shown.price = Price{.dollars = static_cast<double>(option.cost)};
    choice.options.push_back(std::move(shown));
  }
  return choice;
}

const std::vector<ProductionOption>& listOf(const ProductionOptions& options, size_t list) {
  return list == 0 ? options.writing : list == 1 ? options.musicality : options.studio;
}

}  // namespace

Outcome CreateASongViewController::open() {
  options_ = drawProductionOptions(game_);
  genre_ = std::clamp<int64_t>(state().saveGenreForNextTime, 0, static_cast<int64_t>(genres.size()) - 1);
  for (size_t list = 0; list < chosen_.size(); ++list) {
    // The studio of a label that is gone gives way to the own one, not to the dearest.
    const size_t last = game_.launch.lastProductionChoices[list];
    chosen_[list] = last < listOf(options_, list).size() ? last : 0;
  }
  ensureSingleAlbum(game_);
  return {};
}

Outcome CreateASongViewController::act(const Action& action) {
  if (action.id == "createSongButton") return createSongButton();
  if (action.id == "goToFeaturedArtists") return goTo(action.id);
  if (action.id == "title") title_ = action.value;
  if (action.id == "dice") title_ = suggestedTitle(state().songId, ++diceThrows_);
  if (action.id == "explicit") isExplicit_ = action.value == "1";
  for (size_t list = 0; list < choiceIds.size(); ++list) {
    if (action.id != choiceIds[list]) continue;
    if (const auto number = optionNumber(action.value, listOf(options_, list).size())) chosen_[list] = *number;
    game_.launch.lastProductionChoices = chosen_;
  }
  if (action.id == "genre") {
    if (const auto number = optionNumber(action.value, genres.size())) genre_ = static_cast<int64_t>(*number);
  }
  if (action.id == "album") {
    const std::vector<std::string> labels = albumPicker();
    if (const auto number = optionNumber(action.value, labels.size())) albumLabel_ = labels[*number];
  }
  return {};
}

Outcome CreateASongViewController::createSongButton() {
  Outcome outcome = createSong(game_, draft());
  if (outcome.result == Result::refused) title_.clear();
  return outcome;
}

std::vector<std::string> CreateASongViewController::albumPicker() const {
  std::vector<std::string> labels = {"Single"};
  for (const Album& album : state().saveAllAlbumList) {
    if (album.isReleased || album.albumId == 0 || album.songCount >= songsThatFillAnAlbum) continue;
    const std::string label = album.title + " (" + std::to_string(album.songCount) + ")";
    if (std::find(labels.begin(), labels.end(), label) == labels.end()) labels.push_back(label);
  }
  return labels;
}

SongDraft CreateASongViewController::draft() const {
  SongDraft draft;
  draft.title = title_;
  const ProductionOption& writing = options_.writing[chosen_[0]];
  const ProductionOption& musicality = options_.musicality[chosen_[1]];
  const ProductionOption& studio = options_.studio[chosen_[2]];
  draft.finalSongWritingRating = writing.rating;
  draft.finalMusicalityRating = musicality.rating;
  draft.finalStudioRating = studio.rating;
  draft.productionCost = writing.cost + musicality.cost + studio.cost;
  draft.album = albumLabel_.substr(0, albumLabel_.find(" ("));
  draft.guests = game_.launch.selectedFeaturedArtists;
  draft.isExplicit = isExplicit_;
  draft.genre = genre_;
  return draft;
}

View CreateASongViewController::view() const {
  View view{.title = "Create a Song"};
  const SongDraft song = draft();
  view.add(Cover{.picture = cover(title_.empty() ? "Untitled" : title_),
                 .title = title_.empty() ? "Untitled song" : title_,
                 .text = std::string(genres[static_cast<size_t>(genre_)]) + " · " + song.album});
  view.add(
      TextField{.id = "title", .label = "Title", .value = title_, .placeholder = "Name your song", .suggest = "dice"});
  view.add(Heading{"Production"});
  for (size_t list = 0; list < choiceIds.size(); ++list) {
    view.add(describe(state(), list, listOf(options_, list), chosen_[list]));
  }
  view.add(Heading{"Guests"});
  Row guests = wayTo("goToFeaturedArtists", "guest", "Featured artists");
  for (const int64_t id : song.guests) {
    Guest guest;
    if (guestFor(state(), id, guest)) guests.subtitle += (guests.subtitle.empty() ? "feat. " : ", ") + guest.name;
  }
  if (guests.subtitle.empty()) guests.subtitle = "Nobody yet: going alone";
  view.add(Rows{{std::move(guests)}});
  view.add(Heading{"Details"});
  Choice album{.id = "album", .label = "Album"};
  const std::vector<std::string> labels = albumPicker();
  for (const std::string& label : labels) album.options.push_back({.label = label});
  album.selected = std::max<int64_t>(std::find(labels.begin(), labels.end(), albumLabel_) - labels.begin(), 0);
  if (album.selected == static_cast<int64_t>(labels.size())) album.selected = 0;
  view.add(std::move(album));
  Choice genre{.id = "genre", .label = "Genre", .selected = genre_};
  for (const std::string_view name : genres) genre.options.push_back({.label = std::string(name)});
  view.add(std::move(genre));
  view.add(Toggle{.id = "explicit", .label = "Explicit", .on = isExplicit_, .note = "Carries the \"E\" mark"});
  view.mainAction = Button{.id = "createSongButton",
                           .label = "Create song",
                           .price = costToProduceSong(state(), song),
                           .style = Button::Style::primary};
  view.help =
      Help{.title = "How a song turns out",
           .text =
               "The rating is nearly the mean of songwriting, musicality, studio, your charisma and a roll of your "
               "virality, with some luck on top. One weak input drags the song down.\n\nThe rating is also the "
               "number of weeks the song lives. A guest lends half of what they have."};
  return view;
}

}  // namespace backbeat
