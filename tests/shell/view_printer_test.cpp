// How views look in a terminal, and what can be pressed there.
#include "shell/native/view_printer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numeric>
#include <sstream>

#include "core/text.h"
#include "core/view_find.h"
#include "shell/native/terminal_text.h"
#include "support/every_block.h"
#include "support/world.h"

namespace backbeat {
namespace {

using ::testing::HasSubstr;

struct Printed : World {
  Navigator navigator{game};

  Printed() { navigator.start({}); }
  PrintedScreen print(View view, bool colour = false, size_t columns = widestPage) {
    Shown shown = navigator.shown();
    shown.view = std::move(view);
    shown.alert.reset();
    return printScreen(navigator, shown, colour, columns);
  }
};

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

/// The same view with every text of it made as long as nobody would write it.
View longWinded(View view) {
  forEachRecord(view, [](const ViewType& type, const void* record) {
    for (const ViewField& field : type.fields) {
      const bool isId = field.name == "id" || field.name == "suggest" || field.name == "pictureId";
      if (field.type->kind != ViewType::Kind::text || isId) continue;
      // The view is this function's own.
      std::string& text = *static_cast<std::string*>(const_cast<void*>(type.valueOf(field, record)));
      for (int i = 0; i < 3; ++i) text += " 日本語 and on and on " + text;
    }
  });
  return view;
}

/// The numbers that stand before presses, in their order.
std::vector<size_t> numbersIn(const std::string& text) {
  std::vector<size_t> numbers;
  for (size_t at = text.find('['); at != text.npos; at = text.find('[', at + 1)) {
    const size_t end = text.find("] ", at);
    if (const auto number = wholeNumber(text.substr(at + 1, end - at - 1))) {
      numbers.push_back(static_cast<size_t>(*number));
    }
  }
  return numbers;
}

TEST(ViewPrinter, OffersEveryPressOfEveryBlockWithinTheTerminal) {
  Printed printed;
  for (const size_t columns : {80u, 60u, 40u}) {
    for (const View& view : {everyBlock(), barestBlocks(), longWinded(everyBlock())}) {
      const PrintedScreen screen = printed.print(view, false, columns);
      for (const std::string& line : linesOf(screen.text)) EXPECT_LE(columnsOf(line), columns) << line;
      std::vector<size_t> numbers(screen.pressables.size());
      std::iota(numbers.begin(), numbers.end(), 1);
      EXPECT_EQ(numbersIn(screen.text), numbers) << "a press without its number at " << columns;
    }
  }
}

TEST(ViewPrinter, OffersEveryPressOfEveryBlock) {
  Printed printed;
  for (const View& view : {everyBlock(), barestBlocks()}) {
    const PrintedScreen screen = printed.print(view);
    std::vector<std::string> offered;
    for (const Pressable& pressable : screen.pressables) {
      const std::string& id = pressable.action.id;
      if (std::find(offered.begin(), offered.end(), id) == offered.end()) offered.push_back(id);
    }
    std::vector<std::string> shown = pressableIds(view);
    std::erase(shown, "songs");  // a stepper at both its ends
    std::erase(offered, "");     // fields that nobody gave an id
    EXPECT_THAT(offered, ::testing::UnorderedElementsAreArray(shown));
  }
}

TEST(ViewPrinter, ColoursTakeNoColumns) {
  Printed printed;
  std::string painted = printed.print(everyBlock(), true).text;
  while (painted.find('\x1b') != std::string::npos) {
    const size_t code = painted.find('\x1b');
    painted.erase(code, painted.find('m', code) + 1 - code);
  }
  EXPECT_EQ(painted, printed.print(everyBlock()).text);
}

TEST(ViewPrinter, WhatIsLockedSaysSoWithoutColour) {
  Printed printed;
  View view;
  view.add(Rows{.items = {{.title = "Leadership", .tone = Tone::locked, .id = "lead"}}});
  view.add(
      Choice{.id = "plan", .label = "Plan", .options = {{.label = "Free"}, {.label = "Gold", .tone = Tone::locked}}});
  view.mainAction = Button{.id = "go", .label = "Release", .tone = Tone::locked};
  const std::string text = printed.print(view).text;
  for (const char* name : {"Leadership", "Gold", "Release"}) {
    EXPECT_THAT(text, HasSubstr(std::string(name) + " (locked)"));
  }
}

TEST(ViewPrinter, ColumnsStandUnderTheirHeadsAndPeakAndWeeksStayWhole) {
  Printed printed;
  View view;
  Row row = {.title = std::string(80, 'x'),
             .subtitle = std::string(90, 'y') + "\nPeak 3 · 112 weeks",
             .value = "▲ 12",
             .note = "100"};
  row.id = "song:1";
  view.add(Rows{.items = {row}, .columns = {"LAST\nWEEK", "THIS\nWEEK"}});
  const std::vector<std::string> lines = linesOf(printed.print(view).text);
  const auto endOf = [&](const std::string& text) {
    for (const std::string& line : lines) {
      if (const size_t at = line.find(text); at != line.npos) return columnsOf(line.substr(0, at + text.size()));
    }
    return size_t{0};
  };
  EXPECT_GT(endOf("LAST WEEK"), 0u);
  EXPECT_EQ(endOf("100"), endOf("LAST WEEK"));
  EXPECT_EQ(endOf("▲ 12"), endOf("THIS WEEK"));
  EXPECT_THAT(lines, ::testing::Contains("      Peak 3 · 112 weeks"));
}

TEST(ViewPrinter, ControlsPressWhatTheySay) {
  Printed printed;
  const std::vector<Pressable> offered = printed.print(everyBlock()).pressables;
  std::vector<std::string> steps;
  std::vector<std::string> photos;
  for (const Pressable& pressable : offered) {
    if (pressable.action.id == "royalties") steps.push_back(pressable.action.value);
    if (pressable.action.id == "price") {
      EXPECT_EQ(pressable.takes, Pressable::Takes::option);
      EXPECT_EQ(pressable.options, 12);
    }
    if (pressable.takes == Pressable::Takes::photo) photos.push_back(pressable.action.id);
    if (pressable.action.id == "plan") {
      EXPECT_EQ(pressable.options, 2);
    }
  }
  EXPECT_EQ(photos, (std::vector<std::string>{"photo", "header"}));
  EXPECT_EQ(steps, (std::vector<std::string>{"-1", "1"}));
  EXPECT_THAT(printed.print(everyBlock()).text, HasSubstr("10⚡ $1,125,000 ✗"));
}

}  // namespace
}  // namespace backbeat
