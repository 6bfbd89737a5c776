#include "label/weekly_label_updates.h"

namespace backbeat {

void updateEmployeesWeekly(Game& /*game*/) {
  // Nobody can be hired yet, so the list of staff is empty.
}

void updateSignedArtistsWeekly(Game& /*game*/) {
  // No artist can be signed yet, so the list is empty.
}

}  // namespace backbeat
