#include "play/errands.h"

namespace backbeat {
namespace {

constexpr int64_t wait = 60;  // weeks: somebody answers by chance

std::vector<Wish> then(std::vector<Wish> wishes, std::initializer_list<Wish> further) {
  wishes.insert(wishes.end(), further);
  return wishes;
}
std::vector<Wish> app(std::initializer_list<Wish> further) { return then({{"Life"}, {"goToFXYDating"}}, further); }
std::vector<Wish> home(std::initializer_list<Wish> further) {
  return then({{"Life"}, {"goToRelationshipHome"}}, further);
}

std::vector<Wish> child(const char* name, std::initializer_list<Wish> further) {
  return then({{"Life"}, {"goToChildList"}, {name}}, further);
}

const RoomErrands errands({
    {"like, match and write",
     {"single"},
     app({{"seekingManOrWoman", "1"},
          {"goToFXYMatching"},
          {"heartButton"},
          {"messageButton"},
          {"♥️ Hey, You ♥️"}})},
    {"match and swipe on",
     {"single"},
     app({{"goToFXYMatching"}, {"starButton"}, {"keepSwipingButton"}, {"xbutton", "swipe"}})},
    {"hear a yes",
     {"single"},
     app({{"goToFxyMatchList"}, {"Theo"}, {"askOutButton"}, {"♥️ It's Official ♥️"}})},
    {"hear a no", {"single"}, app({{"goToFxyMatchList"}, {"Ada"}, {"askOutButton"}, {"❌ Yikes... ❌"}})},
    {"be told whom one loves", {"dating"}, app({{"goToFxyMatchList"}, {"Theo"}, {"❤️ It's Official ❤️"}})},
    {"get away with it", {"dating"}, app({{"goToFxyMatchList"}, {"Ada"}, {"askOutButton"}}), wait},
    {"be caught", {"dating"}, app({{"goToFxyMatchList"}, {"Ada"}, {"😬 Uh Oh 😬"}}), 6},
    {"spend time together", {"in love"}, home({{"qualityTime"}, {"❤️ Quality Time ❤️"}})},
    {"have no cash for a date", {"dating"}, home({{"qualityTime"}, {"💵 Not Enough 💵"}}), wait},
    {"praise", {"dating"}, home({{"compliment"}, {"❤️ Theo ❤️"}})},
    {"sing", {"dating"}, home({{"serenade"}, {"🎶 Serenade 🎶"}})},
    {"ask for money", {"dating"}, home({{"askForMoney"}, {"💰 Cash Money 💰"}})},
    {"be too tired for love", {"lukewarm"}, home({{"qualityTime"}, {"⚡️ Not Enough Energy ⚡️"}})},
    {"propose too early", {"dating"}, home({{"mainAction"}, {"⏳ Needs More Time ⏳"}})},
    {"propose without enough love", {"lukewarm"}, home({{"mainAction"}, {"❤️ Needs Work ❤️"}})},
    {"get engaged", {"in love"}, home({{"mainAction"}, {"ring:6"}, {"💍 Engaged 💍"}})},
    {"marry with a prenup",
     {"engaged"},
     home({{"mainAction"}, {"✍️ Prenup? ✍️"}, {"mainAction"}, {"Sign Prenup"}, {"💒 Just Married 💒"}})},
    {"marry without a prenup", {"engaged"}, home({{"mainAction"}, {"No Prenup"}, {"💒 Just Married 💒"}})},
    {"part", {"dating", "engaged"}, home({{"breakup"}, {"Break Up"}})},
    {"part after kind words", {"dating"}, home({{"compliment"}, {"breakup"}, {"Break Up"}})},
    {"part after more of them", {"dating"}, home({{"compliment"}, {"compliment"}, {"breakup"}, {"Break Up"}})},
    {"part kindly",
     {"dating"},
     home({{"compliment"},
           {"compliment"},
           {"compliment"},
           {"compliment"},
           {"compliment"},
           {"breakup"},
           {"Break Up"},
           {"💔 Moving On 💔"}})},
    {"part after a song", {"in love"}, home({{"serenade"}, {"breakup"}, {"Break Up"}})},
    {"part after two songs", {"in love"}, home({{"serenade"}, {"serenade"}, {"breakup"}, {"Break Up"}})},
    {"part after a song and kind words", {"in love"}, home({{"serenade"}, {"compliment"}, {"breakup"}, {"Break Up"}})},
    {"divorce", {"married", "married with a prenup"}, home({{"breakup"}, {"Divorce"}, {"💔 Ready to Move On 💔"}})},
    {"expect a child", {"married"}, home({{"mainAction"}, {"🎉 Pregnancy Test 🎉"}}), wait},
    {"wait for a child", {"married"}, home({{"mainAction"}, {"Pregnancy Test"}}), wait},
    {"ask for a child at the wrong time", {"golden wedding"}, home({{"mainAction"}, {"Rejected"}}), 6 * wait},
    {"be left", {"forgotten"}, {{"MARA VOSS!🤬"}}, 2},
    {"be divorced", {"married with a prenup"}, {{"🤬 I WANT A DIVORCE!🤬"}}, 2},
    {"give another name",
     {"dating"},
     home({{"goToProfilePartner"}, {"goToEditPartnerName"}, {"name"}, {"saveButton"}})},
    {"adopt", {"old artist"}, home({{"ADOPT"}, {"adoptButton"}, {"👪 Welcome Home 👪"}}), 20},
    {"adopt too late", {"old artist"}, home({{"ADOPT"}, {"adoptButton"}, {"😃 BITTER SWEET 😭"}}), 20},
    {"adopt without cash", {"poor old artist"}, home({{"ADOPT"}, {"adoptButton"}, {"💰 Not Enough Cash 💰"}})},
    {"name a child", {"family of five"}, {{"Home"}, {"Your child has no name yet"}, {"name"}, {"saveButton"}}},
    {"name a child again", {"family of five"}, child("Otis", {{"goToEditChildName"}, {"name"}, {"saveButton"}})},
    {"praise a child", {"family of five"}, child("Otis", {{"complimentChild"}, {"❤️ Otis ❤️"}})},
    {"sing a child to sleep", {"family of five"}, child("Otis", {{"playMusic"}, {"🎵 Lullably 🎵"}})},
    {"teach a child to sing", {"family of five"}, child("Jasper", {{"playMusic"}, {"🎤 Vocals 🎤"}}), 20},
    {"teach a child the beat", {"family of five"}, child("Jasper", {{"playMusic"}, {"🎶 Rhythm 🎶"}}), 20},
    {"write with a child", {"family of five"}, child("Jasper", {{"playMusic"}, {"✍️ Songwriting ✍️"}}), 20},
    {"spend time with a child", {"family of five"}, child("Jasper", {{"qualityTimeWithChild"}, {"😃 Quality Time 😃"}})},
    {"abandon a child", {"family of five"}, child("Jasper", {{"abandonChild"}, {"Abandon"}})},
    {"see a child leave home", {"family of five"}, {{"🎓 All Grown Up 🎓"}}, 2},
    {"bury a child", {"old artist"}, {{"🕊️ In Loving Memory 🕊️"}}, 2},
    {"think about retiring", {"old artist"}, child("Teo", {{"goToTakeOverDetail"}, {"playAsButton"}, {"👑 Retire? 👑"}})},
    {"retire",
     {"old artist"},
     child("Teo", {{"goToTakeOverDetail"},
                   {"playAsButton"},
                   {"Retire"},
                   {"👑 A New Generation 👑"},
                   {"Life"},
                   {"goToFamilyDynasty"},
                   {"legacy"}})},
    {"retire in the third generation",
     {"third generation"},
     child("Otis", {{"goToTakeOverDetail"},
                    {"playAsButton"},
                    {"Retire"},
                    {"👑 A New Generation 👑"},
                    {"Life"},
                    {"goToFamilyDynasty"}})},
    {"read the family's book", {"third generation"}, {{"Life"}, {"goToFamilyDynasty"}, {"legacy"}}},
    {"look at a child in the book", {"third generation"}, {{"Life"}, {"goToFamilyDynasty"}, {"child"}}},
});

}  // namespace
}  // namespace backbeat
