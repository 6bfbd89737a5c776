// Words for titles: one of the first and one of the second make a name for a song or an album.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace backbeat {

inline constexpr std::array<std::string_view, 60> firstTitleWords = {
    "Midnight", "Velvet",    "Golden",   "Broken",   "Electric", "Paper",       "Silver",   "Lonely",  "Crimson",
    "Hollow",   "Restless",  "Neon",     "Faded",    "Wild",     "Quiet",       "Burning",  "Frozen",  "Sweet",
    "Bitter",   "Distant",   "Endless",  "Fearless", "Gentle",   "Hidden",      "Infinite", "Jaded",   "Kinetic",
    "Lucid",    "Magnetic",  "Northern", "Open",     "Plastic",  "Radiant",     "Sacred",   "Tangled", "Unspoken",
    "Violet",   "Wandering", "Young",    "Amber",    "Borrowed", "Careless",    "Dizzy",    "Empty",   "Fallen",
    "Gravity",  "Honest",    "Island",   "Joyful",   "Last",     "Mirror",      "Nameless", "Opal",    "Perfect",
    "Reckless", "Southern",  "Thunder",  "Urban",    "Wasted",   "Yesterday's",
};

inline constexpr std::array<std::string_view, 60> secondTitleWords = {
    "Hearts",  "Streets", "Promises", "Shadows", "Rivers",     "Lights",   "Skyline", "Echoes",  "Dreams",   "Highways",
    "Summer",  "Letters", "Fever",    "Garden",  "Horizon",    "Machines", "Ghosts",  "Honey",   "Avenue",   "Motel",
    "Lovers",  "Winter",  "Oceans",   "Roses",   "Static",     "Thunder",  "Window",  "Wings",   "Weekend",  "Waves",
    "Anthem",  "Ballad",  "Carousel", "Desire",  "Empire",     "Fire",     "Gravity", "Home",    "Illusion", "Journey",
    "Kingdom", "Lullaby", "Memories", "Nights",  "Orbit",      "Paradise", "Rain",    "Secrets", "Tides",    "Universe",
    "Valley",  "Whisper", "Youth",    "Zero",    "Confession", "Daylight", "Exit",    "Forever", "Glow",     "Mirage",
};

/// A title for the dice: of one song or album, told by its number, and of one throw, from 1. Ten throws that follow
/// each other begin with ten words. No random draw is spent.
std::string suggestedTitle(int64_t number, int64_t nth);

}  // namespace backbeat
