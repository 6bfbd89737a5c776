// A shop that answers each purchase in another mood: at once, twice, not at all, late. What was paid for it keeps until
// it hears that it is stored, and says so again at every launch.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "shell/score_keeper.h"

namespace backbeat {

class MoodyShop final : public ScoreKeeper {
 public:
  enum class Mood { prompt, twice, unreachable, late, refusing };

  /// `moods` are those of its purchases, in turn and over again.
  explicit MoodyShop(std::vector<Mood> moods = {Mood::prompt, Mood::twice, Mood::unreachable, Mood::late,
                                                Mood::refusing})
      : moods_(std::move(moods)) {}

  /// All packs, of which those for good cost money.
  std::vector<PackOffer> packOffers() const override;
  void purchase(std::string_view product) override;
  void finishPurchase(std::string_view transaction) override;

  /// What it says without being asked again.
  std::vector<PurchaseAnswer> takeAnswers() { return std::exchange(answers_, {}); }
  /// What it says when the game is opened.
  const std::vector<PurchaseAnswer>& unfinished() const { return unfinished_; }

 private:
  std::vector<Mood> moods_;
  size_t purchases_ = 0;
  std::vector<PurchaseAnswer> answers_;
  std::vector<PurchaseAnswer> unfinished_;
};

}  // namespace backbeat
