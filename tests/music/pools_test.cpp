// Tables of words, people and pictures: as many as the rules count on, no line empty, none twice.
#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <set>
#include <string>

#include "music/album_creation.h"
#include "music/genres.h"
#include "music/guests.h"
#include "music/title_pools.h"

namespace backbeat {
namespace {

template <class Pool>
void expectDistinct(const Pool& pool, size_t least) {
  std::set<std::string> seen;
  for (const auto& entry : pool) {
    EXPECT_FALSE(std::string(entry).empty());
    EXPECT_TRUE(seen.insert(std::string(entry)).second) << entry << " stands twice";
  }
  EXPECT_GE(seen.size(), least);
}

template <class Table>
std::vector<std::string> namesOf(const Table& table) {
  std::vector<std::string> names;
  for (const auto& row : table) names.push_back(row.name);
  return names;
}

TEST(Pools, HoldEnoughAndNothingTwice) {
  expectDistinct(firstTitleWords, 60);
  expectDistinct(secondTitleWords, 60);
  expectDistinct(genres, 16);
  expectDistinct(albumCoverNames, 24);
}

TEST(Pools, TenTitlesOfTheDiceBeginWithTenWords) {
  for (const int64_t throwsEach : {1, 2, 3, 10}) {
    std::deque<std::string> last;
    for (int64_t i = 0; i < 200; ++i) {
      const std::string title = suggestedTitle(40 + i / throwsEach, 1 + i % throwsEach);
      const std::string first = title.substr(0, title.find(' '));
      EXPECT_NE(title, first + " " + first);
      EXPECT_EQ(std::count(last.begin(), last.end(), first), 0) << title;
      last.push_back(first);
      if (last.size() == 10) last.pop_front();
    }
  }
}

TEST(Pools, GuestsAndCameosAreDifferentPeopleThatCostMoreTheBetterTheyAre) {
  const GameState state;
  const auto guests = guestTable(state);
  const auto cameos = cameoTable(state);
  ASSERT_EQ(guests.size(), 24u);
  ASSERT_EQ(cameos.size(), 16u);
  std::vector<std::string> everybody = namesOf(guests);
  for (const std::string& name : namesOf(cameos)) everybody.push_back(name);
  expectDistinct(everybody, 40);
  for (size_t i = 1; i < guests.size(); ++i) {
    EXPECT_GE(guests[i].cost, guests[i - 1].cost);
    EXPECT_GE(guests[i].minimumRating, guests[i - 1].minimumRating);
    EXPECT_LT(guests[i].id, firstSignedArtistPick);
  }
  for (size_t i = 1; i < cameos.size(); ++i) EXPECT_GE(cameos[i].minimumRating, cameos[i - 1].minimumRating);
}

}  // namespace
}  // namespace backbeat
