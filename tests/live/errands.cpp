#include "play/errands.h"
#include "music/builders.h"

namespace backbeat {
namespace {

constexpr int64_t wait = 300;  // weeks: an invitation comes by itself long before

/// Accepts an invitation with more songs than a set has room for.
Errand sixteenSongs() {
  Errand errand{
      "play too long a set", {"festival season"}, {{"Festival Invite"}, {"acceptFestival"}, {"🎼 Set List 🎼"}}, wait};
  errand.wishes.push_back({"goToChooseSetList"});
  static const std::vector<std::string> presses = [] {
    std::vector<std::string> all;
    for (int64_t i = 0; i < 16; ++i) all.push_back("song:" + std::to_string(firstWorldSong + 3 * i));
    return all;
  }();
  for (const std::string& press : presses) errand.wishes.push_back({press});
  for (const char* press : {"⚡️ Song Limit Reached ⚡️", "closeButton", "acceptFestival"})
    errand.wishes.push_back({press});
  return errand;
}

const RoomErrands errands({
    {"tour without a label", {"new", "rich"}, {{"Music"}, {"goToTour"}, {"✍️ Get Signed First! ✍️"}}},
    {"plan a tour and set out",
     {"festival season"},
     {{"Music"},
      {"goToTour"},
      {"title", "loud and far"},
      {"dice"},
      {"venue:25"},
      {"showsPerVenue", "1"},
      {"venue:24"},
      {"venue:25"},
      {"startTouringButton"},
      {"Business"},
      {"goToTour"}}},
    {"plan a tour without a title",
     {"festival season"},
     {{"Business"}, {"goToTour"}, {"title", " "}, {"🔥 Enter a Title 🔥"}}},
    {"plan more than anybody can play",
     {"festival season"},
     {{"Music"},
      {"goToTour"},
      {"startTouringButton"},
      {"showsPerVenue", "1"},
      {"showsPerVenue", "1"},
      {"showsPerVenue", "1"},
      {"showsPerVenue", "1"},
      {"showsPerVenue", "1"},
      {"showsPerVenue", "1"},
      {"showsPerVenue", "-1"},
      {"showsPerVenue", "1"},
      {"venue:0"},
      {"startTouringButton"},
      {"⚡️Not Enough Energy⚡️"}}},
    {"leave a label in mid-tour", {"on tour"}, {{"Home"}, {"labelContract"}, {"endContract"}, {"Currently on Tour"}}},
    {"rest after a tour", {"on tour"}, {{"Music"}, {"goToTour"}, {"On Break!"}}, 6},
    {"turn a festival down", {"festival season", "star"}, {{"Festival Invite"}, {"declineButton"}}, wait},
    {"leaf through all songs for a festival",
     {"end of a year"},
     {{"Festival Invite"}, {"goToChooseSetList"}, {"songs"}},
     wait},
    {"look at an old bill", {"festival season"}, {{"Music"}, {"goToFestivalArchive"}, {"festival:1"}}},
    sixteenSongs(),
});

}  // namespace
}  // namespace backbeat
