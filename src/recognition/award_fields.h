// The fields of the annual awards, and what stands in them this year.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "core/game_state.h"

namespace backbeat {

/// Numbers of the fields. 3 is a field that nobody ever stands in.
namespace award_type {
inline constexpr int64_t record = 0;
inline constexpr int64_t album = 1;
inline constexpr int64_t song = 2;
inline constexpr int64_t nobodys = 3;
inline constexpr int64_t genreAlbum = 4;
inline constexpr int64_t genreSong = 5;
}  // namespace award_type

inline constexpr int64_t noGenre = -1;
inline constexpr size_t nomineesInField = 5;

/// How far a year of awards has come.
namespace award_stage {
inline constexpr int64_t open = 0;
inline constexpr int64_t nominated = 1;
inline constexpr int64_t decided = 2;
}  // namespace award_stage

/// Of the present year; a year that was never nominated stays open.
int64_t awardStage(const GameState& state);

inline bool isForAlbums(int64_t typeOfAward) {
  return typeOfAward == award_type::album || typeOfAward == award_type::genreAlbum;
}

/// "" for a number that is none.
std::string nameOfGenre(int64_t genreNumber);

/// "Record of the Year", "Best Jazz Song".
std::string nameOfField(int64_t typeOfAward, int64_t genreNumber);

/// The nominations of one year that went to the artist or the label, in the order of the fields.
std::span<const Award> awardsOfYear(const GameState& state, int64_t year);

/// The nomination behind a nominee of this year's field; nullptr for a rival. A title stands only once in a field.
const Award* awardOf(const GameState& state, const AwardField& field, const AwardNominee& nominee);

/// This year's fields with all their nominees, the three main ones first; none while the year is open. The main fields
/// remember whom they name and not in which order.
std::vector<AwardField> fieldsOfYear(const GameState& state);

/// Whether it went to the artist in person and not to somebody on the label.
inline bool isOwn(const GameState& state, const Award& award) { return award.artistName == state.myArtistsName; }

}  // namespace backbeat
