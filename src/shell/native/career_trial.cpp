#include "shell/native/career_trial.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

#include "core/memory_store.h"
#include "shell/native/last_words.h"
#include "shell/session.h"

namespace backbeat {

namespace {

// Launch and week take a fifth of a second in the hundredth year.
constexpr unsigned mostSeconds = 60;
constexpr int mostAlerts = 200;  // more than a launch ever has to say

void answerAll(Session& session, Date now) {
  Shown shown = session.shown();
  for (int answered = 0; shown.alert && answered < mostAlerts; ++answered, shown = session.shown()) {
    session.press(now, "alert", {std::to_string(shown.alert->key), "0"});
  }
}

/// False when the week does not end.
bool play(std::span<const Write> rows, Trial trial, Date now) {
  MemoryStore store;
  store.replaceAll(rows);
  QuietPlatform platform;
  Session session(store, platform, 1, now);
  if (const Shown shown = session.shown(); trial == Trial::launch) return true;
  answerAll(session, now);
  // A report that was still open covers the tabs.
  if (const Shown shown = session.shown(); shown.modal && shown.view.mainAction) {
    session.press(now, std::to_string(shown.key), {shown.view.mainAction->id, ""});
    answerAll(session, now);
  }
  const int64_t week = session.game().state.weekNumberForTracking;
  session.press(now, "nav", {"endTheWeekButton", ""});
  session.shown();
  return session.game().state.weekNumberForTracking == week + 1;
}

/// What the process says as it stops is nothing that a player should read twice.
void beSilent() {
  const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
  ::dup2(nowhere, STDOUT_FILENO);
  ::dup2(nowhere, STDERR_FILENO);
}

/// The time of the processor, so that a busy computer refuses nothing.
void limitWork(unsigned seconds) {
  // The second number ends it without a word.
  const rlimit most = {seconds, seconds + 1};
  ::setrlimit(RLIMIT_CPU, &most);
}

enum TrialEnd { played = 0, stuck = 1 };

std::string problemOf(int status) {
  const int code = WIFEXITED(status) ? WEXITSTATUS(status) : 0;
  const int signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
  if (code == outgrown) return "The game stops on this career: an amount in it grows past what can be counted.";
  if (code == outOfMemory) return "The game stops on this career: it needs more memory than there is.";
  if (signal == SIGXCPU) return "The game does not come to an end with a week of this career.";
  if (code == stuck) return "The week of this career cannot be ended.";
  return code == played && signal == 0 ? "" : "The game stops on this career.";
}

}  // namespace

std::string problemOfWork(const std::function<bool()>& work, unsigned seconds) {
  const pid_t child = ::fork();
  if (child < 0) return "This computer has no room for a second process to try the career in.";
  if (child == 0) {
    tellLastWords();
    beSilent();
    limitWork(seconds);
    _exit(work() ? played : stuck);
  }
  int status = 0;
  while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  return problemOf(status);
}

std::string trialProblem(std::span<const Write> rows, Trial trial, Date now) {
  return problemOfWork([&] { return play(rows, trial, now); }, mostSeconds);
}

}  // namespace backbeat
