# The page: its packages, the engine for the browser, and the bundle in src/shell/web/dist. Sourced, never run.
# shellcheck shell=bash disable=SC2154

install_page_packages() {
  local lock stamp="$web/node_modules/.installed-lock"
  lock=$(sha256sum <"$web/package-lock.json")
  [[ -f $stamp && $(<"$stamp") == "$lock" ]] && return 0
  say "fetching the page's packages"
  (cd "$web" && logged npm npm ci --no-audit --no-fund) ||
    fail "the page's packages could not be fetched; is this machine online? ($logs/npm.log)"
  echo "$lock" >"$stamp"
}

build_page() {
  local now stamp="$house/build/page.stamp"
  now=$(cd "$house" && fingerprint src/shell/web)
  [[ -f $web/dist/index.html && -f $stamp && $(<"$stamp") == "$now" ]] && return 0
  say "building the page"
  rm -f "$stamp"
  (cd "$web" && logged page npm run build) || fail "the page does not build ($logs/page.log)"
  echo "$now" >"$stamp"
}
