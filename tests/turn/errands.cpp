#include "play/errands.h"

namespace backbeat {
namespace {

constexpr int64_t wait = 300;  // weeks: each chance comes by itself long before

Errand take(std::string_view chance, std::string_view world = "in debt") {
  return {chance, {"rich", world}, {{chance}}, wait};
}

const RoomErrands errands({
    take("Karaoke Night"),
    take("Odd Jobs"),
    take("Rental Inquiry"),
    take("Ghost Writing"),
    take("Radio Show"),
    take("Annual Checkup"),
    take("America Has Talent"),
    take("Drop Shipping"),
    take("Go Fund You", "signed"),
    take("Sell Your Beats"),
    take("TikTak"),
    take("Give Music Lesson"),
    take("Fan Meeting"),
    take("Festival Invite"),
    {"be unknown at a festival", {"new"}, {{"Festival Invite"}, {"You Weren't Selected"}}, wait},
    {"be forgotten at a festival", {"long ago"}, {{"Festival Invite"}, {"No Recent Songs"}}, wait},
    {"see where the money goes", {"working poor"}, {{"Home"}, {"goToExpenseScreen"}}},
    {"see what stays without the job", {"working poor"}, {{"Home"}, {"goToBalanceSheet"}}},
    {"say how it is", {"new", "rich"}, {{"🔥 FREE ENERGY 🔥"}}, 52},
});

}  // namespace
}  // namespace backbeat
