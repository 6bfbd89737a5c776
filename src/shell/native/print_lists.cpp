#include <algorithm>
#include <utility>

#include "core/money.h"
#include "shell/native/print_blocks.h"
#include "shell/native/terminal_text.h"

namespace backbeat {

namespace {

constexpr size_t underTitle = 6;
constexpr size_t valuesBegin = 52;
constexpr size_t sideBySide = 12;  // columns of a note or value that has a head
constexpr size_t narrowTable = 60;

/// Where the two columns under heads begin.
size_t headsBegin(const PrintedPage& page) { return std::min(valuesBegin, page.width() - 2 * sideBySide); }

bool looksLikeANumber(const std::string& cell) {
  const size_t start = cell.find_first_not_of("-+$#");
  return cell.empty() || (start != std::string::npos && cell[start] >= '0' && cell[start] <= '9');
}

Inked titleOf(PrintedPage& page, const Row& row, size_t columns) {
  Inked title = page.inked().add(page.numberOf(row.id, row.title)).add(row.selected ? "✓ " : "");
  const std::string badge = (row.badge.empty() ? "" : " (" + oneLine(row.badge, 16) + ")") + lockOf(row.tone);
  const size_t taken = title.columns() + columnsOf(badge);
  return title.add(oneLine(row.title, columns - taken)).add(badge);
}

/// What stands at the right of a row.
Inked endsOf(PrintedPage& page, const Row& row) {
  Inked ends = page.inked(0);
  const auto add = [&](const Inked& part) {
    if (part.columns() > 0) ends.add(ends.columns() > 0 ? "  " : "").add(part);
  };
  add(page.inked(0).add(spark(row.points, 12)));
  add(page.inked(0).add(oneLine(row.value, 24), colourOf(row.tone)));
  add(page.inked(0).add(oneLine(row.note, 22)));
  add(page.price(row.price));
  return ends;
}

/// Note and value under their heads.
Inked sideBySideOf(PrintedPage& page, const std::string& note, const std::string& value, Tone tone) {
  return page.inked(0)
      .add(paddedBefore(oneLine(note, sideBySide - 1), sideBySide))
      .add(paddedBefore(oneLine(value, sideBySide - 1), sideBySide), colourOf(tone));
}

void print(PrintedPage& page, const Row& row, bool underHeads) {
  // On a narrow page little would be left of a title beside two columns: they stand below it.
  const bool beside = page.width() >= narrowTable;
  const size_t room = underHeads && beside ? headsBegin(page) - 2 : page.width();
  Inked title = titleOf(page, row, room);
  if (underHeads) {
    page.put(std::move(title), sideBySideOf(page, row.note, row.value, row.tone), headsBegin(page));
  } else {
    page.put(std::move(title), endsOf(page, row), valuesBegin);
  }
  // The lines of a subtitle are kept where the row is one of a table: the last says most.
  if (underHeads) {
    page.paragraph(row.subtitle, faint, underTitle);
  } else if (!row.subtitle.empty()) {
    page.paragraph(oneLine(row.subtitle, 2 * (page.width() - underTitle)), faint, underTitle);
  }
  if (row.share) page.put(page.inked(underTitle).add(bar(*row.share, page.barColumns())));
  printActions(page, row.actions);
}

/// The ways to the rows before and after those that are shown.
void printWindow(PrintedPage& page, const Rows& rows) {
  const auto count = static_cast<int64_t>(rows.items.size());
  if (rows.total <= count) return;
  Inked ways = page.inked(0);
  const auto window = [&](const char* label, int64_t from, bool earlier) {
    Pressable pressable;
    pressable.action = {rows.id, std::to_string(from)};
    pressable.takes = Pressable::Takes::row;
    pressable.label = label;
    pressable.earlier = earlier;
    ways.add(ways.columns() > 0 ? "  " : "").add(page.number(std::move(pressable)) + label, faint);
  };
  if (rows.from > 0) window("earlier", std::max(rows.from - ListWindow::pageSize, int64_t{0}), true);
  if (rows.from + count < rows.total) window("more", rows.from + count, false);
  const std::string shown =
      withCommas(rows.from + 1) + " to " + withCommas(rows.from + count) + " of " + withCommas(rows.total);
  page.put(page.inked().add(shown, faint), ways, 0);
}

/// The widest that a column may be so that all of them fit side by side.
size_t widestColumn(const std::vector<size_t>& widths, size_t gap, size_t room) {
  size_t widest = 28;
  const auto taken = [&] {
    size_t sum = PrintedPage::blockMargin;
    for (const size_t width : widths) sum += std::min(width, widest) + gap;
    return sum - gap;
  };
  while (widest > 3 && taken() > room) --widest;
  return widest;
}

void print(PrintedPage& page, const Tree::Person& person, const Tree& tree) {
  using Standing = Tree::Person::Standing;
  const auto nameOf = [&](int64_t index) {
    const bool known = index >= 0 && index < static_cast<int64_t>(tree.people.size());
    return known ? oneLine(tree.people[static_cast<size_t>(index)].title, 24) : std::string();
  };
  const bool gone = person.standing == Standing::gone;
  Inked line = page.inked(4).add(page.numberOf(person.id, person.title));
  line.add((gone ? "† " : "") + oneLine(person.title, 30), person.standing == Standing::player ? bold : "");
  if (person.standing == Standing::player) line.add(" (you)");
  std::string ties = oneLine(person.subtitle, 30);
  const auto tie = [&](const char* word, const std::string& name) {
    if (!name.empty()) ties += (ties.empty() ? "" : " · ") + std::string(word) + name;
  };
  tie("with ", nameOf(person.beside));
  tie("child of ", nameOf(person.parent));
  page.put(line, page.inked(0).add(oneLine(ties, page.width() - underTitle), faint), 0);
}

}  // namespace

void print(PrintedPage& page, const Tiles& tiles) {
  constexpr size_t labelColumns = 36;
  for (const Tile& tile : tiles.items) {
    Inked figure = page.inked(0).add(oneLine(tile.value, 30), colourOf(tile.tone));
    if (!tile.note.empty()) figure.add(figure.columns() > 0 ? "  " : "").add(oneLine(tile.note, 28));
    const Inked price = page.price(tile.price);
    if (price.columns() > 0) figure.add(figure.columns() > 0 ? "  " : "").add(price);
    const std::string number = page.numberOf(tile.id, tile.label);
    page.put(page.inked().add(number).add(oneLine(tile.label, 34)), figure, labelColumns);
  }
}

void print(PrintedPage& page, const Rows& rows) {
  const bool heads = !rows.columns.empty();
  if (heads) {
    const std::string& first = rows.columns.front();
    const Inked names = sideBySideOf(page, rows.columns.size() > 1 ? first : "", rows.columns.back(), Tone::locked);
    page.put(page.inked(headsBegin(page)).add(names));
  }
  for (const Row& row : rows.items) print(page, row, heads);
  printWindow(page, rows);
}

void print(PrintedPage& page, const Table& table) {
  constexpr size_t gap = 2;
  std::vector<std::vector<std::string>> cells = {table.columns};
  cells.insert(cells.end(), table.rows.begin(), table.rows.end());
  std::vector<size_t> widths;
  std::vector<bool> numeric;
  for (size_t r = 0; r < cells.size(); ++r) {
    widths.resize(std::max(widths.size(), cells[r].size()));
    numeric.resize(widths.size(), true);
    for (size_t c = 0; c < cells[r].size(); ++c) {
      widths[c] = std::max(widths[c], columnsOf(oneLine(cells[r][c], page.width())));
      if (r > 0 && !looksLikeANumber(cells[r][c])) numeric[c] = false;
    }
  }
  const size_t widest = widestColumn(widths, gap, page.width());
  for (size_t r = 0; r < cells.size(); ++r) {
    std::string text;
    for (size_t c = 0; c < cells[r].size(); ++c) {
      const std::string cell = oneLine(cells[r][c], widest);
      const size_t width = std::min(widths[c], widest);
      text += (numeric[c] && c > 0 ? paddedBefore(cell, width) : padded(cell, width)) + std::string(gap, ' ');
    }
    text.resize(text.find_last_not_of(' ') + 1);
    page.put(page.inked().add(oneLine(text, page.width() - PrintedPage::blockMargin), r == 0 ? faint : ""));
  }
}

void print(PrintedPage& page, const PictureGrid& grid) {
  for (const PictureChoice& choice : grid.items) {
    const std::string label = choice.label.empty() ? oneLine(choice.picture.name, 40) : oneLine(choice.label, 60);
    page.put(page.inked().add(page.numberOf(choice.id, label)).add(choice.selected ? "✓ " : "").add(label));
  }
}

void print(PrintedPage& page, const Tree& tree) {
  page.line("");
  std::vector<int64_t> generations;
  for (const Tree::Person& person : tree.people) generations.push_back(person.generation);
  std::sort(generations.begin(), generations.end());
  generations.erase(std::unique(generations.begin(), generations.end()), generations.end());
  for (const int64_t generation : generations) {
    page.put(page.inked().add("Generation " + std::to_string(generation + 1), faint));
    for (const Tree::Person& person : tree.people) {
      if (person.generation == generation) print(page, person, tree);
    }
  }
}

}  // namespace backbeat
