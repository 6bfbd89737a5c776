#include "shell/native/view_printer.h"

#include <algorithm>
#include <utility>

#include "core/money.h"
#include "core/text.h"
#include "shell/native/terminal_text.h"

namespace backbeat {

namespace {

constexpr size_t width = 80;
constexpr size_t indent = 2;
constexpr size_t meterColumns = 20;
constexpr size_t cellColumns = 28;
constexpr size_t labelColumns = 34;
constexpr size_t amountColumns = 20;

const char* colourOf(Tone tone) {
  switch (tone) {
    case Tone::plain: return "";
    case Tone::good: return "\x1b[32m";
    case Tone::bad: return "\x1b[31m";
    case Tone::warning: return "\x1b[33m";
    case Tone::fair: return "\x1b[33m";
    case Tone::locked: return "\x1b[2m";
  }
  return "";
}

constexpr const char* bold = "\x1b[1m";
constexpr const char* faint = "\x1b[2m";

bool looksLikeANumber(const std::string& cell) {
  const size_t start = cell.find_first_not_of("-+$#");
  return cell.empty() || (start != std::string::npos && cell[start] >= '0' && cell[start] <= '9');
}

/// Prints one screen; each `print` is one kind of thing that a view is made of.
class ViewPrinter {
 public:
  ViewPrinter(const Navigator& navigator, const Shown& shown, bool colour)
      : navigator_(navigator), shown_(shown), colour_(colour) {}

  PrintedScreen print() {
    if (!shown_.notice.empty()) paragraph(shown_.notice, colourOf(Tone::warning));
    if (!shown_.modal) header();
    head();
    for (const Block& block : shown_.view.blocks) std::visit([this](const auto& b) { print(b); }, block);
    if (shown_.view.mainAction) {
      line("");
      print(*shown_.view.mainAction);
    }
    if (shown_.alert) printAlert(*shown_.alert);
    return std::move(out_);
  }

 private:
  std::string painted(const std::string& text, const char* code) const {
    return colour_ && *code != '\0' ? code + text + "\x1b[0m" : text;
  }
  void line(const std::string& text, const char* code = "") {
    out_.text += painted(text, code);
    out_.text += '\n';
  }
  void paragraph(std::string_view text, const char* code = "", size_t margin = 0) {
    if (text.empty()) return;
    for (const std::string& part : wrapped(text, width - margin)) line(std::string(margin, ' ') + part, code);
  }

  std::string number(Pressable pressable) {
    if (pressable.screenKey.empty()) pressable.screenKey = std::to_string(shown_.key);
    out_.pressables.push_back(std::move(pressable));
    return "[" + std::to_string(out_.pressables.size()) + "] ";
  }
  std::string pressed(const std::string& id, const std::string& label) {
    Pressable pressable;
    pressable.action.id = id;
    pressable.label = label;
    return number(std::move(pressable));
  }
  /// A number for what has an id, and nothing for what has none.
  std::string numberIf(const std::string& id, const std::string& label) {
    return id.empty() ? std::string() : pressed(id, label);
  }

  std::string priceText(const std::optional<Price>& price) const {
    if (!price || (price->energy == 0 && price->dollars == 0)) return {};
    std::string text = "  ";
    if (price->energy != 0) text += std::to_string(price->energy) + "⚡";
    if (price->energy != 0 && price->dollars != 0) text += " ";
    if (price->dollars != 0) text += currency(price->dollars);
    if (navigator_.affordable(*price)) return text;
    return painted(text + " ✗", colourOf(Tone::bad));
  }

  void header() {
    const Header& header = shown_.header;
    line(painted(header.cash, colourOf(header.cashTone)) + " · ⚡ " + header.energy + " · " + header.date);
    std::string bar;
    for (size_t i = 0; i < tabCount; ++i) {
      const std::string label(tabs()[i].label);
      const std::string badge = shown_.badges[i].empty() ? "" : " (" + oneLine(shown_.badges[i], 8) + ")";
      bar += (i == 0 ? "" : "  ") + (i == shown_.tab ? "<" + label + ">" : label) + badge;
    }
    line(bar, faint);
  }

  void head() {
    line("");
    line(oneLine(shown_.view.title, width), bold);
    paragraph(shown_.view.subtitle, faint);
  }

  void printAlert(const Shown::ShownAlert& shownAlert) {
    out_.pressables.clear();
    line("");
    line("──────── " + oneLine(shownAlert.alert.title, width - 10), bold);
    std::string_view message = shownAlert.alert.message;
    if (message.starts_with('\n')) message.remove_prefix(1);
    paragraph(message, "", indent);
    for (size_t i = 0; i < shownAlert.alert.buttons.size(); ++i) {
      Pressable button;
      button.screenKey = "alert";
      button.action = {std::to_string(shownAlert.key), std::to_string(i)};
      button.label = shownAlert.alert.buttons[i].label;
      line(number(button) + oneLine(button.label, width - 8));
    }
  }

  void print(const Heading& heading) {
    line("");
    std::string link;
    if (heading.link) link = "  " + numberIf(heading.link->id, heading.link->label) + oneLine(heading.link->label, 30);
    line(painted(oneLine(heading.text, width - 10), bold) + link);
  }

  void print(const Text& text) { paragraph(text.text, colourOf(text.tone), indent); }

  void print(const Tiles& tiles) {
    for (const Tile& tile : tiles.items) {
      const std::string label = numberIf(tile.id, tile.label) + oneLine(tile.label, labelColumns);
      const std::string note = tile.note.empty() ? "" : "  " + oneLine(tile.note, 30);
      line("  " + padded(label, labelColumns) + painted(oneLine(tile.value, 30), colourOf(tile.tone)) + note);
    }
  }

  void print(const Meter& meter) {
    line("  " + padded(oneLine(meter.label, 24), 26) + painted(bar(meter.share, meterColumns), colourOf(meter.tone)) +
         "  " + oneLine(meter.value, 28));
  }

  void printActions(const std::vector<RowAction>& actions) {
    std::string text;
    for (const RowAction& action : actions) {
      text += "  " + pressed(action.id, action.label) + painted(oneLine(action.label, 40), colourOf(action.tone));
    }
    if (!text.empty()) line("    " + text);
  }

  void print(const Row& row) {
    std::string title = numberIf(row.id, row.title) + (row.selected ? "✓ " : "") + oneLine(row.title, 46);
    if (!row.badge.empty()) title += " (" + oneLine(row.badge, 16) + ")";
    if (!row.value.empty()) title = padded(title, 50) + "  " + painted(oneLine(row.value, 24), colourOf(row.tone));
    if (!row.note.empty()) title += " " + oneLine(row.note, 20);
    line("  " + title + priceText(row.price));
    if (!row.subtitle.empty()) line("      " + oneLine(row.subtitle, width - 6), faint);
    if (row.share) line("      " + bar(*row.share, meterColumns));
    printActions(row.actions);
  }

  void print(const Rows& rows) {
    std::string heads;
    for (const std::string& column : rows.columns) heads += "  " + oneLine(column, 24);
    if (!heads.empty()) line("  " + paddedBefore(heads, width - 2 * indent), faint);
    for (const Row& row : rows.items) print(row);
    const auto count = static_cast<int64_t>(rows.items.size());
    if (rows.total <= count) return;
    std::string text =
        "  " + withCommas(rows.from + 1) + " to " + withCommas(rows.from + count) + " of " + withCommas(rows.total);
    const auto window = [&](const char* label, int64_t from, bool earlier) {
      Pressable pressable;
      pressable.action = {rows.id, std::to_string(from)};
      pressable.takes = Pressable::Takes::row;
      pressable.label = label;
      pressable.earlier = earlier;
      text += "  " + number(std::move(pressable)) + label;
    };
    if (rows.from > 0) window("earlier", std::max(rows.from - ListWindow::pageSize, int64_t{0}), true);
    if (rows.from + count < rows.total) window("more", rows.from + count, false);
    line(text, faint);
  }

  void print(const Table& table) {
    std::vector<std::vector<std::string>> cells;
    const auto add = [&](const std::vector<std::string>& row) {
      std::vector<std::string>& shortened = cells.emplace_back();
      for (const std::string& cell : row) shortened.push_back(oneLine(cell, cellColumns));
    };
    add(table.columns);
    for (const auto& row : table.rows) add(row);
    std::vector<size_t> widths;
    std::vector<bool> numeric;
    for (size_t r = 0; r < cells.size(); ++r) {
      widths.resize(std::max(widths.size(), cells[r].size()));
      numeric.resize(widths.size(), true);
      for (size_t c = 0; c < cells[r].size(); ++c) {
        widths[c] = std::max(widths[c], columnsOf(cells[r][c]));
        if (r > 0 && !looksLikeANumber(cells[r][c])) numeric[c] = false;
      }
    }
    for (size_t r = 0; r < cells.size(); ++r) {
      std::string text = "  ";
      for (size_t c = 0; c < cells[r].size(); ++c) {
        const bool right = numeric[c] && c > 0;
        text += (right ? paddedBefore(cells[r][c], widths[c]) : padded(cells[r][c], widths[c])) + "  ";
      }
      text.resize(text.find_last_not_of(' ') + 1);
      line(text, r == 0 ? faint : "");
    }
  }

  void print(const PictureGrid& grid) {
    for (const PictureChoice& choice : grid.items) {
      const std::string label = choice.label.empty() ? oneLine(choice.picture.name, 40) : oneLine(choice.label, 60);
      line("  " + numberIf(choice.id, label) + (choice.selected ? "✓ " : "") + label);
    }
  }

  void print(const Button& button) {
    line("  " + numberIf(button.id, button.label) + painted(oneLine(button.label, 50), colourOf(button.tone)) +
         priceText(button.price));
  }

  void print(const TextField& field) {
    Pressable typed;
    typed.action = {field.id, field.value};
    typed.takes = Pressable::Takes::text;
    typed.label = field.label;
    typed.maxLength = field.maxLength;
    const std::string value = field.value.empty() ? painted("(" + oneLine(field.placeholder, 40) + ")", faint)
                                                  : "\"" + oneLine(field.value, 56) + "\"";
    line("  " + number(std::move(typed)) + oneLine(field.label, 30) + ": " + value);
    if (!field.suggest.empty()) line("  " + pressed(field.suggest, "a suggestion") + "Suggest one");
  }

  void print(const Choice& choice) {
    Pressable chosen;
    chosen.action = {choice.id, std::to_string(choice.selected)};
    chosen.takes = Pressable::Takes::option;
    chosen.label = choice.label;
    chosen.options = static_cast<int64_t>(choice.options.size());
    line("  " + number(std::move(chosen)) + oneLine(choice.label, 60));
    size_t columns = 0;
    for (const Option& option : choice.options) columns = std::max(columns, columnsOf(oneLine(option.label, 40)));
    for (size_t i = 0; i < choice.options.size(); ++i) {
      const Option& option = choice.options[i];
      const bool labelAlone = option.note.empty() && !option.price;
      std::string text = paddedBefore(std::to_string(i + 1), 8);
      text += static_cast<int64_t>(i) == choice.selected ? " ✓ " : "   ";
      text += painted(padded(oneLine(option.label, 40), labelAlone ? 0 : columns), colourOf(option.tone));
      if (!option.note.empty()) text += "  " + oneLine(option.note, 30);
      line(text + priceText(option.price));
    }
  }

  void print(const Toggle& toggle) {
    Pressable turned;
    turned.action = {toggle.id, toggle.on ? "0" : "1"};
    turned.takes = Pressable::Takes::flag;
    turned.label = toggle.label;
    const std::string note = toggle.note.empty() ? "" : "  " + oneLine(toggle.note, 40);
    line("  " + number(std::move(turned)) + (toggle.on ? "(on)  " : "(off) ") + oneLine(toggle.label, 30) + note);
  }

  void print(const Chart& chart) {
    line("");
    std::string title = numberIf(chart.id, chart.title) + oneLine(chart.title, 30) + "  " + oneLine(chart.value, 24);
    if (!chart.note.empty()) title += "  " + painted(oneLine(chart.note, 30), colourOf(chart.tone));
    line("  " + title);
    if (chart.points.empty()) return;
    const auto [least, greatest] = std::minmax_element(chart.points.begin(), chart.points.end());
    line("  " + spark(chart.points, width - 2 * indent));
    std::string range = "  " + abbreviated(*least) + " to " + abbreviated(*greatest);
    if (chart.labels.size() > 1) {
      range += ", " + oneLine(chart.labels.front(), 20) + " to " + oneLine(chart.labels.back(), 20);
    }
    line(range, faint);
  }

  void print(const Post& post) {
    if (!post.pinned.empty()) line("  📌 " + trimmed(oneLine(post.pinned, 40)), faint);
    std::string head = "  " + oneLine(post.name, 30);
    if (!post.handle.empty()) head += " " + oneLine(post.handle, 24);
    if (!post.age.empty()) head += " · " + oneLine(post.age, 16);
    line(head, bold);
    paragraph(post.message, "", 2 * indent);
    std::string counts;
    const auto count = [&](const char* sign, const std::string& value) {
      if (!value.empty()) counts += (counts.empty() ? "" : "  ") + std::string(sign) + " " + oneLine(value, 16);
    };
    count("💬", post.comments);
    count("🔁", post.reChirps);
    count("♥", post.likes);
    if (!counts.empty()) line("    " + counts, faint);
    printActions(post.actions);
  }

  void print(const Card& card) {
    line("");
    std::string head = "  " + oneLine(card.title, 60);
    if (!card.badge.empty()) head += " (" + oneLine(card.badge, 16) + ")";
    line(head, colour_ && card.tone != Tone::plain ? colourOf(card.tone) : bold);
    paragraph(card.text, "", 2 * indent);
    for (const Button& button : card.buttons) print(button);
  }

  void print(const Cover& cover) {
    std::string head = "  " + oneLine(cover.title, 60);
    if (!cover.badge.empty()) head += " (" + oneLine(cover.badge, 16) + ")";
    line(head, bold);
    paragraph(cover.text, faint, indent);
  }

  void print(const Figure& figure) {
    const std::string note = figure.note.empty() ? "" : "  " + oneLine(figure.note, 40);
    line("  " + padded(oneLine(figure.label, labelColumns - 2), labelColumns) +
         painted(paddedBefore(oneLine(figure.value, amountColumns), amountColumns), colourOf(figure.tone)) + note);
  }

  void print(const Figures& figures) {
    line("");
    if (!figures.title.empty()) line("  " + oneLine(figures.title, 60), bold);
    for (const Figure& figure : figures.items) print(figure);
    if (!figures.total) return;
    if (!figures.items.empty()) line("  " + std::string(labelColumns + amountColumns, '-'), faint);
    print(*figures.total);
  }

  void print(const EmptyHint& hint) { paragraph(hint.text, faint, indent); }

  const Navigator& navigator_;
  const Shown& shown_;
  bool colour_;
  PrintedScreen out_;
};

}  // namespace

PrintedScreen printScreen(const Navigator& navigator, const Shown& shown, bool colour) {
  return ViewPrinter(navigator, shown, colour).print();
}

std::string printHelp(const View& view) {
  if (!view.help) return "There is nothing more to say about this screen.\n";
  std::string text = oneLine(view.help->title, width) + "\n";
  for (const std::string& part : wrapped(view.help->text, width)) text += part + "\n";
  return text;
}

}  // namespace backbeat
