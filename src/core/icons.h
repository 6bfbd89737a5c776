// The names of glyphs that a view may use. The page has a drawing and a tint for each; a test keeps both lists equal.
#pragma once

#include <array>
#include <string_view>

namespace backbeat {

inline constexpr std::array<std::string_view, 60> icons = {
    "home",     "music",  "life",    "business", "social",  "mic",        "note",   "album",     "video",
    "chart",    "flame",  "trophy",  "people",   "person",  "bolt",       "cash",   "briefcase", "food",
    "fashion",  "health", "house",   "car",      "studio",  "settings",   "info",   "chirp",     "megaphone",
    "calendar", "pencil", "star",    "dice",     "heart",   "headphones", "label",  "document",  "warning",
    "lock",     "plus",   "trash",   "pin",      "restart", "theme",      "guest",  "cart",      "trend",
    "gift",     "check",  "teacher", "box",      "radio",   "camera",     "ticket", "keyboard",  "computer",
    "speaker",  "booth",  "guitar",  "spark",    "globe",   "hourglass",
};

}  // namespace backbeat
