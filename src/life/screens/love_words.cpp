#include "life/screens/love_words.h"

namespace backbeat {

Tone chemistryTone(double chemistry) {
  if (chemistry < 25) return Tone::bad;
  if (chemistry < 50) return Tone::warning;
  return chemistry < 80 ? Tone::fair : Tone::good;
}

}  // namespace backbeat
