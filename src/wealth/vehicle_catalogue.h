// The vehicles, boats and aircraft on sale: a fixed table.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace backbeat {

/// Values of `transportationType`.
namespace vehicle {
inline constexpr int64_t road = 0;
inline constexpr int64_t boat = 1;
inline constexpr int64_t aircraft = 2;
inline constexpr int64_t military = 3;
}  // namespace vehicle

struct TransportationOption {
  int64_t id;
  std::string_view title;
  double salePrice;  ///< dollars
  int64_t transportationType;
  double weeklyInsuranceCost;  ///< dollars
  int64_t energyBonus;         ///< points of energy ceiling
  std::string_view form;       ///< of its picture

  /// "transport7.png"
  std::string imageName() const { return "transport" + std::to_string(id - 7'000) + ".png"; }
};

// clang-format off
/// In the order of the showroom: the aircraft stand before the boats, whose ids come first. Intended.
inline constexpr auto vehicles = std::to_array<TransportationOption>({
    {7'001, "Scooter", 500, vehicle::road, 25, 0, "scooter"},
    {7'002, "Beater", 2'500, vehicle::road, 30, 0, "hatchback"},
    {7'003, "Bronco", 5'000, vehicle::road, 30, 0, "offroader"},
    {7'004, "BMW", 15'000, vehicle::road, 50, 0, "sedan"},
    {7'005, "Wrangler", 25'000, vehicle::road, 50, 0, "buggy"},
    {7'006, "RS5", 35'000, vehicle::road, 75, 0, "sports"},
    {7'007, "Model 3", 50'000, vehicle::road, 75, 0, "electric"},
    {7'008, "Macan", 70'000, vehicle::road, 100, 0, "crossover"},
    {7'009, "G-Wagon", 125'000, vehicle::road, 150, 0, "boxy"},
    {7'010, "Aventador", 215'000, vehicle::road, 200, 0, "supercar"},
    {7'011, "Vantage", 335'000, vehicle::road, 250, 0, "coupe"},
    {7'012, "Continental", 450'000, vehicle::road, 300, 1, "convertible"},
    {7'013, "Phantom", 675'000, vehicle::road, 400, 1, "limousine"},
    {7'016, "Cessna", 850'000, vehicle::aircraft, 500, 1, "propeller"},
    {7'017, "Helicopter", 1'550'000, vehicle::aircraft, 750, 1, "helicopter"},
    {7'014, "Yacht", 3'000'000, vehicle::boat, 2'250, 0, "yacht"},
    {7'015, "Superyacht", 9'875'000, vehicle::boat, 2'500, 1, "superyacht"},
    {7'018, "Private Jet", 45'000'000, vehicle::aircraft, 5'750, 1, "jet"},
    {7'019, "Military Transport", 250'000'000, vehicle::military, 12'500, 2, "transport"},
    {7'020, "Stealth Bomber", 700'000'000, vehicle::military, 25'000, 2, "stealth"},
});
// clang-format on

/// The vehicle of that id; nullptr for none.
const TransportationOption* vehicleWithId(int64_t id);

}  // namespace backbeat
