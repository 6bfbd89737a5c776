# Node.js builds and serves the page. The system's is taken when it is new enough; else a newer one goes to .tools/.
# Sourced, never run.
# shellcheck shell=bash disable=SC2154

node_is_new_enough() {
  command -v node >/dev/null &&
    node -e 'const [a, b] = process.versions.node.split(".").map(Number);
             process.exit((a === 20 && b >= 19) || (a === 22 && b >= 12) || a > 22 ? 0 : 1)'
}

ensure_node() {
  local tools="$house/.tools/node"
  if node_is_new_enough && command -v npm >/dev/null; then return; fi
  PATH="$tools/node_modules/.bin:$PATH"
  if node_is_new_enough; then return; fi
  command -v npm >/dev/null || install_for node
  say "fetching a newer Node.js into .tools/ (found: $(node --version 2>/dev/null || echo none))"
  mkdir -p "$tools"
  echo '{"private": true}' >"$tools/package.json"
  logged node npm install --prefix "$tools" --no-audit --no-fund node@22 npm@10 ||
    fail "Node.js 20.19, 22.12 or newer is needed and could not be fetched; is this machine online? ($logs/node.log)"
  hash -r
  node_is_new_enough || fail "the Node.js in .tools/ does not run: $(node --version 2>&1)"
}
