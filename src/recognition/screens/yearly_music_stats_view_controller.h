// What a year brought, kind by kind, beside the year before.
#pragma once

#include "core/screen.h"
#include "recognition/year_statistics.h"

namespace backbeat {

class YearlyMusicStatsViewController final : public Screen {
 public:
  using Screen::Screen;

  Outcome open() override;
  Outcome appear() override;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  /// Any year of this generation; another one is as good as the nearest.
  void look(int64_t year, YearKind kind);
  void describeSums(View& view) const;
  void describeWorks(View& view) const;
  Row rowOf(const YearWork& work) const;

  int64_t year_ = 0;
  YearKind kind_ = YearKind::songs;
  YearOfKind now_;     // as the screen became visible
  YearOfKind before_;  // the year before
  ListWindow window_;
};

}  // namespace backbeat
