#include "recognition/screens/grammy_award_announcement_view_controller.h"

#include "core/random.h"
#include "recognition/music_awards.h"

namespace backbeat {

namespace {

std::string envelopeOf(const AwardField& field) {
  switch (field.typeOfAward) {
    case award_type::record: return "RECORD OF THE YEAR";
    case award_type::album: return "ALBUM OF THE YEAR";
    case award_type::song: return "SONG OF THE YEAR";
    default: return nameOfField(field.typeOfAward, field.genreNumber);
  }
}

}  // namespace

Outcome GrammyAwardAnnouncementViewController::open() {
  decideWinners(game_);
  if (awardStage(state()) == award_stage::decided) layOutEnvelopes();
  return {};
}

std::string GrammyAwardAnnouncementViewController::headline() const {
  return std::to_string(state().yearNumber) + " GRAM WINNERS";
}

std::optional<size_t> GrammyAwardAnnouncementViewController::winnerOf(const AwardField& field) const {
  std::vector<size_t> rivals;
  for (size_t i = 0; i < field.nominees.size(); ++i) {
    const Award* award = awardOf(state(), field, field.nominees[i]);
    if (!award) rivals.push_back(i);
    if (award && award->isWinner >= 1) return i;
  }
  if (rivals.empty()) return std::nullopt;
  const uint64_t salt = static_cast<uint64_t>(state().yearNumber);
  return rivals[hashOf(nameOfField(field.typeOfAward, field.genreNumber), salt) % rivals.size()];
}

void GrammyAwardAnnouncementViewController::describeField(View& view, const AwardField& field) const {
  const std::optional<size_t> winner = winnerOf(field);
  Card card{.badge = envelopeOf(field)};
  Rows rows;
  for (size_t i = 0; i < field.nominees.size(); ++i) {
    Row row = nomineeRow(state(), field, field.nominees[i]);
    if (i != winner) {
      rows.items.push_back(std::move(row));
    } else if (awardOf(state(), field, field.nominees[i])) {
      card.picture = std::move(row.picture);
      card.title = std::move(row.title);
      card.text = std::move(row.subtitle);
      card.tone = Tone::good;
    } else {
      row.selected = true;
      rows.items.insert(rows.items.begin(), std::move(row));
    }
  }
  if (!winner) card.text = "No one took it this year.";
  view.add(std::move(card));
  view.add(std::move(rows));
}

std::string GrammyAwardAnnouncementViewController::withoutEnvelopes() const {
  return "Nobody opened the nominations of " + std::to_string(state().yearNumber) + ", so there are no winners. " +
         "They are opened in week " + std::to_string(nominationsWeek) + ".";
}

}  // namespace backbeat
