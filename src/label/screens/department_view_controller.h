// One department: its rating and bonus, and its people.
#pragma once

#include "label/departments.h"
#include "label/screens/label_screen.h"

namespace backbeat {

class DepartmentViewController final : public LabelScreen {
 public:
  /// `code` is that of a department; any other number gives a screen about none.
  DepartmentViewController(Game& game, int64_t code) : LabelScreen(game), code_(code) {}

 protected:
  Outcome press(const Action& action) override;
  void describe(View& view) const override;

 private:
  bool exists() const { return code_ >= 0 && code_ < int64_t{departmentCount}; }
  void describeStaff(View& view) const;

  int64_t code_;
};

}  // namespace backbeat
