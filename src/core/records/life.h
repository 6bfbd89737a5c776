// Records of the life lists: how each looks in memory, and the table that says how it is stored.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/fields.h"

namespace backbeat {

/// One person met through dating.
struct Matches {
  int64_t matchId = 0;
  std::string name;
  std::string matchImage;
  std::string matchTagline;
  std::string matchPickupLine;
  std::string occupation;
  int64_t weekMatched = 0;
  int64_t weekStartedDating = 0;
  int64_t weekEndedDating = 0;
  int64_t energyBonus = 0;
  double relationshipStatus = 0;
  int64_t age = 0;
  double chemistry = 0;
  int64_t beauty = 0;
  int64_t intelligence = 0;
  int64_t personality = 0;
  int64_t maintenance = 0;
  double weeklyEarnings = 0;
  int64_t superLike = 0;
  std::vector<std::string> interests;
  int64_t interested = 0;
  std::string pickupLineResponse;
  std::string breakupLine;
  int64_t relationshipState = 0;
  int64_t timeToPropose = 0;
  int64_t timeToBirth = 0;

  friend bool operator==(const Matches&, const Matches&) = default;
};

template <>
inline constexpr auto fieldsOf<Matches> = [](auto&& take) {
  return take(Field{"matchId", &Matches::matchId}, Field{"name", &Matches::name},
              Field{"matchImage", &Matches::matchImage}, Field{"matchTagline", &Matches::matchTagline},
              Field{"matchPickupLine", &Matches::matchPickupLine}, Field{"occupation", &Matches::occupation},
              Field{"weekMatched", &Matches::weekMatched}, Field{"weekStartedDating", &Matches::weekStartedDating},
              Field{"weekEndedDating", &Matches::weekEndedDating}, Field{"energyBonus", &Matches::energyBonus},
              Field{"relationshipStatus", &Matches::relationshipStatus}, Field{"age", &Matches::age},
              Field{"chemistry", &Matches::chemistry}, Field{"beauty", &Matches::beauty},
              Field{"intelligence", &Matches::intelligence}, Field{"personality", &Matches::personality},
              Field{"maintenance", &Matches::maintenance}, Field{"weeklyEarnings", &Matches::weeklyEarnings},
              Field{"superLike", &Matches::superLike}, Field{"interests", &Matches::interests},
              Field{"interested", &Matches::interested}, Field{"pickupLineResponse", &Matches::pickupLineResponse},
              Field{"breakupLine", &Matches::breakupLine}, Field{"relationshipState", &Matches::relationshipState},
              Field{"timeToPropose", &Matches::timeToPropose}, Field{"timeToBirth", &Matches::timeToBirth});
};

/// One child of the artist.
struct Child {
  int64_t id = 0;
  std::string name;
  int64_t gender = 0;
  int64_t birthYear = 0;
  int64_t birthWeek = 0;
  int64_t birthWeekForTracking = 0;
  std::string relationship;
  std::string partnerName;
  std::string artistName;
  int64_t weeklyEnergyCost = 0;
  double weeklyFinancialCost = 0;
  std::string imageString;
  std::string occupation;
  int64_t songWriting = 0;
  int64_t virality = 0;
  int64_t vocals = 0;
  int64_t rhythm = 0;
  int64_t charisma = 0;
  int64_t totalEnergyMax = 0;
  double admiration = 0;
  double weeklyAdmirationLoss = 0;
  int64_t followers = 0;
  int64_t typeOfRelationship = 0;
  int64_t ageofDeath = 0;
  std::string causeOfDeath;
  double extraOne = 0;
  std::string extraTwo;

  friend bool operator==(const Child&, const Child&) = default;
};

template <>
inline constexpr auto fieldsOf<Child> = [](auto&& take) {
  return take(Field{"id", &Child::id}, Field{"name", &Child::name}, Field{"gender", &Child::gender},
              Field{"birthYear", &Child::birthYear}, Field{"birthWeek", &Child::birthWeek},
              Field{"birthWeekForTracking", &Child::birthWeekForTracking}, Field{"relationship", &Child::relationship},
              Field{"partnerName", &Child::partnerName}, Field{"artistName", &Child::artistName},
              Field{"weeklyEnergyCost", &Child::weeklyEnergyCost},
              Field{"weeklyFinancialCost", &Child::weeklyFinancialCost}, Field{"imageString", &Child::imageString},
              Field{"occupation", &Child::occupation}, Field{"songWriting", &Child::songWriting},
              Field{"virality", &Child::virality}, Field{"vocals", &Child::vocals}, Field{"rhythm", &Child::rhythm},
              Field{"charisma", &Child::charisma}, Field{"totalEnergyMax", &Child::totalEnergyMax},
              Field{"admiration", &Child::admiration}, Field{"weeklyAdmirationLoss", &Child::weeklyAdmirationLoss},
              Field{"followers", &Child::followers}, Field{"typeOfRelationship", &Child::typeOfRelationship},
              Field{"ageofDeath", &Child::ageofDeath}, Field{"causeOfDeath", &Child::causeOfDeath},
              Field{"extraOne", &Child::extraOne}, Field{"extraTwo", &Child::extraTwo});
};

/// The record of one finished life.
struct Legacy {
  std::string name;
  int64_t netWorth = 0;
  int64_t yearBorn = 0;
  int64_t yearPassed = 0;
  std::vector<std::string> parentsNames;
  int64_t numOfSongs = 0;
  int64_t numOfAlbums = 0;
  int64_t numOfTours = 0;
  int64_t biggestTour = 0;
  std::string biggestTourName;
  int64_t biggestTourSeatsSold = 0;
  std::string biggestSong;
  int64_t biggestSongStreams = 0;
  std::string biggestAlbum;
  int64_t biggestAlbumSold = 0;
  int64_t diamondCertifications = 0;
  std::string spotifyBio;  ///< the about text of the profile
  std::string causeOfDeath;
  int64_t numberOfBillboardHits = 0;
  int64_t numberOfBillboardNumberOnes = 0;
  int64_t longestBillboardNumberOne = 0;
  std::string longestBillboardNumberOneTitle;
  int64_t longestBillboardWeeksOnCharts = 0;
  std::string longestBillboardWeeksOnChartsTitle;
  int64_t numberOfExplicitSongs = 0;
  int64_t numberOfExes = 0;
  double biggestInvestmentExit = 0;
  int64_t numberOfChildren = 0;
  std::string recordLabelName;
  int64_t numberOfAwards = 0;
  std::vector<std::string> awardsWon;
  std::vector<std::string> movies;
  std::vector<std::string> endorsements;
  double biggestEndorsement = 0;
  std::string biggestEndorsementTitle;
  double biggestMovie = 0;
  std::string biggestMovieTitle;
  int64_t successorBirthYear = 0;
  int64_t totalFollowers = 0;
  std::string imageString;

  friend bool operator==(const Legacy&, const Legacy&) = default;
};

template <>
inline constexpr auto fieldsOf<Legacy> = [](auto&& take) {
  return take(
      Field{"name", &Legacy::name}, Field{"netWorth", &Legacy::netWorth}, Field{"yearBorn", &Legacy::yearBorn},
      Field{"yearPassed", &Legacy::yearPassed}, Field{"parentsNames", &Legacy::parentsNames},
      Field{"numOfSongs", &Legacy::numOfSongs}, Field{"numOfAlbums", &Legacy::numOfAlbums},
      Field{"numOfTours", &Legacy::numOfTours}, Field{"biggestTour", &Legacy::biggestTour},
      Field{"biggestTourName", &Legacy::biggestTourName}, Field{"biggestTourSeatsSold", &Legacy::biggestTourSeatsSold},
      Field{"biggestSong", &Legacy::biggestSong}, Field{"biggestSongStreams", &Legacy::biggestSongStreams},
      Field{"biggestAlbum", &Legacy::biggestAlbum}, Field{"biggestAlbumSold", &Legacy::biggestAlbumSold},
      Field{"diamondCertifications", &Legacy::diamondCertifications}, Field{"spotifyBio", &Legacy::spotifyBio},
      Field{"causeOfDeath", &Legacy::causeOfDeath}, Field{"numberOfBillboardHits", &Legacy::numberOfBillboardHits},
      Field{"numberOfBillboardNumberOnes", &Legacy::numberOfBillboardNumberOnes},
      Field{"longestBillboardNumberOne", &Legacy::longestBillboardNumberOne},
      Field{"longestBillboardNumberOneTitle", &Legacy::longestBillboardNumberOneTitle},
      Field{"longestBillboardWeeksOnCharts", &Legacy::longestBillboardWeeksOnCharts},
      Field{"longestBillboardWeeksOnChartsTitle", &Legacy::longestBillboardWeeksOnChartsTitle},
      Field{"numberOfExplicitSongs", &Legacy::numberOfExplicitSongs}, Field{"numberOfExes", &Legacy::numberOfExes},
      Field{"biggestInvestmentExit", &Legacy::biggestInvestmentExit},
      Field{"numberOfChildren", &Legacy::numberOfChildren}, Field{"recordLabelName", &Legacy::recordLabelName},
      Field{"numberOfAwards", &Legacy::numberOfAwards}, Field{"awardsWon", &Legacy::awardsWon},
      Field{"movies", &Legacy::movies}, Field{"endorsements", &Legacy::endorsements},
      Field{"biggestEndorsement", &Legacy::biggestEndorsement},
      Field{"biggestEndorsementTitle", &Legacy::biggestEndorsementTitle}, Field{"biggestMovie", &Legacy::biggestMovie},
      Field{"biggestMovieTitle", &Legacy::biggestMovieTitle}, Field{"successorBirthYear", &Legacy::successorBirthYear},
      Field{"totalFollowers", &Legacy::totalFollowers}, Field{"imageString", &Legacy::imageString});
};

}  // namespace backbeat
