#include "wealth/segues.h"

namespace backbeat {

namespace {

using enum Segue::Presentation;

}  // namespace

const Room wealthRoom = {.segues = {}};

}  // namespace backbeat
