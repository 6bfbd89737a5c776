// What the device offers beyond the game: leaderboards, the request for a rating, and a shop. Only what the shop
// answers changes anything, and that comes as an event of its own (shell/session.h).
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/score_table.h"

namespace backbeat {

/// A pack as the device's shop has it.
struct PackOffer {
  std::string product;
  std::string price;  ///< in the shop's words: "Free", "$1.99"
  bool free = false;  ///< no money is asked, so the game itself sets a measure
};

/// What the shop says of a purchase: at once or launches later, once or again and again.
struct PurchaseAnswer {
  enum class Result {
    done,
    refused,  ///< by the player, or by whoever pays
    failed,   ///< the shop could not be reached
  } result = Result::done;
  std::string product;
  std::string transaction;  ///< the shop's own name for this purchase, given to no other; may be "" unless it is done
  bool free = false;        ///< no money was asked
};

class Platform {
 public:
  virtual ~Platform() = default;
  virtual void submitScore(const Life& life, const Score& score) = 0;
  /// What the lives played on this device came to, as far as it keeps that.
  virtual std::span<const LifeScores> scoredLives() const { return {}; }
  virtual void requestReview() = 0;

  /// What the shop sells here; nothing on a device without one.
  virtual std::vector<PackOffer> packOffers() const { return {}; }
  /// Begins a purchase, whose answer comes later.
  virtual void purchase(std::string_view) {}
  /// What was bought stands in the save: the shop may forget the purchase. Until then it repeats its answer at each
  /// launch.
  virtual void finishPurchase(std::string_view) {}
};

/// A device without any of it.
class QuietPlatform final : public Platform {
 public:
  void submitScore(const Life&, const Score&) override {}
  void requestReview() override {}
};

}  // namespace backbeat
