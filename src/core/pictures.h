// The forms of the drawn pictures, which stand before the colon of a picture's name: "shirt:Tour Shirt 2031". The page
// has a drawing for each; a test keeps both lists equal. For a form that is not listed the page draws something that
// is.
#pragma once

#include <array>
#include <string_view>

namespace backbeat {

// clang-format off
/// Things on a square. What a product bears, its cloth and the light on a venue follow from the name; that of a medal
/// is the icon on it.
inline constexpr auto objectForms = std::to_array<std::string_view>({
    // products
    "cassette",
    "vinyl",
    "shirt",
    "hoody",
    "sweater",
    "jumper",
    "beanie",
    "bobbleHat",
    "cap",
    "cowboyHat",
    "swimsuit",
    "bikini",
    "trunks",
    "mug",
    "makeup",
    "phoneCase",
    "backpack",
    "rucksack",
    "handbag",
    // venues
    "stadium",
    "nest",
    "arena",
    "drum",
    "dome",
    "crystal",
    "steps",
    "rocks",
    "shell",
    "pavilion",
    "theatre",
    "hall",
    "auditorium",
    "club",
    // what drives, flies and swims
    "scooter",
    "hatchback",
    "offroader",
    "sedan",
    "buggy",
    "sports",
    "electric",
    "crossover",
    "boxy",
    "supercar",
    "coupe",
    "convertible",
    "limousine",
    "van",
    "bus",
    "propeller",
    "helicopter",
    "jet",
    "transport",
    "stealth",
    "boat",
    "yacht",
    "superyacht",
    // what is won, given and put up
    "pearRing",
    "stepRing",
    "heartRing",
    "roundRing",
    "trilliantRing",
    "grandRing",
    "royalRing",
    "fork",
    "medal",
    "goldRecord",
    "platinumRecord",
    "diamondRecord",
    "goldBooth",
    "platinumBooth",
    "diamondBooth",
    "parcel",
});

/// Wide views. "place" is one of several, by the name.
inline constexpr auto sceneForms = std::to_array<std::string_view>({
    // behind people and news
    "stage",
    "festival",
    "sunset",
    "meadow",
    "nursery",
    "studio",
    "school",
    "wedding",
    "hospital",
    "rain",
    "memorial",
    "gala",
    "office",
    "garageOffice",
    "coworking",
    "warehouse",
    "loft",
    "campus",
    "place",
    // homes and land
    "townhouse",
    "cabin",
    "farmhouse",
    "beachHouse",
    "modern",
    "ranch",
    "lakeHouse",
    "vineyard",
    "chalet",
    "bungalow",
    "prairie",
    "lodge",
    "reef",
    "island",
    "fortress",
    "heartIsland",
    "shingle",
    "villa",
    "palmBeach",
    "estate",
    "parisian",
    "mansion",
    "cliffHouse",
    "manor",
    "lagoon",
});

/// Frames of music videos. A name may tell, after line breaks, who is seen and who directed: "cinematic:Paper
/// Lanterns\nNova Reyes\nIda Reel".
inline constexpr auto stillForms = std::to_array<std::string_view>({
    "animated",
    "cinematic",
    "concept",
    "lyric",
    "narrative",
    "performance",
});

/// Logos.
inline constexpr auto markForms = std::to_array<std::string_view>({
    // what a label may choose for itself
    "kite",
    "sunrise",
    "crown",
    "needle",
    // houses and companies
    "tones",
    "allegro",
    "space",
    "flow",
    "klown",
    "ampere",
    "timeless",
    "kendall",
    "linked",
    "fxy",
    "star",
    "atlas",
    "infinity",
    "shield",
    "globe",
    // plain shapes
    "flag",
    "quarter",
    "peaks",
    "blocks",
    "leaf",
});

/// What a portrait may be asked for before the name: "girl:Ada". The same name keeps its skin and clothes through life;
/// a name alone is drawn as a grown woman or man, by the given name in it.
inline constexpr auto portraitForms = std::to_array<std::string_view>({
    "woman",
    "man",
    "baby",
    "girl",
    "boy",
    "teenGirl",
    "teenBoy",
    "oldWoman",
    "oldMan",
    "sad",
    "staff",
});
// clang-format on

}  // namespace backbeat
