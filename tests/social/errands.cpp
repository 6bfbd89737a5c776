#include "play/errands.h"

namespace backbeat {
namespace {

const RoomErrands errands({
    {"chirp nothing",
     {"new", "rich"},
     {{"Social"}, {"goToCreateTwitterMessage"}, {"chirpButton"}, {"🐥 Chirp Needed 🐥"}}},
    {"chirp when tired",
     {"in debt", "edges"},
     {{"Social"}, {"goToCreateTwitterMessage"}, {"message"}, {"chirpButton"}, {"⚡️ Not Enough Energy ⚡️"}}},
    {"announce a song twice",
     {"rich", "signed", "mid-career"},
     {{"Music"},
      {"Second Wind, Track 1"},
      {"announceButton"},
      {"message"},
      {"chirpButton"},
      {"announceButton"},
      {"🐥 Announcement Made 🐥"}}},
    {"read old chirps",
     {"talkative"},
     {{"Social"}, {"unpin"}, {"Older chirps"}, {"Newer chirps"}, {"pin"}, {"delete"}}},
});

}  // namespace
}  // namespace backbeat
