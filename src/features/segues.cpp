#include "features/segues.h"

#include "features/news.h"
#include "features/screens/feature_for_an_artist_view_controller.h"
#include "features/screens/featured_on_detail_view_controller.h"

namespace backbeat {

namespace {

using enum Segue::Presentation;

constexpr Segue segues[] = {
    {"goToFeatureForAnArtist", "FeatureForAnArtistViewController", modal, makeScreen<FeatureForAnArtistViewController>},
    {"goToFeaturedOnDetail", "FeaturedOnDetailViewController", push, makeScreenWithId<FeaturedOnDetailViewController>},
};

}  // namespace

const Room featuresRoom = {.name = "features", .segues = segues, .addNews = addFeaturesNews};

}  // namespace backbeat
