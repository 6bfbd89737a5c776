#include "core/career_file.h"

#include <cmath>

#include "core/career_check.h"
#include "core/record_codec.h"
#include "core/save_file.h"

namespace backbeat {

namespace {

using Ref = PropertyListWriter::Ref;

constexpr const char* noCareer = "This file is a property list, but no career of this game.";

// Many times what the game writes; files of other versions may hold keys of their own.
constexpr size_t mostKeys = 10'000;

/// Takes the keys of a file one by one.
class CareerReader {
 public:
  explicit CareerReader(std::string_view file) : decoder_(file) {}

  ImportedCareer run(std::string_view file) {
    const auto entries = decoder_.rootEntries();
    if (!entries) return refusal(notAList(file));
    if (entries->size() > mostKeys) return refusal("This file holds more keys than any career.");
    for (size_t i = 0; i < entries->size(); ++i) {
      if (!decoder_.isText(entries->keys[i])) return refusal("This file is damaged: one of its keys is no text.");
      const std::optional<std::string> key = decoder_.keyText(entries->keys[i]);
      if (!key) continue;
      if (!places_.emplace(*key, entries->values[i]).second) return refusal("This file holds " + *key + " twice.");
    }
    for (const Scalar& scalar : scalars) {
      std::visit([&](auto member) { take(scalar.key, [&](auto ref) { return readScalar(ref, state_.*member); }); },
                 scalar.member);
    }
    for (const auto& [key, list] : listsOf(state_)) {
      take(key, [&](auto ref) { return readList(ref, list); });
    }
    if (!problem_.empty()) return refusal(problem_);
    if (missing_.size() == scalars.size() + fieldCount<GameState>) {
      return refusal(noCareer);
    }
    const std::vector<std::string> unbearable = unbearableValues(state_, 1);
    if (!unbearable.empty()) return refusal("This file cannot be used: " + unbearable.front() + ".");
    Reconciled reconciled = reconcile(state_);
    if (!reconciled.refusal.empty()) return refusal("This file cannot be used. " + reconciled.refusal);
    ImportedCareer career;
    career.mended = std::move(reconciled.mended);
    career.state = std::move(state_);
    career.missing = std::move(missing_);
    return career;
  }

 private:
  static ImportedCareer refusal(std::string problem) {
    ImportedCareer career;
    career.problem = std::move(problem);
    return career;
  }

  static std::string notAList(std::string_view file) {
    if (file.empty()) return "This file is empty.";
    if (file.starts_with("<?xml")) {
      return "This file is a property list in XML; a binary one is needed (plistutil -f bin makes one).";
    }
    if (PropertyListReader::open(file)) return noCareer;
    if (file.starts_with("bplist")) return "This file is damaged: it is no whole property list.";
    return "This file is no career of this game: it is no binary property list.";
  }

  template <class Read>
  void take(std::string_view key, const Read& read) {
    if (!problem_.empty()) return;
    const auto place = places_.find(key);
    if (place == places_.end()) {
      missing_.emplace_back(key);
    } else if (!read(place->second)) {
      problem_ = "This file cannot be used: " + std::string(key) + ", " + decoder_.problem() + ".";
    }
  }

  bool readScalar(PropertyListReader::Ref ref, int64_t& out) {
    double real = 0;
    if (decoder_.read(ref, out)) return true;
    const bool whole = decoder_.read(ref, real) && real >= -0x1p63 && real < 0x1p63 && std::trunc(real) == real;
    if (whole) out = static_cast<int64_t>(real);
    return whole || decoder_.read(ref, out);
  }

  bool readScalar(PropertyListReader::Ref ref, double& out) {
    int64_t whole = 0;
    if (decoder_.read(ref, out)) return true;
    if (!decoder_.read(ref, whole)) return false;
    out = static_cast<double>(whole);
    return true;
  }

  template <class T>
  bool readScalar(PropertyListReader::Ref ref, T& out) {
    return decoder_.read(ref, out);
  }

  bool readList(PropertyListReader::Ref ref, ChunkedList& out) {
    RecordBuffer records(out.type());
    if (!decoder_.readRecords(ref, records)) return false;
    out.assign(std::move(records));
    return true;
  }

  RecordDecoder decoder_;
  GameState state_;
  std::map<std::string, PropertyListReader::Ref, std::less<>> places_;
  std::vector<std::string> missing_;
  std::string problem_;
};

/// Takes the rows that a save file writes.
class RowCollector final : public Store {
 public:
  bool commit(std::span<const Write> writes) override {
    rows.insert(rows.end(), writes.begin(), writes.end());
    return true;
  }
  bool visitRows(const std::function<void(std::string_view, int32_t, const Value&)>&) override { return true; }
  void quarantine(std::string_view) override {}

  std::vector<Write> rows;
};

}  // namespace

Bytes exportCareer(const GameState& state) {
  PropertyListWriter writer;
  RecordEncoder encoder(writer);
  std::vector<Ref> keys;
  std::vector<Ref> values;
  for (const Scalar& scalar : scalars) {
    keys.push_back(writer.text(scalar.key));
    values.push_back(std::visit([&](auto member) { return encoder.value(state.*member); }, scalar.member));
  }
  for (const auto& [key, list] : listsOf(state)) {
    keys.push_back(writer.text(key));
    values.push_back(encoder.records(list.type(), list.records()));
  }
  return writer.finish(writer.dictionary(keys, values));
}

std::string exportFileName(const GameState& state) {
  std::string artist;
  for (const char letter : state.myArtistsName) {
    const bool plain = (letter >= 'a' && letter <= 'z') || (letter >= '0' && letter <= '9');
    const bool capital = letter >= 'A' && letter <= 'Z';
    if (plain || capital) artist.push_back(capital ? static_cast<char>(letter - 'A' + 'a') : letter);
    if (letter == ' ' && !artist.empty() && artist.back() != '-') artist.push_back('-');
    if (artist.size() == 30) break;
  }
  if (!artist.empty() && artist.back() != '-') artist.push_back('-');
  return "backbeat-" + artist + std::to_string(state.yearNumber) + "-week-" + std::to_string(state.weekNumber) +
         ".plist";
}

ImportedCareer importCareer(std::string_view file) { return CareerReader(file).run(file); }

std::vector<Write> rowsOf(GameState& state) {
  RowCollector collector;
  SaveFile file(collector);
  for (const Scalar& scalar : scalars) file.writeScalar(state, scalar);
  for (const auto& [key, list] : listsOf(state)) file.writeList(key, list);
  file.commit();
  return std::move(collector.rows);
}

}  // namespace backbeat
