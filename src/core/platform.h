// What the device offers beyond the game: leaderboards and the request for a rating. Nothing of it changes a rule.
#pragma once

#include <cstdint>
#include <string_view>

namespace backbeat {

class Platform {
 public:
  virtual ~Platform() = default;
  virtual void submitScore(std::string_view leaderboard, int64_t score) = 0;
  virtual void requestReview() = 0;
};

/// A device without either.
class QuietPlatform final : public Platform {
 public:
  void submitScore(std::string_view, int64_t) override {}
  void requestReview() override {}
};

}  // namespace backbeat
