#include <algorithm>
#include <array>
#include <optional>

#include "core/view_find.h"
#include "label/departments.h"
#include "label/offer.h"
#include "label/roster.h"
#include "label/scouting.h"
#include "play/golden_careers.h"
#include "recognition/music_awards.h"
#include "shell/simulate/habit_words.h"

namespace backbeat {

namespace {

constexpr int64_t weeks = 520;
constexpr int64_t weeksOfTraining = 70;
constexpr int64_t firstHiring = 36;        // nobody good applies before
constexpr int64_t weeksBetweenVisits = 3;  // of the scouts, and of who wants to work here
constexpr int64_t weeksBetweenSongs = 8;
constexpr int64_t energyKeptInTraining = 110;
constexpr double enoughForAnArtist = 900'000;
constexpr std::array<int64_t, departmentCount> wantedStaff = {3, 1, 2, 1, 2};

void openLabel(Player& player) {
  player.tab(musicTab);
  player.press("labelButton");
}

void foundLabel(Player& player) {
  openLabel(player);
  player.press("name", "Kite House");
  player.press("slogan", "Records worth flying for");
  player.press("logo:0");
  player.press("createLabelButton");
  player.settle();
}

/// Learns to lead it, one trait after the other.
void train(Player& player, int64_t week) {
  player.tab(lifeTab);
  player.press("goToMyMusic");
  const std::string trait = "levelUpTrait:businessTrait" + std::to_string(week % 5 + 1);
  for (int64_t before = 0; before != player.state().totalEnergyAvailable;) {
    before = player.state().totalEnergyAvailable;
    if (before <= energyKeptInTraining) return;
    player.press(trait);
    player.settle();
  }
}

/// What the house gets on its way: space, booths, perks.
void furnish(Player& player, int64_t week) {
  openLabel(player);
  player.press("goToLabelCapacity");
  if (week == 8) player.press("office:1");
  if (week == 30) player.press("buyBooth:gold");
  if (week == 90) player.press("buyBooth:diamond");
  if (week == 160) player.press("office:2");
  if (week == 300) player.press("sellBooth:gold");
  player.settle();
  player.back();
  player.press("goToLabelBenefits");
  if (week == 30) player.press("perk:2");
  if (week == 90) player.press("perk:3");
  if (week == 160) player.press("perk:7");
  if (week == 300) player.press("perk:2");
  player.settle();
}

/// Takes whoever applies for a department that is too small.
void hire(Player& player) {
  openLabel(player);
  player.press("goToLabelHireStaff");
  const LabelRatings label = departmentRatings(player.state());
  const std::vector<Card> candidates = blocksOf<Card>(player.view());
  for (size_t i = 0; i < candidates.size(); ++i) {
    for (size_t code = 0; code < departmentCount; ++code) {
      if (candidates[i].title != departments[code].name) continue;
      if (label.departments[code].staff >= wantedStaff[code]) continue;
      player.press("offerJob:" + std::to_string(i));
      player.answer(1);
      return player.settle();
    }
  }
}

/// Lets the weakest of the scouts go, and motivates the first of those who stay.
void leadScouts(Player& player, bool dismisses) {
  const Employee* weakest = nullptr;
  const Employee* first = nullptr;
  for (const Employee& employee : player.state().saveAllEmployeeList) {
    if (employee.employeeDepartmentCode != department::artistsAndRepertoire) continue;
    if (!first) first = &employee;
    if (!weakest || employee.employeeRating < weakest->employeeRating) weakest = &employee;
  }
  if (!first) return;
  const std::string press =
      dismisses ? "fire:" + std::to_string(weakest->employeeId) : "motivate:" + std::to_string(first->employeeId);
  openLabel(player);
  player.press("department:0");
  player.press(press);
  if (dismisses) player.answer(1);
  player.settle();
}

/// Whom the player made up before everybody else, then by rating.
int64_t worthHearing(const Card& artist) { return numberIn(artist.value) + (artist.badge.empty() ? 0 : 1'000); }

/// Hears one demo and makes a better offer than the first one.
void scout(Player& player) {
  const GameState& state = player.state();
  if (activeArtists(state) >= state.studioCapacity || state.totalCashAvailable < enoughForAnArtist) return;
  openLabel(player);
  player.press("goToFindNewArtists");
  player.settle();
  const std::vector<Card> found = blocksOf<Card>(player.view());
  const auto best = std::max_element(found.begin(), found.end(),
                                     [](const Card& a, const Card& b) { return worthHearing(a) < worthHearing(b); });
  if (best == found.end() || !hasEnergy(player, demoCost.energy + offerCost.energy)) return;
  player.press(best->buttons[0].id);
  player.press("years", "1");
  for (int step = 0; step < 3; ++step) player.press("bonus", "1");
  for (int step = 0; step < 6; ++step) player.press("share", "-1");
  player.tryPress("offerButton");
  player.settle();
}

void makeArtistUp(Player& player) {
  openLabel(player);
  player.press("goToCreateSignedArtist");
  player.settle();
  if (!player.tryPress("name", "Paper Anna")) return;
  for (const char* trait : {"charisma", "rhythm", "songwriting", "virality", "vocals", "talent"}) {
    for (int step = 0; step < 12; ++step) player.tryPress(trait, "1");
  }
  player.press("createArtistButton");
  player.settle();
}

void openArtist(Player& player, int64_t artistId) {
  openLabel(player);
  player.press("goToSignedArtists");
  player.press("artist:" + std::to_string(artistId));
}

/// Id of the first artist of whom it holds.
std::optional<int64_t> dueArtist(const GameState& state, bool (*isDue)(const GameState&, const SignedArtist&)) {
  const SignedArtist* first = dueArtists(state, isDue).first;
  return first ? std::optional(first->artistId) : std::nullopt;
}

bool isActive(const GameState& /*state*/, const SignedArtist& artist) { return artist.underContract; }

/// Reviews what is complete, and takes the first song off every third album.
void review(Player& player) {
  const auto ready = dueArtist(player.state(), albumWaits);
  if (!ready) return;
  openArtist(player, *ready);
  player.press("reviewButton");
  player.settle();
  if (player.state().signedArtistAlbumId % 3 != 0) return;
  for (const Row& song : rowsOf(player.view())) {
    if (song.actions.empty()) continue;
    player.press(song.actions[0].id);
    player.answer(1);
    return player.settle();
  }
}

/// Renews every other contract that is up, and ends the rest.
void renewOrDrop(Player& player) {
  const auto up = dueArtist(player.state(), contractIsUp);
  if (!up) return;
  openArtist(player, *up);
  player.press(*up % 2 == 1 ? "renewButton" : "dropButton");
  player.answer(1);
  player.settle();
}

void coach(Player& player) {
  const auto first = dueArtist(player.state(), isActive);
  if (!first) return;
  openArtist(player, *first);
  player.tryPress("coachButton");
  player.settle();
}

void makeSong(Player& player, int64_t week) {
  player.tab(musicTab);
  player.press("createSongButton");
  player.press("title", "Kite " + std::to_string(week));
  for (const char* choice : {"writing", "musicality", "studio"}) player.press(choice, "1");
  player.press("album", "0");
  player.press("createSongButton");
  player.settle();
  player.tab(musicTab);
  player.press("song:" + std::to_string(player.state().songId - 1));
  player.tryPress("boostProduction");
  player.press("releaseButton");
  player.settle();
}

void goToTheAwards(Player& player) {
  const AwardShow show = showAwardButton(player.state());
  if (show == AwardShow::none) return;
  player.tab(homeTab);
  player.press(show == AwardShow::nominations ? "goToMusicAward" : "goToGrammyAwardAnnouncement");
  player.press("nextEnvelope");
  player.press("allEnvelopes");
  player.press("doneButton");
}

}  // namespace

void playGoldenLabel(Player& player) {
  foundLabel(player);
  for (int64_t week = 1; week <= weeks; ++week) {
    if (week <= weeksOfTraining) train(player, week);
    for (const int64_t moving : {8, 30, 90, 160, 300}) {
      if (week == moving) furnish(player, week);
    }
    if (week >= firstHiring && week % weeksBetweenVisits == 1) hire(player);
    if (week % weeksBetweenVisits == 2) scout(player);
    if (week == 120) makeArtistUp(player);
    if (week % 5 == 0) leadScouts(player, week == 250);
    renewOrDrop(player);
    review(player);
    if (week % 2 == 0) coach(player);
    if (week % weeksBetweenSongs == 4) makeSong(player, week);
    goToTheAwards(player);
    player.endTheWeek(week % 13 == 0);  // those who ask for money know how much there is
  }
}

}  // namespace backbeat
