#include "shell/shown_json.h"

#include "core/json.h"
#include "core/money.h"

namespace backbeat {

namespace {

const char* nameOf(Tone tone) {
  switch (tone) {
    case Tone::plain: return "plain";
    case Tone::good: return "good";
    case Tone::bad: return "bad";
    case Tone::warning: return "warning";
    case Tone::fair: return "fair";
    case Tone::locked: return "locked";
  }
  return "plain";
}

const char* nameOf(Feedback feedback) {
  switch (feedback) {
    case Feedback::none: return "none";
    case Feedback::energyBounce: return "energyBounce";
    case Feedback::success: return "success";
    case Feedback::warning: return "warning";
  }
  return "none";
}

const char* nameOf(Request::Kind kind) {
  switch (kind) {
    case Request::Kind::none: return "";
    case Request::Kind::exportCareer: return "export";
    case Request::Kind::importCareer: return "import";
    case Request::Kind::restore: return "restore";
    case Request::Kind::newYear: return "newYear";
  }
  return "";
}

const char* nameOf(Theme theme) {
  switch (theme) {
    case Theme::plain: return "plain";
    case Theme::chart: return "chart";
    case Theme::chirp: return "chirp";
    case Theme::report: return "report";
    case Theme::bank: return "bank";
    case Theme::live: return "live";
    case Theme::merch: return "merch";
    case Theme::video: return "video";
    case Theme::label: return "label";
    case Theme::gala: return "gala";
    case Theme::love: return "love";
    case Theme::family: return "family";
    case Theme::estate: return "estate";
  }
  return "plain";
}

const char* nameOf(Picture::Kind kind) {
  switch (kind) {
    case Picture::Kind::none: return "none";
    case Picture::Kind::cover: return "cover";
    case Picture::Kind::person: return "person";
    case Picture::Kind::icon: return "icon";
    case Picture::Kind::photo: return "photo";
    case Picture::Kind::object: return "object";
    case Picture::Kind::scene: return "scene";
    case Picture::Kind::still: return "still";
    case Picture::Kind::mark: return "mark";
  }
  return "none";
}

const char* nameOf(Button::Style style) {
  switch (style) {
    case Button::Style::primary: return "primary";
    case Button::Style::secondary: return "secondary";
    case Button::Style::destructive: return "destructive";
  }
  return "secondary";
}

const char* nameOf(AlertButton::Style style) {
  switch (style) {
    case AlertButton::Style::normal: return "normal";
    case AlertButton::Style::cancel: return "cancel";
    case AlertButton::Style::destructive: return "destructive";
  }
  return "normal";
}

const char* nameOf(Text::Style style) {
  switch (style) {
    case Text::Style::body: return "body";
    case Text::Style::caption: return "caption";
    case Text::Style::lead: return "lead";
  }
  return "body";
}

/// Writes one description; each `write` is one kind of thing that a view is made of.
class ViewWriter {
 public:
  explicit ViewWriter(const Navigator& navigator) : navigator_(navigator) {}

  JsonWriter& json() { return json_; }

  void member(std::string_view name, std::string_view text) {
    if (!text.empty()) json_.key(name).text(text);
  }
  void member(std::string_view name, bool flag) {
    if (flag) json_.key(name).flag(true);
  }
  void member(std::string_view name, Tone tone) {
    if (tone != Tone::plain) json_.key(name).text(nameOf(tone));
  }
  void member(std::string_view name, const Picture& picture) {
    if (picture.kind == Picture::Kind::none) return;
    json_.key(name).beginObject();
    json_.key("kind").text(nameOf(picture.kind));
    json_.key("name").text(picture.name);
    json_.endObject();
  }
  void member(std::string_view name, const std::optional<Price>& price) {
    if (!price || (price->energy == 0 && price->dollars == 0)) return;
    json_.key(name).beginObject();
    if (price->energy != 0) json_.key("energy").number(price->energy);
    if (price->dollars != 0) json_.key("dollars").text(currency(price->dollars));
    json_.key("affordable").flag(navigator_.affordable(*price));
    json_.endObject();
  }
  template <class Item>
  void list(std::string_view name, const std::vector<Item>& items) {
    if (items.empty()) return;
    json_.key(name).beginArray();
    for (const Item& item : items) object(item);
    json_.endArray();
  }
  template <class Item>
  void object(const Item& item) {
    json_.beginObject();
    write(item);
    json_.endObject();
  }
  template <class BlockType>
  void block(const char* kind, const BlockType& item) {
    json_.beginObject();
    json_.key("kind").text(kind);
    write(item);
    json_.endObject();
  }

  void write(const Link& link) {
    member("id", link.id);
    member("label", link.label);
  }
  void write(const Heading& heading) {
    member("text", heading.text);
    if (heading.link) {
      json_.key("link");
      object(*heading.link);
    }
  }
  void write(const Text& text) {
    member("text", text.text);
    member("tone", text.tone);
    json_.key("style").text(nameOf(text.style));
  }
  void write(const Tile& tile) {
    member("icon", tile.icon);
    member("label", tile.label);
    member("value", tile.value);
    member("note", tile.note);
    member("tone", tile.tone);
    member("id", tile.id);
  }
  void write(const Tiles& tiles) { list("items", tiles.items); }
  void write(const Meter& meter) {
    member("label", meter.label);
    member("value", meter.value);
    json_.key("share").number(meter.share);
    member("tone", meter.tone);
  }
  void write(const RowAction& action) {
    member("id", action.id);
    member("label", action.label);
    member("tone", action.tone);
  }
  void write(const Row& row) {
    member("picture", row.picture);
    json_.key("title").text(row.title);
    member("subtitle", row.subtitle);
    member("value", row.value);
    member("note", row.note);
    member("tone", row.tone);
    member("badge", row.badge);
    member("price", row.price);
    if (row.share) json_.key("share").number(*row.share);
    member("selected", row.selected);
    member("opens", row.opens);
    member("id", row.id);
    list("actions", row.actions);
  }
  void write(const Rows& rows) {
    list("items", rows.items);
    member("id", rows.id);
    if (rows.total > 0) {
      json_.key("total").number(rows.total);
      json_.key("from").number(rows.from);
    }
    texts("columns", rows.columns);
  }
  void write(const Table& table) {
    texts("columns", table.columns);
    json_.key("rows").beginArray();
    for (const auto& row : table.rows) {
      json_.beginArray();
      for (const std::string& cell : row) json_.text(cell);
      json_.endArray();
    }
    json_.endArray();
  }
  void write(const PictureChoice& choice) {
    member("picture", choice.picture);
    member("label", choice.label);
    member("selected", choice.selected);
    member("id", choice.id);
  }
  void write(const PictureGrid& grid) { list("items", grid.items); }
  void write(const Button& button) {
    member("id", button.id);
    member("label", button.label);
    member("price", button.price);
    json_.key("style").text(nameOf(button.style));
    member("tone", button.tone);
    member("pulse", button.pulse);
  }
  void write(const TextField& field) {
    member("id", field.id);
    member("label", field.label);
    json_.key("value").text(field.value);
    member("placeholder", field.placeholder);
    if (field.maxLength > 0) json_.key("maxLength").number(field.maxLength);
    member("multiline", field.multiline);
    member("suggest", field.suggest);
  }
  void write(const Option& option) {
    json_.key("label").text(option.label);
    member("note", option.note);
    member("tone", option.tone);
    member("price", option.price);
  }
  void write(const Choice& choice) {
    member("id", choice.id);
    member("label", choice.label);
    json_.key("selected").number(choice.selected);
    json_.key("style").text(choice.style == Choice::Style::segments ? "segments" : "list");
    list("options", choice.options);
  }
  void write(const Toggle& toggle) {
    member("id", toggle.id);
    member("label", toggle.label);
    member("on", toggle.on);
    member("note", toggle.note);
  }
  void write(const Chart& chart) {
    member("title", chart.title);
    member("value", chart.value);
    member("note", chart.note);
    member("tone", chart.tone);
    json_.key("style").text(chart.style == Chart::Style::bars ? "bars" : "line");
    json_.key("points").beginArray();
    for (const double point : chart.points) json_.number(point);
    json_.endArray();
    texts("labels", chart.labels);
    member("id", chart.id);
  }
  void write(const Post& post) {
    member("picture", post.picture);
    member("name", post.name);
    member("handle", post.handle);
    member("age", post.age);
    json_.key("message").text(post.message);
    member("pinned", post.pinned);
    member("comments", post.comments);
    member("reChirps", post.reChirps);
    member("likes", post.likes);
    list("actions", post.actions);
  }
  void write(const Card& card) {
    member("picture", card.picture);
    member("title", card.title);
    member("text", card.text);
    member("badge", card.badge);
    member("tone", card.tone);
    list("buttons", card.buttons);
  }
  void write(const Cover& cover) {
    member("picture", cover.picture);
    member("title", cover.title);
    member("text", cover.text);
    member("badge", cover.badge);
    member("hook", cover.hook);
  }
  void write(const Figure& figure) {
    member("label", figure.label);
    json_.key("value").text(figure.value);
    json_.key("amount").number(figure.amount);
    member("dollars", figure.dollars);
    member("tone", figure.tone);
    member("note", figure.note);
  }
  void write(const Figures& figures) {
    member("title", figures.title);
    json_.key("style").text(figures.style == Figures::Style::large ? "large" : "ledger");
    list("items", figures.items);
    if (figures.total) {
      json_.key("total");
      object(*figures.total);
    }
  }
  void write(const EmptyHint& hint) {
    member("icon", hint.icon);
    member("text", hint.text);
  }

  void write(const Block& any) {
    struct {
      ViewWriter& self;
      void operator()(const Heading& b) { self.block("heading", b); }
      void operator()(const Text& b) { self.block("text", b); }
      void operator()(const Tiles& b) { self.block("tiles", b); }
      void operator()(const Meter& b) { self.block("meter", b); }
      void operator()(const Rows& b) { self.block("rows", b); }
      void operator()(const Table& b) { self.block("table", b); }
      void operator()(const PictureGrid& b) { self.block("pictures", b); }
      void operator()(const Button& b) { self.block("button", b); }
      void operator()(const TextField& b) { self.block("field", b); }
      void operator()(const Choice& b) { self.block("choice", b); }
      void operator()(const Toggle& b) { self.block("toggle", b); }
      void operator()(const Chart& b) { self.block("chart", b); }
      void operator()(const Post& b) { self.block("post", b); }
      void operator()(const Card& b) { self.block("card", b); }
      void operator()(const Cover& b) { self.block("cover", b); }
      void operator()(const Figures& b) { self.block("figures", b); }
      void operator()(const EmptyHint& b) { self.block("empty", b); }
    } kinds{*this};
    std::visit(kinds, any);
  }

  void view(const Shown& shown) {
    const View& view = shown.view;
    json_.key("view").beginObject();
    member("screen", shown.screen);
    json_.key("key").number(shown.key);
    json_.key("title").text(view.title);
    member("subtitle", view.subtitle);
    json_.key("theme").text(nameOf(view.theme));
    member("picture", view.picture);
    if (view.help) {
      json_.key("help").beginObject();
      json_.key("title").text(view.help->title);
      json_.key("text").text(view.help->text);
      json_.endObject();
    }
    if (view.mainAction) {
      json_.key("mainAction");
      object(*view.mainAction);
    }
    json_.key("blocks").beginArray();
    for (const Block& block : view.blocks) write(block);
    json_.endArray();
    json_.endObject();
  }

  void header(const Header& header) {
    json_.key("header").beginObject();
    json_.key("cash").text(header.cash);
    json_.key("cashTone").text(nameOf(header.cashTone));
    json_.key("energy").text(header.energy);
    json_.key("energyShare").number(header.energyShare);
    json_.key("date").text(header.date);
    json_.endObject();
  }

  void tabBar(const Shown& shown) {
    json_.key("tabs").beginArray();
    for (size_t i = 0; i < tabCount; ++i) {
      json_.beginObject();
      json_.key("label").text(tabs()[i].label);
      json_.key("icon").text(tabs()[i].icon);
      json_.key("badge").text(shown.badges[i]);
      json_.endObject();
    }
    json_.endArray();
    json_.key("tab").number(static_cast<int64_t>(shown.tab));
  }

  void alert(const std::optional<Shown::ShownAlert>& shown) {
    json_.key("alert");
    if (!shown) {
      json_.null();
      return;
    }
    json_.beginObject();
    json_.key("key").number(shown->key);
    json_.key("title").text(shown->alert.title);
    json_.key("message").text(shown->alert.message);
    json_.key("buttons").beginArray();
    for (const AlertButton& button : shown->alert.buttons) {
      json_.beginObject();
      json_.key("label").text(button.label);
      json_.key("style").text(nameOf(button.style));
      json_.endObject();
    }
    json_.endArray();
    json_.endObject();
  }

 private:
  void texts(std::string_view name, const std::vector<std::string>& items) {
    if (items.empty()) return;
    json_.key(name).beginArray();
    for (const std::string& item : items) json_.text(item);
    json_.endArray();
  }

  const Navigator& navigator_;
  JsonWriter json_;
};

}  // namespace

std::string shownAsJson(const Navigator& navigator, const Shown& shown) {
  ViewWriter writer(navigator);
  JsonWriter& json = writer.json();
  json.beginObject();
  writer.header(shown.header);
  writer.tabBar(shown);
  json.key("stack").beginArray();
  for (const int64_t key : shown.stack) json.number(key);
  json.endArray();
  json.key("modal").flag(shown.modal);
  json.key("endWeek").flag(shown.endWeek);
  json.key("appearance").text(shown.appearance);
  json.key("feedback").text(nameOf(shown.feedback));
  writer.alert(shown.alert);
  json.key("notice").text(shown.notice);
  json.key("request").text(nameOf(shown.request.kind));
  if (!shown.request.snapshot.empty()) json.key("snapshot").text(shown.request.snapshot);
  writer.view(shown);
  json.endObject();
  return json.str();
}

}  // namespace backbeat
