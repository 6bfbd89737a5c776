#include "saved_world.h"

#include <set>

#include "core/career_file.h"
#include "core/record_codec.h"

namespace backbeat {

SavedWorld::SavedWorld(const std::filesystem::path& folder, const std::string& name, int64_t weeks, LiveWeek live)
    : path_(folder / ("career" + name)),
      live_(live),
      store_(SqliteStore::open(path_.string() + ".played").store),
      rowStore_(SqliteStore::open(path_.string() + ".rows").store),
      wholeStore_(SqliteStore::open(path_.string() + ".whole").store),
      played_(*store_),
      recorded_(recorder_),
      memory_(nowhere_) {
  played_.game.state = heavyCareer(weeks, live);
  const std::vector<Write> rows = rowsOf(played_.game.state);
  memory_.game.state = played_.game.state;
  recorded_.game.state = played_.game.state;
  for (SqliteStore* store : {store_.get(), rowStore_.get()}) {
    store->commit(rows);
    store->rest();
  }
}

void SavedWorld::recordWeek() {
  recorder_.transactions.clear();
  live_(recorded_.game);
  commitRows();
  recorder_.transactions.clear();
  playWeek(recorded_.game);
}

void SavedWorld::commitRows() {
  for (const auto& writes : recorder_.transactions) rowStore_->commit(writes);
}

void SavedWorld::commitWholeLists() {
  PropertyListWriter writer;
  for (const auto& writes : recorder_.transactions) {
    std::set<std::string> keys;
    for (const Write& write : writes) keys.insert(write.key);
    std::vector<Write> whole;
    for (const auto& [key, list] : listsOf(recorded_.game.state)) {
      if (!keys.contains(std::string(key))) continue;
      const auto all = RecordEncoder(writer).records(list.type(), list.records());
      whole.push_back({std::string(key), wholeRow, writer.finish(all)});
    }
    for (const Write& write : writes) {
      if (write.chunk == wholeRow) whole.push_back(write);
    }
    wholeStore_->commit(whole);
  }
}

std::string SavedWorld::weekWritten() const {
  size_t rows = 0;
  size_t bytes = 0;
  for (const auto& writes : recorder_.transactions) {
    rows += writes.size();
    for (const Write& write : writes) {
      const auto* object = write.value ? std::get_if<Bytes>(&*write.value) : nullptr;
      bytes += object ? object->size() : sizeof(int64_t);
    }
  }
  return std::to_string(recorder_.transactions.size()) + " times, " + std::to_string(rows) + " rows, " +
         std::to_string(bytes / 1000) + " KB";
}

std::string SavedWorld::closedPath() {
  if (store_) {
    played_.game.state.timeUntilNextTour = 0;
    played_.game.save(&GameState::timeUntilNextTour);
    played_.game.saveFile.commit();
  }
  if (store_) store_->rest();
  store_.reset();
  return path_.string() + ".played";
}

}  // namespace backbeat
