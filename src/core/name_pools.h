// Names for people whom nobody knows yet: acts on a festival's bill, artists who look for a label. A given name with a
// family name, or a nickname in two words; which of the pairs, and which rows, chance decides.
#pragma once

#include <array>
#include <string_view>

namespace backbeat {

inline constexpr std::array<std::string_view, 108> firstNameList = {
    "Addison", "Noah",    "Emma",    "Mason",  "Liam",   "Olivia", "Ethan",  "Ava",       "Lucas",   "Sophia",
    "Logan",   "Mia",     "Caleb",   "Harper", "Owen",   "Ella",   "Wyatt",  "Grace",     "Jonah",   "Chloe",
    "Isaac",   "Nora",    "Miles",   "Hazel",  "Julian", "Ruby",   "Xavier", "Stella",    "Dominic", "Violet",
    "Adrian",  "Naomi",   "Gabriel", "Elena",  "Marcus", "Camila", "Theo",   "Lucia",     "Felix",   "Ingrid",
    "Hugo",    "Freya",   "Oscar",   "Astrid", "Emil",   "Saga",   "Mateo",  "Valentina", "Diego",   "Catalina",
    "Rafael",  "Marisol", "Andre",   "Simone", "Jerome", "Imani",  "Malik",  "Aaliyah",   "Darius",  "Zuri",
    "Kofi",    "Amara",   "Tunde",   "Ifeoma", "Kwame",  "Nia",    "Omar",   "Layla",     "Tariq",   "Yasmin",
    "Samir",   "Noor",    "Arjun",   "Priya",  "Rohan",  "Anika",  "Dev",    "Meera",     "Kenji",   "Hana",
    "Ren",     "Yuki",    "Daichi",  "Sora",   "Minh",   "Linh",   "Jin",    "Mei",       "Tomas",   "Petra",
    "Milan",   "Katya",   "Anton",   "Irina",  "Lev",    "Mila",   "Silas",  "Juniper",   "Ezra",    "Wren",
    "Atticus", "Margot",  "Beckett", "Piper",  "Rowan",  "Sage",   "Quinn",  "Morgan",
};

/// One row is empty: who draws it goes by the given name alone.
inline constexpr std::array<std::string_view, 63> lastNameList = {
    "Block",    "Walker",   "Hope",       "",        "Sharp",     "Rivers",  "Stonefield", "Fields", "Brooks",
    "Lane",     "Winter",   "Frost",      "Hale",    "Marsh",     "Cole",    "Reed",       "Vaughn", "Pierce",
    "Holloway", "Bishop",   "Cartwright", "Delgado", "Romero",    "Santos",  "Vega",       "Cruz",   "Navarro",
    "Okafor",   "Mensah",   "Adeyemi",    "Diallo",  "Haddad",    "Rahman",  "Kapoor",     "Mehta",  "Tanaka",
    "Mori",     "Nguyen",   "Tran",       "Park",    "Lindqvist", "Berg",    "Novak",      "Petrov", "Moreau",
    "Laurent",  "Rossi",    "Conti",      "Keller",  "Brandt",    "Ashford", "Whitlock",   "Thorne", "Calloway",
    "Mercer",   "Sterling", "Haskell",    "Bell",    "Fox",       "Wolfe",   "Knight",     "Price",  "Monroe",
};

inline constexpr std::array<std::string_view, 27> rapperFirst = {
    "Lil",  "Young", "Dr.",  "Big",   "Easy",   "DJ",     "MC",     "King",  "Queen",
    "Kid",  "Baby",  "Fly",  "Slick", "Smooth", "Lady",   "Prince", "Uncle", "Mister",
    "Miss", "Killa", "Tiny", "Chief", "Sir",    "Mellow", "Royal",  "Doc",   "Saint",
};

inline constexpr std::array<std::string_view, 49> rapperLast = {
    "Bone",    "Spark", "B",      "Loc",     "Cash",   "Drama",  "Flow",  "Blaze", "Rich",   "Smoke",
    "Diamond", "Flint", "Dollar", "Trigger", "Rhymes", "Marble", "Ace",   "Tone",  "Beats",  "Ghost",
    "Tempo",   "Razor", "Verse",  "Chrome",  "Frosty", "Jewel",  "Kicks", "Nitro", "Playa",  "Rocket",
    "Scoop",   "Sway",  "Tank",   "Tycoon",  "Velour", "Wavy",   "Zone",  "Block", "Bounce", "Crown",
    "Dice",    "Echo",  "Flame",  "Gold",    "Hustle", "Jet",    "Knox",  "Lux",   "Twist",
};

}  // namespace backbeat
