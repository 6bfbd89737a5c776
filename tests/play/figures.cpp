#include "play/figures.h"

#include <map>
#include <utility>
#include <variant>

#include "core/money.h"

namespace backbeat {

namespace {

/// Takes a view apart; each `read` is one kind of block.
class Reader {
 public:
  Standings read(const View& view) {
    stands("title", view.title);
    stands("subtitle", view.subtitle);
    stands("portrait", "", view.pictureId);
    for (const Block& block : view.blocks) std::visit([this](const auto& b) { read(b); }, block);
    for (const Total& total : view.totals) {
      stands(total.label, total.value);
      share(total.label, total.share);
    }
    if (view.mainAction) read(*view.mainAction);
    if (view.aside) read(*view.aside);
    return numbered(std::move(standings_));
  }

 private:
  void stands(std::string where, std::string says, std::string press = {}) {
    if (says.empty() && press.empty()) return;
    standings_.push_back({std::move(where), std::move(says), std::move(press)});
  }
  void price(const std::string& where, const std::optional<Price>& price) {
    if (price) stands(where + ": price", priceText(*price));
  }
  void share(const std::string& where, const std::optional<double>& share) {
    if (share) stands(where + ": share", shareText(*share));
  }

  void read(const Heading& heading) {
    stands("heading", heading.text);
    if (heading.link) stands(heading.link->label, "", heading.link->id);
  }
  void read(const Text& text) { stands("text", text.text); }
  void read(const Tiles& tiles) {
    for (const Tile& tile : tiles.items) {
      stands(tile.label, tile.value, tile.id);
      stands(tile.label + ": note", tile.note);
      price(tile.label, tile.price);
    }
  }
  void read(const Meter& meter) {
    stands(meter.label, meter.value);
    share(meter.label, meter.share);
  }
  void read(const Rows& rows) {
    for (const Row& row : rows.items) {
      stands(row.title, row.value, row.opens ? row.id : "");
      stands(row.title + ": subtitle", row.subtitle);
      stands(row.title + ": note", row.note);
      stands(row.title + ": badge", row.badge);
      price(row.title, row.price);
      share(row.title, row.share);
      stands(row.title + ": points", pointsText(row.points));
    }
  }
  void read(const Table& table) {
    for (const std::vector<std::string>& row : table.rows) {
      for (size_t i = 1; i < row.size(); ++i) stands(row[0] + ": " + table.columns[i], row[i]);
    }
  }
  void read(const PictureGrid& grid) {
    for (const PictureChoice& choice : grid.items) stands("picture", choice.label);
  }
  void read(const Button& button) {
    stands("button", button.label);
    price(button.label, button.price);
  }
  void read(const TextField& field) {
    stands(field.label, field.value);
    stands(field.label + ": placeholder", field.placeholder);
  }
  void read(const Choice& choice) {
    for (const Option& option : choice.options) {
      stands(choice.label, option.label);
      const std::string where = choice.label + ": " + option.label;
      stands(where + ": note", option.note);
      stands(where + ": value", option.value);
      for (const Fact& fact : option.facts) stands(where + ": " + fact.label, fact.value);
      price(where, option.price);
    }
  }
  void read(const Toggle& toggle) { stands(toggle.label + ": note", toggle.note); }
  void read(const Chart& chart) {
    stands(chart.title, chart.value, chart.id);
    stands(chart.title + ": note", chart.note);
    stands(chart.title + ": points", pointsText(chart.points));
  }
  void read(const Post& post) {
    stands(post.name + ": age", post.age);
    stands(post.name + ": message", post.message);
    stands(post.name + ": comments", post.comments);
    stands(post.name + ": reChirps", post.reChirps);
    stands(post.name + ": likes", post.likes);
  }
  void read(const Card& card) {
    stands("card", card.title);
    stands("card: text", card.text);
    stands("card: badge", card.badge);
    stands("card: value", card.value);
    stands("card: note", card.note);
    for (const Meter& meter : card.meters) read(meter);
    for (const Button& button : card.buttons) price("card", button.price);
  }
  void read(const Cover& cover) {
    stands("cover", cover.title);
    stands("cover: text", cover.text);
    stands("cover: badge", cover.badge);
  }
  void read(const Figure& figure) {
    stands(figure.label, figure.value);
    stands(figure.label + ": note", figure.note);
    // The page counts up to the amount and then shows the value.
    const auto amount = static_cast<int64_t>(figure.amount);
    if (figure.dollars ? figure.value != currency(figure.amount)
                       : figure.value.find(withCommas(amount)) == std::string::npos) {
      stands(figure.label + ": counts up to another figure", withDecimals(figure.amount, 2));
    }
  }
  void read(const Figures& figures) {
    stands("figures", figures.title);
    for (const Figure& figure : figures.items) read(figure);
    if (figures.total) read(*figures.total);
  }
  void read(const EmptyHint& hint) { stands("hint", hint.text); }
  void read(const PhotoField&) {}
  void read(const Slider& slider) {
    stands(slider.label, slider.value);
    stands(slider.label + ": note", slider.note);
    stands(slider.label + ": low", slider.low);
    stands(slider.label + ": high", slider.high);
  }
  void read(const Stepper& stepper) {
    stands(stepper.label, stepper.value);
    stands(stepper.label + ": note", stepper.note);
  }
  void read(const std::vector<Fact>& facts) {
    for (const Fact& fact : facts) stands(fact.label.empty() ? fact.icon : fact.label, fact.value);
  }
  void read(const Poster& poster) {
    stands("poster", poster.title);
    stands("poster: kicker", poster.kicker);
    stands("poster: text", poster.text);
    stands("poster: figure", poster.figure);
    stands("poster: badge", poster.stamp);
    read(poster.facts);
    if (poster.meter) read(*poster.meter);
  }
  void read(const Bill& bill) {
    stands("bill", bill.title);
    stands("bill: kicker", bill.kicker);
    stands("bill: text", bill.text);
    for (const Bill::Act& act : bill.acts) stands("act", act.name);
    read(bill.facts);
  }
  void read(const Obituary& page) {
    stands("page", page.title);
    stands("page: kicker", page.kicker);
    stands("page: text", page.text);
    read(page.facts);
  }
  void read(const Story& story) {
    stands("story", story.title);
    stands("story: kicker", story.kicker);
    stands("story: figure", story.figure);
    stands("story: text", story.text);
    read(story.facts);
  }
  void read(const Gauges& gauges) {
    stands("gauges", gauges.title);
    stands("gauges: note", gauges.note);
    for (const Gauge& gauge : gauges.items) {
      stands(gauge.label, gauge.value, gauge.id);
      stands(gauge.label + ": note", gauge.note);
      share(gauge.label, gauge.share);
    }
  }
  void read(const Deck& deck) {
    stands("deck", deck.title);
    stands("deck: aside", deck.aside);
    stands("deck: text", deck.text);
    stands("deck: note", deck.note);
    read(deck.facts);
    for (const Deck::Corner& corner : deck.corners) stands(corner.label, corner.value);
    for (const Deck::Choice& choice : deck.choices) price(choice.label, choice.price);
  }
  void read(const Tree& tree) {
    for (const Tree::Person& one : tree.people) stands(one.title, one.subtitle, one.id);
  }

  Standings standings_;
};

}  // namespace

const FiguresOf*& FiguresOf::first() {
  static const FiguresOf* figures = nullptr;
  return figures;
}

Standings standingsOn(const View& view) { return Reader().read(view); }

Standings numbered(Standings standings) {
  std::map<std::string, int64_t> times;
  for (Standing& standing : standings) {
    if (const int64_t time = ++times[standing.where]; time > 1) standing.where += " (" + std::to_string(time) + ")";
  }
  return standings;
}

std::string priceText(const Price& price) {
  if (price.dollars == 0) return std::to_string(price.energy) + " energy";
  if (price.energy == 0) return currency(price.dollars);
  return std::to_string(price.energy) + " energy " + currency(price.dollars);
}

std::string shareText(double share) { return withDecimals(share, 4); }

std::string pointsText(const std::vector<double>& points) {
  std::string text;
  for (const double point : points) text += (text.empty() ? "" : " ") + withDecimals(point, 2);
  return text;
}

Standings operator+(Standings a, const Standings& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

}  // namespace backbeat
