#include "support/moody_shop.h"

#include "shell/packs.h"

namespace backbeat {

std::vector<PackOffer> MoodyShop::packOffers() const {
  std::vector<PackOffer> offers;
  for (const Pack& pack : packs) {
    const bool free = pack.permanentEnergy == 0;
    offers.push_back({std::string(pack.product), free ? "Free" : "$1.99", free});
  }
  return offers;
}

void MoodyShop::purchase(std::string_view product) {
  const Mood mood = moods_[purchases_++ % moods_.size()];
  PurchaseAnswer answer{.product = std::string(product),
                        .transaction = "purchase " + std::to_string(purchases_),
                        .free = packNamed(product)->permanentEnergy == 0};
  if (mood == Mood::unreachable) answer.result = PurchaseAnswer::Result::failed;
  if (mood == Mood::refusing) answer.result = PurchaseAnswer::Result::refused;
  if (answer.result == PurchaseAnswer::Result::done) unfinished_.push_back(answer);
  if (mood != Mood::late) answers_.push_back(answer);
  if (mood == Mood::twice) answers_.push_back(answer);
}

void MoodyShop::finishPurchase(std::string_view transaction) {
  std::erase_if(unfinished_, [&](const PurchaseAnswer& answer) { return answer.transaction == transaction; });
}

}  // namespace backbeat
