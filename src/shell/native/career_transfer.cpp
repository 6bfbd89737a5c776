#include "shell/native/career_transfer.h"

#include <utility>

#include "core/save_file.h"
#include "shell/native/career_trial.h"
#include "shell/native/file_places.h"

namespace backbeat {

namespace {

constexpr size_t largestCareer = size_t{512} << 20;

}  // namespace

std::string exportToFile(const GameState& state, const std::string& path) {
  return writeWhole(path, exportCareer(state));
}

ImportedCareer readCareer(const std::string& path, Date now) {
  const FileContent file = readFile(path, largestCareer);
  ImportedCareer career;
  career.problem = file.problem;
  if (career.problem.empty()) career = importCareer(file.bytes);
  if (career.state) career.problem = trialProblem(rowsOf(*career.state), Trial::oneWeek, now);
  if (!career.problem.empty()) career.state.reset();
  if (!career.state) career.problem += " Nothing has changed.";
  return career;
}

PutInPlace putInPlace(ImportedCareer& career, CareerStore& store, Date now, bool force) {
  GameState before;
  SaveFile saveFile(store);
  PutInPlace done;
  if (!saveFile.load(before).readable) {
    done.aside = store.setAside();
    if (done.aside.empty()) return {"The save cannot be read and could not be set aside. Nothing has changed.", ""};
  } else {
    const std::string goes = saveFile.planSnapshot(SnapshotKind::import, before).told();
    if (!goes.empty() && !force) return {goes + " --force goes on. Nothing has changed.", ""};
    if (!saveFile.keepSnapshot(SnapshotKind::import, before, now)) {
      return {"The career so far could not be kept aside. Nothing has changed.", ""};
    }
    done.kept = !snapshotsOf(store).empty();
  }
  if (!store.replaceAll(rowsOf(*career.state))) done.problem = "The career could not be saved. Nothing has changed.";
  return done;
}

std::string importMessage(const ImportedCareer& career, const PutInPlace& done) {
  std::string text = done.aside.empty()
                         ? "The career is in. The one before it is kept: Settings, Restore."
                         : "The career is in. The save before it could not be read and is now " + done.aside + ".";
  for (const std::string& sentence : career.mended) text += "\n" + sentence;
  if (career.missing.empty()) return text;
  text += "\nThe file lacked these keys, which begin at their defaults:";
  for (const std::string& key : career.missing) text += " " + key;
  return text + ".";
}

}  // namespace backbeat
