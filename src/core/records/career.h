// Records of the career lists: how each looks in memory, and the table that says how it is stored.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/fields.h"

namespace backbeat {

/// A standing weekly income or expense: it counts at each settlement until removed.
struct WeeklyLineItem {
  std::string title;  ///< as the report shows it
  double amount = 0;  ///< dollars a week
  int64_t year = 0;
  bool isExpense = false;
  int64_t typeOfExpense = 0;  ///< what the entry is, by ranges: see career/ledger.h
  int64_t energyBoost = 0;    ///< energy, or virality for fashion, that the choice brings

  friend bool operator==(const WeeklyLineItem&, const WeeklyLineItem&) = default;
};

template <>
inline constexpr auto fieldsOf<WeeklyLineItem> = [](auto&& take) {
  return take(Field{"title", &WeeklyLineItem::title}, Field{"amount", &WeeklyLineItem::amount},
              Field{"year", &WeeklyLineItem::year}, Field{"isExpense", &WeeklyLineItem::isExpense},
              Field{"typeOfExpense", &WeeklyLineItem::typeOfExpense},
              Field{"energyBoost", &WeeklyLineItem::energyBoost});
};

/// The running deal with a record label.
struct ContractLabel {
  int64_t contractId = 0;  ///< always 0
  std::string recordLabel;
  double initialCash = 0;  ///< the advance, dollars
  int64_t numberOfEP = 0;
  int64_t numberOfLP = 0;
  int64_t numberOfSongs = 0;
  double labelPercentageRate = 0;  ///< the label's share of revenue, 0 to 1
  double labelStreamingRate = 0;   ///< dollars a stream
  double marketingScore = 0;
  double viralityScore = 0;
  int64_t studioScore = 0;
  int64_t contractStartWeek = 0;  ///< absolute week
  int64_t contractEndWeek = 0;    ///< absolute week
  int64_t epReleased = 0;
  int64_t lpReleased = 0;
  int64_t songsReleased = 0;
  double albumPricing = 0;
  double featureDiscounts = 0;  ///< factor on the price of a guest
  double tourTicketCost = 0;    ///< dollars a seat
  int64_t minProductionRating = 0;
  int64_t minListens = 0;

  friend bool operator==(const ContractLabel&, const ContractLabel&) = default;
};

template <>
inline constexpr auto fieldsOf<ContractLabel> = [](auto&& take) {
  return take(
      Field{"contractId", &ContractLabel::contractId}, Field{"recordLabel", &ContractLabel::recordLabel},
      Field{"initialCash", &ContractLabel::initialCash}, Field{"numberOfEP", &ContractLabel::numberOfEP},
      Field{"numberOfLP", &ContractLabel::numberOfLP}, Field{"numberOfSongs", &ContractLabel::numberOfSongs},
      Field{"labelPercentageRate", &ContractLabel::labelPercentageRate},
      Field{"labelStreamingRate", &ContractLabel::labelStreamingRate},
      Field{"marketingScore", &ContractLabel::marketingScore}, Field{"viralityScore", &ContractLabel::viralityScore},
      Field{"studioScore", &ContractLabel::studioScore}, Field{"contractStartWeek", &ContractLabel::contractStartWeek},
      Field{"contractEndWeek", &ContractLabel::contractEndWeek}, Field{"epReleased", &ContractLabel::epReleased},
      Field{"lpReleased", &ContractLabel::lpReleased}, Field{"songsReleased", &ContractLabel::songsReleased},
      Field{"albumPricing", &ContractLabel::albumPricing}, Field{"featureDiscounts", &ContractLabel::featureDiscounts},
      Field{"tourTicketCost", &ContractLabel::tourTicketCost},
      Field{"minProductionRating", &ContractLabel::minProductionRating},
      Field{"minListens", &ContractLabel::minListens});
};

}  // namespace backbeat
