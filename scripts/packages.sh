# The Debian packages, one list per purpose, and how the missing ones are installed. Sourced, never run.
# shellcheck shell=bash disable=SC2154,SC2046,SC2086

packages_for() {
  case $1 in
    browser) echo binaryen clang-19 lld-19 wasi-libc libc++-19-dev-wasm32 libc++abi-19-dev-wasm32 \
      libclang-rt-19-dev-wasm32 libxxhash-dev ninja-build ;;
    computer) echo clang-19 cmake ninja-build libcli11-dev libedit-dev libsqlite3-dev libutf8proc-dev \
      libxxhash-dev zlib1g-dev ;;
    node) echo nodejs npm ca-certificates ;;
    tests) echo ccache libgtest-dev libgmock-dev libplist-utils python3 chromium fonts-noto-color-emoji ;;
    engines) echo firefox-esr webkit2gtk-driver xvfb ;;
    bench) echo ccache libbenchmark-dev ;;
    fuzz) echo clang-19 libclang-rt-19-dev ;;
    lint) echo clang-format-14 clang-tidy-19 ;;
  esac
}

missing_packages() {
  local package
  for package in "$@"; do
    [[ $(dpkg-query -W -f='${Status}' "$package" 2>/dev/null) == 'install ok installed' ]] || echo "$package"
  done
}

# as_root COMMAND...: sudo may ask for a password where somebody is there to type it.
as_root() {
  if [[ $EUID -eq 0 ]]; then
    "$@"
  elif [[ -t 0 ]]; then
    sudo "$@"
  else
    sudo -n "$@"
  fi
}

apt_get() { as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -o Dpkg::Use-Pty=0 "$@"; }

# install_for PURPOSE...: installs what these purposes still need; says nothing when there is nothing to do.
install_for() {
  if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    fail "this system has no apt-get; Backbeat builds itself on Debian 12 (bookworm)."
  fi
  local purpose missing
  missing=$(for purpose in "$@"; do missing_packages $(packages_for "$purpose"); done | sort -u | xargs)
  [[ -n $missing ]] || return 0
  if [[ $EUID -ne 0 ]] && ! command -v sudo >/dev/null; then
    fail "only root can install what is missing. Run as root: apt-get install $missing"
  fi
  say "installing $missing"
  if [[ $EUID -ne 0 ]] && ! as_root true; then
    fail "sudo refused. Run as root: apt-get install $missing"
  fi
  apt_get -o APT::Update::Error-Mode=any update >"$logs/apt.log" 2>&1 || fail "the package lists cannot be fetched; is this machine online? ($logs/apt.log)"
  apt_get install -y --no-install-recommends $missing >>"$logs/apt.log" 2>&1 </dev/null ||
    fail "not every package could be installed: $(grep -m1 '^E:' "$logs/apt.log" || echo "see $logs/apt.log")"
}
