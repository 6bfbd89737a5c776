#include "core/money.h"
#include "core/purse.h"
#include "turn/event_rewards.h"
#include "turn/gigs/gigs.h"

namespace backbeat {

namespace {

Outcome earned(Game& game, double dollars, const AlertTitle& title, const char* opening) {
  earn(game, {.dollars = dollars});
  return news(title, opening + currency(dollars) + " 💰");
}

/// Wins or loses the same amount; a loss asks for no cash in advance.
Outcome shipped(Game& game, const WeeklyEvents&) {
  const double amount = hustleAmount(game);
  if (game.random.coin() == 1) {
    pay(game, {.dollars = amount});
    return news<"📦 Drop Shipping 📦">(
        "\nYou bought a class on drop shipping from a youtuber and the only thing that dropped was your cash "
        "balance!\n\nYou lost " +
        currency(-amount) + " trying to drop ship.");
  }
  return earned(game, amount, alertTitle<"📦 Drop Shipping 📦">,
                "\nYou bought a class on drop shipping from a youtuber and it worked!\n\nYou gained ");
}

}  // namespace

const Gig oddJobs = {
    .name = "Odd Jobs",
    .icon = "briefcase",
    .headline = "Somebody needs a hand",
    .promise = "A day's work for a day's money.",
    .price = {.energy = 30},
    .refusal = "\nYou do not have enough energy available for that side hustle work.",
    .effect =
        [](Game& game, const WeeklyEvents&) {
          return earned(game, hustleAmount(game), alertTitle<"💪 Odd Jobs 💪">, "\nHustle baby! You gained ");
        },
};

const Gig rentalInquiry = {
    .name = "Rental Inquiry",
    .icon = "studio",
    .headline = "Your studio is wanted",
    .promise = "Better parts, better rent.",
    .price = {.energy = 15},
    .refusal = "\nYou do not have enough energy available to deal with a studio rental today.",
    .effect =
        [](Game& game, const WeeklyEvents&) {
          return earned(game, studioRentalIncome(game), alertTitle<"🎧 Studio Rented! 🎧">,
                        "\nInvestments pay off! You rented out your studio to an eager artist and earned ");
        },
};

const Gig ghostWriting = {
    .name = "Ghost Writing",
    .icon = "pencil",
    .headline = "A song under another name",
    .promise = "Your songwriting, their face, your money.",
    .price = {.energy = 35},
    .refusal = "\nYou do not have enough energy available to write a song for someone else.",
    .effect =
        [](Game& game, const WeeklyEvents&) {
          return earned(game, ghostWritingIncome(game), alertTitle<"📝 Ghost Writer! 📝">,
                        "\nYou lyrical genius! You put your songwriting ability to the test and earned ");
        },
};

const Gig dropShipping = {
    .name = "Drop Shipping",
    .icon = "box",
    .headline = "A class that sells itself",
    .promise = "It pays, or it costs just as much.",
    .price = {.energy = 30},
    .refusal = oddJobs.refusal,
    .effect = shipped,
};

/// Says 30 and takes 20: meant.
const Gig sellBeats = {
    .name = "Sell Your Beats",
    .icon = "keyboard",
    .headline = "Beats for sale online",
    .promise = "What you made in the studio finds a buyer.",
    .price = {.energy = 30, .charge = Charge{.energy = 20}},
    .refusal = "\nYou do not have enough energy available to market and sell your beats today.",
    .effect =
        [](Game& game, const WeeklyEvents&) {
          return earned(game, studioRentalIncome(game), alertTitle<"Your Beats are 🔥">,
                        "\nYou've been doin' work in the studio and sold some of your beats online for ");
        },
};

const Gig musicLesson = {
    .name = "Give Music Lesson",
    .icon = "teacher",
    .headline = "Students at the door",
    .promise = "Your writing and your voice set the fee.",
    .price = {.energy = 15},
    .refusal = "\nYou do not have enough energy available to pass on your musical talent to the next generation.",
    .effect =
        [](Game& game, const WeeklyEvents&) {
          return earned(game, musicLessonIncome(game), alertTitle<"🎼 Music Teacher 🎼">,
                        "\nYou went over scales and theory with eager students and earned ");
        },
};

}  // namespace backbeat
