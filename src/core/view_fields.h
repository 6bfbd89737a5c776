// The tables of the words of a screen: one beside the other, in the order of core/view.h. What stands here is what the
// page is told, under the same names.
#pragma once

#include <utility>
#include <variant>

#include "core/view.h"
#include "core/view_type.h"

namespace backbeat {

template <>
inline constexpr auto viewNames<Tone> = std::to_array<std::string_view>({"plain", "good", "bad", "warning", "fair",
                                                                         "locked"});
template <>
inline constexpr auto viewNames<Picture::Kind> =
    std::to_array<std::string_view>({"none", "cover", "person", "icon", "photo", "object", "scene", "still", "mark"});
template <>
inline constexpr auto viewNames<Text::Style> = std::to_array<std::string_view>({"body", "caption", "lead"});
template <>
inline constexpr auto viewNames<Rows::Style> = std::to_array<std::string_view>({"list", "shelf", "strip", "route",
                                                                                "films", "wire", "floor"});
template <>
inline constexpr auto viewNames<Button::Style> = std::to_array<std::string_view>({"primary", "secondary",
                                                                                  "destructive"});
template <>
inline constexpr auto viewNames<Choice::Style> = std::to_array<std::string_view>({"segments", "list", "cards",
                                                                                  "pictures"});
template <>
inline constexpr auto viewNames<PhotoField::Shape> = std::to_array<std::string_view>({"square", "wide"});
template <>
inline constexpr auto viewNames<Chart::Style> = std::to_array<std::string_view>({"line", "bars"});
template <>
inline constexpr auto viewNames<Figures::Style> = std::to_array<std::string_view>({"large", "ledger", "pair"});
template <>
inline constexpr auto viewNames<Poster::Style> = std::to_array<std::string_view>({"scene", "ticket", "torn"});
template <>
inline constexpr auto viewNames<Poster::Mood> = std::to_array<std::string_view>({"plain", "celebrate", "mourn"});
template <>
inline constexpr auto viewNames<Gauges::Style> = std::to_array<std::string_view>({"faders", "bars", "stacks", "split"});
template <>
inline constexpr auto viewNames<Deck::Choice::Side> = std::to_array<std::string_view>({"left", "up", "right"});
template <>
inline constexpr auto viewNames<Tree::Person::Standing> = std::to_array<std::string_view>({"kin", "elder", "player",
                                                                                           "gone"});
template <>
inline constexpr auto viewNames<Theme> = std::to_array<std::string_view>({"plain", "chart", "chirp", "report", "bank",
                                                                          "live", "merch", "video", "label", "gala",
                                                                          "love", "family", "estate"});

/// What a price says besides its amounts only the purse knows; whoever writes one does it by hand.
template <>
inline constexpr ViewType viewType<Price> = {.kind = ViewType::Kind::price, .size = sizeof(Price)};

template <>
inline constexpr auto viewFields<Picture> = std::to_array({viewField("kind", &Picture::kind),
                                                           viewField("name", &Picture::name)});
template <>
inline constexpr auto viewFields<Fact> = std::to_array({viewField("icon", &Fact::icon),
                                                        viewField("label", &Fact::label),
                                                        viewField("value", &Fact::value),
                                                        viewField("tone", &Fact::tone)});
template <>
inline constexpr auto viewFields<Link> = std::to_array({viewField("id", &Link::id), viewField("label", &Link::label)});
template <>
inline constexpr auto viewFields<Heading> = std::to_array({viewField("text", &Heading::text),
                                                           viewField("link", &Heading::link)});
template <>
inline constexpr auto viewFields<Text> = std::to_array({viewField("text", &Text::text), viewField("tone", &Text::tone),
                                                        viewField("style", &Text::style)});
template <>
inline constexpr auto viewFields<Tile> = std::to_array({viewField("icon", &Tile::icon),
                                                        viewField("label", &Tile::label),
                                                        viewField("value", &Tile::value),
                                                        viewField("note", &Tile::note), viewField("tone", &Tile::tone),
                                                        viewField("id", &Tile::id), viewField("price", &Tile::price)});
template <>
inline constexpr auto viewFields<Tiles> = std::to_array({viewField("items", &Tiles::items)});
template <>
inline constexpr auto viewFields<Meter> = std::to_array(
    {viewField("label", &Meter::label), viewField("value", &Meter::value), viewField("share", &Meter::share),
     viewField("tone", &Meter::tone), viewField("steps", &Meter::steps)});
template <>
inline constexpr auto viewFields<RowAction> = std::to_array({viewField("id", &RowAction::id),
                                                             viewField("label", &RowAction::label),
                                                             viewField("tone", &RowAction::tone)});
template <>
inline constexpr auto viewFields<Row> = std::to_array(
    {viewField("picture", &Row::picture), viewField("fan", &Row::fan), viewField("title", &Row::title),
     viewField("subtitle", &Row::subtitle), viewField("value", &Row::value), viewField("note", &Row::note),
     viewField("tone", &Row::tone), viewField("badge", &Row::badge), viewField("price", &Row::price),
     viewField("share", &Row::share), viewField("selected", &Row::selected), viewField("opens", &Row::opens),
     viewField("id", &Row::id), viewField("actions", &Row::actions), viewField("points", &Row::points)});
template <>
inline constexpr auto viewFields<Rows> = std::to_array(
    {viewField("items", &Rows::items), viewField("id", &Rows::id), viewField("total", &Rows::total),
     viewField("from", &Rows::from), viewField("columns", &Rows::columns), viewField("style", &Rows::style)});
template <>
inline constexpr auto viewFields<Table> = std::to_array({viewField("columns", &Table::columns),
                                                         viewField("rows", &Table::rows)});
template <>
inline constexpr auto viewFields<PictureChoice> = std::to_array({viewField("picture", &PictureChoice::picture),
                                                                 viewField("label", &PictureChoice::label),
                                                                 viewField("selected", &PictureChoice::selected),
                                                                 viewField("id", &PictureChoice::id)});
template <>
inline constexpr auto viewFields<PictureGrid> = std::to_array({viewField("items", &PictureGrid::items)});
template <>
inline constexpr auto viewFields<Button> = std::to_array(
    {viewField("id", &Button::id), viewField("label", &Button::label), viewField("price", &Button::price),
     viewField("style", &Button::style), viewField("tone", &Button::tone), viewField("pulse", &Button::pulse)});
template <>
inline constexpr auto viewFields<TextField> = std::to_array(
    {viewField("id", &TextField::id), viewField("label", &TextField::label), viewField("value", &TextField::value),
     viewField("placeholder", &TextField::placeholder), viewField("maxLength", &TextField::maxLength),
     viewField("multiline", &TextField::multiline), viewField("suggest", &TextField::suggest)});
template <>
inline constexpr auto viewFields<PhotoField> = std::to_array(
    {viewField("id", &PhotoField::id), viewField("label", &PhotoField::label), viewField("note", &PhotoField::note),
     viewField("taken", &PhotoField::taken), viewField("shape", &PhotoField::shape)});
template <>
inline constexpr auto viewFields<Slider> =
    std::to_array({viewField("id", &Slider::id), viewField("label", &Slider::label), viewField("value", &Slider::value),
                   viewField("low", &Slider::low), viewField("high", &Slider::high), viewField("note", &Slider::note),
                   viewField("at", &Slider::at), viewField("count", &Slider::count)});
template <>
inline constexpr auto viewFields<Stepper> =
    std::to_array({viewField("id", &Stepper::id), viewField("label", &Stepper::label),
                   viewField("value", &Stepper::value), viewField("note", &Stepper::note),
                   viewField("canLess", &Stepper::canLess), viewField("canMore", &Stepper::canMore)});
template <>
inline constexpr auto viewFields<Option> = std::to_array(
    {viewField("label", &Option::label), viewField("note", &Option::note), viewField("tone", &Option::tone),
     viewField("price", &Option::price), viewField("picture", &Option::picture), viewField("value", &Option::value),
     viewField("facts", &Option::facts), viewField("action", &Option::action)});
template <>
inline constexpr auto viewFields<Choice> = std::to_array(
    {viewField("id", &Choice::id), viewField("label", &Choice::label), viewField("options", &Choice::options),
     viewField("selected", &Choice::selected), viewField("style", &Choice::style)});
template <>
inline constexpr auto viewFields<Toggle> = std::to_array({viewField("id", &Toggle::id),
                                                          viewField("label", &Toggle::label),
                                                          viewField("on", &Toggle::on),
                                                          viewField("note", &Toggle::note)});
template <>
inline constexpr auto viewFields<Chart> = std::to_array(
    {viewField("title", &Chart::title), viewField("value", &Chart::value), viewField("note", &Chart::note),
     viewField("tone", &Chart::tone), viewField("style", &Chart::style), viewField("points", &Chart::points),
     viewField("labels", &Chart::labels), viewField("id", &Chart::id)});
template <>
inline constexpr auto viewFields<Post> = std::to_array(
    {viewField("picture", &Post::picture), viewField("name", &Post::name), viewField("handle", &Post::handle),
     viewField("age", &Post::age), viewField("message", &Post::message), viewField("pinned", &Post::pinned),
     viewField("comments", &Post::comments), viewField("reChirps", &Post::reChirps), viewField("likes", &Post::likes),
     viewField("actions", &Post::actions)});
template <>
inline constexpr auto viewFields<Card> = std::to_array(
    {viewField("picture", &Card::picture), viewField("title", &Card::title), viewField("text", &Card::text),
     viewField("badge", &Card::badge), viewField("tone", &Card::tone), viewField("value", &Card::value),
     viewField("meters", &Card::meters), viewField("buttons", &Card::buttons), viewField("note", &Card::note)});
template <>
inline constexpr auto viewFields<Cover> = std::to_array(
    {viewField("picture", &Cover::picture), viewField("title", &Cover::title), viewField("text", &Cover::text),
     viewField("badge", &Cover::badge), viewField("hook", &Cover::hook), viewField("back", &Cover::back)});
template <>
inline constexpr auto viewFields<Figure> = std::to_array(
    {viewField("label", &Figure::label), viewField("value", &Figure::value), viewField("amount", &Figure::amount),
     viewField("dollars", &Figure::dollars), viewField("tone", &Figure::tone), viewField("note", &Figure::note)});
template <>
inline constexpr auto viewFields<Figures> = std::to_array({viewField("title", &Figures::title),
                                                           viewField("items", &Figures::items),
                                                           viewField("total", &Figures::total),
                                                           viewField("style", &Figures::style)});
template <>
inline constexpr auto viewFields<EmptyHint> = std::to_array({viewField("icon", &EmptyHint::icon),
                                                             viewField("text", &EmptyHint::text)});
template <>
inline constexpr auto viewFields<Poster> = std::to_array(
    {viewField("pictures", &Poster::pictures), viewField("kicker", &Poster::kicker), viewField("title", &Poster::title),
     viewField("text", &Poster::text), viewField("figure", &Poster::figure), viewField("stamp", &Poster::stamp),
     viewField("facts", &Poster::facts), viewField("meter", &Poster::meter), viewField("style", &Poster::style),
     viewField("mood", &Poster::mood)});
template <>
inline constexpr auto viewFields<Bill::Act> = std::to_array({viewField("name", &Bill::Act::name),
                                                             viewField("rank", &Bill::Act::rank),
                                                             viewField("own", &Bill::Act::own)});
template <>
inline constexpr auto viewFields<Bill> = std::to_array({viewField("kicker", &Bill::kicker),
                                                        viewField("title", &Bill::title),
                                                        viewField("text", &Bill::text), viewField("acts", &Bill::acts),
                                                        viewField("facts", &Bill::facts)});
template <>
inline constexpr auto viewFields<Obituary> = std::to_array(
    {viewField("picture", &Obituary::picture), viewField("kicker", &Obituary::kicker),
     viewField("title", &Obituary::title), viewField("text", &Obituary::text), viewField("facts", &Obituary::facts)});
template <>
inline constexpr auto viewFields<Story> = std::to_array(
    {viewField("sky", &Story::sky), viewField("kicker", &Story::kicker), viewField("title", &Story::title),
     viewField("figure", &Story::figure), viewField("text", &Story::text), viewField("facts", &Story::facts),
     viewField("share", &Story::share)});
template <>
inline constexpr auto viewFields<Gauge> = std::to_array(
    {viewField("label", &Gauge::label), viewField("value", &Gauge::value), viewField("note", &Gauge::note),
     viewField("share", &Gauge::share), viewField("steps", &Gauge::steps), viewField("tone", &Gauge::tone),
     viewField("icon", &Gauge::icon), viewField("id", &Gauge::id)});
template <>
inline constexpr auto viewFields<Gauges> = std::to_array({viewField("title", &Gauges::title),
                                                          viewField("note", &Gauges::note),
                                                          viewField("items", &Gauges::items),
                                                          viewField("style", &Gauges::style)});
template <>
inline constexpr auto viewFields<Deck::Corner> = std::to_array({viewField("icon", &Deck::Corner::icon),
                                                                viewField("value", &Deck::Corner::value),
                                                                viewField("label", &Deck::Corner::label),
                                                                viewField("tone", &Deck::Corner::tone)});
template <>
inline constexpr auto viewFields<Deck::Choice> = std::to_array({viewField("id", &Deck::Choice::id),
                                                                viewField("label", &Deck::Choice::label),
                                                                viewField("icon", &Deck::Choice::icon),
                                                                viewField("price", &Deck::Choice::price),
                                                                viewField("side", &Deck::Choice::side)});
template <>
inline constexpr auto viewFields<Deck> = std::to_array(
    {viewField("picture", &Deck::picture), viewField("title", &Deck::title), viewField("aside", &Deck::aside),
     viewField("text", &Deck::text), viewField("facts", &Deck::facts), viewField("tags", &Deck::tags),
     viewField("corners", &Deck::corners), viewField("choices", &Deck::choices), viewField("note", &Deck::note)});
template <>
inline constexpr auto viewFields<Tree::Person> =
    std::to_array({viewField("picture", &Tree::Person::picture), viewField("title", &Tree::Person::title),
                   viewField("subtitle", &Tree::Person::subtitle), viewField("generation", &Tree::Person::generation),
                   viewField("parent", &Tree::Person::parent), viewField("beside", &Tree::Person::beside),
                   viewField("standing", &Tree::Person::standing), viewField("id", &Tree::Person::id)});
template <>
inline constexpr auto viewFields<Tree> = std::to_array({viewField("people", &Tree::people)});
template <>
inline constexpr auto viewFields<Help> = std::to_array({viewField("title", &Help::title),
                                                        viewField("text", &Help::text)});
template <>
inline constexpr auto viewFields<Total> = std::to_array(
    {viewField("label", &Total::label), viewField("value", &Total::value), viewField("tone", &Total::tone),
     viewField("energy", &Total::energy), viewField("share", &Total::share)});

/// One kind of block, under the name that tells it from the others.
struct BlockKind {
  std::string_view name;
  const ViewType* type;
};

/// All kinds, in the order of `Block`.
inline constexpr BlockKind blockKinds[] = {{"heading", &viewType<Heading>},
                                           {"text", &viewType<Text>},
                                           {"tiles", &viewType<Tiles>},
                                           {"meter", &viewType<Meter>},
                                           {"rows", &viewType<Rows>},
                                           {"table", &viewType<Table>},
                                           {"pictures", &viewType<PictureGrid>},
                                           {"button", &viewType<Button>},
                                           {"field", &viewType<TextField>},
                                           {"photo", &viewType<PhotoField>},
                                           {"choice", &viewType<Choice>},
                                           {"toggle", &viewType<Toggle>},
                                           {"slider", &viewType<Slider>},
                                           {"stepper", &viewType<Stepper>},
                                           {"chart", &viewType<Chart>},
                                           {"post", &viewType<Post>},
                                           {"card", &viewType<Card>},
                                           {"cover", &viewType<Cover>},
                                           {"figures", &viewType<Figures>},
                                           {"empty", &viewType<EmptyHint>},
                                           {"poster", &viewType<Poster>},
                                           {"bill", &viewType<Bill>},
                                           {"obituary", &viewType<Obituary>},
                                           {"story", &viewType<Story>},
                                           {"gauges", &viewType<Gauges>},
                                           {"deck", &viewType<Deck>},
                                           {"tree", &viewType<Tree>}};
static_assert([]<size_t... i>(std::index_sequence<i...>) {
  return std::size(blockKinds) == sizeof...(i) &&
         ((blockKinds[i].type == &viewType<std::variant_alternative_t<i, Block>>)&&...);
}(std::make_index_sequence<std::variant_size_v<Block>>()));

inline const BlockKind& kindOf(const Block& block) { return blockKinds[block.index()]; }
inline const void* contentOf(const Block& block) {
  return std::visit([](const auto& content) -> const void* { return &content; }, block);
}

template <>
inline constexpr ViewType viewType<Block> = {.kind = ViewType::Kind::block, .size = sizeof(Block)};

template <>
inline constexpr auto viewFields<View> = std::to_array(
    {viewField("title", &View::title), viewField("subtitle", &View::subtitle), viewField("picture", &View::picture),
     viewField("pictureId", &View::pictureId), viewField("theme", &View::theme), viewField("blocks", &View::blocks),
     viewField("totals", &View::totals), viewField("mainAction", &View::mainAction), viewField("aside", &View::aside),
     viewField("help", &View::help)});

/// The name of an enumeration's value.
std::string_view nameOf(const ViewType& type, const void* value);

/// True when a member need not be told: it stands on its standard, or it is an empty text or list, a price of nothing
/// or a picture of nothing.
bool saysNothing(const ViewType& type, const void* value, const void* standard);

}  // namespace backbeat
