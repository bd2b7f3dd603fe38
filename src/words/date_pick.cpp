#include "words/date_pick.h"

namespace nlpdate {

namespace {

bool takeIfEarlier(NLPDatePick& pick, const std::optional<NLPRecognizeDate>& found, int kind) {
  if (!found || pick.position <= found->getRecognizeStringStartPosition()) return false;
  pick.position = found->getRecognizeStringStartPosition();
  pick.cal = found->getStartCal();
  pick.kind = kind;
  pick.winner = &*found;
  return true;
}

}  // namespace

NLPDatePick pickEarliestDate(const std::optional<NLPRecognizeDate>& weekday,
                             const std::optional<NLPRecognizeDate>& special,
                             const std::optional<NLPRecognizeDate>& month,
                             const std::optional<NLPRecognizeDate>& numeric,
                             const std::optional<NLPRecognizeDate>& japan) {
  NLPDatePick pick;
  takeIfEarlier(pick, weekday, 0);
  takeIfEarlier(pick, special, 1);
  takeIfEarlier(pick, month, 2);
  if (takeIfEarlier(pick, numeric, 3)) return pick;
  if (japan && pick.position > japan->getRecognizeStringStartPosition()) {
    pick.position = japan->getRecognizeStringStartPosition();
    pick.kind = 6;
    pick.winner = &*japan;
  }
  return pick;
}

}  // namespace nlpdate
