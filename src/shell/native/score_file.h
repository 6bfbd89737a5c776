// This computer: its shop is free, and the scores of the lives played on it stand in a small text beside the save.
#pragma once

#include <string>

#include "shell/free_shop.h"

namespace backbeat {

class ScoreFile final : public FreeShop {
 public:
  /// Those of the save at `save`; none where nothing can be read.
  explicit ScoreFile(const std::string& save);

  /// Writes each change at once. What cannot be written is tried again with the next: no career depends on it.
  void submitScore(const Life& life, const Score& score) override;

 private:
  std::string path_;
};

}  // namespace backbeat
