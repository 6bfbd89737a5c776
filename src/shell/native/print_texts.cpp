#include "core/text.h"
#include "shell/native/print_blocks.h"
#include "shell/native/terminal_text.h"

namespace backbeat {

void print(PrintedPage& page, const Block& block) {
  std::visit([&](const auto& content) { print(page, content); }, block);
}

void printActions(PrintedPage& page, const std::vector<RowAction>& actions) {
  constexpr size_t margin = 6;
  Inked line = page.inked(margin);
  for (const RowAction& action : actions) {
    const std::string number = page.numberOf(action.id, action.label);
    const std::string label = oneLine(action.label, 40 - margin) + lockOf(action.tone);
    if (line.columns() + 2 + columnsOf(number) + columnsOf(label) > page.width()) {
      page.put(line);
      line = page.inked(margin);
    }
    line.add(line.columns() > margin ? "  " : "").add(number).add(label, colourOf(action.tone));
  }
  if (!actions.empty()) page.put(line);
}

void print(PrintedPage& page, const Heading& heading) {
  page.line("");
  Inked link = page.inked(0);
  if (heading.link)
    link.add(page.numberOf(heading.link->id, heading.link->label)).add(oneLine(heading.link->label, 30));
  page.put(page.inked(0).add(oneLine(heading.text, page.width()), bold), link, 0);
}

void print(PrintedPage& page, const Text& text) { page.paragraph(text.text, colourOf(text.tone)); }

void print(PrintedPage& page, const Post& post) {
  if (!post.pinned.empty()) page.line("  📌 " + trimmed(oneLine(post.pinned, 40)), faint);
  std::string head = oneLine(post.name, 30);
  if (!post.handle.empty()) head += " " + oneLine(post.handle, 24);
  if (!post.age.empty()) head += " · " + oneLine(post.age, 16);
  page.put(page.inked().add(head, bold));
  page.paragraph(post.message, "", 4);
  std::string counts;
  const auto count = [&](const char* sign, const std::string& value) {
    if (!value.empty()) counts += (counts.empty() ? "" : "  ") + std::string(sign) + " " + oneLine(value, 16);
  };
  count("💬", post.comments);
  count("🔁", post.reChirps);
  count("♥", post.likes);
  if (!counts.empty()) page.put(page.inked(4).add(counts, faint));
  printActions(page, post.actions);
}

void print(PrintedPage& page, const Card& card) {
  page.line("");
  const char* tone = colourOf(card.tone);
  Inked head = page.inked().add(oneLine(card.title, 56), *tone == '\0' ? bold : tone);
  if (!card.badge.empty()) head.add(" (" + oneLine(card.badge, 16) + ")");
  page.put(head, page.inked(0).add(oneLine(card.value, 24), bold), 0);
  page.paragraph(card.text, "", 4);
  for (const Meter& meter : card.meters) print(page, meter);
  for (const Button& button : card.buttons) print(page, button);
  page.paragraph(card.note, faint, 4);
}

void print(PrintedPage& page, const Cover& cover) {
  Inked head = page.inked().add(oneLine(cover.title, 58), bold);
  if (!cover.badge.empty()) head.add(" (" + oneLine(cover.badge, 16) + ")");
  page.put(head);
  page.paragraph(cover.text, faint);
}

void print(PrintedPage& page, const EmptyHint& hint) { page.paragraph(hint.text, faint); }

}  // namespace backbeat
