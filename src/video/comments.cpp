#include "video/comments.h"

#include <string>
#include <utility>

#include "core/random.h"
#include "video/comment_pools.h"

namespace backbeat {

namespace {

constexpr uint64_t fewestComments = 3;
constexpr uint64_t mostComments = 8;
constexpr double wellReceived = 60;
constexpr double badlyReceived = 40;

/// Everything that may be said of a video of that rating.
std::vector<std::string_view> poolFor(double productionRating) {
  std::vector<std::string_view> pool(generalComments.begin(), generalComments.end());
  if (productionRating >= wellReceived) pool.insert(pool.end(), positiveComments.begin(), positiveComments.end());
  if (productionRating < badlyReceived) pool.insert(pool.end(), negativeComments.begin(), negativeComments.end());
  return pool;
}

/// Takes one out.
std::string_view takeFrom(std::vector<std::string_view>& pool, uint64_t hash) {
  const size_t chosen = hash % pool.size();
  std::swap(pool[chosen], pool.back());
  const std::string_view taken = pool.back();
  pool.pop_back();
  return taken;
}

}  // namespace

std::vector<VideoComment> commentsOn(const GameState& state, const MusicVideo& video) {
  const std::string key = std::to_string(video.videoId) + " " + std::to_string(state.weekNumberForTracking);
  std::vector<std::string_view> texts = poolFor(video.productionRating);
  std::vector<std::string_view> authors(commenters.begin(), commenters.end());
  const uint64_t count = fewestComments + hashOf(key) % (mostComments - fewestComments + 1);
  std::vector<VideoComment> comments;
  for (uint64_t i = 1; i <= count; ++i) {
    comments.push_back({takeFrom(authors, hashOf(key + " author", i)), takeFrom(texts, hashOf(key, i))});
  }
  return comments;
}

}  // namespace backbeat
