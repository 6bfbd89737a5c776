#include "social/screens/create_twitter_message_view_controller.h"

#include "core/own_photo.h"
#include "core/view_words.h"
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
  View view{.title = "New chirp", .picture = artistPicture(state()), .theme = Theme::chirp};
  view.add(TextField{.id = "message",
                     .label = "Your chirp",
                     .value = message_,
                     .placeholder = "What's happening?",
                     .multiline = true});
  if (songId_ >= 0) {
    view.add(caption("This announces your song and gives it a little virality.", Tone::good));
  }
  view.mainAction = Button{.id = "chirpButton", .label = "Chirp", .price = chirpCost, .style = Button::Style::primary};
  return view;
}

}  // namespace backbeat
