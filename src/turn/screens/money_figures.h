// Figures of money, as the report and the finance screens tell them.
#pragma once

#include <string>

#include "core/view.h"

namespace backbeat {

/// A figure that counts up to an amount of dollars.
Figure dollars(std::string label, double amount, Tone tone, std::string note = {});

/// Good from 0 up, bad below.
Tone toneOfAmount(double amount);

}  // namespace backbeat
