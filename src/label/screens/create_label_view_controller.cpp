#include "label/screens/create_label_view_controller.h"

#include "core/money.h"
#include "core/view_words.h"

namespace backbeat {

namespace {

Picture pictureOf(const LabelLogo& logo, const std::string& name) {
  return drawn(Picture::Kind::mark, logo.mark, name);
}

}  // namespace

Outcome CreateLabelViewController::appear() {
  if (state().isLabelLaunched < 1) return {};
  return closeScreen();
}

Outcome CreateLabelViewController::act(const Action& action) {
  if (action.id == "name") name_ = action.value;
  if (action.id == "slogan") slogan_ = action.value;
  if (action.verb() == "logo") logo_ = optionNumber(action.argument(), labelLogos.size()).value_or(logo_);
  if (action.id != "createLabelButton" || state().isLabelLaunched >= 1) return {};
  Outcome outcome = launchLabel(game_, name_, slogan_, labelLogos[logo_]);
  if (outcome.done()) outcome += goTo("goToLabelDetail");
  return outcome;
}

View CreateLabelViewController::view() const {
  View view{.title = "Start a Label", .theme = Theme::label};
  if (state().isLabelLaunched >= 1) {
    view.add(EmptyHint{.icon = "label", .text = "You run a label already."});
    return view;
  }
  view.add(Cover{.picture = pictureOf(labelLogos[logo_], name_),
                 .title = name_.empty() ? "Your label" : name_,
                 .text = slogan_.empty() ? "Its slogan" : slogan_});
  view.add(TextField{.id = "name", .label = "Name", .value = name_, .placeholder = "Enter a name for your label"});
  view.add(TextField{.id = "slogan", .label = "Slogan", .value = slogan_, .placeholder = "Enter a slogan"});
  view.add(Heading{"Logo"});
  PictureGrid logos;
  for (size_t i = 0; i < labelLogos.size(); ++i) {
    logos.items.push_back({.picture = pictureOf(labelLogos[i], name_),
                           .label = std::string(labelLogos[i].title),
                           .selected = i == logo_,
                           .id = "logo:" + std::to_string(i)});
  }
  view.add(std::move(logos));
  view.add(
      Tiles{{{.icon = "cash", .label = "Launch", .value = currency(launchCost.dollars), .note = "once"},
             {.icon = "bolt", .label = "Energy", .value = std::to_string(state().totalEnergyAvailable), .note = "left"},
             {.icon = "hourglass",
              .label = "Running it",
              .value = "-" + std::to_string(weeklyLabelEnergy),
              .note = "energy a week"}}});
  view.add(caption("A garage for five people comes with it, and room for three artists."));
  view.mainAction =
      Button{.id = "createLabelButton", .label = "CREATE", .price = launchCost, .style = Button::Style::primary};
  view.help =
      Help{.title = "A label of your own",
           .text =
               "Staff in five departments lift your own songs, albums and videos, and run the artists whom you sign. "
               "You hire them, find artists, hear their demos and make your offer; what they stream and sell is "
               "yours by the share you agreed on.\n\nA label takes energy every week, and staff, perks and rent "
               "have to be paid whatever it earns. Other labels stop writing to you, and closing the doors pays "
               "nothing back."};
  return view;
}

}  // namespace backbeat
