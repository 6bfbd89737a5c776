#include "shell/native/view_printer.h"

#include <algorithm>
#include <utility>

#include "shell/native/print_blocks.h"
#include "shell/native/terminal_text.h"

namespace backbeat {

namespace {

void printHeader(PrintedPage& page, const Shown& shown) {
  const Header& header = shown.header;
  Inked line = page.inked(0).add(header.cash, colourOf(header.cashTone)).add(" · ⚡ " + header.energy);
  if (line.columns() + 3 + columnsOf(header.date) > page.width()) {
    page.put(std::exchange(line, page.inked(0).add(header.date)));
  } else {
    line.add(" · " + header.date);
  }
  page.put(std::move(line));
  std::string bar;
  for (size_t i = 0; i < tabCount; ++i) {
    const std::string label(tabs()[i].label);
    const std::string badge = shown.badges[i].empty() ? "" : " (" + oneLine(shown.badges[i], 8) + ")";
    bar += (i == 0 ? "" : "  ") + (i == shown.tab ? "<" + label + ">" : label) + badge;
  }
  page.paragraph(bar, faint, 0);
}

void printTitle(PrintedPage& page, const View& view) {
  page.line("");
  page.line(oneLine(view.title, page.width()), bold);
  page.paragraph(view.subtitle, faint, 0);
  if (!view.pictureId.empty()) page.line("  " + page.numberOf(view.pictureId, "Portrait") + "(your portrait)", faint);
}

/// What stands pinned at the foot.
void printFoot(PrintedPage& page, const View& view) {
  if (!view.totals.empty() || view.mainAction || view.aside) page.line("");
  for (const Total& total : view.totals) {
    Inked value = page.inked(0).add((total.energy ? "⚡ " : "") + oneLine(total.value, 30), colourOf(total.tone));
    if (total.share) value.add("  ").add(bar(*total.share, page.barColumns()), colourOf(total.tone));
    page.put(page.inked().add(oneLine(total.label, 30)), value, 34);
  }
  if (view.mainAction) print(page, *view.mainAction);
  if (view.aside) print(page, *view.aside);
}

void printAlert(PrintedPage& page, const Shown::ShownAlert& shown) {
  page.forgetPressables();
  page.line("");
  page.line("──────── " + oneLine(shown.alert.title, page.width() - 10), bold);
  std::string_view message = shown.alert.message;
  if (message.starts_with('\n')) message.remove_prefix(1);
  page.paragraph(message);
  for (size_t i = 0; i < shown.alert.buttons.size(); ++i) {
    Pressable button;
    button.screenKey = "alert";
    button.action = {std::to_string(shown.key), std::to_string(i)};
    button.label = shown.alert.buttons[i].label;
    page.line(page.number(button) + oneLine(button.label, page.width() - 8));
  }
}

}  // namespace

PrintedScreen printScreen(const Navigator& navigator, const Shown& shown, bool colour, size_t columns) {
  PrintedPage page(navigator, shown.key, colour, columns);
  page.paragraph(shown.notice, colourOf(Tone::warning), 0);
  if (!shown.modal) printHeader(page, shown);
  printTitle(page, shown.view);
  for (const Block& block : shown.view.blocks) print(page, block);
  printFoot(page, shown.view);
  if (shown.alert) printAlert(page, *shown.alert);
  return page.take();
}

std::string printHelp(const View& view, size_t columns) {
  if (!view.help) return "There is nothing more to say about this screen.\n";
  const size_t width = std::clamp(columns, narrowestPage, widestPage);
  std::string text = oneLine(view.help->title, width) + "\n";
  for (const std::string& part : wrapped(view.help->text, width)) text += part + "\n";
  return text;
}

}  // namespace backbeat
