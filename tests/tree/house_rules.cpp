#include "tree/house_rules.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <optional>
#include <utility>

namespace backbeat::tree {

namespace {

/// The rooms from the top of the house down; a room may include only what stands before it, and itself.
constexpr std::string_view rooms[] = {"core",  "social", "career", "music",       "video", "features", "live",
                                      "merch", "label",  "wealth", "recognition", "life",  "turn",     "shell"};

constexpr int longestFile = 700;  // lines

bool endsWithAny(std::string_view text, std::initializer_list<std::string_view> ends) {
  return std::any_of(ends.begin(), ends.end(), [&](std::string_view end) { return text.ends_with(end); });
}

bool isWordCharacter(char c) {
  return c == '_' || (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

/// The room of a file below src, or nothing.
std::optional<std::string_view> roomOf(std::string_view path) {
  if (!path.starts_with("src/")) return std::nullopt;
  path.remove_prefix(4);
  return path.substr(0, path.find('/'));
}

/// A word of code with what stands around it.
struct Word {
  std::string_view text;
  std::string_view before;  ///< the line up to it, without spaces at the end
  std::string_view after;   ///< the line behind it, without spaces at the start

  bool isStandard() const { return before.ends_with("std::"); }
  bool isCalled() const { return after.starts_with("("); }
  /// Neither a member nor of another namespace, nor the name in a declaration.
  bool isFree() const {
    if (isStandard() || before.empty() || before.ends_with("return")) return true;
    return !endsWithAny(before, {".", "->", "::"}) && !isWordCharacter(before.back());
  }
  bool isStandardCall() const { return isCalled() && isFree(); }
};

template <class Visit>
void forEachWord(std::string_view line, Visit&& visit) {
  for (size_t begin = 0; begin < line.size();) {
    if (!isWordCharacter(line[begin])) {
      ++begin;
      continue;
    }
    size_t end = begin;
    while (end < line.size() && isWordCharacter(line[end])) ++end;
    Word word{line.substr(begin, end - begin), line.substr(0, begin), line.substr(end)};
    while (word.before.ends_with(' ')) word.before.remove_suffix(1);
    while (word.after.starts_with(' ')) word.after.remove_prefix(1);
    visit(word);
    begin = end;
  }
}

template <class Visit>
void forEachLine(std::string_view text, Visit&& visit) {
  for (int number = 1; !text.empty(); ++number) {
    const size_t end = std::min(text.find('\n'), text.size());
    visit(number, text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
}

bool isOneOf(std::string_view word, std::initializer_list<std::string_view> words) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

bool isCalendarOfTheSystem(const Word& word) {
  if (!word.isStandardCall()) return false;
  // "time" and "clock" are words of the game too; with these arguments they are the C library's.
  if (word.text == "time") return endsWithAny(word.after.substr(0, word.after.find(')')), {"(nullptr", "(NULL", "(0"});
  if (word.text == "clock") return word.after.starts_with("()");
  return isOneOf(word.text, {"localtime", "gmtime", "mktime", "clock_gettime"});
}

/// What would make two builds, or two runs of one, play different games. "" when the word is harmless.
std::string_view chanceOrPlatformIn(const Word& word) {
  if (word.text.ends_with("_distribution") || word.text == "random_device" || word.text.starts_with("mt19937")) {
    return "chance of the standard library differs between platforms; ask the game's Random";
  }
  if (isOneOf(word.text, {"shuffle", "sample"}) && word.before.ends_with("::")) {
    return "std::shuffle differs between platforms; Random shuffles";
  }
  if (isOneOf(word.text, {"rand", "srand"}) && word.isStandardCall()) return "chance comes from the game's Random";
  const bool isClock = isOneOf(word.text, {"chrono", "steady_clock", "system_clock", "high_resolution_clock"});
  if (isClock || isCalendarOfTheSystem(word)) return "time comes from the game's Clock";
  const bool isInexact =
      isOneOf(word.text, {"pow", "exp", "exp2", "expm1", "log", "log2", "log10", "log1p", "sin", "cos", "tan", "tanh",
                          "atan", "atan2", "cbrt", "hypot", "erf", "lgamma", "tgamma"});
  if (isInexact && word.isStandardCall()) {
    return "C libraries differ in its last bit; core/numbers.h has power";
  }
  return "";
}

std::string_view unstableOrderIn(const Word& word, std::string_view path) {
  // These look things up; what one of them walks is room to be made, in whatever order.
  const bool isOrderNeverSeen =
      isOneOf(path, {"src/core/chunked_list.h", "src/core/chunked_list.cpp", "src/core/save_file.h"});
  if (!word.text.starts_with("unordered_") || isOrderNeverSeen) return "";
  return "the order of an unordered container differs between platforms";
}

std::string_view unstableSizeIn(const Word& word, std::string_view path) {
  if (!path.starts_with("src/core/records/")) return "";
  if (isOneOf(word.text, {"long", "size_t", "ptrdiff_t", "unsigned"})) {
    return "its size differs between builds; records hold int64_t";
  }
  return "";
}

/// How many commas stand in the brackets of a call, as far as the line goes.
ptrdiff_t commasIn(const Word& call) {
  const std::string_view arguments = call.after.substr(0, call.after.find_last_of(')'));
  return std::count(arguments.begin(), arguments.end(), ',');
}

/// Calls that refuse by throwing, which ends a program that is built without exceptions.
std::string_view throwingIn(const Word& word, std::string_view path) {
  if (!path.starts_with("src/") || path == "src/shell/native/command_line.cpp") return "";
  const bool isMember = endsWithAny(word.before, {".", "->"});
  if (word.text == "at" && isMember && word.isCalled()) return "throws past the end; look first";
  if (word.text == "value" && isMember && word.after.starts_with("()")) return "throws without a value; * does not";
  if (isOneOf(word.text, {"stoi", "stol", "stoll", "stoul", "stoull", "stof", "stod", "stold"})) {
    return "throws at what is no number; std::from_chars does not";
  }
  if (isOneOf(word.text, {"istreambuf_iterator", "ostreambuf_iterator"}))
    return "throws at a folder; readFile does not";
  if (isOneOf(word.text, {"regex", "random_device", "vformat", "any_cast", "bad_alloc", "throw"})) return "throws";
  if (!word.before.ends_with("filesystem::") && !word.before.ends_with("fs::")) return "";
  if (word.text.ends_with("directory_iterator")) return "its steps throw";
  const bool asksForTwo = isOneOf(word.text, {"rename", "copy", "copy_file", "equivalent", "resize_file"});
  return word.isCalled() && word.text != "path" && commasIn(word) < (asksForTwo ? 2 : 1)
             ? "throws without an error code"
             : "";
}

/// Where energy and cash change hands without the purse: the settlement of the week, the refill, another life.
bool mayOpenThePurse(std::string_view path) {
  return isOneOf(path, {"src/core/purse.cpp", "src/core/new_game.cpp", "src/career/energy.cpp", "src/life/takeover.cpp",
                        "src/turn/weekly_report.cpp"});
}

std::string_view spendingIn(const Word& word, std::string_view path) {
  const bool isPurse = isOneOf(word.text, {"totalCashAvailable", "totalEnergyAvailable"});
  if (!isPurse || !path.starts_with("src/") || mayOpenThePurse(path)) return "";
  const bool isMember = word.before.ends_with(".") || word.before.ends_with("->");
  const bool isChanged = endsWithAny(word.after.substr(0, 2), {"+=", "-=", "*=", "/=", "++", "--"}) ||
                         (word.after.starts_with("=") && !word.after.starts_with("=="));
  return isMember && isChanged ? "only the purse spends and earns" : "";
}

/// Only what opens screens knows them; what they have in common stands among them.
bool mayKnowScreens(std::string_view path) {
  return path.find("/screens/") != path.npos || path.ends_with("/segues.cpp") || path == "src/shell/registry.cpp";
}

void checkInclude(std::string_view path, std::string_view room, std::string_view included, int line,
                  std::vector<Complaint>& found) {
  const auto place = [](std::string_view name) { return std::find(std::begin(rooms), std::end(rooms), name); };
  const std::string_view other = included.substr(0, included.find('/'));
  if (place(other) == std::end(rooms)) {
    found.push_back({line, "includes \"" + std::string(included) + "\", which lies in no room"});
  } else if (place(room) < place(other)) {
    found.push_back({line, std::string(room) + " may not know " + std::string(other)});
  } else if (included.find("/screens/") != included.npos && !mayKnowScreens(path)) {
    found.push_back({line, "a rule knows no screen"});
  }
}

void checkPreprocessor(std::string_view path, std::string_view line, int number, std::vector<Complaint>& found) {
  constexpr std::string_view include = "#include \"";
  const auto room = roomOf(path);
  if (room && line.starts_with(include)) {
    const std::string_view rest = line.substr(include.size());
    checkInclude(path, *room, rest.substr(0, rest.find('"')), number, found);
  }
  if (line.starts_with("#define")) found.push_back({number, "a macro"});
  if (line.starts_with("#if") && room != "shell") found.push_back({number, "the same code for every build"});
}

void checkCode(std::string_view path, std::string_view text, std::vector<Complaint>& found) {
  const auto room = roomOf(path);
  const bool isRule = room && room != "shell";
  const bool isHeader = path.ends_with(".h");
  // Literals go, but the name in an include is one: preprocessor lines are read from the text as it stands.
  const std::string code = withoutLiterals(text, false);
  forEachLine(code, [&](int number, std::string_view line) {
    if (isHeader && line.find("using namespace") != line.npos) found.push_back({number, "using namespace in a header"});
    forEachWord(line, [&](const Word& word) {
      const auto complain = [&](std::string_view what) {
        if (!what.empty()) found.push_back({number, std::string(word.text) + ": " + std::string(what)});
      };
      complain(spendingIn(word, path));
      complain(throwingIn(word, path));
      if (!isRule) return;
      complain(chanceOrPlatformIn(word));
      complain(unstableOrderIn(word, path));
      complain(unstableSizeIn(word, path));
    });
  });
  forEachLine(text, [&](int number, std::string_view line) { checkPreprocessor(path, line, number, found); });
  if (isHeader && text.find("\n#pragma once\n") == text.npos && !text.starts_with("#pragma once\n")) {
    found.push_back({1, "a header without #pragma once"});
  }
  if (room && std::find(std::begin(rooms), std::end(rooms), *room) == std::end(rooms)) {
    found.push_back({1, "lies in no room"});
  }
}

/// Words that no text of the house uses, put together here so that this one does not either: the names of documents
/// and of workplaces that a reader of the tree has never seen.
std::string_view foreignWordIn(const Word& word) {
  static const std::string spec = "spec";
  const bool isName = isOneOf(word.text, {spec, spec + "ification"});
  if (isName && endsWithAny(word.before, {"the", "The", "this", "per", "our"}))
    return "points at a document nobody has";
  if (word.text == spec + "ified" && endsWithAny(word.before, {"as", "As"})) return "points at a document nobody has";
  if (isOneOf(word.text, {"Part", "Parts"}) && !word.after.empty() && word.after[0] >= '0' && word.after[0] <= '9') {
    return "points at a document nobody has";
  }
  if (word.text == "work" && word.before.ends_with("/") && word.after.starts_with("/")) {
    const size_t place = word.before.size() - 1;
    const bool isRoot = place == 0 || !isWordCharacter(word.before[place - 1]);
    if (isRoot) return "a path of one machine";
  }
  return "";
}

void checkText(std::string_view path, std::string_view text, std::vector<Complaint>& found) {
  const bool isCode = endsWithAny(path, {".h", ".cpp", ".c"});
  int lines = 0;
  forEachLine(text, [&](int number, std::string_view line) {
    lines = number;
    if (line.find('\t') != line.npos) found.push_back({number, "a tab"});
    if (line.ends_with(' ')) found.push_back({number, "blanks at the end"});
  });
  // What people read on the screen is not the house talking about itself: literals of code are left out.
  const std::string words = isCode ? withoutLiterals(text, true) : std::string(text);
  forEachLine(words, [&](int number, std::string_view line) {
    forEachWord(line, [&](const Word& word) {
      const std::string_view what = foreignWordIn(word);
      if (!what.empty()) found.push_back({number, std::string(word.text) + ": " + std::string(what)});
    });
  });
  if (lines > longestFile) found.push_back({lines, "more than " + std::to_string(longestFile) + " lines"});
}

/// Walks a C++ text and knows at each character whether it is code, comment or literal.
class Blanker {
 public:
  Blanker(std::string_view text, bool keepComments) : text_(text), keepComments_(keepComments) {}

  std::string blanked() {
    while (at_ < text_.size()) step();
    return std::move(result_);
  }

 private:
  void step() {
    if (text_.substr(at_).starts_with("//")) return take(text_.find('\n', at_), keepComments_);
    if (text_.substr(at_).starts_with("/*")) return take(behind("*/", at_ + 2), keepComments_);
    if (text_.substr(at_).starts_with("R\"")) return raw();
    const char c = text_[at_];
    const bool separatesDigits = c == '\'' && at_ > 0 && isWordCharacter(text_[at_ - 1]);
    if (c == '"' || (c == '\'' && !separatesDigits)) return quoted(c);
    take(at_ + 1, true);
  }

  void quoted(char quote) {
    size_t end = at_ + 1;
    while (end < text_.size() && text_[end] != quote && text_[end] != '\n') end += text_[end] == '\\' ? 2 : 1;
    blankBetween(end);
  }

  void raw() {
    const size_t open = text_.find('(', at_);
    const std::string close = ")" + std::string(text_.substr(at_ + 2, open - at_ - 2)) + "\"";
    take(at_ + 1, true);
    blankBetween(behind(close, open) - 1);
  }

  void blankBetween(size_t closing) {
    take(at_ + 1, true);
    take(closing, false);
    take(closing + 1, true);
  }

  size_t behind(std::string_view mark, size_t from) const {
    const size_t found = text_.find(mark, from);
    return found == text_.npos ? text_.size() : found + mark.size();
  }

  void take(size_t end, bool keep) {
    for (end = std::min(end, text_.size()); at_ < end; ++at_) {
      result_ += keep || text_[at_] == '\n' ? text_[at_] : ' ';
    }
  }

  std::string_view text_;
  bool keepComments_;
  size_t at_ = 0;
  std::string result_;
};

}  // namespace

std::string withoutLiterals(std::string_view text, bool keepComments) { return Blanker(text, keepComments).blanked(); }

std::vector<Complaint> complaintsAbout(std::string_view path, std::string_view text) {
  std::vector<Complaint> found;
  checkText(path, text, found);
  if (endsWithAny(path, {".h", ".cpp"})) checkCode(path, text, found);
  return found;
}

}  // namespace backbeat::tree
