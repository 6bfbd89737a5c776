#include "label/launch.h"

#include "career/ledger.h"
#include "career/studio.h"
#include "core/calendar.h"
#include "core/purse.h"
#include "music/chart.h"
#include "music/guests.h"

namespace backbeat {

namespace {

/// Scalars as a new career has them.
template <class... Members>
void resetScalars(Game& game, Members... members) {
  static const GameState fresh;
  ((game.state.*members = fresh.*members), ...);
  game.save(members...);
}

template <class... Lists>
void clearLists(Game& game, Lists... lists) {
  ((game.state.*lists).clear(), ...);
  game.save(lists...);
}

}  // namespace

Outcome openLabelHome(Game& game) {
  if (game.state.underContract < 1) return {};
  return refuse<"✍️ Non Compete ✍️">(
      "\nYou need to wait or cancel your current contract before you can launch your own label.");
}

Outcome beginLaunch(Game& game) {
  if (Outcome competing = openLabelHome(game); !competing.done()) return competing;
  const int64_t rating = studioRating(game.state);
  if (rating >= studioForLabel) return {};
  return refuse<"🎧70 Studio Needed🎧">(
      "\nYou need a studio rated at least 70 to start your own label.\n\nYour studio is currently rated " +
      std::to_string(rating));
}

Outcome launchLabel(Game& game, const std::string& name, const std::string& slogan, const LabelLogo& logo) {
  GameState& state = game.state;
  if (state.isLabelLaunched >= 1) return {};
  if (Outcome competing = openLabelHome(game); !competing.done()) return competing;
  if (name.empty()) return refuse<"🔥 Name Your Label 🔥">("\nYour record label needs a name.");
  if (slogan.empty()) return refuse<"🔥 Create a Slogan 🔥">("\nYour record label needs a slogan.");
  if (!hasCash(state, launchCost)) {
    return noCash("\nYou do not have enough cash to cover all the costs of launching a major record label.");
  }
  pay(game, launchCost);
  state.myLabelName = name;
  state.myLabelSlogan = slogan;
  state.myLabelLogo = logo.file;
  state.isLabelLaunched = 1;
  state.openLabelEnergyCost = weeklyLabelEnergy;
  game.launch.contractOfferState = 0;
  game.launch.contractOffer = ContractOffer();
  game.save(&GameState::myLabelName, &GameState::myLabelSlogan, &GameState::myLabelLogo, &GameState::isLabelLaunched,
            &GameState::openLabelEnergyCost);
  stateChanged(game);
  return success();
}

Outcome askToCloseLabel(const GameState& state, Action confirmed) {
  return ask<"Close the Doors?">(
      "\nAre you sure you want to close:\n\n" + state.myLabelName +
          "\n\nClosing the doors will remove all the history of your label and you will need to pay startup costs if "
          "you choose to launch again.",
      "No", {"Shut it Down", std::move(confirmed), AlertButton::Style::destructive});
}

void closeLabel(Game& game) {
  GameState& state = game.state;
  resetScalars(game, &GameState::myLabelName, &GameState::myLabelSlogan, &GameState::myLabelLogo,
               &GameState::isLabelLaunched, &GameState::employeeId, &GameState::signedArtistId,
               &GameState::signedArtistSongId, &GameState::signedArtistAlbumId, &GameState::officeCapacity,
               &GameState::labelStreamingRate, &GameState::typeOfOffice, &GameState::boothMax,
               &GameState::studioCapacity);
  resetScalars(game, &GameState::labelViralityBoost, &GameState::labelMarketingBoost, &GameState::labelMoraleBoost,
               &GameState::labelEnergyBoost, &GameState::labelOfficePerkSpend, &GameState::openLabelEnergyCost,
               &GameState::officePerk1, &GameState::officePerk2, &GameState::officePerk3, &GameState::officePerk4,
               &GameState::officePerk5, &GameState::officePerk6, &GameState::officePerk7, &GameState::officePerk8,
               &GameState::officePerk9, &GameState::officePerk10, &GameState::labelOfficeRent, &GameState::goldBooth,
               &GameState::platinumBooth, &GameState::diamondBooth, &GameState::labelNegotiationBonus,
               &GameState::labelArtistHappinessBonus, &GameState::labelRevenueBonus, &GameState::totalRecordLabelCost);
  clearLists(game, &GameState::saveAllEmployeeList, &GameState::saveAllSignedArtistList,
             &GameState::saveAllSignedArtistAlbumList, &GameState::saveAllSignedArtistSongList,
             &GameState::saveAllSignedArtistWeeklyAlbumSales, &GameState::saveAllSignedArtistWeeklySongListens,
             &GameState::saveAllCreatedArtists);
  state.saveAllWeeklyLineItems.eraseIf(
      [](const WeeklyLineItem& item) { return item.typeOfExpense >= expense::firstStaff; });
  game.save(&GameState::saveAllWeeklyLineItems);
  removeSignedArtistChartRows(game);
  letGoOfFormerArtists(game);
  game.launch.label.songsTakenOff.clear();  // the next label numbers its albums anew
  stateChanged(game);
}

}  // namespace backbeat
