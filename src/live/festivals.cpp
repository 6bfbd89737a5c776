#include "live/festivals.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "core/bands.h"
#include "live/festival_invitation.h"

namespace backbeat {

namespace {

/// Bookings lie four to ten weeks ahead, so that one may be played so much later than one booked after it.
constexpr int64_t mostWeeksOutOfOrder = 6;
constexpr int64_t weeksOfYear = 52;

constexpr Band<double, int64_t> starBands[] = {{20, 1}, {45, 2}, {70, 3}, {90, 4}};
constexpr int64_t mostStars = 5;

using Reviews = std::array<std::string_view, 6>;

constexpr Reviews fiveStar = {
    "Electrifying performance, unparalleled talent, profoundly moving - a true masterpiece.",
    "The field held its breath, then roared for ten minutes. We will tell our children.",
    "Every song a peak, every silence full. The set of the summer, and of many summers.",
    "Nobody left for a drink, nobody looked at a phone. That is what a legend looks like.",
    "A voice, a band and a sunset that all arrived at the same moment. Flawless.",
    "We came for another act and went home with a new favourite for life.",
};
constexpr Reviews fourStar = {
    "Impressive performance with vibrant energy, though lacking a bit in originality.",
    "A strong set from the first bar, with one slow song too many.",
    "Tight, loud and generous. A better ending would have made it perfect.",
    "The hits landed, the crowd sang, and only the sound desk had a bad day.",
    "A performer at ease with a field this size. Great, and nearly more than that.",
    "Confident and warm, with an encore that people hummed all the way to the tents.",
};
constexpr Reviews threeStar = {
    "Decent performance, shows potential but lacks memorable moments.",
    "Pleasant enough for an afternoon in the grass. The choruses need more bite.",
    "Half the set was very good. The other half was a chance to find some food.",
    "A fair show that never quite caught fire, whatever the smoke machines tried.",
    "Good songs, careful playing. We would like to see some of the caution go.",
    "The front rows danced, the back rows talked. Both had a nice time.",
};
constexpr Reviews twoStar = {
    "A hesitant set that lost the crowd somewhere around the third song.",
    "Thin arrangements and long pauses. There is a better act in there somewhere.",
    "The applause was polite, as it is for somebody's cousin.",
    "Nerves showed, tuning suffered, and the big chorus came in a key too high.",
    "An uneven half hour. One good melody deserves better company.",
    "It sounded like a rehearsal, and not like the last one before the show.",
};
constexpr Reviews oneStar = {
    "Dreadful sound quality, completely lacking in musical coherence and appeal.",
    "We have heard generators behind the food stalls with more of a tune.",
    "By the second song the only one still watching was the stage manager.",
    "Out of time, out of tune, and mercifully out of the programme after twenty minutes.",
    "The rain got the loudest cheer, since it ended the set.",
    "A career has survived worse, but not many.",
};
constexpr std::array<const Reviews*, mostStars> reviewPools = {&oneStar, &twoStar, &threeStar, &fourStar, &fiveStar};

int64_t absolute(CalendarWeek week) { return week.year * weeksOfYear + week.week; }

}  // namespace

size_t festivalOfWeek(const GameState& state, CalendarWeek week) {
  const RecordList<Festival>& festivals = state.saveAllFestivalList;
  size_t found = festivals.size();
  for (size_t i = festivals.size(); i-- > 0;) {
    const CalendarWeek played{festivals[i].weekNumber, festivals[i].yearNumber};
    if (absolute(played) + mostWeeksOutOfOrder < absolute(week)) break;
    if (played == week) found = i;
  }
  return found;
}

void reviewFestival(Game& game, CalendarWeek week) {
  RecordList<Festival>& festivals = game.state.saveAllFestivalList;
  const size_t found = festivalOfWeek(game.state, week);
  if (found == festivals.size() || reviewed(festivals[found])) return;
  const double stars = std::clamp(songSelectionAverage(game.state, festivals[found].setListId), 0.0, 100.0);
  const Reviews& pool = *reviewPools[static_cast<size_t>(festivalStars(stars) - 1)];
  const std::string_view review = game.random.element(pool);
  festivals.update(found, [&](Festival& festival) {
    festival.reviewStars = stars;
    festival.topReview = review;
  });
  game.save(&GameState::saveAllFestivalList);
}

int64_t festivalStars(double reviewStars) { return bandFor(starBands, reviewStars, mostStars); }

std::string starText(const Festival& festival) {
  std::string stars;
  for (int64_t i = 0; i < festivalStars(festival.reviewStars); ++i) stars += "★";
  return stars;
}

std::string dayOfWeek(CalendarWeek week) {
  constexpr std::array<std::string_view, 12> names = {"January",   "February", "March",    "April",
                                                      "May",       "June",     "July",     "August",
                                                      "September", "October",  "November", "December"};
  const bool isLeapYear = week.year % 4 == 0 && (week.year % 100 != 0 || week.year % 400 == 0);
  const std::array<int64_t, 12> lengths = {31, isLeapYear ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  int64_t day = 1 + 7 * (week.week - 1);
  size_t month = 0;
  while (month + 1 < lengths.size() && day > lengths[month]) day -= lengths[month++];
  return std::string(names[month]) + " " + std::to_string(day);
}

}  // namespace backbeat
