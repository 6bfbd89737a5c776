#include "support/program.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace backbeat {

Program::Program(const std::vector<std::string>& words, const std::string& outputFile) {
  signal(SIGPIPE, SIG_IGN);  // a killed reader is no reason to end the test
  std::vector<char*> arguments = {const_cast<char*>(BACKBEAT_PROGRAM)};
  for (const std::string& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  std::array<int, 2> ends = {-1, -1};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) return;
  process_ = fork();
  if (process_ == 0) {
    const int output = open(outputFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    dup2(ends[0], STDIN_FILENO);
    dup2(output, STDOUT_FILENO);
    dup2(output, STDERR_FILENO);
    execv(BACKBEAT_PROGRAM, arguments.data());
    _exit(127);
  }
  close(ends[0]);
  input_ = ends[1];
}

Program::~Program() {
  endInput();
  if (process_ > 0) {
    kill();
    wait();
  }
}

void Program::type(const std::string& text) {
  for (size_t at = 0; at < text.size();) {
    const ssize_t written = write(input_, text.data() + at, text.size() - at);
    if (written <= 0) return;
    at += static_cast<size_t>(written);
  }
}

void Program::endInput() {
  if (input_ >= 0) close(input_);
  input_ = -1;
}

void Program::kill() {
  if (process_ > 0) ::kill(process_, SIGKILL);
}

int Program::wait() {
  int status = 0;
  if (process_ > 0) waitpid(process_, &status, 0);
  process_ = 0;
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

ProgramRun runProgram(const std::vector<std::string>& words, const std::string& input) {
  const std::string output = freshFile("program_output");
  Program program(words, output);
  program.type(input);
  program.endInput();
  const int exitCode = program.wait();
  return {exitCode, contentOf(output)};
}

std::string freshFile(const std::string& name) {
  const std::string file = ::testing::TempDir() + "backbeat_" + std::to_string(getpid()) + "_" + name;
  std::error_code ignored;
  for (const char* suffix : {"", "-wal", "-shm"}) std::filesystem::remove(file + suffix, ignored);
  return file;
}

std::string contentOf(const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

void writeFile(const std::string& file, const std::string& content) {
  std::ofstream(file, std::ios::binary | std::ios::trunc) << content;
}

}  // namespace backbeat
