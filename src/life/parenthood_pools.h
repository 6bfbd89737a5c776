// What parents say, what children do, and what becomes of them.
#pragma once

#include <array>
#include <string_view>

namespace backbeat {

// clang-format off
/// Given names of children who wait for a family.
inline constexpr auto adoptedBoys = std::to_array<std::string_view>({"Otis", "Milo", "Jasper", "Remy", "Teo"});
inline constexpr auto adoptedGirls = std::to_array<std::string_view>({"Wren", "June", "Opal", "Sasha", "Noor"});

/// What the artist says to a child.
inline constexpr auto childCompliments = std::to_array<std::string_view>({
    "I love your laugh",
    "You are a great student",
    "Thank you for being such a great child.",
    "You make this house a home.",
    "I like how you think.",
    "You are braver than I was at your age.",
    "Your drawings belong in a museum. The fridge will do for now.",
    "You have the best questions.",
    "I am proud of how you tried.",
    "You are so kind to others.",
    "You tell the best stories at dinner.",
    "I love watching you grow.",
    "You clean your room like somebody who owns a vacuum.",
    "You have a wonderful imagination.",
    "Being your parent is my favorite job.",
    "You are a good friend to have.",
    "That was a very clever thing to say.",
    "You make me want to be better.",
    "I could listen to you hum all day.",
    "You are allowed to make mistakes. So am I.",
    "You light up a room, and you never turn it off behind you.",
    "Your dance moves are all your own.",
    "I trust you.",
    "You did that all by yourself!",
    "You have great taste in music. It runs in the family.",
    "I saw how hard you worked on that.",
    "You give the best hugs.",
    "You are funnier than anybody on my tour.",
    "I love being on your team.",
    "The world is lucky to have you.",
    "You are exactly who you should be.",
    "Thank you for helping me today.",
    "You are my greatest hit.",
    "I never get tired of your smile.",
    "You can be anything. You can even be loud.",
});

/// What a baby does about a lullaby.
inline constexpr auto babyReaction = std::to_array<std::string_view>({
    "fell asleep before the second chorus.",
    "smiled with the whole face.",
    "blew a bubble in time.",
    "stared at you as if you had invented sound.",
    "clapped, nearly on the beat.",
    "cooed along, a third above.",
    "kicked to the rhythm.",
    "grabbed your nose at the bridge.",
    "giggled at the high note.",
    "yawned like a critic.",
    "waved at the invisible crowd.",
    "held your finger until the fade-out.",
});

/// What the two of them did, behind "You and Ada ".
inline constexpr auto qualityTimeActivites = std::to_array<std::string_view>({
    "built a fort out of guitar cases.",
    "baked cookies. Some were eaten.",
    "flew a kite until it found a tree.",
    "had a picnic on the living room floor.",
    "raced down the hill on cardboard.",
    "read three chapters past bedtime.",
    "went to the zoo and named the penguins.",
    "played hide and seek backstage.",
    "painted the garden shed, and each other.",
    "watched the planes take off.",
    "fished all day and caught a boot.",
    "made up a board game with far too many rules.",
    "danced in the kitchen with the lights off.",
    "planted tomatoes.",
    "looked for shells at the beach.",
    "counted stars and lost count.",
    "washed the tour bus, with hats on.",
    "learned a card trick together.",
    "went for ice cream before dinner.",
    "rode bicycles to the end of the street and back.",
});

/// What ends a long life.
inline constexpr auto causeOfDeathList = std::to_array<std::string_view>({
    "Old age",
    "A quiet night's sleep",
    "A tired heart",
    "A short illness",
    "A long illness, bravely borne",
    "Pneumonia",
    "A stroke",
    "A fall in the garden",
    "Complications after surgery",
    "A shipwreck on a very good vacation",
    "A last dance, aged far too well",
    "Natural causes",
});
// clang-format on

}  // namespace backbeat
