#include "screens.h"

#include <algorithm>

#include "shell/registry.h"
#include "shell/shown_json.h"

namespace backbeat {

namespace {

constexpr Date someDay{1'672'660'800};

}  // namespace

const std::vector<HeavyScreen>& heavyScreens() {
  static const std::vector<HeavyScreen> screens = {
      {"home", {"0"}},
      {"music, songs", {"1", "kind=0"}},
      {"music, albums", {"1", "kind=1"}},
      {"chart", {"1", "goToBillboard"}},
      {"certifications", {"1", "goToCertification"}},
      {"listeners", {"1", "goToMonthlyListenerDetail"}},
      {"artist profile", {"1", "goToArtistProfile"}},
      {"song statistics", {"1", "song:1", "marketingButton"}},
      {"chirp feed", {"4"}},
      {"channel", {"4", "goToYouVideo"}},
      {"tour planner", {"1", "goToTour"}},
      {"merch overview", {"3", "goToMerch"}},
      {"weekly report", {}},
  };
  return screens;
}

const std::vector<HeavyScreen>& labelScreens() {
  static const std::vector<HeavyScreen> screens = {
      {"label home", {"3", "goToLabelDetail"}},
      {"roster", {"3", "goToLabelDetail", "goToSignedArtists"}},
      {"artist of the label", {"3", "goToLabelDetail", "artist:1"}},
      {"songs of an album", {"3", "goToLabelDetail", "artist:1", "album:1"}},
      {"return on the label", {"3", "goToLabelDetail", "goToArtistRoi"}},
      {"chart history", {"1", "goToBillboard", "historyButton"}},
  };
  return screens;
}

const std::vector<HeavyScreen>& familyScreens() {
  static const std::vector<HeavyScreen> screens = {
      {"relationship", {"2", "goToRelationshipHome"}},
      {"matches", {"2", "goToFXYDating", "goToFxyMatchList"}},
      {"children", {"2", "goToChildList"}},
      {"dynasty", {"2", "goToFamilyDynasty"}},
      {"homes", {"3", "goToPropertyPortfolio"}},
      {"startups", {"3", "goToVenturePortfolio"}},
      {"the rich", {"3", "goToForbesDetail"}},
      {"awards", {"1", "goToGramAwardDetail"}},
  };
  return screens;
}

void goToScreen(Session& session, const HeavyScreen& screen) {
  const bool isReport = screen.presses.empty();
  if (isReport && session.shown().modal) return;
  if (isReport) return pressOnce(session, "nav", "endTheWeekButton", "");
  closeTheReport(session, [&](const std::string& screenKey, const std::string& id, const std::string& value) {
    pressOnce(session, screenKey, id, value);
  });
  pressOnce(session, "tabs", "tab", screen.presses.front());
  while (session.shown().stack.size() > 1) pressOnce(session, "nav", "back", "");
  for (size_t i = 1; i < screen.presses.size(); ++i) {
    const std::string& step = screen.presses[i];
    const size_t equals = step.find('=');
    pressOnce(session, std::to_string(session.shown().key), step.substr(0, equals),
              equals == step.npos ? "" : step.substr(equals + 1));
  }
}

std::string describedScreen(const Session& session) { return shownAsJson(session.navigator(), session.shown()); }

std::vector<LooseScreen> everyScreen(Session& session) {
  const GameState& state = session.game().state;
  std::vector<std::string> arguments = {"", "0"};
  for (const int64_t last : {int64_t{1}, state.songId, state.albumId, state.merchId, state.tourId,
                             state.featuredOnSongId, state.signedArtistId, state.signedArtistAlbumId, state.matchId}) {
    arguments.push_back(std::to_string(last));
  }
  Shown glass = session.shown();
  std::vector<LooseScreen> all;
  for (const Segue& segue : segues()) {
    LooseScreen best;
    size_t most = 0;
    for (const std::string& argument : arguments) {
      LooseScreen loose{std::string(segue.name), segue.make(session.game(), argument)};
      loose.screen->open();
      loose.screen->appear();
      const size_t told = describedScreen(session, glass, *loose.screen).size();
      if (told > most) best = std::move(loose);
      most = std::max(most, told);
    }
    all.push_back(std::move(best));
  }
  return all;
}

std::string describedScreen(const Session& session, Shown& glass, const Screen& screen) {
  glass.view = screen.view();
  return shownAsJson(session.navigator(), glass);
}

void endTheWeek(Session& session, const Press& press) {
  press("nav", "endTheWeekButton", "");
  closeTheReport(session, press);
}

void closeTheReport(Session& session, const Press& press) {
  for (Shown shown = session.shown(); shown.alert || shown.modal; shown = session.shown()) {
    if (shown.alert) {
      press("alert", std::to_string(shown.alert->key), "0");
    } else {
      press(std::to_string(shown.key), "closeButton", "");
    }
  }
}

void pressOnce(Session& session, const std::string& screenKey, const std::string& id, const std::string& value) {
  session.press(someDay, screenKey, {id, value});
}

}  // namespace backbeat
