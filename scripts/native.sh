# The program for this computer: in build/native for players, in build/check with its tests, in build/bench with its
# benchmarks, in build/sanitize with sanitizers and fuzzers. Sourced, never run.
# shellcheck shell=bash disable=SC2154

check_build="$house/build/check"
sanitize_build="$house/build/sanitize"
bench_build="$house/build/bench"

# native_folder NAME FOLDER OPTION...: a build folder, made when it is not there or was made with other options.
native_folder() {
  local name=$1 folder=$2 launcher=()
  shift 2
  if command -v ccache >/dev/null; then launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
  # Without it nothing that uses parsed headers is ever found again.
  export CCACHE_SLOPPINESS=${CCACHE_SLOPPINESS:-pch_defines,time_macros}
  set -- -DCMAKE_CXX_COMPILER=clang++-19 "${launcher[@]}" "$@"
  if [[ -f $folder/build.ninja && -f $folder/options && $(<"$folder/options") == "$*" ]]; then return 0; fi
  rm -rf "$folder"
  logged "cmake-$name" cmake -S "$house" -B "$folder" -G Ninja "$@" && printf '%s' "$*" >"$folder/options"
}

compile() { logged "$1" ninja -C "$2" -j "$(jobs_at_once)" "${@:3}"; }

# build_native: the game as players get it. What a compiler of another version warns of does not keep anybody from
# playing.
build_native() {
  native_folder native "$native_build" -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DBACKBEAT_TESTS=OFF -DBACKBEAT_STRICT=OFF -DBACKBEAT_PARSED_HEADERS=ON || return 1
  compile native "$native_build" backbeat
}

# Optimised a little: less would take longer to test, more longer to build.
check_folder() {
  native_folder check "$check_build" -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O1 \
    -DBACKBEAT_PARSED_HEADERS=ON -DBACKBEAT_FUZZ=presses
}

# build_tests: the game, its tests, the fuzzer that needs the whole game, and the careers that the page's tests begin from.
build_tests() { check_folder && compile check "$check_build" all careers; }

# build_careers: those careers alone, in build/check/careers.
build_careers() { check_folder && compile careers "$check_build" careers; }

# build_bench: the benchmarks.
build_bench() {
  native_folder bench "$bench_build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DBACKBEAT_TESTS=OFF -DBACKBEAT_BENCH=ON \
    -DBACKBEAT_PARSED_HEADERS=ON || return 1
  compile bench "$bench_build" backbeat_bench
}

# build_sanitized TARGET...: every header is parsed where it is included, so that a missing include is seen.
build_sanitized() {
  native_folder sanitize "$sanitize_build" -DCMAKE_BUILD_TYPE=Debug "-DCMAKE_CXX_FLAGS_DEBUG=-O1 -g1" \
    -DBACKBEAT_SANITIZE=ON "-DBACKBEAT_FUZZ=property_list;career_import;presses" || return 1
  compile sanitize "$sanitize_build" "$@"
}
