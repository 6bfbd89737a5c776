#include "shell/native/career_transfer.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>

#include "core/career_file.h"
#include "core/save_file.h"

namespace backbeat {

namespace {

bool writeAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(file, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<size_t>(written));
  }
  return fsync(file) == 0;
}

/// Writes beside the place and moves it there once it is on the disk.
bool writeWhole(const std::string& path, std::string_view bytes) {
  const std::string beside = path + ".part";
  const int file = open(beside.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
  if (file < 0) return false;
  const bool written = writeAll(file, bytes);
  const int problem = errno;
  close(file);
  if (written && std::rename(beside.c_str(), path.c_str()) == 0) return true;
  const int cause = written ? errno : problem;
  std::remove(beside.c_str());
  errno = cause;
  return false;
}

}  // namespace

std::string exportToFile(const GameState& state, const std::string& path) {
  if (writeWhole(path, exportCareer(state))) return "";
  return "The file " + path + " cannot be written: " + std::strerror(errno) + ".";
}

FileImport importFromFile(const std::string& path, CareerStore& store) {
  std::ifstream file(path, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  if (!file.is_open() || file.bad()) return {"The file " + path + " cannot be read.", {}};
  ImportedCareer career = importCareer(bytes);
  if (!career.state) return {career.problem + " Nothing has changed.", {}};
  GameState before;
  SaveFile saveFile(store);
  saveFile.load(before);
  if (!saveFile.keepSnapshot(SnapshotKind::import, before)) {
    return {"The career so far could not be kept aside. Nothing has changed.", {}};
  }
  if (!store.replaceAll(rowsOf(*career.state))) return {"The career could not be saved. Nothing has changed.", {}};
  return {"", std::move(career.missing)};
}

std::string importMessage(const FileImport& import) {
  if (!import.problem.empty()) return import.problem;
  std::string text = "The career is in. The one before it is kept: Settings, Restore.";
  if (import.missing.empty()) return text;
  text += "\nThe file lacked these keys, which begin at their defaults:";
  for (const std::string& key : import.missing) text += " " + key;
  return text + ".";
}

}  // namespace backbeat
