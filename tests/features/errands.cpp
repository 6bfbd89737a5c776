#include "play/errands.h"

namespace backbeat {
namespace {

constexpr int64_t wait = 300;  // weeks: somebody asks by chance

const RoomErrands errands({
    {"give a verse and look at it",
     {"guest", "star"},
     {{"Feature Request"}, {"acceptButton"}, {"closeButton"}, {"Home"}, {"goToArtistProfile"}, {"verse"}},
     wait},
    {"give no verse", {"guest"}, {{"Feature Request"}, {"askStepper", "1"}, {"closeButton"}}, wait},
    {"ask for more and get it", {"guest"}, {{"Feature Request"}, {"negotiateButton"}, {"🎤 They Said Yes 🎤"}}, wait},
    {"ask for more and lose it", {"guest"}, {{"Feature Request"}, {"negotiateButton"}, {"❌ Not This Time ❌"}}, wait},
    {"ask more of the label's own",
     {"guest"},
     {{"Feature Request"}, {"negotiateButton"}, {"❌ Royalty Exception ❌"}, {"acceptButton"}},
     wait},
    {"find a verse on the chart", {"guest"}, {{"Music"}, {"goToBillboard"}, {"Neon Carousel"}}},
});

}  // namespace
}  // namespace backbeat
