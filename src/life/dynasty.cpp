#include "life/dynasty.h"

#include <algorithm>

#include "core/money.h"
#include "core/own_photo.h"
#include "core/short_money.h"
#include "life/children.h"
#include "life/legacy.h"
#include "life/partner.h"

namespace backbeat {

namespace {

using Person = Tree::Person;

constexpr size_t generationsShown = 3;

std::string joined(const std::vector<std::string>& names) {
  std::string all;
  for (const std::string& name : names) all += (all.empty() ? "" : " & ") + name;
  return all;
}

/// "passed away peacefully", within a sentence.
std::string withSmallLetter(std::string text) {
  if (!text.empty() && text[0] >= 'A' && text[0] <= 'Z') text[0] = static_cast<char>(text[0] - 'A' + 'a');
  return text;
}

std::string childrenText(int64_t count) {
  if (count == 0) return "no children";
  return withCommas(count) + (count == 1 ? " child" : " children");
}

/// Builds the tree from the top down.
class Growing {
 public:
  explicit Growing(const GameState& state) : state_(state) {}

  Tree grow() {
    const RecordList<Legacy>& book = state_.saveAllLegacyList;
    const size_t shown = std::min(generationsShown, book.size());
    for (size_t i = book.size() - shown; i < book.size(); ++i) addElder(i);
    addPlayer();
    addChildren();
    return std::move(tree_);
  }

 private:
  int64_t add(Person person) {
    tree_.people.push_back(std::move(person));
    return static_cast<int64_t>(tree_.people.size()) - 1;
  }

  /// Whoever has parents is a child of the one before, if that one is shown; the other parent stands beside that one.
  void follow(Person person, const std::vector<std::string>& parents) {
    const bool isChild = last_ >= 0 && !parents.empty();
    if (isChild) person.parent = last_;
    if (isChild && parents.size() > 1) {
      add({.picture = backbeat::person(parents[1]),
           .title = parents[1],
           .generation = generation_,
           .beside = last_,
           .standing = Person::Standing::gone});
    }
    if (last_ >= 0) ++generation_;
    person.generation = generation_;
    last_ = add(std::move(person));
  }

  void addElder(size_t i) {
    const Legacy& legacy = state_.saveAllLegacyList[i];
    follow({.picture = portraitOf(legacy.imageString, legacy.name),
            .title = legacy.name,
            .subtitle = lifeYears(legacy),
            .standing = Person::Standing::elder,
            .id = "legacy:" + std::to_string(i)},
           legacy.parentsNames);
  }

  void addPlayer() {
    const bool isHeir = state_.ageAtTakeover != 0;
    follow({.picture = artistPicture(state_),
            .title = state_.myArtistsName,
            .subtitle = isHeir ? "since " + std::to_string(state_.ageAtTakeover) : "the first of the line",
            .standing = Person::Standing::player},
           parentsOfArtist(state_));
    const auto partner = partnerPosition(state_);
    if (!partner) return;
    const Matches& match = state_.saveAllMatchesList[*partner];
    add({.picture = faceNow(state_, match),
         .title = match.name,
         .subtitle = statusText(match),
         .generation = generation_,
         .beside = last_});
  }

  void addChildren() {
    const int64_t player = last_;
    for (size_t i = 0; i < state_.saveAllChildList.size(); ++i) {
      const Child& child = state_.saveAllChildList[i];
      add({.picture = portraitOf(state_, child),
           .title = child.name,
           .subtitle = standingText(state_, child),
           .generation = generation_ + 1,
           .parent = player,
           .standing = isInFamily(child) ? Person::Standing::kin : Person::Standing::gone,
           .id = "child:" + std::to_string(i)});
    }
  }

  const GameState& state_;
  Tree tree_;
  int64_t generation_ = 0;
  int64_t last_ = -1;  ///< who was an artist last
};

}  // namespace

std::string lifeYears(const Legacy& legacy) {
  return std::to_string(legacy.yearBorn) + " – " + std::to_string(legacy.yearPassed);
}

std::string childOfText(const Legacy& legacy) {
  return legacy.parentsNames.empty() ? "" : "(child of " + joined(legacy.parentsNames) + ")";
}

std::string obituaryOf(const Legacy& legacy) {
  const std::string& name = legacy.name;
  return name + " lived a wonderful life and " + withSmallLetter(legacy.causeOfDeath) + " at the age of " +
         std::to_string(legacy.yearPassed - legacy.yearBorn) + ". Throughout their career, " + name + " released " +
         withCommas(legacy.numOfSongs) + " songs, " + withCommas(legacy.numOfAlbums) + " albums (" +
         withCommas(legacy.diamondCertifications) + " diamond-certified) and toured " +
         counted(legacy.numOfTours, "time") + ". With " + withCommas(legacy.numberOfBillboardHits) + " Billboard and " +
         withCommas(legacy.numberOfBillboardNumberOnes) + " #1 hits, " + name +
         " left their mark on the music industry and is survived by " + childrenText(legacy.numberOfChildren) + ".";
}

Obituary pageOf(const Legacy& legacy) {
  return {.picture = portraitOf(legacy.imageString, legacy.name),
          .kicker = "Beloved (" + lifeYears(legacy) + ")",
          .title = legacy.name,
          .text = obituaryOf(legacy),
          .facts = {{.label = "songs", .value = withCommas(legacy.numOfSongs)},
                    {.label = "number ones", .value = withCommas(legacy.numberOfBillboardNumberOnes)},
                    {.label = "Golden Forks", .value = withCommas(legacy.numberOfAwards)},
                    {.label = "net worth", .value = abbreviatedDollars(static_cast<double>(legacy.netWorth))}}};
}

Tree familyTree(const GameState& state) { return Growing(state).grow(); }

}  // namespace backbeat
