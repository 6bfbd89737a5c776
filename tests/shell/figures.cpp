#include "play/figures.h"

namespace backbeat {

namespace {

std::vector<ScreenFigures> screens() {
  return {{.segue = "goToSettings",
           .figures =
               [](Game& twin) {
                 return Standings{{"Artist name", twin.state.myArtistsName},
                                  {"Featured artists", "", "goToChangeFeaturedArtistName"},
                                  {"Cameos", "", "goToChangeCameoNames"},
                                  {"Export", "", "exportCareer"},
                                  {"Import", "", "importCareer"},
                                  {"Restore", "", "goToRestore"},
                                  {"Write to us", "", "writeFeedback"},
                                  {"Replay file", "", "handOverReplay"},
                                  {"Data", "", "goToData"},
                                  {"About", "", "goToAbout"}};
               }},
          {.segue = "goToRestore",
           .figures =
               [](Game&) {
                 return Standings{{"Before the restart: subtitle",
                                   "Mara Voss · Week 36, 2049 · $5,432,109\nKept 24 Nov 2025, 0.1 MB"},
                                  {"text", "These copies take 0.1 MB of 100 MB."}};
               },
           .before =
               [](Game& game) { game.saveFile.keepSnapshot(SnapshotKind::restart, game.state, Date{1'764'000'000}); }},
          {.segue = "goToPacks",
           .figures =
               [](Game&) {
                 return Standings{{"25 Energy", "Free"}, {"$500,000", "Free"}};
               }},
          {.segue = "goToAbout",
           .figures = [](Game&) { return Standings(); },
           .noFigures = {"subtitle", "Open Peeps*", "Inter*", "@dicebear*", "lit*", "ionicons*", "uPlot*", "idb*",
                         "libc*", "wasi*", "musl*", "xxHash*", "SQLite*", "zlib*", "CLI11*", "libedit*", "utf8proc*"}}};
}

const FiguresOf shell{.screens = screens};

}  // namespace

}  // namespace backbeat
