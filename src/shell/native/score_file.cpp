#include "shell/native/score_file.h"

#include "shell/native/file_places.h"

namespace backbeat {

namespace {

constexpr size_t largestTable = size_t{1} << 20;

}  // namespace

ScoreFile::ScoreFile(const std::string& save) : path_(save + ".scores") { hold(readFile(path_, largestTable).bytes); }

void ScoreFile::submitScore(const Life& life, const Score& score) {
  ScoreKeeper::submitScore(life, score);
  const std::string changed = takeChanges();
  if (!changed.empty()) writeWhole(path_, changed);
}

}  // namespace backbeat
