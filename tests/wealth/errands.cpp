#include "play/errands.h"

namespace backbeat {
namespace {

const RoomErrands errands({
    {"buy a home and sell it again",
     {"house hunter"},
     {{"Business"},
      {"goToPropertyListing"},
      {"home:5004"},
      {"purchaseButton"},
      {"Purchase"},
      {"sellButton"},
      {"Sell"},
      {"🔑 Sold 🔑"},
      {"goToPropertyListing"}}},
    {"sell a home in a boom and in a slump",
     {"landlord", "landlord in a slump"},
     {{"Business"}, {"goToPropertyPortfolio"}, {"home:5010"}, {"sellButton"}, {"Sell"}, {"🔑 Sold 🔑"}}},
    {"look for a home where all are taken",
     {"landlord"},
     {{"Business"}, {"goToPropertyListing"}, {"goToPropertyPortfolio"}}},
    {"be too poor for a home",
     {"new"},
     {{"Business"}, {"goToPropertyListing"}, {"purchaseButton"}, {"💰Not Enough Cash💰"}}},
    {"be too tired for a home",
     {"weary owner"},
     {{"Business"}, {"goToPropertyListing"}, {"purchaseButton"}, {"⚡️ Not Enough Energy ⚡️"}}},
    {"be too tired to sell a home",
     {"weary owner"},
     {{"Business"}, {"goToPropertyPortfolio"}, {"sellButton"}, {"⚡️ Not Enough Energy ⚡️"}}},
    {"drive a car of one's own",
     {"house hunter"},
     {{"Life"},
      {"goToTransportationOptions"},
      {"vehicle:7009"},
      {"Purchase?"},
      {"vehicle:7017"},
      {"Purchase?"},
      {"own:7009"},
      {"sellButton"},
      {"Sell"},
      {"🏁 Sold 🏁"}}},
    {"be too poor for a bomber",
     {"new"},
     {{"Business"}, {"goToTransportationOptions"}, {"vehicle:7020"}, {"💰Not Enough Cash💰"}}},
    {"pay to be rid of an old scooter",
     {"full garage"},
     {{"Business"}, {"goToTransportationOptions"}, {"own:7001"}, {"sellButton"}, {"Sell"}, {"🏁 Sold 🏁"}}},
});

}  // namespace
}  // namespace backbeat
