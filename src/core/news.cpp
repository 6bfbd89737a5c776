#include "core/news.h"

#include <algorithm>

#include "core/calendar.h"
#include "core/room.h"
#include "core/sorting.h"

namespace backbeat {

std::vector<News> newsOf(const Game& game) {
  std::vector<News> news;
  if (game.turn.before.absoluteWeek == 0) return news;
  for (const Room* room : game.rooms) {
    if (room->addNews) room->addNews(game, news);
  }
  sortStably(news, [](const News& a, const News& b) { return a.rank > b.rank; });
  return news;
}

int64_t passedPowerOfTen(int64_t before, int64_t now) {
  int64_t passed = 0;
  for (int64_t power = 10; power <= now; power *= 10) {
    if (power > before) passed = power;
    if (power > now / 10) break;
  }
  return passed;
}

bool historyIsWhole(const GameState& state) { return state.yearNumber - generationBegan(state) < yearsOfOwnMusic; }

Poster posterOf(const News& news) {
  Poster poster{
      .kicker = news.kicker, .title = news.headline, .text = news.text, .figure = news.figure, .stamp = news.stamp};
  if (news.picture.kind != Picture::Kind::none) poster.pictures.push_back(news.picture);
  if (!news.stamp.empty()) poster.style = Poster::Style::ticket;
  if (news.tone == Tone::good) poster.mood = Poster::Mood::celebrate;
  if (news.tone == Tone::bad) poster.mood = Poster::Mood::mourn;
  return poster;
}

Row rowOf(const News& news) {
  return {.picture = news.picture,
          .title = news.headline,
          .subtitle = news.text.empty() ? news.kicker : news.text,
          .badge = news.kind == News::Kind::first ? "FIRST" : ""};
}

}  // namespace backbeat
