#include "social/screens/chirp_post.h"

#include "core/case_folding.h"
#include "core/money.h"
#include "social/chirps.h"

namespace backbeat {

namespace {

std::string count(int64_t number) { return abbreviated(static_cast<double>(number)); }

}  // namespace

std::string handleOf(const std::string& name) {
  std::string handle = "@";
  for (const char c : foldCase(name)) {
    if (c != ' ') handle += c;
  }
  return handle == "@" ? "@nobody" : handle;
}

Post postOf(const GameState& state, const Chirp& chirp, Date now) {
  return {.picture = portraitOf(state, chirp),
          .name = chirp.artistName,
          .handle = handleOf(chirp.artistName),
          .age = chirpAge(chirp, now),
          .message = chirp.message,
          .comments = count(chirp.commentCount),
          .reChirps = count(chirp.reChirpCount),
          .likes = count(chirp.likeCount)};
}

}  // namespace backbeat
