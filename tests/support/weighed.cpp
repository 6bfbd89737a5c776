#include "support/weighed.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>

extern "C" [[gnu::weak]] void __asan_init();

namespace backbeat {

namespace {

double megabytesNow() {
  long pages = 0;
  std::FILE* const file = std::fopen("/proc/self/statm", "r");
  if (!file || std::fscanf(file, "%*d %ld", &pages) != 1) pages = 0;
  if (file) std::fclose(file);
  return static_cast<double>(pages * sysconf(_SC_PAGESIZE)) / 1e6;
}

}  // namespace

Weight weighed(const std::function<bool()>& work) {
  int pipe[2];
  if (::pipe(pipe) != 0) return {};
  const pid_t child = fork();
  if (child == 0) {
    for (const int signal : {SIGILL, SIGTRAP, SIGABRT, SIGSEGV}) ::signal(signal, SIG_DFL);
    const double before = megabytesNow();
    Weight weight;
    weight.ended = work();
    rusage used = {};
    getrusage(RUSAGE_SELF, &used);
    weight.seconds = static_cast<double>(used.ru_utime.tv_sec + used.ru_stime.tv_sec) +
                     static_cast<double>(used.ru_utime.tv_usec + used.ru_stime.tv_usec) / 1e6;
    weight.megabytes = static_cast<double>(used.ru_maxrss) * 1024 / 1e6 - before;
    _exit(::write(pipe[1], &weight, sizeof weight) == sizeof weight ? 0 : 1);
  }
  close(pipe[1]);
  Weight weight;
  if (::read(pipe[0], &weight, sizeof weight) != sizeof weight) weight = {};
  close(pipe[0]);
  waitpid(child, nullptr, 0);
  return weight;
}

bool isSanitized() { return __asan_init != nullptr; }

}  // namespace backbeat
