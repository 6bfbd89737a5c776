#include "shell/native/file_places.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>

namespace backbeat {

namespace {

/// How every SQLite file begins.
constexpr std::string_view sqliteMark{"SQLite format 3\0", 16};

/// Closes the file when it goes.
class OpenFile {
 public:
  explicit OpenFile(int number) : number_(number) {}
  ~OpenFile() {
    if (number_ >= 0) ::close(number_);
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  int number() const { return number_; }
  bool isOpen() const { return number_ >= 0; }

 private:
  int number_;
};

bool isPlain(const struct stat& found) { return S_ISREG(found.st_mode); }

const char* kindOf(const struct stat& found) {
  if (S_ISDIR(found.st_mode)) return "a folder";
  if (S_ISFIFO(found.st_mode)) return "a pipe";
  if (S_ISSOCK(found.st_mode)) return "a socket";
  return "a device";
}

/// Reads until the end of the file or `most` bytes; what the system said when it failed, or 0.
int readUpTo(const OpenFile& file, size_t most, std::string& bytes) {
  std::array<char, 65536> block;
  while (bytes.size() < most) {
    const ssize_t got = ::read(file.number(), block.data(), std::min(block.size(), most - bytes.size()));
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return errno;
    if (got == 0) break;
    bytes.append(block.data(), static_cast<size_t>(got));
  }
  return 0;
}

bool beginsLikeSqlite(const std::string& path) {
  const OpenFile file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  std::string head;
  return file.isOpen() && readUpTo(file, sqliteMark.size(), head) == 0 && head == sqliteMark;
}

bool isSameFile(const struct stat& one, const std::string& path) {
  struct stat other = {};
  return ::stat(path.c_str(), &other) == 0 && one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

bool writeAll(const OpenFile& file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(file.number(), bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<size_t>(written));
  }
  return ::fsync(file.number()) == 0;
}

std::string cannotBeWritten(const std::string& path, const std::string& why) {
  return "The file " + path + " cannot be written: " + why + ".";
}

}  // namespace

std::string targetRefusal(const std::string& path, const std::string& save, bool force) {
  struct stat found = {};
  if (::stat(path.c_str(), &found) != 0) return errno == ENOENT ? "" : cannotBeWritten(path, std::strerror(errno));
  if (!isPlain(found)) return path + " is " + kindOf(found) + "; name a file.";
  if (!save.empty() && isSameFile(found, save)) return path + " is the save itself; name another file.";
  // An empty file is what a player's script may have made ready.
  if (beginsLikeSqlite(path)) return path + " holds a save; name another file.";
  if (found.st_size > 0 && !force) return path + " is there already; --force replaces it.";
  return "";
}

std::string saveRefusal(const std::string& path) {
  if (path.find('\0') != path.npos) return "The name of a save holds no NUL.";
  if (path.starts_with(":") || path.starts_with("file:")) {
    return path + " is no plain path; a save is a file on this computer.";
  }
  struct stat found = {};
  if (::stat(path.c_str(), &found) != 0 || isPlain(found)) return "";
  return path + " is " + kindOf(found) + "; a save is a file.";
}

FileContent readFile(const std::string& path, size_t most) {
  struct stat found = {};
  // Without a look first, opening a pipe waits for somebody to write to it.
  if (::stat(path.c_str(), &found) == 0 && !isPlain(found))
    return {"", path + " is " + kindOf(found) + "; name a file."};
  const OpenFile file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  FileContent content;
  const int code = file.isOpen() ? readUpTo(file, most + 1, content.bytes) : errno;
  if (code != 0) return {"", "The file " + path + " cannot be read: " + std::strerror(code) + "."};
  if (content.bytes.size() > most) {
    return {"", "The file " + path + " is larger than " + std::to_string(most >> 20) + " MB; no career is."};
  }
  return content;
}

std::string writeWhole(const std::string& path, std::string_view bytes) {
  std::error_code problem;
  // A link stays a link: what it points at is replaced.
  const std::filesystem::path place = std::filesystem::weakly_canonical(path, problem);
  if (problem) return cannotBeWritten(path, problem.message());
  std::string beside = place.string() + ".XXXXXX";
  int code = 0;
  {
    const OpenFile file(::mkostemp(beside.data(), O_CLOEXEC));
    if (!file.isOpen()) return cannotBeWritten(path, std::strerror(errno));
    // mkostemp keeps others out; an exported career is a file like any other.
    const mode_t mask = ::umask(0);
    ::umask(mask);
    ::fchmod(file.number(), 0666 & ~mask);
    if (!writeAll(file, bytes)) code = errno;
  }
  if (code == 0 && std::rename(beside.c_str(), place.c_str()) == 0) return "";
  if (code == 0) code = errno;
  std::remove(beside.c_str());
  return cannotBeWritten(path, std::strerror(code));
}

}  // namespace backbeat
