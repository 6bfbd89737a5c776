#include "video/video_options.h"

namespace backbeat {

namespace {

struct HiredDirector {
  const char* name;
  int64_t rating;
  int64_t cost;
};

constexpr std::array<HiredDirector, 5> hiredDirectors = {{
    {"Joe Jackson", 15, 2'250},
    {"Nelina Natsoukas", 25, 7'500},
    {"Spike Honze", 35, 18'000},
    {"Sophie Fuller", 45, 36'000},
    {"David Pincher", 55, 56'250},
}};

}  // namespace

std::vector<Director> drawDirectors(Game& game) {
  const int64_t directingRatingAdjustment = game.random.integer(-5, 5);
  std::vector<Director> directors = {{"Directed by " + game.state.myArtistsName, game.state.directing, 0}};
  for (const HiredDirector& hired : hiredDirectors) {
    directors.push_back({hired.name, hired.rating + directingRatingAdjustment, hired.cost});
  }
  return directors;
}

int64_t drawPromotionScore(Random& random, const VideoPromotion& promotion) {
  return promotion.greatestScore > 0 ? random.integer(promotion.leastScore, promotion.greatestScore) : 0;
}

}  // namespace backbeat
