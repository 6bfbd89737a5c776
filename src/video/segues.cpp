#include "video/segues.h"

#include "core/money.h"
#include "music/covers.h"
#include "video/news.h"
#include "video/screens/cameo_view_controller.h"
#include "video/screens/create_a_music_video_view_controller.h"
#include "video/screens/you_description_view_controller.h"
#include "video/screens/you_edit_description_view_controller.h"
#include "video/screens/you_video_detail_description_page_view_controller.h"
#include "video/screens/you_video_detail_page_view_controller.h"
#include "video/screens/you_video_view_controller.h"

namespace backbeat {

namespace {

using enum Segue::Presentation;

constexpr Segue segues[] = {
    {"goToCreateMusicVideo", "CreateAMusicVideoViewController", push,
     makeScreenWithId<CreateAMusicVideoViewController>},
    {"goToCameos", "CameoViewController", push, makeScreen<CameoViewController>},
    {"goToYouVideo", "YouVideoViewController", push, makeScreen<YouVideoViewController>},
    {"goToYouViewVideoDetail", "YouVideoDetailPageViewController", push,
     makeScreenWithId<YouVideoDetailPageViewController>},
    {"goToYouVideoDetailDescription", "YouVideoDetailDescriptionPageViewController", push,
     makeScreenWithId<YouVideoDetailDescriptionPageViewController>},
    {"goToYouDescription", "YouDescriptionViewController", push, makeScreen<YouDescriptionViewController>},
    {"goToYouEditDescription", "YouEditDescriptionViewController", push, makeScreen<YouEditDescriptionViewController>},
};

void describeChannel(const Game& game, Row& row) {
  row.subtitle = counted(static_cast<int64_t>(game.state.saveAllMusicVideoList.size()), "music video");
  row.value = abbreviated(static_cast<double>(game.state.youVideoSubscriberCount));
  row.note = "subscribers";
}

constexpr MenuLine menu[] = {
    {.tab = socialTab,
     .section = "Your channel",
     .order = 120,
     .icon = "video",
     .title = "YouVideo",
     .segue = "goToYouVideo",
     .describe = describeChannel},
    {.tab = musicTab,
     .section = "Reach",
     .order = 150,
     .icon = "video",
     .title = "YouVideo",
     .segue = "goToYouVideo",
     .describe = describeChannel},
};

/// The hit that nobody has filmed.
void addNeeds(const Game& game, std::vector<Need>& needs) {
  const GameState& state = game.state;
  const Song* hit = nullptr;
  for (const uint32_t i : state.saveAllSongList.awake()) {
    const Song& song = state.saveAllSongList[i];
    if (song.chartRanking <= 0 || (hit && hit->chartRanking <= song.chartRanking)) continue;
    if (state.saveAllMusicVideoList.historyOf(song.songId).empty()) hit = &song;
  }
  if (!hit) return;
  needs.push_back({.priority = 90,
                   .picture = coverOf(state, *hit),
                   .title = "“" + hit->title + "” has no video",
                   .subtitle = "It is on the chart, and every view pays",
                   .segue = "goToCreateMusicVideo",
                   .argument = std::to_string(hit->songId)});
}

}  // namespace

const Room videoRoom = {.name = "video", .segues = segues, .menu = menu, .addNeeds = addNeeds, .addNews = addVideoNews};

}  // namespace backbeat
