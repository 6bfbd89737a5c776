#include "live/tour_locations.h"

namespace backbeat {

namespace {

constexpr int64_t mostLuck = 5;
constexpr int64_t nationalEnergy = 5;
constexpr int64_t globalEnergy = 10;

using enum TourLocation::Type;

}  // namespace

// clang-format off
const std::array<TourLocation, tourLocationCount> tourLocations = {{
    {0, "Great Strahov Stadium", "Prague, Czech", 250'000, global, "stadium"},
    {1, "AT&T Stadium", "Texas, USA", 105'000, national, "dome"},
    {2, "Ohio Stadium", "Columbus, USA", 105'000, national, "stadium"},
    {3, "Beijing National Stadium", "Beijing, China", 91'000, global, "nest"},
    {4, "Bukit Jalil National Stadium", "Kuala Lumpur, Malaysia", 80'000, global, "stadium"},
    {5, "Maracanã Stadium", "Rio de Janeiro, Brazil", 78'000, global, "stadium"},
    {6, "Nissan Stadium", "Yokahama, Japan", 75'000, global, "stadium"},  // spelled so on every ticket: intended
    {7, "Seoul Olympic Stadium", "Seoul, South Korea", 70'000, global, "stadium"},
    {8, "Friends Arena", "Stockholm, Sweden", 65'000, global, "arena"},
    {9, "Philippine Arena", "Bulacan, Philippines", 55'000, global, "dome"},
    {10, "Paris La Défense Arena", "Paris, France", 40'000, global, "arena"},
    {11, "Romexpo Dome", "Bucharest, Romania", 40'000, global, "dome"},
    {12, "Johannesburg Stadium", "Johannesburg, South Africa", 38'000, global, "stadium"},
    {13, "Saitama Super Arena", "Saitama, Japan", 37'000, global, "arena"},
    {14, "Gorge Amphitheatre", "Washington, USA", 28'000, national, "steps"},
    {15, "Baku Crystal Hall", "Baku, Azerbaijan", 25'000, global, "crystal"},
    {16, "Qudos Bank Arena", "Sydney, Australia", 21'000, global, "arena"},
    {17, "Madison Square Garden", "New York, USA", 20'000, national, "drum"},
    {18, "Merriweather Post Pavilion", "Maryland, USA", 20'000, national, "pavilion"},
    {19, "Hollywood Bowl", "California, USA", 17'500, national, "shell"},
    {20, "Red Rocks Amphitheatre", "Colorado, USA", 10'000, national, "rocks"},
    {21, "The Greek Theatre", "California, USA", 6'000, national, "steps"},
    {22, "Radio City Music Hall", "New York, USA", 6'000, national, "theatre"},
    {23, "Grand Ole Opry House", "Tennessee, USA", 4'500, national, "hall"},
    {24, "Tabernacle", "Georgia, USA", 2'600, national, "auditorium"},
    {25, "Ryman Auditorium", "Tennessee, USA", 2'500, national, "auditorium"},
}};
// clang-format on

const TourLocation* tourLocation(int64_t id) {
  if (id < 0 || id >= tourLocationCount) return nullptr;
  return &tourLocations[static_cast<size_t>(id)];
}

void drawVenueDemand(Game& game) {
  if (!game.launch.venueDemand.empty()) return;
  for (int64_t row = 0; row < tourLocationCount; ++row) {
    game.launch.venueDemand.push_back(game.random.integer(0, 2 * mostLuck) - mostLuck);
  }
}

int64_t showEnergy(const TourLocation& location) { return location.type == global ? globalEnergy : nationalEnergy; }

}  // namespace backbeat
