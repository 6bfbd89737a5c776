#include "video/screens/you_video_detail_description_page_view_controller.h"

#include "core/money.h"
#include "core/view_words.h"
#include "music/covers.h"
#include "music/screens/statistics.h"
#include "video/channel.h"
#include "video/video_options.h"

namespace backbeat {

namespace {

constexpr size_t weeksInTable = 12;

Figure dollars(std::string label, double amount) {
  return {.label = std::move(label), .value = currency(amount), .amount = amount, .dollars = true};
}

std::string styleOf(const MusicVideo& video) {
  const auto style = static_cast<size_t>(video.styleOfVideo);
  return style < videoStyles.size() ? videoStyles[style].name : "";
}

}  // namespace

Outcome YouVideoDetailDescriptionPageViewController::act(const Action& action) {
  if (action.verb() == "song") return goTo("goToSongDetail", std::string(action.argument()));
  return {};
}

View YouVideoDetailDescriptionPageViewController::view() const {
  View view{.title = "Description", .theme = Theme::video};
  const size_t position = videoPosition(state(), videoId_);
  if (position == state().saveAllMusicVideoList.size()) {
    view.add(EmptyHint{.icon = "film", .text = "This video is no longer there."});
    return view;
  }
  const MusicVideo& video = state().saveAllMusicVideoList[position];
  view.subtitle = videoTitle(video);
  view.add(Text{.text = videoDescription(state(), video), .style = Text::Style::lead});
  view.add(caption(styleOf(video) + " · " + videoLength(video) + " · " + std::to_string(video.year)));
  if (!state().saveAllSongList.historyOf(video.songId).empty()) {
    view.add(Rows{{{.picture = coverOfSong(state(), video.songId, video.songTitle),
                    .title = video.songTitle,
                    .subtitle = video.albumTitle,
                    .opens = true,
                    .id = "song:" + std::to_string(video.songId)}}});
  }
  describeStatistics(view, video);
  return view;
}

void YouVideoDetailDescriptionPageViewController::describeStatistics(View& view, const MusicVideo& video) const {
  const WeeklyFigures figures = videoFigures(state(), videoId_);
  view.add(Heading{"Statistics"});
  view.add(Tiles{{{.icon = "flame", .label = "Best week", .value = withCommas(figures.best)},
                  {.icon = "cash", .label = "1,000 views", .value = price(video.streamPayRate * 1000)},
                  {.icon = "document", .label = "Your share", .value = percentage(video.percentageOfEarnings * 100)}}});
  Figures ledger{.items = {dollars("Earned", figures.earned), dollars("The shoot", -video.productionCost)}};
  ledger.total = dollars("Left of it", figures.earned - video.productionCost);
  ledger.total->tone = toneOfChange(ledger.total->amount);
  view.add(std::move(ledger));
  if (figures.weeks == 0) return;
  view.add(Heading{"Latest weeks"});
  view.add(viewsTable(state(), videoId_, weeksInTable));
}

}  // namespace backbeat
