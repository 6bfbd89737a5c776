#include "wealth/builders.h"

#include "wealth/company_catalogue.h"
#include "wealth/garage.h"
#include "wealth/real_estate.h"

namespace backbeat {

namespace {

void addEntry(GameState& state, const char* title, double amount, int64_t code, int64_t year) {
  WeeklyLineItem entry;
  entry.title = title;
  entry.amount = amount;
  entry.year = year;
  entry.isExpense = true;
  entry.typeOfExpense = code;
  state.saveAllWeeklyLineItems.append(entry);
}

}  // namespace

void ownHome(GameState& state, int64_t propertyId, double index, int64_t year) {
  const Property& property = *propertyWithId(propertyId);
  InvestmentProperty home;
  home.propertyTitle = property.propertyTitle;
  home.propertyId = propertyId;
  home.propertyLocation = property.propertyLocation;
  home.pricePaid = property.salePrice;
  home.realEstateIndex = index;
  home.bedrooms = property.bedrooms;
  home.bathrooms = property.bathrooms;
  home.sqft = property.sqft;
  home.acres = property.acres;
  home.propertyTax = static_cast<int64_t>(property.weeklyTax());
  home.propertyType = property.propertyType;
  home.imageName = property.imageName;
  home.transactionFee = property.transactionFee;
  state.saveAllInvestmentPropertyList.append(home);
  addEntry(state, "Property Tax", property.weeklyTax(), propertyTaxCode(propertyId), year);
}

void ownVehicle(GameState& state, int64_t id, int64_t year) {
  const TransportationOption& option = *vehicleWithId(id);
  Transportation vehicle;
  vehicle.title = option.title;
  vehicle.id = id;
  vehicle.pricePaid = option.salePrice;
  vehicle.economyIndex = 1;
  vehicle.transportationType = option.transportationType;
  vehicle.weeklyCost = option.weeklyInsuranceCost;
  vehicle.imageName = option.imageName();
  vehicle.energyBonus = option.energyBonus;
  vehicle.yearPurchased = year;
  state.saveAllTransportationOwnedList.append(vehicle);
  state.totalEnergyMax += option.energyBonus;
  addEntry(state, "Transportation Insurance", option.weeklyInsuranceCost, insuranceCode(id), year);
}

Venture stakeIn(const GameState& state, int64_t businessId, int64_t round) {
  const Company& company = *companyWithId(businessId);
  Venture venture;
  venture.businessId = businessId;
  venture.businessName = company.businessName;
  venture.businessTagline = company.businessTagline;
  venture.businessDescription = company.businessDescription;
  venture.businessImage = company.businessImage;
  venture.currentFundingRound = round;
  venture.lastValuation = company.initialValuation;
  venture.totalOutstandingShares = company.totalShares;
  venture.totalSharesOwned = company.totalShares / 10;
  venture.investmentAmount = static_cast<double>(company.initialValuation) / 10;
  venture.percentageRemaining = 85;
  venture.fundingRoundHistory = {company.initialValuation * 15 / 100};
  venture.shareholderName = {"Walt & Sons"};
  venture.shareholderPercentage = {5};
  for (int64_t later = 1; later <= round; ++later) {  // each issues a quarter of the shares anew
    venture.totalOutstandingShares += venture.totalOutstandingShares / 4;
    venture.percentageRemaining = venture.percentageRemaining * 4 / 5;
    for (int64_t& percent : venture.shareholderPercentage) percent = percent * 4 / 5;
    venture.fundingRoundHistory.push_back(venture.lastValuation / 4);
    venture.shareholderName.emplace_back("Theel Investments");
    venture.shareholderPercentage.push_back(20);
    venture.lastValuation += venture.lastValuation / 2;
  }
  venture.percentageOwned = 100 * venture.totalSharesOwned / venture.totalOutstandingShares;
  venture.weekSinceUpdate = state.weekNumberForTracking - 30;
  venture.timeUntilNextRaise = round < 3 ? 1 : -1;
  venture.news = {venture.businessName + ": " + venture.shareholderName.back() + " entered a 20% position for $1.0M"};
  return venture;
}

}  // namespace backbeat
