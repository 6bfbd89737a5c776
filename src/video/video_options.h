// The choices behind a music video: its style, who directs it, how it is promoted.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/game.h"

namespace backbeat {

struct VideoStyle {
  const char* name;
  const char* effect;       ///< as told
  double costOfRating = 0;  ///< dollars for each point of the director's rating
  double viewBonus = 1.0;   ///< multiplier on all of its views
  double extraProductionRating = 0;
  double extraVirality = 0;
  double extraMarketing = 0;
};

inline constexpr std::array<VideoStyle, 6> videoStyles = {{
    {.name = "Animated", .effect = "+25% Views", .costOfRating = 100, .viewBonus = 1.25},
    {.name = "Cinematic", .effect = "+15 Production Rating", .costOfRating = 900, .extraProductionRating = 15},
    {.name = "Concept", .effect = "+6 Virality", .costOfRating = 300, .extraVirality = 6},
    {.name = "Lyric", .effect = "Free & -50% Views", .viewBonus = 0.5},
    {.name = "Narrative", .effect = "+10 Marketing", .costOfRating = 500, .extraMarketing = 10},
    {.name = "Performance", .effect = "+50% Views", .costOfRating = 200, .viewBonus = 1.5},
}};

struct VideoPromotion {
  const char* name;
  int64_t cost = 0;  ///< dollars
  int64_t leastScore = 0;
  int64_t greatestScore = 0;
};

inline constexpr std::array<VideoPromotion, 6> videoPromotions = {{
    {"None", 0, 0, 0},
    {"Local", 250, 1, 10},
    {"State", 2'250, 10, 25},
    {"Regional", 18'000, 25, 40},
    {"National", 85'000, 40, 80},
    {"Global", 450'000, 80, 135},
}};

struct Director {
  std::string name;
  int64_t rating = 0;  ///< as shown and used: the table's, with the visit's adjustment
  int64_t cost = 0;    ///< dollars
};

/// Six directors, the artist first. One adjustment from -5 to 5 is drawn, for all who can be hired.
std::vector<Director> drawDirectors(Game& game);

/// Draws what a promotion brings; none brings nothing and draws nothing.
int64_t drawPromotionScore(Random& random, const VideoPromotion& promotion);

}  // namespace backbeat
