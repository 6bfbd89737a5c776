#include <algorithm>
#include <cmath>

#include "career/skill.h"
#include "career/studio.h"
#include "core/money.h"
#include "label/artist_creation.h"
#include "label/departments.h"
#include "label/hiring.h"
#include "label/launch.h"
#include "label/office.h"
#include "label/perks.h"
#include "label/roster.h"
#include "label/scouting.h"
#include "label/staff.h"
#include "music/figures.h"

namespace backbeat {

namespace {

// In the world of figures three people work for the label: one each in the first three departments, under one artist.

std::string whole(double number) { return withCommas(std::llround(number)); }

/// A level out of a hundred, where every one of this world is past it.
Standings full(const std::string& label, double level) {
  return {{label, whole(level)}, {label + ": share", shareText(1)}};
}

std::string rated(const GameState& state, size_t code) {
  return whole(static_cast<double>(state.saveAllEmployeeList[code].employeeRating));
}

double salaries(const GameState& state) {
  double sum = 0;
  for (const WeeklyLineItem& item : state.saveAllWeeklyLineItems) {
    if (item.title == "Pay of the manager" || item.title == "Label campaign") sum += item.amount;
  }
  return sum;
}

double perksAndRent(const GameState& state) { return 3 * state.labelOfficePerkSpend + state.labelOfficeRent; }

std::string booths(const GameState& state) {
  return std::to_string(state.goldBooth + state.platinumBooth + state.diamondBooth);
}

template <class T>
double weekBefore(const RecordList<T>& list, const GameState& state, double T::*amount) {
  double sum = 0;
  for (const T& row : list) sum += row.weekNumber == state.weekNumber - 1 ? row.*amount : 0;
  return sum;
}

template <class T>
double allWeeks(const RecordList<T>& list, double T::*amount) {
  double sum = 0;
  for (const T& row : list) sum += row.*amount;
  return sum;
}

Standings launchFigures(Game& twin) {
  return {{"Launch", "$2,000,000"},
          {"Energy", std::to_string(twin.state.totalEnergyAvailable)},
          {"Running it", "-30"},
          {"CREATE: price", "10 energy $2,000,000"}};
}

Standings deskFigures(const GameState& state) {
  Standings standings = {{"gauges: note", "3/" + std::to_string(state.officeCapacity) + " EMPLOYEES"}};
  for (size_t code = 0; code < departmentCount; ++code) {
    const std::string name(departments[code].shortName);
    const bool staffed = code < 3;
    standings.push_back({name, staffed ? rated(state, code) : "0", "goToDepartment " + std::to_string(code)});
    standings.push_back({name + ": note", staffed ? "1 EMPLOYEE(S)" : "0 EMPLOYEE(S)"});
    standings.push_back({name + ": share", shareText(staffed ? 1 : 0)});
  }
  const std::string rule = "One of the staff for every 3 artists";
  return standings + Standings{{"Publicity is understaffed", "", "goToDepartment 3"},
                               {"Publicity is understaffed: subtitle", rule + "\nThe weakest counts twice"},
                               {"Publicity is understaffed: badge", "!"},
                               {"Sales is understaffed", "", "goToDepartment 4"},
                               {"Sales is understaffed: subtitle", rule},
                               {"Sales is understaffed: badge", "!"}};
}

Standings homeFigures(Game& twin) {
  const GameState& state = twin.state;
  const SignedArtist& artist = state.saveAllSignedArtistList[0];
  const RecordList<Employee>& staff = state.saveAllEmployeeList;
  const double energy = (staff[0].employeeEnergy + staff[1].employeeEnergy + staff[2].employeeEnergy) / 3;
  const double morale = (staff[0].employeeMorale + staff[1].employeeMorale + staff[2].employeeMorale) / 3;
  const std::string rating = std::to_string(artistRating(artist));
  const std::string overall = std::to_string(departmentRatings(state).overall);
  const auto& songs = state.saveAllSignedArtistWeeklySongListens;
  const auto& albums = state.saveAllSignedArtistWeeklyAlbumSales;
  const double royalties = weekBefore(songs, state, &SignedArtistWeeklySongListens::totalStreamRevenue) +
                           weekBefore(albums, state, &SignedArtistWeeklyAlbumSales::albumRevenue);
  const double everything = allWeeks(albums, &SignedArtistWeeklyAlbumSales::albumRevenue) +
                            allWeeks(songs, &SignedArtistWeeklySongListens::totalStreamRevenue);
  return Standings{{"cover: badge", overall},
                   {"Nova Reed", rating},
                   {"Nova Reed: subtitle", abbreviated(static_cast<double>(artist.monthlyListeners))},
                   {"Artists", "1/" + std::to_string(state.studioCapacity), "goToSignedArtists"},
                   {"Artists: subtitle", "1 ACTIVE • 0 DROPPED ARTIST(S)"},
                   {"Royalties", currency(royalties * 1.125)},
                   {"Running costs", currency(salaries(state) + perksAndRent(state))},
                   {"text", state.myLabelName + " (" + overall +
                                ") is an international, label boasting a world renown in-house studio (" +
                                std::to_string(studioRating(state)) + ") and generating " + currency(everything) +
                                " in royalties."},
                   {"Hire Staff", "", "goToLabelHireStaff"},
                   {"Office & Studio", std::to_string(state.officeCapacity), "goToLabelCapacity"},
                   {"Office & Studio: subtitle", booths(state) + " BOOTH(S) INSTALLED"},
                   {"Benefits & Culture", "", "goToLabelBenefits"},
                   {"Benefits & Culture: subtitle", "+" + withDecimals(state.labelEnergyBoost, 2) + " ENERGY • +" +
                                                        withDecimals(state.labelMoraleBoost, 2) + " HAPPINESS"},
                   {"Create an Artist", "", "goToCreateSignedArtist"},
                   {"Return on Investment", "", "goToArtistRoi"}} +
         deskFigures(state) + full("Staff energy", energy) + full("Staff happiness", morale) +
         full("Artist rating", static_cast<double>(artistRating(artist))) + full("Artist happiness", artist.happiness);
}

Standings capacityFigures(Game& twin) {
  const GameState& state = twin.state;
  Standings standings = {{"Employees", "3/" + std::to_string(state.officeCapacity)},
                         {"Booths", booths(state) + "/" + std::to_string(state.boothMax)},
                         {"Artists", "1/" + std::to_string(state.studioCapacity)},
                         {"card: text", "4x4 sqft · room for 1 artist"},
                         {"card: value", std::to_string(state.goldBooth) + " owned"},
                         {"card: price", "$5,000"},
                         {"card: text", "8x8 sqft · room for 2 artists"},
                         {"card: value", std::to_string(state.platinumBooth) + " owned"},
                         {"card: price", "$9,500"},
                         {"card: text", "16x16 sqft · room for 4 artists"},
                         {"card: value", std::to_string(state.diamondBooth) + " owned"},
                         {"card: price", "$18,000"}};
  for (const Office& office : offices) {
    const std::string name(office.typeOfOffice);
    standings.push_back({name, office.rent > 0 ? currency(office.rent) : "FREE"});
    standings.push_back({name + ": subtitle",
                         std::to_string(office.capacity) + " people · " + std::to_string(office.boothMax) + " booths"});
  }
  return standings;
}

Standings benefitFigures(Game& twin) {
  const GameState& state = twin.state;
  Standings standings = {{"energy a week", "+" + withDecimals(state.labelEnergyBoost, 2)},
                         {"happiness a week", "+" + withDecimals(state.labelMoraleBoost, 2)},
                         {"all staff, a week", currency(3 * state.labelOfficePerkSpend)},
                         {"text (2)", currency(state.labelOfficePerkSpend) + " a week for each employee"}};
  const char* amounts[] = {"0.25", "0.5", "1", "2", "3", "0.25", "0.5", "0.75", "1", "1.25"};
  for (size_t i = 0; i < officePerks.size(); ++i) {
    standings.push_back({std::string(officePerks[i].title) + ": note",
                         "+" + std::string(amounts[i]) + " · " + currency(officePerks[i].cost) + " per person"});
  }
  return standings;
}

Standings hireFigures(Game& twin) {
  const GameState& state = twin.state;
  double expenses = 0;
  for (const WeeklyLineItem& item : state.saveAllWeeklyLineItems) expenses += item.isExpense ? item.amount : 0;
  const std::vector<Candidate> candidates = generateCandidates(twin);
  Standings standings = {
      {candidates.size() == 1 ? "candidate this visit" : "candidates this visit", std::to_string(candidates.size())},
      {"desks taken", "3 of " + std::to_string(state.officeCapacity)},
      {"Weekly Exp: ", currency(expenses)}};
  for (const Candidate& one : candidates) {
    const auto code = static_cast<size_t>(one.department);
    const int64_t now = code < 3 ? state.saveAllEmployeeList[code].employeeRating : 0;
    const int64_t then = code < 3 ? (now + one.rating) / 2 : one.rating;
    const auto level = [&](const char* label, int64_t of) {
      standings.push_back({label, std::to_string(of)});
      standings.push_back({std::string(label) + ": share", shareText(static_cast<double>(of) / 100)});
    };
    standings.push_back({"card: text", currency(static_cast<double>(one.salary)) + " a year · " +
                                           currency(std::floor(static_cast<double>(one.salary) / 52)) + " a week\n" +
                                           std::to_string(one.burnRate) + " BURN/WK"});
    standings.push_back({"card: value", std::to_string(one.rating) + " rating"});
    standings.push_back({"card: note", std::string(departments[code].shortName) + " " + std::to_string(now) + " → " +
                                           std::to_string(then)});
    level("Energy", one.energy);
    level("Happiness", one.morale);
  }
  return standings;
}

template <size_t code>
Standings departmentFigures(Game& twin) {
  const GameState& state = twin.state;
  const Employee& one = state.saveAllEmployeeList[code];
  const int64_t own = code == 2 ? studioRating(state) : 2 * (code == 0 ? state.businessTrait4 : state.businessTrait3);
  const int64_t rating = (one.employeeRating + own) / 2;
  const std::string bonuses[] = {withDecimals(state.labelArtistHappinessBonus, 2),
                                 std::to_string(state.labelNegotiationBonus) + "%",
                                 std::to_string(state.labelViralityBoost)};
  const std::string whatIsBrought[] = {
      "Recruiting of " + std::to_string(state.businessTrait4) + " is counted in, doubled",
      "Negotiation of " + std::to_string(state.businessTrait3) + " is counted in, doubled",
      "studio of " + std::to_string(studioRating(state)) + " is counted in"};
  const char* titles[] = {"Artist Happiness Bonus", "Negotiation Bonus", "Virality Bonus"};
  const int64_t motivation = (50 - state.businessTrait1) / 5 + 5;
  return Standings{{"subtitle", "1 EMPLOYEE(S)"},
                   {titles[code], bonuses[code]},
                   {"Team", "1"},
                   {"Artists", "1"},
                   {"text", "Your staff rate " + std::to_string(one.employeeRating) + ", as their fader says. Your " +
                                whatIsBrought[code] + ", and makes it " + std::to_string(rating) + "."},
                   {"text (3)", "Boost your employee's energy by +" + withDecimals(state.labelEnergyBoost, 2) +
                                    " and happiness by +" + withDecimals(state.labelMoraleBoost, 2) + " for " +
                                    std::to_string(motivation) +
                                    " energy. Upgrade your boosts in the benefit/culture tab. As your leadership "
                                    "grows, energy becomes cheaper."},
                   {"card", currency(static_cast<double>(one.employeeSalary)) + " a year"},
                   {"card: text", currency(std::floor(static_cast<double>(one.employeeSalary) / 52)) + " a week\n" +
                                      std::to_string(one.employeeBurnRate) + " BURN/WK"},
                   {"card: value", std::to_string(one.employeeRating) + " rating"},
                   {"card: price", priceText({.energy = motivation})}} +
         full("Department Rating", static_cast<double>(rating)) + full("Energy", one.employeeEnergy) +
         full("Happiness", one.employeeMorale);
}

std::string best(const GameState& state) {
  return std::to_string((state.saveAllEmployeeList[0].employeeRating + 2 * state.businessTrait4) / 2);
}

void meetAnna(Game& game) {
  // Whoever the scouts of this world find is past all bands; the one made up stands for all.
  game.state.saveAllCreatedArtists.append(CreatedArtist{.name = "Paper Anna",
                                                        .charisma = 31,
                                                        .rhythm = 43,
                                                        .songwriting = 52,
                                                        .virality = 64,
                                                        .vocals = 76,
                                                        .talent = 87,
                                                        .monthlyListeners = 123'456,
                                                        .demoRating = 58});
}

Standings scoutingFigures(Game& twin) {
  const std::vector<ScoutedArtist> artists = generateScoutingList(twin);
  Standings standings = {
      {artists.size() == 1 ? "artist this visit" : "artists this visit", std::to_string(artists.size())},
      {"scout", "1"},
      {"traits they find", "10 to " + best(twin.state)},
      {"card: badge", "YOURS"}};
  for (const ScoutedArtist& one : artists) {
    standings.push_back({"card: text", abbreviated(static_cast<double>(one.monthlyListeners)) + " monthly listeners"});
    standings.push_back({"card: value", std::to_string(ratingOf(one)) + " rating"});
    standings.push_back({"Demo", withDecimals(one.demoRating, 1)});
    standings.push_back({"Demo: share", shareText(std::min(one.demoRating / 100, 1.0))});
    standings.push_back({"card: price", "5 energy"});
    standings.push_back({"🔥 Talent", std::to_string(one.talent)});
    standings.push_back({"🔥 Talent: share", shareText(static_cast<double>(one.talent) / 100)});
  }
  return standings;
}

constexpr const char* marlow = "63 58 47 55 44 71 96400 -1 6125 Marlow Quinn";

Standings offerFigures(Game& twin) {
  const GameState& state = twin.state;
  const auto trait = [](const char* label, int64_t level) {
    return Standings{{label, std::to_string(level)},
                     {std::string(label) + ": share", shareText(static_cast<double>(level) / 100)}};
  };
  const double chance = 190 - (71 + 51) + static_cast<double>(departmentRatings(state).overall) - 51 +
                        static_cast<double>(state.labelNegotiationBonus);
  // A year more and a per cent less for the label; the bonus stays where it cannot fall any further.
  const auto shown = static_cast<int64_t>((chance + 0.5 + 3) / 2);
  return Standings{{"cover: text", "96,400 monthly listeners\nrating 51"},
                   {"Demo", "61.2"},
                   {"Demo: share", shareText(0.6125)},
                   {"Talent meter", "71"},
                   {"Talent meter: share", shareText(0.71)},
                   {"Contract", "3 years"},
                   {state.myLabelName + "'s Cut", "89%"},
                   {"Signing bonus", "$100,000"},
                   {"text",
                    "Your Artist & Repertoire team is excited for Marlow Quinn and think they will be a great "
                    "fit for " +
                        state.myLabelName + "."},
                   {"One offer a visit", std::to_string(shown) + "% Chance"},
                   {"One offer a visit: share", shareText(std::min(static_cast<double>(shown) / 100, 1.0))},
                   {"OFFER: price", "25 energy"}} +
         trait("Songwriting", 63) + trait("Vocals", 58) + trait("Rhythm", 47) + trait("Charisma", 55) +
         trait("Virality", 44);
}

Standings creationFigures(Game& twin) {
  const int64_t points = 5 * ((twin.state.saveAllEmployeeList[0].employeeRating + 2 * twin.state.businessTrait4) / 2);
  const std::string left = std::to_string(points - 6) + " remaining";
  return {{"cover: text", left}, {"cover: badge", "1"}, {"to give", left}, {"CREATE: price", "75 energy"}};
}

/// The album of Nova Reed whose weeks the report knows.
void furnish(GameState& state, OwnValues& own) {
  SignedArtistSong song = own.record<SignedArtistSong>();
  song.songId = 6001;
  song.title = "Salt Lanterns";
  song.albumId = 6002;
  song.artistId = 7;
  state.saveAllSignedArtistSongList.append(song);
  SignedArtistAlbum album = own.record<SignedArtistAlbum>();
  album.albumId = 6002;
  album.title = "Night Ferry";
  album.artistId = 7;
  state.saveAllSignedArtistAlbumList.append(album);
}

const SignedArtistSong& lanterns(const GameState& state) {
  return state.saveAllSignedArtistSongList[state.saveAllSignedArtistSongList.historyOf(6002).front()];
}

const SignedArtistAlbum& ferry(const GameState& state) {
  return state.saveAllSignedArtistAlbumList[state.saveAllSignedArtistAlbumList.historyOf(7).front()];
}

double streamsEarned(const GameState& state) {
  return allWeeks(state.saveAllSignedArtistWeeklySongListens, &SignedArtistWeeklySongListens::totalStreamRevenue);
}

double albumsEarned(const GameState& state) {
  return allWeeks(state.saveAllSignedArtistWeeklyAlbumSales, &SignedArtistWeeklyAlbumSales::albumRevenue);
}

std::string toGo(const GameState& state, const SignedArtist& artist) {
  return std::to_string(artist.weekEnd - state.weekNumberForTracking);
}

Standings rosterFigures(Game& twin) {
  const GameState& state = twin.state;
  const SignedArtist& nova = state.saveAllSignedArtistList[0];
  return {{"under contract", "1/" + std::to_string(state.studioCapacity)},
          {"Nova Reed", std::to_string(artistRating(nova)), "goToSignedArtistDetail 7"},
          {"Nova Reed: subtitle", "IN PRODUCTION (" + std::to_string(nova.weeksToCompleteAlbum) + ")\n" +
                                      toGo(state, nova) + " WEEKS LEFT • " +
                                      abbreviated(static_cast<double>(nova.monthlyListeners)) + " LISTENERS"}};
}

Standings levelFigures(const std::string& name, int64_t value, int64_t original) {
  const int64_t change = value - original;
  return full(name + " (" + (change > 0 ? "+" : "") + std::to_string(change) + ")", static_cast<double>(value));
}

Standings artistFigures(Game& twin) {
  const GameState& state = twin.state;
  const SignedArtist& nova = state.saveAllSignedArtistList[0];
  const int64_t years = (nova.weekEnd - nova.weekSigned) / 52;
  const double percent = 100 - std::round(nova.labelRevenuePercentage * 100);
  return Standings{{"cover: badge", std::to_string(artistRating(nova))},
                   {"cover: text", withCommas(nova.monthlyListeners) + " monthly listeners\nGospel"},
                   {"text", "Nova Reed signed " + counted(years, "year") + " for " +
                                currency(static_cast<double>(nova.signingBonus)) + " and has earned " +
                                currency(albumsEarned(state) + streamsEarned(state)) + " from a " +
                                std::to_string(std::llround(percent)) + "% royalty."},
                   {"text (2)", counted(weeksLeft(state, nova), "week") + " of the contract remain."},
                   {"Salt Lanterns", currency(streamsEarned(state))},
                   {"Salt Lanterns: subtitle", withCommas(lanterns(state).totalListen) + " streams"},
                   {"Night Ferry", currency(albumsEarned(state)), "goToSignedArtistSongList 6002"},
                   {"Night Ferry: subtitle", withCommas(ferry(state).albumsSold) + " sold"},
                   {"COACH: price", priceText({.energy = 30 - state.businessTrait1 / 5})}} +
         levelFigures("Talent meter", nova.talent, nova.originalTalent) +
         levelFigures("Songwriting", nova.songwriting, nova.originalSongwriting) +
         levelFigures("Vocals", nova.vocals, nova.originalVocals) +
         levelFigures("Rhythm", nova.rhythm, nova.originalRhythm) +
         levelFigures("Charisma", nova.charisma, nova.originalCharisma) +
         levelFigures("Virality", nova.virality, nova.originalVirality) + full("Happiness", nova.happiness);
}

Standings songListFigures(Game& twin) {
  const GameState& state = twin.state;
  return {{"cover: badge", withDecimals(ferry(state).productionRating, 1)},
          {"Sold", withCommas(ferry(state).albumsSold)},
          {"Sold: note", "at " + price(ferry(state).price)},
          {"Earned", currency(albumsEarned(state))},
          {"Out", std::to_string(ferry(state).releaseYear)},
          {"1. Salt Lanterns", withDecimals(lanterns(state).productionRating, 1)},
          {"1. Salt Lanterns: note", withCommas(lanterns(state).totalListen) + " streams"}};
}

Standings returnFigures(Game& twin) {
  const GameState& state = twin.state;
  const SignedArtist& nova = state.saveAllSignedArtistList[0];
  const double revenue = albumsEarned(state) + streamsEarned(state);
  const double net = revenue - state.totalRecordLabelCost;
  const double best = std::max(std::trunc(net), static_cast<double>(state.mostSuccessfulLabelHighScore));
  return {{"Albums", currency(albumsEarned(state))},
          {"Streams", currency(streamsEarned(state))},
          {"Your verses", "$0"},
          {"Total Earnings", currency(albumsEarned(state) + streamsEarned(state))},
          {"Cost of the label", currency(-state.totalRecordLabelCost)},
          {"Net Earnings", currency(net)},
          {"Nova Reed", currency(revenue), "goToSignedArtistDetail 7"},
          {"Nova Reed: subtitle", "Signed in " + std::to_string(nova.yearSigned) + "\n" +
                                      withCommas(nova.monthlyListeners) + " Monthly Listeners"},
          {"Nova Reed: note", "of " + currency(nova.totalLifetimeCost)},
          {"text", "Best return of any label: " + currency(best)}};
}

std::vector<ScreenFigures> screens() {
  return {
      {.segue = "goToCreateLabel",
       .figures = launchFigures,
       .before = [](Game& game) { game.state.isLabelLaunched = 0; }},
      {.segue = "goToLabelDetail", .figures = homeFigures, .noFigures = {"cover", "cover: text"}},
      {.segue = "goToLabelCapacity", .figures = capacityFigures, .noFigures = {"poster*", "subtitle"}},
      {.segue = "goToLabelBenefits", .figures = benefitFigures, .noFigures = {"text"}},
      {.segue = "goToLabelHireStaff", .figures = hireFigures, .noFigures = {"subtitle"}},
      {.segue = "goToDepartment", .argument = "0", .figures = departmentFigures<0>, .noFigures = {"text (2)"}},
      {.segue = "goToDepartment", .argument = "1", .figures = departmentFigures<1>, .noFigures = {"text (2)"}},
      {.segue = "goToDepartment", .argument = "2", .figures = departmentFigures<2>, .noFigures = {"text (2)"}},
      {.segue = "goToFindNewArtists", .figures = scoutingFigures, .before = meetAnna, .noFigures = {"subtitle"}},
      {.segue = "goToDemoAndOffer",
       .argument = marlow,
       .figures = offerFigures,
       .presses = {{"years", "1"}, {"share", "-1"}, {"bonus", "-1"}}},
      {.segue = "goToCreateSignedArtist",
       .figures = creationFigures,
       .presses = {{"charisma", "1"}, {"charisma", "1"}, {"rhythm", "1"}}},
      {.segue = "goToSignedArtists", .figures = rosterFigures, .noFigures = {"subtitle"}},
      {.segue = "goToSignedArtistDetail", .argument = "7", .figures = artistFigures},
      {.segue = "goToSignedArtistSongList", .argument = "6002", .figures = songListFigures},
      {.segue = "goToArtistRoi", .figures = returnFigures, .noFigures = {"subtitle"}},
  };
}

const FiguresOf label{.furnish = furnish, .screens = screens};

}  // namespace

}  // namespace backbeat
