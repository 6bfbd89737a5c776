#include "career/screens/my_music_view_controller.h"

#include "career/traits.h"
#include "core/view_words.h"

namespace backbeat {

namespace {

Row traitRow(const GameState& state, const Trait& trait) {
  const int64_t level = state.*trait.level;
  const bool waits = trait.needsLabel && state.isLabelLaunched < 1;
  Row row{.picture = icon(std::string(trait.icon)),
          .title = std::string(trait.title),
          .subtitle = std::string(trait.effect),
          .value = std::to_string(level),
          .tone = waits ? Tone::locked : Tone::plain,
          .share = shareOf(level, trait.highestLevel),
          .id = "levelUpTrait:" + std::string(trait.key)};
  if (trait.level == &GameState::virality && state.fashionViralityBonus > 0) {
    row.subtitle = "+" + std::to_string(state.fashionViralityBonus) + " from your style";
  }
  if (isFinished(state, trait)) {
    row.badge = "MAX";
    return row;
  }
  const int64_t next = nextLevel(state, trait);
  row.note = next == level ? "a first step" : "next " + std::to_string(next);
  row.price = traitCost(state, trait);
  return row;
}

Rows traitRows(const GameState& state, bool business) {
  Rows rows;
  for (const Trait& trait : traits) {
    if (trait.needsLabel == business) rows.items.push_back(traitRow(state, trait));
  }
  return rows;
}

}  // namespace

Outcome MyMusicViewController::act(const Action& action) {
  if (action.verb() != "levelUpTrait") return {};
  const Trait* trait = traitNamed(action.argument());
  return trait ? levelUpTrait(game_, *trait) : Outcome{};
}

View MyMusicViewController::view() const {
  View view{.title = "Traits", .subtitle = "Energy makes you better"};
  view.add(Heading{"ARTIST TRAITS"});
  view.add(traitRows(state(), false));
  view.add(Heading{"BUSINESS TRAITS"});
  if (state().isLabelLaunched < 1) {
    view.add(caption("These wait for the day you launch your own record label.", Tone::locked));
  } else {
    view.add(
        caption("In a department your level counts twice, beside the ratings of its staff. All five go to 50, and "
                "the higher they are, the better those who want to work for you."));
  }
  view.add(traitRows(state(), true));
  view.help = Help{
      "Traits",
      "\nArtist Traits determine the rating of your songs and albums. Level up your traits to 100 to earn more streams "
      "and album sales.\n\nVirality costs twice the energy but can help your music reach larger audiences which means "
      "more 💰 in your pockets.\n\nBUSINESS TRAITS\nUnlock business traits once you launch your own record label. These "
      "level twice as fast as your artist traits.\n\nEach trait is related to a department of your label and helps you "
      "attract talent, increase revenue, recruit staff and lead your label to success. Leadership helps improve your "
      "staff's happiness and energy."};
  return view;
}

}  // namespace backbeat
