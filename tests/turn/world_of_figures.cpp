// What the records of the week that was reported, and of the one that the next report tells, bring.
#include "turn/figures.h"

namespace backbeat {

namespace {

template <class T>
void inBothWeeks(RecordList<T>& list, const GameState& state, OwnValues& own) {
  for (int64_t ago = 1; ago >= 0; --ago) {
    T row = own.record<T>();
    row.weekNumber = state.weekNumber - ago;
    row.yearNumber = state.yearNumber;
    list.append(row);
  }
}

void furnishWealth(GameState& state, OwnValues& own) {
  state.realEstateIndex = 1.25;
  InvestmentProperty villa = own.record<InvestmentProperty>();
  villa.pricePaid = 1'310'000;
  villa.realEstateIndex = 1.125;
  state.saveAllInvestmentPropertyList.append(villa);
  Transportation boat = own.record<Transportation>();
  boat.pricePaid = 470'000;
  boat.yearPurchased = state.yearNumber - 4;
  state.saveAllTransportationOwnedList.append(boat);
  Venture venture = own.record<Venture>();
  venture.hasExited = 0;
  venture.totalOutstandingShares = 80'000;
  venture.totalSharesOwned = 20'000;
  venture.lastValuation = 6'060'606;
  venture.investmentAmount = 1'010'101;
  venture.currentFundingRound = 2;
  venture.timeUntilNextRaise = 3;
  venture.weekSinceUpdate = state.weekNumberForTracking;  // no report looks at it yet
  venture.news = {"SPROUT is on a roll.  up from $4.4M 🔼🎉"};
  venture.businessName = "Sprout";
  venture.businessId = 83;
  state.saveAllVentureInvestments.append(venture);
}

void furnish(GameState& state, OwnValues& own) {
  state.appearance = "system";
  state.myArtistsName = "Mara Voss";
  state.promptToEnterName = 1;
  state.loginCount = 1;
  state.totalCashAvailable = 5'432'109;
  state.isLabelLaunched = 1;
  state.labelRevenueBonus = 12.5;
  for (const Entry& entry : entries) {
    WeeklyLineItem item = own.record<WeeklyLineItem>();
    item.title = entry.title;
    item.typeOfExpense = entry.code;
    item.isExpense = entry.isExpense;
    item.year = state.yearNumber - 2;
    state.saveAllWeeklyLineItems.append(item);
  }
  inBothWeeks(state.saveAllWeeklyTourSales, state, own);
  inBothWeeks(state.saveAllFeaturedOnWeeklySongListens, state, own);
  inBothWeeks(state.saveAllMerchWeeklySales, state, own);
  inBothWeeks(state.saveAllWeeklyVideoViews, state, own);
  inBothWeeks(state.saveAllSignedArtistWeeklySongListens, state, own);
  inBothWeeks(state.saveAllSignedArtistWeeklyAlbumSales, state, own);
  // Nova Reed sings for the label.
  for (size_t i = 0; i < 2; ++i) {
    state.saveAllSignedArtistWeeklySongListens.update(i, [](SignedArtistWeeklySongListens& week) {
      week.artistId = 7;
      week.songId = 6001;
    });
    state.saveAllSignedArtistWeeklyAlbumSales.update(i, [](SignedArtistWeeklyAlbumSales& week) {
      week.artistId = 7;
      week.albumId = 6002;
    });
  }
  inBothWeeks(state.saveAllFestivalList, state, own);
  for (size_t i = 0; i < 2; ++i) {
    state.saveAllMerchWeeklySales.update(i, [](MerchWeeklySales& sales) { sales.merchGross += 30'000; });
  }
  for (size_t i = 0; i < 2; ++i) {
    state.saveAllFeaturedOnWeeklySongListens.update(i, [](FeaturedOnWeeklySongListens& week) {
      week.songId = 8;
      week.songTitle = "Borrowed Time";
      week.artistName = "Gil Ives";
    });
  }
  state.saveAllWeeklyTourSales.update(1, [](WeeklyTourSales& show) {
    show.tourStadium = "Harbour Bowl";
    show.tourLocation = "Lisbon";
  });
  state.saveAllFestivalList.update(1, [](Festival& festival) {
    festival.festivalName = "Meadow Days";
    festival.topReview = "A storm with a tune";
    festival.reviewStars = 57.5;
  });
  // With "Low Tide", what is old enough to be removed.
  for (int i = 0; i < 2; ++i) {
    SignedArtistSong song = own.record<SignedArtistSong>();
    song.isReleased = true;
    song.releaseYear = state.yearNumber - 11;
    state.saveAllSignedArtistSongList.append(song);
    SignedArtistAlbum album = own.record<SignedArtistAlbum>();
    album.isReleased = true;
    album.releaseYear = state.yearNumber - 12;
    state.saveAllSignedArtistAlbumList.append(album);
  }
  Child child = own.record<Child>();
  child.typeOfRelationship = 1;
  child.birthYear = state.yearNumber - 18;
  child.birthWeekForTracking = state.weekNumberForTracking - 18 * 52;
  state.saveAllChildList.append(child);
  for (int64_t department = 0; department < 3; ++department) {
    Employee employee = own.record<Employee>();
    employee.employeeDepartmentCode = department;
    employee.employeeImage = "staff7.png";
    state.saveAllEmployeeList.append(employee);
  }
  furnishWealth(state, own);
}

const FiguresOf world{.furnish = furnish};

}  // namespace

}  // namespace backbeat
