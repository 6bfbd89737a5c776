#include "core/career_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/memory_store.h"
#include "core/record_codec.h"
#include "core/save_file.h"
#include "support/small_career.h"
#include "support/test_folder.h"

namespace backbeat {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

TEST(CareerFile, HoldsEverythingAndSurvivesOtherTools) {
  const GameState state = smallCareer();
  const TestFolder folder;
  folder.write("ours", exportCareer(state));
  EXPECT_TRUE(folder.run("plistutil -f xml -i ours -o xml && plistutil -f bin -i xml -o theirs"));
  EXPECT_TRUE(folder.run(
      "python3 -c \"import plistlib; career = plistlib.load(open('ours', 'rb')); assert len(career) == 196; "
      "assert career['myArtistsName'] == 'Zo\\u00eb \\U0001f3a4'; assert career['totalCashAvailable'] == -12.5; "
      "assert career['saveAllSongList'][0]['songId'] == " +
      std::to_string(state.saveAllSongList[0].songId) +
      "; plistlib.dump(career, open('python', 'wb'), fmt=plistlib.FMT_BINARY)\""));
  for (const char* file : {"ours", "theirs", "python"}) {
    const ImportedCareer career = importCareer(folder.read(file));
    ASSERT_TRUE(career.state) << file << ": " << career.problem;
    EXPECT_EQ(*career.state, state) << file;
    EXPECT_THAT(career.missing, IsEmpty());
  }
}

TEST(CareerFile, BecomesASaveOfItsOwn) {
  GameState state = smallCareer();
  MemoryStore store;
  ASSERT_TRUE(store.replaceAll(rowsOf(state)));
  EXPECT_THAT(differencesFromStore(state, store), IsEmpty());
}

/// A career file with these keys and whole numbers, and beside them whatever `more` adds.
Bytes fileWith(const std::function<void(PropertyListWriter&, std::vector<uint32_t>&, std::vector<uint32_t>&)>& more) {
  PropertyListWriter writer;
  std::vector<uint32_t> keys = {writer.text("totalFans"), writer.text("somebodyElses")};
  std::vector<uint32_t> values = {writer.integer(77), writer.integer(1)};
  more(writer, keys, values);
  return writer.finish(writer.dictionary(keys, values));
}

TEST(CareerFile, NamesTheKeysItLacksAndTakesNumbersOfEitherKind) {
  const ImportedCareer career = importCareer(fileWith([](auto& writer, auto& keys, auto& values) {
    keys.insert(keys.end(), {writer.text("songWriting"), writer.text("totalCashAvailable")});
    values.insert(values.end(), {writer.real(12.0), writer.integer(-3)});
  }));
  ASSERT_TRUE(career.state) << career.problem;
  EXPECT_EQ(career.state->totalFans, 77);
  EXPECT_EQ(career.state->songWriting, 12);
  EXPECT_EQ(career.state->totalCashAvailable, -3.0);
  EXPECT_EQ(career.state->weekNumber, 1);
  EXPECT_THAT(career.missing, AllOf(Contains("weekNumber"), Contains("saveAllSongList"), Not(Contains("totalFans"))));
}

TEST(CareerFile, SaysWhatIsWrongAndWhere) {
  const auto problemOf = [](std::string_view file) {
    const ImportedCareer career = importCareer(file);
    EXPECT_FALSE(career.state);
    return career.problem;
  };
  const auto withValue = [&](std::string_view key, const std::function<uint32_t(PropertyListWriter&)>& value) {
    return problemOf(fileWith([&](auto& writer, auto& keys, auto& values) {
      keys.push_back(writer.text(key));
      values.push_back(value(writer));
    }));
  };
  const auto song = [](PropertyListWriter& writer, std::optional<uint32_t> listens) {
    const GameState state = smallCareer();
    std::vector<uint32_t> keys;
    std::vector<uint32_t> values;
    RecordEncoder encoder(writer);
    forEachField<Song>([&](const auto& field) {
      if (field.key == "totalListen" && !listens) return;
      keys.push_back(writer.text(field.key));
      values.push_back(field.key == "totalListen" ? *listens : encoder.value(state.saveAllSongList[0].*field.member));
    });
    const uint32_t record = writer.dictionary(keys, values);
    return writer.array({&record, 1});
  };
  EXPECT_THAT(problemOf(""), HasSubstr("empty"));
  EXPECT_THAT(problemOf("PK\x03\x04 something else"), HasSubstr("no binary property list"));
  EXPECT_THAT(problemOf("<?xml version=\"1.0\"?><plist/>"), HasSubstr("XML"));
  EXPECT_THAT(problemOf(exportCareer(smallCareer()).substr(0, 5000)), HasSubstr("damaged"));
  PropertyListWriter writer;
  EXPECT_THAT(problemOf(writer.finish(writer.array({}))), HasSubstr("no career"));
  EXPECT_THAT(problemOf(writer.finish(writer.dictionary({}, {}))), HasSubstr("no career"));
  EXPECT_THAT(withValue("weekNumber", [](auto& w) { return w.text("fourteen"); }), HasSubstr("weekNumber"));
  EXPECT_THAT(withValue("weekNumber", [](auto& w) { return w.real(1e300); }), HasSubstr("does not fit"));
  EXPECT_THAT(withValue("weekNumber", [](auto& w) { return w.real(3.5); }), HasSubstr("weekNumber"));
  EXPECT_THAT(withValue("totalFans", [](auto& w) { return w.integer(1); }), HasSubstr("totalFans twice"));
  EXPECT_THAT(withValue("saveAllSongList", [&](auto& w) { return song(w, std::nullopt); }),
              HasSubstr("saveAllSongList, entry 1: totalListen is missing"));
  EXPECT_THAT(withValue("saveAllSongList", [&](auto& w) { return song(w, w.real(0.5)); }),
              HasSubstr("saveAllSongList, entry 1: totalListen is of another kind"));
  EXPECT_THAT(withValue("saveAllSongList", [](auto& w) { return w.integer(3); }), HasSubstr("saveAllSongList"));
}

// More of them are the fuzzers' part.
TEST(CareerFile, ADamagedByteIsRefusedOrReadWhole) {
  const Bytes whole = exportCareer(smallCareer());
  for (size_t at = 0; at < whole.size(); at += 31) {
    Bytes damaged = whole;
    damaged[at] = static_cast<char>(damaged[at] ^ 0x55);
    const ImportedCareer career = importCareer(damaged);
    EXPECT_NE(career.state.has_value(), !career.problem.empty()) << at;
  }
}

TEST(CareerFile, GetsANameThatAnyDiskTakes) {
  GameState state;
  EXPECT_EQ(exportFileName(state), "backbeat-2023-week-1.plist");
  state.myArtistsName = "  Zoë & the 99/\\ Balloons!";
  state.yearNumber = 2031;
  EXPECT_EQ(exportFileName(state), "backbeat-zo-the-99-balloons-2031-week-1.plist");
}

}  // namespace
}  // namespace backbeat
