#include "social/segues.h"

#include "social/screens/create_twitter_message_view_controller.h"

namespace backbeat {

namespace {

using enum Segue::Presentation;

constexpr Segue segues[] = {
    {"goToCreateTwitterMessage", "CreateTwitterMessageViewController", push,
     makeScreenWithId<CreateTwitterMessageViewController>},
};

}  // namespace

const Room socialRoom = {.segues = segues};

}  // namespace backbeat
