// What the habits are put together from: reading a screen's words as a person does, and finding a way.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/price.h"
#include "shell/simulate/player.h"

namespace backbeat {

bool hasEnergy(Player& player, int64_t energy);

/// The first whole number in a text; 0 when there is none.
int64_t numberIn(std::string_view text);

double dollarsOf(const std::optional<Price>& price);

/// Takes the option with the best rating that `budget` pays; what it costs.
double chooseBest(Player& player, const std::string& list, double budget);

/// Goes to the page of a song.
void openSong(Player& player, int64_t songId);

}  // namespace backbeat
