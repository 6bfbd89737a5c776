#include "shell/native/career_transfer.h"

#include <utility>

#include "core/save_file.h"
#include "shell/native/file_places.h"

namespace backbeat {

namespace {

constexpr size_t largestCareer = size_t{512} << 20;

}  // namespace

std::string exportToFile(const GameState& state, const std::string& path) {
  return writeWhole(path, exportCareer(state));
}

ImportedCareer readCareer(const std::string& path) {
  const FileContent file = readFile(path, largestCareer);
  ImportedCareer career;
  career.problem = file.problem;
  if (career.problem.empty()) career = importCareer(file.bytes);
  if (!career.state) career.problem += " Nothing has changed.";
  return career;
}

std::string putInPlace(ImportedCareer& career, CareerStore& store) {
  GameState before;
  SaveFile saveFile(store);
  saveFile.load(before);
  if (!saveFile.keepSnapshot(SnapshotKind::import, before)) {
    return "The career so far could not be kept aside. Nothing has changed.";
  }
  return store.replaceAll(rowsOf(*career.state)) ? "" : "The career could not be saved. Nothing has changed.";
}

std::string importMessage(const ImportedCareer& career) {
  std::string text = "The career is in. The one before it is kept: Settings, Restore.";
  for (const std::string& sentence : career.mended) text += "\n" + sentence;
  if (career.missing.empty()) return text;
  text += "\nThe file lacked these keys, which begin at their defaults:";
  for (const std::string& key : career.missing) text += " " + key;
  return text + ".";
}

}  // namespace backbeat
