#include "career/skill.h"
#include "core/money.h"
#include "turn/gigs/gigs.h"
#include "turn/weekly_events.h"

namespace backbeat {

namespace {

constexpr double checkupDollarsPerSkill = 100;

double checkupCost(const GameState& state, const WeeklyEvents&) {
  return static_cast<double>(overallSkillRating(state)) * checkupDollarsPerSkill;
}

Outcome seeDoctor(Game& game, const WeeklyEvents&) {
  GameState& state = game.state;
  const int64_t change = game.random.integer(-2, 2);
  state.totalEnergyMax += change;
  state.annualCheckupTotal += change;
  game.save(&GameState::totalEnergyMax, &GameState::annualCheckupTotal);
  std::string message = "\nYour energy levels have neither decreased or increased.";
  if (change < 0) {
    message = "\nYou have seen some decline in your energy levels. Your total energy decreased by ";
    message += std::to_string(change);
  } else if (change > 0) {
    message = "\nYou have seen an increase in your energy levels. Your total energy increased by ";
    message += std::to_string(change);
  }
  return news<"⚡️ Health Checkup! ⚡️">(message);
}

/// A share of the cash as it stands at the draw; in debt it is less than nothing.
void drawAmount(Game& game, WeeklyEvents& events, double least, double most) {
  events.moneyForEvent10 = game.state.totalCashAvailable * game.random.uniformDouble(least, most);
}

double amountAsked(const GameState&, const WeeklyEvents& events) { return events.moneyForEvent10; }

Outcome giveToGoodCause(Game& game, const WeeklyEvents&) {
  const int64_t change = game.random.integer(-1, 1);
  game.state.charisma += change;
  game.save(&GameState::charisma);
  std::string message = "\nYou are a blessing.";
  if (change < 0) {
    message =
        "\nYou heard from a friend that other donors thought your gift was too small and are calling your "
        "greedy.\n\nYou lost " +
        std::to_string(change) + " in Charisma.";
  } else if (change > 0) {
    message = "\nThe entire community was shocked at the size of your donation.\n\nYou gained +" +
              std::to_string(change) + " in Charisma.";
  }
  return news<"♥️Helping the Community♥️">(message);
}

}  // namespace

const Gig annualCheckup = {
    .name = "Annual Checkup",
    .icon = "health",
    .headline = "The doctor can see you",
    .promise = "Your energy ceiling may move by two, up or down.",
    .dollars = checkupCost,
    .refusal = "\nYou do not have enough cash available to evaluate your energy levels.",
    .effect = seeDoctor,
};

const Gig goodCause = {
    .name = "Go Fund You",
    .icon = "heart",
    .headline = "A good cause asks",
    .promise = "Your charisma may move by one, either way.",
    .dollars = amountAsked,
    .refusal = "\nYou do not have enough cash available to make this gift",
    .draw = [](Game& game, WeeklyEvents& events) { drawAmount(game, events, 0.10, 0.25); },
    .effect = giveToGoodCause,
};

const Gig familyRequest = {
    .name = "Family Request",
    .icon = "house",
    .headline = "A call from home",
    .promise = "They could use some help.",
    .dollars = amountAsked,
    .refusal = "\nYou do not have enough cash available to help out the fam.",
    .draw = [](Game& game, WeeklyEvents& events) { drawAmount(game, events, 0.02, 0.05); },
    .effect =
        [](Game&, const WeeklyEvents&) {
          return news<"♥️ Family Needs ♥️">(
              "\nIt's hard to keep your growing success a secret.\n\nThey say the cost to raise a child is roughly " +
              currency(500'000) + " from 0-18. Helping your 'rents out is nothing.");
        },
};

}  // namespace backbeat
