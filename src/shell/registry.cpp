#include "shell/registry.h"

#include <algorithm>

#include "career/screens/contract_offer_view_controller.h"
#include "career/screens/daily_life_view_controller.h"
#include "career/screens/energy_transparency_view_controller.h"
#include "career/screens/job_board_view_controller.h"
#include "career/screens/lifestyle_choices_view_controller.h"
#include "career/screens/my_music_view_controller.h"
#include "career/screens/my_studio_view_controller.h"
#include "career/screens/signed_contract_view_controller.h"
#include "music/screens/add_to_album_view_controller.h"
#include "music/screens/album_chart_detail_view_controller.h"
#include "music/screens/album_detail_view_controller.h"
#include "music/screens/artist_profile_view_controller.h"
#include "music/screens/billboard_view_controller.h"
#include "music/screens/certification_view_controller.h"
#include "music/screens/change_names_view_controllers.h"
#include "music/screens/create_a_song_view_controller.h"
#include "music/screens/create_an_album_view_controller.h"
#include "music/screens/enter_name_view_controller.h"
#include "music/screens/featuring_view_controller.h"
#include "music/screens/monthly_listener_detail_view_controller.h"
#include "music/screens/music_view_controller.h"
#include "music/screens/set_album_marketing_view_controller.h"
#include "music/screens/set_album_pricing_view_controller.h"
#include "music/screens/song_chart_detail_view_controller.h"
#include "music/screens/song_detail_view_controller.h"
#include "shell/screens/about_view_controller.h"
#include "shell/screens/restore_view_controller.h"
#include "shell/screens/settings_view_controller.h"
#include "social/screens/create_twitter_message_view_controller.h"
#include "social/screens/twitter_profile_view_controller.h"
#include "turn/screens/balance_sheet_view_controller.h"
#include "turn/screens/data_view_controller.h"
#include "turn/screens/expense_view_controller.h"
#include "turn/screens/financial_view_controller.h"
#include "turn/screens/net_worth_view_controller.h"
#include "turn/screens/view_controller.h"
#include "turn/screens/weekly_summary_view_controller.h"

namespace backbeat {

namespace {

using enum Segue::Presentation;

template <class S>
std::unique_ptr<Screen> make(Game& game, std::string_view) {
  return std::make_unique<S>(game);
}

/// For screens about one record: the argument is its id. Nonsense gives a screen about nothing.
template <class S>
std::unique_ptr<Screen> makeWithId(Game& game, std::string_view argument) {
  return std::make_unique<S>(game, wholeNumber(argument).value_or(-1));
}

template <MarketingTarget::Kind kind>
std::unique_ptr<Screen> makeMarketing(Game& game, std::string_view argument) {
  const MarketingTarget target{kind, wholeNumber(argument).value_or(-1)};
  return std::make_unique<SetAlbumMarketingViewController>(game, target);
}

constexpr Segue allSegues[] = {
    // social
    {"goToCreateTwitterMessage", "CreateTwitterMessageViewController", push,
     makeWithId<CreateTwitterMessageViewController>},
    // career
    {"goToMyMusic", "MyMusicViewController", push, make<MyMusicViewController>},
    {"goToMyStudio", "MyStudioViewController", push, make<MyStudioViewController>},
    {"goToJobBoard", "JobBoardViewController", push, make<JobBoardViewController>},
    {"goToLifestyleChoices", "LifestyleChoicesViewController", push, makeWithId<LifestyleChoicesViewController>},
    {"goToEnergyTransparency", "EnergyTransparencyViewController", push, make<EnergyTransparencyViewController>},
    {"goToContractOffer", "ContractOfferViewController", push, make<ContractOfferViewController>},
    {"goToSignedContract", "SignedContractViewController", push, make<SignedContractViewController>},
    // music
    {"goToEnterName", "EnterNameViewController", modal, make<EnterNameViewController>},
    {"goToCreateASong", "CreateASongViewController", push, make<CreateASongViewController>},
    {"goToAddToAlbum", "AddToAlbumViewController", push, makeWithId<AddToAlbumViewController>},
    {"goToAlbumChartDetail", "AlbumChartDetailViewController", push, makeWithId<AlbumChartDetailViewController>},
    {"goToAlbumDetail", "AlbumDetailViewController", push, makeWithId<AlbumDetailViewController>},
    {"goToArtistProfile", "ArtistProfileViewController", push, make<ArtistProfileViewController>},
    {"goToCertification", "CertificationViewController", push, make<CertificationViewController>},
    {"goToCreateAnAlbum", "CreateAnAlbumViewController", push, make<CreateAnAlbumViewController>},
    {"goToSetAlbumMarketing", "SetAlbumMarketingViewController", push, makeMarketing<MarketingTarget::Kind::album>},
    {"goToSetSongMarketing", "SetAlbumMarketingViewController", push, makeMarketing<MarketingTarget::Kind::song>},
    {"goToSetAlbumPricing", "SetAlbumPricingViewController", push, makeWithId<SetAlbumPricingViewController>},
    {"goToSongChartDetail", "SongChartDetailViewController", push, makeWithId<SongChartDetailViewController>},
    {"goToSongDetail", "SongDetailViewController", push, makeWithId<SongDetailViewController>},
    {"goToFeaturedArtists", "FeaturingViewController", push, make<FeaturingViewController>},
    {"goToChangeFeaturedArtistName", "ChangeFeaturedArtistNameViewController", push,
     makeWithId<ChangeFeaturedArtistNameViewController>},
    {"goToChangeCameoNames", "ChangeCameoNamesViewController", push, makeWithId<ChangeCameoNamesViewController>},
    {"goToBillboard", "BillboardViewController", push, make<BillboardViewController>},
    {"goToMonthlyListenerDetail", "MonthlyListenerDetailViewController", push,
     make<MonthlyListenerDetailViewController>},
    // turn
    {"goToData", "DataViewController", push, make<DataViewController>},
    {"goToWeeklySummary", "WeeklySummaryViewController", modal, make<WeeklySummaryViewController>},
    {"goToExpenseScreen", "ExpenseViewController", push, make<ExpenseViewController>},
    {"goToBalanceSheet", "BalanceSheetViewController", push, make<BalanceSheetViewController>},
    {"goToNetWorth", "NetWorthViewController", push, make<NetWorthViewController>},
    // shell
    {"goToSettings", "SettingsViewController", push, make<SettingsViewController>},
    {"goToRestore", "RestoreViewController", push, make<RestoreViewController>},
    {"goToAbout", "AboutViewController", push, make<AboutViewController>},
};

}  // namespace

const std::array<Tab, tabCount>& tabs() {
  static constexpr std::array<Tab, tabCount> all = {{
      {"Home", "home", {"home", "ViewController", push, make<ViewController>}},
      {"Music", "music", {"music", "MusicViewController", push, make<MusicViewController>}},
      {"Life", "life", {"life", "DailyLifeViewController", push, make<DailyLifeViewController>}},
      {"Business", "business", {"business", "FinancialViewController", push, make<FinancialViewController>}},
      {"Social", "social", {"social", "TwitterProfileViewController", push, make<TwitterProfileViewController>}},
  }};
  return all;
}

std::span<const Segue> segues() { return allSegues; }

const Segue* segueNamed(std::string_view name) {
  const auto found =
      std::find_if(std::begin(allSegues), std::end(allSegues), [&](const Segue& segue) { return segue.name == name; });
  return found == std::end(allSegues) ? nullptr : found;
}

}  // namespace backbeat
