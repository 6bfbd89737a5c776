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
#include "core/records/packs.h"
#include "core/records/recognition.h"
#include "core/records/report.h"
#include "core/records/social.h"
#include "core/records/wealth.h"
#include "core/store.h"

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
  int64_t weddingWeek = 0;    ///< the absolute week of the last wedding, 0 for none
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

  // The player's own: pictures and names, first uses, habits, records.
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
  std::map<std::string, std::string> recordDictionary;  ///< of the year's main fields: title and artist
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
  int64_t careerId = 0;               ///< tells this career from others of the device; 0 until it has a name
  std::string appearance = "system";  ///< the player's choice of look: "system", "dark" or "light"
  int64_t assisted = 0;               ///< 1 once this family has taken a pack

  std::string heirParentNames;  ///< of an artist who took over: the parents, one a line

  // Written at a restart and at a takeover, read nowhere.
  double weeklyExpenses = 0;
  int64_t musicality = 0;

  // Lists, in the order of loading.
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
  RecordList<AwardYear> awardYear{edited};  ///< one, or none before the first nominations
  RecordList<PackWeek> packWeeks{edited};   ///< one of each free pack that was taken
  RecordList<CreditedPurchase> creditedPurchases{growing};
  RecordList<ReportNumbers> reportNumbers{growing};  ///< and what a closed one leaves: see turn/open_report.h

  friend bool operator==(const GameState&, const GameState&) = default;
};

/// How long a value holds. Each of these outlives the one before it.
enum class Lifetime {
  artist,  ///< ends with the artist: at a restart, and when an heir takes over
  family,  ///< an heir goes on with it; ends at a restart
  player,  ///< outlives every artist
  device,  ///< outlives every career that is played here, see `deviceKey`
};

/// When a scalar is read at launch.
enum class Loading {
  loaded,
  writeOnly,  ///< never: the value in memory restarts at its default
};

/// One scalar of the save.
struct Scalar {
  std::string_view key;
  std::variant<int64_t GameState::*, double GameState::*, std::string GameState::*, std::vector<int64_t> GameState::*,
               std::map<std::string, std::string> GameState::*>
      member;
  Lifetime lifetime = Lifetime::artist;
  Loading loading = Loading::loaded;
};

/// Every scalar, in loading order.
inline constexpr auto scalars = std::to_array<Scalar>({
    {"myArtistsName", &GameState::myArtistsName},
    {"weekNumber", &GameState::weekNumber, Lifetime::family},
    {"yearNumber", &GameState::yearNumber, Lifetime::family},
    {"weekNumberForTracking", &GameState::weekNumberForTracking, Lifetime::family},
    {"totalCashAvailable", &GameState::totalCashAvailable},
    {"totalFans", &GameState::totalFans},
    {"totalEnergyAvailable", &GameState::totalEnergyAvailable},
    {"totalEnergyMax", &GameState::totalEnergyMax},
    {"permanentEnergyUpgrade", &GameState::permanentEnergyUpgrade, Lifetime::player},
    {"streamingPayRate", &GameState::streamingPayRate},
    {"globalMarketingCampaigns", &GameState::globalMarketingCampaigns},
    {"realEstateIndex", &GameState::realEstateIndex},
    {"netWorthSinceLastChecked", &GameState::netWorthSinceLastChecked},
    {"writtenReview", &GameState::writtenReview},
    {"aboutDescription", &GameState::aboutDescription},
    {"rhythm", &GameState::rhythm},
    {"rhythmEnergyCost", &GameState::rhythmEnergyCost},
    {"charisma", &GameState::charisma},
    {"charismaEnergyCost", &GameState::charismaEnergyCost},
    {"vocalRange", &GameState::vocalRange},
    {"vocalRangeEnergyCost", &GameState::vocalRangeEnergyCost},
    {"songWriting", &GameState::songWriting},
    {"songWritingEnergyCost", &GameState::songWritingEnergyCost},
    {"virality", &GameState::virality},
    {"viralityEnergyCost", &GameState::viralityEnergyCost},
    {"directing", &GameState::directing},
    {"directingEnergyCost", &GameState::directingEnergyCost},
    {"businessTrait1", &GameState::businessTrait1},
    {"businessTrait2", &GameState::businessTrait2},
    {"businessTrait3", &GameState::businessTrait3},
    {"businessTrait4", &GameState::businessTrait4},
    {"businessTrait5", &GameState::businessTrait5},
    {"businessTraitCost1", &GameState::businessTraitCost1},
    {"businessTraitCost2", &GameState::businessTraitCost2},
    {"businessTraitCost3", &GameState::businessTraitCost3},
    {"businessTraitCost4", &GameState::businessTraitCost4},
    {"businessTraitCost5", &GameState::businessTraitCost5},
    {"studioAcoustic", &GameState::studioAcoustic},
    {"studioConsole", &GameState::studioConsole},
    {"studioComputer", &GameState::studioComputer},
    {"studioMonitors", &GameState::studioMonitors},
    {"studioBooth", &GameState::studioBooth},
    {"studioCapacity", &GameState::studioCapacity},
    {"fashionViralityBonus", &GameState::fashionViralityBonus},
    {"foodEnergyBonus", &GameState::foodEnergyBonus, Lifetime::artist, Loading::writeOnly},
    {"weeklyJobContractRemaining", &GameState::weeklyJobContractRemaining},
    {"weeklyJobIncome", &GameState::weeklyJobIncome},
    {"weeklyEnergyCost", &GameState::weeklyEnergyCost},
    {"underContract", &GameState::underContract},
    {"contractStudioScore", &GameState::contractStudioScore},
    {"contractViralityBoost", &GameState::contractViralityBoost},
    {"contractMarketingBoost", &GameState::contractMarketingBoost},
    {"contractAlbumPricing", &GameState::contractAlbumPricing},
    {"contractFeatureDiscount", &GameState::contractFeatureDiscount},
    {"albumProductionCosts", &GameState::albumProductionCosts},
    {"onTour", &GameState::onTour},
    {"onTourEnergyCost", &GameState::onTourEnergyCost},
    {"timeUntilNextTour", &GameState::timeUntilNextTour},
    {"tourId", &GameState::tourId},
    {"isLabelLaunched", &GameState::isLabelLaunched},
    {"myLabelName", &GameState::myLabelName},
    {"myLabelLogo", &GameState::myLabelLogo},
    {"myLabelSlogan", &GameState::myLabelSlogan},
    {"typeOfOffice", &GameState::typeOfOffice},
    {"employeeId", &GameState::employeeId},
    {"signedArtistId", &GameState::signedArtistId},
    {"signedArtistSongId", &GameState::signedArtistSongId},
    {"signedArtistAlbumId", &GameState::signedArtistAlbumId},
    {"officeCapacity", &GameState::officeCapacity},
    {"labelStreamingRate", &GameState::labelStreamingRate},
    {"labelViralityBoost", &GameState::labelViralityBoost},
    {"labelMarketingBoost", &GameState::labelMarketingBoost},
    {"labelEnergyBoost", &GameState::labelEnergyBoost},
    {"labelMoraleBoost", &GameState::labelMoraleBoost},
    {"openLabelEnergyCost", &GameState::openLabelEnergyCost},
    {"labelOfficePerkSpend", &GameState::labelOfficePerkSpend},
    {"officePerk1", &GameState::officePerk1},
    {"officePerk2", &GameState::officePerk2},
    {"officePerk3", &GameState::officePerk3},
    {"officePerk4", &GameState::officePerk4},
    {"officePerk5", &GameState::officePerk5},
    {"officePerk6", &GameState::officePerk6},
    {"officePerk7", &GameState::officePerk7},
    {"officePerk8", &GameState::officePerk8},
    {"officePerk9", &GameState::officePerk9},
    {"officePerk10", &GameState::officePerk10},
    {"labelOfficeRent", &GameState::labelOfficeRent},
    {"goldBooth", &GameState::goldBooth},
    {"platinumBooth", &GameState::platinumBooth},
    {"diamondBooth", &GameState::diamondBooth},
    {"boothMax", &GameState::boothMax},
    {"labelNegotiationBonus", &GameState::labelNegotiationBonus},
    {"labelArtistHappinessBonus", &GameState::labelArtistHappinessBonus},
    {"labelRevenueBonus", &GameState::labelRevenueBonus},
    {"totalRecordLabelCost", &GameState::totalRecordLabelCost},
    {"matchId", &GameState::matchId},
    {"askForMoneyEnergyCost", &GameState::askForMoneyEnergyCost},
    {"featuredOnSongId", &GameState::featuredOnSongId},
    {"biggestExit", &GameState::biggestExit},
    {"annualCheckupTotal", &GameState::annualCheckupTotal},
    {"energyLossExDrama", &GameState::energyLossExDrama},
    {"merchId", &GameState::merchId},
    {"merchWebsiteTransactionFee", &GameState::merchWebsiteTransactionFee},
    {"weeksToShipMerch", &GameState::weeksToShipMerch},
    {"weeksToManufactureMerch", &GameState::weeksToManufactureMerch},
    {"maxMerchProducts", &GameState::maxMerchProducts},
    {"maxMerchCapacity", &GameState::maxMerchCapacity},
    {"merchEnergyCost", &GameState::merchEnergyCost},
    {"chirpId", &GameState::chirpId},
    {"followerCount", &GameState::followerCount},
    {"assignFollowers", &GameState::assignFollowers, Lifetime::player},
    {"holidayPackageClicked", &GameState::holidayPackageClicked},
    {"childEnergyCost", &GameState::childEnergyCost},
    {"childAbandonmentEnergyLoss", &GameState::childAbandonmentEnergyLoss},
    {"signPrenup", &GameState::signPrenup},
    {"weddingWeek", &GameState::weddingWeek},
    {"ageAtTakeover", &GameState::ageAtTakeover},
    {"childId", &GameState::childId, Lifetime::artist, Loading::writeOnly},
    {"awardId", &GameState::awardId, Lifetime::artist, Loading::writeOnly},
    {"musicVideoId", &GameState::musicVideoId},
    {"youViewStreamingRate", &GameState::youViewStreamingRate},
    {"youVideoSubscriberCount", &GameState::youVideoSubscriberCount},
    {"festivalId", &GameState::festivalId},
    {"songId", &GameState::songId},
    {"albumId", &GameState::albumId},
    {"promptToEnterName", &GameState::promptToEnterName, Lifetime::family},
    {"loginCount", &GameState::loginCount, Lifetime::player},
    {"savePulse", &GameState::savePulse, Lifetime::player},
    {"AllCompletedAchievements", &GameState::AllCompletedAchievements, Lifetime::player},
    {"monthlyListenerData", &GameState::monthlyListenerData},
    {"twitterProfileImage", &GameState::twitterProfileImage, Lifetime::player},
    {"twitterHeaderImage", &GameState::twitterHeaderImage, Lifetime::player},
    {"saveRingImage", &GameState::saveRingImage, Lifetime::player},
    {"assignSubscribers", &GameState::assignSubscribers, Lifetime::player},
    {"didSubscribe", &GameState::didSubscribe, Lifetime::player},
    {"moreInfoDescription", &GameState::moreInfoDescription, Lifetime::player},
    {"featureArtistNamedChanges", &GameState::featureArtistNamedChanges, Lifetime::player},
    {"celebrityCameoNamedChanges", &GameState::celebrityCameoNamedChanges, Lifetime::player},
    {"saveGenreForNextTime", &GameState::saveGenreForNextTime, Lifetime::player},
    {"rejectionCount", &GameState::rejectionCount, Lifetime::player},
    {"slideIntoDmsCount", &GameState::slideIntoDmsCount, Lifetime::player},
    {"recordDictionary", &GameState::recordDictionary},
    {"songDictionary", &GameState::songDictionary},
    {"albumDictionary", &GameState::albumDictionary},
    {"userRank", &GameState::userRank, Lifetime::player},
    {"userScore", &GameState::userScore, Lifetime::player},
    {"totalFanHighScore", &GameState::totalFanHighScore, Lifetime::player},
    {"mostPopularSongHighScore", &GameState::mostPopularSongHighScore, Lifetime::player},
    {"mostSuccessfulLabelHighScore", &GameState::mostSuccessfulLabelHighScore, Lifetime::player},
    {"mostPopularAlbumHighScore", &GameState::mostPopularAlbumHighScore, Lifetime::player},
    {"longestBillBoardHitHighScore", &GameState::longestBillBoardHitHighScore, Lifetime::player},
    {"mostNumberOneHighScore", &GameState::mostNumberOneHighScore, Lifetime::player},
    {"highestGrossAlbumWeekly", &GameState::highestGrossAlbumWeekly, Lifetime::player},
    {"mostGramWins", &GameState::mostGramWins, Lifetime::player},
    {"mostAchievementsCompleted", &GameState::mostAchievementsCompleted, Lifetime::player},
    {"careerId", &GameState::careerId, Lifetime::family},
    {"appearance", &GameState::appearance, Lifetime::player},
    {"heirParentNames", &GameState::heirParentNames, Lifetime::family},
    {"assisted", &GameState::assisted, Lifetime::family},
    {"weeklyExpenses", &GameState::weeklyExpenses, Lifetime::artist, Loading::writeOnly},
    {"musicality", &GameState::musicality, Lifetime::artist, Loading::writeOnly},
});

/// One list of the save.
template <class T>
struct SavedList {
  std::string_view key;
  RecordList<T> GameState::*member;
  Lifetime lifetime = Lifetime::artist;
};

/// Every list, in loading order.
template <>
inline constexpr auto fieldsOf<GameState> = [](auto&& take) {
  return take(
      SavedList{"saveAllSongList", &GameState::saveAllSongList},
      SavedList{"saveAllAlbumList", &GameState::saveAllAlbumList},
      SavedList{"saveAllWeeklyAlbumSales", &GameState::saveAllWeeklyAlbumSales},
      SavedList{"saveAllWeeklyLineItems", &GameState::saveAllWeeklyLineItems},
      SavedList{"saveAllWeeklySongListens", &GameState::saveAllWeeklySongListens},
      SavedList{"saveAllWeeklyTourSales", &GameState::saveAllWeeklyTourSales},
      SavedList{"saveAllBillboardSongList", &GameState::saveAllBillboardSongList},
      SavedList{"saveAllContractLabelList", &GameState::saveAllContractLabelList},
      SavedList{"saveAllMusicTourList", &GameState::saveAllMusicTourList},
      SavedList{"saveAllInvestmentPropertyList", &GameState::saveAllInvestmentPropertyList},
      SavedList{"saveAllVentureInvestments", &GameState::saveAllVentureInvestments},
      SavedList{"saveAllEmployeeList", &GameState::saveAllEmployeeList},
      SavedList{"saveAllSignedArtistList", &GameState::saveAllSignedArtistList},
      SavedList{"saveAllSignedArtistSongList", &GameState::saveAllSignedArtistSongList},
      SavedList{"saveAllSignedArtistAlbumList", &GameState::saveAllSignedArtistAlbumList},
      SavedList{"saveAllSignedArtistWeeklyAlbumSales", &GameState::saveAllSignedArtistWeeklyAlbumSales},
      SavedList{"saveAllSignedArtistWeeklySongListens", &GameState::saveAllSignedArtistWeeklySongListens},
      SavedList{"saveAllFeaturedOnList", &GameState::saveAllFeaturedOnList},
      SavedList{"saveAllFeaturedOnWeeklySongListens", &GameState::saveAllFeaturedOnWeeklySongListens},
      SavedList{"saveAllMatchesList", &GameState::saveAllMatchesList},
      SavedList{"saveAllCreatedArtists", &GameState::saveAllCreatedArtists},
      SavedList{"saveAllMerchReleasedList", &GameState::saveAllMerchReleasedList},
      SavedList{"saveAllMerchWeeklySales", &GameState::saveAllMerchWeeklySales},
      SavedList{"saveAllChirpList", &GameState::saveAllChirpList},
      SavedList{"saveAllChildList", &GameState::saveAllChildList},
      SavedList{"saveAllLegacyList", &GameState::saveAllLegacyList, Lifetime::player},
      SavedList{"saveAllTransportationOwnedList", &GameState::saveAllTransportationOwnedList},
      SavedList{"saveAllMusicAwards", &GameState::saveAllMusicAwards},
      SavedList{"saveAllMusicVideoList", &GameState::saveAllMusicVideoList},
      SavedList{"saveAllWeeklyVideoViews", &GameState::saveAllWeeklyVideoViews},
      SavedList{"saveAllFestivalList", &GameState::saveAllFestivalList},
      SavedList{"saveAllAlbumCovers", &GameState::saveAllAlbumCovers}, SavedList{"songGenres", &GameState::songGenres},
      SavedList{"AllFeaturedArtists", &GameState::AllFeaturedArtists, Lifetime::player},
      SavedList{"AllCelebrityCameos", &GameState::AllCelebrityCameos, Lifetime::player},
      SavedList{"awardYear", &GameState::awardYear}, SavedList{"packWeeks", &GameState::packWeeks, Lifetime::family},
      SavedList{deviceKey, &GameState::creditedPurchases, Lifetime::device},
      SavedList{"reportNumbers", &GameState::reportNumbers});
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
