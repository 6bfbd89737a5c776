// Contracts for a test: sensible values; change what the test is about.
#pragma once

#include <cstdint>
#include <string>

#include "core/game_state.h"

namespace backbeat {

/// A contract that asks for nothing and takes nothing, from one week to another.
ContractLabel contractWith(const std::string& recordLabel, int64_t startWeek, int64_t endWeek);

/// The artist is under that contract from now on.
void signContract(GameState& state, ContractLabel contract);

}  // namespace backbeat
