#include "music/screens/create_an_album_view_controller.h"

#include "core/own_photo.h"
#include "core/random.h"
#include "music/album_creation.h"
#include "music/covers.h"
#include "music/song_creation.h"
#include "music/title_pools.h"

namespace backbeat {

Outcome CreateAnAlbumViewController::open() {
  ensureSingleAlbum(game_);
  cover_ = static_cast<size_t>(hashOf(std::to_string(state().albumId)) % albumCoverNames.size());
  return {};
}

Outcome CreateAnAlbumViewController::act(const Action& action) {
  if (action.id == "createAlbumButton") return createAlbumButton();
  if (action.id == "title") title_ = action.value;
  if (action.id == "dice") title_ = suggestedTitle(hashOf("album " + std::to_string(state().albumId), ++diceThrows_));
  if (action.id == "photo") return takePhoto(action.value);
  if (action.verb() == "cover") {
    if (const auto number = optionNumber(action.argument(), albumCoverNames.size())) {
      cover_ = *number;
      photo_.clear();
    }
  }
  return {};
}

Outcome CreateAnAlbumViewController::createAlbumButton() { return createAlbum(game_, title_, imageString()); }

Outcome CreateAnAlbumViewController::takePhoto(const std::string& address) {
  if (address.empty()) {
    photo_.clear();
    return {};
  }
  if (auto refusal = photoRefusal(address)) return *refusal;
  photo_ = address;
  return success();
}

std::string CreateAnAlbumViewController::imageString() const {
  return photo_.empty() ? albumCoverImage(albumCoverNames[cover_]) : photo_;
}

View CreateAnAlbumViewController::view() const {
  View view;
  view.title = "Create an Album";
  Cover head;
  head.picture = pictureOf(imageString());
  head.title = title_.empty() ? "Untitled album" : title_;
  head.text = state().myArtistsName;
  view.add(std::move(head));
  TextField field;
  field.id = "title";
  field.label = "Title";
  field.value = title_;
  field.placeholder = "Name your album";
  field.suggest = "dice";
  view.add(std::move(field));
  view.add(Heading{"Cover", {}});
  PictureGrid grid;
  for (size_t i = 0; i < albumCoverNames.size(); ++i) {
    PictureChoice choice;
    choice.id = "cover:" + std::to_string(i);
    choice.label = albumCoverNames[i];
    choice.picture = cover(albumCoverImage(albumCoverNames[i]));
    choice.selected = photo_.empty() && i == cover_;
    grid.items.push_back(std::move(choice));
  }
  view.add(std::move(grid));
  view.add(photoField(photo_));
  Button create;
  create.id = "createAlbumButton";
  create.label = "Create Album";
  create.style = Button::Style::primary;
  view.mainAction = std::move(create);
  view.help = Help{"How an album grows",
                   "An album takes songs that you make for it, and songs in production that you add to it. With three "
                   "of them it can come out.\n\nIts life and its sales rest on the mean of its songs, so one weak song "
                   "costs all of them."};
  return view;
}

}  // namespace backbeat
