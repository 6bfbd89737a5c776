#include "turn/weekly_events.h"

#include <algorithm>
#include <array>
#include <vector>

#include "career/skill.h"
#include "core/bands.h"
#include "core/calendar.h"
#include "core/case_folding.h"
#include "core/money.h"
#include "core/numbers.h"
#include "music/guests.h"
#include "turn/event_rewards.h"

namespace backbeat {

namespace {

enum Option : int64_t {
  karaokeNight = 1,
  oddJobs,
  rentalInquiry,
  ghostWriting,
  radioShow,
  annualCheckup,
  talentShow,
  dropShipping,
  pitchDeck,
  goodCauses,  // a good cause, a startup's next round or the family
  sellBeats,
  tikTak,
  musicLesson,
  verseOrFan,
  festivalInvite,
};

/// As captioned. Selling beats says 30 and takes 20: intended.
constexpr std::array<EventOffer, 15> offers = {{
    {"Karaoke Night", 25, "mic", "Open mic at the corner bar", "A song in front of strangers wins a few of them."},
    {"Odd Jobs", 30, "briefcase", "Somebody needs a hand", "A day's work for a day's money."},
    {"Rental Inquiry", 15, "studio", "Your studio is wanted", "Better parts, better rent."},
    {"Ghost Writing", 35, "pencil", "A song under another name", "Your songwriting, their face, your money."},
    {"Radio Show", 65, "radio", "You are on the air", "Fresh attention for what you released this year."},
    {"Annual Checkup", 0, "health", "The doctor can see you", "Your energy ceiling may move by two, up or down."},
    {"America Has Talent", 40, "star", "The judges are waiting", "The better your skills, the likelier they stand up."},
    {"Drop Shipping", 30, "box", "A class that sells itself", "It pays, or it costs just as much."},
    {"Pitch Deck", 50, "document", "Founders in your inbox", "Somebody wants to show you their slides."},
    {"Go Fund You", 0, "heart", "A good cause asks", "Your charisma may move by one, either way."},
    {"Sell Your Beats", 30, "keyboard", "Beats for sale online", "What you made in the studio finds a buyer."},
    {"TikTak", 25, "camera", "A trend to jump on", "Most videos sink. Now and then one takes off."},
    {"Give Music Lesson", 15, "teacher", "Students at the door", "Your writing and your voice set the fee."},
    {"Fan Meeting", 15, "people", "Your biggest fan", "One afternoon, and the word spreads."},
    {"Festival Invite", 50, "ticket", "A festival calls", "They want fans by the ten thousand and recent songs."},
}};
constexpr EventOffer ventureRaise = {"Venture Raise", 50, "trend", "A startup raises again", "Your stake could grow."};
constexpr EventOffer familyRequest = {"Family Request", 0, "house", "A call from home", "They could use some help."};
constexpr EventOffer featureRequest = {"Feature Request", 25, "guest", "Somebody wants a verse",
                                       "Your name on theirs."};

/// How many buttons a roll from 0 to 100 shows.
constexpr int64_t buttonRollTop = 100;
constexpr Band<int64_t, int64_t> buttonCounts[] = {{20, 0}, {60, 1}, {90, 2}};
constexpr int64_t mostButtons = 3;

constexpr double checkupDollarsPerSkill = 100;
constexpr int64_t skillForFeatures = 30;
constexpr int64_t lastRoundWithRaise = 3;
constexpr int64_t talentRollTop = 100;
constexpr int64_t fansForFestivals = 50'000;
constexpr int64_t recentYears = 4;
constexpr double songsRadioBoost = 2;  // the same for every station

struct Station {
  const char* title;
  double albumBoost;
};
constexpr Band<int64_t, Station> stations[] = {
    {29, {"📻 Local Radio Show! 📻", 2}},
    {49, {"📻 State Radio Show! 📻", 4}},
    {79, {"⭐️ National Radio Show! ⭐️", 6}},
};
constexpr Station worldStation = {"⭐️ International Radio Show! ⭐️", 8};

constexpr const char* noEnergyForKaraoke = "\nYou do not have enough energy available to let loose on Karaoke night.";
constexpr const char* noEnergyForHustle = "\nYou do not have enough energy available for that side hustle work.";

Outcome notEnoughEnergy(const char* message) {
  Outcome refusal = alert("Not Enough Energy", message);
  refusal.feedback = Feedback::energyBounce;
  return refusal;
}

Outcome notEnoughCash(const char* message) { return alert("Not Enough Cash", message); }

/// For a gig whose tests are passed and whose door does not exist yet.
Outcome notOpenYet(const std::string& who) { return alert("🚪 Not Open Yet 🚪", "\n" + who + " Nothing was spent."); }

Outcome done(Game& game, std::string title, std::string message) {
  stateChanged(game);
  Outcome outcome = alert(std::move(title), std::move(message));
  outcome.feedback = Feedback::success;
  return outcome;
}

bool hasEnergy(const Game& game, int64_t energy) { return game.state.totalEnergyAvailable >= energy; }

void payEnergy(Game& game, int64_t energy) {
  game.state.totalEnergyAvailable -= energy;
  game.save(&GameState::totalEnergyAvailable);
}

/// Negative amounts are paid.
void moveCash(Game& game, double dollars) {
  game.state.totalCashAvailable += dollars;
  game.save(&GameState::totalCashAvailable);
}

int64_t gainFans(Game& game, int64_t fans) {
  game.state.totalFans = add(game.state.totalFans, fans);
  game.save(&GameState::totalFans);
  return fans;
}

/// A gig that turns energy into cash and says how much behind `opening`.
Outcome work(Game& game, int64_t energy, const char* refusal, double (*amountFor)(Game&), const char* title,
             const char* opening) {
  if (!hasEnergy(game, energy)) return notEnoughEnergy(refusal);
  payEnergy(game, energy);
  const double amount = amountFor(game);
  moveCash(game, amount);
  return done(game, title, opening + currency(amount) + " 💰");
}

Outcome singKaraoke(Game& game) {
  if (!hasEnergy(game, 25)) return notEnoughEnergy(noEnergyForKaraoke);
  payEnergy(game, 25);
  const int64_t fans = gainFans(game, fanGainForAppearance(game));
  return done(game, "🔥 Karaoke Night 🔥", "\nWhat a night! You gained " + std::to_string(fans) + " new fan(s)!");
}

Outcome goOnAir(Game& game) {
  if (!hasEnergy(game, 65)) {
    return notEnoughEnergy("\nYou do not have enough energy available to appear on a radio show today.");
  }
  payEnergy(game, 65);
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
  return done(game, station.title,
              "\nYou know how to work the mic! You gained some exposure for your recent albums and songs!");
}

double checkupCost(const GameState& state) {
  return static_cast<double>(overallSkillRating(state)) * checkupDollarsPerSkill;
}

Outcome seeDoctor(Game& game) {
  GameState& state = game.state;
  const double cost = checkupCost(state);
  if (state.totalCashAvailable < cost) {
    return notEnoughCash("\nYou do not have enough cash available to evaluate your energy levels.");
  }
  moveCash(game, -cost);
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
  return done(game, "⚡️ Health Checkup! ⚡️", std::move(message));
}

/// "\nYou chose to sing HALF MOON (57)\n": the song and its rating, when the artist has one.
std::string choiceOfSong(const Song* song) {
  if (!song) return "\n";
  return "\nYou chose to sing " + upperCase(song->title) + " (" + std::to_string(truncate(song->productionRating)) +
         ")\n\n";
}

Outcome audition(Game& game) {
  // The jury's mood is drawn before the energy is looked at, and the refusal is the one of karaoke: both are meant.
  const int64_t mood = game.random.integer(0, talentRollTop);
  if (!hasEnergy(game, 40)) return notEnoughEnergy(noEnergyForKaraoke);
  payEnergy(game, 40);
  const GameState& state = game.state;
  std::vector<const Song*> recent;
  for (const Song& song : state.saveAllSongList) {
    if (song.releaseYear == state.yearNumber || song.releaseYear == state.yearNumber - 1) recent.push_back(&song);
  }
  const auto lessRated = [](const Song* a, const Song* b) { return a->productionRating < b->productionRating; };
  const bool hasSong = !recent.empty();
  if (overallSkillRating(state) < mood) {
    const Song* worst = hasSong ? *std::min_element(recent.begin(), recent.end(), lessRated) : nullptr;
    return done(game, "😭 You Were Cut 😭",
                choiceOfSong(worst) +
                    "What an experience singing before Simon Howell...Unfortunately you were cut immediately after "
                    "your audition." +
                    (hasSong ? "\n\nMaybe it was a poor song choice." : ""));
  }
  const int64_t gain = fanGainForAppearance(game);
  const int64_t fans = gainFans(game, multiply(gain, game.random.integer(3, 7)));
  const Song* best = hasSong ? *std::max_element(recent.begin(), recent.end(), lessRated) : nullptr;
  return done(game, "🔥 Audition Was Lit 🔥",
              choiceOfSong(best) + "You gave the audience a " + (hasSong ? "SHOW" : "show") +
                  " and the judges gave you a standing ovation, but it wasn't enough to make it to the next "
                  "round.\n\nYou gained " +
                  std::to_string(fans) + " new fan(s)!");
}

Outcome tryDropShipping(Game& game) {
  if (!hasEnergy(game, 30)) return notEnoughEnergy(noEnergyForHustle);
  payEnergy(game, 30);
  const double amount = hustleAmount(game);
  const bool lost = game.random.coin() == 1;
  moveCash(game, lost ? -amount : amount);
  std::string message = "\nYou bought a class on drop shipping from a youtuber and it worked!\n\nYou gained ";
  message += currency(amount) + " 💰";
  if (lost) {
    message =
        "\nYou bought a class on drop shipping from a youtuber and the only thing that dropped was your cash "
        "balance!\n\nYou lost ";
    message += currency(-amount) + " trying to drop ship.";
  }
  return done(game, "📦 Drop Shipping 📦", std::move(message));
}

Outcome readPitchDeck(const Game& game) {
  if (!hasEnergy(game, 50)) return notEnoughEnergy(noEnergyForHustle);
  // No company looks for money yet, so every stake the artist could hold is held already.
  return alert("Nothing of Interest", "\nThe pitch deck was underwhelming this time.");
}

bool raises(const Venture& venture) {
  return venture.hasExited == 0 && venture.currentFundingRound <= lastRoundWithRaise && venture.timeUntilNextRaise == 0;
}

bool anyRaise(const GameState& state) {
  return std::any_of(state.saveAllVentureInvestments.begin(), state.saveAllVentureInvestments.end(), raises);
}

Outcome giveToGoodCause(Game& game, double money) {
  if (money > game.state.totalCashAvailable) {
    return notEnoughCash("\nYou do not have enough cash available to make this gift");
  }
  moveCash(game, -money);
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
  return done(game, "♥️Helping the Community♥️", std::move(message));
}

Outcome helpFamily(Game& game, double money) {
  if (money > game.state.totalCashAvailable) {
    return notEnoughCash("\nYou do not have enough cash available to help out the fam.");
  }
  moveCash(game, -money);
  return done(game, "♥️ Family Needs ♥️",
              "\nIt's hard to keep your growing success a secret.\n\nThey say the cost to raise a child is roughly " +
                  currency(500'000) + " from 0-18. Helping your 'rents out is nothing.");
}

/// Who asks is decided by the portfolio as it stands at the press, whatever the button says. A raise would cost no
/// energy, in spite of its caption.
Outcome answerAppeal(Game& game, double money) {
  if (game.state.saveAllVentureInvestments.empty()) return giveToGoodCause(game, money);
  if (!anyRaise(game.state)) return helpFamily(game, money);
  return notOpenYet("The founders are not taking calls yet.");
}

Outcome recordTikTak(Game& game) {
  if (!hasEnergy(game, 25)) {
    return notEnoughEnergy(
        "\nYou do not have enough energy available to record yourself over and over again for the perfect TikTak.");
  }
  payEnergy(game, 25);
  const int64_t fans = gainFans(game, tikTakFanGain(game));
  const int64_t takes = game.random.integer(2, 10);  // for show
  return done(game, "🎥 You made a TikTak 🎥",
              "\nAfter " + std::to_string(takes) + " takes, you posted your video on TikTak and gained " +
                  std::to_string(fans) + " new fan(s)!");
}

Outcome recordVerse(const Game& game) {
  if (!hasEnergy(game, 25)) return notEnoughEnergy("\nYou do not have enough energy to feature on a track.");
  return notOpenYet("Nobody has a track ready for you yet.");
}

Outcome meetFan(Game& game) {
  if (!hasEnergy(game, 15)) {
    return notEnoughEnergy("\nYou do not have enough energy to spend with a wild, touchy fan.");
  }
  payEnergy(game, 15);
  const int64_t fans = gainFans(game, fanGainForAppearance(game));
  return done(game, "1️⃣ Fans Come First 1️⃣",
              "\nYou spent time with one of your biggest fans and the word spread on social. You gained " +
                  std::to_string(fans) + " new fan(s) for being so personable!");
}

Outcome answerFestival(const Game& game) {
  const GameState& state = game.state;
  if (state.totalFans < fansForFestivals) {
    return alert("You Weren't Selected",
                 "\nYou need to have at least 50,000 monthly listeners to make it into the general lineup.");
  }
  const bool recentSong = std::any_of(state.saveAllSongList.begin(), state.saveAllSongList.end(), [&](const Song& s) {
    return s.isReleased && s.releaseYear >= state.yearNumber - recentYears;
  });
  if (!recentSong) {
    return alert("No Recent Songs", "\nWrite and release more recent songs before you can get invited to festivals.");
  }
  if (!hasEnergy(game, 50)) {
    return notEnoughEnergy("\nYou do not have enough energy to think about performing at a festival.");
  }
  return notOpenYet("The organisers are still building the stage.");
}

/// A good cause, the next round of a startup, or the family: with its amount, drawn now.
void drawAppeal(Game& game, WeeklyEvents& events, EventButton& button) {
  const GameState& state = game.state;
  const bool investor = !state.saveAllVentureInvestments.empty();
  if (investor && anyRaise(state)) {
    button.offer = ventureRaise;
    return;
  }
  if (investor) button.offer = familyRequest;
  const double share = investor ? game.random.uniformDouble(0.02, 0.05) : game.random.uniformDouble(0.10, 0.25);
  events.moneyForEvent10 = state.totalCashAvailable * share;
  button.dollars = events.moneyForEvent10;
}

bool skilledEnoughToFeature(const GameState& state) {
  const int64_t skill = overallSkillRating(state);
  const std::vector<FeaturedArtist> stars = guestTable(state);
  return skill >= skillForFeatures && std::any_of(stars.begin(), stars.end(), [&](const FeaturedArtist& star) {
           return star.rating <= static_cast<double>(skill);
         });
}

}  // namespace

std::string EventButton::caption() const {
  return std::string(offer.name) + " " + (offer.energy > 0 ? std::to_string(offer.energy) : currency(dollars));
}

void drawWeeklyEventCount(Game& game, WeeklyEvents& events) {
  events = WeeklyEvents();
  const int64_t count = bandFor(buttonCounts, game.random.integer(0, buttonRollTop), mostButtons);
  if (count >= 1) drawWeeklyEvent(game, events, events.buttonEvent1);
  if (count >= 2) drawWeeklyEvent(game, events, events.buttonEvent2);
  if (count >= 3) drawWeeklyEvent(game, events, events.buttonEvent3);
}

int64_t drawWeeklyEvent(Game& game, WeeklyEvents& events, EventButton& button) {
  button = EventButton();
  button.id = game.random.integer(0, static_cast<int64_t>(offers.size()) - 1) + 1;
  button.offer = offers[static_cast<size_t>(button.id) - 1];
  if (button.id == annualCheckup) button.dollars = checkupCost(game.state);
  if (button.id == goodCauses) drawAppeal(game, events, button);
  if (button.id == verseOrFan) {
    events.featuredArtistEligible = skilledEnoughToFeature(game.state) ? 1 : 0;
    if (events.featuredArtistEligible == 1) button.offer = featureRequest;
  }
  return button.id;
}

Outcome pressEventButton(Game& game, WeeklyEvents& events, EventButton& button) {
  if (!button.shown()) return {};
  button.pressed = true;
  return resolveWeeklyEvent(game, events, button.id);
}

Outcome resolveWeeklyEvent(Game& game, const WeeklyEvents& events, int64_t id) {
  switch (id) {
    case karaokeNight: return singKaraoke(game);
    case oddJobs: return work(game, 30, noEnergyForHustle, hustleAmount, "💪 Odd Jobs 💪", "\nHustle baby! You gained ");
    case rentalInquiry:
      return work(game, 15, "\nYou do not have enough energy available to deal with a studio rental today.",
                  studioRentalIncome, "🎧 Studio Rented! 🎧",
                  "\nInvestments pay off! You rented out your studio to an eager artist and earned ");
    case ghostWriting:
      return work(game, 35, "\nYou do not have enough energy available to write a song for someone else.",
                  ghostWritingIncome, "📝 Ghost Writer! 📝",
                  "\nYou lyrical genius! You put your songwriting ability to the test and earned ");
    case radioShow: return goOnAir(game);
    case annualCheckup: return seeDoctor(game);
    case talentShow: return audition(game);
    case dropShipping: return tryDropShipping(game);
    case pitchDeck: return readPitchDeck(game);
    case goodCauses: return answerAppeal(game, events.moneyForEvent10);
    case sellBeats:
      return work(game, 20, "\nYou do not have enough energy available to market and sell your beats today.",
                  studioRentalIncome, "Your Beats are 🔥",
                  "\nYou've been doin' work in the studio and sold some of your beats online for ");
    case tikTak: return recordTikTak(game);
    case musicLesson:
      return work(
          game, 15, "\nYou do not have enough energy available to pass on your musical talent to the next generation.",
          musicLessonIncome, "🎼 Music Teacher 🎼", "\nYou went over scales and theory with eager students and earned ");
    case verseOrFan: return events.featuredArtistEligible == 1 ? recordVerse(game) : meetFan(game);
    case festivalInvite: return answerFestival(game);
  }
  return {};
}

Card eventCard(const EventButton& button, std::string press) {
  Card card;
  card.picture = icon(button.offer.icon);
  card.title = button.offer.headline;
  card.text = button.offer.promise;
  Button take;
  take.id = std::move(press);
  take.label = button.offer.name;
  // The price completes the caption; an amount that is nothing or less has no price to show and stands in the words.
  if (button.offer.energy > 0 || button.dollars > 0) {
    take.price = Price{button.offer.energy, button.dollars};
  } else {
    take.label = button.caption();
  }
  take.style = Button::Style::primary;
  card.buttons.push_back(std::move(take));
  return card;
}

}  // namespace backbeat
