// Records of the wealth lists: how each looks in memory, and the table that says how it is stored.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/fields.h"

namespace backbeat {

/// One house owned.
struct InvestmentProperty {
  std::string propertyTitle;
  int64_t propertyId = 0;
  std::string propertyLocation;
  double pricePaid = 0;
  double realEstateIndex = 0;
  int64_t bedrooms = 0;
  int64_t bathrooms = 0;
  int64_t sqft = 0;
  double acres = 0;
  int64_t propertyTax = 0;
  int64_t monthlyRent = 0;
  int64_t propertyType = 0;
  std::string imageName;
  double transactionFee = 0;

  friend bool operator==(const InvestmentProperty&, const InvestmentProperty&) = default;
};

template <>
inline constexpr auto fieldsOf<InvestmentProperty> = [](auto&& take) {
  return take(
      Field{"propertyTitle", &InvestmentProperty::propertyTitle}, Field{"propertyId", &InvestmentProperty::propertyId},
      Field{"propertyLocation", &InvestmentProperty::propertyLocation},
      Field{"pricePaid", &InvestmentProperty::pricePaid},
      Field{"realEstateIndex", &InvestmentProperty::realEstateIndex}, Field{"bedrooms", &InvestmentProperty::bedrooms},
      Field{"bathrooms", &InvestmentProperty::bathrooms}, Field{"sqft", &InvestmentProperty::sqft},
      Field{"acres", &InvestmentProperty::acres}, Field{"propertyTax", &InvestmentProperty::propertyTax},
      Field{"monthlyRent", &InvestmentProperty::monthlyRent}, Field{"propertyType", &InvestmentProperty::propertyType},
      Field{"imageName", &InvestmentProperty::imageName}, Field{"transactionFee", &InvestmentProperty::transactionFee});
};

/// One vehicle owned.
struct Transportation {
  std::string title;
  int64_t id = 0;
  double pricePaid = 0;
  double economyIndex = 0;
  int64_t transportationType = 0;
  double weeklyCost = 0;
  std::string imageName;
  int64_t energyBonus = 0;
  int64_t yearPurchased = 0;

  friend bool operator==(const Transportation&, const Transportation&) = default;
};

template <>
inline constexpr auto fieldsOf<Transportation> = [](auto&& take) {
  return take(Field{"title", &Transportation::title}, Field{"id", &Transportation::id},
              Field{"pricePaid", &Transportation::pricePaid}, Field{"economyIndex", &Transportation::economyIndex},
              Field{"transportationType", &Transportation::transportationType},
              Field{"weeklyCost", &Transportation::weeklyCost}, Field{"imageName", &Transportation::imageName},
              Field{"energyBonus", &Transportation::energyBonus},
              Field{"yearPurchased", &Transportation::yearPurchased});
};

/// One startup the artist has a stake in.
struct Venture {
  int64_t businessId = 0;
  std::string businessName;
  std::string businessTagline;
  std::string businessDescription;
  std::string businessImage;
  int64_t currentFundingRound = 0;
  std::vector<int64_t> fundingRoundHistory;
  std::vector<std::string> shareholderName;
  std::vector<int64_t> shareholderPercentage;
  int64_t percentageOwned = 0;
  int64_t percentageRemaining = 0;
  int64_t lastValuation = 0;
  int64_t totalOutstandingShares = 0;
  int64_t totalSharesOwned = 0;
  double investmentAmount = 0;
  int64_t hasExited = 0;
  int64_t weekSinceUpdate = 0;
  std::vector<std::string> news;
  double publicSharePrice = 0;
  int64_t timeUntilNextRaise = 0;

  friend bool operator==(const Venture&, const Venture&) = default;
};

template <>
inline constexpr auto fieldsOf<Venture> = [](auto&& take) {
  return take(
      Field{"businessId", &Venture::businessId}, Field{"businessName", &Venture::businessName},
      Field{"businessTagline", &Venture::businessTagline}, Field{"businessDescription", &Venture::businessDescription},
      Field{"businessImage", &Venture::businessImage}, Field{"currentFundingRound", &Venture::currentFundingRound},
      Field{"fundingRoundHistory", &Venture::fundingRoundHistory}, Field{"shareholderName", &Venture::shareholderName},
      Field{"shareholderPercentage", &Venture::shareholderPercentage},
      Field{"percentageOwned", &Venture::percentageOwned}, Field{"percentageRemaining", &Venture::percentageRemaining},
      Field{"lastValuation", &Venture::lastValuation},
      Field{"totalOutstandingShares", &Venture::totalOutstandingShares},
      Field{"totalSharesOwned", &Venture::totalSharesOwned}, Field{"investmentAmount", &Venture::investmentAmount},
      Field{"hasExited", &Venture::hasExited}, Field{"weekSinceUpdate", &Venture::weekSinceUpdate},
      Field{"news", &Venture::news}, Field{"publicSharePrice", &Venture::publicSharePrice},
      Field{"timeUntilNextRaise", &Venture::timeUntilNextRaise});
};

}  // namespace backbeat
