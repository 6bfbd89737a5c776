// What can be made: the catalogue of products, and how each looks.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/game_state.h"
#include "core/view.h"

namespace backbeat {

/// One line of the catalogue.
struct MerchOption {
  int64_t itemId;
  std::string_view category;
  std::string_view productName;
  std::string_view imageString;
  double startupCost;     ///< dollars, once
  int64_t energyCost;     ///< a week, until the product is retired
  double unitCost;        ///< dollars
  int64_t priceOptions;   ///< no price reaches this many dollars
  std::string_view form;  ///< of the drawn thing
  int64_t listenersRequired = 10'000;
};

/// By `itemId`, from 1 on.
// clang-format off
inline constexpr std::array<MerchOption, 19> merchCatalogue = {{
    {1, "Music", "Cassette", "cassette.png", 10'000, 1, 7.99, 40, "cassette"},
    {2, "Music", "Vinyl", "vinyl.png", 25'000, 2, 14.99, 75, "vinyl"},
    {3, "Clothing", "T-Shirt", "tshirt.png", 50'000, 1, 4.99, 25, "shirt"},
    {4, "Clothing", "Hoody", "hoody.png", 90'000, 2, 8.99, 45, "hoody"},
    {5, "Clothing", "Beanie", "beanie1.png", 40'000, 1, 3.99, 20, "beanie"},
    {6, "Clothing", "Beanie", "beanie2.png", 40'000, 1, 3.99, 20, "bobbleHat"},
    {7, "Clothing", "Hat", "hat1.png", 30'000, 1, 2.99, 15, "cap"},
    {8, "Clothing", "Cowboy Hat", "hat2.png", 50'000, 1, 4.99, 20, "cowboyHat"},
    {9, "Clothing", "Swimsuit", "swimsuit1.png", 100'000, 3, 9.99, 50, "swimsuit"},
    {10, "Clothing", "Swimsuit", "swimsuit2.png", 100'000, 3, 9.99, 50, "bikini"},
    {11, "Clothing", "Swimsuit", "swimsuit3.png", 80'000, 3, 7.99, 40, "trunks"},
    {12, "Clothing", "Sweater", "sweater1.png", 70'000, 2, 6.99, 35, "sweater"},
    {13, "Clothing", "Sweater", "sweater2.png", 80'000, 2, 7.99, 40, "jumper"},
    {14, "Accessories", "Mug", "mug.png", 30'000, 1, 2.99, 15, "mug"},
    {15, "Accessories", "Makeup", "makeup.png", 200'000, 4, 19.99, 100, "makeup"},
    {16, "Accessories", "Phone Case", "phonecase.png", 20'000, 1, 1.99, 10, "phoneCase"},
    {17, "Accessories", "Backpack", "backpack1.png", 150'000, 3, 14.99, 75, "backpack"},
    {18, "Accessories", "Backpack", "backpack2.png", 150'000, 3, 14.99, 75, "rucksack"},
    {19, "Accessories", "Handbag", "handbag1.png", 500'000, 5, 49.99, 250, "handbag"},
}};
// clang-format on

/// Whether it carries a list of songs.
constexpr bool isRecord(const MerchOption& option) { return option.category == "Music"; }

/// What it can be sold for, lowest first: never under its unit cost.
std::vector<double> pricingOptions(const MerchOption& option);

/// The thing as it is drawn. A product that is called after something ("Paper Lanterns Hoody") bears the sleeve of it.
Picture productPicture(const MerchOption& option, const std::string& name);
Picture productPicture(const Merch& product);

/// A name for a product, after the artist or one of the releases; the nth throw of the dice for the product to come.
std::string suggestedProductName(const GameState& state, const MerchOption& option, int64_t nth);

}  // namespace backbeat
