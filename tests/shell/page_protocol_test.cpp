// What the page is told, held to the types that the page has for it, and to the screens that its tests draw.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <regex>
#include <set>

#include "shell/shown_fields.h"
#include "shell/shown_json.h"
#include "support/every_block.h"
#include "support/program.h"
#include "support/world.h"

namespace backbeat {
namespace {

const std::filesystem::path page = std::filesystem::path(BACKBEAT_SOURCE_DIR) / "src/shell/web";

using Members = std::map<std::string, std::string>;

/// The page's types as text: what each interface has, and what each other name stands for.
class Protocol {
 public:
  Protocol() {
    const std::string text =
        std::regex_replace(contentOf(page / "src/protocol.ts"), std::regex(R"(/\*[\s\S]*?\*/)"), "");
    const std::regex declaration(R"(export (?:interface (\w+)(?: extends (\w+))? \{([^}]*)\}|type (\w+) =([^;]*);))");
    for (std::sregex_iterator found(text.begin(), text.end(), declaration), end; found != end; ++found) {
      const std::smatch& part = *found;
      if (part[4].matched) aliases_[part[4]] = tidy(part[5]);
      if (!part[1].matched) continue;
      Members& members = interfaces_[part[1]];
      if (part[2].matched) members = interfaces_.at(part[2]);
      const std::string body = part[3];
      const std::regex member(R"((\w+)\??: ([^;]*);)");
      for (std::sregex_iterator each(body.begin(), body.end(), member); each != end; ++each) {
        members[(*each)[1]] = tidy((*each)[2]);
      }
    }
  }

  /// Holds what the page calls `name` to the type.
  void expect(const ViewType& type, const std::string& name, const std::string& where) {
    SCOPED_TRACE(where);
    switch (type.kind) {
      case ViewType::Kind::flag: EXPECT_EQ(name, "boolean"); break;
      case ViewType::Kind::integer:
      case ViewType::Kind::real: EXPECT_EQ(name, "number"); break;
      case ViewType::Kind::text: EXPECT_EQ(name, "string"); break;
      case ViewType::Kind::name: expectNames(type.names, name); break;
      case ViewType::Kind::price: EXPECT_EQ(name, "Price"); break;
      case ViewType::Kind::optional: expect(*type.item, name, where); break;
      case ViewType::Kind::list:
        ASSERT_TRUE(name.ends_with("[]")) << name;
        expect(*type.item, name.substr(0, name.size() - 2), where);
        break;
      case ViewType::Kind::record: expectMembers(type, name, {}); break;
      case ViewType::Kind::block: EXPECT_EQ(name, "Block"); break;
    }
  }

  /// The members of an interface are those of the table and `more`.
  void expectMembers(const ViewType& type, const std::string& name, std::set<std::string> more) {
    visited_.insert(name);
    Members members = membersOf(name);
    for (const ViewField& field : type.fields) {
      const std::string member(field.name);
      expect(*field.type, members[member], name + "." + member);
      members.erase(member);
    }
    for (const auto& [member, written] : members) EXPECT_EQ(more.erase(member), 1u) << name << " has no " << member;
    EXPECT_TRUE(more.empty()) << name << " lacks " << *more.begin();
  }

  void expectNames(std::span<const std::string_view> names, std::string written) {
    if (aliases_.contains(written)) {
      visited_.insert(written);
      written = aliases_[written];
    }
    std::string expected;
    for (const std::string_view each : names) expected += (expected.empty() ? "\"" : " | \"") + std::string(each) + '"';
    EXPECT_EQ(written, expected);
  }

  void expectBlocks() {
    std::set<std::string> known;
    const std::regex word(R"(\w+)");
    const std::string blocks = aliases_["Block"];
    for (std::sregex_iterator each(blocks.begin(), blocks.end(), word), end; each != end; ++each) {
      const std::string name = each->str();
      const std::string kind = membersOf(name)["kind"];
      EXPECT_TRUE(known.insert(kind).second) << kind;
      for (const BlockKind& block : blockKinds) {
        if (kind == '"' + std::string(block.name) + '"') expectMembers(*block.type, name, {"kind"});
      }
    }
    EXPECT_EQ(known.size(), std::size(blockKinds));
    visited_.insert("Block");
  }

  Members membersOf(const std::string& name) {
    EXPECT_TRUE(interfaces_.contains(name)) << "the page has no " << name;
    return interfaces_[name];
  }

  /// Everything that the page has types for and nobody asked about.
  std::set<std::string> others() const {
    std::set<std::string> names;
    for (const auto& [name, members] : interfaces_) names.insert(name);
    for (const auto& [name, text] : aliases_) names.insert(name);
    for (const std::string& name : visited_) names.erase(name);
    return names;
  }

 private:
  static std::string tidy(const std::string& text) {
    const std::string line = std::regex_replace(text, std::regex(R"(\s+)"), " ");
    return std::regex_replace(line, std::regex(R"(^[ |]+|[ ]+$)"), "");
  }

  std::map<std::string, Members> interfaces_;
  std::map<std::string, std::string> aliases_;
  std::set<std::string> visited_;
};

TEST(PageProtocol, ThePagesTypesAreTheTablesOfTheEngine) {
  Protocol protocol;
  protocol.expectBlocks();
  protocol.expectMembers(viewType<View>, "View", {"screen", "key"});
  protocol.expectMembers(viewType<Header>, "Header", {});
  protocol.expectMembers(ViewType{.kind = ViewType::Kind::record, .size = 0}, "Price",
                         {"energy", "dollars", "affordable"});
  protocol.expectNames(viewNames<Feedback>, protocol.membersOf("Answer")["feedback"]);
  protocol.expectNames(viewNames<Request::Kind>, protocol.membersOf("Answer")["request"]);
  protocol.expectNames(viewNames<AlertButton::Style>, protocol.membersOf("AlertButton")["style"]);
  EXPECT_EQ(protocol.others(), (std::set<std::string>{"Alert", "AlertButton", "Answer", "PressScreen", "Tab"}));
}

/// What the page is told of a view, one block or picture a line.
std::string answerWith(View view) {
  World world;
  world.state.totalEnergyAvailable = 5;
  Navigator navigator(world.game);
  navigator.start({});
  Shown shown = navigator.shown();
  shown.header = {.cash = "$12,480", .energy = "73 / 104", .energyShare = 0.7, .date = "Week 14, 2023"};
  shown.badges.back() = "3";
  shown.tab = musicTab;
  shown.stack = {2, 17};
  shown.key = 17;
  shown.modal = false;
  shown.screen = "EveryBlock";
  shown.view = std::move(view);
  shown.alert.reset();
  return std::regex_replace(shownAsJson(navigator, shown), std::regex(R"(\{"kind":)"), "\n$&") + "\n";
}

TEST(PageProtocol, ThePagesTestsDrawTheScreensOfEveryBlock) {
  const std::pair<const char*, View> screens[] = {{"every-block", everyBlock()}, {"barest-blocks", barestBlocks()}};
  for (const auto& [name, view] : screens) {
    const auto file = page / "test/fixtures/engine" / (std::string(name) + ".json");
    const std::string answer = answerWith(view);
    if (std::getenv("BACKBEAT_WRITE_FIXTURES")) writeFile(file, answer);
    EXPECT_EQ(contentOf(file), answer)
        << "again: BACKBEAT_WRITE_FIXTURES=1 backbeat_tests --gtest_filter='PageProtocol*'";
  }
}

}  // namespace
}  // namespace backbeat
