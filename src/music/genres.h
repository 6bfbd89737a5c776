// The genres a song can be made in. No rule reads them yet; the last choice is remembered for the next song.
#pragma once

#include <array>
#include <string_view>

namespace backbeat {

inline constexpr std::array<std::string_view, 16> genres = {
    "Alternative", "Blues", "Classical", "Country", "Electronic", "Folk", "Gospel", "Hip-Hop",
    "Jazz",        "Latin", "Metal",     "Pop",     "Punk",       "R&B",  "Reggae", "Rock",
};

}  // namespace backbeat
