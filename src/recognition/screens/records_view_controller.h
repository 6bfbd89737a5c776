// The nine records: what stands, what beats it, whose it is, and how the lives played on this device compare.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/screen.h"
#include "recognition/high_scores.h"

namespace backbeat {

class RecordsViewController final : public Screen {
 public:
  using Screen::Screen;

  Outcome appear() override;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  void describeRecord(View& view, size_t number) const;
  void describeLives(View& view) const;

  std::vector<std::optional<int64_t>> values_;  // of this life, as the screen became visible
  size_t compared_ = 0;                         // by which record the lives stand in order
};

}  // namespace backbeat
