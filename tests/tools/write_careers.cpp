// Writes the careers that the tests begin from and the golden ones into a folder, for whoever is not written in C++:
//   backbeat_careers FOLDER
// careers.json names them: each is a career file, with the hour at which it goes on; a golden one has its trace and the
// hash of its end too, and the career that it began with, if it was no new life. A film is the trace of a new life
// alone. screens.json names every screen that there is, with its room, which is empty for the roots of the tabs.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/json.h"
#include "play/filmed_careers.h"
#include "play/worlds.h"
#include "shell/native/career_transfer.h"
#include "shell/registry.h"
#include "support/dates.h"

namespace backbeat {
namespace {

class Careers {
 public:
  explicit Careers(std::string folder) : folder_(std::move(folder)) { json_.beginObject(); }

  void add(const NamedWorld& world) {
    MemoryStore store;
    settleInto(store, world);
    GameState state;
    SaveFile(store).load(state);
    begin(world.name, state, noonOf(state));
    json_.key("large").flag(world.large);
    json_.endObject();
  }

  void add(const GoldenCareer& golden) {
    const PlayedCareer& career = goldenCareer(golden.name);
    const std::string trace = write(golden, career);
    begin(golden.name, career.end, career.events.back().unixMilliseconds);
    json_.key("large").flag(false);
    json_.key("trace").text(trace);
    json_.key("hash").text(hashText(stateHash(career.end)));
    json_.key("world").text(golden.world);
    json_.endObject();
  }

  void addFilm(const GoldenCareer& filmed) {
    json_.key(filmed.name).beginObject();
    json_.key("film").text(write(filmed, played(filmed)));
    json_.endObject();
  }

  bool finish() {
    json_.endObject();
    std::ofstream file(folder_ + "/careers.json", std::ios::binary);
    file << json_.str() << '\n';
    return problem_.empty() && file.good();
  }

 private:
  static std::string fileName(std::string_view name) {
    std::string file(name);
    std::replace(file.begin(), file.end(), ' ', '-');
    return file;
  }

  std::string write(const GoldenCareer& golden, const PlayedCareer& career) const {
    std::string trace = fileName(golden.name) + ".trace";
    std::ofstream(folder_ + "/" + trace, std::ios::binary) << career.trace;
    return trace;
  }

  void begin(std::string_view name, const GameState& state, int64_t now) {
    const std::string file = fileName(name) + ".plist";
    if (problem_.empty()) problem_ = exportToFile(state, folder_ + "/" + file);
    json_.key(name).beginObject();
    json_.key("file").text(file);
    json_.key("now").number(now);
  }

  std::string folder_;
  std::string problem_;
  JsonWriter json_;
};

bool writeScreens(const std::string& folder) {
  std::vector<std::pair<std::string_view, std::string_view>> screens;
  for (const Tab& tab : tabs()) screens.emplace_back(tab.root.screen, "");
  for (const Room* room : rooms()) {
    for (const Segue& segue : room->segues) screens.emplace_back(segue.screen, room->name);
  }
  JsonWriter json;
  json.beginArray();
  for (const auto& [screen, room] : screens) {
    json.beginObject().key("screen").text(screen).key("room").text(room).endObject();
  }
  json.endArray();
  std::ofstream file(folder + "/screens.json", std::ios::binary);
  file << json.str() << '\n';
  return file.good();
}

}  // namespace
}  // namespace backbeat

int main(int count, char** words) {
  using namespace backbeat;
  if (count != 2) return 2;
  std::error_code problem;
  std::filesystem::create_directories(words[1], problem);
  Careers careers(words[1]);
  for (const NamedWorld& world : namedWorlds()) careers.add(world);
  for (const GoldenCareer& golden : goldenCareers()) careers.add(golden);
  for (const GoldenCareer& filmed : filmedCareers()) careers.addFilm(filmed);
  return careers.finish() && writeScreens(words[1]) ? 0 : 1;
}
