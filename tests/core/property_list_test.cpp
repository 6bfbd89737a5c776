#include "core/property_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <limits>
#include <sstream>

#include "core/record_codec.h"
#include "support/test_folder.h"

namespace backbeat {
namespace {

struct Inner {
  int64_t id = 0;
  std::string name;
  friend bool operator==(const Inner&, const Inner&) = default;
};

/// One field of each kind that a record can have.
struct Sample {
  bool flag = false;
  int64_t whole = 0;
  double real = 0;
  Date date;
  std::string text;
  std::vector<int64_t> wholes;
  std::vector<std::string> texts;
  std::vector<Inner> inner;
  friend bool operator==(const Sample&, const Sample&) = default;
};

}  // namespace

template <>
inline constexpr auto fieldsOf<Inner> = [](auto&& take) {
  return take(Field{"id", &Inner::id}, Field{"name", &Inner::name});
};

template <>
inline constexpr auto fieldsOf<Sample> = [](auto&& take) {
  return take(Field{"flag", &Sample::flag}, Field{"whole", &Sample::whole}, Field{"real", &Sample::real},
              Field{"date", &Sample::date}, Field{"text", &Sample::text}, Field{"wholes", &Sample::wholes},
              Field{"texts", &Sample::texts}, Field{"inner", &Sample::inner});
};

namespace {

using namespace std::string_literals;

constexpr int64_t least = std::numeric_limits<int64_t>::min();
constexpr int64_t greatest = std::numeric_limits<int64_t>::max();

const std::vector<int64_t> hardWholes = {0,     1,          -1,         127,   128,         255,   256,       65535,
                                         65536, 4294967295, 4294967296, -2148, -4294967297, least, least + 1, greatest};
const std::vector<double> hardReals = {0.0,
                                       -0.0,
                                       0.1,
                                       1.0,
                                       -2.5,
                                       1e300,
                                       5e-324,
                                       std::numeric_limits<double>::max(),
                                       -std::numeric_limits<double>::infinity(),
                                       16777217.0};
const std::vector<std::string> hardTexts = {"",
                                            "plain",
                                            "fourteen chars",
                                            "fifteen chars!!",
                                            std::string(70'000, 'x'),
                                            "Beyoncé",
                                            "🎤 drop 👩🏽‍🎤",
                                            "شكرا \u200Frtl",
                                            "tab\tNUL\0end"s,
                                            "\uFEFF\uFFFD\U0010FFFF"};

std::vector<Sample> hardSamples() {
  std::vector<Sample> samples(hardWholes.size());
  for (size_t i = 0; i < samples.size(); ++i) {
    Sample& sample = samples[i];
    sample.flag = i % 2 == 1;
    sample.whole = hardWholes[i];
    sample.real = hardReals[i % hardReals.size()];
    sample.date.seconds = std::vector{0.0, 978'307'200.0, 1'700'000'000.5, 4'102'444'800.0}[i % 4];
    sample.text = hardTexts[i % hardTexts.size()];
    sample.wholes.assign(hardWholes.begin(), hardWholes.begin() + static_cast<std::ptrdiff_t>(i));
    sample.texts.assign(i, sample.text);
    sample.inner.resize(i % 3, {sample.whole, sample.text});
  }
  return samples;
}

Bytes encoded(const std::vector<Sample>& samples) {
  PropertyListWriter writer;
  return encodeValue(writer, samples);
}

TEST(PropertyList, KeepsEveryHardValueBitForBit) {
  const std::vector<Sample> samples = hardSamples();
  PropertyListWriter writer;
  const Bytes first = encodeValue(writer, samples);
  const auto back = decodeRecords<Sample>(first);
  ASSERT_TRUE(back);
  EXPECT_EQ(*back, samples);
  EXPECT_TRUE(std::signbit((*back)[1].real)) << "-0.0 lost its sign";
  EXPECT_EQ(encodeValue(writer, *back), first) << "a used writer remembers something";

  const double strangeNan = std::bit_cast<double>(0x7FF800000BADF00Du);
  const auto nan = decodeValue<std::vector<double>>(encodeValue(writer, std::vector{strangeNan}));
  EXPECT_EQ(std::bit_cast<uint64_t>(nan->front()), std::bit_cast<uint64_t>(strangeNan));
  EXPECT_EQ(decodeValue<std::string>(encodeValue(writer, "cut \xF0\x9F\x8E"s)), "cut \uFFFD");
}

TEST(PropertyList, GrowsThroughEveryWidthOfReferences) {
  PropertyListWriter writer;
  for (const int64_t count : {0, 1, 200, 254, 255, 256, 40'000, 65'534, 65'535, 70'000}) {
    std::vector<int64_t> wholes(static_cast<size_t>(count));
    for (size_t i = 0; i < wholes.size(); ++i) wholes[i] = static_cast<int64_t>(i) * 1'000'003;
    EXPECT_EQ(decodeValue<std::vector<int64_t>>(encodeValue(writer, wholes)), wholes) << count;
  }
}

/// A property list put together by hand, with whatever widths and contents no writer of ours makes.
Bytes assemble(const std::vector<Bytes>& objects, size_t offsetWidth = 1, char refWidth = 1) {
  Bytes file = "bplist00";
  Bytes table;
  for (const Bytes& object : objects) {
    for (size_t i = 1; i < offsetWidth; ++i) table.push_back(0);
    table.push_back(static_cast<char>(file.size()));
    file += object;
  }
  const auto putWord = [](Bytes& out, size_t word) { out += Bytes(7, '\0') + static_cast<char>(word); };
  Bytes trailer(6, '\0');
  trailer.push_back(static_cast<char>(offsetWidth));
  trailer.push_back(refWidth);
  putWord(trailer, objects.size());
  putWord(trailer, 0);
  putWord(trailer, file.size());
  return file + table + trailer;
}

TEST(PropertyList, ReadsWhatOtherProgramsMayWrite) {
  EXPECT_EQ(
      decodeValue<std::vector<int64_t>>(assemble({"\xA2\0\0\1\0\0\2"s, "\x10\x05", "\x13"s + Bytes(8, '\xFF')}, 7, 3)),
      (std::vector<int64_t>{5, -1}));
  EXPECT_EQ(decodeValue<int64_t>(assemble({"\x12\xFF\xFF\xFF\xFF"})), 4294967295) << "short widths hold no sign";
  EXPECT_EQ(decodeValue<int64_t>(assemble({"\x14"s + Bytes(16, '\xFF')})), -1);
  EXPECT_EQ(decodeValue<int64_t>(assemble({"\x14"s + Bytes(8, '\0') + Bytes(8, '\xFF')})), std::nullopt) << "2^64 - 1";
  EXPECT_EQ(decodeValue<double>(assemble({"\x22\xBF\xC0\0\0"s})), -1.5) << "four bytes";
  EXPECT_EQ(decodeValue<std::string>(assemble({"\x62\xD8\x3C\0a"s})), "\uFFFDa") << "half a pair";
  EXPECT_EQ(decodeValue<std::string>(assemble({"\x5F\x11\0\3abc"s})), "abc") << "a count wider than it needs to be";
  EXPECT_EQ(decodeValue<std::string>(assemble({"\x51\xE9"})), std::nullopt) << "no ASCII";
  EXPECT_EQ(decodeValue<std::string>(assemble({"\x59short"})), std::nullopt) << "longer than the file";
  EXPECT_EQ(decodeValue<std::string>(assemble({"\x5F\x13\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF"})), std::nullopt);
  EXPECT_EQ(decodeValue<std::vector<int64_t>>(assemble({"\xA1\x09"})), std::nullopt) << "names an object past the last";
}

TEST(PropertyList, ARecordNeedsEachOfItsFieldsOnce) {
  PropertyListWriter writer;
  const auto decoded = [&](std::vector<std::pair<std::string, PropertyListWriter::Ref>> entries) {
    std::vector<PropertyListWriter::Ref> keys;
    std::vector<PropertyListWriter::Ref> values;
    for (const auto& [key, value] : entries) {
      keys.push_back(writer.text(key));
      values.push_back(value);
    }
    return decodeRecords<Inner>(writer.finish(writer.array(std::vector{writer.dictionary(keys, values)})));
  };
  const std::vector<Inner> expected = {{7, "seven"}};
  const auto id = [&] { return writer.integer(7); };
  const auto name = [&] { return writer.text("seven"); };
  EXPECT_EQ(decoded({{"name", name()}, {"id", id()}}), expected);
  EXPECT_EQ(decoded({{"id", id()}, {"ignored", writer.data("x")}, {"name", name()}}), expected);
  EXPECT_FALSE(decoded({{"id", id()}}));
  EXPECT_FALSE(decoded({{"id", id()}, {"Name", name()}}));
  EXPECT_FALSE(decoded({{"id", id()}, {"id", id()}}));
  EXPECT_FALSE(decoded({{"id", id()}, {"name", name()}, {"id", id()}}));
  EXPECT_FALSE(decoded({{"id", writer.real(7)}, {"name", name()}}));
  EXPECT_FALSE(decoded({{"id", writer.boolean(true)}, {"name", name()}}));
  EXPECT_FALSE(decoded({{"id", id()}, {"name", writer.data("seven")}}));
}

TEST(PropertyList, NoDamagedByteLeadsToMoreThanNo) {
  std::vector<Sample> samples(2);
  samples[0] = {true, -5, 2.5, {1e9}, "🎤", {1, 70'000}, {"", "fifteen chars!!"}, {{3, "x"}}};
  const Bytes whole = encoded(samples);
  ASSERT_LT(whole.size(), 400u);
  size_t readable = 0;
  for (size_t at = 0; at < whole.size(); ++at) {
    Bytes damaged = whole;
    for (int flip = 1; flip < 256; ++flip) {
      damaged[at] = static_cast<char>(whole[at] ^ flip);
      readable += decodeRecords<Sample>(damaged).has_value();
    }
    EXPECT_FALSE(decodeRecords<Sample>(whole.substr(0, at))) << "cut to " << at << " bytes";
  }
  EXPECT_GT(readable, 0u) << "a changed number is still a list";
}

TEST(PropertyList, AFewBytesCannotAskForTheWholeMemory) {
  PropertyListWriter writer;
  const auto text = writer.text(std::string(100'000, 'x'));
  const std::vector manyTexts(20'000, text);
  const std::vector manyArrays(20'000, writer.array(manyTexts));
  EXPECT_FALSE(decodeValue<std::vector<std::vector<std::string>>>(writer.finish(writer.array(manyArrays))));
}

TEST(PropertyListPeers, UnderstandOursAndWeUnderstandTheirs) {
  const TestFolder folder;
  const std::vector<Sample> samples = hardSamples();
  folder.write("ours", encoded(samples));
  EXPECT_TRUE(folder.run("plistutil -f bin -i ours -o theirs"));
  EXPECT_EQ(decodeRecords<Sample>(folder.read("theirs")), samples);
  EXPECT_TRUE(
      folder.run("python3 -c \"import plistlib; l = plistlib.load(open('ours', 'rb')); "
                 "plistlib.dump(l, open('python', 'wb'), fmt=plistlib.FMT_BINARY)\""));
  EXPECT_EQ(decodeRecords<Sample>(folder.read("python")), samples);
}

TEST(PropertyListPeers, SeeTheSameValuesAsWe) {
  const TestFolder folder;
  const Sample sample = {true, -5, 1e300, {1'700'000'000.5}, "é🎤", {greatest, least}, {"", "\0"s}, {{3, "x"}}};
  folder.write("ours", encoded({sample}));
  EXPECT_TRUE(folder.run(R"(python3 -c "
import plistlib, datetime
assert plistlib.load(open('ours', 'rb')) == [{
  'flag': True, 'whole': -5, 'real': 1e300, 'date': datetime.datetime(2023, 11, 14, 22, 13, 20, 500000),
  'text': '\u00e9\U0001f3a4', 'wholes': [2**63 - 1, -2**63], 'texts': ['', '\0'], 'inner': [{'id': 3, 'name': 'x'}]}]
")"));
}

}  // namespace
}  // namespace backbeat
