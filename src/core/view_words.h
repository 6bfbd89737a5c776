// What many screens say alike, said once.
#pragma once

#include <string>

#include "core/view.h"

namespace backbeat {

/// A row with a drawn picture that leads to another screen.
Row wayTo(std::string id, std::string glyph, std::string title, std::string subtitle = {}, std::string value = {});

/// A paragraph in small print.
Text caption(std::string text, Tone tone = Tone::plain);

/// A word of advice for the first weeks of a career, beside the thing that it is about.
Card hint(std::string text);

/// How far a bar goes for `part` of `whole`, 0 to 1; nowhere when there is no whole above 0.
double shareOf(double part, double whole);
double shareOf(int64_t part, int64_t whole);

/// The four bands of whatever goes to 100, such as a rating: bad below 25, then 50, then 80.
Tone toneOfBand(double points);

/// Good above 0, bad below.
Tone toneOfChange(double change);
Tone toneOfChange(int64_t change);

}  // namespace backbeat
