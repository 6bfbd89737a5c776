#include "play/random_player.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/week_rows.h"
#include "play/glass.h"

namespace backbeat {

namespace {

using namespace std::string_literals;

constexpr int64_t pressesBetweenChecksOfLargeWorlds = 10;
constexpr size_t hugeText = 100'000;

const std::array<std::string, 6> sensibleTexts = {"Midnight Rivers", "Paper Lanterns", "Mara",
                                                  "Blue Hour",       "Sound & Sons",   "Thank you all!"};
const std::array<std::string, 18> absurdTexts = {"",
                                                 " ",
                                                 "0",
                                                 "-1",
                                                 "1e308",
                                                 "9223372036854775807",
                                                 "-9223372036854775808",
                                                 "99999999999999999999",
                                                 "0.5",
                                                 "nan",
                                                 "\u202Eשלום עולם",
                                                 "👩‍👩‍👧‍👦🏳️‍🌈🇳🇴",
                                                 "a\0b"s,
                                                 "<script>alert(1)</script>",
                                                 "\xFF\xFE broken",
                                                 "line\nbreak\r\n\ttab",
                                                 "Single",
                                                 "%s%n ${x} '; DROP TABLE kv; --"};

/// Whether the index of a history finds what looking at every row finds.
template <class T>
std::string historyFault(std::string_view key, const RecordList<T>& list) {
  if constexpr (historyKeyOf<T> != nullptr) {
    std::map<int64_t, std::vector<uint32_t>> plain;
    for (uint32_t i = 0; i < list.size(); ++i) plain[list[i].*historyKeyOf<T>].push_back(i);
    for (const auto& [id, positions] : plain) {
      const auto found = list.historyOf(id);
      if (!std::equal(found.begin(), found.end(), positions.begin(), positions.end())) {
        return "the history of " + std::to_string(id) + " in " + std::string(key) + " is not what its rows say";
      }
    }
    if (!list.historyOf(-987'654'321).empty()) return "a history of nothing in " + std::string(key);
  }
  return {};
}

/// Whether the rows of the week that just ended are all that carry it.
template <class T>
std::string weekRowsFault(std::string_view key, const RecordList<T>& list, CalendarWeek week) {
  if constexpr (requires(T row) {
                  row.weekNumber;
                  row.yearNumber;
                }) {
    if (key.find("Weekly") == std::string_view::npos) return {};
    const auto plain = std::count_if(list.begin(), list.end(), [&](const T& row) {
      return CalendarWeek{row.weekNumber, row.yearNumber} == week;
    });
    if (static_cast<size_t>(plain) != rowsOfWeek(list, week).size()) {
      return "the rows of week " + std::to_string(week.week) + " in " + std::string(key) + " do not stand together";
    }
  }
  return {};
}

}  // namespace

void Coverage::add(const Coverage& other) {
  for (const auto& [screen, count] : other.screens) screens[screen] += count;
  for (const auto& [action, count] : other.actions) actions[action] += count;
  unknownSegues.insert(other.unknownSegues.begin(), other.unknownSegues.end());
}

std::vector<std::string> Coverage::neverPressed() const {
  std::vector<std::string> names;
  for (const auto& [action, count] : actions) {
    if (count == 0) names.push_back(action.first + " " + action.second);
  }
  return names;
}

RandomPlayer::RandomPlayer(uint64_t seed)
    : seed_(seed),
      random_(seed),
      world_(namedWorlds()[seed % namedWorlds().size()]),
      career_(store_, platform_, [this](const std::string& line) { lastLine_ = line.substr(0, 300); }),
      weights_{{random_.integer(30, 100), weight() / 4, weight() / 4, weight(), weight(), random_.integer(1, 20)}},
      absurdIn100_(weight()),
      hugeTexts_(random_.integer(0, 7) == 0) {
  settleInto(store_, world_);
  career_.play(launchEvent(now_, random_.bits64()));
}

std::string RandomPlayer::whereabouts() const {
  return "seed " + std::to_string(seed_) + ", world \"" + world_.name + "\", press " + std::to_string(pressesDone_) +
         ": " + lastLine_ + "\nagain: BACKBEAT_SEED=" + std::to_string(seed_) +
         " BACKBEAT_CAREERS=1 backbeat_tests --gtest_filter='RandomPlayer.*'\n";
}

std::string RandomPlayer::play(int64_t presses) {
  std::string found = fault();
  while (found.empty() && presses-- > 0) {
    play(anyEvent());
    found = fault();
  }
  return found;
}

void RandomPlayer::play(const TraceEvent& event) {
  ++pressesDone_;
  week_ = {career_.session().game().state.weekNumberForTracking, event.action.id == "endTheWeekButton"};
  if (beforePress) {
    lastLine_ = traceLine(event).substr(0, 300);
    beforePress(whereabouts());
  }
  career_.play(event);
  const auto& unknown = career_.session().navigator().unknownSegues();
  coverage_.unknownSegues.insert(unknown.begin(), unknown.end());
}

TraceEvent RandomPlayer::anyEvent() {
  now_ += random_.integer(1, 3'000'000);
  const Shown shown = career_.session().shown();
  const std::vector<Pressable> offered = printScreen(career_.session().navigator(), shown, false).pressables;
  note(shown, offered);
  size_t kind = 0;
  for (int64_t draw = random_.integer(1, weights_.sum()); draw > weights_.of[kind]; ++kind) draw -= weights_.of[kind];
  switch (kind) {
    case Weights::unknown: return unknownPress();
    case Weights::reload: return launchEvent(now_, random_.bits64());
    case Weights::back: return actEvent(now_, "nav", {"back", ""});
    case Weights::tab: return actEvent(now_, "tabs", {"tab", std::to_string(random_.integer(0, tabCount))});
    case Weights::endWeek: return actEvent(now_, "nav", {"endTheWeekButton", ""});
    default: return anyPress(offered);
  }
}

TraceEvent RandomPlayer::anyPress(const std::vector<Pressable>& offered) {
  if (offered.empty()) return actEvent(now_, "nav", {"back", ""});
  const Pressable& pressable = wanted(offered);
  const std::string screen(career_.session().shown().screen);
  if (pressable.screenKey != "alert") ++coverage_.actions[{screen, std::string(pressable.action.verb())}];
  return actEvent(now_, pressable.screenKey, {pressable.action.id, valueFor(pressable)});
}

/// Half the time whatever was pressed least so far, so that everything gets its turn.
const Pressable& RandomPlayer::wanted(const std::vector<Pressable>& offered) {
  const Pressable& any = random_.element(offered);
  if (random_.coin() == 0 || any.screenKey == "alert") return any;
  const std::string screen(career_.session().shown().screen);
  const auto pressed = [&](const Pressable& p) { return coverage_.actions[{screen, std::string(p.action.verb())}]; };
  const Pressable* least = &any;
  for (const Pressable& pressable : offered) {
    if (pressed(pressable) < pressed(*least)) least = &pressable;
  }
  return *least;
}

std::string RandomPlayer::valueFor(const Pressable& pressable) {
  if (pressable.screenKey != "alert" && random_.integer(1, 100) <= absurdIn100_) return absurdValue();
  switch (pressable.takes) {
    case Pressable::Takes::text: return random_.element(sensibleTexts);
    case Pressable::Takes::option:
      return std::to_string(random_.integer(0, std::max<int64_t>(pressable.options, 1) - 1));
    case Pressable::Takes::nothing:
    case Pressable::Takes::flag:
    case Pressable::Takes::row: break;
  }
  return pressable.action.value;
}

std::string RandomPlayer::absurdValue() {
  if (hugeTexts_ && random_.integer(0, 9) == 0) return std::string(hugeText, 'x');
  return random_.element(absurdTexts);
}

/// A press of something that is not there: another screen's button, a record that does not exist, nonsense.
TraceEvent RandomPlayer::unknownPress() {
  const Shown shown = career_.session().shown();
  const std::vector<Pressable> offered = printScreen(career_.session().navigator(), shown, false).pressables;
  std::string id = absurdValue();
  if (!coverage_.actions.empty() && random_.coin() == 1) {
    auto known = coverage_.actions.begin();
    std::advance(known, random_.integer(0, static_cast<int64_t>(coverage_.actions.size()) - 1));
    id = known->first.second;
    if (random_.coin() == 1) id += ":" + absurdValue();
  }
  const std::array<std::string, 5> keys = {std::to_string(shown.key), std::to_string(shown.key), "alert", "tabs",
                                           absurdValue()};
  return actEvent(now_, random_.element(keys), {id, absurdValue()});
}

void RandomPlayer::note(const Shown& shown, const std::vector<Pressable>& offered) {
  const std::string screen(shown.screen);
  ++coverage_.screens[screen];
  for (const Pressable& pressable : offered) {
    if (pressable.screenKey != "alert")
      coverage_.actions.try_emplace({screen, std::string(pressable.action.verb())}, 0);
  }
}

std::string RandomPlayer::fault() {
  const Session& session = career_.session();
  const GameState& state = session.game().state;
  if (!session.loadReport().damagedLists.empty()) return "a list of its own save was damaged at a reload";
  if (!world_.large || pressesDone_ % pressesBetweenChecksOfLargeWorlds == 0 || week_.ending) {
    const std::vector<std::string> unsaved = differencesFromStore(state, store_);
    if (!unsaved.empty()) return "not saved: " + unsaved.front();
  }
  if (std::string found = glassFault(session, [&] { return session.shown(); }); !found.empty()) return found;
  return week_.ending && state.weekNumberForTracking != week_.tracking ? weekFault(state) : "";
}

std::string RandomPlayer::weekFault(const GameState& state) const {
  if (state.weekNumber < 1 || state.weekNumber > 52) return "the week is " + std::to_string(state.weekNumber);
  if (state.weekNumberForTracking != week_.tracking + 1) return "the week moved by more than one";
  if (state.totalEnergyAvailable < 0) return "the energy is below 0";
  if (!std::isfinite(state.totalCashAvailable)) return "the cash is no number";
  std::set<int64_t> ids;
  for (const Song& song : state.saveAllSongList) {
    if (!ids.insert(song.songId).second) return "two songs have the id " + std::to_string(song.songId);
  }
  const CalendarWeek ended = state.weekNumber == 1 ? CalendarWeek{52, state.yearNumber - 1}
                                                   : CalendarWeek{state.weekNumber - 1, state.yearNumber};
  std::string found;
  forEachField<GameState>([&](const auto& field) {
    if (found.empty()) found = historyFault(field.key, state.*field.member);
    if (found.empty()) found = weekRowsFault(field.key, state.*field.member, ended);
  });
  return found;
}

}  // namespace backbeat
