#!/usr/bin/env bash
# Builds the engine for the browser: src/shell/web/public/engine.wasm. Only what changed is compiled again.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=house.sh
. "$(dirname "${BASH_SOURCE[0]}")/house.sh"

out=build/wasm
traps=signed-integer-overflow,integer-divide-by-zero,float-cast-overflow,bounds,return,unreachable
flags=(-std=c++20 -fno-exceptions -fno-rtti -ffp-contract=off -Wall -Wextra -Werror -Wshadow
  "-fsanitize=$traps" -fsanitize-trap=all -D_LIBCPP_HARDENING_MODE=_LIBCPP_HARDENING_MODE_FAST -I../../src
  -isystem include -DXXH_INLINE_ALL)
# Where a week spends its time; everything else is to be small.
quick=(core/chunked_list core/json core/money core/numbers core/property_list core/random core/record_buffer
  core/record_codec core/row_check core/save_file core/text core/value_type music/album_sales music/chart music/listeners
  music/silence music/streaming shell/page_store shell/shown_json
  turn/week_cycle)
# What nearly every source reads, parsed once. Without the time of the parsing in it, ccache knows it again.
common=(algorithm array functional map optional string unordered_map variant vector core/game.h core/screen.h)
parsed=(-fpch-instantiate-templates -Xclang -fno-pch-timestamp)
# The stack lies below the data, so that running out of it is a trap; nothing else lies in the lowest kilobyte, which the
# optimiser may know. No -O here: it would run the optimiser with marks of its own; it is run below, with the features
# that the engine may use.
link_flags=(-mexec-model=reactor "-Wl,--stack-first" "-Wl,-z,stack-size=1048576" "-Wl,--strip-all")

sources() {
  find src -name '*.cpp' -not -path 'src/shell/native/*' -not -path 'src/shell/simulate/*' -not -path 'src/shell/web/*' |
    LC_ALL=C sort
}

ninja_file() {
  local launcher compiler source name how objects=()
  launcher=$(command -v ccache || true)
  compiler="$launcher clang++-19 --target=wasm32-wasi -stdlib=libc++ ${flags[*]} ${parsed[*]} \$how -MD -MF \$out.d"
  cat <<END
rule pch
  command = $compiler -x c++-header \$in -o \$out
  depfile = \$out.d
  deps = gcc
rule cxx
  command = $compiler -include-pch common\$how.pch -c \$in -o \$out
  description = \$in
  depfile = \$out.d
  deps = gcc
rule c
  command = clang-19 --target=wasm32-wasi -O2 \$how -Wall -Wextra -Werror -c \$in -o \$out
rule link
  command = clang++-19 --target=wasm32-wasi ${link_flags[*]} \$in -o \$out
rule shrunk
  command = wasm-opt -Oz --low-memory-unused --enable-bulk-memory --enable-sign-ext --enable-mutable-globals \$in -o \$out
rule checked
  command = node ../../scripts/check_wasm.mjs \$in && mkdir -p ../../src/shell/web/public && cp \$in \$out
build common-Oz.pch: pch common.h
  how = -Oz
build common-O2.pch: pch common.h
  how = -O2
build rt_stub.o: c ../../src/shell/wasm/rt_stub.c
build memory.o: c ../../src/shell/wasm/memory.c
  how = -mbulk-memory -fno-builtin
END
  while read -r source; do
    name=${source#src/} name=${name%.cpp}
    objects+=("src/$name.o")
    how=-Oz
    if [[ " ${quick[*]} " == *" $name "* ]]; then how=-O2; fi
    printf 'build src/%s.o: cxx ../../%s | common%s.pch\n  how = %s\n' "$name" "$source" "$how" "$how"
  done < <(sources)
  cat <<END
build linked.wasm: link ${objects[*]} rt_stub.o memory.o
build engine.wasm: shrunk linked.wasm
build ../../src/shell/web/public/engine.wasm: checked engine.wasm | ../../scripts/check_wasm.mjs
END
}

# into FILE: what it reads, when that differs from the file.
into() {
  cat >"$1.new"
  cmp -s "$1.new" "$1" || cp "$1.new" "$1"
}

cd "$house"
mkdir -p "$out/include"
# The one header of this system that the engine needs, without those that lie beside it.
into "$out/include/xxhash.h" </usr/include/xxhash.h
for name in "${quick[@]}"; do [[ -f src/$name.cpp ]] || fail "src/$name.cpp, which is to be quick, is not there"; done
printf '#include <%s>\n' "${common[@]}" | into "$out/common.h"
ninja_file | into "$out/build.ninja"
exec ninja -C "$out" -j "$(jobs_at_once)" --quiet
