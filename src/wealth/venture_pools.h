// What startups post.
#pragma once

#include <array>
#include <string_view>

namespace backbeat {

inline constexpr auto leadInvestors = std::to_array<std::string_view>(
    {"Walt & Capital", "Walt & Sons", "Billboard Capital", "Theel Investments", "Creative Ventures"});

// clang-format off
/// The end of what is posted when a round has closed.
inline constexpr auto roundAnnouncements = std::to_array<std::string_view>({
    "We are thrilled to announce that the hard part begins.",
    "Today, we're excited to announce that there is a second coffee machine.",
    "After many rejections and failed pitches we are so happy to announce: somebody believed us.",
    "Shoutout to everybody who said yes, and to the ninety who said no.",
    "Shoutout to our parents, who still do not know what we do.",
    "We are hiring, and the office has a window now.",
    "It took one deck, eleven coffees and no sleep.",
    "Now let's build the thing that the slides promised.",
});

/// Behind the name of a company whose valuation rose, before "up from".
inline constexpr auto investmentGrowthChirps = std::to_array<std::string_view>({
    "is growing faster than its office.",
    "had the best quarter of its life.",
    "is what everybody at the table talks about.",
    "just passed a million users and kept going.",
    "is profitable, and nobody saw it coming.",
    "signed the customer it always wanted.",
    "turned down an offer this morning.",
    "is on a roll.",
});

/// The same for one whose valuation fell, before "down from".
inline constexpr auto investmentDeclineChirps = std::to_array<std::string_view>({
    "had a quarter to forget.",
    "lost its biggest customer.",
    "has to call a few users back.",
    "is looking for a new head of finance.",
    "moved into a smaller office.",
    "found out that growth costs money.",
    "was copied by somebody larger.",
    "says that the market is wrong.",
});
// clang-format on

}  // namespace backbeat
