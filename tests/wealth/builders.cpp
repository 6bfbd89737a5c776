#include "wealth/builders.h"

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

}  // namespace backbeat
