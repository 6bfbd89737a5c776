// People to love for a test: sensible values; change what the test is about.
#pragma once

#include <cstdint>
#include <string>

#include "core/game_state.h"

namespace backbeat {

/// Somebody who liked back this week and would say yes: 29 years old, chemistry 54, rating 7, gives 14 energy.
Matches somebody(const GameState& state, const std::string& name);

/// Puts the match into the list under the next id. Its id.
int64_t addMatch(GameState& state, Matches match);

/// The same as a partner of that state, for so many weeks, with the bonus in the ceiling.
int64_t addPartner(GameState& state, Matches match, int64_t relationshipState, int64_t weeks);

/// A son of that age, who takes energy and money until he leaves home.
Child childOf(const GameState& state, const std::string& name, int64_t years);
/// Puts the child in with what it takes; its place in the list.
int64_t addChild(GameState& state, Child child);

/// A famous artist of before, as the family's book has it.
Legacy ancestor(const std::string& name, int64_t yearBorn, int64_t yearPassed);

}  // namespace backbeat
