#include "turn/screens/net_worth_view_controller.h"

#include "turn/screens/money_figures.h"

namespace backbeat {

View NetWorthViewController::view() const {
  View view{.title = "Net Worth", .theme = Theme::bank};
  describeNetWorth(view, state());
  return view;
}

}  // namespace backbeat
