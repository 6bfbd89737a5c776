// A night of the awards: one envelope a press, the latest on top, or all that are left at once.
#pragma once

#include <string>
#include <vector>

#include "core/screen.h"
#include "recognition/award_fields.h"

namespace backbeat {

class AwardNight : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) final;
  View view() const final;

 protected:
  /// Takes the envelopes of this year onto the stage, all of them shut.
  void layOutEnvelopes() { fields_ = fieldsOfYear(state()); }
  /// The big line of the night: "2031 Nominations".
  virtual std::string headline() const = 0;
  /// Above the fields of the genres; "" for nothing.
  virtual std::string genreHeading() const { return ""; }
  virtual void describeField(View& view, const AwardField& field) const = 0;
  /// What stands there when there are no envelopes.
  virtual std::string withoutEnvelopes() const = 0;

 private:
  std::vector<AwardField> fields_;
  size_t opened_ = 0;
};

/// One nominee: its cover and whose it is, by the name that the artist goes by today.
Row nomineeRow(const GameState& state, const AwardField& field, const AwardNominee& nominee);

}  // namespace backbeat
