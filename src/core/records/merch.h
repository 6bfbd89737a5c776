// Records of the merch lists: how each looks in memory, and the table that says how it is stored.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/fields.h"
#include "core/records/music.h"

namespace backbeat {

/// One product on sale.
struct Merch {
  int64_t merchId = 0;
  int64_t merchOptionId = 0;
  std::string category;
  std::string subCategory;
  std::string name;
  double totalCost = 0;
  double pricePerUnit = 0;
  double salePricePerUnit = 0;
  double totalCostPerUnit = 0;
  int64_t startingInventory = 0;
  int64_t remainingInventory = 0;
  int64_t totalUnitsSold = 0;
  int64_t limitedEdition = 0;
  double totalRevenue = 0;
  std::vector<Song> songList;  ///< copies of the songs a record carries; empty for other products
  double popularity = 0;
  std::string imageString;
  int64_t yearLaunched = 0;
  int64_t weekLaunched = 0;
  int64_t weekReordered = 0;
  int64_t weeksToManufacture = 0;
  int64_t weeksToShip = 0;
  double transactionFees = 0;
  int64_t isRetired = 0;
  int64_t reorderCount = 0;
  int64_t energyCost = 0;
  int64_t minutesToSellOut = 0;
  double artistPercentage = 0;
  int64_t showOnSpotify = 0;  ///< 1 when it stands on the artist profile

  friend bool operator==(const Merch&, const Merch&) = default;
};

template <>
inline constexpr auto fieldsOf<Merch> = [](auto&& take) {
  return take(
      Field{"merchId", &Merch::merchId}, Field{"merchOptionId", &Merch::merchOptionId},
      Field{"category", &Merch::category}, Field{"subCategory", &Merch::subCategory}, Field{"name", &Merch::name},
      Field{"totalCost", &Merch::totalCost}, Field{"pricePerUnit", &Merch::pricePerUnit},
      Field{"salePricePerUnit", &Merch::salePricePerUnit}, Field{"totalCostPerUnit", &Merch::totalCostPerUnit},
      Field{"startingInventory", &Merch::startingInventory}, Field{"remainingInventory", &Merch::remainingInventory},
      Field{"totalUnitsSold", &Merch::totalUnitsSold}, Field{"limitedEdition", &Merch::limitedEdition},
      Field{"totalRevenue", &Merch::totalRevenue}, Field{"songList", &Merch::songList},
      Field{"popularity", &Merch::popularity}, Field{"imageString", &Merch::imageString},
      Field{"yearLaunched", &Merch::yearLaunched}, Field{"weekLaunched", &Merch::weekLaunched},
      Field{"weekReordered", &Merch::weekReordered}, Field{"weeksToManufacture", &Merch::weeksToManufacture},
      Field{"weeksToShip", &Merch::weeksToShip}, Field{"transactionFees", &Merch::transactionFees},
      Field{"isRetired", &Merch::isRetired}, Field{"reorderCount", &Merch::reorderCount},
      Field{"energyCost", &Merch::energyCost}, Field{"minutesToSellOut", &Merch::minutesToSellOut},
      Field{"artistPercentage", &Merch::artistPercentage}, Field{"showOnSpotify", &Merch::showOnSpotify});
};

/// What one product sold in one week.
struct MerchWeeklySales {
  int64_t merchId = 0;
  std::string merchName;
  int64_t unitsSold = 0;
  double merchGross = 0;
  double merchTransactionFees = 0;
  int64_t weekNumber = 0;
  int64_t weekNumberForTracking = 0;
  int64_t yearNumber = 0;
  int64_t onTour = 0;

  friend bool operator==(const MerchWeeklySales&, const MerchWeeklySales&) = default;
};

template <>
inline constexpr auto fieldsOf<MerchWeeklySales> = [](auto&& take) {
  return take(Field{"merchId", &MerchWeeklySales::merchId}, Field{"merchName", &MerchWeeklySales::merchName},
              Field{"unitsSold", &MerchWeeklySales::unitsSold}, Field{"merchGross", &MerchWeeklySales::merchGross},
              Field{"merchTransactionFees", &MerchWeeklySales::merchTransactionFees},
              Field{"weekNumber", &MerchWeeklySales::weekNumber},
              Field{"weekNumberForTracking", &MerchWeeklySales::weekNumberForTracking},
              Field{"yearNumber", &MerchWeeklySales::yearNumber}, Field{"onTour", &MerchWeeklySales::onTour});
};

template <>
inline constexpr int64_t MerchWeeklySales::*historyKeyOf<MerchWeeklySales> = &MerchWeeklySales::merchId;

}  // namespace backbeat
