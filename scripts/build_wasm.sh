#!/usr/bin/env bash
# Builds the engine for the browser: src/shell/web/public/engine.wasm. Only what changed is compiled again.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=house.sh
. "$(dirname "${BASH_SOURCE[0]}")/house.sh"

out=build/wasm
traps=signed-integer-overflow,integer-divide-by-zero,float-cast-overflow,bounds,return,unreachable
flags=(-std=c++20 -Oz -fno-exceptions -fno-rtti -ffp-contract=off -Wall -Wextra -Werror -Wshadow
  "-fsanitize=$traps" -fsanitize-trap=all -D_LIBCPP_HARDENING_MODE=_LIBCPP_HARDENING_MODE_FAST -I../../src)
# The stack lies below the data, so that running out of it is a trap. No -O here: it would run whatever optimiser is
# installed, and the module would differ from machine to machine.
link_flags=(-mexec-model=reactor "-Wl,--stack-first" "-Wl,-z,stack-size=1048576" "-Wl,--strip-all")

sources() {
  find src -name '*.cpp' -not -path 'src/shell/native/*' -not -path 'src/shell/simulate/*' -not -path 'src/shell/web/*' |
    LC_ALL=C sort
}

ninja_file() {
  local launcher source objects=()
  launcher=$(command -v ccache || true)
  cat <<END
rule cxx
  command = $launcher clang++-19 --target=wasm32-wasi -stdlib=libc++ ${flags[*]} -MD -MF \$out.d -c \$in -o \$out
  description = \$in
  depfile = \$out.d
  deps = gcc
rule c
  command = clang-19 --target=wasm32-wasi -O2 -Wall -Wextra -Werror -c \$in -o \$out
rule link
  command = clang++-19 --target=wasm32-wasi ${link_flags[*]} \$in -o \$out
rule checked
  command = node ../../scripts/check_wasm.mjs \$in && mkdir -p ../../src/shell/web/public && cp \$in \$out
build rt_stub.o: c ../../src/shell/wasm/rt_stub.c
END
  while read -r source; do
    objects+=("${source%.cpp}.o")
    echo "build ${source%.cpp}.o: cxx ../../$source"
  done < <(sources)
  cat <<END
build engine.wasm: link ${objects[*]} rt_stub.o
build ../../src/shell/web/public/engine.wasm: checked engine.wasm | ../../scripts/check_wasm.mjs
END
}

cd "$house"
mkdir -p "$out"
ninja_file >"$out/build.ninja.new"
cmp -s "$out/build.ninja.new" "$out/build.ninja" || cp "$out/build.ninja.new" "$out/build.ninja"
exec ninja -C "$out" -j "$(jobs_at_once)" --quiet
