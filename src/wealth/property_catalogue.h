// The homes and lots on the market: a fixed table.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace backbeat {

struct Property {
  int64_t propertyId;
  std::string_view propertyTitle;
  std::string_view propertyLocation;
  double salePrice;  ///< dollars
  int64_t bedrooms;  ///< 0 for bare land
  int64_t bathrooms;
  int64_t sqft;
  double acres;
  int64_t propertyType;  ///< 1 for land, but for "Heart Key (Land)": intended
  std::string_view imageName;
  double transactionFee;  ///< share of the price that a sale takes
  std::string_view form;  ///< of its picture

  /// Dollars a week: one percent of the price a year.
  constexpr double weeklyTax() const { return salePrice * 0.01 / 52; }
};

// clang-format off
/// No home has the id 5017: intended.
inline constexpr auto properties = std::to_array<Property>({
    {5'000, "Quiet and Quaint", "Washington, DC", 500'000, 2, 1, 1'437, 0.26, 0, "house1.png", 0.06, "townhouse"},
    {5'001, "Dreamy Peak", "Bend, OR", 1'250'000, 4, 3, 2'750, 1.54, 0, "house2.png", 0.06, "cabin"},
    {5'002, "In the Country", "Nashville, TN", 1'499'000, 5, 4, 3'356, 3.21, 0, "house3.png", 0.06, "farmhouse"},
    {5'003, "Sand in your Shoes", "Miami, FL", 4'335'000, 6, 7, 3'899, 1.07, 0, "house4.png", 0.06, "beachHouse"},
    {5'004, "Modern Magic", "Los Angeles, CA", 7'500'000, 8, 8, 4'523, 0.57, 0, "house5.png", 0.06, "modern"},
    {5'005, "Cowboy Ranch", "Denver, CO", 5'699'000, 5, 4, 3'412, 10.03, 0, "house6.png", 0.06, "ranch"},
    {5'006, "Private Lakeside Living", "Lake Tahoe, CA", 11'500'000, 7, 6, 4'342, 2.59, 0, "house7.png", 0.04, "lakeHouse"},
    {5'007, "Estate and Vineyard", "Sonoma, CA", 24'999'999, 10, 12, 5'088, 25.12, 0, "house17.png", 0.04, "vineyard"},
    {5'008, "Minimalist Edge", "Park City, UT", 15'000'000, 7, 5, 3'492, 0.84, 0, "house8.png", 0.04, "chalet"},
    {5'009, "Spectacular Seaside Escape", "Porto Seguro, Brazil", 34'675'000, 15, 18, 3'292, 98.5, 0, "house9.png", 0.04, "bungalow"},
    {5'010, "Yellowstone Ranch (Land)", "Yellowstone, MT", 300'000'000, 0, 0, 0, 266'000, 1, "house10.png", 0.03, "prairie"},
    {5'011, "Mountain Ranch", "Old Snowmass, CO", 125'000'000, 5, 4, 3'562, 400, 0, "house11.png", 0.03, "lodge"},
    {5'012, "Coral Springs (Land)", "Montego Bay, Jamaica", 85'000'000, 0, 0, 0, 360, 1, "house12.png", 0.04, "reef"},
    {5'013, "Private Island", "Other Panama, Panama", 60'000'000, 5, 5, 2'870, 1.45, 0, "house13.png", 0.04, "island"},
    {5'014, "Island Fortress", "Côte d'Azur, France", 49'000'000, 9, 7, 4'306, 3.4, 0, "house14.png", 0.04, "fortress"},
    {5'015, "Heart Key (Land)", "Harbour Island, Bahamas", 189'000'000, 0, 0, 0, 75, 0, "house15.png", 0.03, "heartIsland"},
    {5'016, "Family Relaxation", "Nantucket, MA", 5'578'000, 4, 5, 3'178, 1.02, 0, "house16.png", 0.06, "shingle"},
    {5'018, "Exquisite Modern Villa", "Caesarea, Israel", 3'245'000, 3, 3, 2'603, 0.45, 0, "house18.png", 0.06, "villa"},
    {5'019, "Private Hawaiian Beach (Land)", "Maui, HI", 8'500'000, 0, 0, 0, 31.96, 1, "house19.png", 0.06, "palmBeach"},
    {5'020, "The Landon Estate", "Southampton, NY", 55'750'000, 12, 15, 15'427, 10, 0, "house20.png", 0.04, "estate"},
    {5'021, "7-Level Extraordinaire", "Paris, France", 70'000'000, 6, 6, 13'314, 0.2, 0, "house21.png", 0.04, "parisian"},
    {5'022, "Unmatched Ranch Living", "Dallas, TX", 9'750'000, 5, 4, 4'243, 52.43, 0, "house22.png", 0.06, "ranch"},
    {5'023, "Designer Villa", "Palma De Mallorca, Spain", 7'722'000, 5, 5, 1'542, 0.17, 0, "house23.png", 0.06, "villa"},
    {5'024, "Billionaires Row (Oceanfront)", "Palm Beach, FL", 150'000'000, 16, 14, 12'532, 2.1, 0, "house24.png", 0.03, "mansion"},
    {5'025, "Pacific Coast Dreams", "Malibu, CA", 225'000'000, 18, 22, 25'027, 4.71, 0, "house25.png", 0.03, "cliffHouse"},
    {5'026, "Quiet Serenity", "Canton, GA", 13'865'000, 8, 11, 6'748, 37.81, 0, "house26.png", 0.04, "manor"},
    {5'027, "Crystal Waters", "Parrot Cay, Turks and Caicos", 22'500'000, 11, 9, 14'850, 6.37, 0, "house27.png", 0.04, "lagoon"},
});
// clang-format on

/// The home of that id; nullptr for none.
const Property* propertyWithId(int64_t propertyId);

}  // namespace backbeat
