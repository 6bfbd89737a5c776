// Careers whose end is known: fixed presses, and a summary of where each ends in golden_*.txt. Every build has to get
// there.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/memory_store.h"
#include "shell/simulate/player.h"
#include "shell/trace.h"

namespace backbeat {

struct GoldenCareer {
  std::string_view name;  ///< of its summary's file
  uint64_t seed;
  std::string_view world;  ///< that it begins in; empty for a new life
  void (*play)(Player& player);
};

/// One artist's first 52 weeks: songs, boosts, announcements, a job, traits, chirps.
void playGoldenYear(Player& player);
/// Ten years of a keen artist: songs, albums, traits, the week's chances with their festivals and verses, videos, a
/// shop, a contract with a label, and a tour under it.
void playGoldenDecade(Player& player);
/// A year and a half of a star: songs that enter the chart, climb, leave it and come back.
void playGoldenHits(Player& player);
/// Ten years of the head of a label: staff, scouts, offers, albums to review, contracts that end, and the awards.
void playGoldenLabel(Player& player);

/// A family of three generations: the first artist raises and retires, the second loves, marries, raises and retires,
/// and the third begins.
void playGoldenDynasty(Player& player);

std::span<const GoldenCareer> goldenCareers();

/// A golden career as the screens of today play it.
struct PlayedCareer {
  std::string trace;  ///< its text
  std::vector<TraceEvent> events;
  std::vector<std::string> problems;  ///< the steps that could not be made
  MemoryStore::Rows beginning;        ///< what the store holds before the first launch
  GameState end;
};

/// Plays it through.
PlayedCareer played(const GoldenCareer& golden);

/// Played when first asked for.
const PlayedCareer& goldenCareer(std::string_view name);

/// What somebody types into the console to make the presses of a career with one launch.
std::string typedFor(const PlayedCareer& career);

}  // namespace backbeat
