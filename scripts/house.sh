# What every command of the house shares: where things are, how progress is told, how a command gives up.
# Sourced, never run.
# shellcheck shell=bash disable=SC2034

house="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
logs="$house/build/log"
web="$house/src/shell/web"
native_build="$house/build/native"
mkdir -p "$logs"

say() { printf '%4ds  %s\n' "$SECONDS" "$*"; }

fail() {
  printf '%s: %s\n' "$(basename "$0")" "$*" >&2
  exit 1
}

jobs_at_once() { nproc 2>/dev/null || echo 2; }

# logged NAME COMMAND...: runs the command with its output in a log. When it fails, the end of the log is shown.
logged() {
  local log="$logs/$1.log"
  shift
  ("$@") >"$log" 2>&1 </dev/null && return 0
  tail -n 40 "$log" >&2
  return 1
}

# fingerprint PATH...: one hash over names and contents of the files below, built things left out.
fingerprint() {
  find "$@" \( -name node_modules -o -name dist \) -prune -o -type f -print0 2>/dev/null |
    LC_ALL=C sort -z | xargs -0r sha256sum | sha256sum | cut -d' ' -f1
}
