#include "shell/native/console_player.h"

#include <algorithm>
#include <ostream>
#include <utility>

#include "core/case_folding.h"
#include "core/text.h"
#include "shell/native/career_transfer.h"
#include "shell/native/file_places.h"
#include "shell/native/terminal_text.h"

namespace backbeat {

namespace {

constexpr const char* helpText =
    "Type the number of what you want to press.\n"
    "  3 Midnight Rivers   fills a text           5 2           takes option 2\n"
    "  3                   asks for the text      and an empty line empties it\n"
    "  4 on, 4 off         turns a switch         more, earlier moves in a long list\n"
    "  home, music, life, business, social        the tabs\n"
    "  back                one screen back        end           END THE WEEK\n"
    "  info                about this screen      again         shows it once more\n"
    "  export FILE         the career as a file   import FILE   goes on with such a file\n"
    "  export --force FILE when the file is there already\n"
    "  import --force FILE when the oldest kept copy has to go for it\n"
    "  help                this text              quit          leaves; everything is kept\n"
    "✗ stands behind a price that you cannot pay now.\n"
    "(locked) behind what something else has to come before.\n";

/// The input up to the first space, and what stands behind it.
std::pair<std::string_view, std::string_view> firstWord(std::string_view input) {
  const size_t space = std::min(input.find(' '), input.size());
  std::string_view rest = input.substr(space);
  while (rest.starts_with(' ')) rest.remove_prefix(1);
  return {input.substr(0, space), rest};
}

}  // namespace

ConsolePlayer::ConsolePlayer(TraceRecorder& career, CareerStore& store, FreeShop& shop, LineInput input,
                             std::ostream& out, bool colour, std::function<int64_t()> now,
                             std::function<size_t()> columns)
    : career_(career),
      store_(store),
      shop_(shop),
      input_(std::move(input)),
      out_(out),
      colour_(colour),
      now_(std::move(now)),
      columns_(std::move(columns)) {}

void ConsolePlayer::run() {
  for (std::optional<std::string> line = "again"; line && obey(*line); line = input_("> ")) out_.flush();
  const SaveFile& saveFile = career_.session().game().saveFile;
  const bool kept = saveFile.keeping() && !saveFile.failing();
  out_ << (kept ? "See you. Your career is kept up to here.\n" : "See you. The last steps are not kept.\n");
  out_.flush();
}

void ConsolePlayer::show() {
  const Session& session = career_.session();
  shown_ = session.shown();
  if (shown_.notice == noticeTold_) shown_.notice.clear();
  if (!shown_.notice.empty()) noticeTold_ = shown_.notice;
  printed_ = printScreen(session.navigator(), shown_, colour_, columns_());
  out_ << '\n' << printed_.text;
  if (shown_.endWeek && !shown_.alert) {
    say("Type end to END THE WEEK, a number to press, or help.");
  } else if (!helpNamed_) {
    say("Type the number of what you want to press, or help.");
  }
  helpNamed_ = true;
  if (shown_.feedback == Feedback::energyBounce) say("⚡ This week's energy does not reach for that.");
  if (session.game().saveFile.failing()) {
    say("Nothing could be saved just now. The game tries again with every press; do not leave before it works.");
  }
}

void ConsolePlayer::say(const std::string& text) { out_ << text << '\n'; }

bool ConsolePlayer::obey(std::string_view input) {
  const std::string clean = trimmed(validUtf8(input));
  const auto [word, value] = firstWord(clean);
  if (word.empty()) {
    show();
  } else if (const auto number = wholeNumber(word)) {
    pressNumber(static_cast<size_t>(std::max<int64_t>(*number, 0)), value);
  } else {
    return obeyWord(foldCase(word), value);
  }
  return true;
}

bool ConsolePlayer::obeyWord(const std::string& word, std::string_view value) {
  if (word == "quit" || word == "exit") return false;
  const auto tab =
      std::find_if(tabs().begin(), tabs().end(), [&](const Tab& each) { return foldCase(each.label) == word; });
  if (word == "help" || word == "?") {
    out_ << helpText;
  } else if (word == "again") {
    show();
  } else if (word == "info") {
    out_ << printHelp(shown_.view, columns_());
  } else if (word == "export") {
    exportTo(value);
  } else if (word == "import") {
    importFrom(value);
  } else if (shown_.alert) {
    say("Answer the message first: type the number of a button.");
  } else if (tab != tabs().end()) {
    pressTab(static_cast<size_t>(tab - tabs().begin()));
  } else if (word == "back") {
    pressBack();
  } else if (word == "end") {
    pressEnd();
  } else if (word == "more" || word == "earlier") {
    pressWindow(word == "earlier");
  } else {
    say("\"" + oneLine(word, 30) + "\" means nothing here. Type a number from the screen, or help.");
  }
  return true;
}

void ConsolePlayer::pressNumber(size_t number, std::string_view value) {
  const size_t count = printed_.pressables.size();
  if (number < 1 || number > count) {
    return say(count == 0 ? "There is nothing to press here. Type help for what else you can do."
                          : "The numbers here go from 1 to " + std::to_string(count) + ".");
  }
  const Pressable chosen = printed_.pressables[number - 1];
  Action action = chosen.action;
  const std::string name = std::to_string(number);
  switch (chosen.takes) {
    case Pressable::Takes::text:
    case Pressable::Takes::photo: {
      const auto text = value.empty() ? askForText(chosen) : std::string(value);
      if (!text || (text->empty() && chosen.takes == Pressable::Takes::photo)) return;
      action.value = chosen.maxLength > 0 ? firstCharacters(*text, static_cast<size_t>(chosen.maxLength)) : *text;
      break;
    }
    case Pressable::Takes::option: {
      const auto option = wholeNumber(value);
      if (!option || *option < 1 || *option > chosen.options) {
        return say("Type the number of an option behind it, 1 to " + std::to_string(chosen.options) + ": " + name +
                   " 1");
      }
      action.value = std::to_string(*option - 1);
      break;
    }
    case Pressable::Takes::flag:
      if (value == "on") action.value = "1";
      if (value == "off") action.value = "0";
      break;
    case Pressable::Takes::nothing:
    case Pressable::Takes::row: break;
  }
  press(chosen.screenKey, action);
}

std::optional<std::string> ConsolePlayer::askForText(const Pressable& field) {
  say(field.takes == Pressable::Takes::photo ? "Paste the picture as a data: address; an empty line leaves it as it is."
                                             : "Type the text; an empty line empties it.");
  out_.flush();
  const auto line = input_(oneLine(field.label, 30) + ": ");
  if (!line) return std::nullopt;
  return trimmed(validUtf8(*line));
}

void ConsolePlayer::pressTab(size_t tab) {
  if (shown_.modal) return say("This screen wants an answer before you go anywhere else.");
  press("tabs", {"tab", std::to_string(tab)});
}

void ConsolePlayer::pressBack() {
  if (shown_.modal) return say("This screen closes with one of its own buttons.");
  if (shown_.stack.size() <= 1) return say("This is the first screen of the tab. Type home, or quit to leave.");
  press("nav", {"back", ""});
}

void ConsolePlayer::pressEnd() {
  if (!shown_.endWeek) return say("END THE WEEK waits on the first screen of each tab. Go back, or type home.");
  press("nav", {"endTheWeekButton", ""});
}

void ConsolePlayer::pressWindow(bool earlier) {
  for (const Pressable& pressable : printed_.pressables) {
    if (pressable.takes == Pressable::Takes::row && pressable.earlier == earlier) {
      return press(pressable.screenKey, pressable.action);
    }
  }
  say(earlier ? "There are no earlier rows here." : "There are no more rows here.");
}

void ConsolePlayer::press(const std::string& screenKey, const Action& action) {
  career_.play(actEvent(now_(), screenKey, action));
  answerShop();
  obeyRequest();
  show();
}

void ConsolePlayer::answerShop() {
  if (std::string product = shop_.takeAsked(); !product.empty()) {
    const std::string transaction = "free-" + std::to_string(now_()) + "-" + std::to_string(++purchases_);
    career_.play(purchaseEvent(now_(), freeAnswer(std::move(product), transaction)));
  }
  if (shop_.takeReview()) say("\nThank you. That you play it is what we hoped for.");
}

void ConsolePlayer::obeyRequest() {
  const Request request = career_.session().shown().request;
  switch (request.kind) {
    case Request::Kind::exportCareer: return say("\nType export and the name of a file: export nova.plist");
    case Request::Kind::importCareer: return say("\nType import and the name of a file: import nova.plist");
    case Request::Kind::restore:
      if (!store_.restoreSnapshot(request.snapshot))
        return say("\nThat copy could not be restored. Nothing has changed.");
      return relaunch();
    case Request::Kind::feedback:
      return say("\nWrite to whoever gave you the game, and put this below your words:\n" + request.text);
    case Request::Kind::replay:
      return say("\nbackbeat play --trace FILE writes down all you press, from the start of the game on.");
    case Request::Kind::purchase:
    case Request::Kind::review:
    case Request::Kind::none: break;
  }
}

void ConsolePlayer::exportTo(std::string_view words) {
  const auto [first, rest] = firstWord(words);
  const bool force = first == "--force";
  const std::string path(force ? rest : words);
  if (path.empty()) return say("Type the name of a file behind it: export nova.plist");
  std::string problem = targetRefusal(path, "", force);
  if (problem.empty()) problem = exportToFile(career_.session().game().state, path);
  say(problem.empty() ? "Your career is in " + path + "." : problem);
}

void ConsolePlayer::importFrom(std::string_view words) {
  const auto [first, rest] = firstWord(words);
  const bool force = first == "--force";
  const std::string path(force ? rest : words);
  if (path.empty()) return say("Type the name of a file behind it: import nova.plist");
  const Date now{static_cast<double>(now_()) / 1000};
  ImportedCareer career = readCareer(path, now);
  if (!career.state) return say(career.problem);
  const PutInPlace done = putInPlace(career, store_, now, force);
  if (!done.problem.empty()) return say(done.problem);
  say(importMessage(career, done));
  relaunch();
  show();
}

/// Another career is in the save now.
void ConsolePlayer::relaunch() {
  const int64_t time = now_();
  noticeTold_.clear();
  career_.noteForeignCareer();
  career_.play(launchEvent(time, static_cast<uint64_t>(time)));
}

}  // namespace backbeat
