// What a screen says of itself, as data: a title and blocks in reading order. The page draws it, the console prints it,
// the random player presses it. A view knows no toolkit, no colour and no layout; every text in it is finished.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace backbeat {

/// Plain meaning instead of a colour.
enum class Tone { plain, good, bad, warning, locked };

/// What a press costs. The navigator works out whether the player can pay it; a button that is too dear looks so, and
/// still answers a press with the rule's own refusal.
struct Price {
  int64_t energy = 0;
  double dollars = 0;
  friend bool operator==(const Price&, const Price&) = default;
};

/// A picture by kind and name; the artwork is generated from the name alone, so it is the same wherever it appears.
struct Picture {
  enum class Kind {
    none,
    cover,   ///< a record sleeve
    person,  ///< a portrait
    icon,    ///< a glyph on a coloured tile; `name` is one of `icons`
    photo,   ///< the player's own picture; `name` is a data: address
  };
  Kind kind = Kind::none;
  std::string name;
};

inline Picture cover(std::string name) { return {Picture::Kind::cover, std::move(name)}; }
inline Picture person(std::string name) { return {Picture::Kind::person, std::move(name)}; }
inline Picture icon(std::string name) { return {Picture::Kind::icon, std::move(name)}; }

/// A link behind a heading ("See all").
struct Link {
  std::string id;
  std::string label;
};

/// A section title.
struct Heading {
  std::string text;
  std::optional<Link> link;
};

/// A paragraph.
struct Text {
  std::string text;
  Tone tone = Tone::plain;
  enum class Style { body, caption, lead } style = Style::body;
};

/// A figure on a small card, two or three side by side. Pressable when it has an id.
struct Tile {
  std::string icon;
  std::string label;
  std::string value;
  std::string note;
  Tone tone = Tone::plain;
  std::string id;
};
struct Tiles {
  std::vector<Tile> items;
};

/// One bar from empty to full; `share` is 0 to 1.
struct Meter {
  std::string label;
  std::string value;
  double share = 0;
  Tone tone = Tone::plain;
};

/// A further action on a row or post, offered behind a menu.
struct RowAction {
  std::string id;
  std::string label;
  Tone tone = Tone::plain;
};

/// One line of a grouped list. Pressable when it has an id.
struct Row {
  Picture picture;
  std::string title;
  std::string subtitle;
  std::string value;  ///< at the right, prominent
  std::string note;   ///< under the value
  Tone tone = Tone::plain;
  std::string badge;
  std::optional<Price> price;
  std::optional<double> share;  ///< a thin bar under the texts, 0 to 1
  bool selected = false;        ///< carries a check mark
  bool opens = false;           ///< leads to another screen
  std::string id;
  std::vector<RowAction> actions;
};
/// A row with a drawn picture that leads to another screen.
inline Row wayTo(std::string id, std::string glyph, std::string title, std::string subtitle = {}) {
  Row row;
  row.id = std::move(id);
  row.picture = icon(std::move(glyph));
  row.title = std::move(title);
  row.subtitle = std::move(subtitle);
  row.opens = true;
  return row;
}

/// A grouped list. A long list is windowed: `items` are the rows from `from` of `total` in all, and a press of `id`
/// with a row number as value moves the window there. A list with `total` 0 is whole.
struct Rows {
  std::vector<Row> items;
  std::string id = {};
  int64_t total = 0;
  int64_t from = 0;
  std::vector<std::string> columns = {};  ///< heads of note and value, which then stand side by side
};

/// A table with column heads; cells are finished texts.
struct Table {
  std::vector<std::string> columns;
  std::vector<std::vector<std::string>> rows;
};

/// Pictures to choose one from.
struct PictureChoice {
  Picture picture;
  std::string label;
  bool selected = false;
  std::string id;
};
struct PictureGrid {
  std::vector<PictureChoice> items;
};

struct Button {
  std::string id;
  std::string label;
  std::optional<Price> price;
  enum class Style { primary, secondary, destructive } style = Style::secondary;
  Tone tone = Tone::plain;
  bool pulse = false;  ///< asks for attention until the first press
};

/// A text to type. Its press carries the whole text. `suggest`, when set, is the id of a dice that fills the field.
struct TextField {
  std::string id;
  std::string label;
  std::string value;
  std::string placeholder;
  int64_t maxLength = 0;  ///< greatest number of characters; 0 for no limit
  bool multiline = false;
  std::string suggest;
};

/// One of several; a press carries the number of the option, from 0.
struct Option {
  std::string label;
  std::string note;
  Tone tone = Tone::plain;
  std::optional<Price> price;
};
struct Choice {
  std::string id;
  std::string label;
  std::vector<Option> options;
  int64_t selected = 0;
  enum class Style { segments, list } style = Style::list;
};

/// On or off; a press carries "1" or "0".
struct Toggle {
  std::string id;
  std::string label;
  bool on = false;
  std::string note;
};

/// A big figure over a line or bars; `labels` name the points, and may be fewer or empty.
struct Chart {
  std::string title;
  std::string value;
  std::string note;
  Tone tone = Tone::plain;
  enum class Style { line, bars } style = Style::line;
  std::vector<double> points;
  std::vector<std::string> labels;
  std::string id;  ///< where a press leads, when anywhere
};

/// One message of the social feed.
struct Post {
  Picture picture;
  std::string name;
  std::string handle;
  std::string age;
  std::string message;
  std::string pinned;  ///< what marks a pinned post, or ""; its leading blanks make room for a pin
  std::string comments;
  std::string reChirps;
  std::string likes;
  std::vector<RowAction> actions;
};

/// A card that asks for attention: a picture, a text and its own buttons.
struct Card {
  Picture picture;
  std::string title;
  std::string text;
  std::string badge;
  Tone tone = Tone::plain;
  std::vector<Button> buttons;
};

/// The head of a detail screen: a large picture beside a title and a few lines.
struct Cover {
  Picture picture;
  std::string title;
  std::string text;
  std::string badge;
  std::string hook;  ///< what a few seconds of this song follow from, for whoever can make them heard; "" for no song
};

/// A figure that counts up to `value`; `amount` is the same figure as a number.
struct Figure {
  std::string label;
  std::string value;
  double amount = 0;
  bool dollars = false;
  Tone tone = Tone::plain;
  std::string note;
};
/// Figures told together: one large, or a column of amounts that ends in a total.
struct Figures {
  std::string title;
  std::vector<Figure> items;
  std::optional<Figure> total;
  enum class Style { large, ledger } style = Style::ledger;
};

/// What stands where a list would: one line that says what to do.
struct EmptyHint {
  std::string icon;
  std::string text;
};

using Block = std::variant<Heading, Text, Tiles, Meter, Rows, Table, PictureGrid, Button, TextField, Choice, Toggle,
                           Chart, Post, Card, Cover, Figures, EmptyHint>;

/// The face of an in-game app.
enum class Theme { plain, chart, chirp, report, bank };

struct Help {
  std::string title;
  std::string text;
};

/// A whole screen.
struct View {
  std::string title;
  std::string subtitle;
  Picture picture;  ///< portrait beside the title
  Theme theme = Theme::plain;
  std::vector<Block> blocks;
  std::optional<Button> mainAction;  ///< pinned under the thumb
  std::optional<Help> help;          ///< behind the information button

  template <class B>
  View& add(B block) {
    blocks.emplace_back(std::move(block));
    return *this;
  }
};

}  // namespace backbeat
