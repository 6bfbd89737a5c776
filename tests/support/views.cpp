#include "support/views.h"

namespace backbeat {

std::vector<Row> rowsOf(const View& view) {
  std::vector<Row> rows;
  for (const Block& block : view.blocks) {
    if (const Rows* list = std::get_if<Rows>(&block)) rows.insert(rows.end(), list->items.begin(), list->items.end());
  }
  return rows;
}

Row rowTitled(const View& view, const std::string& title) {
  for (const Row& row : rowsOf(view)) {
    if (row.title == title) return row;
  }
  return {};
}

Figure figureLabelled(const View& view, const std::string& label) {
  for (const Block& block : view.blocks) {
    const Figures* figures = std::get_if<Figures>(&block);
    if (!figures) continue;
    for (const Figure& figure : figures->items) {
      if (figure.label == label) return figure;
    }
    if (figures->total && figures->total->label == label) return *figures->total;
  }
  return {};
}

}  // namespace backbeat
