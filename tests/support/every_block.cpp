#include "support/every_block.h"

#include <utility>

namespace backbeat {

namespace {

using Kind = Picture::Kind;

const Price cheap = {.energy = 1};
const Price dear = {.energy = 10, .dollars = 1'125'000};

const std::vector<Fact> facts = {
    {.icon = "calendar", .label = "Weeks", .value = "14", .tone = Tone::fair},
    {.icon = "globe", .label = "Cities", .value = "9"},
};

Picture ownPhoto() {
  return {Kind::photo, "data:image/gif;base64,R0lGODlhAQABAIAAAAAAAP///yH5BAEAAAAALAAAAAABAAEAAAIBRAA7"};
}

void addPlain(View& view) {
  view.add(Heading{.text = "Session", .link = Link{.id = "all", .label = "See all"}});
  view.add(Text{.text = "What the week was like.", .style = Text::Style::lead});
  view.add(Text{.text = "Nothing was lost on the way home.", .tone = Tone::good});
  view.add(Text{.text = "As of this morning", .tone = Tone::warning, .style = Text::Style::caption});
  view.add(Cover{.picture = cover("Glass Rivers"),
                 .title = "Glass Rivers",
                 .text = "Indie pop · 3:24 · released in week 9",
                 .badge = "GOLD",
                 .hook = "Glass Rivers|Indie Pop",
                 .back = drawn(Kind::scene, "stage", "Glass Rivers")});
  view.add(
      Post{.picture = person("Ada Brandt"),
           .name = "Ada Brandt",
           .handle = "@ada",
           .age = "3 weeks ago",
           .message = "New song out on Friday.\nTell everybody.",
           .pinned = "  Pinned",
           .comments = "12",
           .reChirps = "340",
           .likes = "1.2K",
           .actions = {{.id = "unpin:4", .label = "Unpin"}, {.id = "delete:4", .label = "Delete", .tone = Tone::bad}}});
  view.add(Card{.picture = person("Theo Lind"),
                .title = "Theo Lind",
                .text = "Sound engineer. Asks for $900 a week.",
                .badge = "NEW",
                .tone = Tone::warning,
                .value = "41 → 56",
                .meters = {{.label = "Skill", .value = "56", .share = 0.56, .tone = Tone::fair},
                           {.label = "Loyalty", .value = "3 of 5", .share = 0.6, .tone = Tone::good, .steps = 5}},
                .buttons = {{.id = "hire:2", .label = "Hire", .price = cheap}, {.id = "pass:2", .label = "Pass"}},
                .note = "Leaves on Sunday"});
  view.add(EmptyHint{.icon = "album", .text = "No album yet. Record five songs first."});
}

void addLists(View& view) {
  view.add(
      Tiles{{{.icon = "bolt", .label = "Energy", .value = "73", .note = "of 104", .tone = Tone::fair, .id = "energy"},
             {.icon = "gift", .label = "Give a present", .id = "gift", .price = dear}}});
  Row everything = {.picture = person("Ada Brandt"),
                    .fan = {cover("Tide"), cover("Paper Lanterns")},
                    .title = "Ada Brandt",
                    .subtitle = "Producer · Berlin",
                    .value = "$1,200",
                    .note = "a week",
                    .tone = Tone::good,
                    .badge = "NEW",
                    .price = cheap,
                    .share = 0.6,
                    .selected = true,
                    .opens = true,
                    .id = "producer:1",
                    .actions = {{.id = "fire:1", .label = "Let go", .tone = Tone::bad}},
                    .points = {3, 4, 4, 6, 5, 9}};
  view.add(
      Rows{.items = {everything,
                     {.picture = ownPhoto(), .title = "Own photo", .value = "7", .tone = Tone::bad},
                     {.picture = icon("guitar"), .title = "Guitar lessons", .subtitle = "Locked", .tone = Tone::locked},
                     {.title = "Nothing sold", .share = 0}},
           .id = "producers",
           .total = 1'240,
           .from = 60});
  view.add(Rows{.items = {{.picture = cover("Static Hearts"),
                           .title = "Static Hearts",
                           .subtitle = "Juno Reyes\nfeat. Ada Brandt\nPeak 3 · 112 weeks",
                           .value = "▲ 12",
                           .note = "100",
                           .tone = Tone::good,
                           .badge = "NEW",
                           .opens = true,
                           .id = "song:9"}},
                .columns = {"LAST\nWEEK", "THIS\nWEEK"}});
  view.add(Rows{
      .items = {{.picture = drawn(Kind::object, "shirt", "Tour Shirt"), .title = "Tour Shirt", .share = 0.4},
                {.picture = drawn(Kind::object, "poster", "Night Bus"), .title = "Night Bus", .badge = "SOLD OUT"}},
      .style = Rows::Style::shelf});
  view.add(Rows{
      .items = {{.picture = drawn(Kind::mark, "label", "Northern Line"), .title = "Northern Line", .id = "label:1"}},
      .style = Rows::Style::strip});
  view.add(Rows{.items = {{.title = "Oslo", .value = "1,200", .tone = Tone::good, .badge = "SOLD OUT"},
                          {.title = "Bergen", .value = "this week", .selected = true},
                          {.title = "Tromsø", .value = "in 1 week"}},
                .style = Rows::Style::route});
  view.add(
      Rows{.items = {{.picture = drawn(Kind::still, "neon", "Undertow"), .title = "Undertow", .subtitle = "4M views"}},
           .style = Rows::Style::films});
  view.add(Rows{.items = {{.picture = drawn(Kind::object, "scooter", "Scooter"),
                           .title = "Scooter",
                           .subtitle = "Bought 2023 for $500",
                           .value = "$450",
                           .selected = true,
                           .id = "own:7001"},
                          {.picture = drawn(Kind::object, "sedan", "Sedan"), .title = "Sedan", .id = "own:7004"}},
                .style = Rows::Style::floor});
  view.add(
      Rows{.items = {{.picture = icon("trend"), .title = "Rents go up in the old town."}}, .style = Rows::Style::wire});
  view.add(Table{
      .columns = {"Song", "Last", "Best", "Weeks", "Streams"},
      .rows = {{"Paper Lanterns in the Rain", "12", "3", "14", "182,400"}, {"Copper Sky", "40", "38", "2", "40,100"}}});
  view.add(PictureGrid{{{.picture = cover("Undertow"), .label = "Undertow", .selected = true, .id = "sleeve:0"},
                        {.picture = cover("Night Bus"), .label = "Night Bus", .id = "sleeve:1"}}});
}

void addControls(View& view) {
  view.add(TextField{.id = "title",
                     .label = "Working title",
                     .value = "Glass Rivers",
                     .placeholder = "A title",
                     .maxLength = 24,
                     .suggest = "dice"});
  view.add(TextField{
      .id = "about", .label = "Message", .placeholder = "What is it about?", .maxLength = 280, .multiline = true});
  view.add(PhotoField{.id = "photo", .label = "Your own photo", .note = "200 KB at most", .taken = true});
  view.add(PhotoField{.id = "header", .label = "Your own header", .shape = PhotoField::Shape::wide});
  view.add(Choice{.id = "genre",
                  .label = "Genre",
                  .options = {{.label = "Pop"},
                              {.label = "Hip-hop", .note = "Needs 20 skill", .tone = Tone::locked},
                              {.label = "Rock", .note = "New strings", .price = cheap}},
                  .selected = 2});
  view.add(Choice{.id = "sort",
                  .label = "Sort by",
                  .options = {{.label = "Pop"}, {.label = "Folk"}},
                  .selected = 1,
                  .style = Choice::Style::segments});
  view.add(Choice{
      .id = "plan",
      .label = "Plan",
      .options =
          {{.label = "Garage", .note = "Half full", .value = "$189 a week", .facts = facts, .action = "Current plan"},
           {.label = "Warehouse",
            .price = dear,
            .value = "$2,400 a week",
            .facts = facts,
            .action = "Select this plan"}},
      .style = Choice::Style::cards});
  view.add(
      Choice{.id = "look",
             .label = "Look",
             .options = {{.label = "Neon", .note = "+20% views", .picture = drawn(Kind::still, "neon", "Undertow")},
                         {.label = "Desert", .note = "+5% views", .picture = drawn(Kind::still, "desert", "Undertow")}},
             .selected = 1,
             .style = Choice::Style::pictures});
  view.add(Toggle{.id = "band", .label = "Invite the band", .on = true, .note = "They ask for a fifth"});
  view.add(Slider{.id = "price",
                  .label = "Price",
                  .value = "$25",
                  .low = "$5",
                  .high = "$60",
                  .note = "Fans find it fair",
                  .at = 4,
                  .count = 12});
  view.add(Stepper{.id = "royalties", .label = "Royalties", .value = "20%", .note = "5% at a time"});
  view.add(Stepper{.id = "songs", .label = "Songs", .value = "3", .canLess = false, .canMore = false});
  view.add(Button{
      .id = "record", .label = "Start recording", .price = cheap, .style = Button::Style::primary, .pulse = true});
  view.add(Button{.id = "book", .label = "Book the big studio", .price = dear, .tone = Tone::warning});
  view.add(Button{.id = "delete", .label = "Delete song", .style = Button::Style::destructive});
}

void addFigures(View& view) {
  view.add(Meter{.label = "Vocal condition", .value = "Good", .share = 0.74, .tone = Tone::good});
  view.add(
      Meter{.label = "Baby on the way", .value = "9 of 37 weeks", .share = 9 / 37.0, .tone = Tone::fair, .steps = 37});
  view.add(Chart{.title = "Streams",
                 .value = "60,513",
                 .note = "+7% on last week",
                 .tone = Tone::good,
                 .style = Chart::Style::bars,
                 .points = {25'100, 33'100, 49'200, 60'513},
                 .labels = {"W11", "W12", "W13", "W14"},
                 .id = "streams"});
  view.add(Chart{.title = "Net worth", .value = "$12,480", .points = {12'000.5, 11'000, 12'480}});
  const std::vector<Figure> lines = {
      {.label = "Streams", .value = "$1,075", .amount = 1'075, .dollars = true, .tone = Tone::good, .note = "+7.5%"},
      {.label = "Food", .value = "-$90", .amount = -90, .dollars = true, .tone = Tone::bad}};
  view.add(Figures{.title = "This week",
                   .items = lines,
                   .total = Figure{.label = "Total", .value = "$985", .amount = 985, .dollars = true}});
  view.add(Figures{
      .title = "Net worth", .items = {{.label = "Net worth", .value = "$500,000"}}, .style = Figures::Style::large});
  view.add(Figures{.items = lines, .style = Figures::Style::pair});
  view.add(Gauges{
      .title = "Departments",
      .note = "Rating 61",
      .items =
          {{.label = "Radio",
            .value = "64",
            .note = "+3",
            .share = 0.64,
            .tone = Tone::fair,
            .icon = "radio",
            .id = "radio"},
           {.label = "Press", .value = "22", .share = 0.22, .tone = Tone::bad, .icon = "megaphone", .id = "press"}},
      .style = Gauges::Style::faders});
  view.add(Gauges{.title = "Traits", .items = {{.label = "Wit", .value = "81", .share = 0.81, .tone = Tone::good}}});
  view.add(Gauges{.title = "Goals",
                  .items = {{.label = "Sales", .value = "3 of 8", .share = 3 / 8.0, .steps = 8, .icon = "trophy"}},
                  .style = Gauges::Style::stacks});
  view.add(Gauges{
      .title = "What it is made of",
      .items = {{.label = "Property", .value = "60%", .share = 0.6}, {.label = "Cash", .value = "40%", .share = 0.4}},
      .style = Gauges::Style::split});
}

void addHeads(View& view) {
  view.add(Poster{.pictures = {drawn(Kind::scene, "villa", "12 Cliff Road"), person("Ada Brandt")},
                  .kicker = "Tour under way",
                  .title = "Northern Lights",
                  .text = "Nine cities before the frost.",
                  .figure = "9",
                  .stamp = "SOLD OUT",
                  .facts = facts,
                  .meter = Meter{.label = "Shows", .value = "4 of 9", .share = 4 / 9.0, .steps = 9}});
  view.add(Poster{.pictures = {drawn(Kind::object, "stadium", "Harbour Bowl")},
                  .title = "Harbour Bowl",
                  .stamp = "SOLD OUT",
                  .style = Poster::Style::ticket,
                  .mood = Poster::Mood::celebrate});
  view.add(Poster{.pictures = {person("Ada Brandt"), person("Theo Lind")},
                  .title = "It is over",
                  .style = Poster::Style::torn,
                  .mood = Poster::Mood::mourn});
  view.add(Bill{
      .kicker = "You are invited",
      .title = "Meadow Sound",
      .text = "Three days in July",
      .acts = {{.name = "Nova", .rank = 1}, {.name = "Mara Quill", .rank = 2, .own = true}, {.name = "Juno Reyes"}},
      .facts = facts});
  view.add(Obituary{.picture = person("Elis Quill"),
                    .kicker = "1971 to 2044",
                    .title = "Elis Quill",
                    .text = "Sang in small rooms and filled them.",
                    .facts = facts});
  view.add(Story{.sky = cover("Glass Rivers"),
                 .kicker = "Your year",
                 .title = "Glass Rivers",
                 .figure = "2031",
                 .text = "Forty weeks on the chart.",
                 .facts = facts,
                 .share = "mara-quill-2031"});
  view.add(Deck{
      .picture = person("Theo Lind"),
      .title = "Theo",
      .aside = "29",
      .text = "Runs before breakfast.",
      .facts = facts,
      .tags = {"Jazz", "Mountains"},
      .corners = {{.icon = "heart", .value = "54", .label = "chemistry", .tone = Tone::fair},
                  {.icon = "star", .value = "81", .label = "rating", .tone = Tone::good}},
      .choices =
          {{.id = "pass", .label = "Pass", .icon = "plus", .side = Deck::Choice::Side::left},
           {.id = "superLike", .label = "Super like", .icon = "star", .price = dear, .side = Deck::Choice::Side::up},
           {.id = "like", .label = "Like", .icon = "heart", .price = cheap, .side = Deck::Choice::Side::right}},
      .note = "3 more this week"});
  using Standing = Tree::Person::Standing;
  view.add(Tree{{{.picture = person("Elis Quill"),
                  .title = "Elis Quill",
                  .subtitle = "1971 to 2044",
                  .beside = 1,
                  .standing = Standing::gone},
                 {.picture = person("Ida Quill"), .title = "Ida Quill", .beside = 0, .standing = Standing::elder},
                 {.picture = person("Mara Quill"),
                  .title = "Mara Quill",
                  .generation = 1,
                  .parent = 0,
                  .standing = Standing::player,
                  .id = "you"},
                 {.picture = person("Bo Quill"),
                  .title = "Bo Quill",
                  .subtitle = "7 years",
                  .generation = 2,
                  .parent = 2,
                  .id = "child:1"}}});
}

}  // namespace

View everyBlock() {
  View view = {
      .title = "Every block there is",
      .subtitle = "One after the other",
      .picture = person("Mara Quill"),
      .pictureId = "portrait",
      .theme = Theme::live,
      .totals = {{.label = "Costs", .value = "$4,800", .tone = Tone::warning},
                 {.label = "Energy", .value = "10", .energy = true},
                 {.label = "Chance", .value = "62%", .tone = Tone::fair, .share = 0.62}},
      .mainAction = Button{.id = "go", .label = "START TOURING", .price = cheap, .style = Button::Style::primary},
      .aside = Button{.id = "decline", .label = "Decline"},
      .help = Help{.title = "How it works", .text = "A first paragraph that explains.\n\nA second one."}};
  addHeads(view);
  addPlain(view);
  addLists(view);
  addControls(view);
  addFigures(view);
  return view;
}

View barestBlocks() {
  View view;
  const auto addEmpty = [&]<size_t... i>(std::index_sequence<i...>) {
    (view.add(std::variant_alternative_t<i, Block>{}), ...);
  };
  addEmpty(std::make_index_sequence<std::variant_size_v<Block>>());
  view.add(Heading{.link = Link{}});
  view.add(Tiles{{Tile{}}});
  view.add(Rows{.items = {{.share = 0, .actions = {RowAction{}}}}, .columns = {""}});
  view.add(Table{.columns = {""}, .rows = {{""}}});
  view.add(PictureGrid{{PictureChoice{}}});
  view.add(Choice{.options = {{.facts = {Fact{}}}}});
  view.add(Post{.actions = {RowAction{}}});
  view.add(Card{.meters = {Meter{}}, .buttons = {Button{}}});
  view.add(Figures{.items = {Figure{}}, .total = Figure{}});
  view.add(Poster{.pictures = {Picture{}}, .facts = {Fact{}}, .meter = Meter{}});
  view.add(Bill{.acts = {Bill::Act{}}});
  view.add(Gauges{.items = {Gauge{}}});
  view.add(Deck{.tags = {""}, .corners = {Deck::Corner{}}, .choices = {Deck::Choice{}}});
  view.add(Tree{{Tree::Person{}}});
  view.totals = {Total{}};
  view.mainAction = Button{};
  view.aside = Button{};
  view.help = Help{};
  return view;
}

}  // namespace backbeat
