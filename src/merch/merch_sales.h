// The weekly sales of merchandise.
#pragma once

#include "core/game.h"

namespace backbeat {

/// Step 9 of the turn. Without a product nothing is drawn. Draws what share of the listeners buys this week, and sells
/// every product that is on the shelf, in the order of the list; a week leaves a row for each, also for none sold.
/// Where the plan of product and shop allows it, the seats of the week's show add to the demand, and what one product
/// added stays for all after it: intended. So are that a product that runs out under the dearest plan is sold for more,
/// and that the net reaches the cash here and once more with the week's account.
void sellWeeklyMerch(Game& game);

}  // namespace backbeat
