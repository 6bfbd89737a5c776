// The artist's children: who they are by now, and how they look.
#pragma once

#include <optional>
#include <string>

#include "core/game.h"
#include "core/view.h"

namespace backbeat {

/// `Child::typeOfRelationship`.
namespace kinship {
inline constexpr int64_t dead = -10;
inline constexpr int64_t abandoned = -1;
inline constexpr int64_t family = 1;
}  // namespace kinship

inline constexpr int64_t daughter = 1;  ///< `Child::gender`; 0 is a son
inline constexpr double mostAdmiration = 100;
inline constexpr int64_t mostTalent = 110;    ///< a trait is not raised from here on
inline constexpr int64_t ageOfTeens = 13;     ///< years
inline constexpr int64_t ageOfMajority = 18;  ///< from here on a child can take over, and has an occupation

/// Children are found by their place in the list, never by id: the ids begin anew with every launch. Nothing when no
/// child has that place.
std::optional<size_t> childPosition(const GameState& state, int64_t index);

/// Not abandoned, and alive.
bool isInFamily(const Child& child);
/// How many are in the family.
int64_t childrenInFamily(const GameState& state);
/// In the family and of age.
bool mayTakeOver(const GameState& state, const Child& child);

/// Years, by the calendar alone: everybody grows older at New Year. Of the dead, the age that they reached.
int64_t ageOf(const GameState& state, const Child& child);
/// "3 months old", "1 year old", "8 years old".
std::string ageText(const GameState& state, const Child& child);
/// "Elementary School", or "" before school and after it.
std::string schoolOf(const GameState& state, const Child& child);
/// What stands under the name in a list: "8 years old", "left home", "abandoned", "died at 71".
std::string standingText(const GameState& state, const Child& child);

/// One of the five traits that a child brings along, in the order in which they are drawn.
struct Talent {
  const char* label;
  int64_t Child::*level;
};
inline constexpr Talent talents[] = {{"Songwriting", &Child::songWriting},
                                     {"Virality", &Child::virality},
                                     {"Vocals", &Child::vocals},
                                     {"Rhythm", &Child::rhythm},
                                     {"Charisma", &Child::charisma}};
/// Raises it by 1; false, and nothing happens, at its end.
bool raiseTalent(Child& child, int64_t Child::*level);
/// From now on the child takes neither energy nor money.
void endUpkeep(GameState& state, Child& child);

/// Changes the admiration by points, within 0 to 100.
void admire(Child& child, double points);

/// How the child looks by now. Skin and hair follow from the parents, the rest from what never changes about a child,
/// so that whoever is renamed or grows up stays the same person.
Picture portraitOf(const GameState& state, const Child& child);
/// The name of the portrait that the child has as a grown artist.
std::string grownPortrait(const Child& child);

inline constexpr const char* newbornName = "Newborn";
inline constexpr size_t longestChildName = 40;  ///< characters

/// Sets the name of a child, without white space at its ends; an empty one changes nothing. Outside the list nothing
/// happens.
void renameChild(Game& game, int64_t index, const std::string& name);

}  // namespace backbeat
