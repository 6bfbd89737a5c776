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
    {"be told of an achievement",
     {"end of a year"},
     {{"Life"}, {"goToFXYDating"}, {"goToFxyMatchList"}, {"Theo"}, {"askOutButton"}, {"🏆 Achievement 🏆"}}},
    {"compare lives", {"end of a year"}, {{"Home"}, {"goToRecords"}, {"compare", "1"}}},
    {"look back when the year is over", {"end of a year"}, {{"yearInReview"}, {"doneButton"}}, 1},
    {"look back on the year before",
     {"end of a year"},
     {{"Home"}, {"goToYearlyMusicStats"}, {"year", "-1"}, {"kind", "2"}, {"yearInReview"}, {"doneButton"}}},
    {"leaf through the songs of a year", {"end of a year"}, {{"Home"}, {"goToYearlyMusicStats"}, {"works", "60"}}},
    {"leaf through old nominations", {"awards decided"}, {{"Music"}, {"goToGramAwardDetail"}, {"awards", "60"}}},
});

}  // namespace
}  // namespace backbeat
