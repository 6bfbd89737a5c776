// How each kind of block stands on a printed page.
#pragma once

#include "core/view.h"
#include "shell/native/printed_page.h"

namespace backbeat {

void print(PrintedPage& page, const Block& block);

void print(PrintedPage& page, const Heading& heading);
void print(PrintedPage& page, const Text& text);
void print(PrintedPage& page, const Post& post);
void print(PrintedPage& page, const Card& card);
void print(PrintedPage& page, const Cover& cover);
void print(PrintedPage& page, const EmptyHint& hint);

void print(PrintedPage& page, const Tiles& tiles);
void print(PrintedPage& page, const Rows& rows);
void print(PrintedPage& page, const Table& table);
void print(PrintedPage& page, const PictureGrid& grid);
void print(PrintedPage& page, const Tree& tree);

void print(PrintedPage& page, const Button& button);
void print(PrintedPage& page, const TextField& field);
void print(PrintedPage& page, const PhotoField& field);
void print(PrintedPage& page, const Choice& choice);
void print(PrintedPage& page, const Toggle& toggle);
void print(PrintedPage& page, const Slider& slider);
void print(PrintedPage& page, const Stepper& stepper);

void print(PrintedPage& page, const Meter& meter);
void print(PrintedPage& page, const Chart& chart);
void print(PrintedPage& page, const Figures& figures);
void print(PrintedPage& page, const Gauges& gauges);

void print(PrintedPage& page, const Poster& poster);
void print(PrintedPage& page, const Bill& bill);
void print(PrintedPage& page, const Obituary& obituary);
void print(PrintedPage& page, const Story& story);
void print(PrintedPage& page, const Deck& deck);

/// The further actions of a row or post.
void printActions(PrintedPage& page, const std::vector<RowAction>& actions);

}  // namespace backbeat
