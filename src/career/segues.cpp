#include "career/segues.h"

#include "career/contract_terms.h"
#include "career/energy.h"
#include "career/job_board.h"
#include "career/label_contract.h"
#include "career/lifestyle.h"
#include "career/news.h"
#include "career/screens/contract_offer_view_controller.h"
#include "career/screens/energy_transparency_view_controller.h"
#include "career/screens/job_board_view_controller.h"
#include "career/screens/lifestyle_choices_view_controller.h"
#include "career/screens/my_music_view_controller.h"
#include "career/screens/my_studio_view_controller.h"
#include "career/screens/signed_contract_view_controller.h"
#include "career/studio.h"
#include "career/traits.h"
#include "core/money.h"

namespace backbeat {

namespace {

using enum Segue::Presentation;

constexpr Segue segues[] = {
    {"goToMyMusic", "MyMusicViewController", push, makeScreen<MyMusicViewController>},
    {"goToMyStudio", "MyStudioViewController", push, makeScreen<MyStudioViewController>},
    {"goToJobBoard", "JobBoardViewController", push, makeScreen<JobBoardViewController>, enterJobBoard},
    {"goToLifestyleChoices", "LifestyleChoicesViewController", push, makeScreenWithId<LifestyleChoicesViewController>},
    {"goToEnergyTransparency", "EnergyTransparencyViewController", push, makeScreen<EnergyTransparencyViewController>},
    {"goToContractOffer", "ContractOfferViewController", push, makeScreen<ContractOfferViewController>},
    {"goToSignedContract", "SignedContractViewController", push, makeScreen<SignedContractViewController>},
};

void describeTraits(const Game& game, Row& row) {
  const Trait* best = &traits.front();
  for (const Trait& trait : traits) {
    if (!trait.needsLabel && game.state.*trait.level > game.state.*best->level) best = &trait;
  }
  row.subtitle = "Best: " + std::string(best->title) + " " + std::to_string(game.state.*best->level);
}

void describeStudio(const Game& game, Row& row) {
  row.value = std::to_string(studioRating(game.state));
  row.note = "rating";
}

void describeJob(const Game& game, Row& row) {
  const GameState& state = game.state;
  if (state.weeklyJobContractRemaining <= 0) return;
  row.subtitle =
      currency(state.weeklyJobIncome) + "/week · " + counted(state.weeklyJobContractRemaining, "week") + " left";
}

template <size_t number>
void describeLifestyle(const Game& game, Row& row) {
  const LifestyleCategory& category = lifestyleCategories[number];
  const auto chosen = lifestyleEntry(game.state, category);
  if (!chosen) return;
  row.subtitle = chosen->title;
  row.value = "-" + currency(chosen->amount);
  row.note = "+" + std::to_string(chosen->energyBoost) + (category.givesVirality() ? " virality" : " max energy");
}

void describeEnergy(const Game& game, Row& row) { row.value = std::to_string(nextWeeksEnergy(game.state)); }

bool isSigned(const Game& game) { return game.state.underContract >= 1; }
bool isUnsigned(const Game& game) { return !isSigned(game); }

void describeSignedContract(const Game& game, Row& row) {
  const size_t running = runningContract(game.state);
  const auto& contracts = game.state.saveAllContractLabelList;
  if (running != contracts.size()) row.subtitle = contractOutlook(game.state, contracts[running]);
}

void describeOffer(const Game& game, Row& row) {
  if (game.launch.contractOfferState >= 1) row.subtitle = "An offer waits";
}

std::string_view offerBadge(const Game& game) { return game.launch.contractOfferState >= 1 ? "!" : ""; }

template <size_t number>
constexpr MenuLine lifestyleLine(std::string_view title, std::string_view argument, std::string_view id) {
  return {.tab = lifeTab,
          .section = "Lifestyle",
          .order = 310 + 10 * static_cast<int64_t>(number),
          .icon = lifestyleCategories[number].icon,
          .title = title,
          .subtitle = "Nothing chosen yet",
          .segue = "goToLifestyleChoices",
          .argument = argument,
          .id = id,
          .describe = describeLifestyle<number>};
}

constexpr MenuLine menu[] = {
    {.tab = homeTab,
     .section = "More",
     .order = 120,
     .icon = "document",
     .title = "Label contract",
     .subtitle = "Signed",
     .segue = "goToSignedContract",
     .id = "labelContract",
     .shown = isSigned,
     .describe = describeSignedContract},
    {.tab = homeTab,
     .section = "More",
     .order = 120,
     .icon = "document",
     .title = "Label contract",
     .subtitle = "No offer",
     .segue = "goToContractOffer",
     .id = "labelContract",
     .shown = isUnsigned,
     .describe = describeOffer,
     .badge = offerBadge},
    {.tab = lifeTab,
     .section = "Get better",
     .order = 110,
     .icon = "mic",
     .title = "Traits",
     .segue = "goToMyMusic",
     .describe = describeTraits},
    {.tab = lifeTab,
     .section = "Get better",
     .order = 120,
     .icon = "studio",
     .title = "My Studio",
     .subtitle = "Where you record for free",
     .segue = "goToMyStudio",
     .describe = describeStudio},
    {.tab = lifeTab,
     .section = "Work",
     .order = 210,
     .icon = "briefcase",
     .title = "Job Board",
     .subtitle = "Work that pays weekly",
     .segue = "goToJobBoard",
     .id = "goToJobBoardButton",
     .describe = describeJob,
     .price = [](const GameState&) { return jobBoardCost; }},
    lifestyleLine<0>("Food", "0", "goToFoodButton"),
    lifestyleLine<1>("Fashion", "1", "goToFashionButton"),
    lifestyleLine<2>("Health", "2", "goToHealthButton"),
    lifestyleLine<3>("Home", "3", "goToHomeButton"),
    lifestyleLine<4>("Transportation", "4", "goToTransportationButton"),
    {.tab = lifeTab,
     .section = "Next week",
     .order = 410,
     .icon = "bolt",
     .title = "Energy",
     .subtitle = "After standing costs",
     .segue = "goToEnergyTransparency",
     .describe = describeEnergy},
};

}  // namespace

const Room careerRoom = {
    .name = "career", .segues = segues, .menu = menu, .addNeeds = addCareerNeeds, .addNews = addCareerNews};

}  // namespace backbeat
