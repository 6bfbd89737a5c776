// The startups that may show their slides: a fixed table.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace backbeat {

struct Company {
  int64_t businessId;
  std::string_view businessName;
  std::string_view businessTagline;
  std::string_view businessDescription;
  std::string_view businessImage;  ///< of its logo: "tones.png"
  int64_t initialValuation;        ///< dollars
  int64_t totalShares;             ///< before anything is sold
};

// clang-format off
inline constexpr auto companies = std::to_array<Company>({
    {1, "Tones", "Feel the Music", "A wristband turns every bass line into a pulse on the skin. Clubs rent it by the hundred, and so do schools for the deaf.", "tones.png", 2'500'000, 1'000'000},
    {2, "Allegro", "Favorites on the Go", "One dish from each of your favorite kitchens, in one bag. The riders get a share of every order.", "allegro.png", 3'000'000, 1'000'000},
    {3, "Space Alpha", "Pioneering First", "Small rockets for small satellites, one a week. The third one has already come down where it was meant to.", "space.png", 45'000'000, 10'000'000},
    {4, "Flow", "Just Sing Along", "It listens to a room and puts the words of the song on the wall. Bars pay by the evening.", "flow.png", 2'000'000, 500'000},
    {5, "Klown", "Comfort. Creative. Unique", "Shoes that are different from each other, on purpose. Every pair is drawn by an artist and sold once.", "klown.png", 4'000'000, 1'000'000},
    {6, "Ampere", "Electric Vehicles", "A van that charges while it waits for the next parcel. Two cities have ordered their fleets.", "ampere.png", 30'000'000, 10'000'000},
    {7, "Timeless", "Make Time for You", "A watch that knows no hours, only what you planned for yourself. It goes quiet while you are at it.", "timeless.png", 5'000'000, 2'000'000},
    {8, "Kendall", "Beauty that Cares", "Makeup mixed for one face at a time, without a drop too many. What is left in the jar comes back and is used again.", "kendall.png", 8'000'000, 2'000'000},
    {9, "Linked", "Banking for the Future", "A bank that pays musicians before the streams do. It lends by what a song will earn.", "linked.png", 15'000'000, 5'000'000},
    {10, "FXY", "Swipe. Date. Love.", "The app that half of your friends met on. Who stays together for a year gets the fee back.", "fxy.png", 10'000'000, 4'000'000},
});
// clang-format on

/// The company of that id; nullptr for none.
const Company* companyWithId(int64_t businessId);

}  // namespace backbeat
