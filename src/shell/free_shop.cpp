#include "shell/free_shop.h"

#include "shell/packs.h"

namespace backbeat {

std::vector<PackOffer> FreeShop::packOffers() const {
  std::vector<PackOffer> offers;
  for (const Pack& pack : packs) offers.push_back({std::string(pack.product), "Free", true});
  return offers;
}

PurchaseAnswer freeAnswer(std::string product, std::string transaction) {
  return {.product = std::move(product), .transaction = std::move(transaction), .free = true};
}

}  // namespace backbeat
