#include "play/state_summary.h"

#include <algorithm>
#include <charconv>
#include <set>
#include <sstream>
#include <vector>

#include "core/json.h"
#include "core/random.h"
#include "core/record_codec.h"
#include "shell/trace.h"

namespace backbeat {

namespace {

std::string told(int64_t number) { return std::to_string(number); }

/// As short as it can be read back.
std::string told(double number) {
  char digits[32];
  return std::string(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

std::string told(const std::string& text) {
  JsonWriter json;
  json.text(text);
  return json.str();
}

std::string told(const std::vector<int64_t>& numbers) {
  std::string text = "[";
  for (const int64_t number : numbers) text += (text.size() > 1 ? " " : "") + told(number);
  return text + "]";
}

std::string told(const std::map<std::string, std::string>& texts) {
  std::string text = "{";
  for (const auto& [key, value] : texts) text += (text.size() > 1 ? " " : "") + told(key) + ":" + told(value);
  return text + "}";
}

std::string told(const ChunkedList& list) {
  const std::vector<const void*> records = list.records();
  PropertyListWriter writer;
  RecordEncoder encoder(writer);
  const Bytes bytes = writer.finish(encoder.records(list.type(), records));
  return told(static_cast<int64_t>(records.size())) + " " + hashText(hashOf(bytes));
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream input(text);
  for (std::string line; std::getline(input, line);) lines.push_back(line);
  return lines;
}

}  // namespace

std::string summaryOf(const GameState& state) {
  std::string text;
  for (const Scalar& scalar : scalars) {
    text += std::string(scalar.key) + " ";
    std::visit([&](auto member) { text += told(state.*member); }, scalar.member);
    text += "\n";
  }
  for (const auto& [key, list] : listsOf(state)) text += std::string(key) + " " + told(list) + "\n";
  return text;
}

std::string differenceOf(const std::string& expected, const std::string& actual) {
  const std::vector<std::string> before = linesOf(expected);
  const std::vector<std::string> after = linesOf(actual);
  const std::set<std::string> known(before.begin(), before.end());
  const std::set<std::string> there(after.begin(), after.end());
  std::string text;
  for (const std::string& line : before) text += there.contains(line) ? "" : "- " + line + "\n";
  for (const std::string& line : after) text += known.contains(line) ? "" : "+ " + line + "\n";
  return text;
}

}  // namespace backbeat
