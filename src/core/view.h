// What a screen says of itself, as data: a title and blocks in reading order. The page draws it, the console prints it,
// the random player presses it. A view knows no toolkit, no colour and no layout; every text in it is finished.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "core/price.h"

namespace backbeat {

/// Plain meaning instead of a colour.
enum class Tone {
  plain,
  good,
  bad,
  warning,
  fair,  ///< between warning and good: the third of four bands
  locked,
};

/// A picture by kind and name; the artwork is generated from the name alone, so it is the same wherever it appears.
struct Picture {
  enum class Kind {
    none,
    cover,   ///< a record sleeve
    person,  ///< a portrait
    icon,    ///< a glyph on a coloured tile; `name` is one of `icons`
    photo,   ///< the player's own picture; `name` is a data: address
    object,  ///< a thing: `name` is "form:name", as in "shirt:Tour Shirt 2031", "stadium:Harbour Bowl", "boat:Heron"
    scene,   ///< a wide view: `name` is "form:name", as in "villa:12 Cliff Road", "meadow:Ada"
    still,   ///< a frame of a music video: `name` is "style:title"
    mark,    ///< the logo of a label or an app: `name` is "form:name"
  };
  Kind kind = Kind::none;
  std::string name = {};
};

inline Picture cover(std::string name) { return {Picture::Kind::cover, std::move(name)}; }
inline Picture person(std::string name) { return {Picture::Kind::person, std::move(name)}; }
inline Picture icon(std::string name) { return {Picture::Kind::icon, std::move(name)}; }
/// A picture whose name tells its form and what it follows from.
inline Picture drawn(Picture::Kind kind, std::string_view form, std::string_view name) {
  return {kind, std::string(form) + ":" + std::string(name)};
}

/// A small fact beside a picture: a glyph or a label, and what it says.
struct Fact {
  std::string icon = {};
  std::string label = {};
  std::string value = {};
  Tone tone = Tone::plain;
};

/// A link behind a heading ("See all").
struct Link {
  std::string id = {};
  std::string label = {};
};

/// A section title.
struct Heading {
  std::string text = {};
  std::optional<Link> link = {};
};

/// A paragraph.
struct Text {
  std::string text = {};
  Tone tone = Tone::plain;
  enum class Style { body, caption, lead } style = Style::body;
};

/// A figure on a small card, two or three side by side. Pressable when it has an id; with a price it is an action.
struct Tile {
  std::string icon = {};
  std::string label = {};
  std::string value = {};
  std::string note = {};
  Tone tone = Tone::plain;
  std::string id = {};
  std::optional<Price> price = {};
};
struct Tiles {
  std::vector<Tile> items = {};
};

/// One bar from empty to full; `share` is 0 to 1. With `steps` it is that many lamps instead.
struct Meter {
  std::string label = {};
  std::string value = {};
  double share = 0;
  Tone tone = Tone::plain;
  int64_t steps = 0;
};

/// A further action on a row or post, offered behind a menu.
struct RowAction {
  std::string id = {};
  std::string label = {};
  Tone tone = Tone::plain;
};

/// One line of a grouped list. Pressable when it has an id.
struct Row {
  Picture picture = {};
  std::vector<Picture> fan = {};  ///< of a row that is about several: what looks out behind the picture, two at most
  std::string title = {};
  std::string subtitle = {};
  std::string value = {};  ///< at the right, prominent
  std::string note = {};   ///< under the value
  Tone tone = Tone::plain;
  std::string badge = {};
  std::optional<Price> price = {};
  std::optional<double> share = {};  ///< a thin bar under the texts, 0 to 1
  bool selected = false;             ///< carries a check mark
  bool opens = false;                ///< leads to another screen
  std::string id = {};
  std::vector<RowAction> actions = {};
  std::vector<double> points = {};  ///< a small line before the value
};

/// A grouped list. A long list is windowed: `items` are the rows from `from` of `total` in all, and a press of `id`
/// with a row number as value moves the window there. A list with `total` 0 is whole.
/// Styles. shelf: two columns, picture on top. strip: sideways. route: a rail of stops, `selected` is now, tone good is
/// done, the badge is a stamp. films: a wide still at the left. wire: a glyph and a text, without a card. floor: one
/// thing at a time on a lit floor, `selected` is the one that stands there, the others come by a swipe.
struct Rows {
  enum class Style { list, shelf, strip, route, films, wire, floor };
  std::vector<Row> items = {};
  std::string id = {};
  int64_t total = 0;
  int64_t from = 0;
  std::vector<std::string> columns = {};  ///< heads of note and value, which then stand side by side
  Style style = Style::list;
};

/// A table with column heads; cells are finished texts.
struct Table {
  std::vector<std::string> columns = {};
  std::vector<std::vector<std::string>> rows = {};
};

/// Pictures to choose one from.
struct PictureChoice {
  Picture picture = {};
  std::string label = {};
  bool selected = false;
  std::string id = {};
};
struct PictureGrid {
  std::vector<PictureChoice> items = {};
};

struct Button {
  std::string id = {};
  std::string label = {};
  std::optional<Price> price = {};
  enum class Style { primary, secondary, destructive } style = Style::secondary;
  Tone tone = Tone::plain;
  bool pulse = false;  ///< asks for attention until the first press
};

/// A text to type. Its press carries the whole text. `suggest`, when set, is the id of a dice that fills the field.
struct TextField {
  std::string id = {};
  std::string label = {};
  std::string value = {};
  std::string placeholder = {};
  int64_t maxLength = 0;  ///< greatest number of characters; 0 for no limit
  bool multiline = false;
  std::string suggest = {};
};

/// A picture to give. Its press carries the picture as a data: address. The field does not show one already taken: that
/// is what a cover is for.
struct PhotoField {
  std::string id = {};
  std::string label = {};
  std::string note = {};                                    ///< what may be given
  bool taken = false;                                       ///< one stands already and can be replaced
  enum class Shape { square, wide } shape = Shape::square;  ///< what is cut out of it; wide is three times its height
};

/// A value among `count` positions from low to high; a press carries the position, from 0.
struct Slider {
  std::string id = {};
  std::string label = {};
  std::string value = {};  ///< of the present position, as text
  std::string low = {};    ///< the texts at the ends
  std::string high = {};
  std::string note = {};
  int64_t at = 0;
  int64_t count = 0;
};

/// A value that goes up or down a step at a time; a press carries "1" or "-1".
struct Stepper {
  std::string id = {};
  std::string label = {};
  std::string value = {};
  std::string note = {};
  bool canLess = true;
  bool canMore = true;
};

/// One of several; a press carries the number of the option, from 0.
struct Option {
  std::string label = {};
  std::string note = {};
  Tone tone = Tone::plain;
  std::optional<Price> price = {};
  Picture picture = {};          ///< in the style `pictures`
  std::string value = {};        ///< in the style `cards`: "$189 a week"
  std::vector<Fact> facts = {};  ///< in the style `cards`
  std::string action = {};       ///< in the style `cards`: what its button says, or how the chosen one stands
};
struct Choice {
  std::string id = {};
  std::string label = {};
  std::vector<Option> options = {};
  int64_t selected = 0;
  /// cards: plans, one below the other, the chosen one framed. pictures: a strip of pictures with label and note.
  enum class Style { segments, list, cards, pictures } style = Style::list;
};

/// On or off; a press carries "1" or "0".
struct Toggle {
  std::string id = {};
  std::string label = {};
  bool on = false;
  std::string note = {};
};

/// A big figure over a line or bars; `labels` name the points, and may be fewer or empty.
struct Chart {
  std::string title = {};
  std::string value = {};
  std::string note = {};
  Tone tone = Tone::plain;
  enum class Style { line, bars } style = Style::line;
  std::vector<double> points = {};
  std::vector<std::string> labels = {};
  std::string id = {};  ///< where a press leads, when anywhere
};

/// One message of the social feed.
struct Post {
  Picture picture = {};
  std::string name = {};
  std::string handle = {};
  std::string age = {};
  std::string message = {};
  std::string pinned = {};  ///< what marks a pinned post, or ""; its leading blanks make room for a pin
  std::string comments = {};
  std::string reChirps = {};
  std::string likes = {};
  std::vector<RowAction> actions = {};
};

/// A card that asks for attention: a picture, a text and its own buttons.
struct Card {
  Picture picture = {};
  std::string title = {};
  std::string text = {};
  std::string badge = {};
  Tone tone = Tone::plain;
  std::string value = {};  ///< a big figure at the right
  std::vector<Meter> meters = {};
  std::vector<Button> buttons = {};
  std::string note = {};  ///< beside the buttons
};

/// The head of a detail screen: a large picture beside a title and a few lines.
struct Cover {
  Picture picture = {};
  std::string title = {};
  std::string text = {};
  std::string badge = {};
  std::string hook =
      {};             ///< what a few seconds of this song follow from, for whoever can make them heard; "" for no song
  Picture back = {};  ///< a wide view over which the head stands
};

/// A figure that counts up to `value`; `amount` is the same figure as a number.
struct Figure {
  std::string label = {};
  std::string value = {};
  double amount = 0;
  bool dollars = false;
  Tone tone = Tone::plain;
  std::string note = {};
};
/// Figures told together: one large, or a column of amounts that ends in a total.
struct Figures {
  std::string title = {};
  std::vector<Figure> items = {};
  std::optional<Figure> total = {};
  /// pair: two figures side by side, under a poster.
  enum class Style { large, ledger, pair } style = Style::ledger;
};

/// What stands where a list would: one line that says what to do.
struct EmptyHint {
  std::string icon = {};
  std::string text = {};
};

/// A head led by its picture: news, a place, a couple. People on it are cut out.
/// scene: a wide view with the text on it. ticket: one with its end to tear off, for what was sold. torn: the picture
/// parts in two.
struct Poster {
  std::vector<Picture> pictures = {};  ///< at most two
  std::string kicker = {};             ///< the small line above the title
  std::string title = {};
  std::string text = {};
  std::string figure = {};  ///< the one big number, "9"
  std::string stamp = {};   ///< "SOLD OUT"
  std::vector<Fact> facts = {};
  std::optional<Meter> meter = {};
  enum class Style { scene, ticket, torn } style = Style::scene;
  enum class Mood { plain, celebrate, mourn } mood = Mood::plain;
};

/// A festival's bill: acts in up to four sizes, the own one marked.
struct Bill {
  struct Act {
    std::string name = {};
    int64_t rank = 4;  ///< 1 the largest to 4
    bool own = false;
  };
  std::string kicker = {};
  std::string title = {};
  std::string text = {};
  std::vector<Act> acts = {};
  std::vector<Fact> facts = {};
};

/// A page of the family book or a newspaper, on paper: who it was, and what is to be told.
struct Obituary {
  Picture picture = {};
  std::string kicker = {};
  std::string title = {};
  std::string text = {};
  std::vector<Fact> facts = {};
};

/// A picture to keep and to share: a sky that follows from a picture, one figure, a sentence.
struct Story {
  Picture sky = {};  ///< what the colours follow from
  std::string kicker = {};
  std::string title = {};
  std::string figure = {};
  std::string text = {};
  std::vector<Fact> facts = {};
  std::string share = {};  ///< the name of the picture file; "" when it is not to be shared
};

/// One of several levels told together; pressable when it has an id.
struct Gauge {
  std::string label = {};
  std::string value = {};
  std::string note = {};
  double share = 0;   ///< 0 to 1
  int64_t steps = 0;  ///< of a stack: how many lamps it has
  Tone tone = Tone::plain;
  std::string icon = {};
  std::string id = {};
};
/// faders: a mixing desk. bars: columns of name, figure and bar. stacks: columns of lamps. split: one bar in parts,
/// with a legend.
struct Gauges {
  std::string title = {};
  std::string note = {};
  std::vector<Gauge> items = {};
  enum class Style { faders, bars, stacks, split } style = Style::bars;
};

/// One candidate on a card that can be swiped; the next is not drawn before this one is answered.
struct Deck {
  struct Corner {
    std::string icon = {};
    std::string value = {};
    std::string label = {};  ///< what the value is, for ears: "chemistry"
    Tone tone = Tone::plain;
  };
  struct Choice {
    std::string id = {};
    std::string label = {};
    std::string icon = {};
    std::optional<Price> price = {};
    enum class Side { left, up, right } side = Side::left;  ///< the way of the swipe that does the same
  };
  Picture picture = {};
  std::string title = {};
  std::string aside = {};  ///< beside the title: an age
  std::string text = {};
  std::vector<Fact> facts = {};
  std::vector<std::string> tags = {};
  std::vector<Corner> corners = {};
  std::vector<Choice> choices = {};
  std::string note = {};
};

/// Generations, top to bottom.
struct Tree {
  struct Person {
    Picture picture = {};
    std::string title = {};
    std::string subtitle = {};
    int64_t generation = 0;
    int64_t parent = -1;  ///< index of one of the people, -1 for none
    int64_t beside = -1;  ///< index of the partner, -1 for none
    enum class Standing { kin, elder, player, gone } standing = Standing::kin;
    std::string id = {};
  };
  std::vector<Person> people = {};
};

using Block = std::variant<Heading, Text, Tiles, Meter, Rows, Table, PictureGrid, Button, TextField, PhotoField, Choice,
                           Toggle, Slider, Stepper, Chart, Post, Card, Cover, Figures, EmptyHint, Poster, Bill,
                           Obituary, Story, Gauges, Deck, Tree>;

/// The face of an in-game app.
enum class Theme { plain, chart, chirp, report, bank, live, merch, video, label, gala, love, family, estate };

struct Help {
  std::string title = {};
  std::string text = {};
};

/// A figure pinned above the main button: what the press would come to. With a share it is a dial.
struct Total {
  std::string label = {};
  std::string value = {};
  Tone tone = Tone::plain;
  bool energy = false;
  std::optional<double> share = {};  ///< 0 to 1
};

/// A whole screen.
struct View {
  std::string title = {};
  std::string subtitle = {};
  Picture picture = {};        ///< portrait beside the title
  std::string pictureId = {};  ///< of a press on the portrait; "" when it leads nowhere
  Theme theme = Theme::plain;
  std::vector<Block> blocks = {};
  std::vector<Total> totals = {};         ///< pinned above the main action
  std::optional<Button> mainAction = {};  ///< pinned under the thumb
  std::optional<Button> aside = {};       ///< a second one beside it: Decline, Done
  std::optional<Help> help = {};          ///< behind the information button

  template <class B>
  View& add(B block) {
    blocks.emplace_back(std::move(block));
    return *this;
  }
};

}  // namespace backbeat
