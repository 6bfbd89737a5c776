// Goes everywhere that screens lead, from the first screen of a launch on.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "play/coverage.h"
#include "play/worlds.h"

namespace backbeat {

struct Crawl {
  Coverage coverage;
  std::vector<std::string> faults;  ///< each with the world and the presses that lead there
  std::set<std::string> offered;    ///< as "Screen action"
  std::set<std::string> answered;   ///< what of it changed anything that can be seen, heard or saved

  void add(const Crawl& other);
};

/// Presses everything that is offered on every kind of place in all worlds, breadth first, and follows every way. A
/// place is of the same kind as another when the same screen offers the same actions there, or the same alert stands;
/// so a song in production is another kind than one that is out, and a hundred songs are two places. What two worlds
/// have shown is passed through in the others, one press an action. Runs when first asked for.
const Crawl& wholeCrawl();

}  // namespace backbeat
