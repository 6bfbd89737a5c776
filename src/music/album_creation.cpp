#include "music/album_creation.h"

#include <algorithm>

#include "career/label_contract.h"
#include "core/calendar.h"
#include "core/case_folding.h"
#include "core/text.h"

namespace backbeat {

namespace {

constexpr double firstPrice = 3.99;
constexpr double firstMarketing = 5.0;
constexpr int64_t unranked = 1000;  // albums have no chart

void applyLabelTerms(const GameState& state, Album& album) {
  if (state.underContract >= 1) {
    album.marketingScore = static_cast<double>(state.contractMarketingBoost);
    const size_t running = runningContract(state);
    if (state.contractAlbumPricing != 0 && running != state.saveAllContractLabelList.size()) {
      album.percentageOfEarnings = 1 - state.saveAllContractLabelList[running].labelPercentageRate;
      album.price = state.contractAlbumPricing;
    }
  }
  if (state.isLabelLaunched >= 1) album.marketingScore += static_cast<double>(state.labelMarketingBoost);
}

}  // namespace

std::string albumCoverImage(std::string_view name) { return "sleeve " + std::string(name); }

std::optional<size_t> albumPosition(const GameState& state, int64_t albumId) {
  const size_t found = state.saveAllAlbumList.find([&](const Album& album) { return album.albumId == albumId; });
  if (albumId == 0 || found == state.saveAllAlbumList.size()) return std::nullopt;
  return found;
}

bool albumTitleTaken(const GameState& state, const std::string& title) {
  const std::string folded = foldCase(trimmed(title));
  return std::any_of(state.saveAllAlbumList.begin(), state.saveAllAlbumList.end(),
                     [&](const Album& album) { return foldCase(album.title) == folded; });
}

Outcome createAlbum(Game& game, const std::string& title, const std::string& imageString) {
  GameState& state = game.state;
  Album album;
  album.title = trimmed(title);
  if (album.title.empty() || albumTitleTaken(state, album.title)) {
    return refuse<"🔥 Enter a Title 🔥">(
        "\nEvery album needs a unique title. Make it memorable, it might be your next big hit.");
  }
  if (album.title.find('(') != std::string::npos) {
    return refuse<"（ Parenthesis )">(
        "\nPlease remove the brackets in your Album title to avoid issues with future content.");
  }
  state.albumId += 1;
  album.albumId = state.albumId;
  album.releaseYear = state.yearNumber;  // the year of its making, until it is released
  album.price = firstPrice;
  album.marketingScore = firstMarketing;
  album.chartRanking = unranked;
  album.percentageOfEarnings = 1.0;
  applyLabelTerms(state, album);
  state.saveAllAlbumCovers.append({album.albumId, imageString});
  state.saveAllAlbumList.append(std::move(album));
  state.albumId += 1;
  game.save(&GameState::saveAllAlbumList, &GameState::saveAllAlbumCovers, &GameState::albumId);
  stateChanged(game);
  return successAndClose();
}

}  // namespace backbeat
