#include "turn/event_rewards.h"

#include "career/studio.h"
#include "core/bands.h"
#include "core/numbers.h"

namespace backbeat {

namespace {

struct Range {
  double lo = 0;
  double hi = 0;
};

double drawnFrom(Random& random, Range range) { return random.uniformDouble(range.lo, range.hi); }

/// By fame. The edge at 10,001 and the collapse in the end are meant.
constexpr Band<int64_t, Range> appearanceRanges[] = {
    {100, {1, 5}},
    {1'000, {1, 10}},
    {10'001, {1, 50}},
    {100'000, {1, 100}},
    {1'000'000, {1, 1'000}},
    {10'000'000, {1, 10'000}},
    {100'000'000, {1, 100'000}},
    {1'000'000'000, {1, 1'000'000}},
    {6'000'000'000, {1, 10'000'000}},
};
constexpr Range appearanceBeyond = {1, 14};

/// By a roll from 0 to 200: nearly every video passes unnoticed, two in two hundred take off.
constexpr int64_t viralRollTop = 200;
constexpr Band<int64_t, Range> viralRanges[] = {
    {99, {1, 5}},        {125, {5, 10}},         {140, {10, 50}},        {150, {50, 100}},
    {155, {100, 1'000}}, {157, {1'000, 10'000}}, {viralRollTop, {1, 5}},
};

/// Most that fame adds to a video.
constexpr Band<int64_t, double> videoReach[] = {
    {100, 2},          {1'000, 3},           {10'001, 10},           {100'000, 100},         {1'000'000, 300},
    {10'000'000, 750}, {100'000'000, 1'250}, {1'000'000'000, 2'500}, {6'000'000'000, 5'000},
};
constexpr double videoReachBeyond = 14;

/// Both ends belong to a row.
struct CashRow {
  double from;
  double upTo;
  Range amount;
};
constexpr CashRow hustleRows[] = {
    {0, 999, {50, 250}},
    {1'000, 9'999, {50, 500}},
    {10'000, 99'999, {50, 5'000}},
};
constexpr Range hustleElsewhere = {50, 500};

/// By the studio's parts together, or by songwriting.
constexpr Band<int64_t, Range> craftRanges[] = {
    {9, {10, 50}},   {19, {20, 100}},    {29, {30, 150}},    {39, {40, 300}},    {49, {50, 500}},
    {59, {75, 800}}, {69, {100, 1'000}}, {79, {200, 2'000}}, {89, {300, 5'000}}, {100, {500, 10'000}},
};
constexpr Range craftBeyond = {50, 10'000};

constexpr Band<int64_t, Range> lessonRanges[] = {
    {19, {20, 50}},    {39, {30, 100}},     {59, {50, 150}},     {79, {70, 300}},     {99, {90, 500}},
    {119, {115, 800}}, {139, {150, 1'000}}, {159, {300, 2'000}}, {179, {450, 5'000}}, {241, {600, 10'000}},
};
constexpr Range lessonBeyond = {50, 10'000};

}  // namespace

int64_t fanGainForAppearance(Game& game) {
  return truncate(drawnFrom(game.random, bandFor(appearanceRanges, game.state.totalFans, appearanceBeyond)));
}

int64_t tikTakFanGain(Game& game) {
  const int64_t roll = game.random.integer(0, viralRollTop);
  const double viral = drawnFrom(game.random, bandFor(viralRanges, roll, Range{}));
  const double reach = game.random.uniformDouble(0, bandFor(videoReach, game.state.totalFans, videoReachBeyond));
  return truncate(viral + reach);
}

double hustleAmount(Game& game) {
  const double cash = game.state.totalCashAvailable;
  for (const CashRow& row : hustleRows) {
    if (cash >= row.from && cash <= row.upTo) return drawnFrom(game.random, row.amount);
  }
  return drawnFrom(game.random, hustleElsewhere);
}

double studioRentalIncome(Game& game) {
  return drawnFrom(game.random, bandFor(craftRanges, studioRating(game.state), craftBeyond));
}

double ghostWritingIncome(Game& game) {
  return drawnFrom(game.random, bandFor(craftRanges, game.state.songWriting, craftBeyond));
}

double musicLessonIncome(Game& game) {
  return drawnFrom(game.random, bandFor(lessonRanges, game.state.songWriting + game.state.vocalRange, lessonBeyond));
}

}  // namespace backbeat
