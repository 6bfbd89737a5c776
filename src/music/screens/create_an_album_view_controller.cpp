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
  if (action.id == "dice") title_ = suggestedTitle(state().albumId, ++diceThrows_);
  if (action.id == "photo") return takePhoto(action.value);
  if (action.id == "removePhoto") return takePhoto("");
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
  View view{.title = "Create an Album"};
  view.add(Cover{.picture = pictureOf(imageString()),
                 .title = title_.empty() ? "Untitled album" : title_,
                 .text = state().myArtistsName});
  view.add(
      TextField{.id = "title", .label = "Title", .value = title_, .placeholder = "Name your album", .suggest = "dice"});
  view.add(Heading{"Cover"});
  PictureGrid grid;
  for (size_t i = 0; i < albumCoverNames.size(); ++i) {
    grid.items.push_back({.picture = cover(albumCoverImage(albumCoverNames[i])),
                          .label = std::string(albumCoverNames[i]),
                          .selected = photo_.empty() && i == cover_,
                          .id = "cover:" + std::to_string(i)});
  }
  view.add(std::move(grid));
  addPhotoField(view, photoField(!photo_.empty()));
  view.mainAction = Button{.id = "createAlbumButton", .label = "Create album", .style = Button::Style::primary};
  view.help =
      Help{.title = "How an album grows",
           .text =
               "An album takes songs that you make for it, and songs in production that you add to it. With three "
               "of them it can come out.\n\nIts life and its sales rest on the mean of its songs, so one weak song "
               "costs all of them."};
  return view;
}

}  // namespace backbeat
