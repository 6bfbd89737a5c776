#include "career/energy.h"
#include "career/traits.h"
#include "core/money.h"
#include "recognition/achievements.h"
#include "turn/figures.h"

namespace backbeat {

namespace {

Standings homeFigures(Game& twin) {
  const GameState& state = twin.state;
  const std::vector<int64_t>& data = state.monthlyListenerData;
  const Chirp& chirp = state.saveAllChirpList[0];
  const auto& products = state.saveAllMerchReleasedList;
  const Merch& soldOut = products[products.find([](const Merch& product) { return product.name == "Static Tee"; })];
  const double order = static_cast<double>(soldOut.startingInventory) * soldOut.totalCostPerUnit;
  return Standings{
             {"subtitle", state.myLabelName},
             {"Monthly listeners", withCommas(state.totalFans), "goToMonthlyListenerDetail"},
             {"Monthly listeners: note", "+" + withCommas(data[2] - data[1]) + " this week"},
             {"Monthly listeners: points", pointsText({data.begin(), data.end()})},
             {"Followers", abbreviated(static_cast<double>(state.followerCount))},
             {"Songs out", "6"},
             {"Songs out: note", "+1 finished"},
             {"Best chart", rank(chartRowTitled(state, "Low Tide").peakPosition), "goToBillboard"},
             {"Best chart: note", "now " + rank(songTitled(state, "Glass Harbour").chartRanking)},
             {"“Night Bus” is finished", "", "goToSongDetail " + std::to_string(songTitled(state, "Night Bus").songId)},
             {"“Static Tee” is sold out", "", "goToAdminMerch 43"},
             {"“Static Tee” is sold out: badge", "!"},
             {"“Static Tee” is sold out: subtitle",
              withCommas(soldOut.startingInventory) + " more cost " + currency(order)},
             {"100,000,000 listeners", withCommas(state.totalFans)},
             {"100,000,000 listeners: share", shareText(static_cast<double>(state.totalFans) / 100'000'000)},
             {"Energy", std::to_string(state.totalEnergyMax - standingEnergyCosts(state)), "goToEnergyTransparency"},
             {"Standing net", currency(standingNet(state))},
             {chirp.artistName + ": age", "5h"},
             {chirp.artistName + ": message", chirp.message},
             {chirp.artistName + ": likes", abbreviated(static_cast<double>(chirp.likeCount))},
             {"portrait", "", "goToArtistProfile"},
             {"Packs", "", "goToPacks"},
             {"Label contract", "", "goToSignedContract"},
             {"Label contract: subtitle", "6 EPs, 8 LPs and 41 songs in 37 weeks"},
             {"Achievements", "", "goToAchievements"},
             {"Achievements: subtitle", "Achieved 0 of 82"},
             {"Achievements: badge", std::to_string(goalsToCollect(twin)) + " to collect"},
             {"Records", "", "goToRecords"},
             {"Yearly Statistics", "", "goToYearlyMusicStats"},
             {"Settings", "", "goToSettings"}} +
         songFigures(state, "Paper Boats") + songFigures(state, "Glass Harbour") + songFigures(state, "Fever Line");
}

/// What stands there while nothing more urgent pushes it out.
Standings skillFigures(const GameState& state) {
  const std::string place = "Vocals to level " + std::to_string(nextLevel(state, traits[0]));
  return {{place, "", "goToMyMusic"},
          {place + ": subtitle", "Half of your music, for " + std::to_string(state.vocalRangeEnergyCost) + " energy"}};
}

/// In the week of a festival.
Standings festivalHomeFigures(Game& twin) {
  const Festival& festival = twin.state.saveAllFestivalList[1];
  return homeFigures(twin) +
         Standings{{"Meadow Days is this week", "", "goToFestivalArchive"},
                   {"Meadow Days is this week: badge", "!"},
                   {"Meadow Days is this week: subtitle",
                    withCommas(festival.audience) + " people, and " + currency(festival.payment) + " for you"}};
}

Standings offeredHomeFigures(Game& twin) {
  Standings standings = festivalHomeFigures(twin);
  standings.push_back({"A record label wants to talk", "", "goToContractOffer"});
  standings.push_back({"A record label wants to talk: badge", "!"});
  standings.push_back({"Label contract: badge", "!"});
  for (Standing& standing : standings) {
    if (standing.where == "Label contract") standing.leadsTo = "goToContractOffer";
    if (standing.where == "Label contract: subtitle") standing.says = "An offer waits";
  }
  return standings;
}

Standings newYearHomeFigures(Game& twin) {
  return homeFigures(twin) + skillFigures(twin.state) + Standings{{"Another year!", "", "exportCareer"}};
}

Standings dataFigures(Game&) {
  return {{"Optimize: subtitle", "3 old songs, 2 old albums"}, {"Reset Startups: subtitle", "1 investment"}};
}

std::vector<ScreenFigures> screens() {
  return {
      {.segue = "home", .figures = [](Game& twin) { return festivalHomeFigures(twin) + skillFigures(twin.state); }},
      {.segue = "home",
       .figures = offeredHomeFigures,
       .before =
           [](Game& game) {
             game.launch.contractOfferState = 1;
             game.state.underContract = 0;
           }},
      {.segue = "home", .figures = newYearHomeFigures, .before = [](Game& game) { game.state.weekNumber = 2; }},
      {.segue = "goToData", .figures = dataFigures},
  };
}

const FiguresOf home{.screens = screens};

}  // namespace

}  // namespace backbeat
