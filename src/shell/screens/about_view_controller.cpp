#include "shell/screens/about_view_controller.h"

#include <array>
#include <span>

#include "core/view_words.h"
#include "shell/feedback.h"

namespace backbeat {

namespace {

struct Licence {
  const char* work;
  const char* role;
  const char* licence;
};

/// What is shipped beside our own code: in the page, in the engine, in the program for the terminal.
constexpr std::array<Licence, 7> inPage = {{
    {"lit", "Drawing the page", "BSD-3-Clause"},
    {"ionicons", "Glyphs", "MIT"},
    {"uPlot", "Charts", "MIT"},
    {"@dicebear/core", "Building portraits", "MIT"},
    {"Open Peeps", "Artwork of the portraits", "CC0 1.0"},
    {"idb", "Keeping the save", "ISC"},
    {"Inter", "Typeface", "OFL-1.1"},
}};
constexpr std::array<Licence, 4> inEngine = {{
    {"libc++ and compiler-rt", "The language's own library", "Apache-2.0 with LLVM exception"},
    {"wasi-libc", "The C library in the browser", "CC0 1.0"},
    {"musl", "The same", "MIT"},
    {"xxHash", "The check of each row of a save", "BSD-2-Clause"},
}};
constexpr std::array<Licence, 5> inTerminal = {{
    {"SQLite", "Keeping the save", "Public domain"},
    {"zlib", "Packing its copies", "Zlib"},
    {"CLI11", "Reading the command line", "BSD-3-Clause"},
    {"libedit", "Editing what is typed", "BSD-3-Clause"},
    {"utf8proc", "The width of letters", "MIT"},
}};

void addLicences(View& view, const char* heading, std::span<const Licence> licences) {
  view.add(Heading{heading});
  Rows works;
  for (const Licence& licence : licences) {
    works.items.push_back({.title = licence.work, .subtitle = std::string(licence.role) + "\n" + licence.licence});
  }
  view.add(std::move(works));
}

}  // namespace

View AboutViewController::view() const {
  View view{.title = "About", .subtitle = "Version " + std::string(gameVersion), .picture = icon("music")};
  view.add(Text{.text = "Backbeat is the life of one artist, told a week at a time.\nWrite songs, find listeners, make "
                        "and lose money, grow old, and hand over to the next generation.\nIt plays on this device "
                        "alone: no account, no network, nobody watching.",
                .style = Text::Style::lead});
  addLicences(view, "In the page", inPage);
  addLicences(view, "In the engine", inEngine);
  addLicences(view, "In the terminal", inTerminal);
  view.add(caption("Their licence texts are in the file licenses.txt, which lies beside the page."));
  view.add(caption("The game itself, its rules, texts, record sleeves and everything else here is Backbeat's own."));
  return view;
}

}  // namespace backbeat
