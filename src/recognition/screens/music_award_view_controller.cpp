#include "recognition/screens/music_award_view_controller.h"

#include "recognition/music_awards.h"

namespace backbeat {

namespace {

/// What a field is called on the envelope, and who it is for.
struct Rubric {
  std::string title;
  std::string rule;
};

Rubric rubricOf(const AwardField& field) {
  switch (field.typeOfAward) {
    case award_type::record:
      return {"1. Record of the Year",
              "Awarded to artist and producers. Eligibility is for singles or tracks released in the last year."};
    case award_type::album:
      return {"2. Album of the Year",
              "Awarded to artists and featured artists. Eligibility is for albums released in the last year with at "
              "least 5 songs."};
    case award_type::song:
      return {"3. Song of the Year",
              "Awarded to the songwriter(s). Eligibility is for singles or tracks released in the last year."};
    default: break;
  }
  const std::string genre = nameOfGenre(field.genreNumber);
  return {nameOfField(field.typeOfAward, field.genreNumber),
          isForAlbums(field.typeOfAward)
              ? "For albums that are predominantly made up of " + genre + " music with at least 5 songs."
              : "Awarded to the artist and songwriter for the best " + genre + " single or track."};
}

}  // namespace

Outcome MusicAwardViewController::open() {
  runNominations(game_);
  layOutEnvelopes();
  return {};
}

std::string MusicAwardViewController::headline() const { return std::to_string(state().yearNumber) + " Nominations"; }

void MusicAwardViewController::describeField(View& view, const AwardField& field) const {
  Rubric rubric = rubricOf(field);
  Card card{.text = std::move(rubric.rule), .badge = std::move(rubric.title)};
  Rows rows;
  for (const AwardNominee& nominee : field.nominees) {
    rows.items.push_back(nomineeRow(state(), field, nominee));
    const Award* award = awardOf(state(), field, nominee);
    if (!award) continue;
    rows.items.back().badge = isOwn(state(), *award) ? "You" : "Your label";
    card.tone = Tone::good;
  }
  view.add(std::move(card));
  view.add(std::move(rows));
}

std::string MusicAwardViewController::withoutEnvelopes() const {
  return "Nominations are opened in week " + std::to_string(nominationsWeek) + ".";
}

}  // namespace backbeat
