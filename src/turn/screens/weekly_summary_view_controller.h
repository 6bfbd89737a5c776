// The weekly report. Opening it is the moment at which a week's cash is settled.
#pragma once

#include "core/news.h"
#include "core/screen.h"
#include "music/milestones.h"
#include "recognition/music_awards.h"
#include "turn/weekly_events.h"
#include "turn/weekly_report.h"

namespace backbeat {

class WeeklySummaryViewController final : public Screen {
 public:
  using Screen::Screen;

  /// The opening chain, one step that nothing interrupts: gather, settle, valuations, events, exits, staff and artists,
  /// awards. A report that was open when the last launch ended is told again, as it was, without its chances.
  Outcome open() override;
  /// The chain of the first appearance, which runs exactly once: the rating offer, the contract's deadline, the
  /// relationship.
  Outcome appear() override;
  Outcome act(const Action& action) override;
  View view() const override;

  /// In week 31, until it was answered once: 250 energy for an opinion.
  Outcome offerEnergyForRating() const;
  /// Any answer gives the energy, over the ceiling too; only the first one asks for the platform's rating. Nothing
  /// happens when the offer does not stand.
  Outcome answerRatingOffer(int64_t answer);
  /// The week's side gigs; each button is good for one press and hides whatever comes of it.
  Outcome eventButton1() { return pressEventButton(game_, events_, events_.buttonEvent1); }
  Outcome eventButton2() { return pressEventButton(game_, events_, events_.buttonEvent2); }
  Outcome eventButton3() { return pressEventButton(game_, events_, events_.buttonEvent3); }
  /// The way to the awards in their two weeks; good for one press.
  Outcome awardButton();
  /// The only way out. A year's news of the children comes with it.
  Outcome closeButton();

  const WeeklyReport& report() const { return report_; }

 private:
  Outcome openAgain();
  void tellWeek();
  bool ratingOfferStands() const;
  void describeAwards(View& view) const;
  void describeYear(View& view) const;
  void describeShowChirp(View& view) const;
  void describeMusic(View& view) const;
  void describeNews(View& view) const;
  void describeEvents(View& view) const;

  WeeklyReport report_;
  std::vector<Milestone> milestones_;  // greatest first
  std::vector<News> news_;             // as it stood when the report appeared
  std::string story_;                  // for a week without a headline
  WeeklyEvents events_;
  AwardShow awardShow_ = AwardShow::none;
  bool isToldAgain_ = false;  ///< by another launch than opened it, and not shown by this one yet
};

}  // namespace backbeat
