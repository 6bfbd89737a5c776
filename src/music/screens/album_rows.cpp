#include "music/screens/album_rows.h"

#include <cmath>

#include "career/label_contract.h"
#include "core/money.h"
#include "core/numbers.h"
#include "core/sorting.h"
#include "core/view_words.h"
#include "music/album_sales.h"
#include "music/certifications.h"
#include "music/covers.h"
#include "music/screens/statistics.h"

namespace backbeat {

namespace {

constexpr const char* outOfPrint = "Out of print";

}  // namespace

std::string lifeLeft(const GameState& state, const Album& album) {
  const double life = remainingLife(state, album);
  if (!(life > 0)) return outOfPrint;
  return counted(truncate(std::ceil(life)), "week") + " left";
}

std::vector<size_t> songsOnAlbum(const GameState& state, int64_t albumId) {
  const RecordList<Song>& songs = state.saveAllSongList;
  std::vector<size_t> positions;
  for (size_t i = 0; i < songs.size(); ++i) {
    if (songs[i].albumId == albumId) positions.push_back(i);
  }
  sortStably(positions, [&](size_t a, size_t b) { return songs[a].songId < songs[b].songId; });
  return positions;
}

std::string albumFormat(const Album& album) {
  return (album.songCount < fewestSongsOnLp ? "EP · " : "LP · ") + counted(album.songCount, "song");
}

Row albumRow(const GameState& state, const Album& album) {
  Row row{.picture = coverOf(state, album),
          .title = album.title,
          .opens = true,
          .id = "album:" + std::to_string(album.albumId)};
  if (!album.isReleased) {
    row.subtitle = counted(album.songCount, "song");
    row.value = withDecimals(album.productionRating, 1);
    row.note = "rating";
    return row;
  }
  const std::string life = lifeLeft(state, album);
  row.subtitle = albumFormat(album) + " · " + life;
  row.value = abbreviated(static_cast<double>(album.albumsSold));
  if (life != outOfPrint) {
    const int64_t latest = albumFigures(state, album.albumId).latest;
    row.note = "+" + abbreviated(static_cast<double>(latest));
    row.tone = toneOfChange(latest);
  }
  if (const int64_t tier = albumCertificationTier(album); tier > 0) row.badge = certificationName(tier);
  return row;
}

}  // namespace backbeat
