#include "core/own_photo.h"

#include <algorithm>
#include <array>

#include "core/screen.h"

namespace backbeat {

namespace {

constexpr std::array<std::string_view, 4> beginnings = {
    "data:image/jpeg;base64,",
    "data:image/png;base64,",
    "data:image/webp;base64,",
    "data:image/gif;base64,",
};

constexpr int64_t portraitsOfName = 12;
constexpr std::string_view chosen = "portrait:";

bool isBase64(std::string_view text) {
  while (text.ends_with('=')) text.remove_suffix(1);
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '+' || c == '/';
  });
}

/// Where the data of a picture begins, or nothing when the address is none.
std::optional<size_t> dataOf(std::string_view address) {
  for (const std::string_view beginning : beginnings) {
    if (address.starts_with(beginning)) return beginning.size();
  }
  return std::nullopt;
}

Outcome takeInto(Game& game, std::string GameState::*member, const std::string& address) {
  if (!address.empty()) {
    if (auto refusal = photoRefusal(address)) return *refusal;
  }
  game.state.*member = address;
  game.save(member);
  return success();
}

/// 1 is the one that a name has by itself.
int64_t chosenPortrait(const GameState& state) {
  const std::string_view kept = state.twitterProfileImage;
  if (!kept.starts_with(chosen)) return 1;
  return std::clamp<int64_t>(wholeNumber(kept.substr(chosen.size())).value_or(1), 1, portraitsOfName);
}

}  // namespace

std::optional<Outcome> photoRefusal(std::string_view address) {
  if (address.size() > largestPhoto) {
    return refuse<"📷 Photo Too Large 📷">("\nA photo travels with your save, so it may take up 200 KB at most.");
  }
  const auto data = dataOf(address);
  if (!data || !isBase64(address.substr(*data))) {
    return refuse<"📷 Not a Photo 📷">("\nThis can't be read as a picture. Pick a JPEG, PNG, WebP or GIF.");
  }
  return std::nullopt;
}

PhotoField photoField(bool taken) {
  return {.id = "photo", .label = "Your own photo", .note = photoLimit, .taken = taken};
}

std::string removalOf(const PhotoField& field) {
  std::string id = "remove" + field.id;
  id[6] = static_cast<char>(id[6] - 'a' + 'A');
  return id;
}

void addPhotoField(View& view, const PhotoField& field) {
  view.add(field);
  if (!field.taken) return;
  const bool isHeader = field.shape == PhotoField::Shape::wide;
  view.add(Button{.id = removalOf(field),
                  .label = isHeader ? "Remove header" : "Remove photo",
                  .style = Button::Style::destructive});
}

bool hasOwnPhoto(const GameState& state) { return dataOf(state.twitterProfileImage).has_value(); }
bool hasOwnHeader(const GameState& state) { return dataOf(state.twitterHeaderImage).has_value(); }

Outcome takeProfilePhoto(Game& game, const std::string& address) {
  return takeInto(game, &GameState::twitterProfileImage, address);
}

Outcome takeHeader(Game& game, const std::string& address) {
  return takeInto(game, &GameState::twitterHeaderImage, address);
}

void chooseNextPortrait(Game& game) {
  const int64_t next = chosenPortrait(game.state) % portraitsOfName + 1;
  game.state.twitterProfileImage = next == 1 ? "" : std::string(chosen) + std::to_string(next);
  game.save(&GameState::twitterProfileImage);
}

Picture artistPicture(const GameState& state) { return artistPicture(state, state.myArtistsName); }

Picture artistPicture(const GameState& state, const std::string& name) {
  if (hasOwnPhoto(state)) return {Picture::Kind::photo, state.twitterProfileImage};
  const int64_t portrait = chosenPortrait(state);
  return person(portrait == 1 ? name : name + " #" + std::to_string(portrait));
}

Picture headerPicture(const GameState& state) {
  if (hasOwnHeader(state)) return {Picture::Kind::photo, state.twitterHeaderImage};
  return drawn(Picture::Kind::scene, "stage", state.myArtistsName);
}

}  // namespace backbeat
