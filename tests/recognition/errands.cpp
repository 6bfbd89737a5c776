#include "play/errands.h"

namespace backbeat {
namespace {

const RoomErrands errands({
    {"open the nominations",
     {"awards open"},
     {{"awardButton"}, {"nextEnvelope"}, {"nextEnvelope"}, {"allEnvelopes"}, {"doneButton"}},
     1},
    {"open the nominations late",
     {"awards passed by"},
     {{"Home"}, {"goToMusicAward"}, {"allEnvelopes"}, {"doneButton"}}},
    {"hear who won", {"awards nominated"}, {{"awardButton"}, {"nextEnvelope"}, {"allEnvelopes"}, {"doneButton"}}, 1},
    {"hear that nobody won", {"awards never opened"}, {{"awardButton"}, {"doneButton"}}, 1},
    {"go to the awards from home",
     {"awards night"},
     {{"Home"}, {"goToGrammyAwardAnnouncement"}, {"nextEnvelope"}, {"allEnvelopes"}, {"doneButton"}}},
    {"leaf through old nominations", {"awards decided"}, {{"Music"}, {"goToGramAwardDetail"}, {"awards", "60"}}},
});

}  // namespace
}  // namespace backbeat
