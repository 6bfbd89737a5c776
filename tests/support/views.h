// Looking things up in what a screen says of itself.
#pragma once

#include <string>
#include <vector>

#include "core/view.h"

namespace backbeat {

/// Every row of the view, of all its lists, in reading order.
std::vector<Row> rowsOf(const View& view);
/// The first row of that title, or one without any text.
Row rowTitled(const View& view, const std::string& title);
/// The first figure of that label, totals included, or one without any text.
Figure figureLabelled(const View& view, const std::string& label);

}  // namespace backbeat
