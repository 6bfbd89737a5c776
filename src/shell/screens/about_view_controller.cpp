#include "shell/screens/about_view_controller.h"

#include <array>

#include "core/view_words.h"

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
  View view{.title = "About", .subtitle = "Version " + std::string(version), .picture = icon("music")};
  view.add(Text{.text = "Backbeat is the life of one artist, told a week at a time.\nWrite songs, find listeners, make "
                        "and lose money, grow old, and hand over to the next generation.\nIt plays on this device "
                        "alone: no account, no network, nobody watching.",
                .style = Text::Style::lead});
  view.add(Heading{"Made with"});
  Rows works;
  for (const Licence& licence : licences) {
    works.items.push_back({.title = licence.work, .subtitle = licence.role, .value = licence.licence});
  }
  view.add(std::move(works));
  view.add(caption("Their licence texts are in the file licenses.txt, which lies beside the page."));
  view.add(caption("The game itself, its rules, texts, record sleeves and everything else here is Backbeat's own."));
  return view;
}

}  // namespace backbeat
