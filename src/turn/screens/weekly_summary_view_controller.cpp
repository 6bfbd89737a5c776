#include "turn/screens/weekly_summary_view_controller.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>
#include <utility>

#include "career/contract_end.h"
#include "core/calendar.h"
#include "core/money.h"
#include "core/numbers.h"
#include "core/own_photo.h"
#include "core/purse.h"
#include "core/sorting.h"
#include "core/view_words.h"
#include "label/artist_week.h"
#include "label/roster.h"
#include "label/weekly_label_updates.h"
#include "life/children_events.h"
#include "life/news.h"
#include "life/relationship_events.h"
#include "live/festivals.h"
#include "music/covers.h"
#include "recognition/year_in_review.h"
#include "social/screens/chirp_post.h"
#include "turn/open_report.h"
#include "turn/screens/money_figures.h"
#include "turn/week_story.h"
#include "wealth/screens/venture_report.h"
#include "wealth/weekly_ventures.h"

namespace backbeat {

namespace {

constexpr int64_t ratingOfferWeek = 31;
constexpr Charge ratingOfferGift = {.energy = 250};
constexpr size_t mostListed = 5;
constexpr size_t mostNews = 6;  ///< the headline among them
constexpr const char* ratingAnswer = "ratingAnswer:";

/// Whether there is a dollar of it to tell.
bool isTold(double amount) { return std::nearbyint(amount) != 0; }

void addIncome(Figures& figures, std::string label, double amount, std::string note = {}) {
  if (isTold(amount)) figures.items.push_back(dollars(std::move(label), amount, Tone::good, std::move(note)));
}

void addExpense(Figures& figures, std::string label, double amount, std::string note = {}) {
  if (isTold(amount)) figures.items.push_back(dollars(std::move(label), -amount, Tone::bad, std::move(note)));
}

/// The total is what the week was paid, to the cent; the lines are told to the dollar.
Figures incomeOf(const WeeklyReport& report) {
  Figures income{.title = "Income"};
  const std::string top = report.weeklySongListens.empty() ? "" : report.weeklySongListens.front().songTitle;
  addIncome(income, "Streams", report.streams, top);
  addIncome(income, "Albums", report.totalAlbumRevenue);
  addIncome(income, "Videos", report.videos);
  addIncome(income, "Touring", std::max(report.tour, 0.0));
  addIncome(income, "Festival", report.festivalPayment);
  addIncome(income, "Featured on", report.featured);
  if (report.merch > 0) addIncome(income, "MERCH SALES", report.merch, counted(report.merchUnits, "unit"));
  if (report.merch < 0 && isTold(report.merch)) income.items.push_back(dollars("Merchandise", report.merch, Tone::bad));
  addIncome(income, "My label", report.label);
  addIncome(income, "Job", report.job);
  addIncome(income, "Standing income", report.standingIncome);
  income.total = dollars("Total revenue", report.totalRevenue, Tone::plain);
  return income;
}

double costOf(const WeeklyReport& report) { return report.totalExpenses + report.bonusPaidBack; }

Figures expensesOf(const WeeklyReport& report) {
  Figures expenses{.title = "Cost"};
  addExpense(expenses, "Standing expenses", report.standingExpenses);
  addExpense(expenses, "Family", report.family);
  addExpense(expenses, "Touring", std::max(-report.tour, 0.0));
  addExpense(expenses, "Office", report.labelExpenses);
  addExpense(expenses, "Signing bonus paid back", report.bonusPaidBack, "contract ended");
  addExpense(expenses, "Divorce", report.settlement);
  expenses.total = totalOf("Total cost", expenses.items);
  return expenses;
}

/// The word for a row's badge.
const char* badgeFor(Milestone::Kind kind) {
  switch (kind) {
    case Milestone::Kind::numberOne: return "#1";
    case Milestone::Kind::certification: return "CERTIFIED";
    case Milestone::Kind::chartDebut: return "DEBUT";
    case Milestone::Kind::newPeak: return "PEAK";
    case Milestone::Kind::recordWeek: return "";
  }
  return "";
}

/// Puts the greatest milestone of a song or an album this week on its row: as a badge, but a best week in the small
/// line.
void mark(Row& row, const std::vector<Milestone>& milestones, int64_t Milestone::*id, int64_t wanted) {
  const auto found = std::find_if(milestones.begin(), milestones.end(),
                                  [&](const Milestone& milestone) { return milestone.*id == wanted; });
  if (found == milestones.end()) return;
  row.badge = badgeFor(found->kind);
  if (found->kind == Milestone::Kind::recordWeek) row.subtitle += row.subtitle.empty() ? "Best week" : " · best week";
}

Rows songsOf(const GameState& state, const WeeklyReport& report, const std::vector<Milestone>& milestones) {
  Rows rows;
  for (size_t i = 0; i < std::min(mostListed, report.weeklySongListens.size()); ++i) {
    const WeeklySongListens& week = report.weeklySongListens[i];
    rows.items.push_back({.picture = coverOfSong(state, week.songId, week.songTitle),
                          .title = week.songTitle,
                          .subtitle = week.albumTitle,
                          .value = withCommas(week.songListens)});
    mark(rows.items.back(), milestones, &Milestone::songId, week.songId);
    const std::optional<int64_t> before = streamsTheWeekBefore(state, week.songId, report.week);
    const int64_t change = week.songListens - before.value_or(week.songListens);
    const int64_t told = change == 0 ? week.songListens : std::abs(change);
    const std::string noun = told == 1 ? "stream" : "streams";
    rows.items.back().note = change == 0 ? noun : (change > 0 ? "+" : "-") + withCommas(told) + " " + noun;
    rows.items.back().tone = toneOfChange(change);
  }
  return rows;
}

Rows albumsOf(const GameState& state, const WeeklyReport& report, const std::vector<Milestone>& milestones) {
  std::vector<WeeklyAlbumSales> sales = report.weeklyAlbumSales;
  sortStably(sales, [](const auto& a, const auto& b) { return a.albumSales > b.albumSales; });
  Rows rows;
  for (size_t i = 0; i < std::min(mostListed, sales.size()); ++i) {
    if (sales[i].albumSales < 1) break;
    const size_t found =
        state.saveAllAlbumList.find([&](const Album& album) { return album.albumId == sales[i].albumId; });
    const bool isThere = found != state.saveAllAlbumList.size();
    rows.items.push_back(
        {.picture = isThere ? coverOf(state, state.saveAllAlbumList[found]) : cover(sales[i].albumTitle),
         .title = sales[i].albumTitle,
         .value = withCommas(sales[i].albumSales),
         .note = "sold"});
    mark(rows.items.back(), milestones, &Milestone::albumId, sales[i].albumId);
  }
  return rows;
}

/// The label's artists by what their songs streamed, the most heard first.
Rows signedArtistsOf(const GameState& state, const WeeklyReport& report) {
  std::map<int64_t, int64_t> streams;
  for (const auto& week : report.weeklyEarningsSignedArtistSongs) {
    streams[week.artistId] = add(streams[week.artistId], week.songListens);
  }
  std::vector<std::pair<int64_t, int64_t>> order(streams.begin(), streams.end());
  sortStably(order, [](const auto& a, const auto& b) { return a.second > b.second; });
  Rows rows;
  for (const auto& [artistId, heard] : order) {
    const size_t position = artistPosition(state, artistId);
    if (position == state.saveAllSignedArtistList.size()) continue;
    const std::string& name = state.saveAllSignedArtistList[position].name;
    rows.items.push_back({.picture = person(name),
                          .title = name,
                          .value = withCommas(heard),
                          .note = heard == 1 ? "stream" : "streams"});
    if (rows.items.size() == mostListed) break;
  }
  return rows;
}

/// What other artists' songs with a verse of the player streamed, the most heard first.
Rows versesOf(const WeeklyReport& report) {
  std::vector<FeaturedOnWeeklySongListens> weeks = report.weeklyFeaturedOnSongListens;
  sortStably(weeks, [](const auto& a, const auto& b) { return a.songListens > b.songListens; });
  Rows rows;
  for (size_t i = 0; i < std::min(mostListed, weeks.size()); ++i) {
    rows.items.push_back({.picture = cover(weeks[i].songTitle),
                          .title = weeks[i].songTitle,
                          .subtitle = weeks[i].artistName,
                          .value = withCommas(weeks[i].songListens),
                          .note = weeks[i].songListens == 1 ? "stream" : "streams"});
  }
  return rows;
}

Rows videosOf(const GameState& state, const WeeklyReport& report) {
  std::vector<WeeklyVideoViews> views = report.weeklyMusicVideoViews;
  sortStably(views, [](const auto& a, const auto& b) { return a.videoViews > b.videoViews; });
  Rows rows;
  for (size_t i = 0; i < std::min(mostListed, views.size()); ++i) {
    if (views[i].videoViews < 1) break;
    rows.items.push_back({.picture = coverOfSong(state, views[i].songId, views[i].songTitle),
                          .title = views[i].songTitle,
                          .value = withCommas(views[i].videoViews),
                          .note = views[i].videoViews == 1 ? "view" : "views"});
  }
  return rows;
}

/// The show of the week and the festival played, with what the papers said.
Rows showsOf(const WeeklyReport& report) {
  Rows rows;
  if (!report.weeklyTourSales.empty()) {
    const std::vector<WeeklyTourSales>& shows = report.weeklyTourSales;
    const auto soldOut =
        std::find_if(shows.begin(), shows.end(), [](const WeeklyTourSales& show) { return show.soldOut == 1; });
    const WeeklyTourSales& show = soldOut == shows.end() ? shows.front() : *soldOut;
    rows.items.push_back({.picture = icon("ticket"),
                          .title = soldOut == shows.end() ? show.tourStadium : "Sold Out Show 🔥",
                          .subtitle = show.tourLocation,
                          .value = withCommas(show.seatsSold),
                          .note = "seats"});
  }
  if (report.festival) {
    rows.items.push_back({.picture = icon("star"),
                          .title = report.festival->festivalName,
                          .subtitle = report.festival->topReview,
                          .value = starText(*report.festival)});
  }
  return rows;
}

}  // namespace

Outcome WeeklySummaryViewController::open() {
  if (isReportOpen(state())) return openAgain();
  const double cash = state().totalCashAvailable;
  report_ = buildWeeklyReport(game_);
  report_.cashBefore = cash;
  settleWeeklyCash(game_, report_);
  updateVentureValuations(game_);
  drawWeeklyEventCount(game_, events_);
  const double cashBeforeExits = state().totalCashAvailable;
  resolveVentureExits(game_);
  report_.exits = state().totalCashAvailable - cashBeforeExits;
  updateEmployeesWeekly(game_);
  updateSignedArtistsWeekly(game_);
  rememberReport(game_, report_);
  tellWeek();
  return {};
}

/// After a launch: nothing is settled and nothing drawn a second time, and the week's chances are gone.
Outcome WeeklySummaryViewController::openAgain() {
  report_ = recalledReport(game_);
  isToldAgain_ = true;
  tellWeek();
  return {};
}

void WeeklySummaryViewController::tellWeek() {
  awardShow_ = showAwardButton(state());
  milestones_ = milestonesSince(game_.turn.before, state(), report_.week);
  news_ = newsOf(game_);
  story_ = weekStory(game_, report_);
}

Outcome WeeklySummaryViewController::appear() {
  // A launch that ended before the question was answered took it along.
  if (report_.hasAppeared) return std::exchange(isToldAgain_, false) ? offerEnergyForRating() : Outcome{};
  report_.hasAppeared = true;
  Outcome outcome = offerEnergyForRating();
  const double cash = state().totalCashAvailable;
  outcome += checkContractDeadlines(game_);
  report_.bonusPaidBack = cash - state().totalCashAvailable;
  const double cashWithPartner = state().totalCashAvailable;
  outcome += runRelationshipEvents(game_);
  report_.settlement = cashWithPartner - state().totalCashAvailable;
  rememberAppearance(game_, report_);
  news_ = newsOf(game_);  // who has left, and who was born, came with the last step
  return outcome;
}

Outcome WeeklySummaryViewController::act(const Action& action) {
  if (action.id == "closeButton") return closeButton();
  if (action.id == "eventButton1") return eventButton1();
  if (action.id == "eventButton2") return eventButton2();
  if (action.id == "eventButton3") return eventButton3();
  if (action.id == "awardButton") return awardButton();
  if (action.id == "yearInReview" && isReviewDue(state())) {
    return goTo("goToYearInReview", std::to_string(state().yearNumber - 1));
  }
  if (action.verb() == "ratingAnswer") {
    if (const auto answer = optionNumber(action.argument(), 4)) return answerRatingOffer(static_cast<int64_t>(*answer));
  }
  return {};
}

bool WeeklySummaryViewController::ratingOfferStands() const {
  return state().weekNumber == ratingOfferWeek && state().writtenReview == 0;
}

Outcome WeeklySummaryViewController::offerEnergyForRating() const {
  if (!ratingOfferStands()) return {};
  std::vector<AlertButton> buttons;
  for (const char* label : {"It's Awesome! 🥳", "It's Great 😁", "It's Good 🙂", "It's Okay 😬"}) {
    const std::string number = std::to_string(buttons.size());
    buttons.push_back({label, {ratingAnswer + number, ""}});
  }
  Outcome outcome = news<"🔥 FREE ENERGY 🔥">(
      "Hey, you! Answer a quick question and you'll gain +250 ENERGY!\n\nHow would you describe our app so far?",
      Feedback::none);
  outcome.alerts.front().buttons = std::move(buttons);
  return outcome;
}

Outcome WeeklySummaryViewController::answerRatingOffer(int64_t answer) {
  if (!ratingOfferStands()) return {};
  game_.state.writtenReview += 1;
  game_.save(&GameState::writtenReview);
  earn(game_, ratingOfferGift);
  if (answer == 0) game_.platform.requestReview();
  stateChanged(game_);
  return success();
}

Outcome WeeklySummaryViewController::closeButton() {
  Outcome outcome = weeklyChildUpdate(game_);
  forgetReport(game_);
  outcome += closeScreen();
  return outcome;
}

Outcome WeeklySummaryViewController::awardButton() {
  const AwardShow show = std::exchange(awardShow_, AwardShow::none);
  if (show == AwardShow::none) return {};
  return goTo(show == AwardShow::nominations ? "goToMusicAward" : "goToGrammyAwardAnnouncement");
}

void WeeklySummaryViewController::describeAwards(View& view) const {
  if (awardShow_ == AwardShow::none) return;
  const bool isNominations = awardShow_ == AwardShow::nominations;
  const std::string year = std::to_string(state().yearNumber);
  view.add(Card{.picture = drawn(Picture::Kind::object, "fork", year),
                .title = isNominations ? "Who is nominated?" : "Awards night",
                .text = isNominations ? "Only this week. A year whose nominations stay shut has no winners either"
                                      : "The envelopes of the year are opened",
                .buttons = {{.id = "awardButton",
                             .label = year + (isNominations ? " Annual GRAM Nominations" : " Annual GRAM Winners")}}});
}

void WeeklySummaryViewController::describeYear(View& view) const {
  if (!isReviewDue(state())) return;
  view.add(Rows{{wayTo("yearInReview", "star", "Your year " + std::to_string(state().yearNumber - 1),
                       "Told in pictures, to keep and to share")}});
}

void WeeklySummaryViewController::describeEvents(View& view) const {
  const std::pair<const EventButton*, const char*> buttons[] = {
      {&events_.buttonEvent1, "eventButton1"},
      {&events_.buttonEvent2, "eventButton2"},
      {&events_.buttonEvent3, "eventButton3"},
  };
  const auto isShown = [](const auto& each) { return each.first->shown(); };
  if (std::none_of(std::begin(buttons), std::end(buttons), isShown)) return;
  view.add(Heading{"Chances"});
  view.add(Tiles{{{.icon = "bolt",
                   .label = "Energy",
                   .value = std::to_string(state().totalEnergyAvailable),
                   .note = "of " + std::to_string(state().totalEnergyMax)},
                  {.icon = "cash",
                   .label = "Cash",
                   .value = currency(state().totalCashAvailable),
                   .tone = state().totalCashAvailable < 0 ? Tone::bad : Tone::plain}}});
  std::map<std::string, size_t> told;  // by what the button says: the block of the first that says it
  for (const auto& [button, press] : buttons) {
    if (!button->shown()) continue;
    const auto [known, isNew] = told.try_emplace(button->caption(), view.blocks.size());
    if (isNew) {
      view.add(eventCard(state(), events_, *button, press));
    } else if (Card* card = std::get_if<Card>(&view.blocks[known->second])) {
      card->badge = card->badge.empty() ? "Two of them" : "Three of them";
    }
  }
}

void WeeklySummaryViewController::describeNews(View& view) const {
  const bool hasHeadline = !news_.empty() && news_.front().rank >= headlineRank;
  Rows rows;
  for (size_t i = hasHeadline ? 1 : 0; i < std::min(mostNews, news_.size()); ++i) rows.items.push_back(rowOf(news_[i]));
  if (rows.items.empty()) return;
  view.add(Heading{"News"});
  view.add(std::move(rows));
}

void WeeklySummaryViewController::describeShowChirp(View& view) const {
  if (report_.showChirpId == 0) return;
  const RecordList<Chirp>& chirps = state().saveAllChirpList;
  const size_t found = chirps.find([&](const Chirp& chirp) { return chirp.id == report_.showChirpId; });
  if (found != chirps.size()) view.add(postOf(state(), chirps[found], game_.clock.now()));
}

void WeeklySummaryViewController::describeMusic(View& view) const {
  if (!report_.weeklySongListens.empty()) {
    view.add(Heading{"POPULAR SONGS"});
    view.add(songsOf(state(), report_, milestones_));
  }
  if (Rows albums = albumsOf(state(), report_, milestones_); !albums.items.empty()) {
    view.add(Heading{"ALBUM SALES"});
    view.add(std::move(albums));
  }
  if (!state().saveAllSignedArtistList.empty()) {
    view.add(Heading{"POPULAR SIGNED ARTISTS\n"});
    Rows artists = signedArtistsOf(state(), report_);
    if (artists.items.empty()) view.add(caption("Nobody heard them this week."));
    view.add(std::move(artists));
  }
  if (Rows verses = versesOf(report_); !verses.items.empty()) {
    view.add(Heading{"FEATURED ON"});
    view.add(std::move(verses));
  }
  if (Rows videos = videosOf(state(), report_); !videos.items.empty()) {
    view.add(Heading{"VIDEO VIEWS"});
    view.add(std::move(videos));
  }
  if (Rows shows = showsOf(report_); !shows.items.empty()) {
    view.add(Heading{"ON STAGE"});
    view.add(std::move(shows));
  }
  if (Rows startups = startupsOfWeek(game_); !startups.items.empty()) {
    view.add(Heading{"STARTUPS"});
    view.add(std::move(startups));
  }
}

View WeeklySummaryViewController::view() const {
  View view{.title = "Week " + std::to_string(report_.week.week),
            .subtitle = std::to_string(report_.week.year) + " · Weekly report",
            .picture = artistPicture(state()),
            .theme = Theme::report};
  if (!news_.empty() && news_.front().rank >= headlineRank) {
    Poster poster = posterOf(news_.front());
    if (news_.front().key == breakUpKey) tearApart(state(), poster);
    view.add(std::move(poster));
  } else {
    view.add(Text{.text = story_, .style = Text::Style::lead});
  }
  Figures income = incomeOf(report_);
  Figures expenses = expensesOf(report_);
  const double net = std::nearbyint(report_.totalRevenue) + std::nearbyint(report_.exits) + expenses.total->amount;
  const double cashAfter =
      report_.cashBefore + report_.totalRevenue + report_.exits - costOf(report_) - report_.settlement;
  const int64_t change = game_.launch.weeklyFanChange;
  const std::string ofNet =
      report_.weeklyTourSales.empty() ? "cash " + currency(cashAfter) : "show " + currency(report_.tour);
  view.add(Figures{.items = {dollars("Net", net, toneOfChange(net), ofNet),
                             {.label = "Listeners",
                              .value = (change > 0 ? "+" : "") + withCommas(change) + " FANS",
                              .amount = static_cast<double>(change),
                              .tone = toneOfChange(change),
                              .note = "now " + withCommas(state().totalFans)}},
                   .style = Figures::Style::pair});
  describeAwards(view);
  describeYear(view);
  describeShowChirp(view);
  describeMusic(view);
  describeNews(view);
  view.add(std::move(income));
  if (report_.exits != 0)
    view.add(Figures{.items = {dollars("Startups", report_.exits, Tone::good, "paid after the settlement")}});
  view.add(std::move(expenses));
  describeEvents(view);
  view.mainAction = Button{.id = "closeButton", .label = "Continue", .style = Button::Style::primary};
  return view;
}

}  // namespace backbeat
