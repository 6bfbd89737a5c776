# The program for this computer: in build/native for players, in build/check with its tests, in build/bench with its
# benchmarks, in build/sanitize with sanitizers and fuzzers. Sourced, never run.
# shellcheck shell=bash disable=SC2154

check_build="$house/build/check"
sanitize_build="$house/build/sanitize"

# Sets what CMake needs to use ccache, once that is installed.
find_launcher() {
  launcher=()
  if ! command -v ccache >/dev/null; then return 0; fi
  launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
  # Without it nothing that uses the tests' parsed headers is ever found again.
  export CCACHE_SLOPPINESS=${CCACHE_SLOPPINESS:-pch_defines,time_macros}
}

# build_native: the game as players get it. What an optimiser of another version warns of does not keep anybody from
# playing.
build_native() {
  find_launcher
  if [[ ! -f $native_build/build.ninja ]]; then
    logged cmake cmake -S "$house" -B "$native_build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
      -DBACKBEAT_TESTS=OFF -DBACKBEAT_STRICT=OFF "${launcher[@]}" || return 1
  fi
  logged native ninja -C "$native_build" -j "$(jobs_at_once)" backbeat
}

# build_tests: the game and its tests, optimised a little: less would take longer to test, more longer to build.
build_tests() {
  find_launcher
  if [[ ! -f $check_build/build.ninja ]]; then
    logged cmake-check cmake -S "$house" -B "$check_build" -G Ninja -DCMAKE_BUILD_TYPE=Debug \
      -DCMAKE_CXX_FLAGS_DEBUG=-O1 "${launcher[@]}" || return 1
  fi
  logged check ninja -C "$check_build" -j "$(jobs_at_once)" all
}

# build_bench: the benchmarks, in a folder of their own.
bench_build="$house/build/bench"
build_bench() {
  find_launcher
  if [[ ! -f $bench_build/build.ninja ]]; then
    logged cmake-bench cmake -S "$house" -B "$bench_build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
      -DBACKBEAT_TESTS=OFF -DBACKBEAT_BENCH=ON "${launcher[@]}" || return 1
  fi
  logged bench ninja -C "$bench_build" -j "$(jobs_at_once)" backbeat_bench
}

# build_sanitized TARGET...
build_sanitized() {
  find_launcher
  if [[ ! -f $sanitize_build/build.ninja ]]; then
    logged cmake-sanitize cmake -S "$house" -B "$sanitize_build" -G Ninja -DCMAKE_CXX_COMPILER=clang++-19 \
      -DCMAKE_BUILD_TYPE=Debug "-DCMAKE_CXX_FLAGS_DEBUG=-O1 -g1" \
      -DBACKBEAT_SANITIZE=ON -DBACKBEAT_FUZZ=ON "${launcher[@]}" || return 1
  fi
  logged sanitize ninja -C "$sanitize_build" -j "$(jobs_at_once)" "$@"
}
