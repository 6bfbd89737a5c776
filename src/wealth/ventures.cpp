#include "wealth/ventures.h"

#include <algorithm>

#include "social/chirps.h"

namespace backbeat {

std::optional<size_t> venturePosition(const GameState& state, int64_t businessId) {
  const auto& ventures = state.saveAllVentureInvestments;
  const size_t position = ventures.find([&](const Venture& venture) { return venture.businessId == businessId; });
  return position == ventures.size() ? std::nullopt : std::optional(position);
}

std::string_view exitStatus(int64_t hasExited) {
  switch (hasExited) {
    case venture_exit::acquired: return " (ACQUIRED)";
    case venture_exit::listed: return " (IPO)";
    case venture_exit::bankrupt: return " (BANKRUPT)";
    case venture_exit::soldPrivately: return " (PRIVATE EXIT)";
    default: return "";
  }
}

double gainOn(const Venture& venture, double dollars) {
  if (venture.investmentAmount <= 0) return 0;
  return (dollars - venture.investmentAmount) / venture.investmentAmount * 100;
}

Picture markOf(const Venture& venture) { return markOf(venture.businessImage, venture.businessName); }

Picture markOf(std::string_view businessImage, std::string_view businessName) {
  return drawn(Picture::Kind::mark, businessImage.substr(0, businessImage.find('.')), businessName);
}

void chirpAs(Game& game, const Venture& venture, const std::string& message) {
  postChirpForCompany(game, account::firstCompany + venture.businessId, venture.businessName, venture.businessImage,
                      message);
}

VentureWeek& weekOf(Game& game, int64_t businessId) {
  std::vector<VentureWeek>& weeks = game.turn.ventures;
  const auto found =
      std::find_if(weeks.begin(), weeks.end(), [&](const VentureWeek& week) { return week.businessId == businessId; });
  return found == weeks.end() ? weeks.emplace_back(VentureWeek{.businessId = businessId}) : *found;
}

}  // namespace backbeat
