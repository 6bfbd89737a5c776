#include "music/screens/billboard_view_controller.h"

#include "core/money.h"
#include "core/sorting.h"
#include "music/chart.h"
#include "music/covers.h"

namespace backbeat {

namespace {

template <class T>
std::string nameIn(const RecordList<T>& songs, int64_t songId) {
  const size_t found = songs.find([&](const T& song) { return song.songId == songId; });
  return found == songs.size() ? "" : songs[found].artistName;
}

/// The label's songs are numbered as they come, so that none has to be looked for among those of fifty years, unless a
/// file brought them in another order.
std::string nameOnLabel(const RecordList<SignedArtistSong>& songs, int64_t songId) {
  size_t from = 0;
  for (size_t to = songs.size(); from < to;) {
    const size_t middle = (from + to) / 2;
    if (songs[middle].songId < songId) {
      from = middle + 1;
    } else {
      to = middle;
    }
  }
  const bool isThere = from != songs.size() && songs[from].songId == songId;
  return isThere ? songs[from].artistName : nameIn(songs, songId);
}

/// Who sings: empty when the song behind the row is gone.
std::string artistOf(const GameState& state, const BillboardSong& song) {
  if (isOwnSong(song)) return state.myArtistsName;
  if (song.songId < featuredSongOffset) {
    return nameOnLabel(state.saveAllSignedArtistSongList, song.songId - signedArtistSongOffset);
  }
  return nameIn(state.saveAllFeaturedOnList, song.songId - featuredSongOffset);
}

/// A better rank than last week is up, a worse one down; a debut and a song that held its place show nothing.
struct Arrow {
  const char* sign = "";
  Tone tone = Tone::plain;
};

Arrow arrowOf(const BillboardSong& song) {
  if (song.rankLastWeek == 0 || song.rankThisWeek == song.rankLastWeek) return {};
  if (song.rankThisWeek < song.rankLastWeek) return {"▲ ", Tone::good};
  return {"▼ ", Tone::bad};
}

}  // namespace

Outcome BillboardViewController::open() {
  retireOldChartRows(game_);
  removeSignedArtistChartRows(game_);
  return {};
}

Outcome BillboardViewController::act(const Action& action) {
  if (action.id == "historyButton") return historyButton();
  if (action.id == "chart") window_.moveTo(action.value);
  if (action.verb() == "song") return goTo("goToSongDetail", std::string(action.argument()));
  if (action.verb() == "verse") return goTo("goToFeaturedOnDetail", std::string(action.argument()));
  return {};
}

Outcome BillboardViewController::historyButton() {
  history_ = !history_;
  window_ = {};
  return {};
}

/// Positions of the rows: those on the chart by rank, or all of them by their weeks at number one. Most never had one
/// and stand as they came, so that only the others have to be put in order.
std::vector<size_t> BillboardViewController::rowsShown() const {
  const RecordList<BillboardSong>& rows = state().saveAllBillboardSongList;
  std::vector<size_t> ranked;
  std::vector<size_t> others;
  for (size_t i = 0; i < rows.size(); ++i) {
    if (history_ ? rows[i].weeksAtOne > 0 : rows[i].isOnCharts) {
      ranked.push_back(i);
    } else if (history_) {
      others.push_back(i);
    }
  }
  sortStably(ranked, [&](size_t a, size_t b) {
    return history_ ? rows[a].weeksAtOne > rows[b].weeksAtOne : rows[a].rankThisWeek < rows[b].rankThisWeek;
  });
  ranked.insert(ranked.end(), others.begin(), others.end());
  return ranked;
}

Row BillboardViewController::describe(const BillboardSong& song) const {
  Row row{.picture = coverOfSong(state(), song.songId, song.songTitle),
          .title = song.songTitle,
          .subtitle = artistOf(state(), song)};
  if (!song.songFeature.empty()) row.subtitle += "\nfeat. " + song.songFeature;
  if (!row.subtitle.empty()) row.subtitle += "\n";
  row.subtitle += "Peak " + std::to_string(song.peakPosition) + " · " + counted(song.weeksOnChart, "week");
  if (history_) {
    row.value = std::to_string(song.yearDebut);
    row.note = std::to_string(song.weeksAtOne);
  } else {
    const Arrow arrow = arrowOf(song);
    row.value = arrow.sign + std::to_string(song.rankThisWeek);
    row.tone = arrow.tone;
    row.note = song.rankLastWeek == 0 ? "–" : std::to_string(song.rankLastWeek);
    if (song.rankLastWeek == 0) row.badge = "NEW";
  }
  if (isOwnSong(song)) {
    row.id = "song:" + std::to_string(song.songId);
    row.opens = true;
  } else if (song.songId >= featuredSongOffset) {
    row.id = "verse:" + std::to_string(song.songId - featuredSongOffset);
    row.opens = true;
  }
  return row;
}

View BillboardViewController::view() const {
  View view{.title = history_ ? "HISTORY" : "BILLBOARD 100", .theme = Theme::chart};
  if (!history_) {
    view.subtitle = "Week " + std::to_string(state().weekNumber) + ", " + std::to_string(state().yearNumber);
  }
  view.add(Button{.id = "historyButton", .label = history_ ? "Show the chart" : "Show the history"});
  const std::vector<size_t> shown = rowsShown();
  if (shown.empty()) {
    view.add(EmptyHint{.icon = "chart",
                       .text = history_ ? "Nothing has charted yet. It takes millions of streams in one week."
                                        : "No song is on the chart. It takes millions of streams in one week."});
  } else {
    Rows rows = windowedRows("chart", window_, static_cast<int64_t>(shown.size()),
                             [&](size_t i) { return describe(state().saveAllBillboardSongList[shown[i]]); });
    if (history_) {
      rows.columns = {"WEEKS\nAT #1", "DEBUT\nYEAR"};
    } else {
      rows.columns = {"LAST\nWEEK", "THIS\nWEEK"};
    }
    view.add(std::move(rows));
  }
  view.help =
      Help{.title = "The chart",
           .text =
               "A rank follows from how close a week's streams come to a number one, which is another figure each "
               "week: from 10 to 15 million. A quarter of it gets a song in.\n\nA song keeps its place in the "
               "history for good."};
  return view;
}

}  // namespace backbeat
