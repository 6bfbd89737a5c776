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

/// Which of the portraits of a name: 1 is the one that it has by itself. The name is the artist's, or one that an heir
/// brought along.
struct ChosenPortrait {
  int64_t number = 1;
  std::string_view ofName = {};
};

/// Reads "portrait:3" or "portrait:1:woman:Ada".
ChosenPortrait chosenPortrait(std::string_view kept) {
  if (!kept.starts_with(chosen)) return {};
  kept.remove_prefix(chosen.size());
  const size_t end = std::min(kept.find(':'), kept.size());
  const int64_t number = wholeNumber(kept.substr(0, end)).value_or(1);
  return {std::clamp<int64_t>(number, 1, portraitsOfName), kept.substr(std::min(end + 1, kept.size()))};
}

std::string keptPortrait(int64_t number, std::string_view ofName) {
  const std::string which = std::string(chosen) + std::to_string(number);
  return ofName.empty() ? (number == 1 ? "" : which) : which + ":" + std::string(ofName);
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
  const ChosenPortrait now = chosenPortrait(game.state.twitterProfileImage);
  game.state.twitterProfileImage = keptPortrait(now.number % portraitsOfName + 1, now.ofName);
  game.save(&GameState::twitterProfileImage);
}

void bringPortrait(Game& game, std::string_view name) {
  game.state.twitterProfileImage = keptPortrait(1, name);
  game.save(&GameState::twitterProfileImage);
}

Picture artistPicture(const GameState& state) { return artistPicture(state, state.myArtistsName); }

Picture artistPicture(const GameState& state, const std::string& name) {
  return portraitOf(state.twitterProfileImage, name);
}

Picture portraitOf(const std::string& kept, const std::string& name) {
  if (dataOf(kept)) return {Picture::Kind::photo, kept};
  const auto [number, ofName] = chosenPortrait(kept);
  const std::string drawn = ofName.empty() ? name : std::string(ofName);
  return person(number == 1 ? drawn : drawn + " #" + std::to_string(number));
}

Picture headerPicture(const GameState& state) {
  if (hasOwnHeader(state)) return {Picture::Kind::photo, state.twitterHeaderImage};
  return drawn(Picture::Kind::scene, "stage", state.myArtistsName);
}

}  // namespace backbeat
