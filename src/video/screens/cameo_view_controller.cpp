#include "video/screens/cameo_view_controller.h"

#include <algorithm>

#include "career/skill.h"
#include "core/money.h"
#include "music/guests.h"

namespace backbeat {

namespace {

bool holds(const std::vector<int64_t>& ids, int64_t id) { return std::find(ids.begin(), ids.end(), id) != ids.end(); }

}  // namespace

Outcome CameoViewController::open() {
  addedBefore_ = game_.launch.selectedCameos;
  return {};
}

Outcome CameoViewController::act(const Action& action) {
  const auto cameoId = wholeNumber(action.argument());
  if (!cameoId) return {};
  if (action.verb() == "add") return addButton(*cameoId);
  if (action.verb() == "changeName") return goTo("goToChangeCameoNames", std::to_string(*cameoId));
  return {};
}

Outcome CameoViewController::addButton(int64_t cameoId) {
  const std::vector<CelebrityCameo> table = cameoTable(state());
  const auto cameo =
      std::find_if(table.begin(), table.end(), [&](const CelebrityCameo& row) { return row.id == cameoId; });
  if (cameo == table.end()) return {};
  std::vector<int64_t>& selected = game_.launch.selectedCameos;
  if (holds(selected, cameoId)) {
    std::erase(selected, cameoId);
    return {};
  }
  if (selected.size() >= mostCameosInAVideo) {
    return refuse<"🎥 Cameo Limit Reached 🎥">("\nYou can only have up to 3 cameos in a video.");
  }
  if (cameo->minimumRating > overallSkillRating(state())) {
    return refuse<"🎥 Not Yet 🎥">("\n" + cameo->name + " only appears with artists of a skill rating of " +
                                 std::to_string(cameo->minimumRating) + ". Yours is " +
                                 std::to_string(overallSkillRating(state())) + ".");
  }
  selected.push_back(cameoId);
  return success();
}

Row CameoViewController::describe(const CelebrityCameo& cameo, int64_t skill) const {
  const std::string id = std::to_string(cameo.id);
  Row row{.picture = person(cameo.name),
          .title = cameo.name,
          .subtitle = "Rating " + withDecimals(cameo.rating, 0) + " · Virality " + withDecimals(cameo.virality, 0),
          .price = Price{.dollars = static_cast<double>(cameo.cost)},
          .id = "add:" + id,
          .actions = {{.id = "changeName:" + id, .label = "Change the name"}}};
  if (holds(game_.launch.selectedCameos, cameo.id)) {
    row.selected = true;
    row.note = holds(addedBefore_, cameo.id) ? "Already Added" : "Added";
  }
  if (cameo.minimumRating > skill) {
    row.tone = Tone::locked;
    row.subtitle += "\nAsks for a skill of " + std::to_string(cameo.minimumRating);
  }
  return row;
}

View CameoViewController::view() const {
  View view{.title = "CAMEOS", .theme = Theme::video};
  const int64_t skill = overallSkillRating(state());
  view.subtitle =
      std::to_string(game_.launch.selectedCameos.size()) + " of " + std::to_string(mostCameosInAVideo) + " added";
  view.add(Tiles{{{.icon = "star", .label = "Your skill rating", .value = std::to_string(skill)}}});
  Rows cameos;
  for (const CelebrityCameo& cameo : cameoTable(state())) cameos.items.push_back(describe(cameo, skill));
  view.add(std::move(cameos));
  view.help = Help{.title = "Cameos",
                   .text =
                       "A cameo lends the video half of their rating and half of their virality; several lend the mean "
                       "of theirs. They are paid when the video is made.\n\nYour skill rating opens doors: each face "
                       "asks for a certain one."};
  return view;
}

}  // namespace backbeat
