// Records of the live lists: how each looks in memory, and the table that says how it is stored.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/fields.h"

namespace backbeat {

/// One show of a tour.
struct MusicTour {
  int64_t tourId = 0;
  int64_t tourLocationId = 0;
  std::string tourTitle;
  int64_t year = 0;
  int64_t week = 0;
  std::string stadium;
  std::string location;
  double ticketPrice = 0;
  int64_t seatsSold = 0;
  int64_t seatCapacity = 0;
  int64_t numberOfShows = 0;
  bool hasPerformed = false;
  int64_t grossRevenue = 0;

  friend bool operator==(const MusicTour&, const MusicTour&) = default;
};

template <>
inline constexpr auto fieldsOf<MusicTour> = [](auto&& take) {
  return take(Field{"tourId", &MusicTour::tourId}, Field{"tourLocationId", &MusicTour::tourLocationId},
              Field{"tourTitle", &MusicTour::tourTitle}, Field{"year", &MusicTour::year},
              Field{"week", &MusicTour::week}, Field{"stadium", &MusicTour::stadium},
              Field{"location", &MusicTour::location}, Field{"ticketPrice", &MusicTour::ticketPrice},
              Field{"seatsSold", &MusicTour::seatsSold}, Field{"seatCapacity", &MusicTour::seatCapacity},
              Field{"numberOfShows", &MusicTour::numberOfShows}, Field{"hasPerformed", &MusicTour::hasPerformed},
              Field{"grossRevenue", &MusicTour::grossRevenue});
};

/// What one show brought in its week.
struct WeeklyTourSales {
  int64_t tourId = 0;
  std::string tourStadium;
  std::string tourLocation;
  double tourRevenue = 0;
  int64_t seatsSold = 0;
  int64_t soldOut = 0;
  int64_t weekNumber = 0;
  int64_t yearNumber = 0;

  friend bool operator==(const WeeklyTourSales&, const WeeklyTourSales&) = default;
};

template <>
inline constexpr auto fieldsOf<WeeklyTourSales> = [](auto&& take) {
  return take(Field{"tourId", &WeeklyTourSales::tourId}, Field{"tourStadium", &WeeklyTourSales::tourStadium},
              Field{"tourLocation", &WeeklyTourSales::tourLocation},
              Field{"tourRevenue", &WeeklyTourSales::tourRevenue}, Field{"seatsSold", &WeeklyTourSales::seatsSold},
              Field{"soldOut", &WeeklyTourSales::soldOut}, Field{"weekNumber", &WeeklyTourSales::weekNumber},
              Field{"yearNumber", &WeeklyTourSales::yearNumber});
};

/// One festival the artist was booked for.
struct Festival {
  int64_t id = 0;
  int64_t festivalId = 0;
  std::string festivalName;
  int64_t isHeadliner = 0;
  int64_t audience = 0;
  std::string headliner;
  std::string lineupString;
  std::vector<int64_t> setListId;
  double reviewStars = 0;
  std::string topReview;
  double payment = 0;
  int64_t boostCount = 0;
  int64_t weekNumber = 0;
  int64_t yearNumber = 0;
  int64_t weekNumberForTracking = 0;

  friend bool operator==(const Festival&, const Festival&) = default;
};

template <>
inline constexpr auto fieldsOf<Festival> = [](auto&& take) {
  return take(Field{"id", &Festival::id}, Field{"festivalId", &Festival::festivalId},
              Field{"festivalName", &Festival::festivalName}, Field{"isHeadliner", &Festival::isHeadliner},
              Field{"audience", &Festival::audience}, Field{"headliner", &Festival::headliner},
              Field{"lineupString", &Festival::lineupString}, Field{"setListId", &Festival::setListId},
              Field{"reviewStars", &Festival::reviewStars}, Field{"topReview", &Festival::topReview},
              Field{"payment", &Festival::payment}, Field{"boostCount", &Festival::boostCount},
              Field{"weekNumber", &Festival::weekNumber}, Field{"yearNumber", &Festival::yearNumber},
              Field{"weekNumberForTracking", &Festival::weekNumberForTracking});
};

}  // namespace backbeat
