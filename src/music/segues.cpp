#include "music/segues.h"

#include "core/money.h"
#include "music/covers.h"
#include "music/news.h"
#include "music/screens/add_to_album_view_controller.h"
#include "music/screens/album_chart_detail_view_controller.h"
#include "music/screens/album_detail_view_controller.h"
#include "music/screens/billboard_view_controller.h"
#include "music/screens/certification_view_controller.h"
#include "music/screens/change_names_view_controllers.h"
#include "music/screens/create_a_song_view_controller.h"
#include "music/screens/create_an_album_view_controller.h"
#include "music/screens/enter_name_view_controller.h"
#include "music/screens/featuring_view_controller.h"
#include "music/screens/monthly_listener_detail_view_controller.h"
#include "music/screens/set_album_marketing_view_controller.h"
#include "music/screens/set_album_pricing_view_controller.h"
#include "music/screens/song_chart_detail_view_controller.h"
#include "music/screens/song_detail_view_controller.h"

namespace backbeat {

namespace {

using enum Segue::Presentation;

template <MarketingTarget::Kind kind>
std::unique_ptr<Screen> makeMarketing(Game& game, std::string_view argument) {
  const MarketingTarget target{kind, wholeNumber(argument).value_or(-1)};
  return std::make_unique<SetAlbumMarketingViewController>(game, target);
}

constexpr Segue segues[] = {
    {"goToEnterName", "EnterNameViewController", modal, makeScreen<EnterNameViewController>},
    {"goToCreateASong", "CreateASongViewController", push, makeScreen<CreateASongViewController>},
    {"goToAddToAlbum", "AddToAlbumViewController", push, makeScreenWithId<AddToAlbumViewController>},
    {"goToAlbumChartDetail", "AlbumChartDetailViewController", push, makeScreenWithId<AlbumChartDetailViewController>},
    {"goToAlbumDetail", "AlbumDetailViewController", push, makeScreenWithId<AlbumDetailViewController>},
    {"goToCertification", "CertificationViewController", push, makeScreen<CertificationViewController>},
    {"goToCreateAnAlbum", "CreateAnAlbumViewController", push, makeScreen<CreateAnAlbumViewController>},
    {"goToSetAlbumMarketing", "SetAlbumMarketingViewController", push, makeMarketing<MarketingTarget::Kind::album>},
    {"goToSetSongMarketing", "SetAlbumMarketingViewController", push, makeMarketing<MarketingTarget::Kind::song>},
    {"goToSetAlbumPricing", "SetAlbumPricingViewController", push, makeScreenWithId<SetAlbumPricingViewController>},
    {"goToSongChartDetail", "SongChartDetailViewController", push, makeScreenWithId<SongChartDetailViewController>},
    {"goToSongDetail", "SongDetailViewController", push, makeScreenWithId<SongDetailViewController>},
    {"goToFeaturedArtists", "FeaturingViewController", push, makeScreen<FeaturingViewController>},
    {"goToChangeFeaturedArtistName", "ChangeFeaturedArtistNameViewController", push,
     makeScreenWithId<ChangeFeaturedArtistNameViewController>},
    {"goToChangeCameoNames", "ChangeCameoNamesViewController", push, makeScreenWithId<ChangeCameoNamesViewController>},
    {"goToBillboard", "BillboardViewController", push, makeScreen<BillboardViewController>},
    {"goToMonthlyListenerDetail", "MonthlyListenerDetailViewController", push,
     makeScreen<MonthlyListenerDetailViewController>},
};

void describeListeners(const Game& game, Row& row) { row.value = withCommas(game.state.totalFans); }

constexpr MenuLine menu[] = {
    {.tab = musicTab,
     .section = "Reach",
     .order = 110,
     .icon = "headphones",
     .title = "Monthly Listeners",
     .segue = "goToMonthlyListenerDetail",
     .describe = describeListeners},
    {.tab = musicTab,
     .section = "Reach",
     .order = 120,
     .icon = "chart",
     .title = "Billboard 100",
     .subtitle = "The chart of the week",
     .segue = "goToBillboard"},
    {.tab = musicTab,
     .section = "Reach",
     .order = 130,
     .icon = "trophy",
     .title = "Certifications",
     .subtitle = "From bronze to diamond",
     .segue = "goToCertification"},
};

void addNeeds(const Game& game, std::vector<Need>& needs) {
  const GameState& state = game.state;
  const Song* waiting = nullptr;
  const Song* falling = nullptr;
  for (const uint32_t i : state.saveAllSongList.awake()) {
    const Song& song = state.saveAllSongList[i];
    if (!song.isReleased && (!waiting || song.songId < waiting->songId)) waiting = &song;
    if (song.chartRanking > 0 && (!falling || song.chartRanking < falling->chartRanking)) falling = &song;
  }
  if (waiting) {
    needs.push_back({.priority = 160,
                     .picture = coverOf(state, *waiting),
                     .title = "“" + waiting->title + "” is finished",
                     .subtitle = "Nobody hears it before its release",
                     .segue = "goToSongDetail",
                     .argument = std::to_string(waiting->songId)});
  }
  if (!falling) return;
  for (const uint32_t position : state.saveAllBillboardSongList.historyOf(falling->songId)) {
    const BillboardSong& row = state.saveAllBillboardSongList[position];
    if (!row.isOnCharts || row.rankLastWeek == 0 || row.rankThisWeek <= row.rankLastWeek) continue;
    needs.push_back({.priority = 150,
                     .picture = coverOf(state, *falling),
                     .title = "“" + falling->title + "” slips to " + rank(row.rankThisWeek),
                     .subtitle = "It was " + rank(row.rankLastWeek) + "; something new would hold the place",
                     .segue = "goToSongChartDetail",
                     .argument = std::to_string(falling->songId)});
  }
}

}  // namespace

const Room musicRoom = {.name = "music", .segues = segues, .menu = menu, .addNeeds = addNeeds, .addNews = addMusicNews};

}  // namespace backbeat
