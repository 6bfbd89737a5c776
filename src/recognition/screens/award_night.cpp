#include "recognition/screens/award_night.h"

#include "core/money.h"
#include "core/view_words.h"
#include "music/covers.h"

namespace backbeat {

namespace {

Picture coverOfNominee(const GameState& state, const Award* award, const std::string& title) {
  if (!award || !isOwn(state, *award)) return cover(title);
  if (award->isSongOrAlbum == 0) return coverOfSong(state, award->songOrAlbumId, title);
  const RecordList<Album>& albums = state.saveAllAlbumList;
  const size_t found = albums.find([&](const Album& album) { return album.albumId == award->songOrAlbumId; });
  return found == albums.size() ? cover(title) : coverOf(state, albums[found]);
}

/// Whoever wrote it: the artist, and the guests of a song of the artist's own.
std::string songwriters(const GameState& state, const Award* award, const std::string& artist) {
  std::string names = artist;
  if (!award || !isOwn(state, *award)) return names;
  for (const uint32_t position : state.saveAllSongList.historyOf(award->songOrAlbumId)) {
    const std::vector<std::string>& guests = state.saveAllSongList[position].features;
    for (size_t i = 1; i < guests.size(); ++i) names += ", " + guests[i];
  }
  return names;
}

}  // namespace

Row nomineeRow(const GameState& state, const AwardField& field, const AwardNominee& nominee) {
  const Award* award = awardOf(state, field, nominee);
  const std::string artist = award ? award->artistName : nominee.artistName;
  Row row{.picture = coverOfNominee(state, award, nominee.title), .title = nominee.title, .subtitle = artist};
  if (field.typeOfAward == award_type::song) {
    row.subtitle += ", songwriters (" + songwriters(state, award, artist) + ")";
  }
  return row;
}

Outcome AwardNight::act(const Action& action) {
  if (action.id == "nextEnvelope" && opened_ < fields_.size()) opened_ += 1;
  if (action.id == "allEnvelopes") opened_ = fields_.size();
  if (action.id == "doneButton" && opened_ == fields_.size()) return closeScreen();
  return {};
}

View AwardNight::view() const {
  View view{.title = "GRAM Awards", .theme = Theme::gala};
  const size_t left = fields_.size() - opened_;
  view.add(Poster{.pictures = {drawn(Picture::Kind::object, "fork", std::to_string(state().yearNumber))},
                  .kicker = "Annual GRAM Awards",
                  .title = headline(),
                  .text = left == 0 ? "" : counted(static_cast<int64_t>(left), "envelope") + " to open"});
  if (fields_.empty()) view.add(EmptyHint{.icon = "envelope", .text = withoutEnvelopes()});
  bool isHeadingDue = !genreHeading().empty();
  for (size_t i = opened_; i-- > 0;) {
    if (isHeadingDue && fields_[i].genreNumber != noGenre) view.add(Heading{genreHeading()});
    isHeadingDue = false;  // the latest stand first, those of the genres before the main fields
    describeField(view, fields_[i]);
  }
  if (left == 0) {
    view.mainAction = Button{.id = "doneButton", .label = "Done", .style = Button::Style::primary};
    return view;
  }
  view.mainAction = Button{.id = "nextEnvelope", .label = "Next Envelope", .style = Button::Style::primary};
  if (left > 1) view.aside = Button{.id = "allEnvelopes", .label = "All"};
  return view;
}

}  // namespace backbeat
