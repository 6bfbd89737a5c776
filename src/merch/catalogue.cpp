#include "merch/catalogue.h"

#include <algorithm>

#include "core/random.h"

namespace backbeat {

namespace {

constexpr double overTheDollar = 0.99;

}  // namespace

std::vector<double> pricingOptions(const MerchOption& option) {
  std::vector<double> prices;
  for (int64_t dollars = 1; dollars < option.priceOptions; ++dollars) {
    const auto whole = static_cast<double>(dollars);
    if (whole > option.unitCost) prices.push_back(whole + overTheDollar);
  }
  return prices;
}

Picture productPicture(const MerchOption& option, const std::string& name) {
  const std::string kind = " " + std::string(option.productName);
  const bool namesItsKind = name.size() > kind.size() && name.ends_with(kind);
  return drawn(Picture::Kind::object, option.form, namesItsKind ? name.substr(0, name.size() - kind.size()) : name);
}

Picture productPicture(const Merch& product) {
  for (const MerchOption& option : merchCatalogue) {
    if (option.itemId == product.merchOptionId) return productPicture(option, product.name);
  }
  return icon("shirt");
}

std::string suggestedProductName(const GameState& state, const MerchOption& option, int64_t nth) {
  std::vector<const std::string*> origins = {&state.myArtistsName};
  for (const Album& album : state.saveAllAlbumList) {
    if (album.isReleased && album.albumId != 0) origins.push_back(&album.title);
  }
  for (const Song& song : state.saveAllSongList) {
    if (song.isReleased) origins.push_back(&song.title);
  }
  const uint64_t place = hashOf(option.imageString, static_cast<uint64_t>(state.merchId)) + static_cast<uint64_t>(nth);
  return *origins[place % origins.size()] + " " + std::string(option.productName);
}

}  // namespace backbeat
