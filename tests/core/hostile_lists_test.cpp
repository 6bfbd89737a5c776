// Property lists that somebody made to stop the game: whatever they say, they are refused or read whole, in a time and
// a memory that follow from how many bytes they are. For longer:
//   BACKBEAT_HOSTILE_TRIES=100000 backbeat_tests --gtest_filter='HostileLists.*'
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

#include "core/career_file.h"
#include "core/memory_store.h"
#include "core/random.h"
#include "core/record_codec.h"
#include "core/save_file.h"
#include "play/worlds.h"
#include "support/small_career.h"
#include "support/weighed.h"

namespace backbeat {
namespace {

using namespace std::string_literals;

constexpr int64_t triesOfTheCheck = 2000;

Bytes bigEndian(uint64_t value, size_t width) {
  Bytes bytes;
  for (size_t i = width; i-- > 0;) bytes.push_back(static_cast<char>(value >> (8 * i)));
  return bytes;
}

/// A property list put together by hand: four bytes a ref, and whatever else one likes.
class Crafted {
 public:
  using Ref = uint64_t;

  Ref add(const Bytes& object) {
    const Ref ref = inside(bytes.size());
    bytes += object;
    return ref;
  }
  /// An object that begins anywhere, in another one for instance.
  Ref inside(uint64_t offset) {
    offsets.push_back(offset);
    return offsets.size() - 1;
  }
  Ref text(std::string_view ascii) { return add("\x5F\x12"s + bigEndian(ascii.size(), 4) + Bytes(ascii)); }
  Ref array(const std::vector<Ref>& items) { return add("\xAF\x12"s + bigEndian(items.size(), 4) + refs(items)); }
  Ref dictionary(const std::vector<Ref>& keys, const std::vector<Ref>& values) {
    return add("\xDF\x12"s + bigEndian(keys.size(), 4) + refs(keys) + refs(values));
  }
  /// A record with a value for every field but those in `special`, and what else it is to hold.
  template <class T>
  Ref record(const std::vector<std::pair<std::string_view, Ref>>& special, const std::vector<Ref>& moreKeys = {}) {
    const Ref nothing = add("\xA0");
    const Ref zero = add("\x10\0"s);
    const Ref real = add("\x23"s + Bytes(8, '\0'));
    const Ref date = add("\x33"s + Bytes(8, '\0'));
    const Ref flag = add("\x08");
    const Ref empty = text("");
    std::vector<Ref> keys = moreKeys;
    std::vector<Ref> values(moreKeys.size(), zero);
    for (const FieldType& field : typeOf<T>().fields) {
      using Kind = ValueType::Kind;
      Ref value = zero;
      if (field.type.kind == Kind::list) value = nothing;
      if (field.type.kind == Kind::real) value = real;
      if (field.type.kind == Kind::date) value = date;
      if (field.type.kind == Kind::flag) value = flag;
      if (field.type.kind == Kind::text) value = empty;
      for (const auto& [key, other] : special) {
        if (key == field.key) value = other;
      }
      keys.push_back(text(field.key));
      values.push_back(value);
    }
    return dictionary(keys, values);
  }
  /// The whole file: a career with one key.
  Bytes career(std::string_view key, Ref value) {
    const Ref name = text(key);
    return finish(dictionary({name}, {value}));
  }
  Bytes finish(Ref root) const {
    Bytes file = bytes;
    for (const uint64_t offset : offsets) file += bigEndian(offset, 4);
    return file + Bytes(6, '\0') + "\4\4"s + bigEndian(offsets.size(), 8) + bigEndian(root, 8) +
           bigEndian(bytes.size(), 8);
  }

  Bytes bytes = "bplist00";
  std::vector<uint64_t> offsets;

 private:
  static Bytes refs(const std::vector<Ref>& all) {
    Bytes result;
    for (const Ref ref : all) result += bigEndian(ref, 4);
    return result;
  }
};

std::vector<Crafted::Ref> manyTimes(Crafted::Ref ref, size_t count) { return std::vector(count, ref); }

/// Texts of 32 KB, each beginning a few bytes behind the one before and different from it.
std::vector<Crafted::Ref> overlappingTexts(Crafted& list, size_t count) {
  const size_t first = list.bytes.size();
  for (size_t i = 0; i < count; ++i) {
    list.bytes += "\x5F\x11\x7F\x7F"s;
    for (size_t digits = 0, rest = i; digits < 3; ++digits, rest /= 100) {
      list.bytes.push_back(static_cast<char>(' ' + rest % 90));
    }
  }
  list.bytes += Bytes(0x8000, 'x');
  std::vector<Crafted::Ref> refs;
  for (size_t i = 0; i < count; ++i) refs.push_back(list.inside(first + 7 * i));
  return refs;
}

struct Hostile {
  const char* name;
  std::function<Bytes()> make;
};

const std::vector<Hostile>& gluttons() {
  static const std::vector<Hostile> all = {
      {"a million songs, each titled with one text of 100 KB",
       [] {
         Crafted list;
         const auto song = list.record<Song>({{"title", list.text(Bytes(100'000, 'x'))}});
         return list.career("saveAllSongList", list.array(manyTimes(song, 1'000'000)));
       }},
      {"a hundred thousand keys, each a text of 32 KB inside of the others",
       [] {
         Crafted list;
         const auto keys = overlappingTexts(list, 80'000);
         return list.finish(list.dictionary(keys, keys));
       }},
      {"ten thousand such keys",
       [] {
         Crafted list;
         const auto keys = overlappingTexts(list, 9'000);
         return list.finish(list.dictionary(keys, keys));
       }},
      {"a million records with nine hundred fields of nobody's, each named by one text of 100 KB",
       [] {
         Crafted list;
         const auto song = list.record<Song>({}, manyTimes(list.text(Bytes(100'000, 'x')), 900));
         return list.career("saveAllSongList", list.array(manyTimes(song, 1'000'000)));
       }},
      {"a record with half a million fields of nobody's",
       [] {
         Crafted list;
         const auto song = list.record<Song>({}, manyTimes(list.text("nobody's"), 500'000));
         return list.career("saveAllSongList", list.array(manyTimes(song, 1000)));
       }},
      {"half a million products that share a list of half a million songs",
       [] {
         Crafted list;
         const auto songs = list.array(manyTimes(list.record<Song>({}), 500'000));
         return list.career("saveAllMerchReleasedList",
                            list.array(manyTimes(list.record<Merch>({{"songList", songs}}), 500'000)));
       }},
      {"a million products, each of a song that is looked up anew",
       [] {
         Crafted list;
         const auto songs = list.array({list.record<Song>({})});
         return list.career("saveAllMerchReleasedList",
                            list.array(manyTimes(list.record<Merch>({{"songList", songs}}), 1'000'000)));
       }},
      {"half a million guests on each of half a million songs",
       [] {
         Crafted list;
         const auto guests = list.array(manyTimes(list.text(""), 500'000));
         return list.career("saveAllSongList",
                            list.array(manyTimes(list.record<Song>({{"features", guests}}), 500'000)));
       }},
      {"a map of texts of 32 KB inside of each other",
       [] {
         Crafted list;
         const auto texts = overlappingTexts(list, 200'000);
         return list.career("songDictionary", list.dictionary(texts, texts));
       }},
      {"a million songs that are one",
       [] {
         Crafted list;
         return list.career("saveAllSongList", list.array(manyTimes(list.record<Song>({}), 1'000'000)));
       }},
  };
  return all;
}

constexpr double mostSeconds = 1;
constexpr double megabytesAtLeast = 60;
constexpr double megabytesForEach = 40;

TEST(HostileLists, CostNoMoreThanTheirSizeAllows) {
  for (const Hostile& hostile : gluttons()) {
    const Bytes file = hostile.make();
    const Weight weight = weighed([&] { return !importCareer(file).state; });
    const double size = static_cast<double>(file.size()) / 1e6;
    EXPECT_TRUE(weight.ended) << hostile.name;
    std::cout << hostile.name << ": " << size << " MB, " << weight.seconds << " s, " << weight.megabytes << " MB\n";
    if (isSanitized()) continue;
    EXPECT_LT(weight.seconds, mostSeconds) << hostile.name;
    EXPECT_LT(weight.megabytes, megabytesAtLeast + megabytesForEach * size) << hostile.name;
  }
}

// Every list of a career, its rows over and over: nothing in them differs, so that they take the fewest bytes in a
// file.
TEST(HostileLists, HonestCareersHaveRoomToSpare) {
  MemoryStore store;
  for (const NamedWorld& world : namedWorlds()) {
    if (std::string_view(world.name) == "mid-career") settleInto(store, world);
  }
  GameState state;
  SaveFile(store).load(state);
  for (const size_t rows : {100, 3000}) {
    PropertyListWriter writer;
    RecordEncoder encoder(writer);
    std::vector<PropertyListWriter::Ref> keys;
    std::vector<PropertyListWriter::Ref> values;
    for (const auto& [key, list] : listsOf(state)) {
      const std::vector<const void*> some = list.records();
      std::vector<const void*> many(some.empty() ? 0 : rows);
      for (size_t i = 0; i < many.size(); ++i) many[i] = some[i % some.size()];
      keys.push_back(writer.text(key));
      values.push_back(encoder.records(list.type(), many));
    }
    const Bytes file = writer.finish(writer.dictionary(keys, values));
    EXPECT_THAT(importCareer(file).problem, testing::HasSubstr("Two of the")) << rows << " rows a list";
  }
}

/// Reads it as everything that a career can hold; nothing is followed further than the types say.
void expectRefused(const char* what, const std::function<Crafted::Ref(Crafted&)>& value) {
  for (const char* key : {"saveAllSongList", "saveAllMerchReleasedList", "songDictionary", "myArtistsName",
                          "weekNumber", "totalCashAvailable"}) {
    Crafted list;
    EXPECT_FALSE(importCareer(list.career(key, value(list))).state) << what << " as " << key;
  }
}

TEST(HostileLists, CyclesDepthsAndCountsLeadNowhere) {
  expectRefused("an array that holds itself", [](Crafted& list) { return list.array({list.offsets.size()}); });
  expectRefused("a dictionary that holds itself", [](Crafted& list) {
    const auto key = list.text("title");
    return list.dictionary({key, list.offsets.size()}, {list.offsets.size(), key});
  });
  expectRefused("a record whose list holds it", [](Crafted& list) {
    const auto songs = list.array({list.offsets.size() + 1 + 6 + typeOf<Merch>().fields.size()});
    return list.array({list.record<Merch>({{"songList", songs}})});
  });
  expectRefused("arrays a hundred thousand deep", [](Crafted& list) {
    auto inner = list.array({});
    for (int depth = 0; depth < 100'000; ++depth) inner = list.array({inner});
    return inner;
  });
  for (const char kind : {'\x40', '\x50', '\x60', '\xA0', '\xD0'}) {
    for (const uint64_t count : {uint64_t{1} << 31, uint64_t{1} << 62, ~uint64_t{0}, ~uint64_t{0} / 2, uint64_t{99}}) {
      expectRefused("more than there is", [&](Crafted& list) {
        return list.add(Bytes(1, static_cast<char>(kind | 0xF)) + "\x13" + bigEndian(count, 8));
      });
    }
  }
}

TEST(HostileLists, EveryMarkerAndEveryWidthIsRefusedOrRead) {
  for (int marker = 0; marker < 256; ++marker) {
    for (const char* key : {"saveAllSongList", "songDictionary", "myArtistsName", "weekNumber", "totalCashAvailable"}) {
      Crafted list;
      const auto value = list.add(Bytes(1, static_cast<char>(marker)) + Bytes(20, '\0'));
      const ImportedCareer career = importCareer(list.career(key, value));
      EXPECT_NE(career.state.has_value(), !career.problem.empty()) << marker;
    }
  }
  const Bytes whole = exportCareer(smallCareer());
  for (size_t fromEnd = 1; fromEnd <= 32; ++fromEnd) {
    for (int byte = 0; byte < 256; ++byte) {
      Bytes changed = whole;
      changed[whole.size() - fromEnd] = static_cast<char>(byte);
      const ImportedCareer career = importCareer(changed);
      EXPECT_NE(career.state.has_value(), !career.problem.empty()) << fromEnd << " from the end is " << byte;
    }
  }
}

/// One of the ways in which a file comes to harm, by somebody's hand or by itself.
Bytes harmed(Bytes file, Random& random) {
  const auto place = [&] { return static_cast<size_t>(random.integer(0, static_cast<int64_t>(file.size()) - 1)); };
  const auto byte = [&] { return static_cast<char>(random.integer(0, 255)); };
  switch (random.integer(0, 5)) {
    case 0: file[place()] = byte(); break;
    case 1: file[place()] ^= static_cast<char>(1 << random.integer(0, 7)); break;
    case 2: file.resize(place() + 1); break;
    case 3: file.erase(place(), static_cast<size_t>(random.integer(1, 64))); break;
    case 4: {
      const Bytes piece = file.substr(place(), static_cast<size_t>(random.integer(1, 64)));
      file.insert(place(), piece);
      break;
    }
    default: {
      const Bytes piece = file.substr(place(), static_cast<size_t>(random.integer(1, 64)));
      file.replace(place(), piece.size(), piece);
    }
  }
  return file;
}

TEST(HostileLists, HarmedFilesAreRefusedOrReadWhole) {
  const char* asked = std::getenv("BACKBEAT_HOSTILE_TRIES");
  const int64_t tries = asked ? std::atoll(asked) : triesOfTheCheck;
  const Bytes whole = exportCareer(smallCareer());
  SeededRandom random(2023);
  int64_t read = 0;
  for (int64_t number = 0; number < tries; ++number) {
    Bytes file = whole;
    for (int64_t harm = random.integer(1, 3); harm > 0; --harm) file = harmed(std::move(file), random);
    const ImportedCareer career = importCareer(file);
    ASSERT_NE(career.state.has_value(), !career.problem.empty()) << "try " << number;
    if (!career.state) continue;
    ++read;
    ASSERT_TRUE(importCareer(exportCareer(*career.state)).state) << "try " << number;
  }
  std::cout << tries << " harmed files, " << read << " of them could still be read\n";
  EXPECT_GT(read, 0);
  EXPECT_LT(read, tries);
}

}  // namespace
}  // namespace backbeat
