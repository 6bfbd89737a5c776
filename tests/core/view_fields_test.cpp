// The tables of the words of a screen, held to the words themselves.
#include "core/view_fields.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <source_location>

#include "core/view_find.h"
#include "shell/shown_fields.h"
#include "support/every_block.h"

namespace backbeat {
namespace {

/// The name that the compiler has for a value of an enumeration; "" for a number that has none.
template <auto value>
std::string enumeratorName() {
  const std::string function = std::source_location::current().function_name();
  const size_t begin = function.rfind("value = ") + 8;
  const std::string name = function.substr(begin, function.find_first_of(";]", begin) - begin);
  return name.starts_with('(') ? "" : name.substr(name.rfind(':') + 1);
}

constexpr size_t mostNames = 24;

template <class E>
void expectEveryName() {
  std::vector<std::string> names;
  [&]<size_t... i>(std::index_sequence<i...>) { (names.push_back(enumeratorName<static_cast<E>(i)>()), ...); }
  (std::make_index_sequence<mostNames>());
  std::erase(names, "");
  EXPECT_EQ(names, std::vector<std::string>(viewNames<E>.begin(), viewNames<E>.end()));
}

TEST(ViewFields, EnumerationsAreToldByTheirOwnNames) {
  expectEveryName<Tone>();
  expectEveryName<Picture::Kind>();
  expectEveryName<Text::Style>();
  expectEveryName<Rows::Style>();
  expectEveryName<Button::Style>();
  expectEveryName<Choice::Style>();
  expectEveryName<PhotoField::Shape>();
  expectEveryName<Chart::Style>();
  expectEveryName<Figures::Style>();
  expectEveryName<Poster::Style>();
  expectEveryName<Poster::Mood>();
  expectEveryName<Gauges::Style>();
  expectEveryName<Deck::Choice::Side>();
  expectEveryName<Tree::Person::Standing>();
  expectEveryName<Theme>();
  expectEveryName<Feedback>();
  expectEveryName<AlertButton::Style>();
  EXPECT_EQ(enumeratorName<static_cast<Request::Kind>(viewNames<Request::Kind>.size() - 1)>(), "replay");
}

/// What a view says: the members that are told, and every value of its enumerations.
struct Said {
  std::set<std::pair<const ViewType*, std::string_view>> members;
  std::map<const ViewType*, std::set<std::string_view>> names;
  std::map<const ViewType*, int> records;

  explicit Said(const View& view) {
    forEachRecord(view, [&](const ViewType& type, const void* record) {
      ++records[&type];
      for (const ViewField& field : type.fields) {
        const void* value = type.valueOf(field, record);
        if (!saysNothing(*field.type, value, field.standard)) members.insert({&type, field.name});
        if (field.type->kind == ViewType::Kind::name) names[field.type].insert(nameOf(*field.type, value));
      }
    });
  }
};

TEST(ViewFields, TheScreenOfEveryBlockSaysEverythingThatCanBeSaid) {
  const Said said(everyBlock());
  for (const BlockKind& kind : blockKinds) EXPECT_TRUE(said.records.contains(kind.type)) << kind.name;
  for (const auto& [type, count] : said.records) {
    for (const ViewField& field : type->fields) {
      EXPECT_TRUE(said.members.contains({type, field.name}))
          << field.name << " of a thing that begins with " << type->fields.front().name;
    }
  }
  for (const auto& [type, names] : said.names) {
    if (type == &viewType<Theme> || type == &viewType<Picture::Kind>) continue;  // one a screen; one is no picture
    EXPECT_EQ(names.size(), type->names.size()) << "one of " << type->names.front() << ", " << type->names.back();
  }
  EXPECT_EQ(said.names.at(&viewType<Picture::Kind>).size(), viewNames<Picture::Kind>.size());
}

TEST(ViewFields, AnUntouchedWordSaysNothing) {
  const Said every(everyBlock());
  const Said barest(barestBlocks());
  for (const auto& [type, count] : every.records) EXPECT_TRUE(barest.records.contains(type)) << type->fields[0].name;
  const std::set<std::string_view> holders = {"items", "options", "facts",   "actions",    "pictures", "meters",
                                              "acts",  "corners", "choices", "people",     "meter",    "link",
                                              "total", "columns", "rows",    "tags",       "share",    "buttons",
                                              "help",  "blocks",  "totals",  "mainAction", "aside"};
  for (const auto& [type, name] : barest.members) EXPECT_TRUE(holders.contains(name)) << name;
}

TEST(ViewFind, FindsWhatAScreenShowsAndAnswersForWhatItDoesNot) {
  const View view = everyBlock();
  EXPECT_EQ(rowWithId(view, "producer:1").value, "$1,200");
  EXPECT_EQ(rowTitled(view, "Bergen").value, "this week");
  EXPECT_EQ(rowTitled(view, "Nowhere").title, "");
  EXPECT_EQ(figureLabelled(view, "Total").value, "$985");
  EXPECT_EQ(tileLabelled(view, "Energy").note, "of 104");
  EXPECT_EQ(gaugeLabelled(view, "Press").id, "press");
  EXPECT_EQ(totalLabelled(view, "Chance").share, 0.62);
  EXPECT_EQ(buttonWithId(view, "decline").label, "Decline");
  EXPECT_EQ(buttonWithId(view, "hire:2").label, "Hire");
  EXPECT_EQ(buttonWithId(view, "book").label, "Book the big studio");
  EXPECT_EQ(blockWithId<Choice>(view, "look").selected, 1);
  EXPECT_EQ(blocksOf<Poster>(view).size(), 3u);
  EXPECT_EQ(blockOf<Deck>(view).title, "Theo");
  EXPECT_EQ(blockOf<Deck>(View()).title, "");
}

}  // namespace
}  // namespace backbeat
