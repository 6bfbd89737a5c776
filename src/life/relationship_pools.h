// What couples say and do.
#pragma once

#include <array>
#include <string_view>

namespace backbeat {

// clang-format off
/// What the artist says.
inline constexpr auto compliments = std::to_array<std::string_view>({
    "You are enough.",
    "Your hair is beautiful, do you brush it yourself?",
    "I bet you sweat glitter.",
    "You fineso sexy",
    "You make my good days better.",
    "Your laugh is my favorite song.",
    "You look like a Sunday morning.",
    "I'd pick you first for every team.",
    "You have the best taste in people. Me, for example.",
    "Your smile should be on an album cover.",
    "You're the reason I check my phone.",
    "You make sweatpants look like a gown.",
    "You're the only one I'd share my headphones with.",
    "Even your typos are charming.",
    "You have a museum kind of face.",
    "You smell like good decisions.",
    "You're my favorite notification.",
    "I'd cancel a show for you. A small one.",
    "You're funnier than you think, and you think you're funny.",
    "You glow like a phone at midnight.",
    "You're sweeter than the hook of my next single.",
    "I'd let you have the window seat.",
    "Your eyes should come with a warning.",
    "You're smarter than all of my managers together.",
    "You're better than a standing ovation.",
    "I like how you say my name.",
    "Your cooking is brave and I love it.",
    "You're the calm in my tour bus.",
    "You make waiting in line fun.",
    "You have main character energy.",
    "I'd listen to you read a manual.",
    "You're a snack, and dinner, and breakfast.",
    "You dance like the floor is lucky.",
    "You're on every playlist of mine.",
    "You deserve the last slice.",
    "The mirror must be happy to see you.",
    "You're my plus one for life's guest list.",
    "Your hugs should be prescribed.",
    "You make me want to write slow songs.",
    "You're cooler than the other side of the pillow.",
    "I'd still swipe right.",
    "You have the voice of a warm bath.",
    "You light up my phone and my face.",
    "You're proof that the algorithm works.",
    "You're the best thing I ever found on an app.",
    "Nobody wears my shirts better.",
    "You're as pretty as payday.",
    "You're more fun than bubble wrap.",
    "Your brain is as lovely as the rest.",
    "You turn errands into adventures.",
    "You're my lucky charm.",
    "I'd give you my aux cord.",
    "You make my heart go platinum.",
    "I could look at you all encore.",
    "You have great shoulders to fall asleep on.",
    "You're the chorus to my verse.",
    "You sparkle, and not only on stage nights.",
    "You're kinder than the world deserves.",
    "You're a ten, and I'm bad at math.",
    "I love your face. Just wanted to say that.",
});

/// What the artist writes on a bad day, besides what partners write.
inline constexpr auto harsherLines = std::to_array<std::string_view>({
    "I have met houseplants with more to say than you",
    "Please keep the ring. You will need something to pawn",
    "I only stayed for the Wi-Fi and now I have my own",
    "I wrote a song about us. It's four minutes of silence",
    "Lose my number and I will pretend to lose yours",
});

/// What the artist writes on a better day.
inline constexpr auto goodBreakupLines = std::to_array<std::string_view>({
    "I love you, but I am not in love with you anymore",
    "Our lives are going in different directions",
    "I love you enough to want something better than what I can give you",
    "You will always be one of my favorite songs",
    "We were right for each other, only not for ever",
    "I think we both deserve to be somebody's first choice",
    "Thank you for every week of it",
    "I want you to be happy, even if it is without me",
    "We grew, just not in the same direction",
    "You are not the problem, and neither am I",
    "I will cheer for you from the back row",
    "Let's end it while we still like each other",
});

/// Behind "decided to".
inline constexpr auto dateIdeasPaid = std::to_array<std::string_view>({
    "ride the biggest wheel at the fair",
    "share a bucket of popcorn at the movies",
    "split a pizza with everything on it",
    "go bowling in rented shoes",
    "take a pottery class",
    "rent a rowboat on the lake",
    "play eighteen holes of mini golf",
    "get matching mugs painted",
    "sing at a karaoke bar",
    "feed the goats at the petting zoo",
    "try the new noodle place",
    "escape from an escape room",
    "go ice skating",
    "see a very bad musical",
    "taste nine kinds of cheese",
    "play every machine at the arcade",
    "take a dance lesson",
    "ride the carousel until it closed",
    "eat tacos from three different trucks",
    "visit the aquarium",
});

/// The same, for nothing.
inline constexpr auto dateIdeasFree = std::to_array<std::string_view>({
    "watch the sunset from the roof",
    "have a picnic in the park",
    "look for shapes in the clouds",
    "dance in the kitchen",
    "count stars until two in the morning",
    "build a blanket fort",
    "walk along the river",
    "make pancakes for dinner",
    "listen to a whole album without talking",
    "feed the ducks",
    "play cards on the floor",
    "read to each other",
    "take the long way home",
    "have a staring contest",
    "write a silly song together",
    "visit a free museum",
    "swing in the playground after dark",
    "plan a trip around the world",
    "people watch downtown",
    "throw stones into the lake",
});

/// The same, behind closed doors.
inline constexpr auto dateIdeasDirty = std::to_array<std::string_view>({
    "give each other a massage",
    "take a very long bubble bath",
    "play a round of truth or dare",
    "try on each other's clothes",
    "slow dance with the lights off",
    "share a blanket and no movie",
    "turn off the phones and lock the door",
    "go skinny dipping at midnight",
    "stay in bed until noon",
    "practice kissing scenes",
    "feed each other strawberries",
    "have a pillow fight",
    "test how much the couch can take",
    "play strip chess",
    "learn some yoga for two",
    "light all the candles",
    "skip dinner for dessert",
    "get caught in the rain without a coat",
    "warm each other up in a tent",
    "rehearse a love song, and then some",
});

/// How the partner closes a post about a date.
inline constexpr auto endOfDateList = std::to_array<std::string_view>({
    "An amazing date ❤️",
    "Best date EVER 🥰",
    "What a date!",
    "We had the BEST time, no cap!",
    "10 out of 10, would date again 😍",
    "I could do this every week 💕",
    "My cheeks hurt from laughing 😂",
    "Somebody pinch me ✨",
    "Can we do that again tomorrow? 🙏",
    "Dating goals 🔥",
});

/// Behind the partner's name.
inline constexpr auto serenadeReactions = std::to_array<std::string_view>({
    "started to sweat a little.",
    "had a hot flash.",
    "forgot how to blink.",
    "hummed along in the wrong key.",
    "cried happy tears.",
    "melted into the couch.",
    "threw a sock on stage.",
    "asked for an encore.",
    "blushed to the ears.",
    "held up a lighter.",
    "swooned like in the old movies.",
    "clapped on the one and the three.",
    "called it the best song ever written.",
    "kissed you before the second verse.",
    "danced on the spot.",
    "needed a glass of water.",
    "sent a recording to everybody.",
    "grinned until the last note.",
    "pretended to faint.",
    "whispered your name.",
});

/// The same, to an explicit song.
inline constexpr auto serenadeReactionsExplicit = std::to_array<std::string_view>({
    "answered with a slow hip thrust.",
    "covered the neighbors' ears.",
    "turned as red as a stop sign.",
    "lit a candle and locked the door.",
    "fanned themselves with your lyrics.",
    "bit a lip and winked.",
    "dropped the ice cream.",
    "asked what that word means, twice.",
    "gasped and asked for the remix.",
    "unbuttoned the top button.",
    "growled like a small tiger.",
    "had to sit down.",
    "closed the curtains.",
    "called in sick for tomorrow.",
    "pulled you off the stool.",
    "blessed the soundproof walls.",
    "said that should be illegal.",
    "mouthed every single bad word.",
    "demanded the uncensored version.",
    "tossed the guitar on the bed.",
});

/// What a partner posts on any day.
inline constexpr auto generalChirps = std::to_array<std::string_view>({
    "Is it normal to miss somebody who is in the next room? 🥺",
    "Somebody in this house hums in the shower and I know all the words.",
    "Date night > everything 🌹",
    "My heart has a soundtrack now 🎶",
    "Living with an artist: there is a guitar in the bathtub.",
    "Coffee tastes better when somebody else makes it ☕️",
    "Heard the new song before all of you 😏",
    "Love is sharing the last fry 🍟",
    "Monday, but make it cuddly.",
    "Caught my baby dancing with the vacuum cleaner 😂",
    "Some people collect stamps, I collect good mornings.",
    "Three words: bring home snacks.",
    "I am the muse. Just saying. 💅",
    "Our plants are thriving and so are we 🌱",
    "If you need me, I'm under a blanket.",
    "Backstage is just a kitchen with better lights.",
    "Feeling lucky today 🍀",
    "Whoever invented weekends, thank you.",
    "I got serenaded before breakfast. Top that.",
    "Just here to say that I'm happy 💛",
});
// clang-format on

}  // namespace backbeat
