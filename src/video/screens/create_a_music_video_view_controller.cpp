#include "video/screens/create_a_music_video_view_controller.h"

#include <algorithm>

#include "core/money.h"
#include "core/view_words.h"
#include "music/covers.h"
#include "music/guests.h"
#include "music/song_release.h"

namespace backbeat {

namespace {

Option priced(Option option, double dollars) {
  if (dollars > 0) option.price = Price{.dollars = dollars};
  return option;
}

Choice styleChoice(const GameState& state, const VideoDraft& chosen, const std::string& songTitle) {
  Choice choice{.id = "style", .label = "Style", .style = Choice::Style::pictures};
  choice.selected = static_cast<int64_t>(chosen.style);
  for (size_t i = 0; i < videoStyles.size(); ++i) {
    VideoDraft other = chosen;
    other.style = i;
    choice.options.push_back(priced({.label = videoStyles[i].name,
                                     .note = videoStyles[i].effect,
                                     .picture = stillOf(state, songTitle, i, chosen.director.name)},
                                    videoCosts(state, other).style));
  }
  return choice;
}

Choice directorChoice(const std::vector<Director>& directors, size_t chosen) {
  Choice choice{.id = "director", .label = "Director", .selected = static_cast<int64_t>(chosen)};
  for (const Director& director : directors) {
    choice.options.push_back(priced({.label = director.name, .note = "Rating | " + std::to_string(director.rating)},
                                    static_cast<double>(director.cost)));
  }
  return choice;
}

Choice promotionChoice(size_t chosen) {
  Choice choice{.id = "promotion", .label = "Promotion", .selected = static_cast<int64_t>(chosen)};
  for (const VideoPromotion& promotion : videoPromotions) {
    const std::string brings = promotion.greatestScore > 0 ? "Marketing +" + std::to_string(promotion.leastScore) +
                                                                 " to +" + std::to_string(promotion.greatestScore)
                                                           : "Nobody is told";
    choice.options.push_back(priced({.label = promotion.name, .note = brings}, static_cast<double>(promotion.cost)));
  }
  return choice;
}

Row cameoRow(const GameState& state, const VideoDraft& video) {
  Row row = wayTo("goToCameos", "guest", "Cameos");
  for (const CelebrityCameo& cameo : cameoTable(state)) {
    if (std::find(video.cameos.begin(), video.cameos.end(), cameo.id) == video.cameos.end()) continue;
    row.subtitle += (row.subtitle.empty() ? "" : ", ") + cameo.name;
  }
  if (row.subtitle.empty()) row.subtitle = "Nobody: the camera is all yours";
  if (const double cost = videoCosts(state, video).cameos; cost > 0) row.value = currency(cost);
  return row;
}

}  // namespace

Outcome CreateAMusicVideoViewController::open() {
  directors_ = drawDirectors(game_);
  refresh();
  return {};
}

Outcome CreateAMusicVideoViewController::appear() {
  if (cameos_ != game_.launch.selectedCameos) refresh();
  return {};
}

Outcome CreateAMusicVideoViewController::act(const Action& action) {
  if (action.id == "createButton") return createMusicVideo(game_, draft());
  if (action.id == "goToCameos") return goTo(action.id);
  if (action.id == "style") {
    const auto number = optionNumber(action.value, videoStyles.size());
    if (!number) return {};
    style_ = *number;
    refresh();
  }
  if (action.id == "director") {
    const auto number = optionNumber(action.value, directors_.size());
    if (!number) return {};
    director_ = *number;
    refresh();
  }
  if (action.id == "promotion") {
    const auto number = optionNumber(action.value, videoPromotions.size());
    if (!number) return {};
    promotion_ = *number;
    promotionScore_ = drawPromotionScore(game_.random, videoPromotions[promotion_]);
    refresh();
  }
  return {};
}

void CreateAMusicVideoViewController::refresh() {
  cameos_ = game_.launch.selectedCameos;
  viralityBoost_ = drawSoloGift(game_, cameos_);
}

VideoDraft CreateAMusicVideoViewController::draft() const {
  return {.songId = songId_,
          .style = style_,
          .director = directors_[director_],
          .promotion = promotion_,
          .promotionScore = promotionScore_,
          .viralityBoost = viralityBoost_,
          .cameos = game_.launch.selectedCameos};
}

View CreateAMusicVideoViewController::view() const {
  View view{.title = "New Video", .theme = Theme::video};
  const auto position = songPosition(state(), songId_);
  if (!position || !canBeFilmed(state(), songId_)) {
    view.add(EmptyHint{.icon = "film", .text = "There is nothing to film here: a song gets its video once it is out."});
    return view;
  }
  const Song& song = state().saveAllSongList[*position];
  view.subtitle = song.title;
  const VideoDraft video = draft();
  const std::string by = director_ == 0 ? state().myArtistsName : video.director.name;
  view.add(Cover{.picture = stillOf(state(), song.title, style_, video.director.name),
                 .title = song.title,
                 .text = std::string(videoStyles[style_].name) + ", by " + by,
                 .badge = withDecimals(std::min(foreseenRating(state(), video), 100.0), 0)});
  describeChoices(view, video, song.title);
  const double cost = videoCosts(state(), video).total();
  const double left = state().totalCashAvailable - cost;
  view.totals = {{.label = "style, director, promotion, cameos", .value = currency(cost)},
                 {.label = "left", .value = currency(left), .tone = left < 0 ? Tone::bad : Tone::plain}};
  view.mainAction = Button{.id = "createButton",
                           .label = "CREATE",
                           .price = costToProduceMusicVideo(state(), video),
                           .style = Button::Style::primary};
  return view;
}

void CreateAMusicVideoViewController::describeChoices(View& view, const VideoDraft& video,
                                                      const std::string& songTitle) const {
  view.add(Heading{"Style"});
  view.add(styleChoice(state(), video, songTitle));
  view.add(directorChoice(directors_, director_));
  view.add(promotionChoice(promotion_));
  view.add(Rows{{cameoRow(state(), video)}});
  view.add(caption("The ring shows the rating to expect with middling luck."));
  view.help =
      Help{.title = "🎥 Music Videos 🎥",
           .text =
               "A song gets one video, and it goes out at once on your channel.\n\nIts rating is nearly the mean of "
               "the song, the director, your charisma and a roll of your virality. The rating is also the number of "
               "weeks that it is watched.\n\nSubscribers and promotion bring the first viewers, virality multiplies "
               "them. Once the promotion is used up, what was watched is watched again.\n\nA better director makes "
               "every style dearer. Cameos lend half of what they have; going without them brings a little virality "
               "of its own. A label promotes in its own way, whatever you pay for."};
}

}  // namespace backbeat
