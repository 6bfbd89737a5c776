#include "shell/screens/about_view_controller.h"

#include <array>

namespace backbeat {

namespace {

constexpr const char* version = "1.0.0";

struct Licence {
  const char* work;
  const char* role;
  const char* licence;
};

/// What is shipped in the page beside our own code.
constexpr std::array<Licence, 7> licences = {{
    {"lit", "Drawing the page", "BSD-3-Clause"},
    {"ionicons", "Glyphs", "MIT"},
    {"uPlot", "Charts", "MIT"},
    {"@dicebear/core", "Building portraits", "MIT"},
    {"Open Peeps", "Artwork of the portraits", "CC0 1.0"},
    {"idb", "Keeping the save", "ISC"},
    {"Inter", "Typeface", "OFL-1.1"},
}};

}  // namespace

View AboutViewController::view() const {
  View view;
  view.title = "About";
  view.picture = icon("music");
  view.subtitle = "Version " + std::string(version);
  view.add(
      Text{"Backbeat is the life of one artist, told a week at a time.\nWrite songs, find listeners, make and lose "
           "money, grow old, and hand over to the next generation.\nIt plays on this device alone: no account, no "
           "network, nobody watching.",
           Tone::plain, Text::Style::lead});
  view.add(Heading{"Made with", {}});
  Rows works;
  for (const Licence& licence : licences) {
    Row row;
    row.title = licence.work;
    row.subtitle = licence.role;
    row.value = licence.licence;
    works.items.push_back(std::move(row));
  }
  view.add(std::move(works));
  view.add(Text{"Their licence texts are in the file licenses.txt, which lies beside the page.", Tone::plain,
                Text::Style::caption});
  view.add(Text{"The game itself, its rules, texts, record sleeves and everything else here is Backbeat's own.",
                Tone::plain, Text::Style::caption});
  return view;
}

}  // namespace backbeat
