#include "music/about_text.h"

#include "core/text.h"

namespace backbeat {

void writeAbout(Game& game, const std::string& text) {
  game.state.aboutDescription = firstCharacters(text, longestAboutText);
  game.save(&GameState::aboutDescription);
}

}  // namespace backbeat
