#include "core/new_game.h"

#include "core/calendar.h"

namespace backbeat {

namespace {

/// Puts members back to the values that a fresh game starts with, and writes them.
template <class... Members>
void reset(Game& game, Members... members) {
  static const GameState fresh;
  const auto one = [&](auto member) {
    if constexpr (requires {
                    (game.state.*member).clear();
                    (game.state.*member).layout();
                  }) {
      (game.state.*member).clear();
    } else {
      game.state.*member = fresh.*member;
    }
  };
  (one(members), ...);
  game.save(members...);
}

void resetMusic(Game& game) {
  reset(game, &GameState::saveAllAlbumList, &GameState::saveAllSongList, &GameState::saveAllBillboardSongList,
        &GameState::saveAllContractLabelList, &GameState::saveAllMusicTourList, &GameState::saveAllFestivalList,
        &GameState::saveAllAlbumCovers, &GameState::songId, &GameState::albumId, &GameState::festivalId,
        &GameState::streamingPayRate, &GameState::monthlyListenerData, &GameState::songGenres);
}

void resetCalendarAndArtist(Game& game) {
  reset(game, &GameState::totalCashAvailable, &GameState::totalFans, &GameState::weekNumber,
        &GameState::weekNumberForTracking, &GameState::yearNumber, &GameState::weeklyJobContractRemaining,
        &GameState::weeklyJobIncome, &GameState::weeklyEnergyCost, &GameState::myArtistsName, &GameState::myLabelName,
        &GameState::myLabelLogo, &GameState::myLabelSlogan, &GameState::underContract, &GameState::onTour,
        &GameState::onTourEnergyCost, &GameState::timeUntilNextTour, &GameState::isLabelLaunched,
        &GameState::saveAllWeeklyLineItems, &GameState::saveAllWeeklyAlbumSales, &GameState::saveAllWeeklySongListens,
        &GameState::saveAllWeeklyTourSales, &GameState::weeklyExpenses);
  game.state.totalEnergyMax = GameState().totalEnergyMax + game.state.permanentEnergyUpgrade;
  game.state.totalEnergyAvailable = game.state.totalEnergyMax;
  game.save(&GameState::totalEnergyAvailable, &GameState::totalEnergyMax);
}

void resetWealth(Game& game) {
  reset(game, &GameState::saveAllInvestmentPropertyList, &GameState::saveAllVentureInvestments, &GameState::biggestExit,
        &GameState::realEstateIndex, &GameState::tourId, &GameState::studioCapacity,
        &GameState::globalMarketingCampaigns, &GameState::foodEnergyBonus, &GameState::fashionViralityBonus,
        &GameState::writtenReview);
}

void resetSkillsStudioAndTerms(Game& game) {
  reset(game, &GameState::rhythm, &GameState::rhythmEnergyCost, &GameState::charisma, &GameState::charismaEnergyCost,
        &GameState::vocalRange, &GameState::vocalRangeEnergyCost, &GameState::songWriting,
        &GameState::songWritingEnergyCost, &GameState::virality, &GameState::viralityEnergyCost, &GameState::directing,
        &GameState::directingEnergyCost, &GameState::businessTrait1, &GameState::businessTrait2,
        &GameState::businessTrait3, &GameState::businessTrait4, &GameState::businessTrait5,
        &GameState::businessTraitCost1, &GameState::businessTraitCost2, &GameState::businessTraitCost3,
        &GameState::businessTraitCost4, &GameState::businessTraitCost5);
  reset(game, &GameState::studioAcoustic, &GameState::studioConsole, &GameState::studioComputer,
        &GameState::studioMonitors, &GameState::studioBooth, &GameState::contractStudioScore,
        &GameState::contractViralityBoost, &GameState::contractMarketingBoost, &GameState::contractAlbumPricing,
        &GameState::contractFeatureDiscount, &GameState::albumProductionCosts, &GameState::promptToEnterName,
        &GameState::aboutDescription, &GameState::musicality);
}

void resetLabel(Game& game) {
  reset(game, &GameState::employeeId, &GameState::signedArtistId, &GameState::signedArtistSongId,
        &GameState::signedArtistAlbumId, &GameState::officeCapacity, &GameState::labelStreamingRate,
        &GameState::typeOfOffice, &GameState::labelViralityBoost, &GameState::labelMarketingBoost,
        &GameState::labelEnergyBoost, &GameState::labelMoraleBoost, &GameState::openLabelEnergyCost,
        &GameState::labelOfficePerkSpend, &GameState::officePerk1, &GameState::officePerk2, &GameState::officePerk3,
        &GameState::officePerk4, &GameState::officePerk5, &GameState::officePerk6, &GameState::officePerk7,
        &GameState::officePerk8, &GameState::officePerk9, &GameState::officePerk10);
  reset(game, &GameState::labelOfficeRent, &GameState::goldBooth, &GameState::platinumBooth, &GameState::diamondBooth,
        &GameState::boothMax, &GameState::labelNegotiationBonus, &GameState::labelArtistHappinessBonus,
        &GameState::labelRevenueBonus, &GameState::totalRecordLabelCost, &GameState::netWorthSinceLastChecked,
        &GameState::annualCheckupTotal, &GameState::energyLossExDrama, &GameState::saveAllEmployeeList,
        &GameState::saveAllSignedArtistList, &GameState::saveAllSignedArtistAlbumList,
        &GameState::saveAllSignedArtistSongList, &GameState::saveAllSignedArtistWeeklyAlbumSales,
        &GameState::saveAllSignedArtistWeeklySongListens, &GameState::saveAllCreatedArtists);
}

void resetDating(Game& game) {
  reset(game, &GameState::saveAllMatchesList, &GameState::matchId, &GameState::askForMoneyEnergyCost);
}

void resetFeatures(Game& game) {
  reset(game, &GameState::saveAllFeaturedOnList, &GameState::saveAllFeaturedOnWeeklySongListens,
        &GameState::featuredOnSongId);
}

void resetMerchandiseAndChirp(Game& game) {
  reset(game, &GameState::merchId, &GameState::merchWebsiteTransactionFee, &GameState::weeksToShipMerch,
        &GameState::weeksToManufactureMerch, &GameState::maxMerchProducts, &GameState::maxMerchCapacity,
        &GameState::merchEnergyCost, &GameState::holidayPackageClicked, &GameState::chirpId, &GameState::followerCount,
        &GameState::saveAllChirpList, &GameState::saveAllMerchReleasedList, &GameState::saveAllMerchWeeklySales);
}

void resetFamily(Game& game) {
  reset(game, &GameState::saveAllChildList, &GameState::childId, &GameState::childAbandonmentEnergyLoss,
        &GameState::childEnergyCost, &GameState::signPrenup, &GameState::ageAtTakeover);
}

void resetVideos(Game& game) {
  reset(game, &GameState::saveAllMusicVideoList, &GameState::saveAllWeeklyVideoViews, &GameState::musicVideoId,
        &GameState::youVideoSubscriberCount, &GameState::youViewStreamingRate);
}

}  // namespace

void restartGame(Game& game) {
  resetMusic(game);
  resetCalendarAndArtist(game);
  resetWealth(game);
  resetSkillsStudioAndTerms(game);
  resetLabel(game);
  resetDating(game);
  resetFeatures(game);
  resetMerchandiseAndChirp(game);
  resetFamily(game);
  reset(game, &GameState::saveAllTransportationOwnedList);
  reset(game, &GameState::saveAllMusicAwards, &GameState::awardId);
  resetVideos(game);
  // What only this launch knows of the old life goes with it; a pass of the leaderboards that was made stays made.
  const bool passDone = game.launch.leaderboardPassDone;
  game.launch = Launch();
  game.launch.leaderboardPassDone = passDone;
  game.launch.musicScreenLoaded = true;
  stateChanged(game);
}

}  // namespace backbeat
