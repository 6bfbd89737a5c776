#include "music/guests.h"

#include <algorithm>
#include <array>

#include "career/skill.h"
#include "core/numbers.h"

namespace backbeat {

namespace {

struct GuestRow {
  int64_t id;
  const char* name;
  int64_t cost;
  int64_t minimumRating;
  double rating;
  double virality;
};

constexpr std::array<GuestRow, 24> guestRows = {{
    {1, "Juniper Vale", 2'500, 1, 12, 8},       {2, "Low Tide Larry", 2'500, 1, 15, 10},
    {3, "Mina Sol", 5'000, 1, 20, 12},          {4, "Kid Cobalt", 5'000, 3, 22, 15},
    {5, "Saffron Rue", 12'500, 5, 26, 18},      {6, "Osric Plume", 12'500, 7, 28, 22},
    {7, "Pixel Dove", 20'000, 10, 32, 25},      {8, "Marlo Quick", 20'000, 10, 34, 28},
    {9, "Indigo Wren", 35'000, 20, 38, 32},     {10, "Big Harbour", 35'000, 20, 42, 35},
    {11, "Luz Carmina", 47'000, 30, 46, 40},    {12, "Dex Monarch", 47'000, 30, 50, 42},
    {13, "Freya Nightly", 85'000, 35, 54, 48},  {14, "Tobias Flint", 125'000, 40, 58, 52},
    {15, "Honey Ravine", 200'000, 42, 62, 56},  {16, "Cassius Blue", 300'000, 45, 66, 62},
    {17, "Ottoline Fox", 450'000, 50, 70, 68},  {18, "Young Meridian", 450'000, 50, 72, 72},
    {19, "Santo Ventura", 650'000, 55, 76, 75}, {20, "Vesper Lane", 900'000, 60, 80, 80},
    {21, "Roman Alder", 1'250'000, 65, 84, 85}, {22, "Calla Moon", 1'750'000, 70, 88, 90},
    {23, "King Solace", 2'500'000, 80, 93, 96}, {24, "Aurelia Storm", 4'000'000, 90, 98, 105},
}};

struct CameoRow {
  const char* name;
  int64_t guestId;  // the row of the guest table whose figures it shares
};

constexpr std::array<CameoRow, 16> cameoRows = {{
    {"Bixby Marsh", 1},
    {"Petra Lund", 3},
    {"Chef Amaro", 5},
    {"Coach Delgado", 7},
    {"Nadia Frost", 9},
    {"Rex Holloway", 11},
    {"Imani Brooks", 13},
    {"Sir Colin Ashby", 14},
    {"Yuki Tanabe", 15},
    {"Leo Castellan", 16},
    {"Margot Devine", 17},
    {"Ace Whitlock", 18},
    {"Sabine Laurent", 19},
    {"Jet Okonkwo", 20},
    {"Victoria Hale", 22},
    {"The Maestro", 24},
}};

FeaturedArtist fromRow(const GuestRow& row) {
  return {row.id, row.name, row.virality, row.rating, row.cost, row.minimumRating};
}

/// Puts the player's names on a fresh table.
template <class Row>
std::vector<Row> renamed(std::vector<Row> table, const RecordList<Row>& kept, int64_t changes) {
  if (changes < 1) return table;
  for (Row& row : table) {
    const size_t found = kept.find([&](const Row& other) { return other.id == row.id; });
    if (found != kept.size()) row.name = kept[found].name;
  }
  return table;
}

template <class Row>
bool rename(std::vector<Row> table, RecordList<Row>& kept, int64_t id, const std::string& name) {
  const auto row = std::find_if(table.begin(), table.end(), [&](const Row& other) { return other.id == id; });
  if (row == table.end() || name.empty()) return false;
  row->name = name;
  kept.assign(std::move(table));
  return true;
}

}  // namespace

std::vector<FeaturedArtist> guestTable(const GameState& state) {
  std::vector<FeaturedArtist> table;
  for (const GuestRow& row : guestRows) table.push_back(fromRow(row));
  return renamed(std::move(table), state.AllFeaturedArtists, state.featureArtistNamedChanges);
}

std::vector<CelebrityCameo> cameoTable(const GameState& state) {
  std::vector<CelebrityCameo> table;
  for (const CameoRow& row : cameoRows) {
    const GuestRow& figures = guestRows[static_cast<size_t>(row.guestId) - 1];
    table.push_back({static_cast<int64_t>(table.size()) + 1, row.name, figures.virality, figures.rating, figures.cost,
                     figures.minimumRating});
  }
  return renamed(std::move(table), state.AllCelebrityCameos, state.celebrityCameoNamedChanges);
}

void renameGuest(Game& game, int64_t id, const std::string& name) {
  if (!rename(guestTable(game.state), game.state.AllFeaturedArtists, id, name)) return;
  game.state.featureArtistNamedChanges = 1;
  game.save(&GameState::AllFeaturedArtists, &GameState::featureArtistNamedChanges);
}

void renameCameo(Game& game, int64_t id, const std::string& name) {
  if (!rename(cameoTable(game.state), game.state.AllCelebrityCameos, id, name)) return;
  game.state.celebrityCameoNamedChanges = 1;
  game.save(&GameState::AllCelebrityCameos, &GameState::celebrityCameoNamedChanges);
}

Price guestCost(const GameState& state, const FeaturedArtist& star) {
  return {.dollars = static_cast<double>(truncate(static_cast<double>(star.cost) * state.contractFeatureDiscount))};
}

bool guestFor(const GameState& state, int64_t pickedId, Guest& guest) {
  if (pickedId < firstSignedArtistPick) {
    for (const FeaturedArtist& row : guestTable(state)) {
      if (row.id != pickedId) continue;
      guest = {row.name, row.virality, row.rating, guestCost(state, row)};
      return true;
    }
    return false;
  }
  const RecordList<SignedArtist>& artists = state.saveAllSignedArtistList;
  const size_t found = artists.find([&](const SignedArtist& artist) {
    return artist.artistId == pickedId - firstSignedArtistPick && artist.underContract;
  });
  if (found == artists.size()) return false;
  guest = {artists[found].name,
           static_cast<double>(artists[found].virality),
           static_cast<double>(artistRating(artists[found])),
           {}};
  return true;
}

void letGoOfFormerArtists(Game& game) {
  std::erase_if(game.launch.selectedFeaturedArtists, [&](int64_t pickedId) {
    Guest guest;
    return !guestFor(game.state, pickedId, guest);
  });
}

}  // namespace backbeat
