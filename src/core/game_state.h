// The whole of one save: scalars and lists, each under the key by which it is stored.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core/record_list.h"
#include "core/records/career.h"
#include "core/records/features.h"
#include "core/records/label.h"
#include "core/records/life.h"
#include "core/records/live.h"
#include "core/records/merch.h"
#include "core/records/music.h"
#include "core/records/recognition.h"
#include "core/records/social.h"
#include "core/records/wealth.h"

namespace backbeat {

/// Lists that mostly grow are cut into large chunks, lists edited in place into small ones.
inline constexpr ListLayout growing{128, ListLayout::Order::back};
inline constexpr ListLayout growingAtHead{128, ListLayout::Order::front};
inline constexpr ListLayout edited{8, ListLayout::Order::back};
inline constexpr ListLayout sorted{8, ListLayout::Order::slots};

/// Flags are whole numbers, 0 or 1, and are compared as "at least 1". Money is in dollars, energy and weeks are whole.
struct GameState {
  // With so many members, compiled once.
  GameState();
  GameState(const GameState&);
  GameState(GameState&&) noexcept;
  GameState& operator=(const GameState&);
  GameState& operator=(GameState&&) noexcept;
  ~GameState();

  // Calendar and artist.
  std::string myArtistsName;  ///< empty until the first name is saved
  int64_t weekNumber = 1;     ///< week of the year, 1 to 52; reaching 53 rolls the year
  int64_t yearNumber = 2023;
  int64_t weekNumberForTracking = 1;     ///< absolute week; every age and duration is measured on it
  double totalCashAvailable = 0;         ///< dollars; may be negative
  int64_t totalFans = 0;                 ///< monthly listeners, the one measure of fame
  int64_t totalEnergyAvailable = 100;    ///< energy left this week; may exceed the ceiling
  int64_t totalEnergyMax = 100;          ///< energy ceiling
  int64_t permanentEnergyUpgrade = 0;    ///< bought energy that survives a restart
  double streamingPayRate = 0.001;       ///< dollars a stream on a new song without a label of one's own
  int64_t globalMarketingCampaigns = 0;  ///< releases whose marketing score was over 80
  double realEstateIndex = 1.0;          ///< drifting market index
  double netWorthSinceLastChecked = 0;
  int64_t writtenReview = 0;     ///< answers to the rating offer
  std::string aboutDescription;  ///< about text of the profile

  // Skills: each starts at 1; the cost of the next level in energy.
  int64_t rhythm = 1;
  int64_t rhythmEnergyCost = 2;
  int64_t charisma = 1;
  int64_t charismaEnergyCost = 2;
  int64_t vocalRange = 1;
  int64_t vocalRangeEnergyCost = 2;
  int64_t songWriting = 1;
  int64_t songWritingEnergyCost = 2;
  int64_t virality = 1;
  int64_t viralityEnergyCost = 4;
  int64_t directing = 1;
  int64_t directingEnergyCost = 2;
  int64_t businessTrait1 = 1;
  int64_t businessTrait2 = 1;
  int64_t businessTrait3 = 1;
  int64_t businessTrait4 = 1;
  int64_t businessTrait5 = 1;
  int64_t businessTraitCost1 = 2;
  int64_t businessTraitCost2 = 2;
  int64_t businessTraitCost3 = 2;
  int64_t businessTraitCost4 = 2;
  int64_t businessTraitCost5 = 2;

  // Studio parts, 1 to 20, and how many signed artists it serves.
  int64_t studioAcoustic = 1;
  int64_t studioConsole = 1;
  int64_t studioComputer = 1;
  int64_t studioMonitors = 1;
  int64_t studioBooth = 1;
  int64_t studioCapacity = 3;
  int64_t fashionViralityBonus = 0;  ///< virality from the fashion choice
  int64_t foodEnergyBonus = 0;       ///< written and never loaded: it restarts at 0 on every launch, on purpose

  // Jobs and contracts.
  int64_t weeklyJobContractRemaining = 0;  ///< weeks
  double weeklyJobIncome = 0;              ///< dollars a week
  int64_t weeklyEnergyCost = 0;            ///< the job's energy a week
  int64_t underContract = 0;
  int64_t contractStudioScore = 0;
  int64_t contractViralityBoost = 0;
  int64_t contractMarketingBoost = 0;
  double contractAlbumPricing = 6.99;
  double contractFeatureDiscount = 1.0;
  double albumProductionCosts = 2.99;

  // Touring.
  int64_t onTour = 0;
  int64_t onTourEnergyCost = 0;
  int64_t timeUntilNextTour = 0;  ///< weeks of rest left
  int64_t tourId = 1;

  // The player's own label.
  int64_t isLabelLaunched = 0;
  std::string myLabelName;
  std::string myLabelLogo;
  std::string myLabelSlogan;
  std::string typeOfOffice = "GARAGE";
  int64_t employeeId = 10000;
  int64_t signedArtistId = 0;
  int64_t signedArtistSongId = 0;
  int64_t signedArtistAlbumId = 0;
  int64_t officeCapacity = 5;
  double labelStreamingRate = 0.003;
  int64_t labelViralityBoost = 0;
  int64_t labelMarketingBoost = 0;
  double labelEnergyBoost = 0;
  double labelMoraleBoost = 0;
  int64_t openLabelEnergyCost = 0;
  double labelOfficePerkSpend = 0;  ///< dollars a week for each employee
  int64_t officePerk1 = 0;
  int64_t officePerk2 = 0;
  int64_t officePerk3 = 0;
  int64_t officePerk4 = 0;
  int64_t officePerk5 = 0;
  int64_t officePerk6 = 0;
  int64_t officePerk7 = 0;
  int64_t officePerk8 = 0;
  int64_t officePerk9 = 0;
  int64_t officePerk10 = 0;
  double labelOfficeRent = 0;  ///< dollars a week
  int64_t goldBooth = 0;
  int64_t platinumBooth = 0;
  int64_t diamondBooth = 0;
  int64_t boothMax = 2;
  int64_t labelNegotiationBonus = 0;
  double labelArtistHappinessBonus = 0;
  double labelRevenueBonus = 0;  ///< per cent
  double totalRecordLabelCost = 0;

  // Personal life, wealth, merchandise, social.
  int64_t matchId = 0;
  int64_t askForMoneyEnergyCost = 5;
  int64_t featuredOnSongId = 0;
  double biggestExit = 0;
  int64_t annualCheckupTotal = 0;
  int64_t energyLossExDrama = 0;
  int64_t merchId = 0;
  double merchWebsiteTransactionFee = 0;
  int64_t weeksToShipMerch = 0;
  int64_t weeksToManufactureMerch = 0;
  int64_t maxMerchProducts = 0;
  int64_t maxMerchCapacity = 0;
  int64_t merchEnergyCost = 0;
  int64_t chirpId = 0;                ///< last id handed out; never falls
  int64_t followerCount = 0;          ///< may go negative
  int64_t assignFollowers = 0;        ///< 0 until the first grant of followers
  int64_t holidayPackageClicked = 0;  ///< a dead key: written 0 by the resets and nothing else
  int64_t childEnergyCost = 0;
  int64_t childAbandonmentEnergyLoss = 0;
  int64_t signPrenup = 0;
  int64_t ageAtTakeover = 0;  ///< year in which this generation took over
  int64_t childId = 0;        ///< written and never loaded: it restarts at 0 on every launch, on purpose
  int64_t awardId = 0;        ///< written and never loaded: it restarts at 0 on every launch, on purpose
  int64_t musicVideoId = 0;
  double youViewStreamingRate = 0.005;  ///< dollars a view
  int64_t youVideoSubscriberCount = 0;  ///< may go negative
  int64_t festivalId = 0;
  int64_t songId = 0;  ///< moves by three for each song made: on the press, before and after
  int64_t albumId = 0;

  // Interface memory.
  int64_t promptToEnterName = 0;                  ///< 1 once the artist has a name
  int64_t loginCount = 0;                         ///< not what it says: 1 once the create-song button was pressed
  int64_t savePulse = 0;                          ///< not what it says: 1 once the follow button has pulsed
  std::vector<int64_t> AllCompletedAchievements;  ///< ids of finished achievements
  std::vector<int64_t> monthlyListenerData;       ///< the last 26 values of totalFans

  // Beside the loader: their screens read them back.
  std::string twitterProfileImage;
  std::string twitterHeaderImage;
  std::string saveRingImage;
  int64_t assignSubscribers = 0;
  int64_t didSubscribe = 0;
  std::string moreInfoDescription;
  int64_t featureArtistNamedChanges = 0;
  int64_t celebrityCameoNamedChanges = 0;
  int64_t saveGenreForNextTime = 0;
  int64_t rejectionCount = 0;
  int64_t slideIntoDmsCount = 0;
  std::map<std::string, std::string> recordDictionary;
  std::map<std::string, std::string> songDictionary;
  std::map<std::string, std::string> albumDictionary;
  int64_t userRank = 0;
  int64_t userScore = 0;
  int64_t totalFanHighScore = 0;
  int64_t mostPopularSongHighScore = 0;
  int64_t mostSuccessfulLabelHighScore = 0;
  int64_t mostPopularAlbumHighScore = 0;
  int64_t longestBillBoardHitHighScore = 0;
  int64_t mostNumberOneHighScore = 0;
  int64_t highestGrossAlbumWeekly = 0;
  int64_t mostGramWins = 0;
  int64_t mostAchievementsCompleted = 0;
  std::string appearance = "system";  ///< the player's choice of look: "system", "dark" or "light"

  // Written at a restart and at a takeover, read nowhere.
  double weeklyExpenses = 0;
  int64_t musicality = 0;

  // Lists, in the order of loading; the last four beside the loader.
  RecordList<Song> saveAllSongList{sorted};
  RecordList<Album> saveAllAlbumList{edited};
  RecordList<WeeklyAlbumSales> saveAllWeeklyAlbumSales{growing};
  RecordList<WeeklyLineItem> saveAllWeeklyLineItems{edited};
  RecordList<WeeklySongListens> saveAllWeeklySongListens{growing};
  RecordList<WeeklyTourSales> saveAllWeeklyTourSales{growing};
  RecordList<BillboardSong> saveAllBillboardSongList{sorted};
  RecordList<ContractLabel> saveAllContractLabelList{edited};
  RecordList<MusicTour> saveAllMusicTourList{edited};
  RecordList<InvestmentProperty> saveAllInvestmentPropertyList{edited};
  RecordList<Venture> saveAllVentureInvestments{edited};
  RecordList<Employee> saveAllEmployeeList{edited};
  RecordList<SignedArtist> saveAllSignedArtistList{edited};
  RecordList<SignedArtistSong> saveAllSignedArtistSongList{edited};
  RecordList<SignedArtistAlbum> saveAllSignedArtistAlbumList{edited};
  RecordList<SignedArtistWeeklyAlbumSales> saveAllSignedArtistWeeklyAlbumSales{growing};
  RecordList<SignedArtistWeeklySongListens> saveAllSignedArtistWeeklySongListens{growing};
  RecordList<FeaturedOn> saveAllFeaturedOnList{edited};
  RecordList<FeaturedOnWeeklySongListens> saveAllFeaturedOnWeeklySongListens{growing};
  RecordList<Matches> saveAllMatchesList{edited};
  RecordList<CreatedArtist> saveAllCreatedArtists{edited};
  RecordList<Merch> saveAllMerchReleasedList{edited};
  RecordList<MerchWeeklySales> saveAllMerchWeeklySales{growing};
  RecordList<Chirp> saveAllChirpList{growingAtHead};
  RecordList<Child> saveAllChildList{edited};
  RecordList<Legacy> saveAllLegacyList{edited};
  RecordList<Transportation> saveAllTransportationOwnedList{edited};
  RecordList<Award> saveAllMusicAwards{growing};
  RecordList<MusicVideo> saveAllMusicVideoList{sorted};
  RecordList<WeeklyVideoViews> saveAllWeeklyVideoViews{growing};
  RecordList<Festival> saveAllFestivalList{edited};
  RecordList<AlbumCover> saveAllAlbumCovers{edited};
  RecordList<SongGenre> songGenres{growing};
  RecordList<FeaturedArtist> AllFeaturedArtists{edited};
  RecordList<CelebrityCameo> AllCelebrityCameos{edited};

  friend bool operator==(const GameState&, const GameState&) = default;
};

/// When a scalar is read at launch.
enum class Loading {
  loaded,     ///< by the loader, in the order of the table
  side,       ///< beside the loader, for the screen that owns it
  writeOnly,  ///< never: the value in memory restarts at its default
};

/// One scalar of the save.
struct Scalar {
  std::string_view key;
  std::variant<int64_t GameState::*, double GameState::*, std::string GameState::*, std::vector<int64_t> GameState::*,
               std::map<std::string, std::string> GameState::*>
      member;
  Loading loading;
};

/// Every scalar, in loading order.
inline constexpr std::array<Scalar, 157> scalars = {{
    {"myArtistsName", &GameState::myArtistsName, Loading::loaded},
    {"weekNumber", &GameState::weekNumber, Loading::loaded},
    {"yearNumber", &GameState::yearNumber, Loading::loaded},
    {"weekNumberForTracking", &GameState::weekNumberForTracking, Loading::loaded},
    {"totalCashAvailable", &GameState::totalCashAvailable, Loading::loaded},
    {"totalFans", &GameState::totalFans, Loading::loaded},
    {"totalEnergyAvailable", &GameState::totalEnergyAvailable, Loading::loaded},
    {"totalEnergyMax", &GameState::totalEnergyMax, Loading::loaded},
    {"permanentEnergyUpgrade", &GameState::permanentEnergyUpgrade, Loading::loaded},
    {"streamingPayRate", &GameState::streamingPayRate, Loading::loaded},
    {"globalMarketingCampaigns", &GameState::globalMarketingCampaigns, Loading::loaded},
    {"realEstateIndex", &GameState::realEstateIndex, Loading::loaded},
    {"netWorthSinceLastChecked", &GameState::netWorthSinceLastChecked, Loading::loaded},
    {"writtenReview", &GameState::writtenReview, Loading::loaded},
    {"aboutDescription", &GameState::aboutDescription, Loading::loaded},
    {"rhythm", &GameState::rhythm, Loading::loaded},
    {"rhythmEnergyCost", &GameState::rhythmEnergyCost, Loading::loaded},
    {"charisma", &GameState::charisma, Loading::loaded},
    {"charismaEnergyCost", &GameState::charismaEnergyCost, Loading::loaded},
    {"vocalRange", &GameState::vocalRange, Loading::loaded},
    {"vocalRangeEnergyCost", &GameState::vocalRangeEnergyCost, Loading::loaded},
    {"songWriting", &GameState::songWriting, Loading::loaded},
    {"songWritingEnergyCost", &GameState::songWritingEnergyCost, Loading::loaded},
    {"virality", &GameState::virality, Loading::loaded},
    {"viralityEnergyCost", &GameState::viralityEnergyCost, Loading::loaded},
    {"directing", &GameState::directing, Loading::loaded},
    {"directingEnergyCost", &GameState::directingEnergyCost, Loading::loaded},
    {"businessTrait1", &GameState::businessTrait1, Loading::loaded},
    {"businessTrait2", &GameState::businessTrait2, Loading::loaded},
    {"businessTrait3", &GameState::businessTrait3, Loading::loaded},
    {"businessTrait4", &GameState::businessTrait4, Loading::loaded},
    {"businessTrait5", &GameState::businessTrait5, Loading::loaded},
    {"businessTraitCost1", &GameState::businessTraitCost1, Loading::loaded},
    {"businessTraitCost2", &GameState::businessTraitCost2, Loading::loaded},
    {"businessTraitCost3", &GameState::businessTraitCost3, Loading::loaded},
    {"businessTraitCost4", &GameState::businessTraitCost4, Loading::loaded},
    {"businessTraitCost5", &GameState::businessTraitCost5, Loading::loaded},
    {"studioAcoustic", &GameState::studioAcoustic, Loading::loaded},
    {"studioConsole", &GameState::studioConsole, Loading::loaded},
    {"studioComputer", &GameState::studioComputer, Loading::loaded},
    {"studioMonitors", &GameState::studioMonitors, Loading::loaded},
    {"studioBooth", &GameState::studioBooth, Loading::loaded},
    {"studioCapacity", &GameState::studioCapacity, Loading::loaded},
    {"fashionViralityBonus", &GameState::fashionViralityBonus, Loading::loaded},
    {"foodEnergyBonus", &GameState::foodEnergyBonus, Loading::writeOnly},
    {"weeklyJobContractRemaining", &GameState::weeklyJobContractRemaining, Loading::loaded},
    {"weeklyJobIncome", &GameState::weeklyJobIncome, Loading::loaded},
    {"weeklyEnergyCost", &GameState::weeklyEnergyCost, Loading::loaded},
    {"underContract", &GameState::underContract, Loading::loaded},
    {"contractStudioScore", &GameState::contractStudioScore, Loading::loaded},
    {"contractViralityBoost", &GameState::contractViralityBoost, Loading::loaded},
    {"contractMarketingBoost", &GameState::contractMarketingBoost, Loading::loaded},
    {"contractAlbumPricing", &GameState::contractAlbumPricing, Loading::loaded},
    {"contractFeatureDiscount", &GameState::contractFeatureDiscount, Loading::loaded},
    {"albumProductionCosts", &GameState::albumProductionCosts, Loading::loaded},
    {"onTour", &GameState::onTour, Loading::loaded},
    {"onTourEnergyCost", &GameState::onTourEnergyCost, Loading::loaded},
    {"timeUntilNextTour", &GameState::timeUntilNextTour, Loading::loaded},
    {"tourId", &GameState::tourId, Loading::loaded},
    {"isLabelLaunched", &GameState::isLabelLaunched, Loading::loaded},
    {"myLabelName", &GameState::myLabelName, Loading::loaded},
    {"myLabelLogo", &GameState::myLabelLogo, Loading::loaded},
    {"myLabelSlogan", &GameState::myLabelSlogan, Loading::loaded},
    {"typeOfOffice", &GameState::typeOfOffice, Loading::loaded},
    {"employeeId", &GameState::employeeId, Loading::loaded},
    {"signedArtistId", &GameState::signedArtistId, Loading::loaded},
    {"signedArtistSongId", &GameState::signedArtistSongId, Loading::loaded},
    {"signedArtistAlbumId", &GameState::signedArtistAlbumId, Loading::loaded},
    {"officeCapacity", &GameState::officeCapacity, Loading::loaded},
    {"labelStreamingRate", &GameState::labelStreamingRate, Loading::loaded},
    {"labelViralityBoost", &GameState::labelViralityBoost, Loading::loaded},
    {"labelMarketingBoost", &GameState::labelMarketingBoost, Loading::loaded},
    {"labelEnergyBoost", &GameState::labelEnergyBoost, Loading::loaded},
    {"labelMoraleBoost", &GameState::labelMoraleBoost, Loading::loaded},
    {"openLabelEnergyCost", &GameState::openLabelEnergyCost, Loading::loaded},
    {"labelOfficePerkSpend", &GameState::labelOfficePerkSpend, Loading::loaded},
    {"officePerk1", &GameState::officePerk1, Loading::loaded},
    {"officePerk2", &GameState::officePerk2, Loading::loaded},
    {"officePerk3", &GameState::officePerk3, Loading::loaded},
    {"officePerk4", &GameState::officePerk4, Loading::loaded},
    {"officePerk5", &GameState::officePerk5, Loading::loaded},
    {"officePerk6", &GameState::officePerk6, Loading::loaded},
    {"officePerk7", &GameState::officePerk7, Loading::loaded},
    {"officePerk8", &GameState::officePerk8, Loading::loaded},
    {"officePerk9", &GameState::officePerk9, Loading::loaded},
    {"officePerk10", &GameState::officePerk10, Loading::loaded},
    {"labelOfficeRent", &GameState::labelOfficeRent, Loading::loaded},
    {"goldBooth", &GameState::goldBooth, Loading::loaded},
    {"platinumBooth", &GameState::platinumBooth, Loading::loaded},
    {"diamondBooth", &GameState::diamondBooth, Loading::loaded},
    {"boothMax", &GameState::boothMax, Loading::loaded},
    {"labelNegotiationBonus", &GameState::labelNegotiationBonus, Loading::loaded},
    {"labelArtistHappinessBonus", &GameState::labelArtistHappinessBonus, Loading::loaded},
    {"labelRevenueBonus", &GameState::labelRevenueBonus, Loading::loaded},
    {"totalRecordLabelCost", &GameState::totalRecordLabelCost, Loading::loaded},
    {"matchId", &GameState::matchId, Loading::loaded},
    {"askForMoneyEnergyCost", &GameState::askForMoneyEnergyCost, Loading::loaded},
    {"featuredOnSongId", &GameState::featuredOnSongId, Loading::loaded},
    {"biggestExit", &GameState::biggestExit, Loading::loaded},
    {"annualCheckupTotal", &GameState::annualCheckupTotal, Loading::loaded},
    {"energyLossExDrama", &GameState::energyLossExDrama, Loading::loaded},
    {"merchId", &GameState::merchId, Loading::loaded},
    {"merchWebsiteTransactionFee", &GameState::merchWebsiteTransactionFee, Loading::loaded},
    {"weeksToShipMerch", &GameState::weeksToShipMerch, Loading::loaded},
    {"weeksToManufactureMerch", &GameState::weeksToManufactureMerch, Loading::loaded},
    {"maxMerchProducts", &GameState::maxMerchProducts, Loading::loaded},
    {"maxMerchCapacity", &GameState::maxMerchCapacity, Loading::loaded},
    {"merchEnergyCost", &GameState::merchEnergyCost, Loading::loaded},
    {"chirpId", &GameState::chirpId, Loading::loaded},
    {"followerCount", &GameState::followerCount, Loading::loaded},
    {"assignFollowers", &GameState::assignFollowers, Loading::loaded},
    {"holidayPackageClicked", &GameState::holidayPackageClicked, Loading::loaded},
    {"childEnergyCost", &GameState::childEnergyCost, Loading::loaded},
    {"childAbandonmentEnergyLoss", &GameState::childAbandonmentEnergyLoss, Loading::loaded},
    {"signPrenup", &GameState::signPrenup, Loading::loaded},
    {"ageAtTakeover", &GameState::ageAtTakeover, Loading::loaded},
    {"childId", &GameState::childId, Loading::writeOnly},
    {"awardId", &GameState::awardId, Loading::writeOnly},
    {"musicVideoId", &GameState::musicVideoId, Loading::loaded},
    {"youViewStreamingRate", &GameState::youViewStreamingRate, Loading::loaded},
    {"youVideoSubscriberCount", &GameState::youVideoSubscriberCount, Loading::loaded},
    {"festivalId", &GameState::festivalId, Loading::loaded},
    {"songId", &GameState::songId, Loading::loaded},
    {"albumId", &GameState::albumId, Loading::loaded},
    {"promptToEnterName", &GameState::promptToEnterName, Loading::loaded},
    {"loginCount", &GameState::loginCount, Loading::loaded},
    {"savePulse", &GameState::savePulse, Loading::loaded},
    {"AllCompletedAchievements", &GameState::AllCompletedAchievements, Loading::loaded},
    {"monthlyListenerData", &GameState::monthlyListenerData, Loading::loaded},
    {"twitterProfileImage", &GameState::twitterProfileImage, Loading::side},
    {"twitterHeaderImage", &GameState::twitterHeaderImage, Loading::side},
    {"saveRingImage", &GameState::saveRingImage, Loading::side},
    {"assignSubscribers", &GameState::assignSubscribers, Loading::side},
    {"didSubscribe", &GameState::didSubscribe, Loading::side},
    {"moreInfoDescription", &GameState::moreInfoDescription, Loading::side},
    {"featureArtistNamedChanges", &GameState::featureArtistNamedChanges, Loading::side},
    {"celebrityCameoNamedChanges", &GameState::celebrityCameoNamedChanges, Loading::side},
    {"saveGenreForNextTime", &GameState::saveGenreForNextTime, Loading::side},
    {"rejectionCount", &GameState::rejectionCount, Loading::side},
    {"slideIntoDmsCount", &GameState::slideIntoDmsCount, Loading::side},
    {"recordDictionary", &GameState::recordDictionary, Loading::side},
    {"songDictionary", &GameState::songDictionary, Loading::side},
    {"albumDictionary", &GameState::albumDictionary, Loading::side},
    {"userRank", &GameState::userRank, Loading::side},
    {"userScore", &GameState::userScore, Loading::side},
    {"totalFanHighScore", &GameState::totalFanHighScore, Loading::side},
    {"mostPopularSongHighScore", &GameState::mostPopularSongHighScore, Loading::side},
    {"mostSuccessfulLabelHighScore", &GameState::mostSuccessfulLabelHighScore, Loading::side},
    {"mostPopularAlbumHighScore", &GameState::mostPopularAlbumHighScore, Loading::side},
    {"longestBillBoardHitHighScore", &GameState::longestBillBoardHitHighScore, Loading::side},
    {"mostNumberOneHighScore", &GameState::mostNumberOneHighScore, Loading::side},
    {"highestGrossAlbumWeekly", &GameState::highestGrossAlbumWeekly, Loading::side},
    {"mostGramWins", &GameState::mostGramWins, Loading::side},
    {"mostAchievementsCompleted", &GameState::mostAchievementsCompleted, Loading::side},
    {"appearance", &GameState::appearance, Loading::side},
    {"weeklyExpenses", &GameState::weeklyExpenses, Loading::writeOnly},
    {"musicality", &GameState::musicality, Loading::writeOnly},
}};

/// Every list, in loading order.
template <>
inline constexpr auto fieldsOf<GameState> = [](auto&& take) {
  return take(
      Field{"saveAllSongList", &GameState::saveAllSongList}, Field{"saveAllAlbumList", &GameState::saveAllAlbumList},
      Field{"saveAllWeeklyAlbumSales", &GameState::saveAllWeeklyAlbumSales},
      Field{"saveAllWeeklyLineItems", &GameState::saveAllWeeklyLineItems},
      Field{"saveAllWeeklySongListens", &GameState::saveAllWeeklySongListens},
      Field{"saveAllWeeklyTourSales", &GameState::saveAllWeeklyTourSales},
      Field{"saveAllBillboardSongList", &GameState::saveAllBillboardSongList},
      Field{"saveAllContractLabelList", &GameState::saveAllContractLabelList},
      Field{"saveAllMusicTourList", &GameState::saveAllMusicTourList},
      Field{"saveAllInvestmentPropertyList", &GameState::saveAllInvestmentPropertyList},
      Field{"saveAllVentureInvestments", &GameState::saveAllVentureInvestments},
      Field{"saveAllEmployeeList", &GameState::saveAllEmployeeList},
      Field{"saveAllSignedArtistList", &GameState::saveAllSignedArtistList},
      Field{"saveAllSignedArtistSongList", &GameState::saveAllSignedArtistSongList},
      Field{"saveAllSignedArtistAlbumList", &GameState::saveAllSignedArtistAlbumList},
      Field{"saveAllSignedArtistWeeklyAlbumSales", &GameState::saveAllSignedArtistWeeklyAlbumSales},
      Field{"saveAllSignedArtistWeeklySongListens", &GameState::saveAllSignedArtistWeeklySongListens},
      Field{"saveAllFeaturedOnList", &GameState::saveAllFeaturedOnList},
      Field{"saveAllFeaturedOnWeeklySongListens", &GameState::saveAllFeaturedOnWeeklySongListens},
      Field{"saveAllMatchesList", &GameState::saveAllMatchesList},
      Field{"saveAllCreatedArtists", &GameState::saveAllCreatedArtists},
      Field{"saveAllMerchReleasedList", &GameState::saveAllMerchReleasedList},
      Field{"saveAllMerchWeeklySales", &GameState::saveAllMerchWeeklySales},
      Field{"saveAllChirpList", &GameState::saveAllChirpList}, Field{"saveAllChildList", &GameState::saveAllChildList},
      Field{"saveAllLegacyList", &GameState::saveAllLegacyList},
      Field{"saveAllTransportationOwnedList", &GameState::saveAllTransportationOwnedList},
      Field{"saveAllMusicAwards", &GameState::saveAllMusicAwards},
      Field{"saveAllMusicVideoList", &GameState::saveAllMusicVideoList},
      Field{"saveAllWeeklyVideoViews", &GameState::saveAllWeeklyVideoViews},
      Field{"saveAllFestivalList", &GameState::saveAllFestivalList},
      Field{"saveAllAlbumCovers", &GameState::saveAllAlbumCovers}, Field{"songGenres", &GameState::songGenres},
      Field{"AllFeaturedArtists", &GameState::AllFeaturedArtists},
      Field{"AllCelebrityCameos", &GameState::AllCelebrityCameos});
};

/// A list of a state, whatever it holds, and the key under which it is stored.
template <class List>
struct NamedList {
  std::string_view key;
  List& list;
};

/// Every list of a state, in loading order.
std::vector<NamedList<ChunkedList>> listsOf(GameState& state);
std::vector<NamedList<const ChunkedList>> listsOf(const GameState& state);

/// The key under which a list of this state is stored.
std::string_view keyOf(const GameState& state, const ChunkedList& list);

}  // namespace backbeat
