#include "career/segues.h"

#include "career/job_board.h"
#include "career/screens/contract_offer_view_controller.h"
#include "career/screens/energy_transparency_view_controller.h"
#include "career/screens/job_board_view_controller.h"
#include "career/screens/lifestyle_choices_view_controller.h"
#include "career/screens/my_music_view_controller.h"
#include "career/screens/my_studio_view_controller.h"
#include "career/screens/signed_contract_view_controller.h"

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

}  // namespace

const Room careerRoom = {.segues = segues};

}  // namespace backbeat
