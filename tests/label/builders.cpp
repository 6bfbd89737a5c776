#include "label/builders.h"

#include "label/departments.h"
#include "label/hiring.h"

namespace backbeat {

void foundLabel(GameState& state) {
  state.isLabelLaunched = 1;
  state.openLabelEnergyCost = 30;
  state.myLabelName = "Kite House";
  state.myLabelSlogan = "Records worth flying for";
  state.myLabelLogo = "labelOption1.png";
}

int64_t addEmployee(GameState& state, int64_t department, int64_t rating) {
  Employee employee;
  employee.employeeId = state.employeeId += 1;
  employee.employeeSalary = 60'000;
  employee.employeeDepartmentCode = department;
  employee.employeeImage = "staff" + std::to_string(employee.employeeId % staffPortraits + 1) + ".png";
  employee.employeeOriginalRating = employee.employeeRating = rating;
  employee.employeeEnergy = employee.employeeMorale = 75;
  employee.employeeBurnRate = 6;
  WeeklyLineItem salary;
  salary.title = departments[static_cast<size_t>(department)].name;
  salary.amount = static_cast<double>(weeklyPay(employee.employeeSalary));
  salary.year = state.yearNumber;
  salary.isExpense = true;
  salary.typeOfExpense = employee.employeeId;
  state.saveAllEmployeeList.append(std::move(employee));
  state.saveAllWeeklyLineItems.append(std::move(salary));
  return state.employeeId;
}

int64_t addSignedArtist(GameState& state, const std::string& name, int64_t level) {
  SignedArtist artist;
  artist.name = name;
  artist.artistId = state.signedArtistId += 1;
  artist.charisma = artist.rhythm = artist.songwriting = artist.virality = artist.vocals = level;
  artist.originalCharisma = artist.originalRhythm = artist.originalSongwriting = level;
  artist.originalVirality = artist.originalVocals = artist.originalRating = level;
  artist.talent = artist.originalTalent = 50;
  artist.yearSigned = state.yearNumber;
  artist.weekSigned = state.weekNumberForTracking;
  artist.weekEnd = state.weekNumberForTracking + 104;
  artist.labelRevenuePercentage = 0.8;
  artist.signingBonus = 200'000;
  artist.weeksToCompleteAlbum = 40;
  artist.happiness = 90;
  artist.monthlyListeners = artist.originalMonthlyListeners = 20'000 * level;
  artist.underContract = true;
  artist.totalLifetimeCost = 200'000;
  state.saveAllSignedArtistList.append(std::move(artist));
  return state.signedArtistId;
}

}  // namespace backbeat
