#include "social/screens/create_twitter_message_view_controller.h"

#include "social/chirps.h"

namespace backbeat {

Outcome CreateTwitterMessageViewController::open() {
  const RecordList<Song>& songs = state().saveAllSongList;
  const size_t found = songs.find([&](const Song& song) { return song.songId == songId_; });
  if (found != songs.size()) message_ = "My new song \"" + songs[found].title + "\" is on its way. Stay close! 🎶";
  return {};
}

Outcome CreateTwitterMessageViewController::act(const Action& action) {
  if (action.id == "message") message_ = action.value;
  if (action.id == "chirpButton") return chirpButton();
  return {};
}

Outcome CreateTwitterMessageViewController::chirpButton() {
  Outcome outcome = postChirp(game_, message_, songId_);
  if (outcome.done()) outcome += closeScreen();
  return outcome;
}

View CreateTwitterMessageViewController::view() const {
  View view;
  view.title = "New Chirp";
  view.theme = Theme::chirp;
  view.picture = person(state().myArtistsName);
  TextField field;
  field.id = "message";
  field.label = "Your Chirp";
  field.value = message_;
  field.placeholder = "What's happening?";
  field.multiline = true;
  view.add(std::move(field));
  if (songId_ >= 0) {
    view.add(Text{"This announces your song and gives it a little virality.", Tone::good, Text::Style::caption});
  }
  Button chirp;
  chirp.id = "chirpButton";
  chirp.label = "Chirp";
  chirp.price = chirpCost;
  chirp.style = Button::Style::primary;
  view.mainAction = std::move(chirp);
  return view;
}

}  // namespace backbeat
