#include "life/screens/dynasty_detail_view_controller.h"

#include "core/money.h"
#include "core/view_words.h"
#include "life/dynasty.h"
#include "wealth/rich_list.h"

namespace backbeat {

namespace {

/// A line about the greatest of something; nothing where there was none.
void addLine(Rows& rows, const char* glyph, const char* title, const std::string& name, const std::string& amount) {
  if (!name.empty()) {
    rows.items.push_back({.picture = icon(glyph), .title = title, .subtitle = name, .value = amount});
  }
}

std::string amountOf(int64_t count, const char* noun) { return withCommas(count) + noun; }

Rows greatestOf(const Legacy& legacy) {
  Rows rows;
  addLine(rows, "album", "Most Popular Album ", legacy.biggestAlbum, amountOf(legacy.biggestAlbumSold, " sold"));
  addLine(rows, "note", "Most Popular Song ", legacy.biggestSong, amountOf(legacy.biggestSongStreams, " plays"));
  addLine(rows, "ticket", "Most Popular Tour ", legacy.biggestTourName,
          amountOf(legacy.biggestTourSeatsSold, " seats"));
  addLine(rows, "trophy", "Longest #1 Hit ", legacy.longestBillboardNumberOneTitle,
          amountOf(legacy.longestBillboardNumberOne, " weeks"));
  addLine(rows, "chart", "Longest Billboard Hit ", legacy.longestBillboardWeeksOnChartsTitle,
          amountOf(legacy.longestBillboardWeeksOnCharts, " weeks"));
  addLine(rows, "label", "Record Label", legacy.recordLabelName, "");
  return rows;
}

}  // namespace

View DynastyDetailViewController::view() const {
  View view{.title = "In Loving Memory", .theme = Theme::family};
  const RecordList<Legacy>& book = state().saveAllLegacyList;
  if (index_ < 0 || static_cast<size_t>(index_) >= book.size()) {
    view.add(EmptyHint{.icon = "document", .text = "Nobody stands on this page."});
    return view;
  }
  const Legacy& legacy = book[static_cast<size_t>(index_)];
  view.title = legacy.name;
  view.subtitle = childOfText(legacy);
  view.add(pageOf(legacy));
  const auto netWorth = static_cast<double>(legacy.netWorth);
  view.add(Rows{.items = {{.picture = icon("cash"),
                           .title = "Net Worth at Death",
                           .subtitle = worldRank(netWorth) + " in the world.",
                           .value = currency(netWorth)}}});
  if (Rows greatest = greatestOf(legacy); !greatest.items.empty()) view.add(std::move(greatest));
  view.add(Text{.text = legacy.spotifyBio});
  if (!legacy.awardsWon.empty()) {
    view.add(Heading{"Awards"});
    Rows awards;
    for (const std::string& award : legacy.awardsWon) {
      awards.items.push_back({.picture = icon("statuette"), .title = award});
    }
    view.add(std::move(awards));
  }
  return view;
}

}  // namespace backbeat
