#include <algorithm>
#include <vector>

#include "career/skill.h"
#include "core/bands.h"
#include "core/case_folding.h"
#include "core/numbers.h"
#include "turn/event_rewards.h"
#include "turn/gigs/gigs.h"
#include "turn/weekly_events.h"

namespace backbeat {

namespace {

constexpr const char* tooTiredToSing = "\nYou do not have enough energy available to let loose on Karaoke night.";

constexpr double songsRadioBoost = 2;  // the same for every station
constexpr int64_t judgesMoodTop = 100;

struct Station {
  Title title;
  double albumBoost;
};
constexpr Band<int64_t, Station> stations[] = {
    {29, {alertTitle<"📻 Local Radio Show! 📻">, 2}},
    {49, {alertTitle<"📻 State Radio Show! 📻">, 4}},
    {79, {alertTitle<"⭐️ National Radio Show! ⭐️">, 6}},
};
constexpr Station worldStation = {alertTitle<"⭐️ International Radio Show! ⭐️">, 8};

/// Returns how many, for the message.
std::string gainFans(Game& game, int64_t fans) {
  game.state.totalFans = add(game.state.totalFans, fans);
  game.save(&GameState::totalFans);
  return std::to_string(fans);
}

Outcome goOnAir(Game& game, const WeeklyEvents&) {
  GameState& state = game.state;
  const Station station = bandFor(stations, overallSkillRating(state), worldStation);
  for (size_t i = 0; i < state.saveAllAlbumList.size(); ++i) {
    const int64_t albumId = state.saveAllAlbumList[i].albumId;
    if (!state.saveAllAlbumList[i].isReleased || state.saveAllAlbumList[i].releaseYear < state.yearNumber) continue;
    state.saveAllAlbumList.update(i, [&](Album& album) { album.marketingScore += station.albumBoost; });
    for (size_t j = 0; j < state.saveAllSongList.size(); ++j) {
      if (state.saveAllSongList[j].albumId != albumId) continue;
      state.saveAllSongList.update(j, [](Song& song) { song.marketingScore += songsRadioBoost; });
    }
  }
  game.save(&GameState::saveAllAlbumList, &GameState::saveAllSongList);
  return news(station.title,
              "\nYou know how to work the mic! You gained some exposure for your recent albums and songs!");
}

/// "\nYou chose to sing HALF MOON (57)\n": the song and its rating, when the artist has one.
std::string choiceOfSong(const Song* song) {
  if (!song) return "\n";
  return "\nYou chose to sing " + upperCase(song->title) + " (" + std::to_string(truncate(song->productionRating)) +
         ")\n\n";
}

Outcome audition(Game& game, const WeeklyEvents& events) {
  const GameState& state = game.state;
  std::vector<const Song*> recent;
  for (const Song& song : state.saveAllSongList) {
    if (song.releaseYear == state.yearNumber || song.releaseYear == state.yearNumber - 1) recent.push_back(&song);
  }
  const auto lessRated = [](const Song* a, const Song* b) { return a->productionRating < b->productionRating; };
  const bool hasSong = !recent.empty();
  if (overallSkillRating(state) < events.judgesMood) {
    const Song* worst = hasSong ? *std::min_element(recent.begin(), recent.end(), lessRated) : nullptr;
    return news<"😭 You Were Cut 😭">(
        choiceOfSong(worst) +
        "What an experience singing before Simon Howell...Unfortunately you were cut immediately after your audition." +
        (hasSong ? "\n\nMaybe it was a poor song choice." : ""));
  }
  const int64_t gain = fanGainForAppearance(game);
  const std::string fans = gainFans(game, multiply(gain, game.random.integer(3, 7)));
  const Song* best = hasSong ? *std::max_element(recent.begin(), recent.end(), lessRated) : nullptr;
  return news<"🔥 Audition Was Lit 🔥">(
      choiceOfSong(best) + "You gave the audience a " + (hasSong ? "SHOW" : "show") +
      " and the judges gave you a standing ovation, but it wasn't enough to make it to the next round.\n\nYou gained " +
      fans + " new fan(s)!");
}

}  // namespace

const Gig karaokeNight = {
    .name = "Karaoke Night",
    .icon = "mic",
    .headline = "Open mic at the corner bar",
    .promise = "A song in front of strangers wins a few of them.",
    .price = {.energy = 25},
    .refusal = tooTiredToSing,
    .effect =
        [](Game& game, const WeeklyEvents&) {
          return news<"🔥 Karaoke Night 🔥">("\nWhat a night! You gained " + gainFans(game, fanGainForAppearance(game)) +
                                           " new fan(s)!");
        },
};

const Gig radioShow = {
    .name = "Radio Show",
    .icon = "radio",
    .headline = "You are on the air",
    .promise = "Fresh attention for what you released this year.",
    .price = {.energy = 65},
    .refusal = "\nYou do not have enough energy available to appear on a radio show today.",
    .effect = goOnAir,
};

/// The judges' mood is drawn before the energy is looked at, and the refusal is the one of karaoke: both are meant.
const Gig talentShow = {
    .name = "America Has Talent",
    .icon = "star",
    .headline = "The judges are waiting",
    .promise = "The better your skills, the likelier they stand up.",
    .price = {.energy = 40},
    .refusal = tooTiredToSing,
    .guard =
        [](Game& game, WeeklyEvents& events) {
          events.judgesMood = game.random.integer(0, judgesMoodTop);
          return Outcome();
        },
    .effect = audition,
};

const Gig tikTak = {
    .name = "TikTak",
    .icon = "camera",
    .headline = "A trend to jump on",
    .promise = "Most videos sink. Now and then one takes off.",
    .price = {.energy = 25},
    .refusal =
        "\nYou do not have enough energy available to record yourself over and over again for the perfect TikTak.",
    .effect =
        [](Game& game, const WeeklyEvents&) {
          const std::string fans = gainFans(game, tikTakFanGain(game));
          const int64_t takes = game.random.integer(2, 10);  // for show
          return news<"🎥 You made a TikTak 🎥">("\nAfter " + std::to_string(takes) +
                                               " takes, you posted your video on TikTak and gained " + fans +
                                               " new fan(s)!");
        },
};

const Gig fanMeeting = {
    .name = "Fan Meeting",
    .icon = "people",
    .headline = "Your biggest fan",
    .promise = "One afternoon, and the word spreads.",
    .price = {.energy = 15},
    .refusal = "\nYou do not have enough energy to spend with a wild, touchy fan.",
    .effect =
        [](Game& game, const WeeklyEvents&) {
          return news<"1️⃣ Fans Come First 1️⃣">(
              "\nYou spent time with one of your biggest fans and the word spread on social. You gained " +
              gainFans(game, fanGainForAppearance(game)) + " new fan(s) for being so personable!");
        },
};

}  // namespace backbeat
