#include "play/errands.h"

namespace backbeat {
namespace {

/// Each of the week's chances comes by itself; none needs longer than this.
constexpr int64_t wait = 300;

/// Waits for a chance and takes it.
Errand take(std::string_view chance) { return {chance, {"rich", "in debt"}, {{"Home"}, {chance, "", wait}}}; }

const RoomErrands errands({
    take("Karaoke Night"),
    take("Odd Jobs"),
    take("Rental Inquiry"),
    take("Ghost Writing"),
    take("Radio Show"),
    take("Annual Checkup"),
    take("America Has Talent"),
    take("Drop Shipping"),
    take("Pitch Deck"),
    take("Go Fund You"),
    take("Sell Your Beats"),
    take("TikTak"),
    take("Give Music Lesson"),
    take("Fan Meeting"),
    take("Festival Invite"),
    {"be unknown at a festival", {"new"}, {{"Festival Invite", "", wait}, {"You Weren't Selected"}}},
    {"be forgotten at a festival", {"long ago"}, {{"Festival Invite", "", wait}, {"No Recent Songs"}}},
    {"say how it is", {"new", "rich"}, {{"🔥 FREE ENERGY 🔥", "", 52}}},
    {"make a long career lighter", {"ninety-ninth year"}, {{"Home"}, {"goToSettings"}, {"goToData"}}},
});

}  // namespace
}  // namespace backbeat
