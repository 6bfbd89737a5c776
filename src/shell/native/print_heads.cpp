#include "shell/native/print_blocks.h"
#include "shell/native/terminal_text.h"

namespace backbeat {

namespace {

/// What every head begins with: a small line, the title, and what stands beside it.
void printTitle(PrintedPage& page, const std::string& kicker, const std::string& title, const std::string& beside) {
  page.line("");
  if (!kicker.empty()) page.put(page.inked().add(oneLine(kicker, page.width() - 2), faint));
  const Inked right = page.inked(0).add(oneLine(beside, 30), bold);
  if (!title.empty()) {
    page.put(page.inked().add(oneLine(title, page.width() - 2), bold), right, 0);
  } else if (!beside.empty()) {
    page.put(page.inked().add(right));
  }
}

const char* arrowOf(Deck::Choice::Side side) {
  switch (side) {
    case Deck::Choice::Side::left: return "← ";
    case Deck::Choice::Side::up: return "↑ ";
    case Deck::Choice::Side::right: return "→ ";
  }
  return "";
}

std::string joined(const std::vector<std::string>& parts) {
  std::string all;
  for (const std::string& part : parts) all += (all.empty() ? "" : " · ") + oneLine(part, 60);
  return all;
}

}  // namespace

void print(PrintedPage& page, const Poster& poster) {
  std::string beside = poster.figure;
  if (!poster.stamp.empty()) beside += (beside.empty() ? "(" : " (") + poster.stamp + ")";
  printTitle(page, poster.kicker, poster.title, beside);
  page.paragraph(poster.text, "", 4);
  page.facts(poster.facts);
  if (poster.meter) print(page, *poster.meter);
}

void print(PrintedPage& page, const Bill& bill) {
  printTitle(page, bill.kicker, bill.title, "");
  page.paragraph(bill.text, faint, 4);
  for (int64_t rank = 1; rank <= 4; ++rank) {
    std::vector<std::string> names;
    for (const Bill::Act& act : bill.acts) {
      if (act.rank == rank) names.push_back(act.own ? "» " + act.name + " «" : act.name);
    }
    page.paragraph(joined(names), rank == 1 ? bold : "", 4);
  }
  page.facts(bill.facts);
}

void print(PrintedPage& page, const Obituary& obituary) {
  printTitle(page, obituary.kicker, obituary.title, "");
  page.paragraph(obituary.text, "", 4);
  page.facts(obituary.facts);
}

void print(PrintedPage& page, const Story& story) {
  printTitle(page, story.kicker, story.title, story.figure);
  page.paragraph(story.text, "", 4);
  page.facts(story.facts);
}

void print(PrintedPage& page, const Deck& deck) {
  printTitle(page, "", deck.title, deck.aside);
  std::vector<Fact> corners;
  for (const Deck::Corner& corner : deck.corners) corners.push_back({"", corner.label, corner.value, corner.tone});
  page.facts(corners);
  page.paragraph(deck.text, "", 4);
  page.facts(deck.facts);
  page.paragraph(joined(deck.tags), faint, 4);
  for (const Deck::Choice& choice : deck.choices) {
    const std::string number = page.numberOf(choice.id, choice.label);
    page.put(page.inked().add(number).add(arrowOf(choice.side)).add(oneLine(choice.label, 50)),
             page.price(choice.price), 0);
  }
  page.paragraph(deck.note, faint, 4);
}

}  // namespace backbeat
