#include "recognition/award_fields.h"

#include <algorithm>
#include <map>

#include "music/genres.h"

namespace backbeat {

namespace {

AwardField mainField(int64_t typeOfAward, const std::map<std::string, std::string>& dictionary) {
  AwardField field{.typeOfAward = typeOfAward, .genreNumber = noGenre};
  for (const auto& [title, artist] : dictionary) field.nominees.push_back({title, artist});
  return field;
}

}  // namespace

int64_t awardStage(const GameState& state) {
  if (state.awardYear.empty() || state.awardYear[0].year != state.yearNumber) return award_stage::open;
  return state.awardYear[0].stage;
}

std::string nameOfGenre(int64_t genreNumber) {
  const auto number = static_cast<size_t>(genreNumber);
  return number < genres.size() ? std::string(genres[number]) : "";
}

std::string nameOfField(int64_t typeOfAward, int64_t genreNumber) {
  switch (typeOfAward) {
    case award_type::record: return "Record of the Year";
    case award_type::album: return "Album of the Year";
    case award_type::song: return "Song of the Year";
    default: break;
  }
  return "Best " + nameOfGenre(genreNumber) + (isForAlbums(typeOfAward) ? " Album" : " Song");
}

std::span<const Award> awardsOfYear(const GameState& state, int64_t year) {
  const RecordList<Award>& awards = state.saveAllMusicAwards;
  size_t end = awards.size();
  while (end > 0 && awards[end - 1].yearAwarded > year) --end;
  size_t begin = end;
  while (begin > 0 && awards[begin - 1].yearAwarded == year) --begin;
  return awards.stretch(begin, end);
}

const Award* awardOf(const GameState& state, const AwardField& field, const AwardNominee& nominee) {
  const std::span<const Award> awards = awardsOfYear(state, state.yearNumber);
  const auto found = std::find_if(awards.begin(), awards.end(), [&](const Award& award) {
    return award.typeOfAward == field.typeOfAward && award.genreNumber == field.genreNumber &&
           award.songOrAlbumName == nominee.title;
  });
  return found == awards.end() ? nullptr : &*found;
}

std::vector<AwardField> fieldsOfYear(const GameState& state) {
  if (awardStage(state) == award_stage::open) return {};
  std::vector<AwardField> fields = {mainField(award_type::record, state.recordDictionary),
                                    mainField(award_type::album, state.albumDictionary),
                                    mainField(award_type::song, state.songDictionary)};
  const std::vector<AwardField>& ofGenres = state.awardYear[0].genreFields;
  fields.insert(fields.end(), ofGenres.begin(), ofGenres.end());
  return fields;
}

}  // namespace backbeat
