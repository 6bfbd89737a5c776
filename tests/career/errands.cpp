#include "play/errands.h"

namespace backbeat {
namespace {

const RoomErrands errands({
    {"sign with a label",
     {"rich", "long ago", "talkative"},
     {{"Home"}, {"goToContractOffer"}, {"signContract"}, {"Home"}, {"labelContract"}, {"endContract"}},
     400},
    {"leave a label that is owed something",
     {"signed"},
     {{"Home"}, {"labelContract"}, {"endContract"}, {"Cancel Contract?"}, {"endContract"}, {"Yes, Cancel"}}},
    {"leave a label at peace",
     {"mid-career"},
     {{"Home"}, {"labelContract"}, {"endContract"}, {"End Partnership?"}, {"endContract"}, {"Yes, Cancel"}}},
    {"be thrown out by a label", {"signed"}, {{"❌ Terminated ❌"}}, 10},
    {"take two jobs",
     {"new", "rich", "signed", "long ago"},
     {{"Life"},
      {"goToJobBoardButton"},
      {"jobButton1"},
      {"Life"},
      {"goToJobBoardButton"},
      {"jobButton1"},
      {"⏳ Contract Signed ⏳"}},
     40},
    {"take the third job of a long board", {"rich"}, {{"Life"}, {"goToJobBoardButton"}, {"jobButton3"}}, 100},
    {"take the last job of a long board", {"rich"}, {{"Life"}, {"goToJobBoardButton"}, {"jobButton5"}}, 100},
    {"live well and go back to little",
     {"rich", "mid-career"},
     {{"Life"},
      {"goToFoodButton"},
      {"option:1"},
      {"Confirm"},
      {"clearExpense"},
      {"Remove"},
      {"clearExpense"},
      {"No Expense Found"}}},
});

}  // namespace
}  // namespace backbeat
