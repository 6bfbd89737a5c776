#include "shell/native/last_words.h"

#include <signal.h>
#include <ucontext.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <new>
#include <string_view>

namespace backbeat {

namespace {

[[noreturn]] void stop(std::string_view message, StopCode code) {
  // Nothing can be done about a message that does not get out.
  [[maybe_unused]] const ssize_t written = ::write(STDERR_FILENO, message.data(), message.size());
  _exit(code);
}

[[noreturn]] void tellMemory() {
  stop("\nThis computer has no memory left for the game. The save holds the last whole step.\n", outOfMemory);
}

/// The engine is built so that arithmetic which leaves the range of its numbers ends in an instruction of its own; any
/// other forbidden instruction marks a place that must not be reached.
bool isArithmetic(int signal, [[maybe_unused]] const ucontext_t& place) {
#if __has_feature(address_sanitizer)
  return signal == SIGABRT;  // sanitizers say first what it was
#elif defined(__x86_64__)
  if (signal != SIGILL) return false;
  constexpr std::array<uint8_t, 3> ud1 = {0x67, 0x0F, 0xB9};
  const auto* instruction = reinterpret_cast<const uint8_t*>(place.uc_mcontext.gregs[REG_RIP]);
  return instruction[0] == ud1[0] && instruction[1] == ud1[1] && instruction[2] == ud1[2];
#else
  return signal == SIGILL || signal == SIGTRAP;
#endif
}

void tellFault(int signal, siginfo_t*, void* place) {
  if (isArithmetic(signal, *static_cast<const ucontext_t*>(place))) {
    stop("\nAn amount grew past what the game can count. The save holds the last whole step.\n", outgrown);
  }
  stop("\nSomething in the game itself went wrong, and it had to stop. The save holds the last whole step.\n", fault);
}

}  // namespace

void tellLastWords() {
  std::set_new_handler(tellMemory);
  // A stack that ran out leaves no room to speak.
  static std::array<char, 16384> room;
  stack_t other = {};
  other.ss_sp = room.data();
  other.ss_size = room.size();
  sigaltstack(&other, nullptr);
  for (const int signal : {SIGILL, SIGTRAP, SIGABRT, SIGSEGV, SIGBUS, SIGFPE}) {
    struct sigaction action = {};
    action.sa_sigaction = tellFault;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    sigaction(signal, &action, nullptr);
  }
}

}  // namespace backbeat
